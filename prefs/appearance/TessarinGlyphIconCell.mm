#import "appearance/TessarinGlyphIconCell.h"
#import "core/Geometry.h"
#import "core/Strings.h"
#include "appearance/ButtonRules.hpp"
#import "appearance/IconColor.h"
#import "core/Paths.h"
#import "core/PreferenceStore.h"
#import "core/VersionFlags.h"

namespace appearance = tessarin::appearance;
namespace glyph = tessarin::appearance::glyph;

// In-process notifications that keep the two rows in step.
static NSString *const kIconSelected = @"TessarinIconSelected";
static NSString *const kGlyphIconSelected = @"TessarinGlyphIconSelected";

// The last glyph cell made; the colour hooks ask it for its glyphs.
static TessarinGlyphIconCell *sharedGlyphCell = nil;

UIColor *colorFromHexString(NSString *hexString) {
  const char *text = [hexString UTF8String];
  appearance::Rgb rgb = appearance::rgbFromHexString(text ? text : "");
  return [UIColor colorWithRed:rgb.red green:rgb.green blue:rgb.blue alpha:1.0];
}

namespace {

typedef UIColor *(*PaletteLookup)(id, SEL, NSInteger, NSInteger);
typedef void (*ColorSetter)(id, SEL, UIColor *, BOOL);

UIColor *paletteColor(PKGlyphView *view, SEL lookup, NSInteger style) {
  if (![view respondsToSelector:lookup]) return nil;
  return ((PaletteLookup)[view methodForSelector:lookup])(view, lookup, style, 0);
}

void setColor(PKGlyphView *view, SEL setter, UIColor *color, BOOL animated) {
  if (color == nil || ![view respondsToSelector:setter]) return;
  ((ColorSetter)[view methodForSelector:setter])(view, setter, color, animated);
}

// Gives a sample glyph its colours: its palette style's with the iOS 11 flag, else the
// fixed colours of its look (through the public setters and also the underscore ones).
void applyLook(PKGlyphView *view, int index, BOOL animated) {
  if (view == nil) return;
  glyph::Look look = glyph::look(index, systemVersion);
  if (look.paletteStyle != 0) {
    setColor(view, @selector(_setPrimaryColor:animated:),
             paletteColor(view, @selector(_primaryColorForStyle:mode:), look.paletteStyle), animated);
    setColor(view, @selector(_setSecondaryColor:animated:),
             paletteColor(view, @selector(_secondaryColorForStyle:mode:), look.paletteStyle), animated);
    return;
  }
  if (look.primaryHex.empty()) return;
  UIColor *primary = colorFromHexString(nsString(look.primaryHex));
  UIColor *secondary = colorFromHexString(nsString(look.secondaryHex));
  if ([view respondsToSelector:@selector(setPrimaryColor:)]) [view setPrimaryColor:primary];
  if ([view respondsToSelector:@selector(setSecondaryColor:)]) [view setSecondaryColor:secondary];
  setColor(view, @selector(_setPrimaryColor:animated:), primary, NO);
  setColor(view, @selector(_setSecondaryColor:animated:), secondary, NO);
}

// Runs a glyph through `states` from `step` on, each step in the completion of the one
// before; the palette is applied again before the last step when the system wants it.
void runChain(PKGlyphView *view, int index, NSArray *states, NSUInteger step) {
  if (step >= [states count]) return;
  bool last = step + 1 == [states count];
  if (last && glyph::reappliesPaletteBeforeLastStep(systemVersion)) applyLook(view, index, YES);
  NSInteger state = [[states objectAtIndex:step] integerValue];
  if (last) {
    [view setState:state animated:YES completionHandler:^{}];
  } else {
    [view setState:state animated:YES completionHandler:^{ runChain(view, index, states, step + 1); }];
  }
}

}  // namespace

@interface TessarinGlyphIconCell (Glyphs)
// The glyph of a column: 0 black, 1 blue, 2 red (nil without PassKit).
- (PKGlyphView *)glyphAt:(int)index;
@end

@implementation TessarinGlyphIconCell
@synthesize blackView = _blackView;
@synthesize blueView = _blueView;
@synthesize redView = _redView;

