#ifndef UIKIT_UISEARCHCONTROLLER_H
#define UIKIT_UISEARCHCONTROLLER_H

#import <UIKit/UIViewController.h>
#import <UIKit/UISearchBar.h>

@class UISearchController;

@protocol UISearchResultsUpdating <NSObject>
@required
- (void)updateSearchResultsForSearchController:(UISearchController *)searchController;
@end

@protocol UISearchControllerDelegate <NSObject>
@optional
- (void)willPresentSearchController:(UISearchController *)searchController;
- (void)didPresentSearchController:(UISearchController *)searchController;
- (void)willDismissSearchController:(UISearchController *)searchController;
- (void)didDismissSearchController:(UISearchController *)searchController;
@end

/* A search controller (iOS 8), shown by a page through its navigation item's
   searchController (iOS 11). It becomes active when its search bar begins editing and
   inactive when the user taps Cancel or the code sets `active` to NO; it asks its updater
   to update the results when the bar begins editing, at every change the user makes to the
   text, and when it is dismissed (the text then empty). With no results controller the
   page's own content shows the results. */
@interface UISearchController : UIViewController {
  UISearchBar *_searchBar;
  UIViewController *_searchResultsController;
  id _searchResultsUpdater;
  id _searchDelegate;
  BOOL _active;
  BOOL _obscuresBackgroundDuringPresentation;
  BOOL _hidesNavigationBarDuringPresentation;
}
- (instancetype)initWithSearchResultsController:(UIViewController *)searchResultsController;
@property (nonatomic, assign) id<UISearchResultsUpdating> searchResultsUpdater;
@property (nonatomic, getter=isActive) BOOL active;
@property (nonatomic, assign) id<UISearchControllerDelegate> delegate;
/* Default YES (iOS 9.1). */
@property (nonatomic) BOOL obscuresBackgroundDuringPresentation;
/* Default YES. */
@property (nonatomic) BOOL hidesNavigationBarDuringPresentation;
@property (nonatomic, readonly) UIViewController *searchResultsController;
@property (nonatomic, readonly) UISearchBar *searchBar;
@end

#endif
