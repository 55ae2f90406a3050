#import "SettingsHost.h"
#import "HostPrivateAPI.h"
#include <Simulator/Simulator.h>
#import <CoreGraphics/CoreGraphicsSimulation.h>
#include <libroot.h>
#include <limits.h>
#include <unistd.h>

static NSString *hostPath(NSString *devicePath) {
  char buffer[PATH_MAX];
  if (SimDevicePath([devicePath fileSystemRepresentation], buffer, sizeof buffer) == NULL) return nil;
  return [NSString stringWithUTF8String:buffer];
}

static NSString *jailPath(NSString *path) {
  char resolved[PATH_MAX];
  if (libroot_dyn_jbrootpath([path fileSystemRepresentation], resolved) == NULL) return path;
  return [NSString stringWithUTF8String:resolved];
}

static NSString *entryDevicePath(void) {
  return jailPath(@"/Library/PreferenceLoader/Preferences/TessarinPrefs.plist");
}

BOOL SettingsHostInstallPackage(void) {
  NSFileManager *files = [NSFileManager defaultManager];
  NSString *bundleTarget = hostPath(jailPath(@"/Library/PreferenceBundles/TessarinPrefs.bundle"));
  NSString *entryTarget = hostPath(entryDevicePath());
  if (bundleTarget == nil || entryTarget == nil) return NO;
  [files createDirectoryAtPath:[bundleTarget stringByDeletingLastPathComponent]
      withIntermediateDirectories:YES
                       attributes:nil
                            error:NULL];
  [files createDirectoryAtPath:[entryTarget stringByDeletingLastPathComponent]
      withIntermediateDirectories:YES
                       attributes:nil
                            error:NULL];
  [files removeItemAtPath:bundleTarget error:NULL];
  [files removeItemAtPath:entryTarget error:NULL];
  // The bundle is linked, not copied, so a rebuilt bundle is what the next run loads.
  BOOL linked = symlink(TESSARIN_BUNDLE_BUILD_PATH, [bundleTarget fileSystemRepresentation]) == 0;
  NSString *entrySource = @TESSARIN_LAYOUT_PATH "/Library/PreferenceLoader/Preferences/TessarinPrefs.plist";
  BOOL copied = [files copyItemAtPath:entrySource toPath:entryTarget error:NULL];
  return linked && copied;
}

pid_t SettingsHostStartSpringBoard(void) {
  NSDictionary *facts = [SimDeviceProfile() objectForKey:@"springboard"];
  id running = [facts isKindOfClass:[NSDictionary class]] ? [facts objectForKey:@"running"] : nil;
  if (running != nil && ![running boolValue]) return -1;
  return SimSpringBoardStart(TESSARIN_SPRINGBOARD_BUILD_PATH);
}

NSDictionary *SettingsHostPreferenceEntry(void) {
  NSDictionary *plist = [NSDictionary dictionaryWithContentsOfFile:hostPath(entryDevicePath())];
  id entry = [plist objectForKey:@"entry"];
  return [entry isKindOfClass:[NSDictionary class]] ? entry : nil;
}

NSBundle *SettingsHostLoadPreferenceBundle(void) {
  NSDictionary *entry = SettingsHostPreferenceEntry();
  NSString *name = [entry objectForKey:@"bundle"];
  if (![name isKindOfClass:[NSString class]]) return nil;
  NSString *bundleDevicePath = jailPath([NSString stringWithFormat:@"/Library/PreferenceBundles/%@.bundle", name]);
  NSBundle *bundle = [NSBundle bundleWithPath:hostPath(bundleDevicePath)];
  SimEventLogAppend([[@"load " stringByAppendingString:[bundleDevicePath lastPathComponent]] UTF8String]);
  if (![bundle load]) return nil;
  return bundle;
}

