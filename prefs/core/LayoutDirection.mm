#import "core/LayoutDirection.h"

BOOL isRightToLeft(UIView *view) {
  if (view == nil) return NO;
  return [view effectiveUserInterfaceLayoutDirection] == UIUserInterfaceLayoutDirectionRightToLeft;
}
