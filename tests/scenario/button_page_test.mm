// The unlock-button page in the simulated Settings app: the rows each device gets, the
// animated buttons, PassKit's glyphs with their states and colour hooks, taps on thirds
// of either row and what they store and post.
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>
#import <Preferences/PreferencesSimulation.h>
#import <Preferences/PSSpecifier.h>
#import <Preferences/PSListController.h>
#import <Preferences/PSTableCell.h>
#import <PassKit/PassKitSimulation.h>
#import <QuartzCore/QuartzCore.h>
#include <notify.h>
#include <objc/runtime.h>
#import "BundleFixture.h"
#import "SettingsHost.h"
#include "core/SystemVersion.hpp"

@interface NSObject (ButtonPageTestViews)
// TessarinButtonIconCell / TessarinGlyphIconCell / TessarinButtonView.
- (id)whiteButton;
- (id)blackButton;
- (id)goldenButton;
- (id)blackView;
- (id)blueView;
- (id)redView;
+ (id)sharedInstance;
- (id)circle;
- (id)thumb;
- (id)thumbRed;
- (id)ghostView;
- (BOOL)isAnimating;
- (void)startAllAnimations;
- (void)stopAllAnimations;
- (NSInteger)state;
@end

namespace {

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";
// The delayed start of the stored button (2 s) with room on a loaded machine.
constexpr double kDelayedStartSettle = 3.0;
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

class ButtonPageTest : public BundleTest {
protected:
    void Start(void (^edit)(NSMutableDictionary *) = nil, const char *profile = SIM_DEFAULT_PROFILE)
    {
        StartDevice(profile, /*withSpringBoard=*/true, edit);
        // The sensor answer is kept for the process; each device asks again.
        if (BOOL *asked = BundleSymbol<BOOL *>("hasSetPearl")) *asked = NO;
        if (BOOL *pearl = BundleSymbol<BOOL *>("hasPearlCam")) *pearl = NO;
        SimSettingsReset();
        SimUIKitReset();
        ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
    }

    void TearDown() override
    {
        SimRunLoopRunFor(0.1);
        SimSettingsReset();
        BundleTest::TearDown();
    }

    // The page as the root page's "CIRCLE_COLOR" row opens it (that row exists on Touch ID
    // devices only), or pushed with a row of the same name.
    PSListController *OpenPage(bool fromRootRow = false)
    {
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
        } else {
            PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:@"Button and glyph" target:root set:NULL get:NULL
                                                              detail:pageClass cell:PSLinkCell edit:Nil];
            PSListController *page = [[[pageClass alloc] init] autorelease];
            [page setSpecifier:row];
            [SimSettingsRootController() pushViewController:page animated:NO];
            [page view];
        }
        SimRunLoopRunFor(0.5);
        PSListController *page = (PSListController *)[SimSettingsRootController() topViewController];
        EXPECT_NSEQ(NSStringFromClass([page class]), @"TessarinButtonController");
        return page;
    }

    NSArray *RowIDs(PSListController *page)
    {
        NSMutableArray *ids = [NSMutableArray array];
        for (PSSpecifier *s in [page specifiers]) {
            id rowID = [s propertyForKey:@"id"];
            [ids addObject:rowID != nil ? rowID : @"?"];
        }
        return ids;
    }

    PSTableCell *Cell(PSListController *page, NSString *className)
    {
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

    // A tap at x (y 48) in the row's 320-point container.
    void TapRow(PSTableCell *cell, CGFloat x)
    {
        UIView *container = nil;
        for (UIView *v in [[cell contentView] subviews])
            if (v.frame.size.width == 320) container = v;
        for (UIView *v in [cell subviews])
            if (v.frame.size.width == 320) container = v;
        ASSERT_NE(container, nil);
        ASSERT_TRUE(SimTapView(container, CGPointMake(x, 48)));
    }

    NSArray *Buttons(PSTableCell *cell)
    {
        return [NSArray arrayWithObjects:[cell whiteButton], [cell blackButton], [cell goldenButton], nil];
    }
    NSArray *Glyphs(PSTableCell *cell)
    {
        if ([cell blackView] == nil) return [NSArray array];
        return [NSArray arrayWithObjects:[cell blackView], [cell blueView], [cell redView], nil];
    }
    NSArray *Animating(PSTableCell *cell)
    {
        NSMutableArray *on = [NSMutableArray array];
        for (id b in Buttons(cell)) [on addObject:@([b isAnimating])];
        return on;
    }

    void StoreIconColor(id value)
    {
        auto set = BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey");
        if (set != nullptr) set(value, "IconColor");
    }
    id StoredIconColor() { return [StoredPreferences() objectForKey:@"IconColor"]; }
};

