#import "core/BundleLookup.h"
#import "core/Paths.h"

NSBundle *tessarinBundle(void) {
  NSArray *installed = @[
    @"/bootstrap/Library/PreferenceBundles/TessarinPrefs.bundle",
    @"/var/LIB/PreferenceBundles/TessarinPrefs.bundle",
    @"/var/jb/Library/PreferenceBundles/TessarinPrefs.bundle",
  ];
  for (NSString *path in installed) {
    if (deviceFileExists(path)) {
      NSBundle *bundle = [NSBundle bundleWithPath:devicePath(path)];
      if (bundle != nil) return bundle;
    }
  }
  Class rootPage = NSClassFromString(@"TessarinPrefsListController");
  if (rootPage != Nil) return [NSBundle bundleForClass:rootPage];
  return [NSBundle bundleWithPath:devicePath(@"/Library/PreferenceBundles/TessarinPrefs.bundle")];
}

NSString *localizedString(NSString *key, NSString *fallback) {
  NSBundle *bundle = tessarinBundle();
  if (bundle == nil || key == nil) return fallback;
  return [bundle localizedStringForKey:key value:fallback table:nil];
}