// The Settings app's own panes for the device's system version: the list of the newest
// system at or below it that has one (the oldest list below all of them).
static NSArray *systemPaneRows(void) {
  NSString *version = [SimDeviceProfile() objectForKey:@"systemVersion"];
  int major = [version isKindOfClass:[NSString class]] ? [version intValue] : 0;
  NSString *dir = @TESSARIN_SETTINGS_LISTS_DIR;
  NSArray *names = [[NSFileManager defaultManager] contentsOfDirectoryAtPath:dir error:NULL];
  int best = -1, oldest = -1;
  for (NSString *name in names) {
    if (![name hasPrefix:@"ios"] || ![name hasSuffix:@".plist"]) continue;
    int listed = [[name substringFromIndex:3] intValue];
    if (listed <= major && listed > best) best = listed;
    if (oldest < 0 || listed < oldest) oldest = listed;
  }
  if (best < 0) best = oldest;
  if (best < 0) return [NSArray array];
  NSDictionary *list = [NSDictionary dictionaryWithContentsOfFile:[dir stringByAppendingFormat:@"/ios%d.plist", best]];
  NSArray *rows = [list objectForKey:@"rows"];
  return [rows isKindOfClass:[NSArray class]] ? rows : [NSArray array];
}

// A system pane's icon as the Settings app draws it.
static UIImage *paneIcon(NSString *name) {
  CGFloat scale = [UIScreen mainScreen].scale > 0 ? [UIScreen mainScreen].scale : 2;
  size_t px = (size_t)(29 * scale);
  CGImageRef image = SimCGImageCreate(px, px, [@"settings:" stringByAppendingString:name], nil);
  UIImage *icon = [UIImage imageWithCGImage:image scale:scale orientation:UIImageOrientationUp];
  CGImageRelease(image);
  return icon;
}

static PSSpecifier *paneRow(NSString *label, id target, Class detail) {
  return [PSSpecifier preferenceSpecifierNamed:label
                                        target:target
                                           set:NULL
                                           get:NULL
                                        detail:detail
                                          cell:PSLinkCell
                                          edit:Nil];
}

// The row PreferenceLoader adds to the Settings list for an entry; the product's own
// entry opens its loaded bundle.
static PSSpecifier *preferenceLoaderRow(NSDictionary *entry, id target, NSBundle *bundle, BOOL product) {
  NSString *label = [entry objectForKey:@"label"];
  if (![label isKindOfClass:[NSString class]]) label = [entry objectForKey:@"bundle"];
  if (![label isKindOfClass:[NSString class]]) return nil;
  Class detail = Nil;
  if (product) {
    id detailName = [entry objectForKey:@"detail"];
    detail = [detailName isKindOfClass:[NSString class]] ? NSClassFromString(detailName) : Nil;
    if (detail == Nil) detail = [bundle principalClass];
    if (detail == Nil) return nil;
  }
  PSSpecifier *row = paneRow(label, target, detail);
  if (product) [row setProperty:label forKey:@"id"];
  for (NSString *key in @[ @"id", @"bundle", @"icon", @"isController" ]) {
    id value = [entry objectForKey:key];
    if (value != nil) [row setProperty:value forKey:key];
  }
  if (product && bundle != nil) [row setProperty:[bundle bundlePath] forKey:@"lazy-bundle"];
  return row;
}

// Every PreferenceLoader entry installed on the device, by label, the product's included.
static NSArray *preferenceLoaderRows(id target, NSBundle *bundle) {
  NSString *folder = hostPath([entryDevicePath() stringByDeletingLastPathComponent]);
  NSString *productFile = [entryDevicePath() lastPathComponent];
  NSMutableArray *rows = [NSMutableArray array];
  NSArray *names = [[[NSFileManager defaultManager] contentsOfDirectoryAtPath:folder error:NULL]
      sortedArrayUsingSelector:@selector(compare:)];
  for (NSString *name in names) {
    if (![name hasSuffix:@".plist"]) continue;
    NSDictionary *plist = [NSDictionary dictionaryWithContentsOfFile:[folder stringByAppendingPathComponent:name]];
    id entry = [plist isKindOfClass:[NSDictionary class]] ? [plist objectForKey:@"entry"] : nil;
    if (![entry isKindOfClass:[NSDictionary class]]) continue;
    PSSpecifier *row = preferenceLoaderRow(entry, target, bundle, [name isEqualToString:productFile]);
    if (row != nil) [rows addObject:row];
  }
  [rows sortUsingComparator:^NSComparisonResult(PSSpecifier *a, PSSpecifier *b) {
    return [[a name] localizedCaseInsensitiveCompare:[b name]];
  }];
  return rows;
}

