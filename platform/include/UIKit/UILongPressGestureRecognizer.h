#ifndef UIKIT_UILONGPRESSGESTURERECOGNIZER_H
#define UIKIT_UILONGPRESSGESTURERECOGNIZER_H

#import <UIKit/UIGestureRecognizer.h>

@interface UILongPressGestureRecognizer : UIGestureRecognizer {
  NSTimeInterval _minimumPressDuration;
  CGFloat _allowableMovement;
}
@property (nonatomic) NSTimeInterval minimumPressDuration;
@property (nonatomic) CGFloat allowableMovement;
@end

#endif
