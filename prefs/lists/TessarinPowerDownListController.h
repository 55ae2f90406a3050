// The power-down page: its plist's rows only.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinPowerDownListController : PSListController
@end
