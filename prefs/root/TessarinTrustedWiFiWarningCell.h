// The status row above the plist rows: protection is off (grace period or trusted network).
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinTrustedWiFiWarningCell : PSTableCell
@end
