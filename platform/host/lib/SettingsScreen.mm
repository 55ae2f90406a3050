#import "SettingsScreen.h"
#import "SettingsIconRows.h"
#import "HostPrivateAPI.h"
#include <objc/runtime.h>

// Cell types of the Preferences framework, by number.
enum : long {
  kGroupCell = 0,
  kLinkCell = 1,
  kLinkListCell = 2,
  kListItemCell = 3,
  kTitleValueCell = 4,
  kSliderCell = 5,
  kSwitchCell = 6,
  kStaticTextCell = 7,
  kEditTextCell = 8,
  kSegmentCell = 9,
  kSecureEditTextCell = 12,
  kButtonCell = 13,
};

static const NSUInteger kScreenWidth = 78;

#pragma mark - Text helpers

// Columns a character takes in a terminal: none for combining marks and invisible format
// characters, two for East Asian wide and full-width characters, one otherwise.
static NSUInteger columnsOf(unichar high, unichar low) {
  unsigned long c = high;
  if (high >= 0xD800 && high <= 0xDBFF && low >= 0xDC00 && low <= 0xDFFF)
    c = 0x10000 + ((unsigned long)(high - 0xD800) << 10) + (low - 0xDC00);
  if ((c >= 0x0300 && c <= 0x036F) || (c >= 0x0483 && c <= 0x0489) || (c >= 0x0591 && c <= 0x05C7) ||
      (c >= 0x0610 && c <= 0x061A) || (c >= 0x064B && c <= 0x065F) || c == 0x0670 || (c >= 0x06D6 && c <= 0x06ED) ||
      (c >= 0x0E31 && c <= 0x0E3A && c != 0x0E32 && c != 0x0E33) || (c >= 0x0E47 && c <= 0x0E4E) ||
      (c >= 0x1AB0 && c <= 0x1AFF) || (c >= 0x1DC0 && c <= 0x1DFF) || (c >= 0x200B && c <= 0x200F) ||
      (c >= 0x202A && c <= 0x202E) || (c >= 0x2060 && c <= 0x2064) || (c >= 0x20D0 && c <= 0x20FF) ||
      (c >= 0xFE00 && c <= 0xFE0F) || (c >= 0xFE20 && c <= 0xFE2F) || c == 0xFEFF)
    return 0;
  if ((c >= 0x1100 && c <= 0x115F) || (c >= 0x2E80 && c <= 0x303E) || (c >= 0x3041 && c <= 0x33FF) ||
      (c >= 0x3400 && c <= 0x4DBF) || (c >= 0x4E00 && c <= 0x9FFF) || (c >= 0xA000 && c <= 0xA4CF) ||
      (c >= 0xAC00 && c <= 0xD7A3) || (c >= 0xF900 && c <= 0xFAFF) || (c >= 0xFE30 && c <= 0xFE4F) ||
      (c >= 0xFF00 && c <= 0xFF60) || (c >= 0xFFE0 && c <= 0xFFE6) || (c >= 0x1F300 && c <= 0x1FAFF) ||
      (c >= 0x20000 && c <= 0x3FFFD))
    return 2;
  return 1;
}

// The text's width on a terminal, in columns.
static NSUInteger widthOf(NSString *text) {
  NSUInteger width = 0, length = [text length];
  for (NSUInteger i = 0; i < length; i++) {
    unichar c = [text characterAtIndex:i];
    unichar next = i + 1 < length ? [text characterAtIndex:i + 1] : 0;
    width += columnsOf(c, next);
    if (c >= 0xD800 && c <= 0xDBFF && next >= 0xDC00 && next <= 0xDFFF) i++;
  }
  return width;
}

static NSString *blanks(NSUInteger count) {
  return [@"" stringByPaddingToLength:count withString:@" " startingAtIndex:0];
}

// The longest start of `text` (whole characters) that fits in `room` columns; at least one character.
static NSUInteger fittingLength(NSString *text, NSUInteger room) {
  NSUInteger used = 0, at = 0, length = [text length];
  while (at < length) {
    NSRange character = [text rangeOfComposedCharacterSequenceAtIndex:at];
    NSUInteger width = widthOf([text substringWithRange:character]);
    if (at > 0 && used + width > room) break;
    used += width;
    at = NSMaxRange(character);
  }
  return at;
}

