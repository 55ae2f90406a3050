#import "lists/TessarinApplicationsController.h"

#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "lists/ListPageSupport.h"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"
#include "lists/ApplicationScan.hpp"

namespace {

namespace lists = tessarin::lists;

// The name through the bundle's "InfoPlist" table. A name of the wrong type, or an empty
// one, is not handed to the lookup as its default (for an empty default NSBundle answers
// the key itself, "CFBundleDisplayName"): it stays what it was unless the table names the
// application.
lists::InfoValue localisedName(NSBundle *bundle, const lists::InfoValue &name) {
  static NSString *const notInTable = @"\x01not in the table";
  NSString *given = name.isString() ? nsString(name.text) : nil;
  NSString *fallback = [given length] > 0 ? given : notInTable;
  NSString *localised = [bundle localizedStringForKey:@"CFBundleDisplayName" value:fallback table:@"InfoPlist"];
  if (fallback == notInTable && [localised isEqual:notInTable]) return name;
  return nameValue(localised);
}

// The candidate bundles of one source, as device paths, in directory order.
NSArray *candidatePaths(lists::AppSource source, NSString *directory) {
  NSFileManager *files = [NSFileManager defaultManager];
  NSMutableArray *paths = [NSMutableArray array];
  NSArray *entries = [files contentsOfDirectoryAtPath:devicePath(directory) error:NULL];
  for (NSString *entry in entries) {
    NSString *path = [directory stringByAppendingPathComponent:entry];
    if (!lists::holdsContainers(source)) {
      [paths addObject:path];
      continue;
    }
    for (NSString *inner in [files contentsOfDirectoryAtPath:devicePath(path) error:NULL]) {
      const char *utf8 = [inner UTF8String];
      if (utf8 != NULL && lists::isCandidateEntry(source, utf8, true))
        [paths addObject:[path stringByAppendingPathComponent:inner]];
    }
  }
  return paths;
}

lists::AllowedApplications allowedApplications() {
  id apps = [askSpringBoard(tessarin::message::kApplications) objectForKey:@"apps"];
  // Without a list every application is offered (a membership test against
  // nothing answers "found").
  if (![apps isKindOfClass:[NSArray class]]) return lists::AllowedApplications();
  std::vector<std::string> identifiers;
  for (id app in (NSArray *)apps)
    if (std::optional<std::string> text = utf8String(app)) identifiers.push_back(*text);
  return lists::AllowedApplications(std::move(identifiers));
}

}  // namespace

@implementation TessarinApplicationsController

#pragma mark - Rows

// Built once, when the page first needs its rows (the list is not scanned again while the
// page lives; the base class keeps it).
- (NSMutableArray *)listRows {
  lists::ApplicationListing listing(allowedApplications());
  NSMutableArray *rows = [NSMutableArray array];
  [rows
      addObject:footerGroup(localizedString(@"APPLICATIONS_FOOTER",
                                            @"Choose the applications that you want to protect from the list below"))];
  [rows addObject:[PSSpecifier emptyGroupSpecifier]];

  const bool containerRootExists = deviceFileExists(@(lists::kContainerRoot));
  for (lists::AppSource source : lists::kAppSources) {
    NSString *directory = nsString(lists::sourceDirectory(source, containerRootExists));
    for (NSString *path in candidatePaths(source, directory)) {
      NSBundle *bundle = [NSBundle bundleWithPath:devicePath(path)];
      if (bundle == nil) continue;
      NSDictionary *info = [bundle infoDictionary];
      lists::InfoValue name = lists::infoName(nameValue([info objectForKey:@"CFBundleDisplayName"]),
                                              nameValue([info objectForKey:@"CFBundleName"]),
                                              nameValue([info objectForKey:@"CFBundleExecutable"]));
      if (lists::localisesName(source, name)) name = localisedName(bundle, name);
      NSString *identifier = [bundle bundleIdentifier];
      std::optional<std::string> listed = listing.consider(source, name, utf8String(identifier));
      if (!listed) continue;
      PSSpecifier *row = switchRow(nsString(*listed), self, @selector(setProtectEnabled:specifier:),
                                   @selector(getProtectEnabledForSpecifier:));
      if (identifier != nil) {
        [row setProperty:identifier forKey:@"id"];
        [row setProperty:identifier forKey:@"appIDForLazyIcon"];
      }
      [row setProperty:@(YES) forKey:@"useLazyIcons"];
      [rows addObject:row];
    }
  }

  NSSortDescriptor *byName = [NSSortDescriptor sortDescriptorWithKey:@"name"
                                                           ascending:YES
                                                            selector:@selector(localizedCaseInsensitiveCompare:)];
  return [[[rows sortedArrayUsingDescriptors:@[ byName ]] mutableCopy] autorelease];
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtected;
}

// The row's identifier: the application's bundle identifier (its name for one that has none).
- (id)protectedItemForSpecifier:(PSSpecifier *)specifier {
  return [specifier identifier];
}

- (NSNumber *)getProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

- (void)setProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

@end
