// The unlock-button page in the simulated Settings app: the rows each device gets, what
// the stored choice shows and when its button starts, the animated buttons, PassKit's
// glyphs with their states and colours, taps on thirds of either row and what they store
// and post.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PreferencesSimulation.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>
#import <PassKit/PassKitSimulation.h>
#import <QuartzCore/QuartzCore.h>
#include <notify.h>

#include <string>

#import "BundleFixture.h"
#import "SettingsHost.h"
#include "ChildProcess.h"
#include "core/SystemVersion.hpp"

@interface NSObject (ButtonPageTestViews)
// TessarinButtonIconCell / TessarinGlyphIconCell / TessarinButtonView.
- (id)whiteButton;
- (id)blackButton;
- (id)goldenButton;
- (id)blackView;
- (id)blueView;
- (id)redView;
- (id)circle;
- (id)thumb;
- (id)thumbRed;
- (id)ghostView;
- (BOOL)isAnimating;
- (NSInteger)state;
@end

namespace {

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";
// A glyph chain of four animated steps, each one transition long, with room.
constexpr double kChainSettle = 2.5;

NSArray *numbers(std::initializer_list<int> values) {
  NSMutableArray *list = [NSMutableArray array];
  for (int v : values) [list addObject:[NSNumber numberWithInt:v]];
  return list;
}

bool sameColour(UIColor *a, UIColor *b) {
  CGFloat ar, ag, ab, aa, br, bg, bb, ba;
  if (![a getRed:&ar green:&ag blue:&ab alpha:&aa] || ![b getRed:&br green:&bg blue:&bb alpha:&ba]) return false;
  return fabs(ar - br) < 1e-6 && fabs(ag - bg) < 1e-6 && fabs(ab - bb) < 1e-6 && fabs(aa - ba) < 1e-6;
}

bool sameRect(CGRect a, CGRect b) { return CGRectEqualToRect(a, b); }

NSArray *layerKeys(UIView *view) { return [[view layer] animationKeys]; }

}  // namespace

// Runs the tests a filter names in this process (a new one): see RunAloneInANewProcess.
CHILD_HELPER(runTestsAlone) {
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}

class ButtonPageTest : public BundleTest {
 protected:
  // A fresh device, seen by the bundle as a Settings process started on it sees it.
  void Start(void (^edit)(NSMutableDictionary *) = nil, const char *profile = SIM_DEFAULT_PROFILE) {
    StartDevice(profile, /*withSpringBoard=*/true, edit);
    // The sensor answer is kept for the process; each device asks again.
    if (BOOL *asked = BundleSymbol<BOOL *>("hasSetPearl")) *asked = NO;
    if (BOOL *pearl = BundleSymbol<BOOL *>("hasPearlCam")) *pearl = NO;
    flags_ = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    ASSERT_NE(flags_, nullptr);
    startFlags_ = *flags_;
    *flags_ = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
    SimSettingsReset();
    SimUIKitReset();
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
  }

  void TearDown() override {
    SimRunLoopRunFor(0.1);
    SimSettingsReset();
    if (flags_ != nullptr) *flags_ = startFlags_;
    BundleTest::TearDown();
  }

  // A process keeps PassKit once a page has loaded it, and its glyph class with it, as
  // Settings does: a case about a device without PassKit runs alone in a new process of
  // this binary when this one has loaded it already. True when it ran there.
  bool RanAloneInANewProcess() {
    if (NSClassFromString(@"PKGlyphView") == Nil) return false;
    const ::testing::TestInfo *test = ::testing::UnitTest::GetInstance()->current_test_info();
    const std::string filter = std::string("--gtest_filter=") + test->test_suite_name() + "." + test->name();
    EXPECT_EQ(RunChild("runTestsAlone", {filter}, 120), 0) << "run alone: " << filter;
    return true;
  }

