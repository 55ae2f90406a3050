// Shared internals of the QuartzCore stand-in.
#pragma once

#import <QuartzCore/QuartzCore.h>

/* Keeps `color` in `slot`: retains the new colour and releases the old one. */
static inline void setColor(CGColorRef *slot, CGColorRef color) {
  if (*slot == color) return;
  CGColorRetain(color);
  CGColorRelease(*slot);
  *slot = color;
}

/* Keeps a copy of `path` in `slot` and releases the old one. */
static inline void setPath(CGPathRef *slot, CGPathRef path) {
  if (path == *slot) return;
  CGPathRelease(*slot);
  *slot = CGPathCreateCopy(path);
}

@interface CALayer (SimInternal)
/* Draws what the layer itself shows (background, contents) into `ctx`, before its
   delegate's drawing and its sublayers; a subclass adds what it shows on top. */
- (void)_simRenderContentInContext:(CGContextRef)ctx rect:(CGRect)r;
@end
