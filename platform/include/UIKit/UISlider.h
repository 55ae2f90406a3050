#ifndef UIKIT_UISLIDER_H
#define UIKIT_UISLIDER_H

#import <UIKit/UIControl.h>

@class UIColor;

@interface UISlider : UIControl {
  float _value;
  float _minimumValue;
  float _maximumValue;
  BOOL _continuous;
  UIColor *_minimumTrackTintColor;
  UIColor *_maximumTrackTintColor;
}
@property (nonatomic) float value;
@property (nonatomic) float minimumValue;
@property (nonatomic) float maximumValue;
@property (nonatomic, getter=isContinuous) BOOL continuous;
@property (nonatomic, retain) UIColor *minimumTrackTintColor;
@property (nonatomic, retain) UIColor *maximumTrackTintColor;
- (void)setValue:(float)value animated:(BOOL)animated;
@end

#endif