+ (instancetype)sharedInstance {
  return sharedGlyphCell;
}

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  sharedGlyphCell = self;
  // Always the value style, whatever the row asks for.
  if ((self = [super initWithStyle:UITableViewCellStyleValue1 reuseIdentifier:reuseIdentifier specifier:specifier])) {
    sharedGlyphCell = self;
    CGFloat width = [[self contentView] bounds].size.width;
    _container = [[UIView alloc] initWithFrame:cgRect(appearance::containerFrame(width))];
    _tapRecognizer = [[UITapGestureRecognizer alloc] initWithTarget:self action:@selector(tappedView:)];
    [_container addGestureRecognizer:_tapRecognizer];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(updateGlyphsForIconSelection)
                                                 name:kIconSelected
                                               object:nil];

    NSBundle *passKit = [NSBundle bundleWithPath:devicePath(@"/System/Library/Frameworks/PassKit.framework")];
    if (passKit != nil && ![passKit isLoaded]) [passKit load];
    Class glyphClass = NSClassFromString(@"PKGlyphView");
    int64_t iconColor = storedIconColor();

    double third = width / 3;
    UIView **thirds[3] = {&_leftView, &_middleView, &_rightView};
    PKGlyphView **glyphs[3] = {&_blackView, &_blueView, &_redView};
    for (int column = 0; column < 3; column++) {
      *thirds[column] = [[UIView alloc] initWithFrame:cgRect(glyph::thirdFrame(column, third))];
      [_container addSubview:*thirds[column]];
      if (glyphClass == Nil) continue;
      PKGlyphView *view = [[glyphClass alloc] initWithStyle:glyph::look(column, systemVersion).style];
      *glyphs[column] = view;
      applyLook(view, column, YES);
      [view setFrame:cgRect(glyph::frameInThird(third))];
      [*thirds[column] addSubview:view];
    }
    [self addSubview:_container];

    std::optional<int> chosen = appearance::chosenGlyph(iconColor);
    if (chosen) {
      PKGlyphView *view = [self glyphAt:*chosen];
      applyLook(view, *chosen, YES);
      [view setState:glyph::chosenState(systemVersion) animated:YES completionHandler:nil];
      applyLook(view, *chosen, NO);
    }
  }
  return self;
}

- (void)dealloc {
  if (sharedGlyphCell == self) sharedGlyphCell = nil;
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_tapRecognizer release];
  [_container release];
  [_leftView release];
  [_middleView release];
  [_rightView release];
  [_blackView release];
  [_blueView release];
  [_redView release];
  [super dealloc];
}

- (PKGlyphView *)glyphAt:(int)index {
  switch (index) {
    case 0:
      return _blackView;
    case 1:
      return _blueView;
    case 2:
      return _redView;
    default:
      return nil;
  }
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_container setFrame:cgRect(appearance::containerFrame([[self contentView] bounds].size.width))];
}

- (void)tappedView:(UITapGestureRecognizer *)recognizer {
  CGFloat x = [recognizer locationOfTouch:0 inView:_container].x;
  std::optional<int64_t> choice = appearance::glyphChoiceAt(x);
  if (choice) {
    [[NSNotificationCenter defaultCenter] postNotificationName:kGlyphIconSelected object:nil userInfo:nil];
    int chosen = *appearance::chosenGlyph(*choice);
    for (int i = 0; i < 3; i++)
      if (i != chosen) [[self glyphAt:i] setState:glyph::kIdle animated:YES completionHandler:nil];
    NSMutableArray *states = [NSMutableArray array];
    for (int state : glyph::tapChain(systemVersion)) [states addObject:[NSNumber numberWithInt:state]];
    PKGlyphView *view = [self glyphAt:chosen];
    if (view != nil) runChain(view, chosen, states, 0);
  }
  recordIconTap(choice);
}

- (void)updateGlyphsForIconSelection {
  for (int i = 0; i < 3; i++) [[self glyphAt:i] setState:glyph::kIdle animated:YES completionHandler:nil];
}

@end
