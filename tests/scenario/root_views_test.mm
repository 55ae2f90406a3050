// The root page's custom cells and views: colours, fonts and frames.
#import <UIKit/UIKit.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSHeaderFooterView.h>
#import <Preferences/PSTableCell.h>
#import <Preferences/PSSwitchTableCell.h>
#import <QuartzCore/QuartzCore.h>
#include <notify.h>
#import "BundleFixture.h"

namespace {

Class bundleClass(const char *name) {
  Class cls = NSClassFromString(@(name));
  EXPECT_NE(cls, Nil) << name;
  return cls;
}

void expectColour(UIColor *colour, CGFloat red, CGFloat green, CGFloat blue, CGFloat alpha) {
  CGFloat r = -1, g = -1, b = -1, a = -1;
  ASSERT_TRUE([colour getRed:&r green:&g blue:&b alpha:&a]);
  EXPECT_NEAR(r, red, 1e-4);
  EXPECT_NEAR(g, green, 1e-4);
  EXPECT_NEAR(b, blue, 1e-4);
  EXPECT_NEAR(a, alpha, 1e-4);
}

PSSpecifier *row(NSString *name, NSInteger cellType) {
  return [PSSpecifier preferenceSpecifierNamed:name
                                        target:nil
                                           set:NULL
                                           get:NULL
                                        detail:Nil
                                          cell:(PSCellType)cellType
                                          edit:Nil];
}

}  // namespace

@interface RootViewsTarget : UIViewController {
  NSInteger _taps;
}
@property (nonatomic, assign) NSInteger taps;
- (void)infoTapped:(id)sender;
@end

@implementation RootViewsTarget
@synthesize taps = _taps;
- (void)infoTapped:(id)sender {
  _taps++;
}
@end

class RootViewsTest : public BundleTest {
 protected:
  void TearDown() override {
    // Alerts still on their way belong to this test's Settings, which goes with it.
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    BundleTest::TearDown();
  }
};

TEST_F(RootViewsTest, TheWarningCellLabelFollowsTheGracePeriod) {
  StartDevice(SIM_DEFAULT_PROFILE, /*withSpringBoard=*/false);
  int token = NOTIFY_TOKEN_INVALID;
  ASSERT_EQ(notify_register_check("net.corvane.tessarin.graceperiod", &token), (uint32_t)NOTIFY_STATUS_OK);
  const struct {
    uint64_t state;
    CGFloat height;
  } cases[] = {{0, 40}, {1, 65}, {0, 40}};
  PSTableCell *cell = [[[bundleClass("TessarinTrustedWiFiWarningCell") alloc]
        initWithStyle:UITableViewCellStyleDefault
      reuseIdentifier:@"warning"
            specifier:row(@"Tessarin is disabled.", 4)] autorelease];
  [cell setFrame:CGRectMake(0, 0, 320, 70)];
  for (const auto &c : cases) {
    notify_set_state(token, c.state);
    [cell layoutSubviews];
    CGRect frame = [[cell textLabel] frame];
    EXPECT_EQ(frame.origin.x, 0);
    EXPECT_EQ(frame.origin.y, 2);
    EXPECT_EQ(frame.size.width, 320);
    EXPECT_EQ(frame.size.height, c.height) << c.state;
  }
  expectColour([cell backgroundColor], 0.667, 0, 0.1, 1);
  expectColour([[cell textLabel] textColor], 1, 1, 1, 1);
  EXPECT_EQ([[cell textLabel] numberOfLines], 0);
  EXPECT_EQ([[cell textLabel] textAlignment], NSTextAlignmentCenter);
  EXPECT_EQ([[[cell textLabel] font] pointSize], 15);
  expectColour([cell separatorColor], 0, 0, 0, 0);
}

TEST_F(RootViewsTest, TheCreditsCellIsQuietGreyText) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  PSTableCell *cell =
      [[[bundleClass("TessarinCreditsCell") alloc] initWithStyle:UITableViewCellStyleDefault
                                                 reuseIdentifier:@"credits"
                                                       specifier:row(@"Tessarin by Corvane", 4)] autorelease];
  [cell layoutSubviews];
  expectColour([cell backgroundColor], 0, 0, 0, 0);
  expectColour([[cell textLabel] textColor], 2.0 / 3.0, 2.0 / 3.0, 2.0 / 3.0, 1);
  EXPECT_EQ([[[cell textLabel] font] pointSize], 14);
}

