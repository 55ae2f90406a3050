// The search bar and its field.
//
// What it rests on (UIKit documentation of UISearchBar and UISearchBarDelegate): the user's
// typing changes the text and calls searchBar:textDidChange:; searchBarShouldBeginEditing: may
// refuse the keyboard; searchBarTextDidBeginEditing: and searchBarTextDidEndEditing: follow the
// field's editing; the Cancel button calls searchBarCancelButtonClicked:. A bar that belongs to
// a UISearchController also tells its controller (UISearchController's documentation: the
// updater hears of the bar becoming first responder and of every change the user makes).
// Text set in code notifies nobody. The placeholder left nil shows "Search".
#import <UIKit/UIKitSimulation.h>

#import "UIKitInternal.h"

@implementation UISearchBar
@synthesize delegate = _delegate;
@synthesize prompt = _prompt;
@synthesize showsCancelButton = _showsCancelButton;
- (instancetype)initWithFrame:(CGRect)frame {
  if (CGRectIsEmpty(frame)) frame = CGRectMake(0, 0, [UIScreen mainScreen].bounds.size.width, 56);
  if ((self = [super initWithFrame:frame])) {
    _searchField = [[UISearchTextField alloc] initWithFrame:CGRectInset(self.bounds, 8, 10)];
    _searchField.delegate = self;
    _searchField.returnKeyType = UIReturnKeySearch;
    _searchField.clearButtonMode = UITextFieldViewModeWhileEditing;
    [_searchField addTarget:self action:@selector(_simFieldChanged:) forControlEvents:UIControlEventEditingChanged];
    [self addSubview:_searchField];
  }
  return self;
}
- (instancetype)init {
  return [self initWithFrame:CGRectZero];
}
- (void)dealloc {
  [_searchField removeTarget:self action:NULL forControlEvents:UIControlEventAllEvents];
  _searchField.delegate = nil;
  [_searchField release];
  [_prompt release];
  [super dealloc];
}
- (UISearchTextField *)searchTextField {
  return _searchField;
}
- (NSString *)text {
  return _searchField.text;
}
- (void)setText:(NSString *)text {
  _searchField.text = text;
}
- (NSString *)placeholder {
  return _searchField.placeholder;
}
- (void)setPlaceholder:(NSString *)placeholder {
  _searchField.placeholder = placeholder;
}
- (void)setShowsCancelButton:(BOOL)shows animated:(BOOL)animated {
  self.showsCancelButton = shows;
}
- (UITextAutocapitalizationType)autocapitalizationType {
  return _searchField.autocapitalizationType;
}
- (void)setAutocapitalizationType:(UITextAutocapitalizationType)type {
  _searchField.autocapitalizationType = type;
}
- (UITextAutocorrectionType)autocorrectionType {
  return _searchField.autocorrectionType;
}
- (void)setAutocorrectionType:(UITextAutocorrectionType)type {
  _searchField.autocorrectionType = type;
}
- (UIKeyboardType)keyboardType {
  return _searchField.keyboardType;
}
- (void)setKeyboardType:(UIKeyboardType)type {
  _searchField.keyboardType = type;
}
- (BOOL)canBecomeFirstResponder {
  return [_searchField canBecomeFirstResponder];
}
- (BOOL)becomeFirstResponder {
  return [_searchField becomeFirstResponder];
}
- (BOOL)resignFirstResponder {
  return [_searchField resignFirstResponder];
}
- (BOOL)isFirstResponder {
  return [_searchField isFirstResponder];
}

// The field's editing, as the bar's.

- (BOOL)textFieldShouldBeginEditing:(UITextField *)field {
  return ![_delegate respondsToSelector:@selector(searchBarShouldBeginEditing:)] ||
         [_delegate searchBarShouldBeginEditing:self];
}
- (void)textFieldDidBeginEditing:(UITextField *)field {
  [[self retain] autorelease];
  if ([_delegate respondsToSelector:@selector(searchBarTextDidBeginEditing:)])
    [_delegate searchBarTextDidBeginEditing:self];
  [_searchController _simSearchBarDidBeginEditing:self];
}
- (BOOL)textFieldShouldEndEditing:(UITextField *)field {
  return ![_delegate respondsToSelector:@selector(searchBarShouldEndEditing:)] ||
         [_delegate searchBarShouldEndEditing:self];
}
- (void)textFieldDidEndEditing:(UITextField *)field {
  if ([_delegate respondsToSelector:@selector(searchBarTextDidEndEditing:)])
    [_delegate searchBarTextDidEndEditing:self];
}
- (BOOL)textField:(UITextField *)field
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString *)string {
  return ![_delegate respondsToSelector:@selector(searchBar:shouldChangeTextInRange:replacementText:)] ||
         [_delegate searchBar:self shouldChangeTextInRange:range replacementText:string];
}
- (BOOL)textFieldShouldReturn:(UITextField *)field {
  if ([_delegate respondsToSelector:@selector(searchBarSearchButtonClicked:)])
    [_delegate searchBarSearchButtonClicked:self];
  return YES;
}
- (void)_simFieldChanged:(UITextField *)field {
  [[self retain] autorelease];
  if ([_delegate respondsToSelector:@selector(searchBar:textDidChange:)])
    [_delegate searchBar:self textDidChange:self.text];
  [_searchController _simSearchBarTextDidChange:self];
}

- (id)_simSearchController {
  return _searchController;
}
- (void)_simSetSearchController:(id)controller {
  _searchController = controller;
}
@end

BOOL SimSearchBarType(UISearchBar *bar, NSString *text) {
  if (!bar || ![text isKindOfClass:[NSString class]] || [[UIApplication sharedApplication] isIgnoringInteractionEvents])
    return NO;
  if (![bar becomeFirstResponder]) return NO;
  UISearchTextField *field = bar.searchTextField;
  // One keystroke per character as the user sees it (a letter with its accents is one).
  NSUInteger at = 0;
  while (at < text.length) {
    NSRange key = [text rangeOfComposedCharacterSequenceAtIndex:at];
    [field insertText:[text substringWithRange:key]];
    at = NSMaxRange(key);
  }
  return YES;
}

BOOL SimSearchBarClear(UISearchBar *bar) {
  if (!bar || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  UISearchTextField *field = bar.searchTextField;
  if (!field.text.length) return YES;
  // The field's clear button: the text goes in one change, and the field keeps the keyboard.
  if ([field.delegate respondsToSelector:@selector(textFieldShouldClear:)] &&
      ![field.delegate textFieldShouldClear:field])
    return NO;
  [bar becomeFirstResponder];
  [field _simReplaceRange:NSMakeRange(0, field.text.length) with:@""];
  return YES;
}

BOOL SimSearchBarTapCancel(UISearchBar *bar) {
  if (!bar || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  id controller = [bar _simSearchController];
  if (!bar.showsCancelButton && ![controller isActive]) return NO;
  [[bar retain] autorelease];
  id<UISearchBarDelegate> delegate = bar.delegate;
  if ([delegate respondsToSelector:@selector(searchBarCancelButtonClicked:)])
    [delegate searchBarCancelButtonClicked:bar];
  [controller _simSearchBarCancelled:bar];
  return YES;
}
