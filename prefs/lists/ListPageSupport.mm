#import "lists/ListPageSupport.h"
#import "core/Paths.h"

#include "core/Names.hpp"

NSBundle *deviceBundle(std::string_view path) { return [NSBundle bundleWithPath:devicePath(nsString(path))]; }

UIImage *imageInBundle(NSString *name, NSBundle *bundle) {
  if ([UIImage respondsToSelector:@selector(imageNamed:inBundle:)]) return [UIImage imageNamed:name inBundle:bundle];
  return [UIImage imageNamed:name inBundle:bundle compatibleWithTraitCollection:nil];
}

tessarin::lists::InfoValue nameValue(id object) {
  if (object == nil) return tessarin::lists::InfoValue::absent();
  std::optional<std::string> text = utf8String(object);
  return text ? tessarin::lists::InfoValue::string(*text) : tessarin::lists::InfoValue::other();
}

UIImage *resizedImage(UIImage *image, CGSize size) {
  UIGraphicsBeginImageContextWithOptions(size, NO, 0);
  [image drawInRect:CGRectMake(0, 0, size.width, size.height)];
  UIImage *resized = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return resized;
}