NSArray *SettingsScreenWrap(NSString *text, NSUInteger width, NSString *indent) {
  NSMutableArray *lines = [NSMutableArray array];
  if (indent == nil) indent = @"";
  NSUInteger room = width > widthOf(indent) + 8 ? width - widthOf(indent) : 8;
  for (NSString *paragraph in [text componentsSeparatedByString:@"\n"]) {
    NSMutableString *line = [NSMutableString string];
    for (NSString *word in [paragraph componentsSeparatedByString:@" "]) {
      if ([word length] == 0) {
        // Runs of blanks are kept inside a line as they are written.
        if ([line length] > 0 && widthOf(line) < room) [line appendString:@" "];
        continue;
      }
      NSString *rest = word;
      // A word wider than a line (or a line of a language written without blanks) is cut.
      while (widthOf(rest) > room) {
        if ([line length] > 0) {
          [lines addObject:[indent stringByAppendingString:line]];
          [line setString:@""];
        }
        NSUInteger cut = fittingLength(rest, room);
        [lines addObject:[indent stringByAppendingString:[rest substringToIndex:cut]]];
        rest = [rest substringFromIndex:cut];
      }
      if ([line length] > 0 && ![line hasSuffix:@" "]) {
        if (widthOf(line) + 1 + widthOf(rest) > room) {
          [lines addObject:[indent stringByAppendingString:line]];
          [line setString:@""];
        } else {
          [line appendString:@" "];
        }
      } else if (widthOf(line) + widthOf(rest) > room) {
        [lines addObject:[indent stringByAppendingString:line]];
        [line setString:@""];
      }
      [line appendString:rest];
    }
    [lines addObject:[indent stringByAppendingString:line]];
  }
  return lines;
}

// Pages of a right-to-left language are drawn mirrored: what stands at a row's left in
// English stands at its right, and the row's value (switch, chevron) at its left.
static BOOL gRightToLeft = NO;

// Left text and right text on one line, the right one flush with the screen's edge; mirrored
// right to left (`left` then ends at the right edge, `right` starts at the left one).
static NSString *columns(NSString *left, NSString *right) {
  if (gRightToLeft) {
    NSString *start = [left stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
    NSUInteger inset =
        widthOf(left) - widthOf([left stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]]);
    NSString *end = [start stringByAppendingString:blanks(inset)];
    NSUInteger used = widthOf(right) + widthOf(end);
    NSUInteger gap = used + 2 <= kScreenWidth ? kScreenWidth - used : ([right length] > 0 ? 2 : 0);
    if ([right length] == 0 && used < kScreenWidth) gap = kScreenWidth - used;
    return [NSString stringWithFormat:@"%@%@%@", right, blanks(gap), end];
  }
  if ([right length] == 0) return left;
  NSUInteger used = widthOf(left) + widthOf(right);
  NSUInteger gap = used + 2 <= kScreenWidth ? kScreenWidth - used : 2;
  return [NSString stringWithFormat:@"%@%@%@", left, blanks(gap), right];
}

// A line of text that starts after `indent` (left to right) or ends before it (right to left).
static NSString *aligned(NSString *line) {
  if (!gRightToLeft) return line;
  return columns(line, @"");
}

static NSArray *alignedLines(NSArray *lines) {
  NSMutableArray *out = [NSMutableArray array];
  for (NSString *line in lines) [out addObject:aligned(line)];
  return out;
}

static NSString *centred(NSString *text) {
  NSUInteger width = widthOf(text);
  if (width >= kScreenWidth) return text;
  return [blanks((kScreenWidth - width) / 2) stringByAppendingString:text];
}

static NSString *rule(NSString *character) {
  return [@"" stringByPaddingToLength:kScreenWidth withString:character startingAtIndex:0];
}

// `text` padded with blanks to `width` columns.
static NSString *padded(NSString *text, NSUInteger width) {
  NSUInteger used = widthOf(text);
  return used >= width ? text : [text stringByAppendingString:blanks(width - used)];
}

// A bar button's title, or for an image button the image's name ("share" for share@3x.png).
static NSString *barButtonName(UIBarButtonItem *item) {
  if (item == nil) return nil;
  if ([item title] != nil) return [item title];
  UIImage *image = [item image];
  if (image == nil) return nil;
  NSString *name = [[[image _simDescription] lastPathComponent] stringByDeletingPathExtension];
  NSRange scale = [name rangeOfString:@"@"];
  if (scale.location != NSNotFound) name = [name substringToIndex:scale.location];
  return [name length] > 0 ? name : @"image";
}

static NSString *stringOrNil(id value) {
  if ([value isKindOfClass:[NSString class]]) return [value length] > 0 ? value : nil;
  return nil;
}

#pragma mark - Controllers

