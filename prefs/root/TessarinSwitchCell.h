// A switch whose icon dims while it is off.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinSwitchCell : PSSwitchTableCell
@end
