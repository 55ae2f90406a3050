// One animated unlock button: a turning ring around a fingerprint over which a red band
// sweeps up and down.
#pragma once
#import "core/PlatformAPI.h"

@interface TessarinButtonView : UIView {
  UIImageView *_circle;
  UIImageView *_thumb;
  UIImageView *_thumbRed;
  UIView *_ghostView;
  BOOL _shouldStopAnimation;
  BOOL _isAnimating;
}
@property (nonatomic, retain) UIImageView *circle;
@property (nonatomic, retain) UIImageView *thumb;
@property (nonatomic, retain) UIImageView *thumbRed;
// The 15-point clipping strip that carries the red print.
@property (nonatomic, retain) UIView *ghostView;
@property (nonatomic, assign) BOOL shouldStopAnimation;
@property (nonatomic, assign) BOOL isAnimating;

- (instancetype)initWithButtonImage:(UIImage *)image isBlackButton:(BOOL)isBlackButton;
- (void)animateCircle;
- (void)startAllAnimations;
- (void)stopAllAnimations;
@end
