#import <UIKit/UIScrollView.h>
