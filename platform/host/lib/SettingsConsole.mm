#import "SettingsConsole.h"
#import "SettingsIconRows.h"
#import "HostPrivateAPI.h"
#import "SettingsScreen.h"
#import "SettingsPictures.h"
#import "SettingsRowIcons.h"
#include <Simulator/Simulator.h>

// Switch rows, by cell type number.
static const long kSwitchCellType = 6;
// Text rows.
static const long kEditTextCellType = 8;
static const long kSecureEditTextCellType = 12;

// Splits a command line into words; double quotes group words ("alert \"Set Passcode\"").
static NSArray *commandWords(NSString *line) {
  NSMutableArray *words = [NSMutableArray array];
  NSMutableString *word = nil;
  BOOL quoted = NO;
  for (NSUInteger i = 0; i < [line length]; i++) {
    unichar c = [line characterAtIndex:i];
    if (c == '"') {
      if (word == nil) word = [NSMutableString string];
      quoted = !quoted;
    } else if (!quoted && (c == ' ' || c == '\t' || c == '\r' || c == '\n')) {
      if (word != nil) [words addObject:word];
      word = nil;
    } else {
      if (word == nil) word = [NSMutableString string];
      [word appendFormat:@"%C", c];
    }
  }
  if (word != nil) [words addObject:word];
  return words;
}

// A positive whole number, or 0.
static NSUInteger positiveNumber(NSString *text) {
  if ([text length] == 0 || [text length] > 6) return 0;
  NSCharacterSet *digits = [NSCharacterSet decimalDigitCharacterSet];
  for (NSUInteger i = 0; i < [text length]; i++) {
    if (![digits characterIsMember:[text characterAtIndex:i]]) return 0;
  }
  return (NSUInteger)[text integerValue];
}

static void performOn(id target, SEL action, id argument) {
  if (target == nil || action == NULL || ![target respondsToSelector:action]) return;
  [target performSelector:action withObject:argument];
}

@implementation SettingsConsole
@synthesize finished = _finished;
@synthesize settleLimit = _settleLimit;

+ (NSString *)helpText {
  return @"Commands:\n"
          "  tap N              open a link row, press a button row, follow a footer link\n"
          "                     (N: a row's number, or its title: tap Tessarin)\n"
          "  tap N left|middle|right  tap one third of a row of three choices (unlock buttons, glyphs)\n"
          "  flip N             turn a switch row over\n"
          "  switch N on|off    set a switch row\n"
          "  slide N VALUE      drag a slider row's thumb to VALUE and let go\n"
          "  alert N            trigger the alert's action N (or: alert \"Title\")\n"
          "  type TEXT          enter a passcode, or text into the focused field (ends with Return)\n"
          "  back               go back one page\n"
          "  cancel             press the bar button of a modal page\n"
          "  delete N           swipe row N away (crash logs)\n"
          "  touch N X          tap row N X points from the screen's left edge\n"
          "  share              press the page's share button\n"
          "  mail send          answer the mail composer: send, save, cancel or fail\n"
          "  pasteboard         show what the pasteboard holds\n"
          "  text N \"words\"     type into a text row (replacing its text) and end editing\n"
          "  press TITLE        press the page's bar button with that title (press Save)\n"
          "  search WORDS       type WORDS into the page's search field (replacing what it holds)\n"
          "  search             clear the search: its Cancel button (the whole list again)\n"
          "  index L            touch letter L of the page's index (A to Z, #): jump there\n"
          "  wait SECONDS       let the app run (animations, delayed work)\n"
          "  show               print the screen again\n"
          "  icons              list the rows with their switch state and icon\n"
          "  screenshot FILE    write what the screen shows as a PNG picture; screenshot FILE full:\n"
          "                     the whole page on top, however long; @1x, @2x: at that scale\n"
          "  gallery FOLDER     write a picture of every page of the product into FOLDER\n"
          "  quit               leave\n";
}

- (instancetype)init {
  self = [super init];
  if (self != nil) _settleLimit = 3.0;
  return self;
}

- (void)dealloc {
  [_screen release];
  [super dealloc];
}

- (SettingsScreen *)screen {
  if (_screen == nil) [self render];
  return _screen;
}

