// Keeps the three sample glyphs of the button page in their own colours whatever
// PassKit sets while their state changes.
#import "core/PlatformAPI.h"
#import "core/Startup.h"
#import "core/VersionFlags.h"
#import "appearance/TessarinGlyphIconCell.h"
#include "appearance/ButtonRules.hpp"

namespace {

typedef void (*ColorSetter)(id, SEL, UIColor *, BOOL);
ColorSetter platformSetPrimaryColor = NULL;
ColorSetter platformSetSecondaryColor = NULL;

// The palette style that a sample glyph keeps, or 0 for any other glyph.
long sampleStyleOfGlyph(id glyph) {
  TessarinGlyphIconCell *cell = [TessarinGlyphIconCell sharedInstance];
  if (cell == nil || glyph == nil) return 0;
  if (glyph == [cell blackView]) return tessarin::appearance::glyph::hookPaletteStyle(0);
  if (glyph == [cell blueView]) return tessarin::appearance::glyph::hookPaletteStyle(1);
  if (glyph == [cell redView]) return tessarin::appearance::glyph::hookPaletteStyle(2);
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