NSString *SettingsScreenPageTitle(UIViewController *page) {
  if (page == nil) return @"";
  NSString *title = nil;
  @try {
    title = stringOrNil([[page navigationItem] title]);
    if (title == nil) title = stringOrNil([page title]);
    if (title == nil && [page respondsToSelector:@selector(specifier)]) {
      title = stringOrNil([(PSSpecifier *)[(id)page specifier] name]);
    }
  } @catch (NSException *exception) {
    title = nil;
  }
  if (title == nil && [NSStringFromClass([page class]) isEqualToString:@"PrefsListController"]) title = @"Settings";
  return title != nil ? title : NSStringFromClass([page class]);
}

// The navigation controller whose top page is on screen inside `controller`: a pane's
// navigation held as a level of the list's (phone), or the pane beside the list (iPad)
// once it shows a page.
static UINavigationController *shownNavigation(UIViewController *controller) {
  if ([controller isKindOfClass:[PSSplitViewController class]]) {
    NSArray *sides = [(PSSplitViewController *)controller viewControllers];
    for (UIViewController *side in [sides reverseObjectEnumerator]) {
      UINavigationController *inner = shownNavigation(side);
      if ([[inner viewControllers] count] > 0) return inner;
    }
    return nil;
  }
  if (![controller isKindOfClass:[UINavigationController class]]) return nil;
  UIViewController *top = [(UINavigationController *)controller topViewController];
  if ([top isKindOfClass:[UINavigationController class]]) return shownNavigation(top);
  return (UINavigationController *)controller;
}

static UIViewController *topOf(UIViewController *controller) {
  UINavigationController *navigation = shownNavigation(controller);
  if (navigation != nil) return [navigation topViewController];
  return controller;
}

// Page titles from the Settings list down to the page on top, through nested navigations.
static void addTrail(UIViewController *controller, NSMutableArray *trail) {
  if ([controller isKindOfClass:[PSSplitViewController class]]) {
    for (UIViewController *side in [(PSSplitViewController *)controller viewControllers]) addTrail(side, trail);
  } else if ([controller isKindOfClass:[UINavigationController class]]) {
    for (UIViewController *level in [(UINavigationController *)controller viewControllers]) addTrail(level, trail);
  } else if (controller != nil) {
    [trail addObject:SettingsScreenPageTitle(controller)];
  }
}

// What `controller` (or the page it shows) has presented, if anything.
static UIViewController *presentedBy(UIViewController *controller) {
  UIViewController *presented = [controller presentedViewController];
  if (presented != nil && [presented presentingViewController] != nil && presented != controller) return presented;
  UIViewController *top = topOf(controller);
  if (top != nil && top != controller) {
    presented = [top presentedViewController];
    if (presented != nil && presented != controller) return presented;
  }
  return nil;
}

id SettingsScreenRowTarget(PSSpecifier *specifier, UIViewController *page) {
  id target = [specifier target];
  if ([target isKindOfClass:[NSValue class]]) target = [(NSValue *)target nonretainedObjectValue];
  return target != nil ? target : page;
}

SEL SettingsScreenRowSelector(PSSpecifier *specifier, const char *which) {
  NSString *plain = [NSString stringWithUTF8String:which];
  NSString *underscored = [@"_" stringByAppendingString:plain];
  for (NSString *ivarName in @[ plain, underscored ]) {
    const char *name = [ivarName UTF8String];
    Ivar ivar = class_getInstanceVariable([specifier class], name);
    if (ivar != NULL) {
      const char *type = ivar_getTypeEncoding(ivar);
      if (type != NULL && type[0] == ':') {
        return *(SEL *)((char *)specifier + ivar_getOffset(ivar));
      }
    }
  }
  return NULL;
}

// The row's current value, as its cell would show it.
id SettingsScreenRowValue(PSSpecifier *specifier, UIViewController *page) {
  id value = nil;
  @try {
    id target = SettingsScreenRowTarget(specifier, page);
    SEL getter = SettingsScreenRowSelector(specifier, "getter");
    if (getter != NULL && [target respondsToSelector:getter]) {
      value = [target performSelector:getter withObject:specifier];
    } else if ([specifier propertyForKey:@"key"] != nil && [page respondsToSelector:@selector(readPreferenceValue:)]) {
      value = [(id)page readPreferenceValue:specifier];
    }
    if (value == nil) value = [specifier propertyForKey:@"default"];
  } @catch (NSException *exception) {
    value = nil;
  }
  return value;
}

BOOL SettingsScreenRowEnabled(PSSpecifier *specifier) {
  id enabled = [specifier propertyForKey:@"enabled"];
  return enabled == nil || ![enabled respondsToSelector:@selector(boolValue)] || [enabled boolValue];
}

