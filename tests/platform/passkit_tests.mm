// PassKit's glyph as a framework bundle of the device tree, the root class's +initialize
// as a hook point, recorded layer animations and touch locations of tap recognizers.
#import <UIKit/UIKitSimulation.h>
#import <PassKit/PassKitSimulation.h>
#import <QuartzCore/QuartzCore.h>
#include <Simulator/Simulator.h>
#include <objc/runtime.h>
#include <substrate.h>
#include <unistd.h>

#include <algorithm>
#include <string>
#include <vector>

#include "DeviceFixture.h"

namespace {

const char *kPassKitPath = "/System/Library/Frameworks/PassKit.framework";

class PassKitTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    SimUIKitReset();
  }

  // A device from the default profile with `absent` as its "absentFrameworks".
  void UseDeviceWithout(NSArray *absent) {
    UseDevice();
    NSMutableDictionary *profile = [[SimDeviceProfile() mutableCopy] autorelease];
    [profile setObject:absent forKey:@"absentFrameworks"];
    NSString *path = [NSString stringWithFormat:@"%s.profile.plist", Root().c_str()];
    ASSERT_TRUE([profile writeToFile:path atomically:YES]);
    UseDevice([path fileSystemRepresentation]);
    unlink([path fileSystemRepresentation]);
  }

  // Loads PassKit as the device does: by its path, then the class by name.
  Class LoadGlyphClass() {
    NSBundle *bundle = [NSBundle bundleWithPath:HostPathString(@(kPassKitPath))];
    if (bundle == nil) return Nil;
    if (![bundle isLoaded] && ![bundle load]) return Nil;
    return NSClassFromString(@"PKGlyphView");
  }
};

bool SameColour(UIColor *a, UIColor *b) {
  CGFloat ar, ag, ab, aa, br, bg, bb, ba;
  if (![a getRed:&ar green:&ag blue:&ab alpha:&aa] || ![b getRed:&br green:&bg blue:&bb alpha:&ba]) return false;
  return ar == br && ag == bg && ab == bb && aa == ba;
}

std::vector<std::string> gInitialized;
IMP gRootInitialize = NULL;

void recordingInitialize(id self, SEL _cmd) {
  gInitialized.push_back(class_getName((Class)self));
  if (gRootInitialize != NULL) ((void (*)(id, SEL))gRootInitialize)(self, _cmd);
}

size_t Count(const std::vector<std::string> &names, const char *name) {
  size_t n = 0;
  for (const std::string &s : names) n += s == name;
  return n;
}

}  // namespace

@interface PassKitTapTarget : NSObject {
  CGPoint _where;
  NSInteger _taps;
  UIView *_measuredIn;
}
@property (nonatomic, assign) CGPoint where;
@property (nonatomic, assign) NSInteger taps;
@property (nonatomic, assign) UIView *measuredIn;
- (void)tapped:(UITapGestureRecognizer *)recognizer;
@end

@implementation PassKitTapTarget
@synthesize where = _where;
@synthesize taps = _taps;
@synthesize measuredIn = _measuredIn;
- (void)tapped:(UITapGestureRecognizer *)recognizer {
  _where = [recognizer locationOfTouch:0 inView:_measuredIn];
  _taps++;
}
@end

TEST_F(PassKitTest, TheFrameworkIsABundleOfTheDeviceTree) {
  UseDevice();
  EXPECT_EQ(NSClassFromString(@"PKGlyphView"), Nil) << "nobody links PassKit";
  Class glyphClass = LoadGlyphClass();
  ASSERT_NE(glyphClass, Nil);
  EXPECT_TRUE([glyphClass isSubclassOfClass:[UIView class]]);
  EXPECT_TRUE([glyphClass instancesRespondToSelector:@selector(_setPrimaryColor:animated:)]);
}

TEST_F(PassKitTest, AProfileCanLeaveTheFrameworkOut) {
  UseDeviceWithout([NSArray arrayWithObject:@"PassKit"]);
  EXPECT_NE(access(HostPath(kPassKitPath).c_str(), F_OK), 0);
  EXPECT_EQ(LoadGlyphClass(), Nil);
}