TEST_F(ButtonPageTest, ADeviceWithABiometricSensorGetsBothRowsWithALocalisedHeading)
{
    Start(nil, "iphone-touchid-ios14");
    PSListController *page = OpenPage(/*fromRootRow=*/true);
    EXPECT_NSEQ(RowIDs(page), ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", @"GLYPH_GROUP", @"GLYPHS", nil]));
    EXPECT_NSEQ([[page specifierForID:@"CHOOSE_COLOR"] name], @"Choose a color");
    EXPECT_NSEQ([page title], @"Button and glyph") << "the title is the name of the page's own row";
}

TEST_F(ButtonPageTest, ADeviceWithoutABiometricSensorLoadsTheNoGlyphRows)
{
    Start(^(NSMutableDictionary *profile) {
        [profile setObject:[NSArray array] forKey:@"ioServices"];
    });
    PSListController *page = OpenPage();
    EXPECT_NSEQ(RowIDs(page), ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", nil]));
    EXPECT_NSEQ([[page specifierForID:@"CHOOSE_COLOR"] name], @"Choose a color");
}

TEST_F(ButtonPageTest, NothingStoredShowsTheBlueGlyphAndAnimatesNoButton)
{
    Start();
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    ASSERT_EQ([Glyphs(glyphs) count], 3u);
    EXPECT_EQ([[glyphs blueView] state], 11);
    EXPECT_EQ([[glyphs blackView] state], 0);
    EXPECT_EQ([[glyphs redView] state], 0);
    SimRunLoopRunFor(kDelayedStartSettle);
    EXPECT_NSEQ(Animating(buttons), ([NSArray arrayWithObjects:@(NO), @(NO), @(NO), nil]));
    for (id b in Buttons(buttons)) EXPECT_EQ(layerKeys([b circle]), nil);
    EXPECT_EQ(StoredIconColor(), nil) << "showing writes nothing";
}

TEST_F(ButtonPageTest, TheStoredButtonStartsAfterTheDelayedStart)
{
    Start();
    StoreIconColor(@(2));
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    for (id g in Glyphs(glyphs)) EXPECT_EQ([g state], 0);
    EXPECT_NSEQ(Animating(buttons), ([NSArray arrayWithObjects:@(NO), @(NO), @(NO), nil])) << "not before 2 s";
    ASSERT_TRUE(SimRunLoopRunUntil(^BOOL { return [[buttons goldenButton] isAnimating]; }, kDelayedStartSettle + 2));
    EXPECT_NSEQ(Animating(buttons), ([NSArray arrayWithObjects:@(NO), @(NO), @(YES), nil]));

    // The three animations, their keys and values.
    id golden = [buttons goldenButton];
    NSString *ringKey = @"RotationTessarinButtonView";
    EXPECT_NSEQ(layerKeys([golden circle]), [NSArray arrayWithObject:ringKey]);
    CABasicAnimation *ring = (CABasicAnimation *)[[[golden circle] layer] animationForKey:ringKey];
    EXPECT_NSEQ([ring keyPath], @"transform.rotation.z");
    EXPECT_NSEQ([ring fromValue], [NSNumber numberWithFloat:0]);
    EXPECT_NSEQ([ring toValue], [NSNumber numberWithFloat:6.2831855f]);
    EXPECT_EQ([ring duration], 7);
    EXPECT_TRUE(isinf([ring repeatCount]));
    EXPECT_FALSE([ring autoreverses]);
    const struct {
        SEL view;
        float to;
    } sweeps[] = {{@selector(ghostView), -60}, {@selector(thumbRed), 60}};
    for (const auto &s : sweeps) {
        UIView *v = [golden performSelector:s.view];
        EXPECT_NSEQ(layerKeys(v), [NSArray arrayWithObject:@"transform.translation.y"]);
        CABasicAnimation *a = (CABasicAnimation *)[[v layer] animationForKey:@"transform.translation.y"];
        EXPECT_NSEQ([a keyPath], @"transform.translation.y");
        EXPECT_NSEQ([a fromValue], [NSNumber numberWithFloat:0]);
        EXPECT_NSEQ([a toValue], [NSNumber numberWithFloat:s.to]);
        EXPECT_EQ([a duration], 1);
        EXPECT_TRUE(isinf([a repeatCount]));
        EXPECT_TRUE([a autoreverses]);
    }
}

TEST_F(ButtonPageTest, TheButtonViewsAndTheirFrames)
{
    Start();
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    NSArray *all = Buttons(buttons);
    ASSERT_EQ([all count], 3u);
    const CGFloat thirds[] = {0, 106, 212};
    for (NSUInteger i = 0; i < 3; i++) {
        UIView *b = [all objectAtIndex:i];
        EXPECT_TRUE(sameRect([b frame], CGRectMake(18, 13, 70, 70)));
        EXPECT_TRUE(sameRect([[b superview] frame], CGRectMake(thirds[i], 0, 96, 96)));
        EXPECT_EQ([[b superview] superview].frame.size.width, 320);
        EXPECT_TRUE(sameRect([[b circle] frame], CGRectMake(0, 0, 70, 70)));
        EXPECT_TRUE(sameRect([[b thumb] frame], CGRectMake(5, 5, 60, 60)));
        EXPECT_TRUE(sameRect([[b ghostView] frame], CGRectMake(0, 60, 60, 15)));
        EXPECT_TRUE(sameRect([[b thumbRed] frame], CGRectMake(0, -60, 60, 60)));
        EXPECT_EQ([[b ghostView] superview], [b thumb]);
        EXPECT_EQ([[b thumbRed] superview], [b ghostView]);
        EXPECT_TRUE([[b thumb] clipsToBounds]);
        EXPECT_TRUE([[b ghostView] clipsToBounds]);
        EXPECT_EQ([[b subviews] lastObject], [b thumb]) << "the print is added last";
    }
    // The images come from the bundle.
    NSArray *rings = [NSArray arrayWithObjects:@"circle-white", @"circle-black", @"circle-gold", nil];
    NSArray *prints = [NSArray arrayWithObjects:@"thumb-white", @"thumb-black", @"thumb-white", nil];
    for (NSUInteger i = 0; i < 3; i++) {
        id b = [all objectAtIndex:i];
        EXPECT_TRUE([[[[b circle] image] _simDescription] rangeOfString:[rings objectAtIndex:i]].location != NSNotFound)
            << [[[[b circle] image] _simDescription] UTF8String];
        EXPECT_TRUE([[[[b thumb] image] _simDescription] rangeOfString:[prints objectAtIndex:i]].location != NSNotFound);
        EXPECT_TRUE([[[[b thumbRed] image] _simDescription] rangeOfString:@"thumb-red"].location != NSNotFound);
    }
    // The row draws no separator.
    for (UIView *v in [buttons subviews])
        if ([NSStringFromClass([v class]) isEqualToString:@"_UITableViewCellSeparatorView"]) EXPECT_EQ([v alpha], 0);
}

TEST_F(ButtonPageTest, StoppingAButtonLeavesTheStripAnimationOnAndPutsBackTheFrames)
{
    Start();
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    id white = [buttons whiteButton];
    [white startAllAnimations];
    ASSERT_TRUE([white isAnimating]);
    // Views moved meanwhile (as the animations' presentation would) come back.
    [[white ghostView] setFrame:CGRectMake(0, 0, 60, 15)];
    [[white thumbRed] setFrame:CGRectMake(0, 0, 60, 60)];
    [white stopAllAnimations];
    EXPECT_FALSE([white isAnimating]);
    EXPECT_EQ(layerKeys([white circle]), nil);
    EXPECT_EQ(layerKeys([white thumbRed]), nil);
    EXPECT_NSEQ(layerKeys([white ghostView]), [NSArray arrayWithObject:@"transform.translation.y"]);
    EXPECT_TRUE(sameRect([[white ghostView] frame], CGRectMake(0, 60, 60, 15)));
    EXPECT_TRUE(sameRect([[white thumbRed] frame], CGRectMake(0, -60, 60, 60)));
    EXPECT_TRUE(sameRect([[white circle] frame], CGRectMake(0, 0, 70, 70)));
    EXPECT_TRUE(sameRect([[white thumb] frame], CGRectMake(5, 5, 60, 60)));

    // Starting again while the strip still runs adds the ring's and the print's again.
    [white startAllAnimations];
    EXPECT_NSEQ(layerKeys([white circle]), [NSArray arrayWithObject:@"RotationTessarinButtonView"]);
    EXPECT_NSEQ(layerKeys([white thumbRed]), [NSArray arrayWithObject:@"transform.translation.y"]);
    EXPECT_NSEQ(layerKeys([white ghostView]), [NSArray arrayWithObject:@"transform.translation.y"]);
}

TEST_F(ButtonPageTest, TappingAGlyphThenAButton)
{
    Start();
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    ASSERT_EQ([Glyphs(glyphs) count], 3u);

    unsigned posts = SimNotifyPostCount(kPrefsChanged);
    TapRow(glyphs, 250);  // the red glyph
    EXPECT_NSEQ(StoredIconColor(), @(5));
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 1);
    EXPECT_EQ([[glyphs blueView] state], 0) << "the other glyphs go back to 0";
    EXPECT_EQ([[glyphs blackView] state], 0);
    ASSERT_TRUE(SimRunLoopRunUntil(^BOOL { return [[glyphs redView] state] == 11; }, kChainSettle));

    const struct {
        CGFloat x;
        int stored;
        int animating;
    } taps[] = {{50, 0, 0}, {106, 1, 1}, {319, 2, 2}};
    for (const auto &t : taps) {
        TapRow(buttons, t.x);
        EXPECT_NSEQ(StoredIconColor(), @(t.stored)) << t.x;
        for (int i = 0; i < 3; i++) EXPECT_EQ([[Buttons(buttons) objectAtIndex:i] isAnimating], i == t.animating) << t.x;
        EXPECT_EQ([[glyphs redView] state], 0) << "a button choice resets every glyph";
    }
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 4);

    // Choosing a glyph again stops every button.
    TapRow(glyphs, 10);
    EXPECT_NSEQ(StoredIconColor(), @(3));
    EXPECT_NSEQ(Animating(buttons), ([NSArray arrayWithObjects:@(NO), @(NO), @(NO), nil]));
}

