/* Test and host hooks of the UIKit stand-in. Not part of the device's UIKit: product code
   never includes this header. */
#ifndef UIKIT_UIKITSIMULATION_H
#define UIKIT_UIKITSIMULATION_H

#import <UIKit/UIKit.h>

/* Sound ids given to -[UIDevice _playSystemSound:], oldest first (NSNumber). */
UIKIT_EXTERN NSArray *SimPlayedSystemSounds(void);
/* URLs given to openURL: and openURL:options:completionHandler:, oldest first. */
UIKIT_EXTERN NSArray *SimOpenedURLs(void);
/* The options each of those URLs was opened with, in the same order; NSNull for openURL:. */
UIKIT_EXTERN NSArray *SimOpenedURLOptions(void);
/* The application's interaction-event suspension count (0: touches are delivered). */
UIKIT_EXTERN NSInteger SimIgnoringInteractionEventsCount(void);
/* Every view animation asked for, oldest first: dictionaries with "duration", "delay"
   (NSNumber, seconds) and "options" (NSNumber). */
UIKIT_EXTERN NSArray *SimRecordedViewAnimations(void);
/* Forgets the records above, zeroes the suspension count, clears the pasteboard and the first
   responder, and drops the key window. Call between tests. */
UIKIT_EXTERN void SimUIKitReset(void);

/* Runs `block` on the main run loop `delay` seconds from now, after everything already due
   at or before that moment (the timeline of animation and transition completions). */
UIKIT_EXTERN void SimUIKitSchedule(NSTimeInterval delay, void (^block)(void));
/* Duration of an animated push, pop, presentation or dismissal. */
UIKIT_EXTERN const NSTimeInterval SimTransitionDuration;

/* A tap at `point` (in the view's coordinates): hit-tests from `view`, offers the touch to the
   tap gesture recognizers of the hit view and its ancestors, and otherwise delivers
   touchesBegan/touchesEnded to the hit view (controls then send their actions). Returns NO
   when the application ignores interaction events or nothing was hit. */
UIKIT_EXTERN BOOL SimTapView(UIView *view, CGPoint point);
/* The user drags a slider's thumb to `value` and lifts the finger: the slider takes the value
   as its own setter does (clamped; a slider that locks to segments snaps), then sends
   UIControlEventValueChanged. NO when the slider is disabled or interaction is ignored. */
UIKIT_EXTERN BOOL SimSliderDrag(UISlider *slider, float value);
/* Sends a bar button item's action to its target (with the item as sender). */
UIKIT_EXTERN BOOL SimTapBarButtonItem(UIBarButtonItem *item);
/* Selects a row as a tap would: willSelect, then didSelect of the table's delegate. */
UIKIT_EXTERN BOOL SimTableViewSelectRow(UITableView *tableView, NSIndexPath *indexPath);
/* Commits an edit (e.g. a swipe-to-delete) through the table's data source. */
UIKIT_EXTERN BOOL SimTableViewCommitEditing(UITableView *tableView, UITableViewCellEditingStyle style,
                                            NSIndexPath *indexPath);

/* The user types `text` into a search bar: the bar takes the keyboard (its search controller,
   if any, becomes active), then one keystroke per character. NO when the bar refuses. */
UIKIT_EXTERN BOOL SimSearchBarType(UISearchBar *bar, NSString *text);
/* The clear button of the bar's field: the text goes in one change; the bar keeps the keyboard. */
UIKIT_EXTERN BOOL SimSearchBarClear(UISearchBar *bar);
/* The bar's Cancel button (shown while its search is active): the delegate hears of it and the
   search controller is dismissed. */
UIKIT_EXTERN BOOL SimSearchBarTapCancel(UISearchBar *bar);
/* The titles of the table's section index as it shows them, or nil when it shows none. */
UIKIT_EXTERN NSArray *SimTableViewSectionIndexTitles(UITableView *tableView);
/* A touch on the section index at `title`: the table scrolls to the section its data source
   names for it. NO when no index shows that title or interaction is ignored. */
UIKIT_EXTERN BOOL SimTableViewTapSectionIndex(UITableView *tableView, NSString *title);

/* A navigation controller held as one level of another's stack, as a collapsed split view
   shows its detail navigation on a phone (pushViewController:animated: refuses them). */
@interface UINavigationController (Simulation)
- (void)_simPushNavigationController:(UINavigationController *)nested animated:(BOOL)animated;
@end

/* Simulation details of some classes. */
@interface UIImage (Simulation)
/* What the image shows: a file name, "appicon:<bundle id>", "drawn"... */
- (NSString *)_simDescription;
/* The drawing operations of an image made in an image context (nil otherwise). */
- (NSArray *)_simDrawOperations;
@end

/* Private API of the device's UIKit that the stand-in implements. */
@interface UIDevice (Private)
- (void)_playSystemSound:(unsigned int)soundID;
@end

@interface UIImage (Private)
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier
                                               format:(int)format
                                                scale:(CGFloat)scale;
+ (UIImage *)_applicationIconImageForBundleIdentifier:(NSString *)bundleIdentifier format:(int)format;
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed;
- (UIImage *)_applicationIconImageForFormat:(int)format precomposed:(BOOL)precomposed scale:(CGFloat)scale;
@end

@interface UIAlertAction (Private)
@property (nonatomic, copy) void (^handler)(UIAlertAction *action);
@end

@interface UIAlertController (Private)
- (void)_dismissAnimated:(BOOL)animated triggeringAction:(UIAlertAction *)action;
@end

@interface UITableViewCell (Private)
@property (nonatomic, retain) UIColor *separatorColor;
@end

#endif
