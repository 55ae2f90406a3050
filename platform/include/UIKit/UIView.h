#ifndef UIKIT_UIVIEW_H
#define UIKIT_UIVIEW_H

#import <UIKit/UIKitDefines.h>
#import <UIKit/UIGeometry.h>
#import <UIKit/UIResponder.h>
#import <UIKit/UITraitCollection.h>
#import <QuartzCore/QuartzCore.h>

@class UIColor;
@class UIGestureRecognizer;
@class UIWindow;

typedef NS_OPTIONS(NSUInteger, UIViewAutoresizing) {
  UIViewAutoresizingNone = 0,
  UIViewAutoresizingFlexibleLeftMargin = 1 << 0,
  UIViewAutoresizingFlexibleWidth = 1 << 1,
  UIViewAutoresizingFlexibleRightMargin = 1 << 2,
  UIViewAutoresizingFlexibleTopMargin = 1 << 3,
  UIViewAutoresizingFlexibleHeight = 1 << 4,
  UIViewAutoresizingFlexibleBottomMargin = 1 << 5,
};

typedef NS_ENUM(NSInteger, UIViewContentMode) {
  UIViewContentModeScaleToFill,
  UIViewContentModeScaleAspectFit,
  UIViewContentModeScaleAspectFill,
  UIViewContentModeRedraw,
  UIViewContentModeCenter,
  UIViewContentModeTop,
  UIViewContentModeBottom,
  UIViewContentModeLeft,
  UIViewContentModeRight,
  UIViewContentModeTopLeft,
  UIViewContentModeTopRight,
  UIViewContentModeBottomLeft,
  UIViewContentModeBottomRight,
};

typedef NS_OPTIONS(NSUInteger, UIViewAnimationOptions) {
  UIViewAnimationOptionLayoutSubviews = 1 << 0,
  UIViewAnimationOptionAllowUserInteraction = 1 << 1,
  UIViewAnimationOptionBeginFromCurrentState = 1 << 2,
  UIViewAnimationOptionRepeat = 1 << 3,
  UIViewAnimationOptionAutoreverse = 1 << 4,
  UIViewAnimationOptionOverrideInheritedDuration = 1 << 5,
  UIViewAnimationOptionOverrideInheritedCurve = 1 << 6,
  UIViewAnimationOptionAllowAnimatedContent = 1 << 7,
  UIViewAnimationOptionShowHideTransitionViews = 1 << 8,
  UIViewAnimationOptionOverrideInheritedOptions = 1 << 9,
  UIViewAnimationOptionCurveEaseInOut = 0 << 16,
  UIViewAnimationOptionCurveEaseIn = 1 << 16,
  UIViewAnimationOptionCurveEaseOut = 2 << 16,
  UIViewAnimationOptionCurveLinear = 3 << 16,
  UIViewAnimationOptionTransitionNone = 0 << 20,
  UIViewAnimationOptionTransitionFlipFromLeft = 1 << 20,
  UIViewAnimationOptionTransitionFlipFromRight = 2 << 20,
  UIViewAnimationOptionTransitionCurlUp = 3 << 20,
  UIViewAnimationOptionTransitionCurlDown = 4 << 20,
  UIViewAnimationOptionTransitionCrossDissolve = 5 << 20,
  UIViewAnimationOptionTransitionFlipFromTop = 6 << 20,
  UIViewAnimationOptionTransitionFlipFromBottom = 7 << 20,
};

typedef NS_ENUM(NSInteger, UIViewAnimationCurve) {
  UIViewAnimationCurveEaseInOut,
  UIViewAnimationCurveEaseIn,
  UIViewAnimationCurveEaseOut,
  UIViewAnimationCurveLinear,
};

typedef NS_ENUM(NSInteger, UIViewTintAdjustmentMode) {
  UIViewTintAdjustmentModeAutomatic,
  UIViewTintAdjustmentModeNormal,
  UIViewTintAdjustmentModeDimmed,
};

typedef NS_ENUM(NSInteger, UIUserInterfaceLayoutDirection) {
  UIUserInterfaceLayoutDirectionLeftToRight,
  UIUserInterfaceLayoutDirectionRightToLeft,
};

