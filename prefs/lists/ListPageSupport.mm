#import "lists/ListPageSupport.h"

#include "core/Names.hpp"

UIImage *imageInBundle(NSString *name, NSBundle *bundle) {
  if ([UIImage respondsToSelector:@selector(imageNamed:inBundle:)]) return [UIImage imageNamed:name inBundle:bundle];
  return [UIImage imageNamed:name inBundle:bundle compatibleWithTraitCollection:nil];
}

UIImage *resizedImage(UIImage *image, CGSize size) {
  UIGraphicsBeginImageContextWithOptions(size, NO, 0);
  [image drawInRect:CGRectMake(0, 0, size.width, size.height)];
  UIImage *resized = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return resized;
}

