// The user's language on the simulated device: which .lproj a bundle shows, how its tables
// are read, and the layout direction that follows from the language.
#import <Foundation/Foundation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

namespace {

class LocalizationTest : public DeviceTest {
 protected:
  void SetUp() override {
    DeviceTest::SetUp();
    UseDevice("iphone-faceid-ios16");
  }

  // A preference bundle laid out as iOS lays it out, with the given tables: folder -> table
  // name -> file contents.
  NSBundle *MakeBundle(NSString *name, NSDictionary *folders) {
    NSString *top = HostPathString([NSString stringWithFormat:@"/var/jb/Library/PreferenceBundles/%@.bundle", name]);
    NSFileManager *files = [NSFileManager defaultManager];
    [files createDirectoryAtPath:top withIntermediateDirectories:YES attributes:nil error:NULL];
    [@{@"CFBundleIdentifier" : [@"net.test." stringByAppendingString:name], @"CFBundleDevelopmentRegion" : @"English"}
        writeToFile:[top stringByAppendingPathComponent:@"Info.plist"]
         atomically:YES];
    for (NSString *folder in folders) {
      NSString *dir = [folder length] ? [top stringByAppendingPathComponent:folder] : top;
      [files createDirectoryAtPath:dir withIntermediateDirectories:YES attributes:nil error:NULL];
      NSDictionary *tables = [folders objectForKey:folder];
      for (NSString *table in tables)
        [[tables objectForKey:table] writeToFile:[dir stringByAppendingPathComponent:table] atomically:YES];
    }
    return [NSBundle bundleWithPath:top];
  }
};

NSData *Utf8(NSString *text) { return [text dataUsingEncoding:NSUTF8StringEncoding]; }

NSData *Utf16WithMark(NSString *text) {
  NSMutableData *data = [NSMutableData dataWithBytes:"\xFF\xFE" length:2];
  [data appendData:[text dataUsingEncoding:NSUTF16LittleEndianStringEncoding]];
  return data;
}

NSData *Utf8WithMark(NSString *text) {
  NSMutableData *data = [NSMutableData dataWithBytes:"\xEF\xBB\xBF" length:3];
  [data appendData:Utf8(text)];
  return data;
}

}  // namespace

TEST(Localization, TheFirstLanguageABundleHasWinsWithIOSFallbacks) {
  struct Case {
    NSArray *available;
    NSArray *preferences;
    NSString *region;
    NSString *expected;
  } cases[] = {
      {@[ @"en", @"pt", @"pt-PT" ], @[ @"pt-BR" ], @"en", @"pt"},
      {@[ @"en", @"pt", @"pt-PT" ], @[ @"pt-PT" ], @"en", @"pt-PT"},
      {@[ @"en", @"pt_PT" ], @[ @"pt-PT" ], @"en", @"pt_PT"},
      {@[ @"en", @"pt" ], @[ @"pt-PT" ], @"en", @"pt"},
      {@[ @"en", @"pt-BR" ], @[ @"pt" ], @"en", @"pt-BR"},
      {@[ @"zh-Hant", @"zh-Hans", @"en" ], @[ @"zh-Hans-CN" ], @"en", @"zh-Hans"},
      {@[ @"zh_CN", @"zh_TW", @"en" ], @[ @"zh-Hans-CN" ], @"en", @"zh_CN"},
      {@[ @"zh-Hant", @"zh_HK", @"en" ], @[ @"zh-Hant-HK" ], @"en", @"zh_HK"},
      {@[ @"zh-Hant", @"zh-Hans" ], @[ @"zh-Hant-TW" ], @"en", @"zh-Hant"},
      {@[ @"zh-Hans", @"zh-Hant" ], @[ @"zh-TW" ], @"en", @"zh-Hant"},
      {@[ @"no", @"en" ], @[ @"nb-NO" ], @"en", @"no"},
      {@[ @"nb", @"en" ], @[ @"no" ], @"en", @"nb"},
      {@[ @"English", @"German" ], @[ @"de-AT" ], @"English", @"German"},
      {@[ @"en", @"de" ], @[ @"en-GB" ], @"en", @"en"},
      {@[ @"iw", @"en" ], @[ @"he-IL" ], @"en", @"iw"},
      {@[ @"en", @"fr", @"de" ], @[ @"it", @"fr-CA", @"de" ], @"en", @"fr"},  // the first that matches
      {@[ @"en", @"de" ], @[ @"ja", @"ko" ], @"English", @"en"},              // the development region
      {@[ @"de" ], @[ @"ja" ], @"en", nil},
      {@[], @[ @"en" ], @"en", nil},
  };
  int n = 0;
  for (const Case &c : cases) {
    EXPECT_NSEQ(SimBestLocalization(c.available, c.preferences, c.region), c.expected) << n;
    n++;
  }
}

