#import <QuartzCore/QuartzCore.h>

// Blocks are not objects under this runtime: a box owns a heap copy.

@interface _SimCABlockBox : NSObject {
  void (^_block)(void);
}
- (instancetype)initWithBlock:(void (^)(void))block;
- (void (^)(void))block;
- (void)run;
@end
@implementation _SimCABlockBox
- (instancetype)initWithBlock:(void (^)(void))block {
  if ((self = [super init]) && block) _block = Block_copy(block);
  return self;
}
- (void)dealloc {
  if (_block) Block_release(_block);
  [super dealloc];
}
- (void (^)(void))block {
  return _block;
}
- (void)run {
  if (_block) _block();
}
@end

@interface _SimCATransactionState : NSObject {
  NSInteger _depth;
  NSMutableDictionary *_values;
  NSMutableArray *_completions;
}
@property (nonatomic) NSInteger depth;
@property (nonatomic, readonly) NSMutableDictionary *values;
@property (nonatomic, readonly) NSMutableArray *completions;
+ (instancetype)shared;
@end
@implementation _SimCATransactionState
@synthesize depth = _depth;
@synthesize values = _values;
@synthesize completions = _completions;
+ (instancetype)shared {
  static _SimCATransactionState *state;
  if (!state) state = [[_SimCATransactionState alloc] init];
  return state;
}
- (instancetype)init {
  if ((self = [super init])) {
    _values = [[NSMutableDictionary alloc] init];
    _completions = [[NSMutableArray alloc] init];
  }
  return self;
}
- (void)runCompletion:(_SimCABlockBox *)box {
  [box run];
}
@end

@implementation CATransaction
+ (void)begin {
  _SimCATransactionState *s = [_SimCATransactionState shared];
  s.depth = s.depth + 1;
  [s.completions addObject:[NSNull null]];
}
+ (void)commit {
  _SimCATransactionState *s = [_SimCATransactionState shared];
  if (s.depth == 0) return;
  s.depth = s.depth - 1;
  id box = [[[s.completions lastObject] retain] autorelease];
  [s.completions removeLastObject];
  if (s.depth == 0) [s.values removeAllObjects];
  if (box != [NSNull null]) {
    NSTimeInterval delay = [[s.values objectForKey:@"animationDuration"] doubleValue];
    [s performSelector:@selector(runCompletion:) withObject:box afterDelay:delay];
  }
}
+ (void)flush {
}
+ (void)lock {
}
+ (void)unlock {
}
+ (id)valueForKey:(NSString *)key {
  return [[_SimCATransactionState shared].values objectForKey:key];
}
+ (void)setValue:(id)anObject forKey:(NSString *)key {
  if (!key) return;
  if (anObject)
    [[_SimCATransactionState shared].values setObject:anObject forKey:key];
  else
    [[_SimCATransactionState shared].values removeObjectForKey:key];
}
+ (CFTimeInterval)animationDuration {
  id v = [self valueForKey:@"animationDuration"];
  return v ? [v doubleValue] : 0.25;
}
+ (void)setAnimationDuration:(CFTimeInterval)dur {
  [self setValue:[NSNumber numberWithDouble:dur] forKey:@"animationDuration"];
}
+ (CAMediaTimingFunction *)animationTimingFunction {
  return [self valueForKey:@"animationTimingFunction"];
}
+ (void)setAnimationTimingFunction:(CAMediaTimingFunction *)function {
  [self setValue:function forKey:@"animationTimingFunction"];
}
+ (BOOL)disableActions {
  return [[self valueForKey:@"disableActions"] boolValue];
}
+ (void)setDisableActions:(BOOL)flag {
  [self setValue:[NSNumber numberWithBool:flag] forKey:@"disableActions"];
}
+ (void (^)(void))completionBlock {
  id b = [[_SimCATransactionState shared].completions lastObject];
  if ([b isKindOfClass:[_SimCABlockBox class]]) return [b block];
  return nil;
}
+ (void)setCompletionBlock:(void (^)(void))block {
  _SimCATransactionState *s = [_SimCATransactionState shared];
  if (s.depth == 0) {
    // Outside an explicit transaction the implicit one commits at the end of this turn.
    if (block)
      [s performSelector:@selector(runCompletion:)
              withObject:[[[_SimCABlockBox alloc] initWithBlock:block] autorelease]
              afterDelay:0];
    return;
  }
  id value = block ? (id)[[[_SimCABlockBox alloc] initWithBlock:block] autorelease] : (id)[NSNull null];
  [s.completions replaceObjectAtIndex:s.completions.count - 1 withObject:value];
}
@end
