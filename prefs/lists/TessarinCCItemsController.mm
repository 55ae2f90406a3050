#import "lists/TessarinCCItemsController.h"

#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "lists/ListPageSupport.h"
#include "core/PreferenceKeys.hpp"
#include "lists/ControlCenterItems.hpp"

namespace {

namespace lists = tessarin::lists;

// Set only while the six connectivity glyph rows are made: roundedImage: then
// turns the glyph white on transparent.
BOOL whiteTint = NO;

UIImage *imageIn(std::string_view name, NSBundle *bundle) {
  if (bundle == nil) return nil;
  return imageInBundle(nsString(name), bundle);
}

}  // namespace

@implementation TessarinCCItemsController

#pragma mark - Rows

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  NSMutableArray *rows = [NSMutableArray array];
  [rows addObject:footerGroup(localizedString(
                      @"CONTROLCENTER_FOOTER",
                      @"Choose the Control Center items that you want to protect from the list below"))];
  [rows addObject:[PSSpecifier emptyGroupSpecifier]];

  if (lists::controlCenterLayout(deviceFileExists(@(lists::kSystemModulesDirectory))) == lists::CCLayout::Modular) {
    [self addConnectivityRowsTo:rows];
    [rows addObject:[PSSpecifier emptyGroupSpecifier]];
    [self addModulesIn:@(lists::kSystemModulesDirectory) to:rows];
    if (lists::listsAddOnModules(deviceFileExists(@(lists::kAddOnModulesDirectory)),
                                 deviceFileExists(@(lists::kCCSupportLibrary)))) {
      [rows addObject:[PSSpecifier emptyGroupSpecifier]];
      [self addModulesIn:@(lists::kAddOnModulesDirectory) to:rows];
    }
  } else {
    NSBundle *springBoard = deviceBundle(lists::kSpringBoardApp);
    NSBundle *controlCenterUI = deviceBundle(lists::kControlCenterUIFramework);
    for (const lists::CCTableRow &item : lists::kClassicRows) {
      UIImage *glyph = imageIn(item.image, springBoard);
      if (glyph == nil) glyph = imageIn(item.image, controlCenterUI);
      PSSpecifier *row = switchRow(localizedText(item.title), self, @selector(setCCItemProtectEnabled:specifier:),
                                   @selector(getCCItemProtectEnabledForSpecifier:));
      [row setProperty:nsString(item.identifier) forKey:@"id"];
      if (glyph != nil) {
        UIImage *icon = resizedImage(glyph, CGSizeMake(lists::kClassicGlyphWidth, lists::kClassicGlyphHeight));
        if (icon != nil) [row setProperty:icon forKey:@"iconImage"];
      }
      [rows addObject:row];
    }
  }
  _specifiers = [rows copy];
  return _specifiers;
}

- (void)addConnectivityRowsTo:(NSMutableArray *)rows {
  const bool settingsIcons = imageIn(lists::kConnectivityProbeImage, deviceBundle(lists::kPreferencesFramework)) != nil;
  whiteTint = settingsIcons ? NO : YES;
  for (const lists::CCTableRow &item :
       settingsIcons ? lists::kConnectivitySettingsIconRows : lists::kConnectivityGlyphRows) {
    UIImage *image = imageIn(item.image, deviceBundle(item.bundle));
    if (!settingsIcons) image = [image imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    PSSpecifier *row = [self newSpecifierWithName:localizedText(item.title)
                                            andID:nsString(item.identifier)
                                         andImage:image];
    [rows addObject:row];
    [row release];
  }
  whiteTint = NO;
}

- (void)addModulesIn:(NSString *)directory to:(NSMutableArray *)rows {
  for (NSString *entry in [[NSFileManager defaultManager] contentsOfDirectoryAtPath:devicePath(directory) error:NULL]) {
    const char *name = [entry UTF8String];
    if (name == NULL || lists::isSkippedModule(name)) continue;
    NSBundle *module = [NSBundle bundleWithPath:devicePath([NSString stringWithFormat:@"%@/%@", directory, entry])];
    NSDictionary *info = [module infoDictionary];
    std::optional<std::string> title =
        lists::moduleTitle(name, utf8String([info objectForKey:@"CFBundleDisplayName"]),
                           utf8String([info objectForKey:@"CFBundleName"]), localizedCoreText);
    PSSpecifier *row = [self newSpecifierWithName:title ? nsString(*title) : nil
                                            andID:[module bundleIdentifier]
                                         andImage:imageIn(lists::moduleImageName(name), module)];
    [rows addObject:row];
    [row release];
  }
}

- (PSSpecifier *)newSpecifierWithName:(NSString *)name andID:(NSString *)identifier andImage:(UIImage *)image {
  PSSpecifier *row = switchRow(name, self, @selector(setCCItemProtectEnabled:specifier:),
                               @selector(getCCItemProtectEnabledForSpecifier:));
  if (identifier != nil) [row setProperty:identifier forKey:@"id"];
  UIImage *icon = [self roundedImage:image];
  if (icon != nil) [row setProperty:icon forKey:@"iconImage"];
  return [row retain];
}

- (UIImage *)roundedImage:(UIImage *)image {
  if (image == nil) image = [UIImage _applicationIconImageForBundleIdentifier:nil format:0];
  if (image == nil) return nil;
  const CGSize size = [image size];
  const CGRect whole = CGRectMake(0, 0, size.width, size.height);
  UIGraphicsBeginImageContextWithOptions(size, NO, [[UIScreen mainScreen] scale]);
  [[UIBezierPath bezierPathWithRoundedRect:whole cornerRadius:lists::kRoundedIconRadius] addClip];
  [image drawInRect:whole];
  if (whiteTint) {
    CGContextRef context = UIGraphicsGetCurrentContext();
    CGContextSetBlendMode(context, (CGBlendMode)lists::kWhiteTintBlendMode);
    [[UIColor whiteColor] setFill];
    CGContextFillRect(context, whole);
  }
  UIImage *rounded = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  return rounded;
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtectedCCItems;
}

- (NSNumber *)getCCItemProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

- (void)setCCItemProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

@end
