// The Settings app's screen as a picture, checked as a person checks a screenshot: the
// picture is the screen's size at its scale, every row on screen shows its title inside the
// row and whole, nothing of a row is drawn outside it, the page's title is in the bar, and a
// switch that is on shows the system's green where an off one does not.
#import <Foundation/Foundation.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#import "HostConsoleFixture.h"
#import "HostPrivateAPI.h"
#import "SettingsConsole.h"
#import "SettingsHost.h"
#import "SettingsScreen.h"
#import "SimRender.h"

namespace {

std::string Utf8(NSString *text) { return text != nil ? [text UTF8String] : ""; }

std::string Describe(CGRect r) { return Utf8(NSStringFromCGRect(r)); }

// `inner` lies within `outer`, give or take a fraction of a point (antialiased edges).
bool Within(CGRect inner, CGRect outer, double slack = 0.5) {
  return inner.origin.x >= outer.origin.x - slack && inner.origin.y >= outer.origin.y - slack &&
         CGRectGetMaxX(inner) <= CGRectGetMaxX(outer) + slack && CGRectGetMaxY(inner) <= CGRectGetMaxY(outer) + slack;
}

struct Device {
  const char *profile;
  const char *language;
};

class ScreenPictureTest : public HostConsoleFixture {
 protected:
  void OpenIn(const Device &device) {
    english_ = std::string(device.language) == "en";
    NSString *language = [NSString stringWithUTF8String:device.language];
    StartDevice(device.profile, true, ^(NSMutableDictionary *profile) {
      [profile setObject:@[ language, @"en" ] forKey:@"languages"];
    });
    ASSERT_TRUE(SettingsHostBuildSettingsApp(SettingsHostLoadPreferenceBundle()));
    console_ = [[SettingsConsole alloc] init];
    ASSERT_TRUE([console_ openEntryNamed:@"Tessarin"]);
    screen_ = [[console_ render] UTF8String];
  }

  // What the screen shows: each row wholly on the screen shows its title once, inside the row
  // and whole; every text drawn for a row stays inside it and is not clipped (a longer detail
  // may end in an ellipsis, as the device's labels do); the page's title is in the bar above
  // the rows.
  void CheckPicture(SimScreenPicture *picture, const std::string &where) {
    SCOPED_TRACE(where);
    UIViewController *page = [[console_ screen] page];
    CGSize screen = [[UIScreen mainScreen] bounds].size;
    NSArray *texts = [picture texts];
    NSArray *rows = [picture rows];
    double firstRowTop = screen.height;
    for (NSUInteger r = 0; r < [rows count]; r++) {
      SimDrawnRow *row = [rows objectAtIndex:r];
      CGRect frame = [row frame];
      // The page's own rows (an iPad's list beside it, a page under a sheet have theirs).
      UIView *table = [[row cell] superview];
      if ([table isKindOfClass:[UITableView class]] && [(UITableView *)table dataSource] == (id)page)
        firstRowTop = fmin(firstRowTop, frame.origin.y);
      bool whole = CGRectEqualToRect(CGRectIntegral([row visibleFrame]), CGRectIntegral(frame)) &&
                   frame.origin.y >= 0 && CGRectGetMaxY(frame) <= screen.height;
      for (SimDrawnText *text in texts) {
        if ([text row] != (NSInteger)r || [[text text] length] == 0) continue;
        EXPECT_TRUE(Within([text frame], frame)) << "\"" << Utf8([text text]) << "\" at " << Describe([text frame])
                                                 << " outside its row " << Describe(frame);
        if (whole) {
          EXPECT_TRUE(Within([text frame], [text clip]))
              << "\"" << Utf8([text text]) << "\" at " << Describe([text frame]) << " is clipped by "
              << Describe([text clip]);
        }
      }
      NSString *title = [row title];
      if (!whole || [title length] == 0) continue;
      int found = 0;
      for (SimDrawnText *text in texts) {
        if ([text row] != (NSInteger)r || ![[text text] isEqualToString:title]) continue;
        found++;
        // An English title always fits its row. A translation longer than the row can hold
        // ends in an ellipsis, as the device shows it: noted for the translator.
        if (english_) {
          EXPECT_FALSE([text truncated]) << "the row's title \"" << Utf8(title) << "\" is cut";
        } else if ([text truncated]) {
          printf("[   NOTE   ] %s: \"%s\" does not fit its row and ends in an ellipsis\n", where.c_str(),
                 Utf8(title).c_str());
        }
      }
      EXPECT_EQ(found, 1) << "the row \"" << Utf8(title) << "\" at " << Describe(frame) << " does not show its title";
    }
    NSString *title = [picture title];
    bool titled = false;
    for (SimDrawnText *text in texts)
      if ([[text text] isEqualToString:title] && [text row] < 0 && CGRectGetMaxY([text frame]) <= firstRowTop)
        titled = true;
    EXPECT_TRUE(titled) << "the page's title \"" << Utf8(title) << "\" is not in its bar";
  }

  // Every page the root page's link rows open, each checked, then back to the root page.
  bool english_ = true;

