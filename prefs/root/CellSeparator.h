// The root page's cells that draw no separator line.
#pragma once
#import "core/PlatformAPI.h"

// The cell's separator is a private property of the platform cell; skipped where absent.
inline void clearSeparator(UITableViewCell *cell) {
  SEL setter = @selector(setSeparatorColor:);
  if ([cell respondsToSelector:setter]) [cell performSelector:setter withObject:[UIColor clearColor]];
}