- (NSString *)render {
  SettingsScreen *screen = [SettingsScreen currentScreen];
  [_screen release];
  _screen = [screen retain];
  return [screen text];
}

- (void)settle {
  NSRunLoop *loop = [NSRunLoop currentRunLoop];
  NSDate *start = [NSDate date];
  SimRunLoopRunFor(0.05);
  while (-[start timeIntervalSinceNow] < _settleLimit) {
    NSDate *next = [loop limitDateForMode:NSDefaultRunLoopMode];
    if (next == nil || [next timeIntervalSinceNow] > 1.2) break;
    SimRunLoopRunFor(0.05);
  }
  SimRunLoopRunFor(0.05);
}

#pragma mark - Commands

- (BOOL)ignoringTouches {
  return SimIgnoringInteractionEventsCount() > 0 || [[UIApplication sharedApplication] isIgnoringInteractionEvents];
}

- (SettingsScreenItem *)itemNumbered:(NSString *)text error:(NSString **)error {
  NSUInteger number = positiveNumber(text);
  NSArray *items = [[self screen] items];
  // A row may also be named by its title, as it reads on the screen.
  if ([text length] > 0 && ![[NSCharacterSet decimalDigitCharacterSet] characterIsMember:[text characterAtIndex:0]]) {
    for (SettingsScreenItem *item in items)
      if (![item footerLink] && [[[item specifier] name] caseInsensitiveCompare:text] == NSOrderedSame) return item;
    *error = [NSString stringWithFormat:@"No row here is called \"%@\".", text];
    return nil;
  }
  if (number == 0 || number > [items count]) {
    *error = [items count] == 0
                 ? @"There is nothing numbered on this screen."
                 : [NSString stringWithFormat:@"Choose a number from 1 to %lu.", (unsigned long)[items count]];
    return nil;
  }
  return [items objectAtIndex:number - 1];
}

- (NSString *)push:(Class)pageClass from:(UIViewController *)page specifier:(PSSpecifier *)specifier {
  UINavigationController *navigation = [page navigationController];
  if (navigation == nil) navigation = [[self screen] navigation];
  if (navigation == nil) return @"There is no navigation controller to open the page in.";
  UIViewController *next = [[pageClass alloc] init];
  if (next == nil) return [NSString stringWithFormat:@"%@ could not be created.", NSStringFromClass(pageClass)];
  if ([next isKindOfClass:[PSViewController class]]) {
    PSViewController *settingsPage = (PSViewController *)next;
    if ([page isKindOfClass:[PSViewController class]])
      [settingsPage setRootController:[(PSViewController *)page rootController]];
    [settingsPage setParentController:page];
    [settingsPage setSpecifier:specifier];
  }
  [navigation pushViewController:next animated:YES];
  [next release];
  return nil;
}

- (NSString *)tap:(SettingsScreenItem *)item {
  PSSpecifier *specifier = [item specifier];
  UIViewController *page = [item controller];
  if ([item footerLink]) {
    NSString *actionName = [specifier propertyForKey:@"footerHyperlinkAction"];
    if ([actionName isKindOfClass:[NSString class]]) {
      id target = [specifier propertyForKey:@"footerHyperlinkTarget"];
      if ([target isKindOfClass:[NSValue class]]) target = [(NSValue *)target nonretainedObjectValue];
      if (target == nil) target = SettingsScreenRowTarget(specifier, page);
      performOn(target, NSSelectorFromString(actionName), specifier);
    } else {
      performOn(SettingsScreenRowTarget(specifier, page), [specifier buttonAction], specifier);
    }
    return nil;
  }
  if (!SettingsScreenRowEnabled(specifier)) return @"That row is disabled.";
  if ((long)[specifier cellType] == kSwitchCellType) return [self setSwitch:item to:nil];

  id target = SettingsScreenRowTarget(specifier, page);
  if ([specifier buttonAction] != NULL && ![target respondsToSelector:[specifier buttonAction]]) {
    return [NSString stringWithFormat:@"The row's action %@ is not understood by its page.",
                                      NSStringFromSelector([specifier buttonAction])];
  }
  BOOL opens = [specifier buttonAction] != NULL || [specifier controllerLoadAction] != NULL ||
               [specifier detailControllerClass] != Nil;
  if (!opens) {
    id named = [specifier propertyForKey:@"detail"];
    if ([named isKindOfClass:[NSString class]] && NSClassFromString(named) == Nil) {
      return [NSString stringWithFormat:@"The page %@ is not in the bundle.", named];
    }
    return @"Tapping that row does nothing.";
  }
  if ([page isKindOfClass:[PSListController class]] &&
      SimListControllerTapSpecifier((PSListController *)page, specifier)) {
    return nil;
  }
  // Not a list page the simulation can tap: act as Settings does.
  if ([specifier buttonAction] != NULL) {
    performOn(target, [specifier buttonAction], specifier);
    return nil;
  }
  if ([specifier controllerLoadAction] != NULL && [target respondsToSelector:[specifier controllerLoadAction]]) {
    performOn(target, [specifier controllerLoadAction], specifier);
    return nil;
  }
  return [self push:[specifier detailControllerClass] from:page specifier:specifier];
}

