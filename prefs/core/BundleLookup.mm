#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "core/Strings.h"

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
  if ([key length] == 0) return fallback;
  NSBundle *bundle = tessarinBundle();
  if (bundle == nil) return fallback;
  return [bundle localizedStringForKey:key value:fallback table:nil];
}

NSString *localizedText(const tessarin::LocalText &text) {
  NSString *english = nsStringOrEmpty(text.english);
  if (text.key.empty()) return english;
  return localizedString(nsString(text.key), english);
}

std::string localizedCoreText(const tessarin::LocalText &text) { return stdString(localizedText(text)); }
