// The user's languages and the localisation a bundle shows them, as iOS chooses it, whatever
// the host's environment (GNUstep would take LANGUAGES, NSLanguages or the host locale):
// - the user's languages are the device profile's "languages" (AppleLanguages on iOS), most
//   preferred first, English when it names none;
// - a bundle shows the first of them it has a .lproj for, with the fallbacks iOS applies to a
//   language: its script and region dropped in turn ("zh-Hans-CN" -> "zh-Hans", "pt-BR" ->
//   "pt", "de-AT" -> "de"), Chinese scripts and regions standing for each other ("zh-Hans" and
//   "zh_CN", "zh-Hant" and "zh_TW"/"zh_HK"), Norwegian "nb" and "no" for each other, "pt" read as
//   Brazilian Portuguese, and the old folder names of Apple's first localisations ("English",
//   "German"...); when none of the user's languages matches, its development region;
// - a string table is looked for at the bundle's top, then in that one .lproj, then in the
//   development region's; only the table found is read (a key it lacks gives the value passed
//   in, not another language's text);
// - tables are UTF-8 (with or without a byte order mark) or UTF-16 with a byte order mark, in
//   the strings format or as property lists; each is read once per bundle and kept.
// This follows CFBundle's documented behaviour (CFBundleCopyPreferredLocalizationsFromArray,
// "Internationalization and Localization Guide": language and locale IDs, lproj search order).
//
// Bundles laid out as iOS lays them out (an Info.plist at their top: preference bundles, the
// system's bundles on the device) get these lookups in place of GNUstep's; GNUstep's own bundles
// (Resources/Info-gnustep.plist) keep its behaviour.
#import <Foundation/Foundation.h>
#include <Simulator/Simulator.h>
#include <objc/runtime.h>
#include <sys/stat.h>

#include <algorithm>
#include <cctype>
#include <cstring>
#include <map>
#include <mutex>
#include <string>
#include <vector>

#import "Simulator/SimInternal.h"

namespace {

std::string utf8(NSString *text) {
  const char *bytes = [text isKindOfClass:[NSString class]] ? [text UTF8String] : NULL;
  return bytes ? bytes : "";
}

std::string lowered(std::string text) {
  for (char &c : text) c = (char)std::tolower((unsigned char)c);
  return text;
}

bool isDirectory(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0 && S_ISDIR(st.st_mode);
}

bool isFile(const std::string &path) {
  struct stat st;
  return stat(path.c_str(), &st) == 0 && S_ISREG(st.st_mode);
}

// The language ID a folder or preference names, lower case with hyphens: "zh_CN" -> "zh-cn",
// "English" -> "en", "iw" -> "he".
std::string languageID(const std::string &name) {
  static const std::map<std::string, std::string> kOldNames = {
      {"english", "en"}, {"german", "de"}, {"french", "fr"}, {"japanese", "ja"}, {"spanish", "es"},
      {"italian", "it"}, {"dutch", "nl"},  {"iw", "he"},     {"in", "id"},       {"ji", "yi"},
  };
  std::string id = lowered(name);
  std::replace(id.begin(), id.end(), '_', '-');
  auto old = kOldNames.find(id);
  return old != kOldNames.end() ? old->second : id;
}

// The IDs a preferred language accepts, best first.
std::vector<std::string> acceptedIDs(const std::string &preference) {
  std::vector<std::string> parts;
  std::string id = languageID(preference), part;
  for (char c : id + "-") {
    if (c != '-') {
      part.push_back(c);
    } else if (!part.empty()) {
      parts.push_back(part);
      part.clear();
    }
  }
  std::vector<std::string> accepted;
  if (parts.empty()) return accepted;
  const std::string language = parts[0];
  std::string script, region;
  for (size_t i = 1; i < parts.size(); i++) {
    if (parts[i].size() == 4 && script.empty())
      script = parts[i];
    else if ((parts[i].size() == 2 || parts[i].size() == 3) && region.empty())
      region = parts[i];
  }
  if (language == "zh" && script.empty())
    script = (region == "tw" || region == "hk" || region == "mo") ? "hant" : "hans";
  auto add = [&](const std::string &candidate) {
    if (std::find(accepted.begin(), accepted.end(), candidate) == accepted.end()) accepted.push_back(candidate);
  };
  if (!script.empty() && !region.empty()) add(language + "-" + script + "-" + region);
  if (!region.empty()) add(language + "-" + region);
  if (!script.empty()) add(language + "-" + script);
  if (language == "zh") {
    if (script == "hans") {
      add("zh-cn");
      add("zh-sg");
    } else {
      add("zh-tw");
      add("zh-hk");
      add("zh-mo");
    }
  }
  add(language);
  if (language == "pt" && region.empty()) add("pt-br");  // plain Portuguese is Brazil's on iOS
  if (language == "nb") add("no");
  if (language == "no") add("nb");
  return accepted;
}

}  // namespace