TEST_F(LocalizationTest, ChoosingALanguagePutsItFirst) {
  EXPECT_NSEQ(SimUserLanguages(), @[ @"en" ]);
  ASSERT_EQ(SimDeviceChooseLanguage("de"), 0);
  EXPECT_NSEQ(SimUserLanguages(), (@[ @"de", @"en" ]));
  ASSERT_EQ(SimDeviceChooseLanguage("ja"), 0);
  EXPECT_NSEQ([NSLocale preferredLanguages], (@[ @"ja", @"de", @"en" ]));
  ASSERT_EQ(SimDeviceChooseLanguage("en"), 0);
  EXPECT_NSEQ(SimUserLanguages(), (@[ @"en", @"ja", @"de" ]));
  EXPECT_EQ(SimDeviceChooseLanguage(""), -1);
}

// Tables as iOS reads them: UTF-8 with or without a mark, UTF-16 with one; only the table of
// the chosen language; the development region's when the language has no table of that name.
TEST_F(LocalizationTest, FlatBundlesReadTheChosenLanguagesTables) {
  ASSERT_EQ(SimDeviceChooseLanguage("de"), 0);
  ASSERT_EQ(SimDeviceChooseLanguage("fr-CA"), 0);  // fr-CA, de, en: no French here
  NSBundle *bundle = MakeBundle(
      @"Strings", @{
        @"en.lproj" : @{
          @"Localizable.strings" : Utf8(@"\"A\" = \"en A\";\n\"B\" = \"en B\";"),
          @"Page.strings" : Utf8(@"\"Title\" = \"en title\";")
        },
        @"de.lproj" : @{
          @"Localizable.strings" : Utf16WithMark(@"\"A\" = \"Übersicht\";"),
          @"Marked.strings" : Utf8WithMark(@"/* c */ \"M\" = \"mit Marke\";"),
          @"Broken.strings" : Utf8(@"\"M\" = \"unterminated;")
        },
        @"ja.lproj" : @{@"Localizable.strings" : Utf8(@"\"A\" = \"概要\";")},
      });
  ASSERT_NE(bundle, nil);
  EXPECT_NSEQ([bundle preferredLocalizations], @[ @"de" ]);
  EXPECT_NSEQ([bundle localizations], (@[ @"de", @"en", @"ja" ]));
  EXPECT_NSEQ([bundle localizedStringForKey:@"A" value:@"fallback" table:nil], @"Übersicht");
  EXPECT_NSEQ([bundle localizedStringForKey:@"B" value:@"fallback" table:nil], @"fallback");  // not English's
  EXPECT_NSEQ([bundle localizedStringForKey:@"B" value:nil table:nil], @"B");
  EXPECT_NSEQ([bundle localizedStringForKey:@"Title" value:@"x" table:@"Page"], @"en title");
  EXPECT_NSEQ([bundle localizedStringForKey:@"M" value:@"x" table:@"Marked"], @"mit Marke");
  EXPECT_NSEQ([bundle localizedStringForKey:@"M" value:@"x" table:@"Broken"], @"x");
  EXPECT_NSEQ([bundle localizedStringForKey:@"A" value:@"x" table:@"Missing"], @"x");

  // A table is read once: what changes on disk afterwards is not seen.
  [Utf8(@"\"A\" = \"changed\";")
      writeToFile:[[bundle bundlePath] stringByAppendingPathComponent:@"de.lproj/Localizable.strings"]
       atomically:YES];
  EXPECT_NSEQ([bundle localizedStringForKey:@"A" value:@"fallback" table:nil], @"Übersicht");
}

