// Layers, shape layers, recorded animations and transactions.
#import <QuartzCore/QuartzCore.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <time.h>

NSString *const kCAMediaTimingFunctionLinear = @"linear";
NSString *const kCAMediaTimingFunctionEaseIn = @"easeIn";
NSString *const kCAMediaTimingFunctionEaseOut = @"easeOut";
NSString *const kCAMediaTimingFunctionEaseInEaseOut = @"easeInEaseOut";
NSString *const kCAMediaTimingFunctionDefault = @"default";
NSString *const kCAFillModeForwards = @"forwards";
NSString *const kCAFillModeBackwards = @"backwards";
NSString *const kCAFillModeBoth = @"both";
NSString *const kCAFillModeRemoved = @"removed";
NSString *const kCAGravityResize = @"resize";
NSString *const kCAGravityResizeAspect = @"resizeAspect";
NSString *const kCAGravityResizeAspectFill = @"resizeAspectFill";
NSString *const kCAGravityCenter = @"center";
NSString *const kCAFillRuleNonZero = @"non-zero";
NSString *const kCAFillRuleEvenOdd = @"even-odd";
NSString *const kCALineJoinMiter = @"miter";
NSString *const kCALineJoinRound = @"round";
NSString *const kCALineJoinBevel = @"bevel";
NSString *const kCALineCapButt = @"butt";
NSString *const kCALineCapRound = @"round";
NSString *const kCALineCapSquare = @"square";

extern "C" CFTimeInterval CACurrentMediaTime(void) {
  struct timespec ts;
  clock_gettime(CLOCK_MONOTONIC, &ts);
  return ts.tv_sec + ts.tv_nsec / 1e9;
}

// Transforms.

const CATransform3D CATransform3DIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

extern "C" {

bool CATransform3DEqualToTransform(CATransform3D a, CATransform3D b) { return memcmp(&a, &b, sizeof a) == 0; }
bool CATransform3DIsIdentity(CATransform3D t) { return CATransform3DEqualToTransform(t, CATransform3DIdentity); }

CATransform3D CATransform3DConcat(CATransform3D a, CATransform3D b) {
  const CGFloat *x = &a.m11, *y = &b.m11;
  CATransform3D r;
  CGFloat *z = &r.m11;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) {
      CGFloat s = 0;
      for (int k = 0; k < 4; ++k) s += x[i * 4 + k] * y[k * 4 + j];
      z[i * 4 + j] = s;
    }
  return r;
}
CATransform3D CATransform3DMakeTranslation(CGFloat tx, CGFloat ty, CGFloat tz) {
  CATransform3D t = CATransform3DIdentity;
  t.m41 = tx;
  t.m42 = ty;
  t.m43 = tz;
  return t;
}
CATransform3D CATransform3DMakeScale(CGFloat sx, CGFloat sy, CGFloat sz) {
  CATransform3D t = CATransform3DIdentity;
  t.m11 = sx;
  t.m22 = sy;
  t.m33 = sz;
  return t;
}
CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
  CGFloat len = sqrt(x * x + y * y + z * z);
  if (len == 0) return CATransform3DIdentity;
  x /= len;
  y /= len;
  z /= len;
  CGFloat c = cos(angle), s = sin(angle), t = 1 - c;
  CATransform3D r = CATransform3DIdentity;
  r.m11 = t * x * x + c;
  r.m12 = t * x * y + s * z;
  r.m13 = t * x * z - s * y;
  r.m21 = t * x * y - s * z;
  r.m22 = t * y * y + c;
  r.m23 = t * y * z + s * x;
  r.m31 = t * x * z + s * y;
  r.m32 = t * y * z - s * x;
  r.m33 = t * z * z + c;
  return r;
}
CATransform3D CATransform3DTranslate(CATransform3D t, CGFloat tx, CGFloat ty, CGFloat tz) {
  return CATransform3DConcat(CATransform3DMakeTranslation(tx, ty, tz), t);
}
CATransform3D CATransform3DScale(CATransform3D t, CGFloat sx, CGFloat sy, CGFloat sz) {
  return CATransform3DConcat(CATransform3DMakeScale(sx, sy, sz), t);
}
CATransform3D CATransform3DRotate(CATransform3D t, CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
  return CATransform3DConcat(CATransform3DMakeRotation(angle, x, y, z), t);
}
bool CATransform3DIsAffine(CATransform3D t) {
  return t.m13 == 0 && t.m23 == 0 && t.m31 == 0 && t.m32 == 0 && t.m33 == 1 && t.m43 == 0 && t.m14 == 0 &&
         t.m24 == 0 && t.m34 == 0 && t.m44 == 1;
}
CATransform3D CATransform3DMakeAffineTransform(CGAffineTransform m) {
  CATransform3D t = CATransform3DIdentity;
  t.m11 = m.a;
  t.m12 = m.b;
  t.m21 = m.c;
  t.m22 = m.d;
  t.m41 = m.tx;
  t.m42 = m.ty;
  return t;
}
CGAffineTransform CATransform3DGetAffineTransform(CATransform3D t) {
  return CGAffineTransformMake(t.m11, t.m12, t.m21, t.m22, t.m41, t.m42);
}

}  // extern "C"

