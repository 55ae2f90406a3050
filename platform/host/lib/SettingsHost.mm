#import "SettingsHost.h"
#import "HostPrivateAPI.h"
#include <Simulator/Simulator.h>
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
  [files createDirectoryAtPath:[bundleTarget stringByDeletingLastPathComponent] withIntermediateDirectories:YES
                    attributes:nil error:NULL];
  [files createDirectoryAtPath:[entryTarget stringByDeletingLastPathComponent] withIntermediateDirectories:YES
                    attributes:nil error:NULL];
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

BOOL SettingsHostBuildSettingsApp(NSBundle *bundle) {
  NSDictionary *entry = SettingsHostPreferenceEntry();
  if (entry == nil) return NO;
  NSString *label = [entry objectForKey:@"label"];
  if (![label isKindOfClass:[NSString class]]) label = [entry objectForKey:@"bundle"];
  if (![label isKindOfClass:[NSString class]]) return NO;
  id detailName = [entry objectForKey:@"detail"];
  Class detail = [detailName isKindOfClass:[NSString class]] ? NSClassFromString(detailName) : Nil;
  if (detail == Nil) detail = [bundle principalClass];
  if (detail == Nil) return NO;

  // A fresh app: window, root navigation controller and the Settings list.
  SimSettingsReset();
  PSRootController *root = SimSettingsRootController();
  if (root == nil || [root rootListController] == nil) return NO;

  // The row PreferenceLoader adds to the Settings list for a bundle entry.
  PSSpecifier *group = [PSSpecifier emptyGroupSpecifier];
  PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:label
                                                    target:[root rootListController]
                                                       set:NULL
                                                       get:NULL
                                                    detail:detail
                                                      cell:PSLinkCell
                                                      edit:Nil];
  [row setProperty:label forKey:@"id"];
  for (NSString *key in @[ @"bundle", @"icon", @"isController" ]) {
    id value = [entry objectForKey:key];
    if (value != nil) [row setProperty:value forKey:key];
  }
  if (bundle != nil) [row setProperty:[bundle bundlePath] forKey:@"lazy-bundle"];
  SimSettingsSetRootSpecifiers(@[ group, row ]);
  return YES;
}