  int CheckEveryPage(const std::string &where) {
    CheckPicture(SimRenderSettingsScreen(NO), where + ": root page");
    int pages = 1;
    NSUInteger count = [[[console_ screen] items] count];
    for (NSUInteger i = 1; i <= count; i++) {
      [console_ render];
      NSArray *items = [[console_ screen] items];
      if (i > [items count]) break;
      SettingsScreenItem *item = [items objectAtIndex:i - 1];
      long type = (long)[[item specifier] cellType];
      // Links and buttons open pages; a button's alert is answered with its cancel action.
      if ([item footerLink] || (type != 1 && type != 2 && type != 13)) continue;
      UIViewController *before = [[console_ screen] page];
      Run("tap " + std::to_string(i));
      [console_ render];
      if (UIAlertController *alert = [[console_ screen] alert]) {
        NSUInteger answer = [[alert actions] count];
        for (NSUInteger a = 0; a < [[alert actions] count]; a++)
          if ([(UIAlertAction *)[[alert actions] objectAtIndex:a] style] == UIAlertActionStyleCancel) answer = a + 1;
        Run("alert " + std::to_string(answer));
        continue;
      }
      if ([[console_ screen] page] == before) continue;
      NSString *title = SettingsScreenPageTitle([[console_ screen] page]);
      CheckPicture(SimRenderSettingsScreen(NO), where + ": " + Utf8(title));
      pages++;
      Run([[console_ screen] modal] != nil ? "cancel" : "back");
    }
    return pages;
  }
};

// One device (and language) per case: a bundle is loaded once per process, for one device.
class ScreenPictureOn : public ScreenPictureTest, public ::testing::WithParamInterface<Device> {};

std::string CaseName(const ::testing::TestParamInfo<Device> &info) {
  std::string name = std::string(info.param.profile) + "_" + info.param.language;
  for (char &c : name)
    if (!isalnum((unsigned char)c)) c = '_';
  return name;
}

TEST_P(ScreenPictureOn, IsTheScreensSizeAtItsScale) {
  OpenIn(GetParam());
  NSDictionary *screen = [SimDeviceProfile() objectForKey:@"screen"];
  double width = [[screen objectForKey:@"width"] doubleValue], height = [[screen objectForKey:@"height"] doubleValue];
  double scale = [[screen objectForKey:@"scale"] doubleValue];
  SimScreenPicture *picture = SimRenderSettingsScreen(NO);
  EXPECT_EQ([picture pixelWidth], (size_t)llround(width * scale));
  EXPECT_EQ([picture pixelHeight], (size_t)llround(height * scale));
  EXPECT_EQ([picture size].width, width);
  EXPECT_EQ([picture scale], scale);
}

TEST_P(ScreenPictureOn, EveryPageShowsItsRowsWholeAndInsideThem) {
  const Device &device = GetParam();
  OpenIn(device);
  std::string where = std::string(device.profile) + " " + device.language;
  EXPECT_GE(CheckEveryPage(where), 8);
}

INSTANTIATE_TEST_SUITE_P(Devices, ScreenPictureOn,
                         ::testing::Values(Device{"iphone-faceid-ios16", "en"}, Device{"iphone-faceid-ios16", "de"},
                                           Device{"iphone-touchid-ios14", "en"}, Device{"iphone-touchid-ios14", "de"},
                                           Device{"ipad-ios15", "en"}, Device{"iphone-ios12", "de"}),
                         CaseName);

class SwitchPictureOn : public ScreenPictureTest, public ::testing::WithParamInterface<Device> {};

TEST_P(SwitchPictureOn, ASwitchThatIsOnShowsTheSystemGreen) {
  OpenIn(GetParam());
  Run("tap Applications");
  // The first application's row: off, then switched on.
  ASSERT_GT([[[console_ screen] items] count], 0u);
  NSString *row = [[(SettingsScreenItem *)[[[console_ screen] items] objectAtIndex:0] specifier] name];
  SCOPED_TRACE(Utf8(row));
  // Where the track's left end is: under the knob when off, the track's colour when on.
  auto trackColour = [&](int rgb[3], UIColor **tint) {
    SimScreenPicture *picture = SimRenderSettingsScreen(NO);
    for (SimDrawnRow *drawn in [picture rows]) {
      if (![[drawn title] isEqualToString:row]) continue;
      for (SimDrawnControl *control in [picture controls]) {
        if (![[control kind] isEqualToString:@"switch"] || !Within([control frame], [drawn frame])) continue;
        CGRect f = [control frame];
        [picture getRed:&rgb[0]
                  green:&rgb[1]
                   blue:&rgb[2]
                  alpha:NULL
                atPoint:CGPointMake(f.origin.x + 6, CGRectGetMidY(f))];
        *tint = [(UISwitch *)[control view] onTintColor];
        return true;
      }
    }
    return false;
  };
  auto same = [](const int rgb[3], UIColor *colour) {
    CGFloat red = 0, green = 0, blue = 0, alpha = 0;
    [colour getRed:&red green:&green blue:&blue alpha:&alpha];
    return abs(rgb[0] - (int)lround(red * 255)) <= 6 && abs(rgb[1] - (int)lround(green * 255)) <= 6 &&
           abs(rgb[2] - (int)lround(blue * 255)) <= 6;
  };
  int rgb[3] = {0, 0, 0};
  UIColor *tint = nil;
  ASSERT_TRUE(trackColour(rgb, &tint)) << "no switch drawn in the row";
  UIColor *green = tint != nil ? tint : [UIColor systemGreenColor];
  EXPECT_FALSE(same(rgb, green)) << "an off switch shows " << rgb[0] << "," << rgb[1] << "," << rgb[2];
  std::string answer = Run("switch 1 on");
  ASSERT_TRUE(trackColour(rgb, &tint)) << answer;
  EXPECT_TRUE(same(rgb, tint != nil ? tint : [UIColor systemGreenColor]))
      << "an on switch shows " << rgb[0] << "," << rgb[1] << "," << rgb[2] << "\n"
      << answer;
}

INSTANTIATE_TEST_SUITE_P(Devices, SwitchPictureOn,
                         ::testing::Values(Device{"iphone-faceid-ios16", "en"}, Device{"iphone-touchid-ios14", "en"},
                                           Device{"iphone-ios12", "en"}),
                         CaseName);

}  // namespace
