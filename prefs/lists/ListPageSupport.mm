#import "lists/ListPageSupport.h"

#include "core/Names.hpp"

PSSpecifier *listSwitchRow(NSString *name, id target, SEL setter, SEL getter) {
  return [PSSpecifier preferenceSpecifierNamed:name
                                        target:target
                                           set:setter
                                           get:getter
                                        detail:Nil
                                          cell:PSSwitchCell
                                          edit:Nil];
}

UIImage *resizedImage(UIImage *image, CGSize size) {
  UIGraphicsBeginImageContextWithOptions(size, NO, 0);
  [image drawInRect:CGRectMake(0, 0, size.width, size.height)];
  UIImage *resized = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return resized;
}

