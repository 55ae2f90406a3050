#import "lists/TessarinFoldersController.h"

#import "core/Geometry.h"
#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "lists/ListPageSupport.h"
#include "core/Names.hpp"
#include "core/PreferenceKeys.hpp"
#include "lists/FolderRows.hpp"

namespace {

namespace lists = tessarin::lists;

NSString *const kFoldersFooter =
    @"Choose the folders that you want to protect from the list below. This only protects opening the folder, not "
    @"the applications inside them. For this, use Application protection per application. If you have more than one "
    @"folder with the same name, value applies to all identical named folders.";

UIImage *newsstandImage() {
  NSBundle *springBoard = [NSBundle bundleWithPath:devicePath(@(lists::kSpringBoardBundle))];
  return imageInBundle(@(lists::kNewsstandImage), springBoard);
}

}  // namespace

@implementation TessarinFoldersController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  NSMutableArray *rows = [NSMutableArray array];
  [rows addObject:footerGroup(localizedString(@"FOLDERS_FOOTER", kFoldersFooter))];
  [rows addObject:[PSSpecifier emptyGroupSpecifier]];

  id folders = [askSpringBoard(tessarin::message::kFolders) objectForKey:@"foldersRepresentation"];
  if ([folders isKindOfClass:[NSArray class]]) {
    for (NSDictionary *folder in (NSArray *)folders) {
      if (![folder isKindOfClass:[NSDictionary class]]) continue;
      id displayName = [folder objectForKey:@"displayName"];
      PSSpecifier *row =
          switchRow([displayName isKindOfClass:[NSString class]] ? displayName : nil, self,
                    @selector(setFolderProtectEnabled:specifier:), @selector(getFolderProtectEnabledForSpecifier:));
      for (NSString *key in @[ @"defaultDisplayName", @"folderType", @"bundleIdentifiers" ]) {
        id value = [folder objectForKey:key];
        if (value != nil) [row setProperty:value forKey:key];
      }
      std::optional<std::string> name =
          lists::folderRowName(utf8String([folder objectForKey:@"folderType"]),
                               nameValue([folder objectForKey:@"defaultDisplayName"]), nameValue(displayName));
      [row setName:name ? nsString(*name) : nil];

      UIImage *picture = nil;
      if ([[folder objectForKey:@"folderType"] isEqual:@(lists::kNewsstandType)]) {
        picture = [newsstandImage() _applicationIconImageForFormat:2 precomposed:NO];
      } else {
        id content = [folder objectForKey:@"bundleIdentifiers"];
        picture = [self createIconImageWithIdentifiers:[content isKindOfClass:[NSArray class]] ? content : @[]];
      }
      if (picture != nil) [row setProperty:picture forKey:@"iconImage"];
      [rows addObject:row];
    }
  }

  // Plain, case-sensitive comparison: capital initials first.
  NSSortDescriptor *byName = [NSSortDescriptor sortDescriptorWithKey:@"name"
                                                           ascending:YES
                                                            selector:@selector(compare:)];
  _specifiers = [[rows sortedArrayUsingDescriptors:@[ byName ]] copy];
  return _specifiers;
}

- (void)viewDidAppear:(BOOL)animated {
  [super viewDidAppear:animated];
  if (_specifiers != nil) [self reloadSpecifiers];
}

- (UIImage *)createIconImageWithIdentifiers:(NSArray *)identifiers {
  const lists::PictureRect frame = lists::kFolderPictureView;
  UIView *view = [[UIView alloc] initWithFrame:cgRect(frame)];
  const double *colour = lists::kFolderPictureColour;
  [view setBackgroundColor:[UIColor colorWithRed:colour[0] green:colour[1] blue:colour[2] alpha:colour[3]]];
  [[view layer] setCornerRadius:lists::kFolderPictureCornerRadius];

  const CGFloat canvas = lists::kFolderPictureCanvas;
  UIGraphicsBeginImageContextWithOptions(CGSizeMake(canvas, canvas), NO, 0);
  size_t index = 0;
  for (id element in identifiers) {
    const bool isString = [element isKindOfClass:[NSString class]];
    id listType = isString || ![element isKindOfClass:[NSDictionary class]] ? nil : [element objectForKey:@"listType"];
    UIImage *icon = nil;
    switch (lists::folderElementKind(isString, utf8String(listType))) {
      case lists::FolderElement::Application:
        icon = [UIImage _applicationIconImageForBundleIdentifier:element
                                                          format:lists::kFolderIconFormat
                                                           scale:lists::kFolderIconScale];
        break;
      case lists::FolderElement::NewsstandList: {
        UIImage *newsstand = newsstandImage();
        const CGFloat side = lists::kNestedNewsstandIconSize;
        if (newsstand != nil) icon = resizedImage(newsstand, CGSizeMake(side, side));
        break;
      }
      case lists::FolderElement::OtherList:
        // Asked without an identifier, the platform gives no icon: the cell stays empty.
        icon = [UIImage _applicationIconImageForBundleIdentifier:nil
                                                          format:lists::kFolderIconFormat
                                                           scale:lists::kFolderIconScale];
        break;
    }
    const lists::PictureRect cell = lists::folderIconFrame(index++);
    UIImageView *iconView = [[UIImageView alloc] initWithFrame:cgRect(cell)];
    [iconView setImage:icon];
    [view addSubview:iconView];
    [iconView release];
  }
  [[view layer] renderInContext:UIGraphicsGetCurrentContext()];
  UIImage *picture = UIGraphicsGetImageFromCurrentImageContext();
  UIGraphicsEndImageContext();
  [view release];
  return picture;
}

#pragma mark - Switches

- (const tessarin::PreferenceKey *)protectedList {
  return &tessarin::key::kProtectedFolders;
}

// Folders are known by name only.
- (id)protectedItemForSpecifier:(PSSpecifier *)specifier {
  return [specifier name];
}

// Every folder of this name shows the new state.
- (void)specifier:(PSSpecifier *)specifier didSwitchProtection:(BOOL)on {
  for (PSSpecifier *other in _specifiers) {
    if (other == specifier || ![[other name] isEqual:[specifier name]]) continue;
    id control = [other propertyForKey:@"control"];
    if ([control isKindOfClass:[UISwitch class]]) [(UISwitch *)control setOn:on animated:NO];
  }
}

- (NSNumber *)getFolderProtectEnabledForSpecifier:(PSSpecifier *)specifier {
  return [self protectionOfSpecifier:specifier];
}

- (void)setFolderProtectEnabled:(NSNumber *)value specifier:(PSSpecifier *)specifier {
  [self setProtection:value ofSpecifier:specifier];
}

@end
