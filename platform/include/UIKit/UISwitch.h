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
@property(nonatomic, retain) UIColor *onTintColor;
@property(nonatomic, retain) UIColor *thumbTintColor;
@property(nonatomic, getter=isOn) BOOL on;
- (void)setOn:(BOOL)on animated:(BOOL)animated;
@end

@interface UISlider : UIControl {
  float _value;
  float _minimumValue;
  float _maximumValue;
  BOOL _continuous;
  UIColor *_minimumTrackTintColor;
  UIColor *_maximumTrackTintColor;
}
@property(nonatomic) float value;
@property(nonatomic) float minimumValue;
@property(nonatomic) float maximumValue;
@property(nonatomic, getter=isContinuous) BOOL continuous;
@property(nonatomic, retain) UIColor *minimumTrackTintColor;
@property(nonatomic, retain) UIColor *maximumTrackTintColor;
- (void)setValue:(float)value animated:(BOOL)animated;
@end

enum { UISegmentedControlNoSegment = -1 };

@interface UISegmentedControl : UIControl {
  NSMutableArray *_segments;
  NSInteger _selectedSegmentIndex;
  BOOL _momentary;
}
- (instancetype)initWithItems:(NSArray *)items;
@property(nonatomic, getter=isMomentary) BOOL momentary;
@property(nonatomic, readonly) NSUInteger numberOfSegments;
@property(nonatomic) NSInteger selectedSegmentIndex;
- (void)insertSegmentWithTitle:(NSString *)title atIndex:(NSUInteger)segment animated:(BOOL)animated;
- (void)removeSegmentAtIndex:(NSUInteger)segment animated:(BOOL)animated;
- (void)removeAllSegments;
- (void)setTitle:(NSString *)title forSegmentAtIndex:(NSUInteger)segment;
- (NSString *)titleForSegmentAtIndex:(NSUInteger)segment;
@end

#endif
