// The search controller a navigation item holds.
//
// What it rests on (UIKit documentation of UINavigationItem, iOS 11): searchController puts
// the controller's search bar under the navigation bar; hidesSearchBarWhenScrolling (default
// YES) lets the bar scroll away with the content and come back at its top, NO keeps it pinned.
#import "UIKitInternal.h"

@implementation UINavigationItem (UISearchController)
- (UISearchController *)searchController {
  return _searchController;
}
- (void)setSearchController:(UISearchController *)searchController {
  [searchController retain];
  [_searchController release];
  _searchController = searchController;
}
- (BOOL)hidesSearchBarWhenScrolling {
  return !_showsSearchBarWhileScrolling;
}
- (void)setHidesSearchBarWhenScrolling:(BOOL)hides {
  _showsSearchBarWhileScrolling = !hides;
}
@end
