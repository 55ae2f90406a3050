// A dashed grey outline around its bounds, drawn by its shape layer.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinHightlightView : UIView
@end
