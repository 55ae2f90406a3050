#import "SettingsPictures.h"
#import "HostPrivateAPI.h"
#import "SettingsConsole.h"
#import "SettingsScreen.h"

#include <Simulator/Simulator.h>

#import "SimRender.h"

NSString *SettingsWriteScreenshot(NSString *path, BOOL fullPage, CGFloat scale) {
  if ([path length] == 0) return @"Say where: screenshot FILE.png";
  NSString *folder = [path stringByDeletingLastPathComponent];
  if ([folder length] > 0) {
    [[NSFileManager defaultManager] createDirectoryAtPath:folder
                              withIntermediateDirectories:YES
                                               attributes:nil
                                                    error:NULL];
  }
  SimScreenPicture *picture = SimRenderSettingsScreen(fullPage);
  if (picture == nil) return @"The screen could not be drawn.";
  return [picture writePNGToFile:path scale:scale] ? nil : [NSString stringWithFormat:@"Cannot write %@.", path];
}

#pragma mark - Gallery

// Cell types of rows that open something when tapped: links, link lists, buttons. Switches,
// sliders, choices and text rows change settings and are left as they are.
static BOOL opensSomething(PSSpecifier *specifier) {
  switch ((long)[specifier cellType]) {
    case 1:   // link
    case 2:   // link list
    case 13:  // button
      return [specifier propertyForKey:@"enabled"] == nil || [[specifier propertyForKey:@"enabled"] boolValue];
    default:
      return NO;
  }
}

@interface SettingsGalleryWalk : NSObject {
  SettingsConsole *_console;
  NSString *_folder;
  NSMutableString *_manifest;
  NSMutableString *_report;
  NSUInteger _count;
}
@property (nonatomic, assign) SettingsConsole *console;
@property (nonatomic, copy) NSString *folder;
@property (nonatomic, retain) NSMutableString *manifest;  // pages.tsv: file, tab, page name
@property (nonatomic, retain) NSMutableString *report;    // what the command prints
@property (nonatomic, assign) NSUInteger count;           // pictures written
@end

@implementation SettingsGalleryWalk
@synthesize console = _console;
@synthesize folder = _folder;
@synthesize manifest = _manifest;
@synthesize report = _report;
@synthesize count = _count;

static const NSUInteger kMostPictures = 400;
static const int kDeepest = 3;

- (instancetype)init {
  if ((self = [super init])) {
    _manifest = [[NSMutableString alloc] init];
    _report = [[NSMutableString alloc] init];
  }
  return self;
}

- (void)dealloc {
  [_folder release];
  [_manifest release];
  [_report release];
  [super dealloc];
}

- (SettingsScreen *)look {
  [_console render];
  return [_console screen];
}

// What identifies a screen: the page on top, the modal page and the alert over it.
- (NSString *)signatureOf:(SettingsScreen *)screen {
  return [NSString stringWithFormat:@"%p %p %p", (void *)[screen page], (void *)[screen modal], (void *)[screen alert]];
}

// A page by the titles leading to it; an alert by the row that brought it up and its title.
- (NSString *)nameOf:(SettingsScreen *)screen under:(NSString *)trail row:(NSString *)row {
  NSString *page = SettingsScreenPageTitle([screen page]);
  NSString *name = trail == nil             ? page
                   : [trail hasSuffix:page] ? trail
                                            : [NSString stringWithFormat:@"%@ > %@", trail, page];
  if ([screen alert] != nil) {
    NSString *title = [[screen alert] title];
    if ([title length] == 0) title = [[screen alert] message];
    name = [NSString stringWithFormat:@"%@ > %@ (alert: %@)", trail != nil ? trail : page, row != nil ? row : @"",
                                      title != nil ? title : @""];
  }
  return name;
}

- (void)shoot:(NSString *)name {
  if (_count >= kMostPictures) return;
  _count++;
  NSString *file = [NSString stringWithFormat:@"%03lu.png", (unsigned long)_count];
  NSString *failure = SettingsWriteScreenshot([_folder stringByAppendingPathComponent:file], NO, 0);
  NSString *oneLine =
      [[name componentsSeparatedByCharactersInSet:[NSCharacterSet newlineCharacterSet]] componentsJoinedByString:@" "];
  oneLine = [oneLine stringByReplacingOccurrencesOfString:@"\t" withString:@" "];
  if (failure == nil) [_manifest appendFormat:@"%@\t%@\n", file, oneLine];
  [_report appendFormat:@"%@ %@%@\n", file, oneLine, failure != nil ? [@"  " stringByAppendingString:failure] : @""];
}

