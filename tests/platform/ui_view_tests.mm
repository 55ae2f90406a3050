// Views and layers: geometry consistency, autoresizing, layout, taps, shape layers and
// the animation timeline.
#import <UIKit/UIKitSimulation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

namespace {

class UIViewTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice("iphone-faceid-ios16");
    SimUIKitReset();
  }
};

bool SameRect(CGRect a, CGRect b) { return CGRectEqualToRect(a, b); }

}  // namespace

TEST_F(UIViewTest, FrameBoundsAndCentreStayConsistent) {
  UIView *v = [[[UIView alloc] initWithFrame:CGRectMake(10, 20, 100, 50)] autorelease];
  EXPECT_TRUE(SameRect(v.bounds, CGRectMake(0, 0, 100, 50)));
  EXPECT_EQ(v.center.x, 60);
  EXPECT_EQ(v.center.y, 45);

  v.center = CGPointMake(0, 0);
  EXPECT_TRUE(SameRect(v.frame, CGRectMake(-50, -25, 100, 50)));

  v.bounds = CGRectMake(0, 0, 20, 10);  // size changes around the centre
  EXPECT_TRUE(SameRect(v.frame, CGRectMake(-10, -5, 20, 10)));

  v.transform = CGAffineTransformMakeScale(2, 2);
  EXPECT_TRUE(SameRect(v.frame, CGRectMake(-20, -10, 40, 20)));
  EXPECT_TRUE(SameRect(v.bounds, CGRectMake(0, 0, 20, 10)));

  // The layer carries the geometry: setting its frame moves the view.
  UIView *w = [[[UIView alloc] initWithFrame:CGRectMake(5, 5, 30, 30)] autorelease];
  w.layer.frame = w.bounds;
  EXPECT_TRUE(SameRect(w.frame, CGRectMake(0, 0, 30, 30)));
}

TEST_F(UIViewTest, AutoresizingFollowsTheMask) {
  struct Case {
    UIViewAutoresizing mask;
    CGRect expected;
  } cases[] = {
      {UIViewAutoresizingNone, CGRectMake(10, 10, 80, 30)},
      {UIViewAutoresizingFlexibleWidth, CGRectMake(10, 10, 180, 30)},
      {UIViewAutoresizingFlexibleLeftMargin, CGRectMake(110, 10, 80, 30)},
      {UIViewAutoresizingFlexibleWidth | UIViewAutoresizingFlexibleHeight, CGRectMake(10, 10, 180, 130)},
      {UIViewAutoresizingFlexibleTopMargin, CGRectMake(10, 110, 80, 30)},
  };
  for (const Case &c : cases) {
    UIView *parent = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 100, 50)] autorelease];
    UIView *child = [[[UIView alloc] initWithFrame:CGRectMake(10, 10, 80, 30)] autorelease];
    child.autoresizingMask = c.mask;
    [parent addSubview:child];
    parent.frame = CGRectMake(0, 0, 200, 150);
    EXPECT_TRUE(SameRect(child.frame, c.expected))
        << "mask " << c.mask << ": " << [NSStringFromCGRect(child.frame) UTF8String];
  }
}

TEST_F(UIViewTest, SubviewOrderAndConversions) {
  UIView *root = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 300, 300)] autorelease];
  UIView *a = [[[UIView alloc] initWithFrame:CGRectMake(10, 10, 100, 100)] autorelease];
  UIView *b = [[[UIView alloc] initWithFrame:CGRectMake(20, 30, 50, 50)] autorelease];
  UIView *c = [[[UIView alloc] init] autorelease];
  [root addSubview:a];
  [a addSubview:b];
  [root insertSubview:c belowSubview:a];
  EXPECT_EQ([root.subviews objectAtIndex:0], c);
  EXPECT_EQ(root.layer.sublayers.count, 2u);
  EXPECT_EQ([root.layer.sublayers objectAtIndex:0], c.layer);
  CGPoint p = [b convertPoint:CGPointMake(1, 2) toView:root];
  EXPECT_EQ(p.x, 31);
  EXPECT_EQ(p.y, 42);
  CGPoint back = [b convertPoint:CGPointMake(31, 42) fromView:root];
  EXPECT_EQ(back.x, 1);
  EXPECT_EQ(back.y, 2);
  [a removeFromSuperview];
  EXPECT_EQ(a.superview, nil);
  EXPECT_EQ(root.subviews.count, 1u);
}

