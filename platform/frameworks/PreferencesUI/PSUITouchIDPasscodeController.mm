#import <PreferencesUI/PSUITouchIDPasscodeController.h>

@implementation PSUITouchIDPasscodeController
@end