@implementation NSValue (CATransform3DAdditions)
+ (NSValue *)valueWithCATransform3D:(CATransform3D)t {
  return [NSValue valueWithBytes:&t objCType:@encode(CATransform3D)];
}
- (CATransform3D)CATransform3DValue {
  CATransform3D t = CATransform3DIdentity;
  if (strcmp([self objCType], @encode(CATransform3D)) == 0) [self getValue:&t];
  return t;
}
@end

// Timing functions.

@implementation CAMediaTimingFunction
@synthesize name = _name;
+ (instancetype)functionWithName:(NSString *)name {
  CAMediaTimingFunction *f;
  if ([name isEqualToString:kCAMediaTimingFunctionEaseIn])
    f = [[self alloc] initWithControlPoints:0.42f:0.0f:1.0f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionEaseOut])
    f = [[self alloc] initWithControlPoints:0.0f:0.0f:0.58f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionEaseInEaseOut])
    f = [[self alloc] initWithControlPoints:0.42f:0.0f:0.58f:1.0f];
  else if ([name isEqualToString:kCAMediaTimingFunctionDefault])
    f = [[self alloc] initWithControlPoints:0.25f:0.1f:0.25f:1.0f];
  else
    f = [[self alloc] initWithControlPoints:0.0f:0.0f:1.0f:1.0f];
  f->_name = [name copy];
  return [f autorelease];
}
+ (instancetype)functionWithControlPoints:(float)c1x :(float)c1y :(float)c2x :(float)c2y {
  return [[[self alloc] initWithControlPoints:c1x:c1y:c2x:c2y] autorelease];
}
- (instancetype)initWithControlPoints:(float)c1x :(float)c1y :(float)c2x :(float)c2y {
  if ((self = [super init])) {
    _c1x = c1x;
    _c1y = c1y;
    _c2x = c2x;
    _c2y = c2y;
  }
  return self;
}
- (void)getControlPointAtIndex:(size_t)idx values:(float[2])ptr {
  float pts[4][2] = {{0, 0}, {_c1x, _c1y}, {_c2x, _c2y}, {1, 1}};
  if (idx > 3) return;
  ptr[0] = pts[idx][0];
  ptr[1] = pts[idx][1];
}
- (void)dealloc {
  [_name release];
  [super dealloc];
}
@end

// Animations.

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

@implementation CAPropertyAnimation
@synthesize keyPath = _keyPath;
@synthesize additive = _additive;
@synthesize cumulative = _cumulative;
+ (instancetype)animationWithKeyPath:(NSString *)path {
  CAPropertyAnimation *a = [self animation];
  a.keyPath = path;
  return a;
}
- (id)copyWithZone:(NSZone *)zone {
  CAPropertyAnimation *a = [super copyWithZone:zone];
  a.keyPath = _keyPath;
  a.additive = _additive;
  a.cumulative = _cumulative;
  return a;
}
- (void)dealloc {
  [_keyPath release];
  [super dealloc];
}
@end

@implementation CABasicAnimation
@synthesize fromValue = _fromValue;
@synthesize toValue = _toValue;
@synthesize byValue = _byValue;
- (id)copyWithZone:(NSZone *)zone {
  CABasicAnimation *a = [super copyWithZone:zone];
  a.fromValue = _fromValue;
  a.toValue = _toValue;
  a.byValue = _byValue;
  return a;
}
- (NSString *)description {
  return [NSString stringWithFormat:@"<CABasicAnimation %@ from %@ to %@ duration %g repeat %g%@>", _keyPath,
                                    _fromValue, _toValue, _duration, _repeatCount,
                                    _autoreverses ? @" autoreverses" : @""];
}
- (void)dealloc {
  [_fromValue release];
  [_toValue release];
  [_byValue release];
  [super dealloc];
}
@end

