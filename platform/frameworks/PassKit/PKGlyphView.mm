// PassKit's fingerprint glyph: styles, palettes, states and their completions.
#import <PassKit/PassKitSimulation.h>
#import <UIKit/UIKitSimulation.h>

namespace {

const NSTimeInterval kTransitionDuration = 0.25;

struct PaletteEntry {
  CGFloat red, green, blue;
};

// Primary and secondary colour of styles 0 to 3 (white, red, blue, black).
const PaletteEntry kPrimary[] = {{1, 1, 1}, {1, 0.231, 0.188}, {0, 0.478, 1}, {0, 0, 0}};
const PaletteEntry kSecondary[] = {{0.82, 0.82, 0.84}, {1, 0.62, 0.6}, {0.6, 0.8, 1}, {0.33, 0.33, 0.35}};

UIColor *paletteColor(const PaletteEntry *palette, NSInteger style, NSInteger mode) {
  NSInteger index = style >= 0 && style <= 3 ? style : 0;
  // Modes other than 0 are the dimmed forms of the same colours.
  CGFloat alpha = mode == 0 ? 1 : 0.6;
  return [UIColor colorWithRed:palette[index].red green:palette[index].green blue:palette[index].blue alpha:alpha];
}

}  // namespace

@implementation PKGlyphView
@synthesize style = _style;
@synthesize state = _state;

// No +initialize of its own: the class's first initialisation runs the root class's.

- (instancetype)initWithStyle:(NSInteger)style {
  if ((self = [super initWithFrame:CGRectZero])) {
    _style = style;
    _simStates = [[NSMutableArray alloc] init];
    _simColorChanges = [[NSMutableArray alloc] init];
    _primaryColor = [[self _primaryColorForStyle:style mode:0] copy];
    _secondaryColor = [[self _secondaryColorForStyle:style mode:0] copy];
  }
  return self;
}

- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [self initWithStyle:0])) [self setFrame:frame];
  return self;
}

- (void)dealloc {
  [_primaryColor release];
  [_secondaryColor release];
  [_simStates release];
  [_simColorChanges release];
  [super dealloc];
}

- (UIColor *)_primaryColorForStyle:(NSInteger)style mode:(NSInteger)mode {
  return paletteColor(kPrimary, style, mode);
}

- (UIColor *)_secondaryColorForStyle:(NSInteger)style mode:(NSInteger)mode {
  return paletteColor(kSecondary, style, mode);
}

- (UIColor *)primaryColor {
  return [[_primaryColor retain] autorelease];
}

- (UIColor *)secondaryColor {
  return [[_secondaryColor retain] autorelease];
}

- (void)_simRecordColor:(UIColor *)color kind:(NSString *)kind animated:(BOOL)animated {
  [_simColorChanges
      addObject:[NSDictionary dictionaryWithObjectsAndKeys:kind, @"kind", color ? (id)color : (id)[NSNull null],
                                                           @"color", @(animated), @"animated", nil]];
}

- (void)_setPrimaryColor:(UIColor *)color animated:(BOOL)animated {
  UIColor *old = _primaryColor;
  _primaryColor = [color copy];
  [old release];
  [self _simRecordColor:color kind:@"primary" animated:animated];
}

- (void)_setSecondaryColor:(UIColor *)color animated:(BOOL)animated {
  UIColor *old = _secondaryColor;
  _secondaryColor = [color copy];
  [old release];
  [self _simRecordColor:color kind:@"secondary" animated:animated];
}

- (void)setPrimaryColor:(UIColor *)color {
  [self _setPrimaryColor:color animated:NO];
}

- (void)setSecondaryColor:(UIColor *)color {
  [self _setSecondaryColor:color animated:NO];
}

- (void)setState:(NSInteger)state animated:(BOOL)animated completionHandler:(void (^)(void))completion {
  _state = state;
  [_simStates addObject:@(state)];
  // Every state is drawn in the colours of the glyph's own style.
  [self _setPrimaryColor:[self _primaryColorForStyle:_style mode:0] animated:animated];
  [self _setSecondaryColor:[self _secondaryColorForStyle:_style mode:0] animated:animated];
  if (completion != nil) SimUIKitSchedule(animated ? kTransitionDuration : 0, completion);
}

+ (NSTimeInterval)_simTransitionDuration {
  return kTransitionDuration;
}

- (NSArray *)_simStates {
  return [[_simStates copy] autorelease];
}

- (NSArray *)_simColorChanges {
  return [[_simColorChanges copy] autorelease];
}

@end
