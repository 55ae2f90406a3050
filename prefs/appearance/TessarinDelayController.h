// The delay page: how long protection waits before it asks, or whether it waits
// until the app has opened, in which case the delay rows are not shown.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinDelayController : PSListController
@end