@implementation CAKeyframeAnimation
@synthesize values = _values;
@synthesize keyTimes = _keyTimes;
@synthesize timingFunctions = _timingFunctions;
@synthesize calculationMode = _calculationMode;
- (CGPathRef)path {
  return _path;
}
- (void)setPath:(CGPathRef)path {
  if (path == _path) return;
  CGPathRelease(_path);
  _path = CGPathCreateCopy(path);
}
- (id)copyWithZone:(NSZone *)zone {
  CAKeyframeAnimation *a = [super copyWithZone:zone];
  a.values = _values;
  a.keyTimes = _keyTimes;
  a.timingFunctions = _timingFunctions;
  a.path = _path;
  a.calculationMode = _calculationMode;
  return a;
}
- (void)dealloc {
  [_values release];
  [_keyTimes release];
  [_timingFunctions release];
  [_calculationMode release];
  CGPathRelease(_path);
  [super dealloc];
}
@end

@implementation CAAnimationGroup
@synthesize animations = _animations;
- (id)copyWithZone:(NSZone *)zone {
  CAAnimationGroup *a = [super copyWithZone:zone];
  a.animations = _animations;
  return a;
}
- (void)dealloc {
  [_animations release];
  [super dealloc];
}
@end

// Transactions. Blocks are not objects under this runtime: a box owns a heap copy.

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
@property(nonatomic) NSInteger depth;
@property(nonatomic, readonly) NSMutableDictionary *values;
@property(nonatomic, readonly) NSMutableArray *completions;
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
      [s performSelector:@selector(runCompletion:) withObject:[[[_SimCABlockBox alloc] initWithBlock:block] autorelease]
              afterDelay:0];
    return;
  }
  id value = block ? (id)[[[_SimCABlockBox alloc] initWithBlock:block] autorelease] : (id)[NSNull null];
  [s.completions replaceObjectAtIndex:s.completions.count - 1 withObject:value];
}
@end

// Layers.

static void setColor(CGColorRef *slot, CGColorRef color) {
  if (*slot == color) return;
  CGColorRetain(color);
  CGColorRelease(*slot);
  *slot = color;
}

@interface _SimAnimationEnd : NSObject {
  CALayer *_layer;
  CAAnimation *_animation;
}
@property(nonatomic, retain) CALayer *layer;
@property(nonatomic, retain) CAAnimation *animation;
- (void)fire;
@end

@implementation CALayer
@synthesize zPosition = _zPosition;
@synthesize sublayerTransform = _sublayerTransform;
@synthesize hidden = _hidden;
@synthesize doubleSided = _doubleSided;
@synthesize masksToBounds = _masksToBounds;
@synthesize opaque = _opaque;
@synthesize opacity = _opacity;
@synthesize cornerRadius = _cornerRadius;
@synthesize borderWidth = _borderWidth;
@synthesize shadowOpacity = _shadowOpacity;
@synthesize shadowOffset = _shadowOffset;
@synthesize shadowRadius = _shadowRadius;
@synthesize contents = _contents;
@synthesize contentsGravity = _contentsGravity;
@synthesize contentsScale = _contentsScale;
@synthesize contentsRect = _contentsRect;
@synthesize mask = _mask;
@synthesize allowsGroupOpacity = _allowsGroupOpacity;
@synthesize shouldRasterize = _shouldRasterize;
@synthesize rasterizationScale = _rasterizationScale;
@synthesize compositingFilter = _compositingFilter;
@synthesize name = _name;
@synthesize delegate = _delegate;
@synthesize superlayer = _superlayer;