static NSString *valueText(id value, PSSpecifier *specifier) {
  if (value == nil) return nil;
  id titles = nil;
  if ([specifier respondsToSelector:@selector(titleDictionary)]) titles = [specifier titleDictionary];
  if ([titles isKindOfClass:[NSDictionary class]]) {
    id title = [titles objectForKey:value];
    if (title != nil) return [title description];
  }
  if ([value isKindOfClass:[NSString class]]) return value;
  if ([value isKindOfClass:[NSNumber class]]) return [value stringValue];
  return nil;
}

// A choice row: every choice by its title, the chosen one in brackets ("Off | [Medium] | Strong").
static NSString *choicesText(id value, PSSpecifier *specifier) {
  NSArray *values = [specifier respondsToSelector:@selector(values)] ? [specifier values] : nil;
  if (![values isKindOfClass:[NSArray class]] || [values count] == 0) return valueText(value, specifier);
  NSMutableArray *shown = [NSMutableArray array];
  for (id choice in values) {
    NSString *title = valueText(choice, specifier);
    if (title == nil) title = [choice description];
    [shown addObject:value != nil && [choice isEqual:value] ? [NSString stringWithFormat:@"[%@]", title] : title];
  }
  return [shown componentsJoinedByString:@" | "];
}

// A slider row: its value and its range ("3 (1 to 10)").
static NSString *sliderText(id value, PSSpecifier *specifier) {
  NSString *shown =
      [value respondsToSelector:@selector(doubleValue)] ? [NSString stringWithFormat:@"%g", [value doubleValue]] : @"?";
  id low = [specifier propertyForKey:@"min"], high = [specifier propertyForKey:@"max"];
  if ([low respondsToSelector:@selector(doubleValue)] && [high respondsToSelector:@selector(doubleValue)])
    return [NSString stringWithFormat:@"%@ (%g to %g)", shown, [low doubleValue], [high doubleValue]];
  return shown;
}

#pragma mark - Renderer

@interface SettingsScreen ()
- (void)renderList:(UIViewController *)page into:(NSMutableArray *)lines items:(NSMutableArray *)items;
- (void)renderView:(UIViewController *)page into:(NSMutableArray *)lines;
- (void)renderAlert:(UIAlertController *)alert into:(NSMutableArray *)lines;
- (void)renderMail:(MFMailComposeViewController *)composer into:(NSMutableArray *)lines;
- (void)renderText:(NSString *)text into:(NSMutableArray *)lines;
@end

@implementation SettingsScreen
@synthesize text = _text;
@synthesize items = _items;
@synthesize page = _page;
@synthesize navigation = _navigation;
@synthesize modal = _modal;
@synthesize alert = _alert;
@synthesize passcodeField = _passcodeField;

- (void)dealloc {
  [_text release];
  [_items release];
  [_page release];
  [_navigation release];
  [_modal release];
  [_alert release];
  [_passcodeField release];
  [super dealloc];
}

+ (SettingsScreen *)currentScreen {
  SettingsScreen *screen = [[[SettingsScreen alloc] init] autorelease];
  NSMutableArray *lines = [NSMutableArray array];
  NSMutableArray *items = [NSMutableArray array];

  UIViewController *root = SimSettingsWindowRootController();
  gRightToLeft =
      [[UIApplication sharedApplication] userInterfaceLayoutDirection] == UIUserInterfaceLayoutDirectionRightToLeft;
  if (root == nil) {
    [screen setText:@"(the Settings app has no window)\n"];
    [screen setItems:items];
    return screen;
  }

  // Walk up the presentation chain: navigation controllers presented modally, then perhaps an alert.
  UIViewController *level = root;
  UINavigationController *navigation = shownNavigation(root);
  UINavigationController *modal = nil;
  UIAlertController *alert = nil;
  for (int depth = 0; depth < 16; depth++) {
    UIViewController *presented = presentedBy(level);
    if (presented == nil) break;
    if ([presented isKindOfClass:[UIAlertController class]]) {
      alert = (UIAlertController *)presented;
      break;
    }
    level = presented;
    if ([presented isKindOfClass:[UINavigationController class]]) {
      navigation = shownNavigation(presented);
      modal = (UINavigationController *)presented;
    } else {
      navigation = nil;
      modal = nil;
    }
  }
  UIViewController *page = topOf(level);
  [screen setPage:page];
  [screen setNavigation:navigation];
  [screen setModal:modal];
  [screen setAlert:alert];

  // Title bar: where we are, the page title and the bar buttons.
  NSMutableArray *trail = [NSMutableArray array];
  if (modal == nil) addTrail(root, trail);
  NSString *title = SettingsScreenPageTitle(page);
  NSMutableArray *buttons = [NSMutableArray array];
  @try {
    UINavigationItem *navigationItem = [page navigationItem];
    UIBarButtonItem *left = [navigationItem leftBarButtonItem];
    UIBarButtonItem *right = [navigationItem rightBarButtonItem];
    if (barButtonName(left) != nil) [buttons addObject:[NSString stringWithFormat:@"[%@]", barButtonName(left)]];
    if (barButtonName(right) != nil) [buttons addObject:[NSString stringWithFormat:@"[%@]", barButtonName(right)]];
  } @catch (NSException *exception) {}
  [lines addObject:rule(@"=")];
  if (modal != nil) {
    [lines addObject:columns(@" (modal page)", [buttons componentsJoinedByString:@" "])];
  } else if ([trail count] > 1 && gRightToLeft) {
    // The way back points right.
    NSArray *back = [[trail reverseObjectEnumerator] allObjects];
    [lines addObject:columns([[back componentsJoinedByString:@" < "] stringByAppendingString:@" > "],
                             [buttons componentsJoinedByString:@" "])];
  } else if ([trail count] > 1) {
    [lines addObject:columns([@" < " stringByAppendingString:[trail componentsJoinedByString:@" > "]],
                             [buttons componentsJoinedByString:@" "])];
  } else if ([buttons count] > 0) {
    [lines addObject:columns(@"", [buttons componentsJoinedByString:@" "])];
  }
  [lines addObject:centred(title)];
  [lines addObject:rule(@"=")];

  if ([modal isKindOfClass:[MFMailComposeViewController class]]) {
    [screen renderMail:(MFMailComposeViewController *)modal into:lines];
  } else if ([page isKindOfClass:[PSListController class]]) {
    [screen renderList:page into:lines items:items];
  } else {
    [screen renderView:page into:lines];
  }
  if (alert != nil) [screen renderAlert:alert into:lines];

  [screen setItems:items];
  [screen setText:[[lines componentsJoinedByString:@"\n"] stringByAppendingString:@"\n"]];
  return screen;
}

