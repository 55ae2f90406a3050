// The direction a view of ours lays its text out in, for the few views that place text themselves.
#pragma once
#import "core/PlatformAPI.h"

// True when `view` lays out right to left (an Arabic or Hebrew Settings app, or a view forced so),
// as UIKit decides it for the view (effectiveUserInterfaceLayoutDirection, iOS 10).
BOOL isRightToLeft(UIView *view);
