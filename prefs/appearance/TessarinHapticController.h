// The haptic page: how a failed attempt vibrates, from its plist.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinHapticController : PSListController
@end