typedef NS_ENUM(NSInteger, UISemanticContentAttribute) {
  UISemanticContentAttributeUnspecified = 0,
  UISemanticContentAttributePlayback,
  UISemanticContentAttributeSpatial,
  UISemanticContentAttributeForceLeftToRight,
  UISemanticContentAttributeForceRightToLeft,
};

UIKIT_EXTERN const CGSize UILayoutFittingCompressedSize;
UIKIT_EXTERN const CGFloat UIViewNoIntrinsicMetric;

/* A view. Its geometry is its layer's: frame, bounds and centre stay consistent through the
   layer's bounds, position and transform. Changing the size of a view resizes its subviews
   by their autoresizing masks and marks it for layout; layoutIfNeeded runs layoutSubviews
   (and the owning controller's viewWillLayoutSubviews / viewDidLayoutSubviews). */
@interface UIView : UIResponder <UITraitEnvironment> {
  CALayer *_layer;
  UIView *_superview;
  NSMutableArray *_subviews;
  NSInteger _tag;
  UIColor *_backgroundColor;
  UIColor *_tintColor;
  UIViewTintAdjustmentMode _tintAdjustmentMode;
  BOOL _userInteractionEnabled;
  BOOL _multipleTouchEnabled;
  BOOL _exclusiveTouch;
  BOOL _autoresizesSubviews;
  BOOL _translatesAutoresizingMaskIntoConstraints;
  UIViewAutoresizing _autoresizingMask;
  UIViewContentMode _contentMode;
  NSMutableArray *_gestureRecognizers;
  id _viewDelegate;
  UIEdgeInsets _layoutMargins;
  UISemanticContentAttribute _semanticContentAttribute;
  UIUserInterfaceStyle _overrideUserInterfaceStyle;
  NSString *_accessibilityLabel;
  NSString *_accessibilityIdentifier;
}
+ (Class)layerClass;
- (instancetype)initWithFrame:(CGRect)frame;

@property (nonatomic, readonly, retain) CALayer *layer;
@property (nonatomic) CGRect frame;
@property (nonatomic) CGRect bounds;
@property (nonatomic) CGPoint center;
@property (nonatomic) CGAffineTransform transform;
@property (nonatomic, readonly) UIView *superview;
@property (nonatomic, readonly, copy) NSArray *subviews;
@property (nonatomic, readonly) UIWindow *window;
@property (nonatomic) NSInteger tag;
@property (nonatomic, getter=isHidden) BOOL hidden;
@property (nonatomic) CGFloat alpha;
@property (nonatomic, getter=isOpaque) BOOL opaque;
@property (nonatomic) BOOL clipsToBounds;
@property (nonatomic, copy) UIColor *backgroundColor;
/* Inherited from the superview when not set; the system blue at the top. */
@property (nonatomic, retain) UIColor *tintColor;
@property (nonatomic) UIViewTintAdjustmentMode tintAdjustmentMode;
@property (nonatomic, getter=isUserInteractionEnabled) BOOL userInteractionEnabled;
@property (nonatomic, getter=isMultipleTouchEnabled) BOOL multipleTouchEnabled;
@property (nonatomic, getter=isExclusiveTouch) BOOL exclusiveTouch;
@property (nonatomic) BOOL autoresizesSubviews;
@property (nonatomic) UIViewAutoresizing autoresizingMask;
@property (nonatomic) UIViewContentMode contentMode;
@property (nonatomic) BOOL translatesAutoresizingMaskIntoConstraints;
@property (nonatomic) UIEdgeInsets layoutMargins;
@property (nonatomic, readonly) UIEdgeInsets safeAreaInsets;
@property (nonatomic) UISemanticContentAttribute semanticContentAttribute;
/* iOS 10: the direction the view lays out in: its semantic content attribute, read against the
   application's direction when unspecified. */
@property (nonatomic, readonly) UIUserInterfaceLayoutDirection effectiveUserInterfaceLayoutDirection;
/* iOS 9 and 10. */
+ (UIUserInterfaceLayoutDirection)userInterfaceLayoutDirectionForSemanticContentAttribute:
    (UISemanticContentAttribute)attribute;
