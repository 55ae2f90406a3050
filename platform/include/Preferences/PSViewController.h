#ifndef PREFERENCES_PSVIEWCONTROLLER_H
#define PREFERENCES_PSVIEWCONTROLLER_H

#import <UIKit/UIKit.h>

@class PSSpecifier;
@class PSRootController;

@interface PSViewController : UIViewController {
  UIViewController *_parentController;
  id _rootController;
  PSSpecifier *_specifier;
}
- (instancetype)initForContentSize:(CGSize)contentSize;
@property (nonatomic, retain) PSSpecifier *specifier;
/* Not retained. */
@property (nonatomic, assign) UIViewController *parentController;
/* The Settings navigation controller; the controller's own navigation controller when unset. */
@property (nonatomic, assign) id rootController;
- (void)setPreferenceValue:(id)value specifier:(PSSpecifier *)specifier;
- (id)readPreferenceValue:(PSSpecifier *)specifier;
/* Pushes `controller` on this page's navigation stack, handing on root and parent controllers. */
- (void)pushController:(UIViewController *)controller animate:(BOOL)animate;
- (void)showController:(UIViewController *)controller animate:(BOOL)animate;
- (void)showController:(UIViewController *)controller;
- (void)handleURL:(NSDictionary *)url;
- (BOOL)canBeShownFromSuspendedState;
- (void)suspend;
@end

#endif