  // The page as the root page's "CIRCLE_COLOR" row opens it (that row exists on Touch ID
  // devices only), or pushed with a row of the same name; its rows laid out.
  PSListController *OpenPage(bool fromRootRow = false) {
    Class rootClass = NSClassFromString(@"TessarinPrefsListController");
    Class pageClass = NSClassFromString(@"TessarinButtonController");
    EXPECT_NE(rootClass, Nil);
    EXPECT_NE(pageClass, Nil);
    PSListController *root = [[[rootClass alloc] init] autorelease];
    ShowAsSettingsPane(root);
    [root view];
    if (fromRootRow) {
      PSSpecifier *row = [root specifierForID:@"CIRCLE_COLOR"];
      EXPECT_NE(row, nil);
      EXPECT_TRUE(SimListControllerTapSpecifier(root, row));
      SimRunLoopRunFor(SimTransitionDuration + 0.1);
    } else {
      PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:@"Button and glyph"
                                                        target:root
                                                           set:NULL
                                                           get:NULL
                                                        detail:pageClass
                                                          cell:PSLinkCell
                                                          edit:Nil];
      PSListController *page = [[[pageClass alloc] init] autorelease];
      [page setSpecifier:row];
      [SimSettingsRootController() pushViewController:page animated:NO];
      [page view];
    }
    PSListController *page = (PSListController *)[SimSettingsRootController() topViewController];
    EXPECT_NSEQ(NSStringFromClass([page class]), @"TessarinButtonController");
    [[page view] layoutIfNeeded];
    return page;
  }

  NSArray *RowIDs(PSListController *page) {
    NSMutableArray *ids = [NSMutableArray array];
    for (PSSpecifier *s in [page specifiers]) {
      id rowID = [s propertyForKey:@"id"];
      [ids addObject:rowID != nil ? rowID : @"?"];
    }
    return ids;
  }

  // The row's cell as the page shows it.
  PSTableCell *Cell(PSListController *page, NSString *className) {
    for (PSSpecifier *s in [page specifiers]) {
      // The platform keeps the row's cell class as the class itself.
      if ([[[s propertyForKey:@"cellClass"] description] isEqual:className]) {
        EXPECT_GE([[s propertyForKey:@"height"] doubleValue], 96);
        return (PSTableCell *)[page cachedCellForSpecifier:s];
      }
    }
    ADD_FAILURE() << "no " << [className UTF8String] << " row";
    return nil;
  }

  // The row's 320-point strip that holds its three thirds.
  static UIView *Strip(PSTableCell *cell) {
    UIView *strip = nil;
    for (UIView *v in [[cell contentView] subviews])
      if (v.frame.size.width == 320) strip = v;
    for (UIView *v in [cell subviews])
      if (v.frame.size.width == 320) strip = v;
    return strip;
  }

  // A tap at x (y 48) in the row's strip.
  void TapRow(PSTableCell *cell, CGFloat x) {
    UIView *strip = Strip(cell);
    ASSERT_NE(strip, nil);
    ASSERT_TRUE(SimTapView(strip, CGPointMake(x, 48)));
  }

  NSArray *Buttons(PSTableCell *cell) {
    return [NSArray arrayWithObjects:[cell whiteButton], [cell blackButton], [cell goldenButton], nil];
  }
  NSArray *Glyphs(PSTableCell *cell) {
    if ([cell blackView] == nil) return [NSArray array];
    return [NSArray arrayWithObjects:[cell blackView], [cell blueView], [cell redView], nil];
  }
  NSArray *Animating(PSTableCell *cell) {
    NSMutableArray *on = [NSMutableArray array];
    for (id b in Buttons(cell)) [on addObject:@([b isAnimating])];
    return on;
  }
  NSArray *States(PSTableCell *cell) {
    NSMutableArray *states = [NSMutableArray array];
    for (id g in Glyphs(cell)) [states addObject:@([g state])];
    return states;
  }

  void StoreIconColor(id value) {
    auto set = BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey");
    if (set != nullptr) set(value, "IconColor");
  }
  id StoredIconColor() { return [StoredPreferences() objectForKey:@"IconColor"]; }

  tessarin::SystemVersionFlags *flags_ = nullptr;
  tessarin::SystemVersionFlags startFlags_;
};

