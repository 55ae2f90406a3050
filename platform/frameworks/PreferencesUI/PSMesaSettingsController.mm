#import <PreferencesUI/PSMesaSettingsController.h>

@implementation PSMesaSettingsController
@end
