#ifndef UIKIT_UIALERTCONTROLLER_H
#define UIKIT_UIALERTCONTROLLER_H

#import <UIKit/UIViewController.h>

@class UITextField;

typedef NS_ENUM(NSInteger, UIAlertActionStyle) {
  UIAlertActionStyleDefault = 0,
  UIAlertActionStyleCancel,
  UIAlertActionStyleDestructive,
};

typedef NS_ENUM(NSInteger, UIAlertControllerStyle) {
  UIAlertControllerStyleActionSheet = 0,
  UIAlertControllerStyleAlert,
};

@interface UIAlertAction : NSObject <NSCopying> {
  NSString *_title;
  UIAlertActionStyle _style;
  BOOL _enabled;
  void (^_handler)(UIAlertAction *action);
}
+ (instancetype)actionWithTitle:(NSString *)title
                          style:(UIAlertActionStyle)style
                        handler:(void (^)(UIAlertAction *action))handler;
@property (nonatomic, readonly) NSString *title;
@property (nonatomic, readonly) UIAlertActionStyle style;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@end

/* An alert. Choosing an action dismisses the alert and runs the action's handler once the
   dismissal is over: the private -_dismissAnimated:triggeringAction: does both. */
@interface UIAlertController : UIViewController {
  NSString *_message;
  UIAlertControllerStyle _preferredStyle;
  NSMutableArray *_actions;
  UIAlertAction *_preferredAction;
  NSMutableArray *_textFields;
}
+ (instancetype)alertControllerWithTitle:(NSString *)title
                                 message:(NSString *)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle;
- (void)addAction:(UIAlertAction *)action;
@property (nonatomic, readonly) NSArray *actions;
@property (nonatomic, retain) UIAlertAction *preferredAction;
- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField *textField))configurationHandler;
@property (nonatomic, readonly) NSArray *textFields;
@property (nonatomic, copy) NSString *message;
@property (nonatomic, readonly) UIAlertControllerStyle preferredStyle;
@end

#endif
