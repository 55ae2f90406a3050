#import "UIKitInternal.h"

static NSInteger gAnimationsDisabled;

@implementation UIView (UIViewAnimationWithBlocks)
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  SimUIKitRecordAnimation(duration, delay, options);
  if (animations) animations();
  if (completion) {
    SimUIKitSchedule(delay + duration, ^{ completion(YES); });
  }
}
+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  [self animateWithDuration:duration delay:0 options:0 animations:animations completion:completion];
}
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations {
  [self animateWithDuration:duration delay:0 options:0 animations:animations completion:nil];
}
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
     usingSpringWithDamping:(CGFloat)dampingRatio
      initialSpringVelocity:(CGFloat)velocity
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion {
  [self animateWithDuration:duration delay:delay options:options animations:animations completion:completion];
}
+ (void)transitionWithView:(UIView *)view
                  duration:(NSTimeInterval)duration
                   options:(UIViewAnimationOptions)options
                animations:(void (^)(void))animations
                completion:(void (^)(BOOL finished))completion {
  [self animateWithDuration:duration delay:0 options:options animations:animations completion:completion];
}
+ (void)transitionFromView:(UIView *)fromView
                    toView:(UIView *)toView
                  duration:(NSTimeInterval)duration
                   options:(UIViewAnimationOptions)options
                completion:(void (^)(BOOL finished))completion {
  [self animateWithDuration:duration
                      delay:0
                    options:options
                 animations:^{
                   UIView *parent = fromView.superview;
                   if (options & UIViewAnimationOptionShowHideTransitionViews) {
                     fromView.hidden = YES;
                     toView.hidden = NO;
                   } else if (parent) {
                     [parent insertSubview:toView aboveSubview:fromView];
                     [fromView removeFromSuperview];
                   }
                 }
                 completion:completion];
}
+ (void)performWithoutAnimation:(void (^)(void))actions {
  ++gAnimationsDisabled;
  if (actions) actions();
  --gAnimationsDisabled;
}
+ (void)setAnimationsEnabled:(BOOL)enabled {
  gAnimationsDisabled = enabled ? 0 : 1;
}
+ (BOOL)areAnimationsEnabled {
  return gAnimationsDisabled == 0;
}
@end