TEST_F(LocalizationTest, ALanguageNoBundleHasShowsTheDevelopmentRegion) {
  ASSERT_EQ(SimDeviceChooseLanguage("ko"), 0);
  NSBundle *bundle = MakeBundle(
      @"Korean", @{
        @"en.lproj" : @{@"Localizable.strings" : Utf8(@"\"A\" = \"en A\";")},
        @"de.lproj" : @{@"Localizable.strings" : Utf8(@"\"A\" = \"de A\";")},
      });
  EXPECT_NSEQ([bundle localizedStringForKey:@"A" value:@"x" table:nil], @"en A");
  EXPECT_NSEQ([bundle developmentLocalization], @"English");
}

TEST_F(LocalizationTest, LayoutDirectionFollowsTheFirstLanguage) {
  EXPECT_EQ([[UIApplication sharedApplication] userInterfaceLayoutDirection],
            UIUserInterfaceLayoutDirectionLeftToRight);
  EXPECT_EQ([NSLocale characterDirectionForLanguage:@"ar"], NSLocaleLanguageDirectionRightToLeft);
  EXPECT_EQ([NSLocale characterDirectionForLanguage:@"he-IL"], NSLocaleLanguageDirectionRightToLeft);
  EXPECT_EQ([NSLocale characterDirectionForLanguage:@"de"], NSLocaleLanguageDirectionLeftToRight);

  ASSERT_EQ(SimDeviceChooseLanguage("ar"), 0);
  EXPECT_EQ([[UIApplication sharedApplication] userInterfaceLayoutDirection],
            UIUserInterfaceLayoutDirectionRightToLeft);
  UIView *view = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 10, 10)] autorelease];
  EXPECT_EQ([view effectiveUserInterfaceLayoutDirection], UIUserInterfaceLayoutDirectionRightToLeft);
  [view setSemanticContentAttribute:UISemanticContentAttributePlayback];
  EXPECT_EQ([view effectiveUserInterfaceLayoutDirection], UIUserInterfaceLayoutDirectionLeftToRight);
  [view setSemanticContentAttribute:UISemanticContentAttributeForceRightToLeft];
  EXPECT_EQ([UIView userInterfaceLayoutDirectionForSemanticContentAttribute:UISemanticContentAttributeForceRightToLeft
                                                  relativeToLayoutDirection:UIUserInterfaceLayoutDirectionLeftToRight],
            UIUserInterfaceLayoutDirectionRightToLeft);
}

// Right to left a cell is laid out mirrored: the text starts at the right, the accessory is on the left.
TEST_F(LocalizationTest, CellsAreMirroredRightToLeft) {
  CGRect text[2], accessory[2];
  for (int rtl = 0; rtl < 2; rtl++) {
    if (rtl) ASSERT_EQ(SimDeviceChooseLanguage("he"), 0);
    UITableViewCell *cell = [[[UITableViewCell alloc] initWithStyle:UITableViewCellStyleValue1
                                                    reuseIdentifier:nil] autorelease];
    cell.frame = CGRectMake(0, 0, 320, 44);
    cell.textLabel.text = @"Name";
    cell.detailTextLabel.text = @"Value";
    UIView *control = [[[UIView alloc] initWithFrame:CGRectMake(0, 0, 51, 31)] autorelease];
    cell.accessoryView = control;
    [cell layoutSubviews];
    text[rtl] = [cell.textLabel convertRect:cell.textLabel.bounds toView:cell];
    accessory[rtl] = control.frame;
  }
  EXPECT_EQ(CGRectGetMinX(text[1]), 320 - CGRectGetMaxX(text[0]));
  EXPECT_EQ(CGRectGetMinX(accessory[1]), 320 - CGRectGetMaxX(accessory[0]));
  EXPECT_LT(CGRectGetMaxX(accessory[1]), CGRectGetMinX(text[1]));
}
