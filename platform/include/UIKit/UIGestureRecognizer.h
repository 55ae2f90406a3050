#ifndef UIKIT_UIGESTURERECOGNIZER_H
#define UIKIT_UIGESTURERECOGNIZER_H

#import <UIKit/UIView.h>

typedef NS_ENUM(NSInteger, UIGestureRecognizerState) {
  UIGestureRecognizerStatePossible,
  UIGestureRecognizerStateBegan,
  UIGestureRecognizerStateChanged,
  UIGestureRecognizerStateEnded,
  UIGestureRecognizerStateCancelled,
  UIGestureRecognizerStateFailed,
  UIGestureRecognizerStateRecognized = UIGestureRecognizerStateEnded,
};

@class UIGestureRecognizer;

@protocol UIGestureRecognizerDelegate <NSObject>
@optional
- (BOOL)gestureRecognizerShouldBegin:(UIGestureRecognizer *)gestureRecognizer;
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)gestureRecognizer
    shouldRecognizeSimultaneouslyWithGestureRecognizer:(UIGestureRecognizer *)otherGestureRecognizer;
- (BOOL)gestureRecognizer:(UIGestureRecognizer *)gestureRecognizer shouldReceiveTouch:(UITouch *)touch;
@end

@interface UIGestureRecognizer : NSObject {
  NSMutableArray *_targets;
  UIGestureRecognizerState _state;
  id _delegate;
  BOOL _enabled;
  UIView *_view;
  BOOL _cancelsTouchesInView;
  BOOL _delaysTouchesBegan;
  BOOL _delaysTouchesEnded;
  CGPoint _windowLocation;
  NSUInteger _numberOfTouches;
}
- (instancetype)initWithTarget:(id)target action:(SEL)action;
- (void)addTarget:(id)target action:(SEL)action;
- (void)removeTarget:(id)target action:(SEL)action;
@property (nonatomic, readonly) UIGestureRecognizerState state;
@property (nonatomic, assign) id<UIGestureRecognizerDelegate> delegate;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic, readonly) UIView *view;
@property (nonatomic) BOOL cancelsTouchesInView;
@property (nonatomic) BOOL delaysTouchesBegan;
@property (nonatomic) BOOL delaysTouchesEnded;
@property (nonatomic, readonly) NSUInteger numberOfTouches;
- (void)requireGestureRecognizerToFail:(UIGestureRecognizer *)otherGestureRecognizer;
- (CGPoint)locationInView:(UIView *)view;
- (CGPoint)locationOfTouch:(NSUInteger)touchIndex inView:(UIView *)view;
@end

#endif
