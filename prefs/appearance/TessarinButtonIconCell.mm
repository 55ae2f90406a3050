#import "appearance/TessarinButtonIconCell.h"
#import "core/Geometry.h"
#import "core/Strings.h"
#include "appearance/ButtonRules.hpp"
#import "appearance/IconColor.h"
#import "core/PreferenceStore.h"

namespace appearance = tessarin::appearance;

// In-process notifications that keep the two rows in step.
static NSString *const kIconSelected = @"TessarinIconSelected";
static NSString *const kGlyphIconSelected = @"TessarinGlyphIconSelected";

@implementation TessarinButtonIconCell
@synthesize whiteButton = _whiteButton;
@synthesize blackButton = _blackButton;
@synthesize goldenButton = _goldenButton;

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  // Always the value style, whatever the row asks for.
  if ((self = [super initWithStyle:UITableViewCellStyleValue1 reuseIdentifier:reuseIdentifier specifier:specifier])) {
    _container =
        [[UIView alloc] initWithFrame:cgRect(appearance::containerFrame([[self contentView] bounds].size.width))];
    _tapRecognizer = [[UITapGestureRecognizer alloc] initWithTarget:self action:@selector(tappedView:)];
    [_container addGestureRecognizer:_tapRecognizer];
    [[self contentView] addSubview:_container];
    [[NSNotificationCenter defaultCenter] addObserver:self
                                             selector:@selector(updateIconsForGlyphSelection)
                                                 name:kGlyphIconSelected
                                               object:nil];
  }
  return self;
}

- (void)dealloc {
  [[NSNotificationCenter defaultCenter] removeObserver:self];
  [_tapRecognizer release];
  [_container release];
  [_leftView release];
  [_middleView release];
  [_rightView release];
  [_whiteButton release];
  [_blackButton release];
  [_goldenButton release];
  [super dealloc];
}

- (NSArray *)buttons {
  if (_whiteButton == nil) return [NSArray array];
  return [NSArray arrayWithObjects:_whiteButton, _blackButton, _goldenButton, nil];
}

- (void)makeButtons {
  UIView **thirds[3] = {&_leftView, &_middleView, &_rightView};
  NSMutableArray *made = [NSMutableArray array];
  for (int column = 0; column < 3; column++) {
    *thirds[column] = [[UIView alloc] initWithFrame:cgRect(appearance::button::thirdFrame(column))];
    [_container addSubview:*thirds[column]];
    UIImage *ring = buttonPageImage(nsString(appearance::button::kCircleImages[column]));
    TessarinButtonView *button =
        [[TessarinButtonView alloc] initWithButtonImage:ring isBlackButton:appearance::button::kIsBlackButton[column]];
    [button setFrame:cgRect(appearance::button::kInThird)];
    [*thirds[column] addSubview:button];
    [made addObject:button];
    [button release];
  }
  [self setWhiteButton:[made objectAtIndex:0]];
  [self setBlackButton:[made objectAtIndex:1]];
  [self setGoldenButton:[made objectAtIndex:2]];
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_container setFrame:cgRect(appearance::containerFrame([[self contentView] bounds].size.width))];
  int64_t iconColor = storedIconColor();
  if (_whiteButton == nil) [self makeButtons];
  [_leftView setFrame:cgRect(appearance::button::thirdFrame(0))];
  [_middleView setFrame:cgRect(appearance::button::thirdFrame(1))];
  [_rightView setFrame:cgRect(appearance::button::thirdFrame(2))];

  std::optional<int> chosen = appearance::chosenButton(iconColor);
  NSArray *buttons = [self buttons];
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, (int64_t)(appearance::button::kDelayedStart * NSEC_PER_SEC)),
                 dispatch_get_main_queue(), ^{
                   if (!chosen) return;
                   TessarinButtonView *button = [buttons objectAtIndex:*chosen];
                   if (![button isAnimating]) [button startAllAnimations];
                 });

  // The row draws no separator.
  for (UIView *subview in [self subviews]) {
    if ([NSStringFromClass([subview class]) isEqualToString:@"_UITableViewCellSeparatorView"]) [subview setAlpha:0];
  }
}

- (void)tappedView:(UITapGestureRecognizer *)recognizer {
  CGFloat x = [recognizer locationOfTouch:0 inView:_container].x;
  std::optional<int64_t> choice = appearance::buttonChoiceAt(x);
  if (choice) {
    [[NSNotificationCenter defaultCenter] postNotificationName:kIconSelected object:nil userInfo:nil];
    std::optional<int> chosen = appearance::chosenButton(*choice);
    NSArray *buttons = [self buttons];
    if (chosen && [buttons count] == 3) {
      [[buttons objectAtIndex:*chosen] startAllAnimations];
      for (NSUInteger i = 0; i < 3; i++)
        if ((int)i != *chosen) [[buttons objectAtIndex:i] stopAllAnimations];
    }
  }
  recordIconTap(choice);
}

- (void)updateIconsForGlyphSelection {
  [_whiteButton stopAllAnimations];
  [_blackButton stopAllAnimations];
  [_goldenButton stopAllAnimations];
}

@end
