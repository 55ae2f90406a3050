#ifndef UIKIT_UISEARCHBAR_H
#define UIKIT_UISEARCHBAR_H

#import <UIKit/UIView.h>
#import <UIKit/UITextField.h>

@class UISearchBar;

@protocol UISearchBarDelegate <NSObject>
@optional
- (BOOL)searchBarShouldBeginEditing:(UISearchBar *)searchBar;
- (void)searchBarTextDidBeginEditing:(UISearchBar *)searchBar;
- (BOOL)searchBarShouldEndEditing:(UISearchBar *)searchBar;
- (void)searchBarTextDidEndEditing:(UISearchBar *)searchBar;
- (void)searchBar:(UISearchBar *)searchBar textDidChange:(NSString *)searchText;
- (BOOL)searchBar:(UISearchBar *)searchBar shouldChangeTextInRange:(NSRange)range replacementText:(NSString *)text;
- (void)searchBarSearchButtonClicked:(UISearchBar *)searchBar;
- (void)searchBarCancelButtonClicked:(UISearchBar *)searchBar;
@end

/* The search field of iOS 13 and later (on earlier systems a private UITextField subclass). */
@interface UISearchTextField : UITextField
@end

/* A search bar: a text field the user types into, a Cancel button. Typing goes to the
   field (UIKeyInput); every change of the text by the user tells the delegate
   (searchBar:textDidChange:) and the search controller the bar belongs to. Setting `text`
   in code tells nobody, as in UIKit. */
@interface UISearchBar : UIView <UITextFieldDelegate> {
  UISearchTextField *_searchField;
  id _delegate;
  NSString *_prompt;
  BOOL _showsCancelButton;
  id _searchController;
}
@property (nonatomic, copy) NSString *text;
/* nil shows the system's "Search". */
@property (nonatomic, copy) NSString *placeholder;
@property (nonatomic, copy) NSString *prompt;
@property (nonatomic, assign) id<UISearchBarDelegate> delegate;
@property (nonatomic) BOOL showsCancelButton;
- (void)setShowsCancelButton:(BOOL)showsCancelButton animated:(BOOL)animated;
@property (nonatomic) UITextAutocapitalizationType autocapitalizationType;
@property (nonatomic) UITextAutocorrectionType autocorrectionType;
@property (nonatomic) UIKeyboardType keyboardType;
/* iOS 13 and later. */
@property (nonatomic, readonly) UISearchTextField *searchTextField;
@end

#endif