+ (instancetype)layer {
  return [[[self alloc] init] autorelease];
}
- (instancetype)init {
  if ((self = [super init])) {
    _anchorPoint = CGPointMake(0.5, 0.5);
    _transform = CATransform3DIdentity;
    _sublayerTransform = CATransform3DIdentity;
    _opacity = 1;
    _doubleSided = YES;
    _contentsScale = 1;
    _rasterizationScale = 1;
    _contentsRect = CGRectMake(0, 0, 1, 1);
    _allowsGroupOpacity = YES;
    _contentsGravity = [kCAGravityResize copy];
  }
  return self;
}
- (instancetype)initWithLayer:(id)layer {
  if ((self = [self init])) {
    CALayer *other = layer;
    _bounds = other.bounds;
    _position = other.position;
    _anchorPoint = other.anchorPoint;
    _transform = other.transform;
    _opacity = other.opacity;
    _hidden = other.hidden;
  }
  return self;
}
- (id)presentationLayer {
  return self;
}
- (id)modelLayer {
  return self;
}
- (void)dealloc {
  for (CALayer *l in _sublayers) l->_superlayer = nil;
  [_sublayers release];
  CGColorRelease(_backgroundColor);
  CGColorRelease(_borderColor);
  CGColorRelease(_shadowColor);
  CGPathRelease(_shadowPath);
  [_contents release];
  [_contentsGravity release];
  [_mask release];
  [_compositingFilter release];
  [_name release];
  [_animationKeys release];
  [_animations release];
  [super dealloc];
}

- (CGRect)bounds {
  return _bounds;
}
- (void)setBounds:(CGRect)bounds {
  BOOL resized = !CGSizeEqualToSize(bounds.size, _bounds.size);
  _bounds = bounds;
  if (resized) [self setNeedsLayout];
}
- (CGPoint)position {
  return _position;
}
- (void)setPosition:(CGPoint)position {
  _position = position;
}
- (CGPoint)anchorPoint {
  return _anchorPoint;
}
- (void)setAnchorPoint:(CGPoint)anchorPoint {
  _anchorPoint = anchorPoint;
}
- (CATransform3D)transform {
  return _transform;
}
- (void)setTransform:(CATransform3D)transform {
  _transform = transform;
}
- (CGAffineTransform)affineTransform {
  return CATransform3DGetAffineTransform(_transform);
}
- (void)setAffineTransform:(CGAffineTransform)m {
  self.transform = CATransform3DMakeAffineTransform(m);
}

- (CGRect)frame {
  CGRect local = CGRectMake(-_bounds.size.width * _anchorPoint.x, -_bounds.size.height * _anchorPoint.y,
                            _bounds.size.width, _bounds.size.height);
  if (!CATransform3DIsIdentity(_transform))
    local = CGRectApplyAffineTransform(local, CATransform3DGetAffineTransform(_transform));
  return CGRectOffset(local, _position.x, _position.y);
}
- (void)setFrame:(CGRect)frame {
  frame = CGRectStandardize(frame);
  CGSize size = frame.size;
  if (!CATransform3DIsIdentity(_transform)) {
    // As on the device, a transformed layer keeps its bounds size and only moves.
    size = _bounds.size;
  }
  CGRect b = _bounds;
  b.size = size;
  self.bounds = b;
  CGRect now = self.frame;
  self.position = CGPointMake(_position.x + frame.origin.x - now.origin.x, _position.y + frame.origin.y - now.origin.y);
}

- (CGColorRef)backgroundColor {
  return _backgroundColor;
}
- (void)setBackgroundColor:(CGColorRef)color {
  setColor(&_backgroundColor, color);
}
- (CGColorRef)borderColor {
  return _borderColor;
}
- (void)setBorderColor:(CGColorRef)color {
  setColor(&_borderColor, color);
}
- (CGColorRef)shadowColor {
  return _shadowColor;
}
- (void)setShadowColor:(CGColorRef)color {
  setColor(&_shadowColor, color);
}
- (CGPathRef)shadowPath {
  return _shadowPath;
}
- (void)setShadowPath:(CGPathRef)path {
  if (path == _shadowPath) return;
  CGPathRelease(_shadowPath);
  _shadowPath = CGPathCreateCopy(path);
}

// Sublayers.