TEST_F(ButtonPageTest, ATapAtTheLeftEdgeStoresNothingButPosts)
{
    Start();
    StoreIconColor(@(1));
    PSListController *page = OpenPage();
    PSTableCell *buttons = Cell(page, @"TessarinButtonIconCell");
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    unsigned posts = SimNotifyPostCount(kPrefsChanged);
    TapRow(buttons, 0);
    TapRow(glyphs, 0);
    EXPECT_NSEQ(StoredIconColor(), @(1));
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 2);
    for (id g in Glyphs(glyphs)) EXPECT_NSEQ([g _simStates], [NSArray array]) << "no glyph moved";
}

TEST_F(ButtonPageTest, TheChainOfAChosenGlyphWithTheIOS11Flag)
{
    Start();
    PSListController *page = OpenPage();
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    ASSERT_EQ([Glyphs(glyphs) count], 3u);
    id black = [glyphs blackView];
    TapRow(glyphs, 1);
    EXPECT_NSEQ([black _simStates], numbers({1})) << "one step at a time";
    ASSERT_TRUE(SimRunLoopRunUntil(^BOOL { return [[black _simStates] count] == 4; }, kChainSettle));
    EXPECT_NSEQ([black _simStates], numbers({1, 8, 1, 11}));
    // The blue glyph, chosen when the page opened, went back to 0.
    EXPECT_NSEQ([[glyphs blueView] _simStates], numbers({11, 0}));
    // Whatever PassKit set on the way, the black glyph keeps its own palette (style 3).
    EXPECT_TRUE(sameColour([black primaryColor], [black _primaryColorForStyle:3 mode:0]));
    EXPECT_TRUE(sameColour([black secondaryColor], [black _secondaryColorForStyle:3 mode:0]));
}