TEST_F(ButtonPageTest, ADeviceWithABiometricSensorGetsBothRowsWithALocalisedHeading) {
  Start(nil, "iphone-touchid-ios14");
  PSListController *page = OpenPage(/*fromRootRow=*/true);
  EXPECT_NSEQ(RowIDs(page),
              ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", @"GLYPH_GROUP", @"GLYPHS", nil]));
  EXPECT_NSEQ([[page specifierForID:@"CHOOSE_COLOR"] name], @"Choose a color");
  EXPECT_NSEQ([page title], @"Button and glyph") << "the title is the name of the page's own row";
}

TEST_F(ButtonPageTest, ADeviceWithoutABiometricSensorLoadsTheNoGlyphRows) {
  Start(^(NSMutableDictionary *profile) { [profile setObject:[NSArray array] forKey:@"ioServices"]; });
  PSListController *page = OpenPage();
  EXPECT_NSEQ(RowIDs(page), ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", nil]));
  EXPECT_NSEQ([[page specifierForID:@"CHOOSE_COLOR"] name], @"Choose a color");
}

// The glyph row shows the stored glyph at once; the stored button starts two seconds after
// its row is first laid out, not a millisecond before. Nothing stored reads as the blue glyph.
TEST_F(ButtonPageTest, TheStoredChoiceShowsAndItsButtonStartsTwoSecondsAfterTheRowIsLaidOut) {
  Start();
  const struct {
    id stored;
    NSArray *animating;  // white, black, golden
    NSArray *states;     // black, blue, red glyph
  } cases[] = {
      {nil, @[ @(NO), @(NO), @(NO) ], @[ @(0), @(11), @(0) ]},
      {@(0), @[ @(YES), @(NO), @(NO) ], @[ @(0), @(0), @(0) ]},
      {@(1), @[ @(NO), @(YES), @(NO) ], @[ @(0), @(0), @(0) ]},
      {@(2), @[ @(NO), @(NO), @(YES) ], @[ @(0), @(0), @(0) ]},
      {@(3), @[ @(NO), @(NO), @(NO) ], @[ @(11), @(0), @(0) ]},
      {@(5), @[ @(NO), @(NO), @(NO) ], @[ @(0), @(0), @(11) ]},
      {@(6), @[ @(NO), @(NO), @(NO) ], @[ @(0), @(0), @(0) ]},
  };
  NSArray *none = @[ @(NO), @(NO), @(NO) ];
  for (const auto &c : cases) {
    SCOPED_TRACE([[c.stored description] UTF8String] ?: "nothing stored");
    StoreIconColor(c.stored);
    SimClockUseVirtualTime();
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    EXPECT_NSEQ(States(glyphs), c.states);
    SimClockAdvance(2 - 0.001);
    EXPECT_NSEQ(Animating(buttons), none);
    SimClockAdvance(0.001);
    EXPECT_NSEQ(Animating(buttons), c.animating);
    for (NSUInteger i = 0; i < 3; i++) {
      if (![[c.animating objectAtIndex:i] boolValue])
        EXPECT_EQ(layerKeys([[Buttons(buttons) objectAtIndex:i] circle]), nil) << "ring " << i << " still";
    }
    EXPECT_NSEQ(StoredIconColor(), c.stored) << "showing writes nothing";
    SimClockUseRealTime();
  }
}

// Both rows keep their 320-point strip centred on the row whatever its width (a wider
// pane, a rotation), from the width the row had when it was made.
TEST_F(ButtonPageTest, BothRowsStayCentredOnTheirRowAsItsWidthChanges) {
  Start();
  PSListController *page = OpenPage();
  for (NSString *cellClass : @[ @"TessarinButtonIconCell", @"TessarinGlyphIconCell" ]) {
    PSTableCell *cell = Cell(page, cellClass);
    for (CGFloat width : {[[page table] bounds].size.width, (CGFloat)320, (CGFloat)600, (CGFloat)375}) {
      SCOPED_TRACE(std::string([cellClass UTF8String]) + " " + std::to_string((int)width));
      CGRect frame = [cell frame];
      frame.size.width = width;
      [cell setFrame:frame];
      [cell layoutIfNeeded];
      UIView *strip = Strip(cell);
      ASSERT_NE(strip, nil);
      EXPECT_EQ([[cell contentView] bounds].size.width, width);
      EXPECT_TRUE(sameRect([strip frame], CGRectMake(width / 2 - 160, 0, 320, 96)));
    }
  }
}

TEST_F(ButtonPageTest, TheButtonAndGlyphViewsAndTheirFrames) {
  Start();
  PSListController *page = OpenPage();
  PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
  NSArray *all = Buttons(buttons);
  ASSERT_EQ([all count], 3u);
  const CGFloat thirds[] = {0, 106, 212};
  NSArray *rings = @[ @"circle-white", @"circle-black", @"circle-gold" ];
  NSArray *prints = @[ @"thumb-white", @"thumb-black", @"thumb-white" ];
  for (NSUInteger i = 0; i < 3; i++) {
    SCOPED_TRACE(i);
    UIView *b = [all objectAtIndex:i];
    EXPECT_TRUE(sameRect([b frame], CGRectMake(18, 13, 70, 70)));
    EXPECT_TRUE(sameRect([[b superview] frame], CGRectMake(thirds[i], 0, 96, 96)));
    EXPECT_EQ([[b superview] superview], Strip(buttons));
    EXPECT_TRUE(sameRect([[b circle] frame], CGRectMake(0, 0, 70, 70)));
    EXPECT_TRUE(sameRect([[b thumb] frame], CGRectMake(5, 5, 60, 60)));
    EXPECT_TRUE(sameRect([[b ghostView] frame], CGRectMake(0, 60, 60, 15)));
    EXPECT_TRUE(sameRect([[b thumbRed] frame], CGRectMake(0, -60, 60, 60)));
    EXPECT_EQ([[b ghostView] superview], [b thumb]);
    EXPECT_EQ([[b thumbRed] superview], [b ghostView]);
    EXPECT_TRUE([[b thumb] clipsToBounds]);
    EXPECT_TRUE([[b ghostView] clipsToBounds]);
    EXPECT_EQ([[b subviews] lastObject], [b thumb]) << "the print is drawn over the ring";
    // The images come from the bundle.
    EXPECT_NE([[[[b circle] image] _simDescription] rangeOfString:[rings objectAtIndex:i]].location,
              (NSUInteger)NSNotFound);
    EXPECT_NE([[[[b thumb] image] _simDescription] rangeOfString:[prints objectAtIndex:i]].location,
              (NSUInteger)NSNotFound);
    EXPECT_NE([[[[b thumbRed] image] _simDescription] rangeOfString:@"thumb-red"].location, (NSUInteger)NSNotFound);
  }
  // The row draws no separator.
  for (UIView *v in [buttons subviews])
    if ([NSStringFromClass([v class]) isEqualToString:@"_UITableViewCellSeparatorView"]) EXPECT_EQ([v alpha], 0);

  // The glyphs stand in thirds of the width their row had when it was made, each 63
  // points square, 17 from the top, centred on its third's width.
  PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
  ASSERT_EQ([Glyphs(glyphs) count], 3u);
  const CGFloat third = [[[glyphs blueView] superview] frame].origin.x;
  EXPECT_GT(third, 96);
  for (NSUInteger i = 0; i < 3; i++) {
    SCOPED_TRACE(i);
    UIView *g = [Glyphs(glyphs) objectAtIndex:i];
    EXPECT_TRUE(sameRect([[g superview] frame], CGRectMake(i * third, 0, 96, 96)));
    EXPECT_EQ([[g superview] superview], Strip(glyphs));
    EXPECT_TRUE(sameRect([g frame], CGRectMake(third / 2 - 31, 17, 63, 63)));
  }
}

// A chosen button turns its ring and sweeps a red band over its print; when another is
// chosen it stops, all but the strip, and its views are back in place.
TEST_F(ButtonPageTest, AChosenButtonTurnsAndSweepsAndStopsWhenAnotherIsChosen) {
  Start();
  PSListController *page = OpenPage();
  PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
  id white = [buttons whiteButton];
  TapRow(buttons, 50);
  ASSERT_TRUE([white isAnimating]);

  NSString *ringKey = @"RotationTessarinButtonView";
  EXPECT_NSEQ(layerKeys([white circle]), @[ ringKey ]);
  CABasicAnimation *ring = (CABasicAnimation *)[[[white circle] layer] animationForKey:ringKey];
  EXPECT_NSEQ([ring keyPath], @"transform.rotation.z");
  EXPECT_NSEQ([ring fromValue], [NSNumber numberWithFloat:0]);
  EXPECT_NSEQ([ring toValue], [NSNumber numberWithFloat:6.2831855f]);
  EXPECT_EQ([ring duration], 7);
  EXPECT_TRUE(isinf([ring repeatCount]));
  EXPECT_FALSE([ring autoreverses]);
  // The strip rises while the red print inside it goes down as much: the print stays, the band sweeps.
  const struct {
    SEL view;
    float to;
  } sweeps[] = {{@selector(ghostView), -60}, {@selector(thumbRed), 60}};
  for (const auto &s : sweeps) {
    UIView *v = [white performSelector:s.view];
    EXPECT_NSEQ(layerKeys(v), @[ @"transform.translation.y" ]);
    CABasicAnimation *a = (CABasicAnimation *)[[v layer] animationForKey:@"transform.translation.y"];
    EXPECT_NSEQ([a keyPath], @"transform.translation.y");
    EXPECT_NSEQ([a fromValue], [NSNumber numberWithFloat:0]);
    EXPECT_NSEQ([a toValue], [NSNumber numberWithFloat:s.to]);
    EXPECT_EQ([a duration], 1);
    EXPECT_TRUE(isinf([a repeatCount]));
    EXPECT_TRUE([a autoreverses]);
  }

  // Views moved meanwhile (as the animations' presentation would) come back.
  [[white ghostView] setFrame:CGRectMake(0, 0, 60, 15)];
  [[white thumbRed] setFrame:CGRectMake(0, 0, 60, 60)];
  TapRow(buttons, 150);
  EXPECT_FALSE([white isAnimating]);
  EXPECT_EQ(layerKeys([white circle]), nil);
  EXPECT_EQ(layerKeys([white thumbRed]), nil);
  EXPECT_NSEQ(layerKeys([white ghostView]), @[ @"transform.translation.y" ]) << "the strip's own sweep stays";
  EXPECT_TRUE(sameRect([[white ghostView] frame], CGRectMake(0, 60, 60, 15)));
  EXPECT_TRUE(sameRect([[white thumbRed] frame], CGRectMake(0, -60, 60, 60)));

  // Chosen again while the strip still runs, it turns and sweeps again.
  TapRow(buttons, 10);
  EXPECT_NSEQ(layerKeys([white circle]), @[ ringKey ]);
  EXPECT_NSEQ(layerKeys([white thumbRed]), @[ @"transform.translation.y" ]);
}

// Taps on a third of either row: a glyph runs its chain step by step and keeps its palette,
// a button choice resets every glyph, a glyph choice stops every button; each tap posts, and
// one at a row's very left edge chooses nothing.
TEST_F(ButtonPageTest, TappingGlyphsAndButtons) {
  Start();
  PSListController *page = OpenPage();
  PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
  PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
  ASSERT_EQ([Glyphs(glyphs) count], 3u);
  unsigned posts = SimNotifyPostCount(kPrefsChanged);
  TapRow(buttons, 0);
  TapRow(glyphs, 0);
  EXPECT_EQ(StoredIconColor(), nil);
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 2);
  EXPECT_NSEQ([[glyphs blueView] _simStates], numbers({11})) << "no glyph moved";

  id red = [glyphs redView];
  TapRow(glyphs, 250);
  EXPECT_NSEQ(StoredIconColor(), @(5));
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 3);
  EXPECT_NSEQ([red _simStates], numbers({1})) << "one step at a time";
  EXPECT_NSEQ([[glyphs blueView] _simStates], numbers({11, 0})) << "the other glyphs go back to 0";
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [[red _simStates] count] == 4; }, kChainSettle));
  EXPECT_NSEQ([red _simStates], numbers({1, 8, 1, 11}));
  // Whatever PassKit set on the way, each glyph keeps its own palette: black 3, blue 2, red 1.
  const struct {
    SEL glyph;
    NSInteger style;
  } palettes[] = {{@selector(blackView), 3}, {@selector(blueView), 2}, {@selector(redView), 1}};
  for (const auto &p : palettes) {
    id g = [glyphs performSelector:p.glyph];
    EXPECT_EQ([g style], 0);
    EXPECT_TRUE(sameColour([g primaryColor], [g _primaryColorForStyle:p.style mode:0])) << p.style;
    EXPECT_TRUE(sameColour([g secondaryColor], [g _secondaryColorForStyle:p.style mode:0])) << p.style;
  }

  const struct {
    CGFloat x;
    int stored;
  } taps[] = {{50, 0}, {106, 1}, {319, 2}};
  for (const auto &t : taps) {
    TapRow(buttons, t.x);
    EXPECT_NSEQ(StoredIconColor(), @(t.stored)) << t.x;
    for (int i = 0; i < 3; i++) EXPECT_EQ([[Buttons(buttons) objectAtIndex:i] isAnimating], i == t.stored) << t.x;
    EXPECT_EQ([red state], 0) << "a button choice resets every glyph";
  }
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 6);

  TapRow(glyphs, 1);
  EXPECT_NSEQ(StoredIconColor(), @(3));
  EXPECT_NSEQ(Animating(buttons), (@[ @(NO), @(NO), @(NO) ]));
}