@interface UITestLayoutView : UIView {
  int _layouts;
}
@property (nonatomic) int layouts;
@end
@implementation UITestLayoutView
@synthesize layouts = _layouts;
- (void)layoutSubviews {
  [super layoutSubviews];
  ++_layouts;
}
@end

TEST_F(UIViewTest, LayoutRunsOncePerRequest) {
  UITestLayoutView *v = [[[UITestLayoutView alloc] initWithFrame:CGRectMake(0, 0, 10, 10)] autorelease];
  [v layoutIfNeeded];
  EXPECT_EQ(v.layouts, 1);
  [v layoutIfNeeded];
  EXPECT_EQ(v.layouts, 1);
  v.frame = CGRectMake(5, 5, 10, 10);  // a move alone needs no layout
  [v layoutIfNeeded];
  EXPECT_EQ(v.layouts, 1);
  v.frame = CGRectMake(5, 5, 20, 10);
  [v layoutIfNeeded];
  EXPECT_EQ(v.layouts, 2);
}

@interface UITestTapTarget : NSObject {
  int _taps;
  CGPoint _where;
}
@property (nonatomic) int taps;
@property (nonatomic) CGPoint where;
- (void)tapped:(UIGestureRecognizer *)g;
- (void)switched:(UISwitch *)sender;
@end
@implementation UITestTapTarget
@synthesize taps = _taps;
@synthesize where = _where;
- (void)tapped:(UIGestureRecognizer *)g {
  ++_taps;
  _where = [g locationInView:nil];
}
- (void)switched:(UISwitch *)sender {
  ++_taps;
}
@end

TEST_F(UIViewTest, TapsReachRecognizersAndControls) {
  UIView *root = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 320, 100)] autorelease];
  UIView *content = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 320, 100)] autorelease];
  [root addSubview:content];
  UITestTapTarget *target = [[[UITestTapTarget alloc] init] autorelease];
  UITapGestureRecognizer *tap = [[[UITapGestureRecognizer alloc] initWithTarget:target
                                                                         action:@selector(tapped:)] autorelease];
  [content addGestureRecognizer:tap];
  EXPECT_TRUE(SimTapView(content, CGPointMake(199.9, 10)));
  EXPECT_EQ(target.taps, 1);
  EXPECT_NEAR(target.where.x, 199.9, 1e-9);

  UISwitch *sw = [[[UISwitch alloc] initWithFrame:CGRectZero] autorelease];
  [sw addTarget:target action:@selector(switched:) forControlEvents:UIControlEventValueChanged];
  EXPECT_TRUE(SimTapView(sw, CGPointMake(10, 10)));
  EXPECT_TRUE(sw.on);
  [sw setOn:NO animated:NO];  // programmatic changes send nothing
  EXPECT_EQ(target.taps, 2);

  [[UIApplication sharedApplication] beginIgnoringInteractionEvents];
  EXPECT_FALSE(SimTapView(content, CGPointMake(10, 10)));
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 1);
  [[UIApplication sharedApplication] endIgnoringInteractionEvents];
  EXPECT_EQ(SimIgnoringInteractionEventsCount(), 0);
}

TEST_F(UIViewTest, ShapeLayerRecordsItsPathAndDash) {
  CAShapeLayer *shape = [CAShapeLayer layer];
  shape.frame = CGRectMake(0, 0, 20, 10);
  CGPathRef path = CGPathCreateWithRect(shape.bounds, NULL);
  shape.path = path;
  CGPathRelease(path);
  shape.fillColor = NULL;
  shape.strokeColor = [UIColor grayColor].CGColor;
  shape.lineDashPattern = [NSArray arrayWithObjects:[NSNumber numberWithInt:4], [NSNumber numberWithInt:2], nil];
  EXPECT_STREQ([SimCGPathDescription(shape.path) UTF8String], "M 0 0; L 20 0; L 20 10; L 0 10; Z");
  UIGraphicsBeginImageContextWithOptions(CGSizeMake(20, 10), NO, 0);
  [shape renderInContext:UIGraphicsGetCurrentContext()];
  UIImage *image = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  NSArray *ops = [image _simDrawOperations];
  EXPECT_TRUE([ops containsObject:@"lineDash 4 2"]);
  EXPECT_TRUE([ops containsObject:@"stroke M 0 0; L 20 0; L 20 10; L 0 10; Z"]);
  EXPECT_FALSE([[ops componentsJoinedByString:@"\n"] containsString:@"fill M"]);
  EXPECT_EQ(image.scale, 3);  // scale 0: the profile's screen
  EXPECT_EQ(image.size.width, 20);
}