// value nil: turn over.
- (NSString *)setSwitch:(SettingsScreenItem *)item to:(NSNumber *)value {
  PSSpecifier *specifier = [item specifier];
  UIViewController *page = [item controller];
  if ([item footerLink] || (long)[specifier cellType] != kSwitchCellType) return @"That row is not a switch.";
  if (!SettingsScreenRowEnabled(specifier)) return @"That row is disabled.";
  if (value == nil) {
    id current = SettingsScreenRowValue(specifier, page);
    BOOL on = [current respondsToSelector:@selector(boolValue)] && [current boolValue];
    value = @(!on);
  }
  id target = SettingsScreenRowTarget(specifier, page);
  SEL setter = SettingsScreenRowSelector(specifier, "setter");
  // The finger moves the row's switch first; then the row stores the value.
  if ([page isKindOfClass:[PSListController class]]) {
    id cell = [(PSListController *)page cachedCellForSpecifier:specifier];
    id control = [cell respondsToSelector:@selector(control)] ? [cell control] : nil;
    if ([control isKindOfClass:[UISwitch class]]) [(UISwitch *)control setOn:[value boolValue] animated:NO];
  }
  @try {
    if (setter != NULL && [target respondsToSelector:setter]) {
      [target performSelector:setter withObject:value withObject:specifier];
    } else if ([page respondsToSelector:@selector(setPreferenceValue:specifier:)]) {
      [(id)page setPreferenceValue:value specifier:specifier];
    } else {
      return @"The switch has nowhere to store its value.";
    }
  } @catch (NSException *exception) {
    return [NSString stringWithFormat:@"The switch raised %@: %@", [exception name], [exception reason]];
  }
  return nil;
}

- (NSString *)triggerAlert:(NSArray *)words {
  UIAlertController *alert = [[self screen] alert];
  if (alert == nil) return @"No alert is showing.";
  if ([words count] < 2) return @"Say which action: alert N, or alert \"Title\".";
  NSArray *actions = [alert actions];
  UIAlertAction *chosen = nil;
  NSUInteger number = [words count] == 2 ? positiveNumber([words objectAtIndex:1]) : 0;
  if (number > 0) {
    if (number > [actions count]) {
      return [NSString stringWithFormat:@"The alert has %lu actions.", (unsigned long)[actions count]];
    }
    chosen = [actions objectAtIndex:number - 1];
  } else {
    NSString *title = [[words subarrayWithRange:NSMakeRange(1, [words count] - 1)] componentsJoinedByString:@" "];
    for (UIAlertAction *action in actions) {
      if ([[action title] caseInsensitiveCompare:title] == NSOrderedSame) chosen = action;
    }
    if (chosen == nil) return [NSString stringWithFormat:@"The alert has no action \"%@\".", title];
  }
  if (![alert respondsToSelector:@selector(_dismissAnimated:triggeringAction:)]) {
    return @"This UIKit cannot trigger alert actions.";
  }
  [alert _dismissAnimated:YES triggeringAction:chosen];
  return nil;
}

// The text field of the page that has the keyboard, if any.
static UITextField *focusedTextField(UIView *view) {
  for (UIView *subview in [view subviews]) {
    if ([subview isHidden]) continue;
    if ([subview isKindOfClass:[UITextField class]] && [subview isFirstResponder]) return (UITextField *)subview;
    UITextField *inner = focusedTextField(subview);
    if (inner != nil) return inner;
  }
  return nil;
}

