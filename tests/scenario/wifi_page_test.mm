// The trusted networks page: its rows on new and old systems, the switches' reads and
// writes of the trusted list, and the password line and copy of a network's cell.
#import <UIKit/UIKit.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <notify.h>
#import "BundleFixture.h"
#include "core/SystemVersion.hpp"

namespace {

const char *const kPrefsChanged = "net.corvane.tessarin.prefsChanged";
NSString *const kUnknown = @"ff:ff:ff:ff:ff:ff";
NSString *const kHome = @"a4:2b:b0:11:22:33";
NSString *const kOffice = @"f0:9f:c2:44:55:66";
NSString *const kCafe = @"00:1a:2b:3c:4d:5e";

NSString *const kFooter =
    @"Select the WiFi network(s) on which you want to automatically disable Tessarin when connected to. For "
    @"security reasons, only already joined networks are available. If you wish to add a new network, join the "
    @"network first in order for it to appear in the list.";
NSString *const kOlderFooter =
    @"Select the WiFi network(s) on which you want to automatically disable Tessarin when connected to. For "
    @"security reasons, only already joined networks are available. If you wish to add a new network, join the "
    @"network first in order to appear in the list.";

NSDictionary *entry(NSString *bssid, NSString *ssid) { return @{@"bssid" : bssid, @"ssid" : ssid}; }

NSArray *names(NSArray *rows) {
    NSMutableArray *out = [NSMutableArray array];
    for (PSSpecifier *row in rows)
        if ([row cellType] != PSGroupCell) [out addObject:[row name]];
    return out;
}

}  // namespace

class WiFiPageTest : public BundleTest {
protected:
    void TearDown() override {
        SimRunLoopRunFor(0.1);
        SimSettingsReset();
        BundleTest::TearDown();
    }

    void Start(const char *profile = SIM_DEFAULT_PROFILE, bool withSpringBoard = true) {
        StartDevice(profile, withSpringBoard);
        auto *flags = BundleSymbol<tessarin::SystemVersionFlags *>("systemVersion");
        *flags = tessarin::systemVersionFlags([[[NSProcessInfo processInfo] operatingSystemVersionString] UTF8String]);
    }

    PSListController *OpenPage() { return OpenSettingsPane(@"TessarinWiFiController"); }

    PSSpecifier *Row(PSListController *page, NSString *name) {
        for (PSSpecifier *row in [page specifiers])
            if ([row cellType] == PSSwitchCell && [[row name] isEqualToString:name]) return row;
        ADD_FAILURE() << "no row " << [name UTF8String];
        return nil;
    }

    BOOL SwitchShown(PSListController *page, PSSpecifier *row) {
        PSControlTableCell *cell = (PSControlTableCell *)[page cachedCellForSpecifier:row];
        return [(UISwitch *)[cell control] isOn];
    }

    void Store(id value) { BundleSymbol<void (*)(id, const char *)>("setPrefsValueForKey")(value, "allowedWiFis"); }
    id Stored() { return [StoredPreferences() objectForKey:@"allowedWiFis"]; }

    // The cell of a row as it stands in the Settings window.
    UITableViewCell *ShownCell(PSListController *page, PSSpecifier *row) {
        UITableViewCell *cell = [[page table] cellForRowAtIndexPath:[page indexPathForSpecifier:row]];
        [cell layoutIfNeeded];
        return cell;
    }

    // A tap on the cell at `x` points from the window's left edge.
    void TapCellAt(UITableViewCell *cell, CGFloat x) {
        UIView *content = [cell contentView];
        CGPoint windowPoint = [content convertPoint:CGPointMake(0, content.bounds.size.height / 2) toView:nil];
        windowPoint.x = x;
        EXPECT_TRUE(SimTapView(content, [content convertPoint:windowPoint fromView:nil]));
    }

    UIAlertController *PresentedAlert(UIViewController *page, double timeout) {
        SimRunLoopRunUntil(^BOOL {
            return [[page presentedViewController] isKindOfClass:[UIAlertController class]];
        }, timeout);
        UIViewController *presented = [page presentedViewController];
        return [presented isKindOfClass:[UIAlertController class]] ? (UIAlertController *)presented : nil;
    }
};