TEST_F(ButtonPageTest, TheChainOfAChosenGlyphWithoutTheIOS11Flag)
{
    Start(nil, "iphone-touchid-ios14");
    // Start-up always sets the flag; a system without it is made by clearing it.
    auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
    ASSERT_NE(flags, nullptr);
    flags->iOS11 = false;
    ASSERT_TRUE(flags->iOS8);
    PSListController *page = OpenPage();
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    ASSERT_EQ([Glyphs(glyphs) count], 3u);
    // Styles 1, 1 and 0; the blue one in its fixed colours.
    EXPECT_EQ([[glyphs blackView] style], 1);
    EXPECT_EQ([[glyphs blueView] style], 1);
    EXPECT_EQ([[glyphs redView] style], 0);
    // iOS 14 is past the 10.2 list (which stops at 13): the chosen state is 6.
    EXPECT_NSEQ([[glyphs blueView] _simStates], numbers({6}));
    id red = [glyphs redView];
    TapRow(glyphs, 300);
    ASSERT_TRUE(SimRunLoopRunUntil(^BOOL { return [[red _simStates] count] == 4; }, kChainSettle));
    EXPECT_NSEQ([red _simStates], numbers({1, 2, 1, 6}));
    EXPECT_NSEQ(StoredIconColor(), @(5));
    // Without the flag the hooks pass colours on: PassKit's own style-0 colours stand.
    EXPECT_TRUE(sameColour([red primaryColor], [red _primaryColorForStyle:0 mode:0]));
    flags->iOS11 = true;
}