TEST_F(ButtonPageTest, TheChainOfAChosenGlyphWithoutTheIOS11Flag) {
  Start(nil, "iphone-touchid-ios14");
  // Start-up always sets the flag; a system without it is made by clearing it.
  flags_->iOS11 = false;
  ASSERT_TRUE(flags_->iOS8);
  PSListController *page = OpenPage();
  PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
  ASSERT_EQ([Glyphs(glyphs) count], 3u);
  // Styles 1, 1 and 0; the blue one in its fixed colours, 305a94 and 8a9bb1.
  EXPECT_EQ([[glyphs blackView] style], 1);
  EXPECT_EQ([[glyphs blueView] style], 1);
  EXPECT_EQ([[glyphs redView] style], 0);
  EXPECT_TRUE(sameColour([[glyphs blueView] primaryColor], [UIColor colorWithRed:0x30 / 255.0
                                                                           green:0x5a / 255.0
                                                                            blue:0x94 / 255.0
                                                                           alpha:1]));
  EXPECT_TRUE(sameColour([[glyphs blueView] secondaryColor], [UIColor colorWithRed:0x8a / 255.0
                                                                             green:0x9b / 255.0
                                                                              blue:0xb1 / 255.0
                                                                             alpha:1]));
  // iOS 14 is past the 10.2 list (which stops at 13): the chosen state is 6.
  EXPECT_NSEQ([[glyphs blueView] _simStates], numbers({6}));
  id red = [glyphs redView];
  TapRow(glyphs, 300);
  ASSERT_TRUE(SimRunLoopRunUntil(
      ^BOOL { return [[red _simStates] count] == 4; }, kChainSettle));
  EXPECT_NSEQ([red _simStates], numbers({1, 2, 1, 6}));
  EXPECT_NSEQ(StoredIconColor(), @(5));
  // Without the flag the hooks pass colours on: PassKit's own style-0 colours stand.
  EXPECT_TRUE(sameColour([red primaryColor], [red _primaryColorForStyle:0 mode:0]));
}