TEST_F(RootViewsTest, TheColourCellTintsItsSwitchRed) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  PSSwitchTableCell *cell =
      [[[bundleClass("TessarinColorCell") alloc] initWithStyle:UITableViewCellStyleSubtitle
                                               reuseIdentifier:@"colour"
                                                     specifier:row(@"Keep session", 6)] autorelease];
  UISwitch *control = (UISwitch *)[cell control];
  ASSERT_TRUE([control isKindOfClass:[UISwitch class]]);
  expectColour([control onTintColor], 0.8, 0.176471, 0.1333, 1);
}

TEST_F(RootViewsTest, TheSwitchCellDimsItsIconWhileOff) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  PSSwitchTableCell *cell = [[[bundleClass("TessarinSwitchCell") alloc] initWithStyle:UITableViewCellStyleDefault
                                                                      reuseIdentifier:@"switch"
                                                                            specifier:row(@"Enabled", 6)] autorelease];
  const struct {
    id value;
    CGFloat alpha;
  } cases[] = {{@(NO), 0.3}, {@(YES), 1.0}, {nil, 0.3}};
  for (const auto &c : cases) {
    [cell setValue:c.value];
    EXPECT_NEAR([[cell iconImageView] alpha], c.alpha, 1e-6);
  }
}

TEST_F(RootViewsTest, TheLabelFooterIsFortySevenPointsAndTapsThroughToItsTarget) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  RootViewsTarget *target = [[[RootViewsTarget alloc] init] autorelease];
  [[target view] setFrame:CGRectMake(0, 0, 390, 800)];
  PSSpecifier *group = [PSSpecifier groupSpecifierWithName:nil];
  [group setTarget:target];
  [group setButtonAction:@selector(infoTapped:)];
  [group setProperty:@"More apps by Corvane" forKey:@"ACUIFooterText"];

  UIView *footer = (UIView *)[[(id<PSHeaderFooterView>)[bundleClass("TessarinLabelView") alloc] initWithSpecifier:group]
      autorelease];
  EXPECT_EQ([footer frame].size.width, 390);
  for (CGFloat width : {0.0, 320.0, 1024.0}) EXPECT_EQ([(id)footer preferredHeightForWidth:width], 47) << width;
  UILabel *label = [footer performSelector:@selector(label)];
  EXPECT_NSEQ([label text], @"More apps by Corvane");
  expectColour([label textColor], 0, 0.478431, 1.0, 1);
  [footer setFrame:CGRectMake(0, 0, 300, 47)];
  [footer layoutSubviews];
  EXPECT_TRUE(CGRectEqualToRect([label frame], CGRectMake(0, 10, 300, 30)));

  // The action runs on the next turn of the run loop, not during the touch.
  [footer touchesEnded:[NSSet set] withEvent:nil];
  EXPECT_EQ([target taps], 0);
  SimRunLoopRunUntil(
      ^BOOL { return [target taps] > 0; }, 2.0);
  EXPECT_EQ([target taps], 1);
}

TEST_F(RootViewsTest, TheHighlightViewDrawsADashedOutline) {
  StartDevice(SIM_DEFAULT_PROFILE, false);
  UIView *view = [[[bundleClass("TessarinHightlightView") alloc] initWithFrame:CGRectMake(10, 10, 80, 40)] autorelease];
  CAShapeLayer *layer = (CAShapeLayer *)[view layer];
  ASSERT_TRUE([layer isKindOfClass:[CAShapeLayer class]]);
  EXPECT_NSEQ([layer lineDashPattern], (@[ @4, @2 ]));
  EXPECT_EQ([layer fillColor], (CGColorRef)NULL);
  expectColour([UIColor colorWithCGColor:[layer strokeColor]], 202.0 / 255, 202.0 / 255, 202.0 / 255, 1);
  [view layoutSubviews];
  EXPECT_TRUE(CGRectEqualToRect([layer frame], CGRectMake(0, 0, 80, 40)));
  EXPECT_TRUE(CGRectEqualToRect(CGPathGetBoundingBox([layer path]), CGRectMake(0, 0, 80, 40)));
}