NSArray *SimUserLanguages(void) {
  NSMutableArray *languages = [NSMutableArray array];
  for (id language in SimProfileValue(@"languages", [NSArray class])) {
    if ([language isKindOfClass:[NSString class]] && [language length] > 0 &&
        [language rangeOfString:@"/"].location == NSNotFound && ![languages containsObject:language])
      [languages addObject:language];
  }
  if ([languages count] == 0) [languages addObject:@"en"];
  return languages;
}

NSString *SimBestLocalization(NSArray *available, NSArray *preferences, NSString *developmentRegion) {
  for (NSString *preference in preferences) {
    if (![preference isKindOfClass:[NSString class]]) continue;
    for (const std::string &accepted : acceptedIDs(utf8(preference))) {
      for (NSString *localization in available)
        if (languageID(utf8(localization)) == accepted) return localization;
    }
  }
  if ([developmentRegion length] > 0) {
    const std::string region = languageID(utf8(developmentRegion));
    for (NSString *localization in available)
      if (languageID(utf8(localization)) == region) return localization;
  }
  return nil;
}

NSArray *SimBundleLocalizations(NSString *bundlePath) {
  NSMutableArray *found = [NSMutableArray array];
  NSArray *entries = [[NSFileManager defaultManager] contentsOfDirectoryAtPath:bundlePath error:NULL];
  for (NSString *entry in [entries sortedArrayUsingSelector:@selector(compare:)]) {
    if ([[entry pathExtension] isEqualToString:@"lproj"] &&
        isDirectory(utf8([bundlePath stringByAppendingPathComponent:entry])))
      [found addObject:[entry stringByDeletingPathExtension]];
  }
  return found;
}

NSArray *SimLocalizationSearchFolders(NSString *bundlePath, NSString *developmentRegion) {
  NSMutableArray *folders = [NSMutableArray arrayWithObject:bundlePath];
  NSArray *available = SimBundleLocalizations(bundlePath);
  NSString *chosen = SimBestLocalization(available, SimUserLanguages(), developmentRegion);
  NSString *region = [developmentRegion length] ? SimBestLocalization(available, @[], developmentRegion) : nil;
  for (NSString *localization in @[ chosen ?: @"", region ?: @"" ]) {
    if ([localization length] == 0) continue;
    NSString *folder =
        [bundlePath stringByAppendingPathComponent:[localization stringByAppendingPathExtension:@"lproj"]];
    if (![folders containsObject:folder]) [folders addObject:folder];
  }
  return folders;
}