TEST_F(WiFiPageTest, KnownNetworksMostRecentFirstUnderTheExplanation) {
    Start();
    PSListController *page = OpenPage();
    NSArray *rows = [page specifiers];
    ASSERT_EQ([rows count], 6u);
    EXPECT_EQ([[rows objectAtIndex:0] cellType], PSGroupCell);
    EXPECT_EQ([[rows objectAtIndex:0] name], nil);
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], kFooter);
    EXPECT_NSEQ([[rows objectAtIndex:1] name], @"Choose trusted WiFi networks");
    EXPECT_EQ([[rows objectAtIndex:1] propertyForKey:@"footerText"], nil);
    EXPECT_NSEQ(names(rows), (@[ @"Office-5G", @"Home Network", @"Cafe Guest", @"Hidden Lab" ]));

    PSSpecifier *office = Row(page, @"Office-5G");
    EXPECT_NSEQ([office propertyForKey:@"bssid"], kOffice);
    EXPECT_NSEQ([office propertyForKey:@"password"], @"work1234");
    EXPECT_NSEQ([office propertyForKey:@"cellClass"], NSClassFromString(@"TessarinWifiInfoCell"));
    EXPECT_EQ([office target], page);
    EXPECT_EQ([Row(page, @"Cafe Guest") propertyForKey:@"password"], nil);
    // A network without a known access point is listed all the same.
    EXPECT_NSEQ([Row(page, @"Hidden Lab") propertyForKey:@"bssid"], kUnknown);
}

