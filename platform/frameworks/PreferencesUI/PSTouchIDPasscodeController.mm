#import <PreferencesUI/PSTouchIDPasscodeController.h>

@implementation PSTouchIDPasscodeController
@end