NSDictionary *SimReadStringsTable(NSString *path) {
  NSData *data = [NSData dataWithContentsOfFile:path];
  if (data == nil) return nil;
  const unsigned char *bytes = (const unsigned char *)[data bytes];
  const NSUInteger length = [data length];
  id table = nil;
  if (length >= 8 && memcmp(bytes, "bplist", 6) == 0) {
    @try {  // GNUstep raises for some damaged binary plists; iOS reads them as no table
      table = [NSPropertyListSerialization propertyListWithData:data options:0 format:NULL error:NULL];
    } @catch (NSException *) {
      table = nil;
    }
  } else {
    NSString *text = nil;
    if (length >= 2 && ((bytes[0] == 0xFF && bytes[1] == 0xFE) || (bytes[0] == 0xFE && bytes[1] == 0xFF))) {
      text = [[[NSString alloc] initWithData:data encoding:NSUnicodeStringEncoding] autorelease];
    } else {
      const NSUInteger skip = length >= 3 && bytes[0] == 0xEF && bytes[1] == 0xBB && bytes[2] == 0xBF ? 3 : 0;
      text = [[[NSString alloc] initWithBytes:bytes + skip length:length - skip
                                     encoding:NSUTF8StringEncoding] autorelease];
    }
    if ([text length] > 0 && [text characterAtIndex:0] == 0xFEFF) text = [text substringFromIndex:1];
    NSString *trimmed = [text stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceAndNewlineCharacterSet]];
    @try {
      if ([trimmed hasPrefix:@"<?xml"] || [trimmed hasPrefix:@"<plist"])
        table = [NSPropertyListSerialization propertyListWithData:[text dataUsingEncoding:NSUTF8StringEncoding]
                                                          options:0
                                                           format:NULL
                                                            error:NULL];
      else if (text != nil)
        table = [text propertyListFromStringsFileFormat];
    } @catch (NSException *) {
      table = nil;
    }
  }
  if (![table isKindOfClass:[NSDictionary class]]) return nil;
  for (id key in table)
    if (![key isKindOfClass:[NSString class]] || ![[table objectForKey:key] isKindOfClass:[NSString class]]) return nil;
  return table;
}

NSLocaleLanguageDirection SimCharacterDirection(NSString *language) {
  static const char *const kRightToLeft[] = {"ar", "he", "fa", "ur", "yi", "ps", "sd", "ug", "dv", "ckb"};
  const std::string id = languageID(utf8(language));
  const std::string base = id.substr(0, id.find('-'));
  for (const char *rtl : kRightToLeft)
    if (base == rtl) return NSLocaleLanguageDirectionRightToLeft;
  return NSLocaleLanguageDirectionLeftToRight;
}

