#import <UIKit/UIGestureRecognizer.h>