// Installed applications of other makers that have settings, with their icons loaded lazily.
static NSArray *thirdPartyAppRows(id target) {
  NSMutableArray *rows = [NSMutableArray array];
  NSArray *apps = [SimDeviceProfile() objectForKey:@"apps"];
  for (NSDictionary *app in [apps isKindOfClass:[NSArray class]] ? apps : @[]) {
    if (![app isKindOfClass:[NSDictionary class]]) continue;
    NSString *identifier = [app objectForKey:@"bundleIdentifier"], *name = [app objectForKey:@"displayName"];
    if (![identifier isKindOfClass:[NSString class]] || ![name isKindOfClass:[NSString class]]) continue;
    if ([identifier hasPrefix:@"com.apple."]) continue;
    PSSpecifier *row = paneRow(name, target, Nil);
    [row setProperty:identifier forKey:@"id"];
    [row setProperty:@(YES) forKey:@"useLazyIcons"];
    [row setProperty:identifier forKey:@"appIDForLazyIcon"];
    [rows addObject:row];
  }
  return rows;
}

NSArray *SettingsHostSettingsList(id target, NSBundle *bundle) {
  NSMutableArray *rows = [NSMutableArray array];
  for (NSDictionary *item in systemPaneRows()) {
    if (![item isKindOfClass:[NSDictionary class]]) continue;
    id header = [item objectForKey:@"group"];
    if ([header isKindOfClass:[NSString class]]) {
      [rows
          addObject:[header length] ? [PSSpecifier groupSpecifierWithName:header] : [PSSpecifier emptyGroupSpecifier]];
      continue;
    }
    if ([[item objectForKey:@"preferenceLoader"] boolValue]) {
      NSArray *tweaks = preferenceLoaderRows(target, bundle);
      if ([tweaks count]) {
        [rows addObject:[PSSpecifier emptyGroupSpecifier]];
        [rows addObjectsFromArray:tweaks];
      }
      continue;
    }
    if ([[item objectForKey:@"thirdPartyApps"] boolValue]) {
      NSArray *apps = thirdPartyAppRows(target);
      if ([apps count]) {
        [rows addObject:[PSSpecifier emptyGroupSpecifier]];
        [rows addObjectsFromArray:apps];
      }
      continue;
    }
    NSString *label = [item objectForKey:@"label"];
    if (![label isKindOfClass:[NSString class]]) continue;
    PSSpecifier *row = paneRow(label, target, Nil);
    NSString *identifier = [item objectForKey:@"id"], *icon = [item objectForKey:@"icon"],
             *app = [item objectForKey:@"appID"];
    if ([identifier isKindOfClass:[NSString class]]) [row setProperty:identifier forKey:@"id"];
    if ([icon isKindOfClass:[NSString class]]) [row setProperty:paneIcon(icon) forKey:@"iconImage"];
    if ([app isKindOfClass:[NSString class]]) {
      [row setProperty:@(YES) forKey:@"useLazyIcons"];
      [row setProperty:app forKey:@"appIDForLazyIcon"];
    }
    [rows addObject:row];
  }
  return rows;
}

BOOL SettingsHostBuildSettingsApp(NSBundle *bundle) {
  if (SettingsHostPreferenceEntry() == nil) return NO;
  // A fresh app: window, root navigation controller and the Settings list.
  SimSettingsReset();
  PSRootController *root = SimSettingsRootController();
  if (root == nil || [root rootListController] == nil) return NO;
  NSArray *rows = SettingsHostSettingsList([root rootListController], bundle);
  BOOL hasProduct = NO;
  for (PSSpecifier *row in rows)
    if ([row detailControllerClass] != Nil) hasProduct = YES;
  if (!hasProduct) return NO;
  SimSettingsSetRootSpecifiers(rows);
  return YES;
}