- (void)addFooter:(PSSpecifier *)group
             page:(UIViewController *)page
             into:(NSMutableArray *)lines
            items:(NSMutableArray *)items {
  if (group == nil) return;
  NSString *footer = stringOrNil([group propertyForKey:@"footerText"]);
  if (footer == nil) footer = stringOrNil([group propertyForKey:@"headerFooterHyperlinkButtonTitle"]);
  if (footer == nil) footer = stringOrNil([group propertyForKey:@"ACUIFooterText"]);
  NSString *linkAction = stringOrNil([group propertyForKey:@"footerHyperlinkAction"]);
  BOOL wholeFooterTaps = linkAction == nil && [group buttonAction] != NULL && footer != nil;
  if (footer != nil && !wholeFooterTaps)
    [lines addObjectsFromArray:alignedLines(SettingsScreenWrap(footer, kScreenWidth, @"    "))];
  if (linkAction == nil && !wholeFooterTaps) return;

  NSString *linkText = footer;
  NSString *range = stringOrNil([group propertyForKey:@"footerHyperlinkRange"]);
  if (range != nil && footer != nil) {
    NSRange link = NSRangeFromString(range);
    if (link.length > 0 && NSMaxRange(link) <= [footer length]) linkText = [footer substringWithRange:link];
  }
  linkText = [linkText stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
  SettingsScreenItem *item = [[[SettingsScreenItem alloc] init] autorelease];
  [item setSpecifier:group];
  [item setController:page];
  [item setFooterLink:YES];
  [items addObject:item];
  NSString *number = [NSString stringWithFormat:@"[%lu]", (unsigned long)[items count]];
  NSString *link = linkText != nil ? linkText : @"(link)";
  [lines addObject:aligned(gRightToLeft ? [NSString stringWithFormat:@"    %@ :link %@", link, number]
                                        : [NSString stringWithFormat:@"    %@ link: %@", number, link])];
}

// The page's search field as the navigation bar shows it: under the title while the list
// is at its top or a search is on (a bar that hides when scrolling has gone up with the
// list otherwise), with the Cancel button while searching.
static void addSearchField(UIViewController *page, UITableView *table, NSMutableArray *lines) {
  UINavigationItem *navigationItem = [page navigationItem];
  UISearchController *search = [navigationItem searchController];
  if (search == nil) return;
  BOOL active = [search isActive];
  if ([navigationItem hidesSearchBarWhenScrolling] && !active && table.contentOffset.y > 0) return;
  NSString *text = [[search searchBar] text];
  NSString *shown = [text length] > 0 ? text : ([[search searchBar] placeholder] ?: @"Search");
  NSString *field = [NSString stringWithFormat:@"  [ %@ ]", [shown stringByPaddingToLength:MAX([shown length], 50)
                                                                                withString:@" "
                                                                           startingAtIndex:0]];
  [lines addObject:columns(field, active ? @"Cancel" : @"")];
}

// The letters of the table's section index, as it shows them down the side (the right edge,
// the left one right to left).
static void addSectionIndex(UITableView *table, NSMutableArray *lines) {
  NSArray *titles = SimTableViewSectionIndexTitles(table);
  if ([titles count] > 0)
    [lines addObject:aligned([@"  Index: " stringByAppendingString:[titles componentsJoinedByString:@" "]])];
}

// Where the table's screen begins once it has scrolled: the section or row at its top edge
// (nil at the top of the list). `group` YES: the screen begins with the section's header.
static NSIndexPath *screenTop(UITableView *table, BOOL *group) {
  const CGFloat top = table.contentOffset.y + table.contentInset.top;
  if (table.contentOffset.y <= 0) return nil;
  const NSInteger sections = [table numberOfSections];
  for (NSInteger section = 0; section < sections; section++) {
    CGRect rect = [table rectForSection:section];
    if (CGRectGetMaxY(rect) <= top) continue;
    *group = rect.origin.y >= top - 0.5;
    if (*group) return [NSIndexPath indexPathForRow:0 inSection:section];
    const NSInteger rows = [table numberOfRowsInSection:section];
    for (NSInteger row = 0; row < rows; row++) {
      NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:section];
      if (CGRectGetMaxY([table rectForRowAtIndexPath:path]) > top) return path;
    }
    *group = YES;
    return [NSIndexPath indexPathForRow:0 inSection:section + 1];
  }
  return nil;
}