// The hooks keep the glyphs of the last glyph row made in their palettes, whatever colour
// is set on them, pass the animated flag on, and leave every other glyph the colour given.
TEST_F(ButtonPageTest, TheHooksKeepOnlyTheLastRowsGlyphsInTheirColours) {
  Start();
  PSListController *page = OpenPage();
  PSTableCell *first = Cell(page, @"TessarinGlyphIconCell");
  Class glyphClass = NSClassFromString(@"PKGlyphView");
  ASSERT_NE(glyphClass, Nil);
  UIColor *given = [UIColor greenColor];
  const struct {
    SEL glyph;
    NSInteger style;
  } samples[] = {{@selector(blackView), 3}, {@selector(blueView), 2}, {@selector(redView), 1}};
  auto expectKept = [&](PSTableCell *row, bool kept) {
    for (const auto &s : samples) {
      id g = [row performSelector:s.glyph];
      [g _setPrimaryColor:given animated:YES];
      [g _setSecondaryColor:given animated:NO];
      EXPECT_TRUE(sameColour([g primaryColor], kept ? [g _primaryColorForStyle:s.style mode:0] : given)) << s.style;
      EXPECT_TRUE(sameColour([g secondaryColor], kept ? [g _secondaryColorForStyle:s.style mode:0] : given)) << s.style;
      NSArray *changes = [g _simColorChanges];
      EXPECT_NSEQ([[changes objectAtIndex:[changes count] - 2] objectForKey:@"animated"], @(YES));
      EXPECT_NSEQ([[changes lastObject] objectForKey:@"animated"], @(NO)) << "the animated flag passes on unchanged";
    }
  };
  expectKept(first, true);
  id other = [[[glyphClass alloc] initWithStyle:2] autorelease];
  [other _setPrimaryColor:given animated:YES];
  [other setSecondaryColor:given];
  EXPECT_TRUE(sameColour([other primaryColor], given));
  EXPECT_TRUE(sameColour([other secondaryColor], given));

  // A glyph row made later takes over; the first row's glyphs keep what they are given.
  PSTableCell *later = [[[NSClassFromString(@"TessarinGlyphIconCell") alloc] initWithStyle:UITableViewCellStyleDefault
                                                                           reuseIdentifier:@"again"
                                                                                 specifier:nil] autorelease];
  expectKept(later, true);
  expectKept(first, false);
}

TEST_F(ButtonPageTest, WithoutPassKitTheGlyphRowShowsNothing) {
  if (RanAloneInANewProcess()) return;
  Start(^(NSMutableDictionary *profile) {
    [profile setObject:[NSArray arrayWithObject:@"PassKit"] forKey:@"absentFrameworks"];
  });
  PSListController *page = OpenPage();
  EXPECT_NSEQ(RowIDs(page),
              ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", @"GLYPH_GROUP", @"GLYPHS", nil]));
  PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
  EXPECT_EQ([glyphs blackView], nil);
  EXPECT_EQ(NSClassFromString(@"PKGlyphView"), Nil);
  // Taps still choose and post.
  unsigned posts = SimNotifyPostCount(kPrefsChanged);
  TapRow(glyphs, 150);
  EXPECT_NSEQ(StoredIconColor(), @(4));
  EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 1);
}
