#import <QuartzCore/QuartzCore.h>

#include <math.h>

NSString *const kCAFillModeForwards = @"forwards";
NSString *const kCAFillModeBackwards = @"backwards";
NSString *const kCAFillModeBoth = @"both";
NSString *const kCAFillModeRemoved = @"removed";

@implementation CAAnimation
@synthesize beginTime = _beginTime;
@synthesize duration = _duration;
@synthesize speed = _speed;
@synthesize timeOffset = _timeOffset;
@synthesize repeatCount = _repeatCount;
@synthesize repeatDuration = _repeatDuration;
@synthesize autoreverses = _autoreverses;
@synthesize fillMode = _fillMode;
@synthesize timingFunction = _timingFunction;
@synthesize delegate = _delegate;
@synthesize removedOnCompletion = _removedOnCompletion;

+ (instancetype)animation {
  return [[[self alloc] init] autorelease];
}
- (instancetype)init {
  if ((self = [super init])) {
    _speed = 1;
    _removedOnCompletion = YES;
    _fillMode = [kCAFillModeRemoved copy];
  }
  return self;
}
- (id)copyWithZone:(NSZone *)zone {
  CAAnimation *a = [[[self class] allocWithZone:zone] init];
  a.beginTime = _beginTime;
  a.duration = _duration;
  a.speed = _speed;
  a.timeOffset = _timeOffset;
  a.repeatCount = _repeatCount;
  a.repeatDuration = _repeatDuration;
  a.autoreverses = _autoreverses;
  a.fillMode = _fillMode;
  a.timingFunction = _timingFunction;
  a.delegate = _delegate;
  a.removedOnCompletion = _removedOnCompletion;
  return a;
}
- (CFTimeInterval)_simTotalDuration {
  CFTimeInterval one = _duration > 0 ? _duration : 0.25;
  if (_autoreverses) one *= 2;
  if (isinf(_repeatCount) || isinf(_repeatDuration)) return HUGE_VAL;
  CFTimeInterval total = one * (_repeatCount > 0 ? _repeatCount : 1);
  if (_repeatDuration > 0) total = _repeatDuration;
  return _beginTime + total / (_speed > 0 ? _speed : 1);
}
- (void)dealloc {
  [_fillMode release];
  [_timingFunction release];
  [_delegate release];
  [super dealloc];
}
@end
