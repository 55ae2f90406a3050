// The one-line credit at the bottom of the root page.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinCreditsCell : PSTableCell
@end