- (NSString *)type:(NSString *)digits {
  UIView *field = [[self screen] passcodeField];
  if (field == nil) {
    // Any other page: the text goes into the field that has the keyboard, ended with Return.
    UIViewController *page = [[self screen] page];
    UITextField *text = [page isViewLoaded] ? focusedTextField([page view]) : nil;
    if (text == nil) return @"This page has no text field to type into.";
    [text insertText:[digits stringByAppendingString:@"\n"]];
    return nil;
  }
  NSCharacterSet *decimal = [NSCharacterSet decimalDigitCharacterSet];
  for (NSUInteger i = 0; i < [digits length]; i++) {
    if (![decimal characterIsMember:[digits characterAtIndex:i]]) return @"Type digits only, e.g. type 1234.";
  }
  NSUInteger boxes = [(PSPasscodeField *)field numberOfEntryFields];
  if (boxes == 0) boxes = 4;
  if ([digits length] % boxes != 0) {
    return [NSString stringWithFormat:@"The passcode has %lu digits.", (unsigned long)boxes];
  }
  // Each full entry goes in as the field reports it: the whole passcode at once to its delegate.
  for (NSUInteger start = 0; start < [digits length]; start += boxes) {
    NSString *entry = [digits substringWithRange:NSMakeRange(start, boxes)];
    if (start > 0) {
      [self settle];
      [self render];
      field = [[self screen] passcodeField];
      if (field == nil) return @"The passcode page closed before the whole entry was typed.";
    }
    SimPasscodeFieldType((PSPasscodeField *)field, entry);
  }
  return nil;
}

- (NSString *)back {
  SettingsScreen *screen = [self screen];
  if ([screen alert] != nil) return @"Answer the alert first (alert N).";
  UINavigationController *navigation = [screen navigation];
  if (navigation == nil) return @"There is no page to go back from.";
  if ([[navigation viewControllers] count] > 1) {
    [navigation popViewControllerAnimated:YES];
    return nil;
  }
  if ([screen modal] != nil) return @"This is a modal page: use cancel.";
  // The first page of a pane held inside the list's navigation: that one goes back to the list.
  UIViewController *holder = [navigation parentViewController];
  if ([holder isKindOfClass:[UINavigationController class]] &&
      [[(UINavigationController *)holder viewControllers] count] > 1) {
    [(UINavigationController *)holder popViewControllerAnimated:YES];
    return nil;
  }
  return [holder isKindOfClass:[PSSplitViewController class]] ? @"The Settings list is beside this page already."
                                                              : @"This is the Settings list already.";
}

- (NSString *)cancel {
  SettingsScreen *screen = [self screen];
  if ([screen alert] != nil) return @"Answer the alert first (alert N).";
  UINavigationItem *navigationItem = [[screen page] navigationItem];
  UIBarButtonItem *button = [navigationItem rightBarButtonItem];
  if ([button action] == NULL) button = [navigationItem leftBarButtonItem];
  if ([button action] == NULL) return @"This page has no bar button.";
  return SimTapBarButtonItem(button) ? nil : @"The bar button did not respond.";
}

// A slider row's thumb dragged to `where` and let go, through the row's own slider on screen.
- (NSString *)slide:(SettingsScreenItem *)item to:(NSString *)where {
  UIViewController *page = [item controller];
  if ([item footerLink] || ![page isKindOfClass:[PSListController class]]) return @"That is not a row.";
  NSScanner *scanner = [NSScanner scannerWithString:where];
  double value = 0;
  if (![scanner scanDouble:&value] || ![scanner isAtEnd]) return @"Say where to: slide N VALUE.";
  PSListController *list = (PSListController *)page;
  id cell = [list cachedCellForSpecifier:[item specifier]];
  id control = [cell respondsToSelector:@selector(control)] ? [cell control] : nil;
  if (![control isKindOfClass:[UISlider class]]) return @"That row is not a slider.";
  if (!SettingsScreenRowEnabled([item specifier])) return @"That row is disabled.";
  return SimSliderDrag(control, (float)value) ? nil : @"The slider did not move.";
}

