#import "appearance/TessarinButtonView.h"
#import "core/Geometry.h"
#import "core/Strings.h"
#include "appearance/ButtonRules.hpp"
#import "appearance/IconColor.h"

namespace button = tessarin::appearance::button;

namespace {

CABasicAnimation *endlessAnimation(const button::Animation &spec) {
  CABasicAnimation *animation = [CABasicAnimation animationWithKeyPath:nsString(spec.keyPath)];
  [animation setFromValue:[NSNumber numberWithFloat:spec.from]];
  [animation setToValue:[NSNumber numberWithFloat:spec.to]];
  [animation setDuration:spec.duration];
  [animation setRepeatCount:HUGE_VALF];
  [animation setAutoreverses:spec.autoreverses];
  return animation;
}

}  // namespace

@implementation TessarinButtonView
@synthesize circle = _circle;
@synthesize thumb = _thumb;
@synthesize thumbRed = _thumbRed;
@synthesize ghostView = _ghostView;
@synthesize shouldStopAnimation = _shouldStopAnimation;
@synthesize isAnimating = _isAnimating;

- (instancetype)initWithButtonImage:(UIImage *)image isBlackButton:(BOOL)isBlackButton {
  if ((self = [super initWithFrame:cgRect(button::kView)])) {
    UIImageView *circle = [[UIImageView alloc] initWithImage:image];
    [circle setFrame:cgRect(button::kCircle)];
    [self setCircle:circle];
    [circle release];
    [self addSubview:_circle];

    UIImageView *thumb =
        [[UIImageView alloc] initWithImage:buttonPageImage(nsString(button::thumbImage(isBlackButton)))];
    [thumb setFrame:cgRect(button::kThumb)];
    [thumb setClipsToBounds:YES];
    [self setThumb:thumb];
    [thumb release];

    // The strip starts just below the print's visible area.
    UIView *ghost = [[UIView alloc] initWithFrame:cgRect(button::kGhost)];
    [ghost setClipsToBounds:YES];
    [ghost setAutoresizesSubviews:NO];
    [self setGhostView:ghost];
    [ghost release];

    UIImageView *thumbRed = [[UIImageView alloc] initWithImage:buttonPageImage(nsString(button::kThumbRedImage))];
    [thumbRed setFrame:cgRect(button::kThumbRed)];
    [self setThumbRed:thumbRed];
    [thumbRed release];

    [_ghostView addSubview:_thumbRed];
    [_thumb addSubview:_ghostView];
    [self addSubview:_thumb];
    _isAnimating = NO;
  }
  return self;
}

- (void)dealloc {
  [self stopAllAnimations];
  [_circle release];
  [_thumb release];
  [_thumbRed release];
  [_ghostView release];
  [super dealloc];
}

- (void)animateCircle {
  if ([[[_circle layer] animationKeys] count] != 0) return;
  NSString *ringKey = [nsString(button::kRingKeyPrefix) stringByAppendingString:NSStringFromClass([self class])];
  [[_circle layer] addAnimation:endlessAnimation(button::kRingRotation) forKey:ringKey];
  CABasicAnimation *strip = endlessAnimation(button::kStripSweep);
  [[_ghostView layer] addAnimation:strip forKey:[strip keyPath]];
  CABasicAnimation *redPrint = endlessAnimation(button::kRedPrintSweep);
  [[_thumbRed layer] addAnimation:redPrint forKey:[redPrint keyPath]];
}

- (void)startAllAnimations {
  if (!_isAnimating) {
    _shouldStopAnimation = NO;
    [self animateCircle];
  }
  _isAnimating = YES;
}

- (void)stopAllAnimations {
  if (_isAnimating) {
    // The strip's own animation is left running on purpose.
    [[_circle layer] removeAllAnimations];
    [[_thumb layer] removeAllAnimations];
    [[_thumbRed layer] removeAllAnimations];
    [_ghostView setFrame:cgRect(button::kGhost)];
    [_circle setFrame:cgRect(button::kCircle)];
    [_thumb setFrame:cgRect(button::kThumb)];
    [_thumbRed setFrame:cgRect(button::kThumbRed)];
  }
  _isAnimating = NO;
}

@end
