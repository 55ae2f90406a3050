// A subtitled switch with the product's red on-tint.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinColorCell : PSSubtitleSwitchTableCell
@end
