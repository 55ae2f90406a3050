// NSString's localized comparisons as a device compares: in the language its user chose
// (the profile's "locale", else its first "languages" entry, English when it names none),
// whatever the environment of the process that runs the simulation. GNUstep takes the
// process locale from LANG, and under C.UTF-8 its case-insensitive comparison is not
// case-insensitive at all ("MobileSMS" before "MobileSafari").
//
// As documented for iOS: localizedCompare: is compare:options:0 range:locale:[NSLocale
// currentLocale]; localizedCaseInsensitiveCompare: the same with NSCaseInsensitiveSearch;
// localizedStandardCompare: (Finder order) adds NSDiacriticInsensitiveSearch and
// NSNumericSearch.
#import <Foundation/Foundation.h>
#include <objc/runtime.h>

#import "Simulator/SimInternal.h"

namespace {

NSLocale *deviceLocale(void) {
  static NSMutableDictionary *locales;  // by identifier: profiles change between tests
  NSString *identifier = SimProfileValue(@"locale", [NSString class]);
  if ([identifier length] == 0) {
    NSArray *languages = SimProfileValue(@"languages", [NSArray class]);
    id first = [languages count] > 0 ? [languages objectAtIndex:0] : nil;
    identifier = [first isKindOfClass:[NSString class]] && [first length] > 0 ? first : @"en";
  }
  if (locales == nil) locales = [[NSMutableDictionary alloc] init];
  NSLocale *locale = [locales objectForKey:identifier];
  if (locale == nil) {
    locale = [[[NSLocale alloc] initWithLocaleIdentifier:identifier] autorelease];
    [locales setObject:locale forKey:identifier];
  }
  return locale;
}

NSComparisonResult compareInDeviceLocale(NSString *self, NSString *other, NSStringCompareOptions options) {
  return [self compare:other options:options range:NSMakeRange(0, [self length]) locale:deviceLocale()];
}

NSComparisonResult localizedCompare(NSString *self, SEL _cmd, NSString *other) {
  return compareInDeviceLocale(self, other, 0);
}

NSComparisonResult localizedCaseInsensitiveCompare(NSString *self, SEL _cmd, NSString *other) {
  return compareInDeviceLocale(self, other, NSCaseInsensitiveSearch);
}

NSComparisonResult localizedStandardCompare(NSString *self, SEL _cmd, NSString *other) {
  return compareInDeviceLocale(self, other, NSCaseInsensitiveSearch | NSDiacriticInsensitiveSearch | NSNumericSearch);
}

void replace(Class cls, const char *selector, IMP implementation) {
  Method method = class_getInstanceMethod(cls, sel_registerName(selector));
  if (method != NULL)
    method_setImplementation(method, implementation);
  else
    class_addMethod(cls, sel_registerName(selector), implementation, "i@:@");
}

}  // namespace

// Installed when the platform library loads. Names are looked up through the runtime's C
// functions: this module's selectors may not be fixed up yet.
@interface SimLocalizedCompareLoader : NSObject
@end

@implementation SimLocalizedCompareLoader
+ (void)load {
  Class string = (Class)objc_getClass("NSString");
  if (string == Nil) return;
  replace(string, "localizedCompare:", (IMP)localizedCompare);
  replace(string, "localizedCaseInsensitiveCompare:", (IMP)localizedCaseInsensitiveCompare);
  replace(string, "localizedStandardCompare:", (IMP)localizedStandardCompare);
}
@end
