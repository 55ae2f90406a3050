#ifndef UIKIT_UINAVIGATIONBAR_H
#define UIKIT_UINAVIGATIONBAR_H

#import <UIKit/UIView.h>
#import <UIKit/UIBarButtonItem.h>

@class UIColor;
@class UISearchController;

typedef NS_ENUM(NSInteger, UIBarStyle) {
  UIBarStyleDefault = 0,
  UIBarStyleBlack = 1,
};

@interface UINavigationItem : NSObject {
  NSString *_title;
  UIView *_titleView;
  NSString *_prompt;
  UIBarButtonItem *_backBarButtonItem;
  NSArray *_leftBarButtonItems;
  NSArray *_rightBarButtonItems;
  BOOL _hidesBackButton;
  NSInteger _largeTitleDisplayMode;
  UISearchController *_searchController;
  BOOL _showsSearchBarWhileScrolling;
}
- (instancetype)initWithTitle:(NSString *)title;
@property (nonatomic, copy) NSString *title;
@property (nonatomic, retain) UIView *titleView;
@property (nonatomic, copy) NSString *prompt;
@property (nonatomic, retain) UIBarButtonItem *backBarButtonItem;
@property (nonatomic) BOOL hidesBackButton;
- (void)setHidesBackButton:(BOOL)hidesBackButton animated:(BOOL)animated;
@property (nonatomic, copy) NSArray *leftBarButtonItems;
@property (nonatomic, copy) NSArray *rightBarButtonItems;
- (void)setLeftBarButtonItems:(NSArray *)items animated:(BOOL)animated;
- (void)setRightBarButtonItems:(NSArray *)items animated:(BOOL)animated;
@property (nonatomic, retain) UIBarButtonItem *leftBarButtonItem;
@property (nonatomic, retain) UIBarButtonItem *rightBarButtonItem;
- (void)setLeftBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
- (void)setRightBarButtonItem:(UIBarButtonItem *)item animated:(BOOL)animated;
@property (nonatomic) NSInteger largeTitleDisplayMode;
@end

@interface UINavigationItem (UISearchController)
/* iOS 11: the search controller whose bar the navigation bar shows, and whether the bar
   hides as the page's content scrolls up (default YES; NO keeps it pinned). */
@property (nonatomic, retain) UISearchController *searchController;
@property (nonatomic) BOOL hidesSearchBarWhenScrolling;
@end

@interface UINavigationBar : UIView {
  UIBarStyle _barStyle;
  BOOL _translucent;
  UIColor *_barTintColor;
  NSDictionary *_titleTextAttributes;
  BOOL _prefersLargeTitles;
  NSArray *_items;
}
@property (nonatomic) UIBarStyle barStyle;
@property (nonatomic, getter=isTranslucent) BOOL translucent;
@property (nonatomic, retain) UIColor *barTintColor;
@property (nonatomic, copy) NSDictionary *titleTextAttributes;
@property (nonatomic) BOOL prefersLargeTitles;
@property (nonatomic, copy) NSArray *items;
@property (nonatomic, readonly) UINavigationItem *topItem;
@property (nonatomic, readonly) UINavigationItem *backItem;
@end

#endif
