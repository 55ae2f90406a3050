// Shared internals of the UIKit stand-in.
#pragma once

#import <UIKit/UIKitSimulation.h>

#ifdef __cplusplus
extern "C" {
#endif
NSDictionary *SimUIKitProfile(void);
CGFloat SimUIKitScreenScale(void);
BOOL SimUIKitDarkMode(void);
void SimUIKitRecordURL(NSURL *url, NSDictionary *options);
void SimUIKitRecordAnimation(NSTimeInterval duration, NSTimeInterval delay, NSUInteger options);
void SimUIKitResetResponders(void);
UIResponder *SimUIKitFirstResponder(void);
void SimUIKitResetApplication(void);
/* Approximate size of text set in `font` (max width 0: unbounded; max lines 0: any). */
CGSize SimUIKitTextSize(NSString *text, UIFont *font, CGFloat maxWidth, NSInteger maxLines);
#ifdef __cplusplus
}
#endif

/* What the stand-in records for tests (see UIKitSimulation.h), kept by UIKitSimulation.mm. */
@interface _SimUIKitRecords : NSObject {
  NSMutableArray *_sounds;
  NSMutableArray *_urls;
  NSMutableArray *_urlOptions;
  NSMutableArray *_animations;
}
@property (nonatomic, readonly) NSMutableArray *sounds;
@property (nonatomic, readonly) NSMutableArray *urls;
@property (nonatomic, readonly) NSMutableArray *urlOptions;
@property (nonatomic, readonly) NSMutableArray *animations;
@end

#ifdef __cplusplus
extern "C" {
#endif
_SimUIKitRecords *SimUIKitRecords(void);
#ifdef __cplusplus
}
#endif

@interface UIView (SimInternal)
/* The controller whose view this is (not retained). */
- (id)_simViewDelegate;
- (void)_simSetViewDelegate:(id)controller;
@end

@interface UIViewController (SimInternal)
/* Appearance transitions: "will" now, "did" when the transition ends. */
- (void)_simBeginAppearance:(BOOL)appearing animated:(BOOL)animated;
- (void)_simEndAppearance:(BOOL)appearing animated:(BOOL)animated;
- (BOOL)_simIsAppeared;
/* The children that receive appearance callbacks with this controller. */
- (NSArray *)_simAppearanceChildren;
- (void)_simSetParent:(UIViewController *)parent;
@end

#ifdef __cplusplus
extern "C" {
#endif
void SimUIKitRegisterWindow(UIWindow *window);
void SimUIKitSetKeyWindow(UIWindow *window);
#ifdef __cplusplus
}
#endif

@interface UITouch (SimInternal)
- (instancetype)_simInitWithView:(UIView *)view windowLocation:(CGPoint)location;
- (void)_simSetPhase:(UITouchPhase)phase;
@end

@interface UIEvent (SimInternal)
- (instancetype)_simInitWithTouches:(NSSet *)touches;
@end

@interface UIGestureRecognizer (SimInternal)
- (BOOL)_simRecognizeTap:(UITouch *)touch;
@end

@interface UITextField (SimInternal)
/* A change of the text as typing makes it: the delegate may refuse it; EditingChanged follows. */
- (void)_simReplaceRange:(NSRange)range with:(NSString *)string;
@end

@interface UISearchBar (SimInternal)
/* The search controller the bar belongs to (not retained). */
- (id)_simSearchController;
- (void)_simSetSearchController:(id)controller;
@end

@interface UISearchController (SimInternal)
- (void)_simSearchBarDidBeginEditing:(UISearchBar *)bar;
- (void)_simSearchBarTextDidChange:(UISearchBar *)bar;
- (void)_simSearchBarCancelled:(UISearchBar *)bar;
@end

/* The section index a table shows (UIKit's private UITableViewIndex). */
@interface UITableViewIndex : UIControl {
  NSArray *_titles;
  NSInteger _selectedSection;
}
@property (nonatomic, copy) NSArray *titles;
@property (nonatomic, readonly) NSInteger selectedSection;
@property (nonatomic, readonly) NSString *selectedSectionTitle;
/* A touch on the title at `position`: selects it and sends the value-changed action. */
- (void)_simSelect:(NSInteger)position;
@end

@interface UITableView (SimSectionIndex)
/* Places the section index along the visible right edge (layout). */
- (void)_simLayOutSectionIndex;
@end