TEST_F(ButtonPageTest, HooksKeepOnlyTheSampleGlyphsInTheirColoursAndAreInstalledOnce)
{
    Start();
    auto hookedSetter = [](Class cls) {
        return method_getImplementation(class_getInstanceMethod(cls, @selector(_setPrimaryColor:animated:)));
    };
    // Loading PassKit does not initialise the glyph class; the page's first glyph does.
    NSBundle *passKit = [NSBundle bundleWithPath:HostPathString(@"/System/Library/Frameworks/PassKit.framework")];
    ASSERT_TRUE([passKit load]);
    Class glyphClass = NSClassFromString(@"PKGlyphView");
    ASSERT_NE(glyphClass, Nil);
    IMP platformSetter = method_getImplementation(
        class_getInstanceMethod(objc_getClass("PKGlyphView"), @selector(_setPrimaryColor:animated:)));
    Dl_info info;
    ASSERT_NE(dladdr((void *)platformSetter, &info), 0);
    EXPECT_TRUE(strstr(info.dli_fname, "PassKit") != nullptr) << "not hooked before the class initialises";

    PSListController *page = OpenPage();
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    IMP installed = hookedSetter(glyphClass);
    ASSERT_NE(dladdr((void *)installed, &info), 0);
    EXPECT_TRUE(strstr(info.dli_fname, "TessarinPrefs") != nullptr) << "hooked at the first initialisation";
    // Other classes are left alone.
    EXPECT_NE(dladdr((void *)method_getImplementation(class_getInstanceMethod([UIView class], @selector(setAlpha:))),
                     &info),
              0);
    EXPECT_TRUE(strstr(info.dli_fname, "TessarinPrefs") == nullptr);

    // A glyph of the sample cell keeps its palette; any other glyph keeps the colour given.
    UIColor *given = [UIColor greenColor];
    const struct {
        SEL glyph;
        NSInteger style;
    } samples[] = {{@selector(blackView), 3}, {@selector(blueView), 2}, {@selector(redView), 1}};
    for (const auto &s : samples) {
        id g = [glyphs performSelector:s.glyph];
        [g _setPrimaryColor:given animated:YES];
        [g _setSecondaryColor:given animated:NO];
        EXPECT_TRUE(sameColour([g primaryColor], [g _primaryColorForStyle:s.style mode:0])) << s.style;
        EXPECT_TRUE(sameColour([g secondaryColor], [g _secondaryColorForStyle:s.style mode:0])) << s.style;
        NSArray *changes = [g _simColorChanges];
        EXPECT_NSEQ([[changes objectAtIndex:[changes count] - 2] objectForKey:@"animated"], @(YES));
        EXPECT_NSEQ([[changes lastObject] objectForKey:@"animated"], @(NO)) << "the animated flag passes on unchanged";
    }
    id other = [[[glyphClass alloc] initWithStyle:2] autorelease];
    [other _setPrimaryColor:given animated:YES];
    [other setSecondaryColor:given];
    EXPECT_TRUE(sameColour([other primaryColor], given));
    EXPECT_TRUE(sameColour([other secondaryColor], given));

    // More glyph cells, more glyphs: the hooks stay the ones installed the first time.
    [[[NSClassFromString(@"TessarinGlyphIconCell") alloc] initWithStyle:UITableViewCellStyleDefault
                                                        reuseIdentifier:@"again"
                                                              specifier:nil] release];
    EXPECT_EQ(hookedSetter(glyphClass), installed);
}

