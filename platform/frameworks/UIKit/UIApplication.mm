#import "UIKitInternal.h"
#include <Simulator/Simulator.h>

NSString *const UIApplicationOpenURLOptionUniversalLinksOnly = @"UIApplicationOpenURLOptionUniversalLinksOnly";
NSString *const UIApplicationOpenSettingsURLString = @"app-settings:";
NSString *const UIApplicationDidBecomeActiveNotification = @"UIApplicationDidBecomeActiveNotification";
NSString *const UIApplicationWillResignActiveNotification = @"UIApplicationWillResignActiveNotification";
NSString *const UIApplicationDidEnterBackgroundNotification = @"UIApplicationDidEnterBackgroundNotification";
NSString *const UIApplicationWillEnterForegroundNotification = @"UIApplicationWillEnterForegroundNotification";

static UIApplication *gSharedApplication;

@interface UIApplication (SimPrivate)
- (void)_simSetKeyWindow:(UIWindow *)window;
- (void)_simReset;
- (NSInteger)_simIgnoringCount;
@end

@implementation UIApplication
@synthesize delegate = _delegate;
@synthesize applicationIconBadgeNumber = _applicationIconBadgeNumber;
@synthesize idleTimerDisabled = _idleTimerDisabled;
@synthesize networkActivityIndicatorVisible = _networkActivityIndicatorVisible;
+ (UIApplication *)sharedApplication {
  if (!gSharedApplication) {
    // The Settings application's own subclass when the Preferences stand-in provides it.
    Class cls = NSClassFromString(@"PreferencesAppController");
    if (!cls || ![cls isSubclassOfClass:[UIApplication class]]) cls = [UIApplication class];
    gSharedApplication = [[cls alloc] init];
  }
  return gSharedApplication;
}
- (instancetype)init {
  if ((self = [super init])) _windows = [[NSMutableArray alloc] init];
  return self;
}
- (void)dealloc {
  [_windows release];
  [_keyWindow release];
  [super dealloc];
}

#pragma mark - Windows

- (void)_simRegisterWindow:(UIWindow *)window {
  NSValue *v = [NSValue valueWithNonretainedObject:window];
  [_windows addObject:v];
}
- (void)_simSetKeyWindow:(UIWindow *)window {
  if (window == _keyWindow) return;
  [_keyWindow resignKeyWindow];
  [window retain];
  [_keyWindow release];
  _keyWindow = window;
  [window becomeKeyWindow];
}
- (void)_simReset {
  [self _simSetKeyWindow:nil];
  _ignoringInteractionEvents = 0;
}
- (UIWindow *)keyWindow {
  return _keyWindow;
}
- (NSArray *)windows {
  return _keyWindow ? [NSArray arrayWithObject:_keyWindow] : [NSArray array];
}

#pragma mark - State

- (UIApplicationState)applicationState {
  return UIApplicationStateActive;
}
- (UIInterfaceOrientation)statusBarOrientation {
  return UIInterfaceOrientationPortrait;
}
// The Settings app, like every Apple application, has every language of the system: its
// interface reads in the direction of the user's first language.
- (UIUserInterfaceLayoutDirection)userInterfaceLayoutDirection {
  NSString *language = [[NSLocale preferredLanguages] firstObject];
  return language != nil && [NSLocale characterDirectionForLanguage:language] == NSLocaleLanguageDirectionRightToLeft
             ? UIUserInterfaceLayoutDirectionRightToLeft
             : UIUserInterfaceLayoutDirectionLeftToRight;
}

#pragma mark - Interaction events

- (void)beginIgnoringInteractionEvents {
  ++_ignoringInteractionEvents;
}
- (void)endIgnoringInteractionEvents {
  if (_ignoringInteractionEvents > 0) --_ignoringInteractionEvents;
}
- (BOOL)isIgnoringInteractionEvents {
  return _ignoringInteractionEvents > 0;
}
- (NSInteger)_simIgnoringCount {
  return _ignoringInteractionEvents;
}

#pragma mark - URLs and actions

- (BOOL)canOpenURL:(NSURL *)url {
  return [url isKindOfClass:[NSURL class]] && [url scheme].length > 0;
}
static BOOL SimOpenURL(UIApplication *app, NSURL *url, NSDictionary *options) {
  if (![app canOpenURL:url]) return NO;
  SimUIKitRecordURL(url, options);
  return YES;
}
- (BOOL)openURL:(NSURL *)url {
  return SimOpenURL(self, url, nil);
}
- (void)openURL:(NSURL *)url options:(NSDictionary *)options completionHandler:(void (^)(BOOL success))completion {
  BOOL ok = SimOpenURL(self, url, options ? options : [NSDictionary dictionary]);
  if (completion) {
    SimUIKitSchedule(0, ^{ completion(ok); });
  }
}
- (BOOL)sendAction:(SEL)action to:(id)target from:(id)sender forEvent:(UIEvent *)event {
  if (!action) return NO;
  if (!target) {
    // Up the responder chain from the first responder, else from the sender.
    id r = SimUIKitFirstResponder();
    if (!r && [sender isKindOfClass:[UIResponder class]]) r = sender;
    while (r && ![r respondsToSelector:action]) r = [r nextResponder];
    target = r;
  }
  if (![target respondsToSelector:action]) return NO;
  [target performSelector:action withObject:sender withObject:event];
  return YES;
}
@end

void SimUIKitRegisterWindow(UIWindow *window) {}

// When a run-loop turn ends, iOS commits the turn's changes to the screen and lays out
// whatever asked for layout in the windows on it: a table then has the cells of the rows
// it shows.
static void layOutWindowsOnScreen(void) {
  if (!gSharedApplication) return;
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  UIWindow *window = [gSharedApplication keyWindow];
  if (window && !window.hidden) [window layoutIfNeeded];
  [pool release];
}
__attribute__((constructor)) static void registerDisplayPass(void) { SimRunLoopSetDisplayPass(layOutWindowsOnScreen); }
void SimUIKitSetKeyWindow(UIWindow *window) { [[UIApplication sharedApplication] _simSetKeyWindow:window]; }
void SimUIKitResetApplication(void) {
  if (gSharedApplication) [gSharedApplication _simReset];
}
NSInteger SimIgnoringInteractionEventsCount(void) {
  return gSharedApplication ? [gSharedApplication _simIgnoringCount] : 0;
}
