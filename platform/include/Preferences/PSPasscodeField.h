#ifndef PREFERENCES_PSPASSCODEFIELD_H
#define PREFERENCES_PSPASSCODEFIELD_H

#import <UIKit/UIKit.h>

@class PSPasscodeField;

@protocol PSPasscodeFieldDelegate <NSObject>
@optional
- (void)passcodeField:(PSPasscodeField *)field enteredPasscode:(NSString *)passcode;
- (BOOL)passcodeField:(PSPasscodeField *)field shouldInsertText:(NSString *)text;
- (void)passcodeFieldDidAcceptEntry:(PSPasscodeField *)field;
@end

/* A row of digit boxes. Digits typed (insertText:) fill the boxes; when the last box is
   filled the delegate receives the whole entry once. Further digits are ignored until the
   field is cleared (setStringValue: with the empty string). */
@interface PSPasscodeField : UIView <UIKeyInput> {
  NSUInteger _numberOfEntryFields;
  NSMutableString *_stringValue;
  BOOL _securePasscodeEntry;
  BOOL _enabled;
  BOOL _shouldBecomeFirstResponderOnTap;
  id _delegate;
  UIKeyboardType _keyboardType;
  NSMutableArray *_dotFields;
}
- (instancetype)initWithNumberOfEntryFields:(NSUInteger)fields;
@property (nonatomic) NSUInteger numberOfEntryFields;
@property (nonatomic, copy) NSString *stringValue;
@property (nonatomic) BOOL securePasscodeEntry;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic) BOOL shouldBecomeFirstResponderOnTap;
@property (nonatomic, assign) id<PSPasscodeFieldDelegate> delegate;
@property (nonatomic) UIKeyboardType keyboardType;
- (NSArray *)dotFields;
@end

#endif
