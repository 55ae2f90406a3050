#ifndef UIKIT_UISWITCH_H
#define UIKIT_UISWITCH_H

#import <UIKit/UIControl.h>

@class UIColor;

/* 51 x 31 points. A tap flips it and sends UIControlEventValueChanged; setOn: sends nothing. */
@interface UISwitch : UIControl {
  BOOL _on;
  UIColor *_onTintColor;
  UIColor *_thumbTintColor;
}
@property (nonatomic, retain) UIColor *onTintColor;
@property (nonatomic, retain) UIColor *thumbTintColor;
@property (nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;
@end

#endif
