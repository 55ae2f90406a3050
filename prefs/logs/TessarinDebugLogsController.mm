#import "logs/TessarinDebugLogsController.h"
#import "core/Strings.h"
#import "core/Alerts.h"
#import "core/BundleLookup.h"
#import "core/Paths.h"
#import "logs/LogFiles.h"
#import "logs/TessarinCrashLogViewer.h"

#include <optional>
#include <string>
#include <vector>

namespace {

namespace logs = tessarin::logs;

// The rows are rebuilt this long after a deletion, once the row's removal has played.
const double kReloadDelay = 0.4;

NSString *fileName(const std::string &file) {
  return [[NSFileManager defaultManager] stringWithFileSystemRepresentation:file.c_str() length:file.size()];
}

}  // namespace

@implementation TessarinDebugLogsController

- (NSArray *)specifiers {
  if (_specifiers != nil) return _specifiers;

  Class viewer = [TessarinCrashLogViewer class];
  Class cellClass = NSClassFromString(@"PSUIAppleIDAccountDetailsLinkCell");
  NSMutableArray *logRows = [NSMutableArray array];
  for (const logs::ListedLog &log : logs::listedLogs(deviceLogDirectory())) {
    NSString *name = fileName(log.file);
    if (name == nil) continue;  // a name the system cannot show
    PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                      target:nil
                                                         set:NULL
                                                         get:NULL
                                                      detail:viewer
                                                        cell:PSLinkCell
                                                        edit:Nil];
    if (cellClass != Nil) [row setProperty:cellClass forKey:@"cellClass"];
    [row setProperty:name forKey:@"logFile"];
    NSString *subtitle = log.subtitle ? nsString(*log.subtitle) : nil;
    if (subtitle != nil) [row setProperty:subtitle forKey:@"cellSubtitleText"];
    [logRows addObject:row];
  }

  NSMutableArray *rows = [NSMutableArray array];
  // Counted in logs listed, not in directory entries: a latest link whose log is gone
  // or anything else that is no log must not hide that there is nothing to read.
  if ([logRows count] == 0) {
    PSSpecifier *nothing = [PSSpecifier groupSpecifierWithName:nil];
    [nothing setProperty:localizedString(@"NO_CRASHES_RECORDED", @"No crashes recorded :)") forKey:@"footerText"];
    [nothing setProperty:@(1) forKey:@"footerAlignment"];
    [rows addObject:nothing];
  }
  [rows addObject:[PSSpecifier groupSpecifierWithName:localizedString(@"CRASH_LOGS_GROUP", @"Crash Logs")]];
  [rows addObjectsFromArray:logRows];

  _specifiers = [rows copy];
  return _specifiers;
}

- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView
           editingStyleForRowAtIndexPath:(NSIndexPath *)indexPath {
  return UITableViewCellEditingStyleDelete;
}

- (BOOL)tableView:(UITableView *)tableView shouldIndentWhileEditingRowAtIndexPath:(NSIndexPath *)indexPath {
  return YES;
}

- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier {
  logs::deleteForRow(deviceLogDirectory(), fileSystemName([specifier propertyForKey:@"logFile"]));

  BOOL removed = [super performDeletionActionForSpecifier:specifier];
  // Rebuilt a moment later, so the last deletion shows that nothing is left.
  [self retain];
  dispatch_after(dispatch_time(DISPATCH_TIME_NOW, (int64_t)(kReloadDelay * NSEC_PER_SEC)), dispatch_get_main_queue(), ^{
    [self reloadSpecifiers];
    [self release];
  });
  return removed;
}

@end
