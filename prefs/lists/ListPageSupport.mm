#import "lists/ListPageSupport.h"

#include "core/Names.hpp"

PSSpecifier *listFooterGroup(NSString *footer) {
  if ([PSSpecifier respondsToSelector:@selector(groupSpecifierWithHeader:footer:)])
    return [PSSpecifier groupSpecifierWithHeader:nil footer:footer];
  PSSpecifier *group = [PSSpecifier groupSpecifierWithName:nil];
  [group setProperty:footer forKey:@"footerText"];
  return group;
}

NSDictionary *askSpringBoardForList(const char *message) {
  Class centerClass = NSClassFromString(@"CPDistributedMessagingCenter");
  CPDistributedMessagingCenter *center = [centerClass centerNamed:@(tessarin::kCenterName)];
  if (center == nil) return nil;
  id reply = [center sendMessageAndReceiveReplyName:@(message) userInfo:nil];
  return [reply isKindOfClass:[NSDictionary class]] ? reply : nil;
}

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

NSString *listString(std::string_view text) {
  return [[[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding]
      autorelease];
}

std::optional<std::string> listUtf8(id object) {
  if (![object isKindOfClass:[NSString class]]) return std::nullopt;
  const char *utf8 = [(NSString *)object UTF8String];
  if (utf8 == NULL) return std::nullopt;
  return std::string(utf8);
}