- (NSString *)deleteRow:(SettingsScreenItem *)item {
  UIViewController *page = [item controller];
  if (![page isKindOfClass:[PSEditableListController class]]) return @"Rows of this page cannot be deleted.";
  if ([item footerLink]) return @"That is a footer link, not a row.";
  return SimEditableListSwipeToDelete((PSListController *)page, [item specifier]) ? nil
                                                                                  : @"That row cannot be deleted.";
}

- (NSString *)touch:(SettingsScreenItem *)item at:(NSString *)where {
  UIViewController *page = [item controller];
  if ([item footerLink] || ![page isKindOfClass:[PSListController class]]) return @"That is not a row.";
  NSScanner *scanner = [NSScanner scannerWithString:where];
  double x = 0;
  if (![scanner scanDouble:&x] || ![scanner isAtEnd] || x < 0) return @"Say where: touch N X (points from the left).";
  PSListController *list = (PSListController *)page;
  NSIndexPath *path = [list indexPathForSpecifier:[item specifier]];
  UITableViewCell *cell = path != nil ? [[list table] cellForRowAtIndexPath:path] : nil;
  if (cell == nil) cell = [list cachedCellForSpecifier:[item specifier]];
  [cell layoutIfNeeded];
  UIView *content = [cell contentView];
  if (content == nil) return @"That row has no cell on screen.";
  CGPoint point = [content convertPoint:CGPointMake(0, content.bounds.size.height / 2) toView:nil];
  point.x = x;
  return SimTapView(content, [content convertPoint:point fromView:nil]) ? nil : @"Nothing there takes the touch.";
}

- (NSString *)share {
  SettingsScreen *screen = [self screen];
  if ([screen alert] != nil) return @"Answer the alert first (alert N).";
  if ([screen modal] != nil) return @"A modal page is open: answer it first.";
  UIBarButtonItem *button = [[[screen page] navigationItem] rightBarButtonItem];
  if (button == nil || [button action] == NULL) return @"This page has no share button.";
  return SimTapBarButtonItem(button) ? nil : @"The share button did not respond.";
}

- (NSString *)answerMail:(NSString *)answer {
  UINavigationController *modal = [[self screen] modal];
  if (![modal isKindOfClass:[MFMailComposeViewController class]]) return @"No mail is being written.";
  NSDictionary *results = @{
    @"cancel" : @(MFMailComposeResultCancelled),
    @"save" : @(MFMailComposeResultSaved),
    @"send" : @(MFMailComposeResultSent),
    @"fail" : @(MFMailComposeResultFailed)
  };
  NSNumber *result = [results objectForKey:[answer lowercaseString]];
  if (result == nil) return @"Say how: mail send | save | cancel | fail";
  SimMailComposerFinish((MFMailComposeViewController *)modal, (MFMailComposeResult)[result integerValue]);
  return nil;
}

- (NSString *)pasteboardText {
  NSString *text = [[UIPasteboard generalPasteboard] string];
  return text != nil ? [NSString stringWithFormat:@"Pasteboard: %@\n", text] : @"The pasteboard is empty.\n";
}

- (NSString *)enterText:(NSString *)text into:(SettingsScreenItem *)item {
  PSSpecifier *specifier = [item specifier];
  UIViewController *page = [item controller];
  long type = (long)[specifier cellType];
  if ([item footerLink] || (type != kEditTextCellType && type != kSecureEditTextCellType))
    return @"That row is not a text row.";
  if (!SettingsScreenRowEnabled(specifier)) return @"That row is disabled.";
  if (![page isKindOfClass:[PSListController class]]) return @"That row's page cannot be typed into.";
  id cell = [(PSListController *)page cachedCellForSpecifier:specifier];
  if (![cell isKindOfClass:[PSEditableTableCell class]]) return @"That row has no text field.";
  return SimEditableCellType((PSEditableTableCell *)cell, text) ? nil : @"The text field did not take the text.";
}

- (NSString *)press:(NSString *)title {
  UINavigationItem *navigationItem = [[[self screen] page] navigationItem];
  NSMutableArray *buttons = [NSMutableArray array];
  if ([navigationItem leftBarButtonItem] != nil) [buttons addObject:[navigationItem leftBarButtonItem]];
  if ([navigationItem rightBarButtonItem] != nil) [buttons addObject:[navigationItem rightBarButtonItem]];
  for (UIBarButtonItem *button in buttons) {
    if ([[button title] caseInsensitiveCompare:title] != NSOrderedSame) continue;
    if ([button action] == NULL) return @"That bar button has no action.";
    return SimTapBarButtonItem(button) ? nil : @"The bar button did not respond.";
  }
  return [NSString stringWithFormat:@"This page has no bar button \"%@\".", title];
}

