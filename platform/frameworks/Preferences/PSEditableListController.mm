#import <Preferences/PreferencesSimulation.h>

@implementation PSEditableListController
@synthesize editable = _editable;
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super initWithNibName:nibNameOrNil bundle:nibBundleOrNil])) _editable = YES;
  return self;
}
- (void)viewWillAppear:(BOOL)animated {
  [super viewWillAppear:animated];
  if (_editable && !_editingDisabled && !self.navigationItem.rightBarButtonItem)
    self.navigationItem.rightBarButtonItem = [self editButtonItem];
}
- (void)setEditingButtonHidden:(BOOL)hidden animated:(BOOL)animated {
  _editingDisabled = hidden;
  [self.navigationItem setRightBarButtonItem:hidden ? nil : [self editButtonItem] animated:animated];
}
- (void)setEditing:(BOOL)editing animated:(BOOL)animated {
  [super setEditing:editing animated:animated];
  [_table setEditing:editing animated:animated];
}
- (void)editDoneTapped {
  [self setEditing:NO animated:YES];
}
- (BOOL)tableView:(UITableView *)tableView canEditRowAtIndexPath:(NSIndexPath *)indexPath {
  return _editable;
}
- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView
           editingStyleForRowAtIndexPath:(NSIndexPath *)indexPath {
  return _editable ? UITableViewCellEditingStyleDelete : UITableViewCellEditingStyleNone;
}
- (void)tableView:(UITableView *)tableView
    commitEditingStyle:(UITableViewCellEditingStyle)style
     forRowAtIndexPath:(NSIndexPath *)indexPath {
  if (style != UITableViewCellEditingStyleDelete) return;
  PSSpecifier *s = [self specifierAtIndexPath:indexPath];
  if (s) [self performDeletionActionForSpecifier:s];
}
// As the framework does it: the row goes first, then its own "deletionAction" (if any) runs.
- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier {
  [[specifier retain] autorelease];
  [self removeSpecifier:specifier animated:YES];
  id action = [specifier propertyForKey:@"deletionAction"];
  SEL deletion = [action isKindOfClass:[NSString class]] ? NSSelectorFromString(action) : NULL;
  if (deletion && [specifier.target respondsToSelector:deletion])
    [specifier.target performSelector:deletion withObject:specifier];
  return YES;
}
@end

BOOL SimEditableListSwipeToDelete(PSListController *controller, PSSpecifier *specifier) {
  if (!controller || !specifier || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  [controller view];
  NSIndexPath *path = [controller indexPathForSpecifier:specifier];
  UITableView *table = [controller table];
  if (!path || !table) return NO;
  // The swipe offers a delete button only for rows whose editing style is delete.
  id<UITableViewDelegate> delegate = table.delegate;
  UITableViewCellEditingStyle style = UITableViewCellEditingStyleDelete;
  if ([delegate respondsToSelector:@selector(tableView:editingStyleForRowAtIndexPath:)])
    style = [delegate tableView:table editingStyleForRowAtIndexPath:path];
  if (style != UITableViewCellEditingStyleDelete) return NO;
  return SimTableViewCommitEditing(table, UITableViewCellEditingStyleDelete, path);
}