TEST_F(PassKitTest, GlyphPalettesStatesAndCompletions) {
  UseDevice();
  Class glyphClass = LoadGlyphClass();
  ASSERT_NE(glyphClass, Nil);
  PKGlyphView *glyph = [[[glyphClass alloc] initWithStyle:2] autorelease];

  // Each style has its own colours; other modes dim them.
  for (NSInteger a = 0; a < 4; a++) {
    for (NSInteger b = a + 1; b < 4; b++) {
      EXPECT_FALSE(SameColour([glyph _primaryColorForStyle:a mode:0], [glyph _primaryColorForStyle:b mode:0]));
      EXPECT_FALSE(SameColour([glyph _secondaryColorForStyle:a mode:0], [glyph _secondaryColorForStyle:b mode:0]));
    }
    EXPECT_FALSE(SameColour([glyph _primaryColorForStyle:a mode:0], [glyph _primaryColorForStyle:a mode:1]));
  }
  EXPECT_TRUE(SameColour(glyph.primaryColor, [glyph _primaryColorForStyle:2 mode:0]));
  EXPECT_TRUE(SameColour(glyph.secondaryColor, [glyph _secondaryColorForStyle:2 mode:0]));

  // The public setters go through the underscore ones, unanimated.
  UIColor *green = [UIColor greenColor];
  glyph.primaryColor = green;
  NSDictionary *last = [[glyph _simColorChanges] lastObject];
  EXPECT_NSEQ([last objectForKey:@"kind"], @"primary");
  EXPECT_NSEQ([last objectForKey:@"animated"], @(NO));
  EXPECT_TRUE(SameColour(glyph.primaryColor, green));

  // A state change recolours from the glyph's own style; completions come after the
  // transition, in order, and an unanimated change completes on the next turn.
  NSMutableArray *order = [NSMutableArray array];
  [glyph setState:1 animated:YES completionHandler:^{ [order addObject:@"first"]; }];
  [glyph setState:8 animated:YES completionHandler:^{ [order addObject:@"second"]; }];
  [glyph setState:0 animated:NO completionHandler:^{ [order addObject:@"unanimated"]; }];
  EXPECT_EQ(glyph.state, 0);
  EXPECT_TRUE(SameColour(glyph.primaryColor, [glyph _primaryColorForStyle:2 mode:0]));
  EXPECT_EQ([order count], 0u) << "completions never run synchronously";
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [order count] == 3; }, 5));
  EXPECT_NSEQ(order, ([NSArray arrayWithObjects:@"unanimated", @"first", @"second", nil]));
  EXPECT_NSEQ([glyph _simStates], ([NSArray arrayWithObjects:@(1), @(8), @(0), nil]));
}

TEST_F(PassKitTest, CompletionsWaitForTheTransition) {
  UseDevice();
  Class glyphClass = LoadGlyphClass();
  ASSERT_NE(glyphClass, Nil);
  PKGlyphView *glyph = [[[glyphClass alloc] initWithStyle:0] autorelease];
  __block NSDate *done = nil;
  NSDate *start = [NSDate date];
  [glyph setState:11 animated:YES completionHandler:^{ done = [[NSDate date] retain]; }];
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return done != nil; }, 5));
  // Never early; late by at most a loaded machine's margin.
  EXPECT_GE([done timeIntervalSinceDate:start], [glyphClass _simTransitionDuration] - 0.01);
  [done release];
}

TEST_F(PassKitTest, ARootInitializeReplacementRunsOnceForEveryClassFirstInitialised) {
  UseDevice();
  Class root = [NSObject class];
  while (class_getSuperclass(root) != Nil) root = class_getSuperclass(root);
  EXPECT_TRUE([root respondsToSelector:@selector(initialize)]) << "the root class answers +initialize";
  MSHookMessageEx(object_getClass(root), @selector(initialize), (IMP)recordingInitialize, &gRootInitialize);
  ASSERT_NE(gRootInitialize, (IMP)NULL) << "the hook hands back the root's own +initialize";

  // A class made now, without +initialize of its own, and a subclass of it.
  Class made = objc_allocateClassPair([NSObject class], "PassKitTestMadeClass", 0);
  ASSERT_NE(made, Nil);
  objc_registerClassPair(made);
  Class sub = objc_allocateClassPair(made, "PassKitTestMadeSubclass", 0);
  objc_registerClassPair(sub);
  [[[sub alloc] init] release];
  [[[made alloc] init] release];
  [made class];
  EXPECT_EQ(Count(gInitialized, "PassKitTestMadeClass"), 1u);
  EXPECT_EQ(Count(gInitialized, "PassKitTestMadeSubclass"), 1u);
  // A superclass initialises before its subclass.
  EXPECT_LT(std::find(gInitialized.begin(), gInitialized.end(), "PassKitTestMadeClass"),
            std::find(gInitialized.begin(), gInitialized.end(), "PassKitTestMadeSubclass"));

  // So does the glyph class, the first time it is used after loading.
  Class glyphClass = LoadGlyphClass();
  ASSERT_NE(glyphClass, Nil);
  EXPECT_EQ(Count(gInitialized, "PKGlyphView"), 0u) << "loading does not initialise";
  [[[glyphClass alloc] initWithStyle:0] release];
  [[[glyphClass alloc] initWithStyle:1] release];
  EXPECT_EQ(Count(gInitialized, "PKGlyphView"), 1u);
  // Classes initialised before the hook never come back.
  EXPECT_EQ(Count(gInitialized, "NSObject"), 0u);
  EXPECT_EQ(Count(gInitialized, "NSAutoreleasePool"), 0u);
}

