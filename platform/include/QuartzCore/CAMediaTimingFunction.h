#ifndef QUARTZCORE_CAMEDIATIMINGFUNCTION_H
#define QUARTZCORE_CAMEDIATIMINGFUNCTION_H

#include <QuartzCore/CABase.h>

CA_EXTERN NSString *const kCAMediaTimingFunctionLinear;
CA_EXTERN NSString *const kCAMediaTimingFunctionEaseIn;
CA_EXTERN NSString *const kCAMediaTimingFunctionEaseOut;
CA_EXTERN NSString *const kCAMediaTimingFunctionEaseInEaseOut;
CA_EXTERN NSString *const kCAMediaTimingFunctionDefault;

@interface CAMediaTimingFunction : NSObject {
  NSString *_name;
  float _c1x, _c1y, _c2x, _c2y;
}
@property (nonatomic, readonly, copy) NSString *name;
+ (instancetype)functionWithName:(NSString *)name;
+ (instancetype)functionWithControlPoints:(float)c1x:(float)c1y:(float)c2x:(float)c2y;
- (instancetype)initWithControlPoints:(float)c1x:(float)c1y:(float)c2x:(float)c2y;
- (void)getControlPointAtIndex:(size_t)idx values:(float[2])ptr;
@end

#endif