TEST_F(ButtonPageTest, WithoutPassKitTheGlyphRowShowsNothing)
{
    Start(^(NSMutableDictionary *profile) {
        [profile setObject:[NSArray arrayWithObject:@"PassKit"] forKey:@"absentFrameworks"];
    });
    PSListController *page = OpenPage();
    EXPECT_NSEQ(RowIDs(page), ([NSArray arrayWithObjects:@"CHOOSE_COLOR", @"UNLOCK_BUTTONS", @"GLYPH_GROUP", @"GLYPHS", nil]));
    PSTableCell *glyphs = Cell(page, @"TessarinGlyphIconCell");
    EXPECT_EQ([glyphs blackView], nil);
    EXPECT_EQ(NSClassFromString(@"PKGlyphView"), Nil);
    // Taps still choose and post.
    unsigned posts = SimNotifyPostCount(kPrefsChanged);
    TapRow(glyphs, 150);
    EXPECT_NSEQ(StoredIconColor(), @(4));
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts + 1);
}

TEST_F(ButtonPageTest, ColoursFromHexStrings)
{
    Start(nil, SIM_DEFAULT_PROFILE);
    auto colorFromHexString = BundleSymbol<UIColor *(*)(NSString *)>("colorFromHexString");
    ASSERT_NE(colorFromHexString, nullptr);
    const struct {
        NSString *text;
        CGFloat r, g, b;
    } cases[] = {
        {@"305a94", 48 / 255.0, 90 / 255.0, 148 / 255.0},
        {@"#305a94", 0, 0, 0},
        {@"0x8a9bb1", 138 / 255.0, 155 / 255.0, 177 / 255.0},
        {@"", 0, 0, 0},
        {nil, 0, 0, 0},
    };
    for (const auto &c : cases) {
        EXPECT_TRUE(sameColour(colorFromHexString(c.text), [UIColor colorWithRed:c.r green:c.g blue:c.b alpha:1]))
            << [[c.text description] UTF8String];
    }
}
