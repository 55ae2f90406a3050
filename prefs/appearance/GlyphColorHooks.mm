// Keeps the three sample glyphs of the button page in their own colours whatever
// PassKit sets while their state changes.
#import "core/PlatformAPI.h"
#import "core/Startup.h"
#import "core/VersionFlags.h"

namespace {

typedef void (*ColorSetter)(id, SEL, UIColor *, BOOL);
ColorSetter platformSetPrimaryColor = NULL;
ColorSetter platformSetSecondaryColor = NULL;

// The palette style that a sample glyph shows (black 3, blue 2, red 1), or 0 for other glyphs.
long sampleStyleOfGlyph(id glyph) {
  Class cellClass = NSClassFromString(@"TessarinGlyphIconCell");
  if (cellClass == Nil || ![cellClass respondsToSelector:@selector(sharedInstance)]) return 0;
  id cell = [cellClass performSelector:@selector(sharedInstance)];
  if (cell == nil) return 0;
  if ([cell respondsToSelector:@selector(blackView)] && glyph == [cell performSelector:@selector(blackView)]) return 3;
  if ([cell respondsToSelector:@selector(blueView)] && glyph == [cell performSelector:@selector(blueView)]) return 2;
  if ([cell respondsToSelector:@selector(redView)] && glyph == [cell performSelector:@selector(redView)]) return 1;
  return 0;
}

UIColor *paletteColor(id glyph, SEL paletteSelector, long style, UIColor *given) {
  if (style == 0 || ![glyph respondsToSelector:paletteSelector]) return given;
  typedef UIColor *(*PaletteLookup)(id, SEL, long, long);
  PaletteLookup lookup = (PaletteLookup)[glyph methodForSelector:paletteSelector];
  UIColor *own = lookup(glyph, paletteSelector, style, 0);
  return own ? own : given;
}

void setPrimaryColor(id self, SEL _cmd, UIColor *color, BOOL animated) {
  if (systemVersion.iOS11) {
    color = paletteColor(self, @selector(_primaryColorForStyle:mode:), sampleStyleOfGlyph(self), color);
  }
  platformSetPrimaryColor(self, _cmd, color, animated);
}

void setSecondaryColor(id self, SEL _cmd, UIColor *color, BOOL animated) {
  if (systemVersion.iOS11) {
    color = paletteColor(self, @selector(_secondaryColorForStyle:mode:), sampleStyleOfGlyph(self), color);
  }
  platformSetSecondaryColor(self, _cmd, color, animated);
}

}  // namespace

void installGlyphColorHooks(Class glyphViewClass) {
  if ([glyphViewClass instancesRespondToSelector:@selector(_setPrimaryColor:animated:)]) {
    MSHookMessageEx(glyphViewClass, @selector(_setPrimaryColor:animated:), (IMP)setPrimaryColor,
                    (IMP *)&platformSetPrimaryColor);
  }
  if ([glyphViewClass instancesRespondToSelector:@selector(_setSecondaryColor:animated:)]) {
    MSHookMessageEx(glyphViewClass, @selector(_setSecondaryColor:animated:), (IMP)setSecondaryColor,
                    (IMP *)&platformSetSecondaryColor);
  }
}