static NSString *screenTopLine(void) {
  return [@"  " stringByAppendingString:[rule(@"-") substringToIndex:kScreenWidth - 4]];
}

- (void)renderList:(UIViewController *)page into:(NSMutableArray *)lines items:(NSMutableArray *)items {
  NSArray *specifiers = nil;
  @try {
    specifiers = [(id)page specifiers];
  } @catch (NSException *exception) {
    [lines addObject:[NSString stringWithFormat:@"  (the page failed to build its rows: %@)", [exception reason]]];
    return;
  }
  UITableView *table = [page isViewLoaded] ? [(PSListController *)page table] : nil;
  addSearchField(page, table, lines);
  addSectionIndex(table, lines);
  if ([specifiers count] == 0) {
    [lines addObject:@"  (no rows)"];
    return;
  }
  BOOL topIsGroup = NO;
  NSIndexPath *top = table != nil ? screenTop(table, &topIsGroup) : nil;
  NSInteger section = -1, row = -1;
  PSSpecifier *group = nil;
  for (PSSpecifier *specifier in specifiers) {
    if (![specifier isKindOfClass:[PSSpecifier class]]) continue;
    long type = (long)[specifier cellType];
    // Rows before the first group make a section of their own, as the table shows them.
    if (type == kGroupCell || section < 0) section++, row = -1;
    if (type != kGroupCell) row++;
    if (top != nil && top.section == section && (type == kGroupCell ? topIsGroup : !topIsGroup && top.row == row))
      [lines addObject:screenTopLine()];
    if (type == kGroupCell) {
      [self addFooter:group page:page into:lines items:items];
      group = specifier;
      [lines addObject:@""];
      NSString *header = stringOrNil([specifier name]);
      if (header != nil) [lines addObject:aligned([@"  " stringByAppendingString:[header uppercaseString]])];
      continue;
    }
    NSString *name = stringOrNil([specifier name]);
    if (name == nil) name = @"";
    NSString *cellClass = stringOrNil([specifier propertyForKey:@"cellClass"]);
    if (cellClass == nil) {
      id cls = [specifier propertyForKey:@"cellClass"];
      if (cls != nil && class_isMetaClass(object_getClass(cls))) cellClass = NSStringFromClass(cls);
    }
    BOOL enabled = SettingsScreenRowEnabled(specifier);

    NSString *disabled = enabled ? @"" : @" (disabled)";

    if (cellClass != nil && [cellClass rangeOfString:@"Warning"].location != NSNotFound) {
      // A status warning: framed so it stands out from every other row.
      [lines addObject:[@"  " stringByAppendingString:[rule(@"!") substringToIndex:kScreenWidth - 4]]];
      NSArray *parts = [name componentsSeparatedByString:@"\n"];
      for (NSUInteger i = 0; i < [parts count]; i++) {
        NSString *trimmed =
            [[parts objectAtIndex:i] stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceCharacterSet]];
        [lines addObject:aligned([NSString
                             stringWithFormat:@"  !! %@%@", trimmed, i + 1 == [parts count] ? disabled : @""])];
      }
      [lines addObject:[@"  " stringByAppendingString:[rule(@"!") substringToIndex:kScreenWidth - 4]]];
      continue;
    }
    if (cellClass != nil && [cellClass rangeOfString:@"Credits"].location != NSNotFound) {
      [lines addObject:centred([NSString stringWithFormat:@"~ %@ ~%@", name, disabled])];
      continue;
    }

    // Everything else is numbered for tapping (status and credits rows do nothing when tapped).
    SettingsScreenItem *item = [[[SettingsScreenItem alloc] init] autorelease];
    [item setSpecifier:specifier];
    [item setController:page];
    [items addObject:item];
    NSString *number = [NSString stringWithFormat:@"[%lu]", (unsigned long)[items count]];
    // Right to left the number stands at the row's start, on the right.
    NSString *left = gRightToLeft ? [NSString stringWithFormat:@"  %@ %@", name, number]
                                  : [NSString stringWithFormat:@"  %@ %@", number, name];
    NSString *right = @"";
    id value = nil;
    switch (type) {
      case kSwitchCell:
        value = SettingsScreenRowValue(specifier, page);
        right = [value respondsToSelector:@selector(boolValue)] && [value boolValue] ? @"[on]" : @"[off]";
        break;
      case kLinkCell:
      case kLinkListCell: {
        value = SettingsScreenRowValue(specifier, page);
        NSString *shown = valueText(value, specifier);
        // The chevron points the way the page is pushed: to the left, right to left.
        right = gRightToLeft ? (shown != nil ? [@"< " stringByAppendingString:shown] : @"<")
                             : (shown != nil ? [shown stringByAppendingString:@" >"] : @">");
        break;
      }
      case kButtonCell:
        right = @"(button)";
        break;
      case kTitleValueCell:
      case kListItemCell:
        value = SettingsScreenRowValue(specifier, page);
        right = valueText(value, specifier);
        break;
      case kSegmentCell:
        value = SettingsScreenRowValue(specifier, page);
        right = choicesText(value, specifier);
        break;
      case kSliderCell:
        value = SettingsScreenRowValue(specifier, page);
        right = sliderText(value, specifier);
        break;
      case kEditTextCell:
      case kSecureEditTextCell:
        value = SettingsScreenRowValue(specifier, page);
        right = type == kSecureEditTextCell && value != nil
                    ? @"\"****\""
                    : [NSString stringWithFormat:@"\"%@\"", value != nil ? valueText(value, specifier) : @""];
        break;
      default:
        right = SettingsIconRowText(specifier, page);
        break;
    }
    if (right == nil) right = @"";
    [lines addObject:columns([left stringByAppendingString:disabled], right)];
    NSString *subtitle = stringOrNil([specifier propertyForKey:@"cellSubtitleText"]);
    if (subtitle == nil && type == kSwitchCell && [specifier propertyForKey:@"cellClass"] != nil &&
        [page isKindOfClass:[PSListController class]]) {
      // A custom switch cell may write its own line under the name (a network's password).
      UITableViewCell *cell = [(PSListController *)page cachedCellForSpecifier:specifier];
      subtitle = stringOrNil([[cell detailTextLabel] text]);
      if ([subtitle length] == 0) subtitle = nil;
    }
    if (subtitle != nil)
      [lines addObjectsFromArray:alignedLines(SettingsScreenWrap(subtitle, kScreenWidth, @"        "))];
  }
  [self addFooter:group page:page into:lines items:items];
}

