// The Preferences stand-in: rows from a plist, groups, cells, preference writes and the
// passcode field.
#import <Preferences/PreferencesSimulation.h>
#include <CoreFoundation/CoreFoundation.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

@interface UITestSwitchCell : PSSwitchTableCell
@end
@implementation UITestSwitchCell
@end

@interface UITestPasscodeDelegate : NSObject <PSPasscodeFieldDelegate> {
  NSMutableArray *_entries;
}
@property (nonatomic, retain) NSMutableArray *entries;
@end
@implementation UITestPasscodeDelegate
@synthesize entries = _entries;
- (void)dealloc {
  [_entries release];
  [super dealloc];
}
- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode {
  [_entries addObject:passcode];
}
@end

namespace {

NSString *const kDomain = @"net.example.uitest";

class UIPreferencesTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice("iphone-faceid-ios16");
    SimSettingsReset();
    bundleDir_ = [[NSTemporaryDirectory()
        stringByAppendingPathComponent:[NSString stringWithFormat:@"uitest-%d.bundle", getpid()]] retain];
    [[NSFileManager defaultManager] createDirectoryAtPath:[bundleDir_ stringByAppendingPathComponent:@"Resources"]
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:NULL];
    NSDictionary *item = [NSDictionary
        dictionaryWithObjectsAndKeys:@"PSSwitchCell", @"cell", @"Enabled", @"label", @"ENABLED", @"id", kDomain,
                                     @"defaults", @"Enabled", @"key", [NSNumber numberWithBool:YES], @"default",
                                     @"net.example.uitest.changed", @"PostNotification", @"UITestSwitchCell",
                                     @"cellClass", @"x", @"custom", nil];
    NSArray *items = [NSArray
        arrayWithObjects:[NSDictionary dictionaryWithObjectsAndKeys:@"PSGroupCell", @"cell", @"Top", @"label",
                                                                    @"Footer", @"footerText", nil],
                         item,
                         [NSDictionary dictionaryWithObjectsAndKeys:@"PSLinkCell", @"cell", @"More", @"label",
                                                                    @"UITestNoSuchPage", @"detail", nil],
                         [NSDictionary dictionaryWithObjectsAndKeys:@"PSGroupCell", @"cell", nil],
                         [NSDictionary dictionaryWithObjectsAndKeys:@"PSButtonCell", @"cell", @"Reset", @"label",
                                                                    @"RESET", @"id", @"reset:", @"action", nil],
                         [NSDictionary dictionaryWithObjectsAndKeys:@"PSTitleValueCell", @"cell", @"Version", @"label",
                                                                    @"70", @"height", nil],
                         @"not a row", nil];
    NSDictionary *plist = [NSDictionary dictionaryWithObjectsAndKeys:items, @"items", @"Page", @"title", nil];
    [plist writeToFile:[bundleDir_ stringByAppendingPathComponent:@"Resources/Rows.plist"] atomically:YES];
    [@"not a plist" writeToFile:[bundleDir_ stringByAppendingPathComponent:@"Resources/Broken.plist"]
                     atomically:YES
                       encoding:NSUTF8StringEncoding
                          error:NULL];
  }
  void TearDown() override {
    [[NSFileManager defaultManager] removeItemAtPath:bundleDir_ error:NULL];
    [bundleDir_ release];
    SimSettingsReset();
    DeviceTest::TearDown();
  }
  NSBundle *Bundle() { return [NSBundle bundleWithPath:bundleDir_]; }

  NSString *bundleDir_ = nil;
};

}  // namespace

TEST_F(UIPreferencesTest, PlistRowsKeepTypesAndProperties) {
  PSListController *page = [[[PSListController alloc] init] autorelease];
  NSArray *rows = [page loadSpecifiersFromPlistName:@"Rows" target:page bundle:Bundle()];
  ASSERT_EQ(rows.count, 6u);  // the malformed entry is skipped
  PSCellType types[] = {PSGroupCell, PSSwitchCell, PSLinkCell, PSGroupCell, PSButtonCell, PSTitleValueCell};
  for (NSUInteger i = 0; i < rows.count; ++i) EXPECT_EQ([[rows objectAtIndex:i] cellType], types[i]) << i;
  PSSpecifier *sw = [rows objectAtIndex:1];
  EXPECT_STREQ([sw.name UTF8String], "Enabled");
  EXPECT_STREQ([sw.identifier UTF8String], "ENABLED");
  EXPECT_EQ(sw.target, page);
  EXPECT_EQ([sw propertyForKey:@"cellClass"], [UITestSwitchCell class]);
  EXPECT_STREQ([[sw propertyForKey:@"custom"] UTF8String], "x");
  EXPECT_EQ([[rows objectAtIndex:2] detailControllerClass], Nil);  // unknown class: none
  EXPECT_EQ([[rows objectAtIndex:4] buttonAction], @selector(reset:));
  EXPECT_STREQ([[[rows objectAtIndex:3] identifier] UTF8String] ?: "", "");  // no id, no name
  EXPECT_STREQ([page.title UTF8String], "Page");

  EXPECT_EQ([page loadSpecifiersFromPlistName:@"Broken" target:page bundle:Bundle()].count, 0u);
  EXPECT_EQ([page loadSpecifiersFromPlistName:@"Missing" target:page bundle:Bundle()].count, 0u);
}

