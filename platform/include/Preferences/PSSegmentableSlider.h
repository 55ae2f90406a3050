#ifndef PREFERENCES_PSSEGMENTABLESLIDER_H
#define PREFERENCES_PSSEGMENTABLESLIDER_H

#import <UIKit/UIKit.h>

// The slider of a slider row: with "isSegmented" it is segmented into "segmentCount" equal
// steps between its minimum and maximum and its value locks to the nearest step, so a row
// from 1 to 10 in 9 segments only ever stores whole numbers (as the class-dump of iOS 12's
// Preferences shows it: segmented, segmentCount, locksToSegment, snapsToSegment).
@interface PSSegmentableSlider : UISlider {
  BOOL _segmented;
  BOOL _locksToSegment;
  BOOL _snapsToSegment;
  unsigned long long _segmentCount;
}
@property (nonatomic, assign, getter=isSegmented) BOOL segmented;
@property (nonatomic, assign) BOOL locksToSegment;
@property (nonatomic, assign) BOOL snapsToSegment;
@property (nonatomic, assign) unsigned long long segmentCount;
@end

#endif