namespace {

// What a flat bundle has read: the tables by name (NSNull for a table it does not have), for
// the device and languages in use when they were read.
struct BundleStrings {
  unsigned generation = 0;
  NSMutableDictionary *tables = nil;  // retained
};

std::mutex gStringsLock;
std::map<std::string, BundleStrings> gStrings;  // by bundle path
std::map<std::string, bool> gFlat;              // by bundle path

// An iOS bundle: its Info.plist at the top (GNUstep's keep theirs in Resources/).
bool isFlatBundle(NSBundle *bundle) {
  const std::string path = utf8([bundle bundlePath]);
  if (path.empty()) return false;
  std::lock_guard<std::mutex> hold(gStringsLock);
  auto known = gFlat.find(path);
  if (known != gFlat.end()) return known->second;
  const bool flat = isFile(path + "/Info.plist") && !isFile(path + "/Resources/Info-gnustep.plist");
  gFlat[path] = flat;
  return flat;
}

NSString *developmentRegionOf(NSBundle *bundle) {
  id region = [[bundle infoDictionary] objectForKey:@"CFBundleDevelopmentRegion"];
  return [region isKindOfClass:[NSString class]] && [region length] ? region : @"en";
}

NSDictionary *stringsTable(NSBundle *bundle, NSString *name) {
  const std::string path = utf8([bundle bundlePath]);
  const unsigned generation = SimDeviceGeneration();
  {
    std::lock_guard<std::mutex> hold(gStringsLock);
    BundleStrings &strings = gStrings[path];
    if (strings.tables == nil || strings.generation != generation) {
      [strings.tables release];
      strings.tables = [[NSMutableDictionary alloc] init];
      strings.generation = generation;
    }
    id cached = [strings.tables objectForKey:name];
    if (cached != nil) return [cached isKindOfClass:[NSDictionary class]] ? [[cached retain] autorelease] : nil;
  }
  NSDictionary *table = nil;
  NSString *file = [name stringByAppendingPathExtension:@"strings"];
  for (NSString *folder in SimLocalizationSearchFolders([bundle bundlePath], developmentRegionOf(bundle))) {
    NSString *candidate = [folder stringByAppendingPathComponent:file];
    if (!isFile(utf8(candidate))) continue;
    table = SimReadStringsTable(candidate);  // a malformed table reads as none
    break;
  }
  std::lock_guard<std::mutex> hold(gStringsLock);
  [gStrings[path].tables setObject:table ?: (id)[NSNull null] forKey:name];
  return table;
}

typedef NSString *(*LocalizedStringIMP)(id, SEL, NSString *, NSString *, NSString *);
typedef id (*ObjectIMP)(id, SEL);
LocalizedStringIMP gPlatformLocalizedString;
ObjectIMP gPlatformLocalizations;
ObjectIMP gPlatformPreferredLocalizations;
ObjectIMP gPlatformDevelopmentLocalization;

NSString *simLocalizedString(id self, SEL _cmd, NSString *key, NSString *value, NSString *table) {
  if (!isFlatBundle(self))
    return gPlatformLocalizedString ? gPlatformLocalizedString(self, _cmd, key, value, table) : value;
  if (key == nil) return value ?: @"";
  id found = [stringsTable(self, [table length] ? table : @"Localizable") objectForKey:key];
  if ([found isKindOfClass:[NSString class]]) return found;
  return [value length] ? value : key;
}

id simLocalizations(id self, SEL _cmd) {
  if (!isFlatBundle(self)) return gPlatformLocalizations ? gPlatformLocalizations(self, _cmd) : nil;
  return SimBundleLocalizations([self bundlePath]);
}

id simPreferredLocalizations(id self, SEL _cmd) {
  if (!isFlatBundle(self)) return gPlatformPreferredLocalizations ? gPlatformPreferredLocalizations(self, _cmd) : nil;
  NSString *best =
      SimBestLocalization(SimBundleLocalizations([self bundlePath]), SimUserLanguages(), developmentRegionOf(self));
  return best ? [NSArray arrayWithObject:best] : [NSArray array];
}

id simDevelopmentLocalization(id self, SEL _cmd) {
  if (!isFlatBundle(self)) return gPlatformDevelopmentLocalization ? gPlatformDevelopmentLocalization(self, _cmd) : nil;
  return developmentRegionOf(self);
}

// NSLocale's answers about languages, from the device rather than the host.
id simPreferredLanguages(id self, SEL _cmd) { return SimUserLanguages(); }

NSLocaleLanguageDirection simCharacterDirection(id self, SEL _cmd, NSString *language) {
  return SimCharacterDirection(language);
}

// Replaces the class's own method (adds it when the class has none).
template <typename F>
void replace(Class cls, const char *selector, F replacement, F *previous, const char *types) {
  SEL sel = sel_registerName(selector);
  Method method = class_getInstanceMethod(cls, sel);
  if (method != NULL) {
    F old = (F)method_setImplementation(method, (IMP)replacement);
    if (previous != NULL) *previous = old;
  } else {
    class_addMethod(cls, sel, (IMP)replacement, types);
  }
}

}  // namespace

// Installed when the platform library loads; names go through the runtime's C functions.
@interface SimLocalizationLoader : NSObject
@end

@implementation SimLocalizationLoader
+ (void)load {
  Class bundle = (Class)objc_getClass("NSBundle");
  if (bundle != Nil) {
    replace<LocalizedStringIMP>(bundle, "localizedStringForKey:value:table:", simLocalizedString,
                                &gPlatformLocalizedString, "@@:@@@");
    replace<ObjectIMP>(bundle, "localizations", simLocalizations, &gPlatformLocalizations, "@@:");
    replace<ObjectIMP>(bundle, "preferredLocalizations", simPreferredLocalizations, &gPlatformPreferredLocalizations,
                       "@@:");
    replace<ObjectIMP>(bundle, "developmentLocalization", simDevelopmentLocalization, &gPlatformDevelopmentLocalization,
                       "@@:");
  }
  Class locale = (Class)objc_getClass("NSLocale");
  Class localeMeta = locale != Nil ? object_getClass((id)locale) : Nil;
  if (localeMeta != Nil) {
    replace<ObjectIMP>(localeMeta, "preferredLanguages", simPreferredLanguages, (ObjectIMP *)NULL, "@@:");
    typedef NSLocaleLanguageDirection (*DirectionIMP)(id, SEL, NSString *);
    replace<DirectionIMP>(localeMeta, "characterDirectionForLanguage:", simCharacterDirection, (DirectionIMP *)NULL,
                          "Q@:@");
  }
}
@end