// The page's search bar, or why there is none.
- (UISearchBar *)searchBar:(NSString **)problem {
  UIViewController *page = [[self screen] page];
  UISearchController *search = [[page navigationItem] searchController];
  if (search == nil) *problem = @"This page has no search field.";
  return [search searchBar];
}

// Types into the page's search field as a person does: the field takes the keyboard, what
// it holds goes with its clear button, then the words one key at a time.
- (NSString *)search:(NSString *)words {
  NSString *problem = nil;
  UISearchBar *bar = [self searchBar:&problem];
  if (bar == nil) return problem;
  if ([words length] == 0) {
    if (![[[bar searchTextField] text] length] && ![bar isFirstResponder]) return @"The search field is empty.";
    return SimSearchBarTapCancel(bar) ? nil : @"The search field has no Cancel button now.";
  }
  if (!SimSearchBarClear(bar)) return @"The search field would not clear.";
  return SimSearchBarType(bar, words) ? nil : @"The search field does not take the keyboard.";
}

// A touch on one letter of the page's section index.
- (NSString *)index:(NSString *)letter {
  UIViewController *page = [[self screen] page];
  UITableView *table = [page isKindOfClass:[PSListController class]] ? [(PSListController *)page table] : nil;
  NSArray *titles = SimTableViewSectionIndexTitles(table);
  if ([titles count] == 0) return @"This page shows no index.";
  for (NSString *title in titles) {
    if ([title caseInsensitiveCompare:letter] != NSOrderedSame) continue;
    return SimTableViewTapSectionIndex(table, title) ? nil : @"The index did not respond.";
  }
  return [NSString
      stringWithFormat:@"The index has no \"%@\": it shows %@.", letter, [titles componentsJoinedByString:@" "]];
}

- (BOOL)openEntryNamed:(NSString *)label {
  [self render];
  for (SettingsScreenItem *item in [[self screen] items]) {
    if (![item footerLink] && [[[item specifier] name] isEqualToString:label]) {
      NSString *problem = [self tap:item];
      [self settle];
      [self render];
      return problem == nil;
    }
  }
  return NO;
}