TEST_F(WiFiPageTest, ANetworkWithoutBSSIDCanBeTrustedAndNothingIsPosted) {
    Start();
    PSListController *page = OpenPage();
    PSSpecifier *hidden = Row(page, @"Hidden Lab");
    EXPECT_FALSE(SwitchShown(page, hidden));
    const unsigned posts = SimNotifyPostCount(kPrefsChanged);

    ASSERT_TRUE(SimListControllerTapSpecifier(page, hidden));
    EXPECT_NSEQ(Stored(), (@[ entry(kUnknown, @"Hidden Lab") ]));
    EXPECT_TRUE(SwitchShown(page, hidden));

    ASSERT_TRUE(SimListControllerTapSpecifier(page, hidden));
    EXPECT_NSEQ(Stored(), (@[]));
    EXPECT_FALSE(SwitchShown(page, hidden));
    // The trusted list is the one setting written without the change signal.
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(WiFiPageTest, ARenamedNetworkShowsOffAndGetsASecondEntry) {
    Start();
    Store(@[ entry(kHome, @"Old name") ]);
    PSListController *page = OpenPage();
    PSSpecifier *home = Row(page, @"Home Network");
    EXPECT_FALSE(SwitchShown(page, home));

    ASSERT_TRUE(SimListControllerTapSpecifier(page, home));
    EXPECT_NSEQ(Stored(), (@[ entry(kHome, @"Old name"), entry(kHome, @"Home Network") ]));
    EXPECT_TRUE(SwitchShown(page, home));
}

TEST_F(WiFiPageTest, SwitchingOffSkipsTheEntryAfterARemoval) {
    Start();
    NSDictionary *a = entry(kOffice, @"Office-5G"), *b = entry(kHome, @"Home Network"),
                 *c = entry(kHome, @"Home (5 GHz)"), *d = entry(kCafe, @"Cafe Guest");
    Store(@[ a, b, c, d, b ]);
    PSListController *page = OpenPage();
    PSSpecifier *home = Row(page, @"Home Network");
    EXPECT_TRUE(SwitchShown(page, home));
    const unsigned posts = SimNotifyPostCount(kPrefsChanged);

    ASSERT_TRUE(SimListControllerTapSpecifier(page, home));
    // B goes with its duplicate; C, which slid into B's place, stays for this pass.
    EXPECT_NSEQ(Stored(), (@[ a, c, d ]));
    EXPECT_FALSE(SwitchShown(page, home));
    EXPECT_EQ(SimNotifyPostCount(kPrefsChanged), posts);
}

TEST_F(WiFiPageTest, ThePasswordLineAndItsCopy) {
    Start();
    PSListController *page = OpenPage();
    UITableViewCell *home = ShownCell(page, Row(page, @"Home Network"));
    ASSERT_NE([home window], nil);
    EXPECT_NSEQ([[home detailTextLabel] text], @"Pass: correct horse");
    EXPECT_EQ([[home detailTextLabel] textAlignment], NSTextAlignmentLeft);
    EXPECT_EQ([[[home detailTextLabel] font] pointSize], 12.0);
    // The name moves up by 5; the password line sits under it, as wide as the screen less 100.
    const CGRect name = [[home textLabel] frame];
    const CGRect line = [[home detailTextLabel] frame];
    EXPECT_EQ(line.origin.x, name.origin.x);
    EXPECT_EQ(line.origin.y, name.origin.y + 5 - 7 + name.size.height);
    EXPECT_EQ(line.size.width, [UIScreen mainScreen].bounds.size.width - 100);
    EXPECT_EQ(line.size.height, name.size.height - 5);

    TapCellAt(home, 200);  // the right of the screen does not copy
    EXPECT_EQ(PresentedAlert(page, 0.3), nil);
    EXPECT_FALSE([[UIPasteboard generalPasteboard] hasStrings]);

    TapCellAt(home, 199.9);
    EXPECT_NSEQ([[UIPasteboard generalPasteboard] string], @"correct horse");
    UIAlertController *alert = PresentedAlert(page, 2.0);
    ASSERT_NE(alert, nil);
    EXPECT_NSEQ([alert title], @"Tessarin Nova");
    EXPECT_NSEQ([alert message], @"Password: correct horse for network: Home Network has been copied to clipboard.");
    ASSERT_EQ([[alert actions] count], 1u);
    EXPECT_NSEQ([[[alert actions] objectAtIndex:0] title], @"Okay");
    EXPECT_EQ([[[alert actions] objectAtIndex:0] style], UIAlertActionStyleCancel);
    EXPECT_EQ([alert preferredStyle], UIAlertControllerStyleAlert);
}

TEST_F(WiFiPageTest, ANetworkWithoutPasswordShowsNoLineAndIgnoresTaps) {
    Start();
    PSListController *page = OpenPage();
    UITableViewCell *cafe = ShownCell(page, Row(page, @"Cafe Guest"));
    EXPECT_EQ([[[cafe detailTextLabel] text] length], 0u);
    EXPECT_EQ([[[cafe contentView] gestureRecognizers] count], 0u);
    TapCellAt(cafe, 20);
    EXPECT_FALSE([[UIPasteboard generalPasteboard] hasStrings]);
    EXPECT_EQ(PresentedAlert(page, 0.3), nil);
}

TEST_F(WiFiPageTest, OlderSystemsAskSpringBoard) {
    Start("iphone-ios12");
    NSArray *rows = [OpenPage() specifiers];
    ASSERT_EQ([rows count], 6u);
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], kOlderFooter);
    EXPECT_NSEQ([[rows objectAtIndex:1] name], @"Choose trusted WiFi networks");
    EXPECT_NSEQ(names(rows), (@[ @"Office-5G", @"Home Network", @"Cafe Guest", @"Hidden Lab" ]));
    EXPECT_NSEQ([[rows objectAtIndex:5] propertyForKey:@"bssid"], kUnknown);
}

TEST_F(WiFiPageTest, WithoutSpringBoardsAnswerOnlyTheGroupsShow) {
    Start("iphone-ios12", /*withSpringBoard=*/false);
    NSArray *rows = [OpenPage() specifiers];
    ASSERT_EQ([rows count], 2u);
    EXPECT_NSEQ([[rows objectAtIndex:0] propertyForKey:@"footerText"], kOlderFooter);
}
