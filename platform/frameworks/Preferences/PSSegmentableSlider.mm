#import <Preferences/PreferencesSimulation.h>

#include <math.h>

@implementation PSSegmentableSlider
@synthesize segmented = _segmented;
@synthesize locksToSegment = _locksToSegment;
@synthesize snapsToSegment = _snapsToSegment;
@synthesize segmentCount = _segmentCount;
- (void)setValue:(float)value {
  float min = self.minimumValue, max = self.maximumValue;
  if (_segmented && _segmentCount > 0 && max > min) {
    float step = (max - min) / (float)_segmentCount;
    value = min + roundf((value - min) / step) * step;
  }
  [super setValue:value];
}
@end
