#import "passcode/PasscodePages.h"
#import "core/PreferenceStore.h"
#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "core/VersionFlags.h"

using tessarin::passcode::Text;
using tessarin::passcode::TextTable;

static NSString *stringFromView(std::string_view text) {
  NSString *s = [[[NSString alloc] initWithBytes:text.data() length:text.size()
                                        encoding:NSUTF8StringEncoding] autorelease];
  return s != nil ? s : @"";
}

NSString *passcodePageText(const Text &text) {
  if (text.empty()) return @"";
  NSString *key = stringFromView(text.key);
  NSString *fallback = stringFromView(text.defaultText);
  if (text.table == TextTable::Bundle) return localizedString(key, fallback);

  NSString *path = devicePath([NSString stringWithUTF8String:tessarin::passcode::kAccessibilityBundlePath]);
  NSBundle *accessibility = path != nil ? [NSBundle bundleWithPath:path] : nil;
  if (accessibility == nil) return fallback;
  NSString *table = [NSString stringWithUTF8String:tessarin::passcode::kGuidedAccessTable];
  NSString *value = [accessibility localizedStringForKey:key value:fallback table:table];
  return value != nil ? value : fallback;
}

void playPasscodeErrorSound(void) {
  UIDevice *device = [UIDevice currentDevice];
  if ([device respondsToSelector:@selector(_playSystemSound:)])
    [device _playSystemSound:tessarin::passcode::kErrorSound];
}

UINavigationController *settingsRootController(void) {
  UIApplication *application = [UIApplication sharedApplication];
  if (![application respondsToSelector:@selector(rootController)]) return nil;
  return [application rootController];
}

void scheduleSettingsPagesReload(NSTimeInterval delay) {
  if (!systemVersion.iOS8) return;
  UINavigationController *root = settingsRootController();
  if (![root respondsToSelector:@selector(rootListController)]) return;
  UIViewController *container = [[root rootListController] parentViewController];
  Class rootList = NSClassFromString([NSString stringWithUTF8String:tessarin::passcode::kRootListClassName]);
  for (UIViewController *child in [container childViewControllers]) {
    if ([child class] == rootList) continue;
    if (![child respondsToSelector:@selector(reloadSpecifiers)]) continue;
    [child performSelector:@selector(reloadSpecifiers) withObject:nil afterDelay:delay];
  }
}

UIColor *passcodeColour(const tessarin::passcode::Rgb &colour) {
  return [UIColor colorWithRed:colour.red / 255.0 green:colour.green / 255.0 blue:colour.blue / 255.0 alpha:1.0];
}

UILabel *passcodePageLabel(const tessarin::passcode::Rect &frame, NSString *text) {
  UILabel *label = [[[UILabel alloc] initWithFrame:cgRect(frame)] autorelease];
  [label setTextAlignment:NSTextAlignmentCenter];
  [label setText:text];
  [label setFont:[UIFont systemFontOfSize:tessarin::passcode::kLabelFontSize]];
  return label;
}

std::string_view passcodeEntryView(NSString *entry) {
  const char *bytes = [entry UTF8String];
  return bytes != nullptr ? std::string_view(bytes) : std::string_view();
}

NSString *storedProductPasscode(void) {
  id value = storedPreference(&tessarin::key::kPasscode);
  return [value isKindOfClass:[NSString class]] ? value : nil;
}

std::optional<std::string> passcodeText(NSString *passcode) {
  const char *bytes = [passcode UTF8String];
  if (bytes == nullptr) return std::nullopt;
  return std::string(bytes);
}