// Rendering a view tree: a view that clips to its bounds clips its subviews there, in the
// coordinates of the context, rounded by its layer's corner radius.
TEST_F(UIViewTest, RenderingClipsWhereViewsClipToBounds) {
  UIView *root = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 60, 60)] autorelease];
  UIView *square = [[[UIView alloc] initWithFrame:CGRectMake(10, 10, 20, 20)] autorelease];
  UIView *rounded = [[[UIView alloc] initWithFrame:CGRectMake(30, 30, 20, 20)] autorelease];
  UIView *open = [[[UIView alloc] initWithFrame:CGRectMake(0, 40, 10, 10)] autorelease];
  square.clipsToBounds = YES;
  rounded.clipsToBounds = YES;
  rounded.layer.cornerRadius = 4;
  for (UIView *v in [NSArray arrayWithObjects:square, rounded, open, nil]) {
    UIView *child = [[[UIView alloc] initWithFrame:CGRectMake(15, 15, 20, 20)] autorelease];
    child.backgroundColor = [UIColor redColor];
    [v addSubview:child];
    [root addSubview:v];
  }
  UIGraphicsBeginImageContextWithOptions(root.bounds.size, NO, 1);
  [root.layer renderInContext:UIGraphicsGetCurrentContext()];
  NSArray *ops = [UIGraphicsGetImageFromCurrentImageContext() _simDrawOperations];
  UIGraphicsEndImageContext();
  NSString *all = [ops componentsJoinedByString:@"\n"];
  EXPECT_TRUE([ops containsObject:@"clipRect {{10, 10}, {20, 20}}"]) << [all UTF8String];
  EXPECT_TRUE([all containsString:@"clip M 34 30;"]) << [all UTF8String];
  EXPECT_EQ([[all componentsSeparatedByString:@"clip"] count], 3u) << [all UTF8String];
}

TEST_F(UIViewTest, AnimationsApplyAtOnceAndCompleteInOrder) {
  UIView *v = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 10, 10)] autorelease];
  NSMutableArray *order = [NSMutableArray array];
  [UIView animateWithDuration:0.2
      animations:^{ v.alpha = 0.3; }
      completion:^(BOOL finished) { [order addObject:finished ? @"slow" : @"slow-unfinished"]; }];
  EXPECT_NEAR(v.alpha, 0.3, 1e-6);
  [UIView animateWithDuration:0.1
      delay:0
      options:UIViewAnimationOptionCurveEaseIn
      animations:^{ v.center = CGPointMake(50, 50); }
      completion:^(BOOL finished) {
        [order addObject:@"fast"];
        // A chained animation falls due after the slow one.
        [UIView animateWithDuration:0.2 animations:nil completion:^(BOOL f) { [order addObject:@"chained"]; }];
      }];
  EXPECT_EQ(v.center.x, 50);
  EXPECT_EQ(order.count, 0u);  // never before the run loop turns
  SimRunLoopRunUntil(
      ^BOOL { return order.count == 3; }, 5);
  NSArray *expected = [NSArray arrayWithObjects:@"fast", @"slow", @"chained", nil];
  EXPECT_TRUE([order isEqualToArray:expected]) << [[order description] UTF8String];
  NSArray *records = SimRecordedViewAnimations();
  ASSERT_EQ(records.count, 3u);
  EXPECT_EQ([[[records objectAtIndex:1] objectForKey:@"options"] unsignedIntegerValue],
            (NSUInteger)UIViewAnimationOptionCurveEaseIn);
}

TEST_F(UIViewTest, DeviceAndScreenComeFromTheProfile) {
  EXPECT_EQ([UIDevice currentDevice].userInterfaceIdiom, UIUserInterfaceIdiomPhone);
  [[UIDevice currentDevice] _playSystemSound:1011];
  EXPECT_TRUE([SimPlayedSystemSounds() isEqualToArray:[NSArray arrayWithObject:[NSNumber numberWithUnsignedInt:1011]]]);
  UseDevice("ipad-ios15");
  EXPECT_EQ([UIDevice currentDevice].userInterfaceIdiom, UIUserInterfaceIdiomPad);
  EXPECT_EQ([UIScreen mainScreen].bounds.size.width, 820);
  EXPECT_EQ([UIScreen mainScreen].scale, 2);
  EXPECT_STREQ([[UIDevice currentDevice].systemVersion UTF8String], "15.7");
}