- (NSArray *)sublayers {
  return _sublayers.count ? [NSArray arrayWithArray:_sublayers] : nil;
}
- (void)setSublayers:(NSArray *)sublayers {
  for (CALayer *l in [[_sublayers copy] autorelease]) [l removeFromSuperlayer];
  for (CALayer *l in sublayers) [self addSublayer:l];
}
- (void)insertSublayer:(CALayer *)layer atIndex:(unsigned)idx {
  if (!layer || layer == self) return;
  [layer retain];
  [layer removeFromSuperlayer];
  if (!_sublayers) _sublayers = [[NSMutableArray alloc] init];
  if (idx > _sublayers.count) idx = (unsigned)_sublayers.count;
  [_sublayers insertObject:layer atIndex:idx];
  layer->_superlayer = self;
  [layer release];
  [self setNeedsLayout];
}
- (void)addSublayer:(CALayer *)layer {
  [self insertSublayer:layer atIndex:(unsigned)_sublayers.count];
}
- (void)insertSublayer:(CALayer *)layer below:(CALayer *)sibling {
  NSUInteger i = sibling ? [_sublayers indexOfObjectIdenticalTo:sibling] : NSNotFound;
  [self insertSublayer:layer atIndex:i == NSNotFound ? 0 : (unsigned)i];
}
- (void)insertSublayer:(CALayer *)layer above:(CALayer *)sibling {
  NSUInteger i = sibling ? [_sublayers indexOfObjectIdenticalTo:sibling] : NSNotFound;
  [self insertSublayer:layer atIndex:i == NSNotFound ? (unsigned)_sublayers.count : (unsigned)(i + 1)];
}
- (void)replaceSublayer:(CALayer *)oldLayer with:(CALayer *)newLayer {
  NSUInteger i = [_sublayers indexOfObjectIdenticalTo:oldLayer];
  if (i == NSNotFound) return;
  [oldLayer removeFromSuperlayer];
  [self insertSublayer:newLayer atIndex:(unsigned)i];
}
- (void)removeFromSuperlayer {
  CALayer *parent = _superlayer;
  if (!parent) return;
  _superlayer = nil;
  [parent->_sublayers removeObjectIdenticalTo:self];
}

// Coordinates.

- (CGPoint)_originInAncestor:(CALayer *)ancestor {
  // Origin of this layer's bounds in the coordinate space of `ancestor` (nil: the root).
  CGPoint p = CGPointZero;
  for (CALayer *l = self; l && l != ancestor; l = l->_superlayer) {
    CGRect f = l.frame;
    p.x += f.origin.x - l->_bounds.origin.x;
    p.y += f.origin.y - l->_bounds.origin.y;
    if (l->_superlayer == ancestor) break;
  }
  return p;
}
- (CGPoint)convertPoint:(CGPoint)p toLayer:(CALayer *)l {
  CGPoint mine = [self _originInAncestor:nil];
  CGPoint theirs = l ? [l _originInAncestor:nil] : CGPointZero;
  return CGPointMake(p.x + mine.x - theirs.x, p.y + mine.y - theirs.y);
}
- (CGPoint)convertPoint:(CGPoint)p fromLayer:(CALayer *)l {
  if (!l) {
    CGPoint mine = [self _originInAncestor:nil];
    return CGPointMake(p.x - mine.x, p.y - mine.y);
  }
  return [l convertPoint:p toLayer:self];
}
- (CGRect)convertRect:(CGRect)r toLayer:(CALayer *)l {
  r.origin = [self convertPoint:r.origin toLayer:l];
  return r;
}
- (CGRect)convertRect:(CGRect)r fromLayer:(CALayer *)l {
  r.origin = [self convertPoint:r.origin fromLayer:l];
  return r;
}
- (BOOL)containsPoint:(CGPoint)p {
  return CGRectContainsPoint(_bounds, p);
}
- (CALayer *)hitTest:(CGPoint)p {
  // `p` is in the superlayer's coordinates.
  if (_hidden || _opacity <= 0) return nil;
  CGRect f = self.frame;
  CGPoint local = CGPointMake(p.x - f.origin.x + _bounds.origin.x, p.y - f.origin.y + _bounds.origin.y);
  for (CALayer *l in [_sublayers reverseObjectEnumerator]) {
    CALayer *hit = [l hitTest:local];
    if (hit) return hit;
  }
  return [self containsPoint:local] ? self : nil;
}

// Layout and display.