TEST_F(PassKitTest, LayerAnimationsAreRecordedPerKey) {
  UseDevice();
  CALayer *layer = [CALayer layer];
  EXPECT_EQ([layer animationKeys], nil);
  CABasicAnimation *spin = [CABasicAnimation animationWithKeyPath:@"transform.rotation.z"];
  spin.fromValue = [NSNumber numberWithFloat:0];
  spin.toValue = [NSNumber numberWithFloat:6.2831855f];
  spin.duration = 7;
  spin.repeatCount = HUGE_VALF;
  [layer addAnimation:spin forKey:@"spin"];
  CABasicAnimation *sweep = [CABasicAnimation animationWithKeyPath:@"transform.translation.y"];
  sweep.toValue = [NSNumber numberWithFloat:-60];
  sweep.duration = 1;
  sweep.autoreverses = YES;
  sweep.repeatCount = HUGE_VALF;
  [layer addAnimation:sweep forKey:@"sweep"];
  EXPECT_NSEQ([layer animationKeys], ([NSArray arrayWithObjects:@"spin", @"sweep", nil]));

  CABasicAnimation *kept = (CABasicAnimation *)[layer animationForKey:@"spin"];
  EXPECT_NE(kept, spin) << "the layer keeps a copy";
  EXPECT_NSEQ(kept.keyPath, @"transform.rotation.z");
  EXPECT_NSEQ(kept.fromValue, [NSNumber numberWithFloat:0]);
  EXPECT_NSEQ(kept.toValue, [NSNumber numberWithFloat:6.2831855f]);
  EXPECT_EQ(kept.duration, 7);
  EXPECT_TRUE(isinf(kept.repeatCount));
  EXPECT_FALSE(kept.autoreverses);
  EXPECT_TRUE([(CABasicAnimation *)[layer animationForKey:@"sweep"] autoreverses]);

  // Endless animations stay until removed.
  SimRunLoopRunFor(0.1);
  EXPECT_EQ([[layer animationKeys] count], 2u);
  [layer removeAnimationForKey:@"spin"];
  EXPECT_NSEQ([layer animationKeys], [NSArray arrayWithObject:@"sweep"]);
  [layer removeAnimationForKey:@"absent"];
  [layer removeAllAnimations];
  EXPECT_EQ([layer animationKeys], nil);
}

TEST_F(PassKitTest, TapRecognizersGiveTheTouchInAnyView) {
  UseDevice();
  UIWindow *window = [[[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 375, 200)] autorelease];
  UIView *row = [[[UIView alloc] initWithFrame:CGRectMake(0, 50, 375, 96)] autorelease];
  UIView *container = [[[UIView alloc] initWithFrame:CGRectMake(27.5, 0, 320, 96)] autorelease];
  [window addSubview:row];
  [row addSubview:container];
  PassKitTapTarget *target = [[[PassKitTapTarget alloc] init] autorelease];
  target.measuredIn = container;
  UITapGestureRecognizer *tap = [[[UITapGestureRecognizer alloc] initWithTarget:target
                                                                         action:@selector(tapped:)] autorelease];
  [container addGestureRecognizer:tap];

  const struct {
    CGPoint inRow;
    CGFloat x, y;
  } cases[] = {{{27.5, 10}, 0, 10}, {{133.5, 40}, 106, 40}, {{347, 95}, 319.5, 95}};
  NSInteger taps = 0;
  for (const auto &c : cases) {
    ASSERT_TRUE(SimTapView(row, c.inRow));
    EXPECT_EQ(target.taps, ++taps);
    EXPECT_EQ(target.where.x, c.x);
    EXPECT_EQ(target.where.y, c.y);
  }
}
