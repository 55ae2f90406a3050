// The search controller.
//
// What it rests on (UIKit documentation of UISearchController, UISearchResultsUpdating and
// UINavigationItem): the controller becomes active when its search bar becomes first
// responder, and the results updater's updateSearchResultsForSearchController: is called then
// and whenever the user changes the bar's text; Cancel, or `active` set to NO, dismisses the
// search: the bar gives up the keyboard, its text is emptied and the updater is asked once
// more; the delegate hears willPresent/didPresent and willDismiss/didDismiss around it.
// obscuresBackgroundDuringPresentation and hidesNavigationBarDuringPresentation default to
// YES.
//
// Not simulated: the controller is not presented as a view controller of its own (pages here
// show the results in their own table, with no results controller), so nothing dims.
#import <UIKit/UIKitSimulation.h>

#import "UIKitInternal.h"

@implementation UISearchController
@synthesize searchResultsUpdater = _searchResultsUpdater;
@synthesize delegate = _searchDelegate;
@synthesize obscuresBackgroundDuringPresentation = _obscuresBackgroundDuringPresentation;
@synthesize hidesNavigationBarDuringPresentation = _hidesNavigationBarDuringPresentation;
@synthesize searchResultsController = _searchResultsController;
@synthesize searchBar = _searchBar;
- (instancetype)initWithSearchResultsController:(UIViewController *)searchResultsController {
  if ((self = [super initWithNibName:nil bundle:nil])) {
    _searchResultsController = [searchResultsController retain];
    _searchBar = [[UISearchBar alloc] initWithFrame:CGRectZero];
    [_searchBar _simSetSearchController:self];
    _obscuresBackgroundDuringPresentation = YES;
    _hidesNavigationBarDuringPresentation = YES;
  }
  return self;
}
- (instancetype)initWithNibName:(NSString *)nibName bundle:(NSBundle *)bundle {
  return [self initWithSearchResultsController:nil];
}
- (void)dealloc {
  [_searchBar _simSetSearchController:nil];
  [_searchBar release];
  [_searchResultsController release];
  [super dealloc];
}
- (BOOL)isActive {
  return _active;
}
- (void)setActive:(BOOL)active {
  if (active == _active) return;
  [[self retain] autorelease];
  id<UISearchControllerDelegate> delegate = _searchDelegate;
  if (active) {
    if ([delegate respondsToSelector:@selector(willPresentSearchController:)])
      [delegate willPresentSearchController:self];
    _active = YES;
    _searchBar.showsCancelButton = YES;
    [_searchResultsUpdater updateSearchResultsForSearchController:self];
    if ([delegate respondsToSelector:@selector(didPresentSearchController:)])
      [delegate didPresentSearchController:self];
    return;
  }
  if ([delegate respondsToSelector:@selector(willDismissSearchController:)])
    [delegate willDismissSearchController:self];
  _active = NO;
  [_searchBar resignFirstResponder];
  _searchBar.text = @"";
  _searchBar.showsCancelButton = NO;
  [_searchResultsUpdater updateSearchResultsForSearchController:self];
  if ([delegate respondsToSelector:@selector(didDismissSearchController:)]) [delegate didDismissSearchController:self];
}
- (void)_simSearchBarDidBeginEditing:(UISearchBar *)bar {
  if (!_active)
    self.active = YES;
  else
    [_searchResultsUpdater updateSearchResultsForSearchController:self];
}
- (void)_simSearchBarTextDidChange:(UISearchBar *)bar {
  if (!_active) {
    self.active = YES;  // already asks the updater
    return;
  }
  [_searchResultsUpdater updateSearchResultsForSearchController:self];
}
- (void)_simSearchBarCancelled:(UISearchBar *)bar {
  self.active = NO;
}
@end