- (void)setNeedsLayout {
  _needsLayout = YES;
}
- (BOOL)needsLayout {
  return _needsLayout;
}
- (void)layoutIfNeeded {
  if (_needsLayout) {
    _needsLayout = NO;
    [self layoutSublayers];
  }
  for (CALayer *l in [[_sublayers copy] autorelease]) [l layoutIfNeeded];
}
- (void)layoutSublayers {
  if ([_delegate respondsToSelector:@selector(layoutSublayersOfLayer:)]) [_delegate layoutSublayersOfLayer:self];
}
- (void)setNeedsDisplay {
  _needsDisplay = YES;
}
- (void)setNeedsDisplayInRect:(CGRect)r {
  _needsDisplay = YES;
}
- (BOOL)needsDisplay {
  return _needsDisplay;
}
- (void)displayIfNeeded {
  if (_needsDisplay) [self display];
}
- (void)display {
  _needsDisplay = NO;
  if ([_delegate respondsToSelector:@selector(displayLayer:)]) [_delegate displayLayer:self];
}
- (void)drawInContext:(CGContextRef)ctx {
  if ([_delegate respondsToSelector:@selector(drawLayer:inContext:)]) [_delegate drawLayer:self inContext:ctx];
}
- (void)_simRenderContentInContext:(CGContextRef)ctx rect:(CGRect)r {
  if (_backgroundColor && CGColorGetAlpha(_backgroundColor) > 0) {
    CGContextSetFillColorWithColor(ctx, _backgroundColor);
    if (_cornerRadius > 0)
      SimCGContextRecord(ctx, [NSString stringWithFormat:@"cornerRadius %g", _cornerRadius]);
    CGContextFillRect(ctx, r);
  }
  if (_contents) CGContextDrawImage(ctx, r, (CGImageRef)_contents);
}
- (void)renderInContext:(CGContextRef)ctx {
  if (_hidden || !ctx) return;
  CGContextSaveGState(ctx);
  CGRect r = _bounds;
  // A layer that masks to its bounds clips its own content and its sublayers to them,
  // rounded by its corner radius.
  if (_masksToBounds) {
    if (_cornerRadius > 0) {
      CGPathRef rounded = CGPathCreateWithRoundedRect(r, _cornerRadius, _cornerRadius, NULL);
      CGContextBeginPath(ctx);
      CGContextAddPath(ctx, rounded);
      CGContextClip(ctx);
      CGPathRelease(rounded);
    } else {
      CGContextClipToRect(ctx, r);
    }
  }
  [self _simRenderContentInContext:ctx rect:r];
  [self drawInContext:ctx];
  for (CALayer *l in [[_sublayers copy] autorelease]) {
    CGRect f = l.frame;
    CGContextSaveGState(ctx);
    CGContextTranslateCTM(ctx, f.origin.x - _bounds.origin.x, f.origin.y - _bounds.origin.y);
    [l renderInContext:ctx];
    CGContextRestoreGState(ctx);
  }
  CGContextRestoreGState(ctx);
}

// Animations.

- (void)addAnimation:(CAAnimation *)anim forKey:(NSString *)key {
  if (!anim) return;
  if (!_animations) {
    _animations = [[NSMutableArray alloc] init];
    _animationKeys = [[NSMutableArray alloc] init];
  }
  if (key) [self removeAnimationForKey:key];
  CAAnimation *copy = [[anim copy] autorelease];
  [_animations addObject:copy];
  [_animationKeys addObject:key ? (id)[[key copy] autorelease] : (id)[NSNull null]];
  id delegate = copy.delegate;
  if ([delegate respondsToSelector:@selector(animationDidStart:)]) [delegate animationDidStart:copy];
  CFTimeInterval total = [copy _simTotalDuration];
  if (!isinf(total)) {
    _SimAnimationEnd *end = [[[_SimAnimationEnd alloc] init] autorelease];
    end.layer = self;
    end.animation = copy;
    [end performSelector:@selector(fire) withObject:nil afterDelay:total];
  }
}
- (void)_simAnimationEnded:(CAAnimation *)anim {
  NSUInteger i = [_animations indexOfObjectIdenticalTo:anim];
  BOOL present = i != NSNotFound;
  [[anim retain] autorelease];
  if (present && anim.removedOnCompletion) {
    [_animations removeObjectAtIndex:i];
    [_animationKeys removeObjectAtIndex:i];
  }
  id delegate = anim.delegate;
  if (present && [delegate respondsToSelector:@selector(animationDidStop:finished:)])
    [delegate animationDidStop:anim finished:YES];
}
- (void)_simAnimationRemoved:(CAAnimation *)anim {
  id delegate = anim.delegate;
  if ([delegate respondsToSelector:@selector(animationDidStop:finished:)]) [delegate animationDidStop:anim finished:NO];
}
- (void)removeAllAnimations {
  NSArray *old = [[_animations copy] autorelease];
  [_animations removeAllObjects];
  [_animationKeys removeAllObjects];
  for (CAAnimation *a in old) [self _simAnimationRemoved:a];
}
- (void)removeAnimationForKey:(NSString *)key {
  if (!key) return;
  NSUInteger i = [_animationKeys indexOfObject:key];
  if (i == NSNotFound) return;
  CAAnimation *a = [[[_animations objectAtIndex:i] retain] autorelease];
  [_animations removeObjectAtIndex:i];
  [_animationKeys removeObjectAtIndex:i];
  [self _simAnimationRemoved:a];
}
- (NSArray *)animationKeys {
  NSMutableArray *keys = [NSMutableArray array];
  for (id k in _animationKeys)
    if (k != [NSNull null]) [keys addObject:k];
  return keys.count ? keys : nil;
}
- (CAAnimation *)animationForKey:(NSString *)key {
  NSUInteger i = key ? [_animationKeys indexOfObject:key] : NSNotFound;
  return i == NSNotFound ? nil : [_animations objectAtIndex:i];
}
@end