// Visible views of a plain page, top to bottom, with their distance from the page's top.
static void collectViews(UIView *view, CGFloat top, NSMutableArray *found) {
  for (UIView *subview in [view subviews]) {
    if ([subview isHidden] || [subview alpha] <= 0.01) continue;
    CGFloat y = top + [subview frame].origin.y;
    [found addObject:@[ @(y), subview ]];
    if ([subview isKindOfClass:[PSPasscodeField class]]) continue;  // the entry boxes speak for themselves
    collectViews(subview, y, found);
  }
}

- (void)renderView:(UIViewController *)page into:(NSMutableArray *)lines {
  UIView *view = nil;
  @try {
    view = [page view];
  } @catch (NSException *exception) {
    [lines addObject:[NSString stringWithFormat:@"  (the page failed to load its view: %@)", [exception reason]]];
    return;
  }
  NSMutableArray *found = [NSMutableArray array];
  collectViews(view, 0, found);
  NSArray *sorted = [found sortedArrayUsingComparator:^NSComparisonResult(id a, id b) {
    return [[a objectAtIndex:0] compare:[b objectAtIndex:0]];
  }];
  [lines addObject:@""];
  for (NSArray *entry in sorted) {
    UIView *subview = [entry objectAtIndex:1];
    if ([subview isKindOfClass:[PSPasscodeField class]]) {
      [self setPasscodeField:subview];
      NSUInteger boxes = [(PSPasscodeField *)subview numberOfEntryFields];
      NSString *entered = [(PSPasscodeField *)subview stringValue];
      NSMutableString *field = [NSMutableString string];
      for (NSUInteger i = 0; i < boxes; i++) [field appendString:i < [entered length] ? @"[*]" : @"[ ]"];
      [lines addObject:@""];
      [lines addObject:centred(field)];
      [lines addObject:@""];
    } else if ([subview isKindOfClass:[UILabel class]]) {
      NSString *text = stringOrNil([(UILabel *)subview text]);
      if (text == nil) continue;
      for (NSString *line in SettingsScreenWrap(text, kScreenWidth - 4, @"")) [lines addObject:centred(line)];
    } else if ([subview isKindOfClass:[UITextView class]]) {
      [self renderText:[(UITextView *)subview text] into:lines];
    } else if ([subview isKindOfClass:[UITextField class]]) {
      NSString *text = [(UITextField *)subview text];
      [lines addObject:centred([NSString stringWithFormat:@"[%@]", text != nil ? text : @""])];
    } else if ([subview isKindOfClass:[UIButton class]]) {
      NSString *text = stringOrNil([(UIButton *)subview titleForState:UIControlStateNormal]);
      if (text != nil) [lines addObject:centred([NSString stringWithFormat:@"( %@ )", text])];
    }
  }
}