TEST_F(UIPreferencesTest, GroupsMapToSectionsAndCellsCarryValues) {
  PSListController *page = [[[PSListController alloc] init] autorelease];
  page.specifiers = [page loadSpecifiersFromPlistName:@"Rows" target:page bundle:Bundle()];
  UITableView *table = (UITableView *)page.view;
  ASSERT_EQ(table, page.table);
  EXPECT_EQ(table.numberOfSections, 2);
  EXPECT_EQ([table numberOfRowsInSection:0], 2);
  EXPECT_EQ([table numberOfRowsInSection:1], 2);
  EXPECT_STREQ([[page tableView:table titleForFooterInSection:0] UTF8String], "Footer");
  PSSpecifier *version = [page specifierAtIndexPath:[NSIndexPath indexPathForRow:1 inSection:1]];
  EXPECT_STREQ([version.name UTF8String], "Version");
  EXPECT_EQ([table rectForRowAtIndexPath:[NSIndexPath indexPathForRow:1 inSection:1]].size.height, 70);

  // The switch cell is the row's class, shows the default (no stored value) and is kept on the row.
  PSSpecifier *sw = [page specifierForID:@"ENABLED"];
  UITableViewCell *cell = [table cellForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:0]];
  ASSERT_TRUE([cell isKindOfClass:[UITestSwitchCell class]]);
  EXPECT_EQ([sw propertyForKey:@"cellObject"], cell);
  EXPECT_EQ([sw propertyForKey:@"control"], [(PSSwitchTableCell *)cell control]);
  EXPECT_TRUE([(UISwitch *)[(PSSwitchTableCell *)cell control] isOn]);
  EXPECT_EQ(cell.frame.size.width, table.bounds.size.width);

  [page removeSpecifier:version];
  EXPECT_EQ([table numberOfRowsInSection:1], 1);
  [page insertSpecifier:version atIndex:0];
  EXPECT_EQ(table.numberOfSections, 3);  // a row before the first group forms its own group
}

TEST_F(UIPreferencesTest, SwitchingStoresInTheDomainAndPosts) {
  PSListController *page = [[[PSListController alloc] init] autorelease];
  page.specifiers = [page loadSpecifiersFromPlistName:@"Rows" target:page bundle:Bundle()];
  PSSpecifier *sw = [page specifierForID:@"ENABLED"];
  EXPECT_TRUE(SimListControllerTapSpecifier(page, sw));  // on -> off
  CFPreferencesAppSynchronize((CFStringRef)kDomain);
  id stored = [(id)CFPreferencesCopyAppValue(CFSTR("Enabled"), (CFStringRef)kDomain) autorelease];
  EXPECT_TRUE([stored isEqual:[NSNumber numberWithBool:NO]]);
  EXPECT_EQ(SimNotifyPostCount("net.example.uitest.changed"), 1u);
  EXPECT_TRUE([[page readPreferenceValue:sw] isEqual:[NSNumber numberWithBool:NO]]);

  [page setPreferenceValue:nil specifier:sw];  // removing the key brings the default back
  EXPECT_TRUE([[page readPreferenceValue:sw] isEqual:[NSNumber numberWithBool:YES]]);
  EXPECT_EQ(SimNotifyPostCount("net.example.uitest.changed"), 2u);
}

