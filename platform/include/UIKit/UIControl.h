#ifndef UIKIT_UICONTROL_H
#define UIKIT_UICONTROL_H

#import <UIKit/UIView.h>

typedef NS_OPTIONS(NSUInteger, UIControlEvents) {
  UIControlEventTouchDown = 1 << 0,
  UIControlEventTouchDownRepeat = 1 << 1,
  UIControlEventTouchDragInside = 1 << 2,
  UIControlEventTouchDragOutside = 1 << 3,
  UIControlEventTouchDragEnter = 1 << 4,
  UIControlEventTouchDragExit = 1 << 5,
  UIControlEventTouchUpInside = 1 << 6,
  UIControlEventTouchUpOutside = 1 << 7,
  UIControlEventTouchCancel = 1 << 8,
  UIControlEventValueChanged = 1 << 12,
  UIControlEventPrimaryActionTriggered = 1 << 13,
  UIControlEventEditingDidBegin = 1 << 16,
  UIControlEventEditingChanged = 1 << 17,
  UIControlEventEditingDidEnd = 1 << 18,
  UIControlEventEditingDidEndOnExit = 1 << 19,
  UIControlEventAllTouchEvents = 0x00000FFF,
  UIControlEventAllEditingEvents = 0x000F0000,
  UIControlEventApplicationReserved = 0x0F000000,
  UIControlEventSystemReserved = 0xF0000000,
  UIControlEventAllEvents = 0xFFFFFFFF,
};

typedef NS_OPTIONS(NSUInteger, UIControlState) {
  UIControlStateNormal = 0,
  UIControlStateHighlighted = 1 << 0,
  UIControlStateDisabled = 1 << 1,
  UIControlStateSelected = 1 << 2,
  UIControlStateFocused = 1 << 3,
};

typedef NS_ENUM(NSInteger, UIControlContentHorizontalAlignment) {
  UIControlContentHorizontalAlignmentCenter = 0,
  UIControlContentHorizontalAlignmentLeft = 1,
  UIControlContentHorizontalAlignmentRight = 2,
  UIControlContentHorizontalAlignmentFill = 3,
};

typedef NS_ENUM(NSInteger, UIControlContentVerticalAlignment) {
  UIControlContentVerticalAlignmentCenter = 0,
  UIControlContentVerticalAlignmentTop = 1,
  UIControlContentVerticalAlignmentBottom = 2,
  UIControlContentVerticalAlignmentFill = 3,
};

/* A control. A tap (touch down then up inside) sends TouchDown and TouchUpInside. */
@interface UIControl : UIView {
  NSMutableArray *_targetActions;
  BOOL _enabled;
  BOOL _selected;
  BOOL _highlighted;
  BOOL _tracking;
  UIControlContentHorizontalAlignment _contentHorizontalAlignment;
  UIControlContentVerticalAlignment _contentVerticalAlignment;
}
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic, getter=isSelected) BOOL selected;
@property (nonatomic, getter=isHighlighted) BOOL highlighted;
@property (nonatomic, readonly, getter=isTracking) BOOL tracking;
@property (nonatomic, readonly, getter=isTouchInside) BOOL touchInside;
@property (nonatomic, readonly) UIControlState state;
@property (nonatomic) UIControlContentHorizontalAlignment contentHorizontalAlignment;
@property (nonatomic) UIControlContentVerticalAlignment contentVerticalAlignment;
- (void)addTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)controlEvents;
- (void)removeTarget:(id)target action:(SEL)action forControlEvents:(UIControlEvents)controlEvents;
- (NSSet *)allTargets;
- (UIControlEvents)allControlEvents;
- (NSArray *)actionsForTarget:(id)target forControlEvent:(UIControlEvents)controlEvent;
- (void)sendAction:(SEL)action to:(id)target forEvent:(UIEvent *)event;
- (void)sendActionsForControlEvents:(UIControlEvents)controlEvents;
- (BOOL)beginTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event;
- (void)endTrackingWithTouch:(UITouch *)touch withEvent:(UIEvent *)event;
- (void)cancelTrackingWithEvent:(UIEvent *)event;
@end

#endif