+ (UIUserInterfaceLayoutDirection)
    userInterfaceLayoutDirectionForSemanticContentAttribute:(UISemanticContentAttribute)attribute
                                  relativeToLayoutDirection:(UIUserInterfaceLayoutDirection)direction;
@property (nonatomic) UIUserInterfaceStyle overrideUserInterfaceStyle;
@property (nonatomic, readonly) UITraitCollection *traitCollection;
@property (nonatomic, copy) NSString *accessibilityLabel;
@property (nonatomic, copy) NSString *accessibilityIdentifier;

- (void)addSubview:(UIView *)view;
- (void)insertSubview:(UIView *)view atIndex:(NSInteger)index;
- (void)insertSubview:(UIView *)view belowSubview:(UIView *)siblingSubview;
- (void)insertSubview:(UIView *)view aboveSubview:(UIView *)siblingSubview;
- (void)exchangeSubviewAtIndex:(NSInteger)index1 withSubviewAtIndex:(NSInteger)index2;
- (void)bringSubviewToFront:(UIView *)view;
- (void)sendSubviewToBack:(UIView *)view;
- (void)removeFromSuperview;
- (BOOL)isDescendantOfView:(UIView *)view;
- (UIView *)viewWithTag:(NSInteger)tag;
- (void)didAddSubview:(UIView *)subview;
- (void)willRemoveSubview:(UIView *)subview;
- (void)willMoveToSuperview:(UIView *)newSuperview;
- (void)didMoveToSuperview;
- (void)willMoveToWindow:(UIWindow *)newWindow;
- (void)didMoveToWindow;

- (void)setNeedsLayout;
- (void)layoutIfNeeded;
- (void)layoutSubviews;
- (void)setNeedsDisplay;
- (void)setNeedsDisplayInRect:(CGRect)rect;
- (void)drawRect:(CGRect)rect;
- (CGSize)sizeThatFits:(CGSize)size;
- (void)sizeToFit;
@property (nonatomic, readonly) CGSize intrinsicContentSize;
- (void)invalidateIntrinsicContentSize;
- (void)tintColorDidChange;

- (CGPoint)convertPoint:(CGPoint)point toView:(UIView *)view;
- (CGPoint)convertPoint:(CGPoint)point fromView:(UIView *)view;
- (CGRect)convertRect:(CGRect)rect toView:(UIView *)view;
- (CGRect)convertRect:(CGRect)rect fromView:(UIView *)view;
- (UIView *)hitTest:(CGPoint)point withEvent:(UIEvent *)event;
- (BOOL)pointInside:(CGPoint)point withEvent:(UIEvent *)event;
- (BOOL)endEditing:(BOOL)force;

@property (nonatomic, copy) NSArray *gestureRecognizers;
- (void)addGestureRecognizer:(UIGestureRecognizer *)gestureRecognizer;
- (void)removeGestureRecognizer:(UIGestureRecognizer *)gestureRecognizer;
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection;
@end

/* Animations apply their changes at once; completions run on the main run loop after the
   animation's delay and duration, in the order they fall due, with finished = YES. */
@interface UIView (UIViewAnimationWithBlocks)
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)animateWithDuration:(NSTimeInterval)duration animations:(void (^)(void))animations;
+ (void)animateWithDuration:(NSTimeInterval)duration
                      delay:(NSTimeInterval)delay
     usingSpringWithDamping:(CGFloat)dampingRatio
      initialSpringVelocity:(CGFloat)velocity
                    options:(UIViewAnimationOptions)options
                 animations:(void (^)(void))animations
                 completion:(void (^)(BOOL finished))completion;
+ (void)transitionWithView:(UIView *)view
                  duration:(NSTimeInterval)duration
                   options:(UIViewAnimationOptions)options
                animations:(void (^)(void))animations
                completion:(void (^)(BOOL finished))completion;
+ (void)transitionFromView:(UIView *)fromView
                    toView:(UIView *)toView
                  duration:(NSTimeInterval)duration
                   options:(UIViewAnimationOptions)options
                completion:(void (^)(BOOL finished))completion;
+ (void)performWithoutAnimation:(void (^)(void))actionsWithoutAnimation;
+ (void)setAnimationsEnabled:(BOOL)enabled;
+ (BOOL)areAnimationsEnabled;
@end

#endif
