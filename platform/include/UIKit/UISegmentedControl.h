#ifndef UIKIT_UISEGMENTEDCONTROL_H
#define UIKIT_UISEGMENTEDCONTROL_H

#import <UIKit/UIControl.h>

enum { UISegmentedControlNoSegment = -1 };

@interface UISegmentedControl : UIControl {
  NSMutableArray *_segments;
  NSInteger _selectedSegmentIndex;
  BOOL _momentary;
}
- (instancetype)initWithItems:(NSArray *)items;
@property (nonatomic, getter=isMomentary) BOOL momentary;
@property (nonatomic, readonly) NSUInteger numberOfSegments;
@property (nonatomic) NSInteger selectedSegmentIndex;
- (void)insertSegmentWithTitle:(NSString *)title atIndex:(NSUInteger)segment animated:(BOOL)animated;
- (void)removeSegmentAtIndex:(NSUInteger)segment animated:(BOOL)animated;
- (void)removeAllSegments;
- (void)setTitle:(NSString *)title forSegmentAtIndex:(NSUInteger)segment;
- (NSString *)titleForSegmentAtIndex:(NSUInteger)segment;
@end

#endif
