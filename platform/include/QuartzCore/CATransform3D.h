#ifndef QUARTZCORE_CATRANSFORM3D_H
#define QUARTZCORE_CATRANSFORM3D_H

#include <QuartzCore/CABase.h>

struct CATransform3D {
  CGFloat m11, m12, m13, m14;
  CGFloat m21, m22, m23, m24;
  CGFloat m31, m32, m33, m34;
  CGFloat m41, m42, m43, m44;
};
typedef struct CATransform3D CATransform3D;

CA_EXTERN const CATransform3D CATransform3DIdentity;

#ifdef __cplusplus
extern "C" {
#endif
bool CATransform3DIsIdentity(CATransform3D t);
bool CATransform3DEqualToTransform(CATransform3D a, CATransform3D b);
CATransform3D CATransform3DMakeTranslation(CGFloat tx, CGFloat ty, CGFloat tz);
CATransform3D CATransform3DMakeScale(CGFloat sx, CGFloat sy, CGFloat sz);
CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z);
CATransform3D CATransform3DTranslate(CATransform3D t, CGFloat tx, CGFloat ty, CGFloat tz);
CATransform3D CATransform3DScale(CATransform3D t, CGFloat sx, CGFloat sy, CGFloat sz);
CATransform3D CATransform3DRotate(CATransform3D t, CGFloat angle, CGFloat x, CGFloat y, CGFloat z);
CATransform3D CATransform3DConcat(CATransform3D a, CATransform3D b);
bool CATransform3DIsAffine(CATransform3D t);
CATransform3D CATransform3DMakeAffineTransform(CGAffineTransform m);
CGAffineTransform CATransform3DGetAffineTransform(CATransform3D t);
#ifdef __cplusplus
}
#endif

@interface NSValue (CATransform3DAdditions)
+ (NSValue *)valueWithCATransform3D:(CATransform3D)t;
- (CATransform3D)CATransform3DValue;
@end

#endif