- (NSString *)perform:(NSString *)line {
  NSString *trimmed = [line stringByTrimmingCharactersInSet:[NSCharacterSet whitespaceAndNewlineCharacterSet]];
  if ([trimmed length] == 0 || [trimmed hasPrefix:@"#"]) return @"";
  NSArray *words = commandWords(trimmed);
  if ([words count] == 0) return @"";
  NSString *verb = [[words objectAtIndex:0] lowercaseString];
  NSUInteger count = [words count];
  NSString *problem = nil;

  if ([verb isEqualToString:@"quit"] || [verb isEqualToString:@"exit"]) {
    _finished = YES;
    return @"";
  }
  if ([verb isEqualToString:@"help"] || [verb isEqualToString:@"?"]) return [SettingsConsole helpText];
  if ([verb isEqualToString:@"pasteboard"] && count == 1) return [self pasteboardText];
  if ([verb isEqualToString:@"show"]) {
    [self settle];
    return [self render];
  }
  if ([verb isEqualToString:@"icons"]) {
    [self settle];
    [self render];
    return SettingsRowIconsReport([self screen]);
  }
  if ([verb isEqualToString:@"screenshot"] && count >= 2 && count <= 4) {
    // screenshot FILE [full] [@1x|@2x|@3x]
    BOOL full = NO, understood = YES;
    CGFloat scale = 0;
    for (NSUInteger i = 2; i < count; i++) {
      NSString *word = [words objectAtIndex:i];
      if ([word isEqualToString:@"full"]) {
        full = YES;
      } else if ([word hasPrefix:@"@"] && [word hasSuffix:@"x"] && [word length] == 3 &&
                 [word characterAtIndex:1] >= '1' && [word characterAtIndex:1] <= '3') {
        scale = [word characterAtIndex:1] - '0';
      } else {
        understood = NO;
      }
    }
    if (!understood) return @"Say it so: screenshot FILE.png [full] [@1x|@2x|@3x]\n";
    [self settle];
    NSString *failure = SettingsWriteScreenshot([words objectAtIndex:1], full, scale);
    return failure != nil ? [failure stringByAppendingString:@"\n"]
                          : [NSString stringWithFormat:@"Picture written: %@\n", [words objectAtIndex:1]];
  }
  if ([verb isEqualToString:@"gallery"] && count == 2) {
    [self settle];
    return SettingsWriteGallery(self, [words objectAtIndex:1]);
  }
  if ([verb isEqualToString:@"wait"]) {
    double seconds = count == 2 ? [[words objectAtIndex:1] doubleValue] : -1;
    if (seconds < 0 || seconds > 600 || (seconds == 0 && ![[words objectAtIndex:1] hasPrefix:@"0"])) {
      return @"Say how long: wait SECONDS (e.g. wait 1.5).\n";
    }
    SimRunLoopRunFor(seconds);
    [self settle];
    return [self render];
  }

  [self render];
  if ([self ignoringTouches]) {  // every command below is a touch on the screen
    problem = @"The app ignores touches right now; try: wait 1";
  } else if ([verb isEqualToString:@"tap"] && count == 2) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self tap:item];
    }
  } else if ([verb isEqualToString:@"tap"] && count == 3) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil
                    ? @"Answer the alert first (alert N)."
                    : SettingsIconRowTap([item specifier], [item controller], [words objectAtIndex:2]);
    }
  } else if ([verb isEqualToString:@"flip"] && count == 2) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self setSwitch:item to:nil];
    }
  } else if ([verb isEqualToString:@"switch"] && count == 3) {
    NSString *state = [[words objectAtIndex:2] lowercaseString];
    BOOL on = [state isEqualToString:@"on"];
    if (!on && ![state isEqualToString:@"off"]) {
      problem = @"Say on or off: switch N on|off";
    } else {
      SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
      if (item != nil) {
        problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self setSwitch:item to:@(on)];
      }
    }
  } else if ([verb isEqualToString:@"slide"] && count == 3) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)."
                                             : [self slide:item to:[words objectAtIndex:2]];
    }
  } else if ([verb isEqualToString:@"alert"]) {
    problem = [self triggerAlert:words];
  } else if ([verb isEqualToString:@"type"] && count == 2) {
    problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self type:[words objectAtIndex:1]];
  } else if ([verb isEqualToString:@"back"] && count == 1) {
    problem = [self back];
  } else if ([verb isEqualToString:@"cancel"] && count == 1) {
    problem = [self cancel];
  } else if ([verb isEqualToString:@"delete"] && count == 2) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil)
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self deleteRow:item];
  } else if ([verb isEqualToString:@"touch"] && count == 3) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)."
                                             : [self touch:item at:[words objectAtIndex:2]];
    }
  } else if ([verb isEqualToString:@"share"] && count == 1) {
    problem = [self share];
  } else if ([verb isEqualToString:@"mail"] && count == 2) {
    problem = [self answerMail:[words objectAtIndex:1]];
  } else if ([verb isEqualToString:@"text"] && count == 3) {
    SettingsScreenItem *item = [self itemNumbered:[words objectAtIndex:1] error:&problem];
    if (item != nil) {
      problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)."
                                             : [self enterText:[words objectAtIndex:2] into:item];
    }
  } else if ([verb isEqualToString:@"search"]) {
    NSString *typed = [[words subarrayWithRange:NSMakeRange(1, count - 1)] componentsJoinedByString:@" "];
    problem = [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self search:typed];
  } else if ([verb isEqualToString:@"index"] && count == 2) {
    problem =
        [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self index:[words objectAtIndex:1]];
  } else if ([verb isEqualToString:@"press"] && count == 2) {
    problem =
        [[self screen] alert] != nil ? @"Answer the alert first (alert N)." : [self press:[words objectAtIndex:1]];
  } else {
    return [NSString stringWithFormat:@"Unknown command: %@\n%@", trimmed, [SettingsConsole helpText]];
  }
  if (problem != nil) return [problem stringByAppendingString:@"\n"];
  [self settle];
  return [self render];
}

@end
