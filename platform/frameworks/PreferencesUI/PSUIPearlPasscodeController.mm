#import <PreferencesUI/PSUIPearlPasscodeController.h>

@implementation PSUIPearlPasscodeController
- (NSData *)authorizationToken {
  return [self _authorizationToken];
}
@end
