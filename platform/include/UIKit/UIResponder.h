#ifndef UIKIT_UIRESPONDER_H
#define UIKIT_UIRESPONDER_H

#import <UIKit/UIKitDefines.h>

@class UIEvent;
@class UITouch;
@class UIView;
@class UIWindow;

typedef NS_ENUM(NSInteger, UITouchPhase) {
  UITouchPhaseBegan,
  UITouchPhaseMoved,
  UITouchPhaseStationary,
  UITouchPhaseEnded,
  UITouchPhaseCancelled,
};

typedef NS_ENUM(NSInteger, UIEventType) {
  UIEventTypeTouches,
  UIEventTypeMotion,
  UIEventTypeRemoteControl,
  UIEventTypePresses,
};

@interface UIResponder : NSObject
@property (nonatomic, readonly) UIResponder *nextResponder;
@property (nonatomic, readonly) BOOL canBecomeFirstResponder;
@property (nonatomic, readonly) BOOL canResignFirstResponder;
@property (nonatomic, readonly) BOOL isFirstResponder;
- (BOOL)becomeFirstResponder;
- (BOOL)resignFirstResponder;
/* Touches go up the responder chain unless handled. */
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event;
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event;
- (BOOL)canPerformAction:(SEL)action withSender:(id)sender;
@end

@interface UITouch : NSObject {
  CGPoint _windowLocation;
  CGPoint _previousWindowLocation;
  UIView *_view;
  UIWindow *_window;
  UITouchPhase _phase;
  NSUInteger _tapCount;
  NSTimeInterval _timestamp;
}
@property (nonatomic, readonly) NSTimeInterval timestamp;
@property (nonatomic, readonly) UITouchPhase phase;
@property (nonatomic, readonly) NSUInteger tapCount;
@property (nonatomic, readonly) UIView *view;
@property (nonatomic, readonly) UIWindow *window;
/* nil: window coordinates (the top-most ancestor's when the view has no window). */
- (CGPoint)locationInView:(UIView *)view;
- (CGPoint)previousLocationInView:(UIView *)view;
@end

@interface UIEvent : NSObject {
  NSSet *_touches;
  NSTimeInterval _timestamp;
}
@property (nonatomic, readonly) UIEventType type;
@property (nonatomic, readonly) NSTimeInterval timestamp;
- (NSSet *)allTouches;
- (NSSet *)touchesForView:(UIView *)view;
- (NSSet *)touchesForWindow:(UIWindow *)window;
@end

@protocol UIKeyInput <NSObject>
@property (nonatomic, readonly) BOOL hasText;
- (void)insertText:(NSString *)text;
- (void)deleteBackward;
@end

typedef NS_ENUM(NSInteger, UIKeyboardType) {
  UIKeyboardTypeDefault,
  UIKeyboardTypeASCIICapable,
  UIKeyboardTypeNumbersAndPunctuation,
  UIKeyboardTypeURL,
  UIKeyboardTypeNumberPad,
  UIKeyboardTypePhonePad,
  UIKeyboardTypeNamePhonePad,
  UIKeyboardTypeEmailAddress,
  UIKeyboardTypeDecimalPad,
  UIKeyboardTypeTwitter,
  UIKeyboardTypeWebSearch,
  UIKeyboardTypeASCIICapableNumberPad,
};

typedef NS_ENUM(NSInteger, UITextAutocapitalizationType) {
  UITextAutocapitalizationTypeNone,
  UITextAutocapitalizationTypeWords,
  UITextAutocapitalizationTypeSentences,
  UITextAutocapitalizationTypeAllCharacters,
};

typedef NS_ENUM(NSInteger, UITextAutocorrectionType) {
  UITextAutocorrectionTypeDefault,
  UITextAutocorrectionTypeNo,
  UITextAutocorrectionTypeYes,
};

typedef NS_ENUM(NSInteger, UIKeyboardAppearance) {
  UIKeyboardAppearanceDefault,
  UIKeyboardAppearanceDark,
  UIKeyboardAppearanceLight,
};

typedef NS_ENUM(NSInteger, UIReturnKeyType) {
  UIReturnKeyDefault,
  UIReturnKeyGo,
  UIReturnKeyGoogle,
  UIReturnKeyJoin,
  UIReturnKeyNext,
  UIReturnKeyRoute,
  UIReturnKeySearch,
  UIReturnKeySend,
  UIReturnKeyYahoo,
  UIReturnKeyDone,
  UIReturnKeyEmergencyCall,
  UIReturnKeyContinue,
};

#endif
