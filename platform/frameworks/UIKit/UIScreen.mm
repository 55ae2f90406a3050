#import "UIKitInternal.h"

static CGFloat profileScreenValue(NSString *key, CGFloat fallback) {
  id screen = [SimUIKitProfile() objectForKey:@"screen"];
  if (![screen isKindOfClass:[NSDictionary class]]) return fallback;
  id v = [screen objectForKey:key];
  return [v respondsToSelector:@selector(doubleValue)] && [v doubleValue] > 0 ? [v doubleValue] : fallback;
}

CGFloat SimUIKitScreenScale(void) { return profileScreenValue(@"scale", 3); }

@implementation UIScreen
+ (UIScreen *)mainScreen {
  static UIScreen *screen;
  if (!screen) screen = [[UIScreen alloc] init];
  return screen;
}
+ (NSArray *)screens {
  return [NSArray arrayWithObject:[self mainScreen]];
}
- (CGRect)bounds {
  return CGRectMake(0, 0, profileScreenValue(@"width", 390), profileScreenValue(@"height", 844));
}
- (CGFloat)scale {
  return SimUIKitScreenScale();
}
- (CGRect)nativeBounds {
  CGRect b = self.bounds;
  CGFloat s = self.scale;
  return CGRectMake(0, 0, b.size.width * s, b.size.height * s);
}
- (CGFloat)nativeScale {
  return self.scale;
}
- (CGFloat)brightness {
  return 0.5;
}
- (void)setBrightness:(CGFloat)brightness {
}
- (UITraitCollection *)traitCollection {
  return [UITraitCollection currentTraitCollection];
}
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection {
}
@end
