/* Animations are recorded on layers; nothing is interpolated. A finite animation reports
   its end to its delegate on the main run loop after its total duration. */
#ifndef QUARTZCORE_CAANIMATION_H
#define QUARTZCORE_CAANIMATION_H

#include <QuartzCore/CABase.h>
#include <QuartzCore/CAMediaTimingFunction.h>

CA_EXTERN NSString *const kCAFillModeForwards;
CA_EXTERN NSString *const kCAFillModeBackwards;
CA_EXTERN NSString *const kCAFillModeBoth;
CA_EXTERN NSString *const kCAFillModeRemoved;

@class CAAnimation;

@protocol CAAnimationDelegate <NSObject>
@optional
- (void)animationDidStart:(CAAnimation *)anim;
- (void)animationDidStop:(CAAnimation *)anim finished:(BOOL)flag;
@end

@interface CAAnimation : NSObject <NSCopying> {
  CFTimeInterval _beginTime;
  CFTimeInterval _duration;
  float _speed;
  CFTimeInterval _timeOffset;
  float _repeatCount;
  CFTimeInterval _repeatDuration;
  BOOL _autoreverses;
  NSString *_fillMode;
  CAMediaTimingFunction *_timingFunction;
  id _delegate;
  BOOL _removedOnCompletion;
}
+ (instancetype)animation;
@property (nonatomic) CFTimeInterval beginTime;
@property (nonatomic) CFTimeInterval duration;
@property (nonatomic) float speed;
@property (nonatomic) CFTimeInterval timeOffset;
@property (nonatomic) float repeatCount;
@property (nonatomic) CFTimeInterval repeatDuration;
@property (nonatomic) BOOL autoreverses;
@property (nonatomic, copy) NSString *fillMode;
@property (nonatomic, retain) CAMediaTimingFunction *timingFunction;
/* Retained, as on the device. */
@property (nonatomic, retain) id delegate;
@property (nonatomic, getter=isRemovedOnCompletion) BOOL removedOnCompletion;
/* Seconds from start to end, counting repeats and reversals; HUGE_VAL when endless. */
- (CFTimeInterval)_simTotalDuration;
@end

@interface CAPropertyAnimation : CAAnimation {
  NSString *_keyPath;
  BOOL _additive;
  BOOL _cumulative;
}
+ (instancetype)animationWithKeyPath:(NSString *)path;
@property (nonatomic, copy) NSString *keyPath;
@property (nonatomic, getter=isAdditive) BOOL additive;
@property (nonatomic, getter=isCumulative) BOOL cumulative;
@end

@interface CABasicAnimation : CAPropertyAnimation {
  id _fromValue;
  id _toValue;
  id _byValue;
}
@property (nonatomic, retain) id fromValue;
@property (nonatomic, retain) id toValue;
@property (nonatomic, retain) id byValue;
@end

@interface CAKeyframeAnimation : CAPropertyAnimation {
  NSArray *_values;
  NSArray *_keyTimes;
  NSArray *_timingFunctions;
  CGPathRef _path;
  NSString *_calculationMode;
}
@property (nonatomic, copy) NSArray *values;
@property (nonatomic, copy) NSArray *keyTimes;
@property (nonatomic, copy) NSArray *timingFunctions;
@property (nonatomic) CGPathRef path;
@property (nonatomic, copy) NSString *calculationMode;
@end

@interface CAAnimationGroup : CAAnimation {
  NSArray *_animations;
}
@property (nonatomic, copy) NSArray *animations;
@end

#endif
