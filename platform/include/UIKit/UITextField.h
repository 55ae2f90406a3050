#ifndef UIKIT_UITEXTFIELD_H
#define UIKIT_UITEXTFIELD_H

#import <UIKit/UIControl.h>
#import <UIKit/NSText.h>

@class UIFont;
@class UIColor;
@class UITextField;

typedef NS_ENUM(NSInteger, UITextBorderStyle) {
  UITextBorderStyleNone,
  UITextBorderStyleLine,
  UITextBorderStyleBezel,
  UITextBorderStyleRoundedRect,
};

typedef NS_ENUM(NSInteger, UITextFieldViewMode) {
  UITextFieldViewModeNever,
  UITextFieldViewModeWhileEditing,
  UITextFieldViewModeUnlessEditing,
  UITextFieldViewModeAlways,
};

@protocol UITextFieldDelegate <NSObject>
@optional
- (BOOL)textFieldShouldBeginEditing:(UITextField *)textField;
- (void)textFieldDidBeginEditing:(UITextField *)textField;
- (BOOL)textFieldShouldEndEditing:(UITextField *)textField;
- (void)textFieldDidEndEditing:(UITextField *)textField;
- (BOOL)textField:(UITextField *)textField
    shouldChangeCharactersInRange:(NSRange)range
                replacementString:(NSString *)string;
- (BOOL)textFieldShouldClear:(UITextField *)textField;
- (BOOL)textFieldShouldReturn:(UITextField *)textField;
@end

/* A one-line text field. Typing goes through insertText: (UIKeyInput); inserting "\n"
   presses Return: the delegate's textFieldShouldReturn: and EditingDidEndOnExit. */
@interface UITextField : UIControl <UIKeyInput> {
  NSString *_text;
  NSString *_placeholder;
  UIFont *_font;
  UIColor *_textColor;
  NSTextAlignment _textAlignment;
  UITextBorderStyle _borderStyle;
  id _delegate;
  BOOL _secureTextEntry;
  UIKeyboardType _keyboardType;
  UIKeyboardAppearance _keyboardAppearance;
  UIReturnKeyType _returnKeyType;
  UITextAutocapitalizationType _autocapitalizationType;
  UITextAutocorrectionType _autocorrectionType;
  UITextFieldViewMode _clearButtonMode;
  BOOL _clearsOnBeginEditing;
  BOOL _adjustsFontSizeToFitWidth;
  UIView *_leftView;
  UIView *_rightView;
  UIView *_inputView;
  UIView *_inputAccessoryView;
  BOOL _editing;
}
@property (nonatomic, copy) NSString *text;
@property (nonatomic, copy) NSAttributedString *attributedText;
@property (nonatomic, copy) NSString *placeholder;
@property (nonatomic, retain) UIFont *font;
@property (nonatomic, retain) UIColor *textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic) UITextBorderStyle borderStyle;
@property (nonatomic, assign) id<UITextFieldDelegate> delegate;
@property (nonatomic, getter=isSecureTextEntry) BOOL secureTextEntry;
@property (nonatomic) UIKeyboardType keyboardType;
@property (nonatomic) UIKeyboardAppearance keyboardAppearance;
@property (nonatomic) UIReturnKeyType returnKeyType;
@property (nonatomic) UITextAutocapitalizationType autocapitalizationType;
@property (nonatomic) UITextAutocorrectionType autocorrectionType;
@property (nonatomic) UITextFieldViewMode clearButtonMode;
@property (nonatomic) BOOL clearsOnBeginEditing;
@property (nonatomic) BOOL adjustsFontSizeToFitWidth;
@property (nonatomic, retain) UIView *leftView;
@property (nonatomic, retain) UIView *rightView;
@property (nonatomic, retain) UIView *inputView;
@property (nonatomic, retain) UIView *inputAccessoryView;
@property (nonatomic, readonly, getter=isEditing) BOOL editing;
@end

#endif
