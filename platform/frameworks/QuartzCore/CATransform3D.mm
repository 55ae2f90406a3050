#import <QuartzCore/QuartzCore.h>

#include <math.h>
#include <string.h>

const CATransform3D CATransform3DIdentity = {1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1, 0, 0, 0, 0, 1};

extern "C" {

bool CATransform3DEqualToTransform(CATransform3D a, CATransform3D b) { return memcmp(&a, &b, sizeof a) == 0; }
bool CATransform3DIsIdentity(CATransform3D t) { return CATransform3DEqualToTransform(t, CATransform3DIdentity); }

CATransform3D CATransform3DConcat(CATransform3D a, CATransform3D b) {
  const CGFloat *x = &a.m11, *y = &b.m11;
  CATransform3D r;
  CGFloat *z = &r.m11;
  for (int i = 0; i < 4; ++i)
    for (int j = 0; j < 4; ++j) {
      CGFloat s = 0;
      for (int k = 0; k < 4; ++k) s += x[i * 4 + k] * y[k * 4 + j];
      z[i * 4 + j] = s;
    }
  return r;
}
CATransform3D CATransform3DMakeTranslation(CGFloat tx, CGFloat ty, CGFloat tz) {
  CATransform3D t = CATransform3DIdentity;
  t.m41 = tx;
  t.m42 = ty;
  t.m43 = tz;
  return t;
}
CATransform3D CATransform3DMakeScale(CGFloat sx, CGFloat sy, CGFloat sz) {
  CATransform3D t = CATransform3DIdentity;
  t.m11 = sx;
  t.m22 = sy;
  t.m33 = sz;
  return t;
}
CATransform3D CATransform3DMakeRotation(CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
  CGFloat len = sqrt(x * x + y * y + z * z);
  if (len == 0) return CATransform3DIdentity;
  x /= len;
  y /= len;
  z /= len;
  CGFloat c = cos(angle), s = sin(angle), t = 1 - c;
  CATransform3D r = CATransform3DIdentity;
  r.m11 = t * x * x + c;
  r.m12 = t * x * y + s * z;
  r.m13 = t * x * z - s * y;
  r.m21 = t * x * y - s * z;
  r.m22 = t * y * y + c;
  r.m23 = t * y * z + s * x;
  r.m31 = t * x * z + s * y;
  r.m32 = t * y * z - s * x;
  r.m33 = t * z * z + c;
  return r;
}
CATransform3D CATransform3DTranslate(CATransform3D t, CGFloat tx, CGFloat ty, CGFloat tz) {
  return CATransform3DConcat(CATransform3DMakeTranslation(tx, ty, tz), t);
}
CATransform3D CATransform3DScale(CATransform3D t, CGFloat sx, CGFloat sy, CGFloat sz) {
  return CATransform3DConcat(CATransform3DMakeScale(sx, sy, sz), t);
}
CATransform3D CATransform3DRotate(CATransform3D t, CGFloat angle, CGFloat x, CGFloat y, CGFloat z) {
  return CATransform3DConcat(CATransform3DMakeRotation(angle, x, y, z), t);
}
bool CATransform3DIsAffine(CATransform3D t) {
  return t.m13 == 0 && t.m23 == 0 && t.m31 == 0 && t.m32 == 0 && t.m33 == 1 && t.m43 == 0 && t.m14 == 0 && t.m24 == 0 &&
         t.m34 == 0 && t.m44 == 1;
}
CATransform3D CATransform3DMakeAffineTransform(CGAffineTransform m) {
  CATransform3D t = CATransform3DIdentity;
  t.m11 = m.a;
  t.m12 = m.b;
  t.m21 = m.c;
  t.m22 = m.d;
  t.m41 = m.tx;
  t.m42 = m.ty;
  return t;
}
CGAffineTransform CATransform3DGetAffineTransform(CATransform3D t) {
  return CGAffineTransformMake(t.m11, t.m12, t.m21, t.m22, t.m41, t.m42);
}

}  // extern "C"