TEST_F(UIPreferencesTest, PasscodeFieldDeliversTheWholeEntryOnce) {
  PSPasscodeField *field = [[[PSPasscodeField alloc] initWithNumberOfEntryFields:4] autorelease];
  UITestPasscodeDelegate *delegate = [[[UITestPasscodeDelegate alloc] init] autorelease];
  delegate.entries = [NSMutableArray array];
  field.delegate = delegate;
  SimPasscodeFieldType(field, @"012");
  EXPECT_EQ(delegate.entries.count, 0u);
  SimPasscodeFieldType(field, @"34");  // the fifth digit finds the boxes full
  ASSERT_EQ(delegate.entries.count, 1u);
  EXPECT_STREQ([[delegate.entries objectAtIndex:0] UTF8String], "0123");
  EXPECT_STREQ([field.stringValue UTF8String], "0123");
  field.stringValue = @"";
  field.numberOfEntryFields = 6;
  SimPasscodeFieldType(field, @"123456");
  EXPECT_EQ(delegate.entries.count, 2u);
  EXPECT_STREQ([[delegate.entries lastObject] UTF8String], "123456");
}

TEST_F(UIPreferencesTest, FooterLinkReachesItsTarget) {
  PSListController *page = [[[PSListController alloc] init] autorelease];
  NSString *text = @"Forgot it? I forgot my passcode...";
  PSSpecifier *group = [PSSpecifier groupSpecifierWithHeader:nil footer:text];
  [group setProperty:@"PSFooterHyperlinkView" forKey:@"footerCellClass"];
  [group setProperty:text forKey:@"headerFooterHyperlinkButtonTitle"];
  [group setProperty:NSStringFromRange(NSMakeRange(text.length - 24, 23)) forKey:@"footerHyperlinkRange"];
  [group setProperty:@"reloadSpecifiers" forKey:@"footerHyperlinkAction"];
  [group setProperty:[NSValue value:&page withObjCType:@encode(id)] forKey:@"footerHyperlinkTarget"];
  page.specifiers = [NSArray arrayWithObject:group];
  UIView *footer = [page tableView:(UITableView *)page.view viewForFooterInSection:0];
  ASSERT_TRUE([footer isKindOfClass:[PSFooterHyperlinkView class]]);
  EXPECT_EQ([(PSFooterHyperlinkView *)footer target], page);
  EXPECT_EQ([(PSFooterHyperlinkView *)footer linkRange].length, 23u);
  EXPECT_TRUE(SimFooterHyperlinkTap((PSFooterHyperlinkView *)footer));
}

// An edit-text row: typing ends with the row's setter; a title-less row's text label holds
// the text once editing ended, as the device's cell does, while a titled row keeps its title.
TEST_F(UIPreferencesTest, TypingIntoAnEditRowStoresAndFillsTheLabelOfATitlelessRow) {
  PSListController *page = [[[PSListController alloc] init] autorelease];
  struct Case {
    NSString *name;
    NSString *stored;
    NSString *typed;
    NSString *labelBefore;
    NSString *labelAfter;
  };
  const Case cases[] = {
      {nil, @"Old", @"New title", @"Old", @"New title"},
      {nil, nil, @"", @"", @""},
      {@"Title", @"Old", @"Typed", @"Title", @"Title"},
  };
  for (const Case &c : cases) {
    SCOPED_TRACE(c.name ? [c.name UTF8String] : "no title");
    CFPreferencesSetAppValue(CFSTR("title"), (CFPropertyListRef)c.stored, (CFStringRef)kDomain);
    CFPreferencesAppSynchronize((CFStringRef)kDomain);
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:c.name
                                                      target:page
                                                         set:@selector(setPreferenceValue:specifier:)
                                                         get:@selector(readPreferenceValue:)
                                                      detail:Nil
                                                        cell:PSEditTextCell
                                                        edit:Nil];
    [row setProperty:kDomain forKey:@"defaults"];
    [row setProperty:@"title" forKey:@"key"];
    [row setProperty:@"TITLE" forKey:@"id"];
    page.specifiers = [NSArray arrayWithObjects:[PSSpecifier emptyGroupSpecifier], row, nil];
    PSEditableTableCell *cell = (PSEditableTableCell *)[page cachedCellForSpecifier:row];
    ASSERT_TRUE([cell isKindOfClass:[PSEditableTableCell class]]);
    EXPECT_TRUE([[[cell textLabel] text] ?: @"" isEqualToString:c.labelBefore]);
    ASSERT_TRUE(SimEditableCellType(cell, c.typed));
    EXPECT_TRUE([[[cell textLabel] text] ?: @"" isEqualToString:c.labelAfter]);
    EXPECT_TRUE([[[cell textField] text] isEqualToString:c.typed]);
    CFPreferencesAppSynchronize((CFStringRef)kDomain);
    id stored = [(id)CFPreferencesCopyAppValue(CFSTR("title"), (CFStringRef)kDomain) autorelease];
    EXPECT_TRUE([stored isEqual:c.typed]) << [[stored description] UTF8String];
  }
}