@implementation _SimAnimationEnd
@synthesize layer = _layer;
@synthesize animation = _animation;
- (void)fire {
  [_layer _simAnimationEnded:_animation];
}
- (void)dealloc {
  [_layer release];
  [_animation release];
  [super dealloc];
}
@end

@implementation CAShapeLayer
@synthesize fillRule = _fillRule;
@synthesize strokeStart = _strokeStart;
@synthesize strokeEnd = _strokeEnd;
@synthesize lineWidth = _lineWidth;
@synthesize miterLimit = _miterLimit;
@synthesize lineCap = _lineCap;
@synthesize lineJoin = _lineJoin;
@synthesize lineDashPhase = _lineDashPhase;
@synthesize lineDashPattern = _lineDashPattern;
- (instancetype)init {
  if ((self = [super init])) {
    CGColorSpaceRef space = CGColorSpaceCreateDeviceRGB();
    CGFloat black[4] = {0, 0, 0, 1};
    _fillColor = CGColorCreate(space, black);
    CGColorSpaceRelease(space);
    _strokeEnd = 1;
    _lineWidth = 1;
    _miterLimit = 10;
    _fillRule = [kCAFillRuleNonZero copy];
    _lineCap = [kCALineCapButt copy];
    _lineJoin = [kCALineJoinMiter copy];
  }
  return self;
}
- (void)dealloc {
  CGPathRelease(_path);
  CGColorRelease(_fillColor);
  CGColorRelease(_strokeColor);
  [_fillRule release];
  [_lineCap release];
  [_lineJoin release];
  [_lineDashPattern release];
  [super dealloc];
}
- (CGPathRef)path {
  return _path;
}
- (void)setPath:(CGPathRef)path {
  if (path == _path) return;
  CGPathRelease(_path);
  _path = CGPathCreateCopy(path);
}
- (CGColorRef)fillColor {
  return _fillColor;
}
- (void)setFillColor:(CGColorRef)color {
  setColor(&_fillColor, color);
}
- (CGColorRef)strokeColor {
  return _strokeColor;
}
- (void)setStrokeColor:(CGColorRef)color {
  setColor(&_strokeColor, color);
}
- (void)_simRenderContentInContext:(CGContextRef)ctx rect:(CGRect)r {
  [super _simRenderContentInContext:ctx rect:r];
  if (!_path) return;
  if (_fillColor && CGColorGetAlpha(_fillColor) > 0) {
    CGContextSetFillColorWithColor(ctx, _fillColor);
    CGContextAddPath(ctx, _path);
    CGContextFillPath(ctx);
  }
  if (_strokeColor && _lineWidth > 0) {
    CGContextSetStrokeColorWithColor(ctx, _strokeColor);
    CGContextSetLineWidth(ctx, _lineWidth);
    if (_lineDashPattern.count)
      SimCGContextRecord(ctx, [NSString stringWithFormat:@"lineDash %@",
                                                         [_lineDashPattern componentsJoinedByString:@" "]]);
    CGContextAddPath(ctx, _path);
    CGContextStrokePath(ctx);
  }
}
@end

@implementation CAGradientLayer
@synthesize colors = _colors;
@synthesize locations = _locations;
@synthesize startPoint = _startPoint;
@synthesize endPoint = _endPoint;
@synthesize type = _type;
- (instancetype)init {
  if ((self = [super init])) {
    _startPoint = CGPointMake(0.5, 0);
    _endPoint = CGPointMake(0.5, 1);
    _type = [@"axial" copy];
  }
  return self;
}
- (void)dealloc {
  [_colors release];
  [_locations release];
  [_type release];
  [super dealloc];
}
@end