// Long texts show their first lines and say how many follow.
static const NSUInteger kTextLines = 30;

- (void)renderText:(NSString *)text into:(NSMutableArray *)lines {
  if ([text length] == 0) {
    [lines addObject:@"  (empty)"];
    return;
  }
  NSArray *wrapped = SettingsScreenWrap(text, kScreenWidth, @"  ");
  NSUInteger shown = MIN([wrapped count], kTextLines);
  [lines addObjectsFromArray:[wrapped subarrayWithRange:NSMakeRange(0, shown)]];
  if (shown < [wrapped count]) {
    [lines addObject:[NSString stringWithFormat:@"  (... %lu more lines)", (unsigned long)([wrapped count] - shown)]];
  }
}

- (void)renderMail:(MFMailComposeViewController *)composer into:(NSMutableArray *)lines {
  NSArray *to = [composer _simToRecipients];
  [lines addObject:@""];
  [lines addObject:[@"  To: " stringByAppendingString:to != nil ? [to componentsJoinedByString:@", "] : @""]];
  [lines
      addObject:[@"  Subject: " stringByAppendingString:[composer _simSubject] != nil ? [composer _simSubject] : @""]];
  [lines addObject:@"  "];
  [self renderText:[composer _simMessageBody] into:lines];
  [lines addObject:@""];
  [lines addObject:@"  (mail send | mail save | mail cancel | mail fail)"];
}

- (void)renderAlert:(UIAlertController *)alert into:(NSMutableArray *)lines {
  NSUInteger inner = kScreenWidth - 12;
  NSMutableArray *box = [NSMutableArray array];
  NSString *title = stringOrNil([alert title]);
  if (title != nil) [box addObjectsFromArray:SettingsScreenWrap(title, inner, @"")];
  NSString *message = stringOrNil([alert message]);
  if (message != nil) {
    if ([box count] > 0) [box addObject:@""];
    [box addObjectsFromArray:SettingsScreenWrap(message, inner, @"")];
  }
  [box addObject:@""];
  NSUInteger index = 0;
  for (UIAlertAction *action in [alert actions]) {
    index++;
    NSString *style = [action style] == UIAlertActionStyleCancel        ? @" (cancel)"
                      : [action style] == UIAlertActionStyleDestructive ? @" (destructive)"
                                                                        : @"";
    [box addObject:[NSString stringWithFormat:@"<alert %lu> %@%@", (unsigned long)index, [action title], style]];
  }
  [lines addObject:@""];
  NSString *edge = [@"    +" stringByAppendingString:[[@"" stringByPaddingToLength:inner + 2
                                                                        withString:@"-"
                                                                   startingAtIndex:0] stringByAppendingString:@"+"]];
  [lines addObject:edge];
  for (NSString *line in box) {
    NSString *inside = gRightToLeft
                           ? [blanks(inner > widthOf(line) ? inner - widthOf(line) : 0) stringByAppendingString:line]
                           : padded(line, inner);
    [lines addObject:[NSString stringWithFormat:@"    | %@ |", inside]];
  }
  [lines addObject:edge];
}

@end
