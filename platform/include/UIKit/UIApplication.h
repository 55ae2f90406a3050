#ifndef UIKIT_UIAPPLICATION_H
#define UIKIT_UIAPPLICATION_H

#import <UIKit/UIResponder.h>
#import <UIKit/UIViewController.h>

@class UIWindow;

/* UIUserInterfaceLayoutDirection: in UIView.h, whose views use it too. */

typedef NS_ENUM(NSInteger, UIApplicationState) {
  UIApplicationStateActive,
  UIApplicationStateInactive,
  UIApplicationStateBackground,
};

typedef NSString *UIApplicationOpenURLOptionsKey;
UIKIT_EXTERN NSString *const UIApplicationOpenURLOptionUniversalLinksOnly;
UIKIT_EXTERN NSString *const UIApplicationOpenSettingsURLString;
UIKIT_EXTERN NSString *const UIApplicationDidBecomeActiveNotification;
UIKIT_EXTERN NSString *const UIApplicationWillResignActiveNotification;
UIKIT_EXTERN NSString *const UIApplicationDidEnterBackgroundNotification;
UIKIT_EXTERN NSString *const UIApplicationWillEnterForegroundNotification;

@protocol UIApplicationDelegate <NSObject>
@optional
@property (nonatomic, retain) UIWindow *window;
@end

/* The application. URLs asked to be opened are recorded; interaction-event suspension is a
   counter (begin adds one, end takes one away). */
@interface UIApplication : UIResponder {
  id _delegate;
  NSMutableArray *_windows;
  UIWindow *_keyWindow;
  NSInteger _ignoringInteractionEvents;
  NSInteger _applicationIconBadgeNumber;
  BOOL _idleTimerDisabled;
  BOOL _networkActivityIndicatorVisible;
}
+ (UIApplication *)sharedApplication;
@property (nonatomic, assign) id<UIApplicationDelegate> delegate;
@property (nonatomic, readonly) UIWindow *keyWindow;
@property (nonatomic, readonly) NSArray *windows;
@property (nonatomic, readonly) UIApplicationState applicationState;
@property (nonatomic) NSInteger applicationIconBadgeNumber;
@property (nonatomic, getter=isIdleTimerDisabled) BOOL idleTimerDisabled;
@property (nonatomic, getter=isNetworkActivityIndicatorVisible) BOOL networkActivityIndicatorVisible;
@property (nonatomic, readonly) UIInterfaceOrientation statusBarOrientation;
@property (nonatomic, readonly) UIUserInterfaceLayoutDirection userInterfaceLayoutDirection;
- (void)beginIgnoringInteractionEvents;
- (void)endIgnoringInteractionEvents;
- (BOOL)isIgnoringInteractionEvents;
- (BOOL)canOpenURL:(NSURL *)url;
- (BOOL)openURL:(NSURL *)url
    __attribute__((deprecated("first deprecated in iOS 10.0 - Please use openURL:options:completionHandler: instead")));
- (void)openURL:(NSURL *)url options:(NSDictionary *)options completionHandler:(void (^)(BOOL success))completion;
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(UIEvent *)event;
@end

#endif
