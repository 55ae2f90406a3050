// The unlock-button page: the animated buttons and, on devices with a biometric sensor,
// PassKit's fingerprint glyphs.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinButtonController : PSListController
@end
