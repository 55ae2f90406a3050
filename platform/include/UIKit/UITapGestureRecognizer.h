#ifndef UIKIT_UITAPGESTURERECOGNIZER_H
#define UIKIT_UITAPGESTURERECOGNIZER_H

#import <UIKit/UIGestureRecognizer.h>

@interface UITapGestureRecognizer : UIGestureRecognizer {
  NSUInteger _numberOfTapsRequired;
  NSUInteger _numberOfTouchesRequired;
}
@property (nonatomic) NSUInteger numberOfTapsRequired;
@property (nonatomic) NSUInteger numberOfTouchesRequired;
@end

#endif