// The alert's gentlest answer: its cancel action, else one that only closes it.
- (NSUInteger)gentlestActionOf:(UIAlertController *)alert {
  NSArray *actions = [alert actions];
  for (NSUInteger i = 0; i < [actions count]; i++)
    if ([(UIAlertAction *)[actions objectAtIndex:i] style] == UIAlertActionStyleCancel) return i + 1;
  for (NSUInteger i = 0; i < [actions count]; i++) {
    NSString *title = [[[actions objectAtIndex:i] title] lowercaseString];
    if ([title isEqualToString:@"cancel"] || [title isEqualToString:@"ok"] || [title isEqualToString:@"close"] ||
        [title isEqualToString:@"no"] || [title isEqualToString:@"not now"])
      return i + 1;
  }
  for (NSUInteger i = 0; i < [actions count]; i++)
    if ([(UIAlertAction *)[actions objectAtIndex:i] style] != UIAlertActionStyleDestructive) return i + 1;
  return [actions count] > 0 ? 1 : 0;
}

// One step back towards `signature`: answers an alert, closes a modal page, or goes back.
- (void)stepBack {
  SettingsScreen *screen = [self look];
  if ([screen alert] != nil) {
    NSUInteger action = [self gentlestActionOf:[screen alert]];
    [_console perform:[NSString stringWithFormat:@"alert %lu", (unsigned long)action]];
    return;
  }
  if ([screen modal] != nil && [[[screen modal] viewControllers] count] <= 1) {
    UINavigationItem *item = [[screen page] navigationItem];
    for (UIBarButtonItem *button in
         @[ [item leftBarButtonItem] ?: [NSNull null], [item rightBarButtonItem] ?: [NSNull null] ]) {
      if (![button isKindOfClass:[UIBarButtonItem class]]) continue;
      if ([[[button title] lowercaseString] isEqualToString:@"cancel"] && [button action] != NULL) {
        SimTapBarButtonItem(button);
        [_console settle];
        return;
      }
    }
    [_console perform:@"cancel"];
    return;
  }
  [_console perform:@"back"];
}

- (BOOL)returnTo:(NSString *)signature {
  for (int attempt = 0; attempt < 4; attempt++) {
    if ([[self signatureOf:[self look]] isEqualToString:signature]) return YES;
    [self stepBack];
  }
  return [[self signatureOf:[self look]] isEqualToString:signature];
}

- (void)walk:(NSString *)trail depth:(int)depth {
  SettingsScreen *screen = [self look];
  NSString *home = [self signatureOf:screen];
  NSUInteger count = [[screen items] count];
  for (NSUInteger i = 0; i < count && _count < kMostPictures; i++) {
    screen = [self look];
    if (i >= [[screen items] count]) break;
    SettingsScreenItem *item = [[screen items] objectAtIndex:i];
    if ([item footerLink] || !opensSomething([item specifier])) continue;
    [_console perform:[NSString stringWithFormat:@"tap %lu", (unsigned long)(i + 1)]];
    SettingsScreen *after = [self look];
    if ([[self signatureOf:after] isEqualToString:home]) continue;
    NSString *name = [self nameOf:after under:trail row:[[item specifier] name]];
    [self shoot:name];
    if ([after alert] == nil && depth < kDeepest) [self walk:name depth:depth + 1];
    if (![self returnTo:home]) {
      [_report appendFormat:@"(could not come back to %@; the rest of it is left out)\n", trail];
      return;
    }
  }
}

- (NSString *)run {
  [[NSFileManager defaultManager] createDirectoryAtPath:_folder
                            withIntermediateDirectories:YES
                                             attributes:nil
                                                  error:NULL];
  SettingsScreen *screen = [self look];
  NSString *root = SettingsScreenPageTitle([screen page]);
  [self shoot:root];
  [self walk:root depth:1];
  NSString *manifest = [_folder stringByAppendingPathComponent:@"pages.tsv"];
  [_manifest writeToFile:manifest atomically:YES encoding:NSUTF8StringEncoding error:NULL];
  [_report appendFormat:@"%lu pictures in %@\n", (unsigned long)_count, _folder];
  return [[_report copy] autorelease];
}
@end

NSString *SettingsWriteGallery(SettingsConsole *console, NSString *folder) {
  if ([folder length] == 0) return @"Say where: gallery FOLDER\n";
  SettingsGalleryWalk *walk = [[[SettingsGalleryWalk alloc] init] autorelease];
  [walk setConsole:console];
  [walk setFolder:folder];
  return [walk run];
}
