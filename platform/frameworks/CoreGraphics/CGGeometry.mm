// Geometry and affine transforms.
#include <CoreGraphics/CoreGraphics.h>

#include <math.h>

extern "C" {

const CGPoint CGPointZero = {0, 0};
const CGSize CGSizeZero = {0, 0};
const CGRect CGRectZero = {{0, 0}, {0, 0}};
const CGRect CGRectNull = {{INFINITY, INFINITY}, {0, 0}};
const CGRect CGRectInfinite = {{-DBL_MAX / 2, -DBL_MAX / 2}, {DBL_MAX, DBL_MAX}};
const CGAffineTransform CGAffineTransformIdentity = {1, 0, 0, 1, 0, 0};

CGRect CGRectStandardize(CGRect r) {
  if (CGRectIsNull(r)) return r;
  if (r.size.width < 0) {
    r.origin.x += r.size.width;
    r.size.width = -r.size.width;
  }
  if (r.size.height < 0) {
    r.origin.y += r.size.height;
    r.size.height = -r.size.height;
  }
  return r;
}

CGFloat CGRectGetMinX(CGRect r) { return CGRectStandardize(r).origin.x; }
CGFloat CGRectGetMaxX(CGRect r) {
  r = CGRectStandardize(r);
  return r.origin.x + r.size.width;
}
CGFloat CGRectGetMidX(CGRect r) {
  r = CGRectStandardize(r);
  return r.origin.x + r.size.width / 2;
}
CGFloat CGRectGetMinY(CGRect r) { return CGRectStandardize(r).origin.y; }
CGFloat CGRectGetMaxY(CGRect r) {
  r = CGRectStandardize(r);
  return r.origin.y + r.size.height;
}
CGFloat CGRectGetMidY(CGRect r) {
  r = CGRectStandardize(r);
  return r.origin.y + r.size.height / 2;
}
CGFloat CGRectGetWidth(CGRect r) { return fabs(r.size.width); }
CGFloat CGRectGetHeight(CGRect r) { return fabs(r.size.height); }

bool CGPointEqualToPoint(CGPoint a, CGPoint b) { return a.x == b.x && a.y == b.y; }
bool CGSizeEqualToSize(CGSize a, CGSize b) { return a.width == b.width && a.height == b.height; }
bool CGRectEqualToRect(CGRect a, CGRect b) {
  if (CGRectIsNull(a) || CGRectIsNull(b)) return CGRectIsNull(a) && CGRectIsNull(b);
  a = CGRectStandardize(a);
  b = CGRectStandardize(b);
  return CGPointEqualToPoint(a.origin, b.origin) && CGSizeEqualToSize(a.size, b.size);
}

bool CGRectIsNull(CGRect r) { return isinf(r.origin.x) || isinf(r.origin.y); }
bool CGRectIsEmpty(CGRect r) { return CGRectIsNull(r) || r.size.width == 0 || r.size.height == 0; }
bool CGRectIsInfinite(CGRect r) { return CGRectEqualToRect(r, CGRectInfinite); }

CGRect CGRectInset(CGRect r, CGFloat dx, CGFloat dy) {
  if (CGRectIsNull(r)) return r;
  r = CGRectStandardize(r);
  r.origin.x += dx;
  r.origin.y += dy;
  r.size.width -= 2 * dx;
  r.size.height -= 2 * dy;
  if (r.size.width < 0 || r.size.height < 0) return CGRectNull;
  return r;
}

CGRect CGRectOffset(CGRect r, CGFloat dx, CGFloat dy) {
  if (CGRectIsNull(r)) return r;
  r = CGRectStandardize(r);
  r.origin.x += dx;
  r.origin.y += dy;
  return r;
}

CGRect CGRectIntegral(CGRect r) {
  if (CGRectIsNull(r)) return r;
  r = CGRectStandardize(r);
  CGFloat minX = floor(r.origin.x), minY = floor(r.origin.y);
  CGFloat maxX = ceil(r.origin.x + r.size.width), maxY = ceil(r.origin.y + r.size.height);
  return CGRectMake(minX, minY, maxX - minX, maxY - minY);
}

CGRect CGRectUnion(CGRect a, CGRect b) {
  if (CGRectIsNull(a)) return CGRectStandardize(b);
  if (CGRectIsNull(b)) return CGRectStandardize(a);
  a = CGRectStandardize(a);
  b = CGRectStandardize(b);
  CGFloat minX = fmin(a.origin.x, b.origin.x), minY = fmin(a.origin.y, b.origin.y);
  CGFloat maxX = fmax(CGRectGetMaxX(a), CGRectGetMaxX(b)), maxY = fmax(CGRectGetMaxY(a), CGRectGetMaxY(b));
  return CGRectMake(minX, minY, maxX - minX, maxY - minY);
}

CGRect CGRectIntersection(CGRect a, CGRect b) {
  if (CGRectIsNull(a) || CGRectIsNull(b)) return CGRectNull;
  a = CGRectStandardize(a);
  b = CGRectStandardize(b);
  CGFloat minX = fmax(a.origin.x, b.origin.x), minY = fmax(a.origin.y, b.origin.y);
  CGFloat maxX = fmin(CGRectGetMaxX(a), CGRectGetMaxX(b)), maxY = fmin(CGRectGetMaxY(a), CGRectGetMaxY(b));
  if (maxX < minX || maxY < minY) return CGRectNull;
  return CGRectMake(minX, minY, maxX - minX, maxY - minY);
}

void CGRectDivide(CGRect r, CGRect *slice, CGRect *remainder, CGFloat amount, CGRectEdge edge) {
  r = CGRectStandardize(r);
  CGRect s = r, rem = r;
  switch (edge) {
    case CGRectMinXEdge:
      amount = fmin(fmax(amount, 0), r.size.width);
      s.size.width = amount;
      rem.origin.x += amount;
      rem.size.width -= amount;
      break;
    case CGRectMaxXEdge:
      amount = fmin(fmax(amount, 0), r.size.width);
      s.origin.x = CGRectGetMaxX(r) - amount;
      s.size.width = amount;
      rem.size.width -= amount;
      break;
    case CGRectMinYEdge:
      amount = fmin(fmax(amount, 0), r.size.height);
      s.size.height = amount;
      rem.origin.y += amount;
      rem.size.height -= amount;
      break;
    case CGRectMaxYEdge:
      amount = fmin(fmax(amount, 0), r.size.height);
      s.origin.y = CGRectGetMaxY(r) - amount;
      s.size.height = amount;
      rem.size.height -= amount;
      break;
  }
  if (slice) *slice = s;
  if (remainder) *remainder = rem;
}

bool CGRectContainsPoint(CGRect r, CGPoint p) {
  if (CGRectIsNull(r)) return false;
  r = CGRectStandardize(r);
  return p.x >= r.origin.x && p.x < CGRectGetMaxX(r) && p.y >= r.origin.y && p.y < CGRectGetMaxY(r);
}

bool CGRectContainsRect(CGRect a, CGRect b) {
  if (CGRectIsNull(a) || CGRectIsNull(b)) return false;
  return CGRectEqualToRect(CGRectUnion(a, b), CGRectStandardize(a));
}

bool CGRectIntersectsRect(CGRect a, CGRect b) {
  CGRect i = CGRectIntersection(a, b);
  return !CGRectIsNull(i) && !CGRectIsEmpty(i);
}

CGAffineTransform CGAffineTransformMake(CGFloat a, CGFloat b, CGFloat c, CGFloat d, CGFloat tx, CGFloat ty) {
  CGAffineTransform t = {a, b, c, d, tx, ty};
  return t;
}
CGAffineTransform CGAffineTransformMakeTranslation(CGFloat tx, CGFloat ty) {
  return CGAffineTransformMake(1, 0, 0, 1, tx, ty);
}
CGAffineTransform CGAffineTransformMakeScale(CGFloat sx, CGFloat sy) {
  return CGAffineTransformMake(sx, 0, 0, sy, 0, 0);
}
CGAffineTransform CGAffineTransformMakeRotation(CGFloat angle) {
  CGFloat s = sin(angle), c = cos(angle);
  return CGAffineTransformMake(c, s, -s, c, 0, 0);
}
bool CGAffineTransformIsIdentity(CGAffineTransform t) {
  return CGAffineTransformEqualToTransform(t, CGAffineTransformIdentity);
}
bool CGAffineTransformEqualToTransform(CGAffineTransform a, CGAffineTransform b) {
  return a.a == b.a && a.b == b.b && a.c == b.c && a.d == b.d && a.tx == b.tx && a.ty == b.ty;
}
CGAffineTransform CGAffineTransformConcat(CGAffineTransform t1, CGAffineTransform t2) {
  return CGAffineTransformMake(t1.a * t2.a + t1.b * t2.c, t1.a * t2.b + t1.b * t2.d, t1.c * t2.a + t1.d * t2.c,
                               t1.c * t2.b + t1.d * t2.d, t1.tx * t2.a + t1.ty * t2.c + t2.tx,
                               t1.tx * t2.b + t1.ty * t2.d + t2.ty);
}
CGAffineTransform CGAffineTransformTranslate(CGAffineTransform t, CGFloat tx, CGFloat ty) {
  return CGAffineTransformConcat(CGAffineTransformMakeTranslation(tx, ty), t);
}
CGAffineTransform CGAffineTransformScale(CGAffineTransform t, CGFloat sx, CGFloat sy) {
  return CGAffineTransformConcat(CGAffineTransformMakeScale(sx, sy), t);
}
CGAffineTransform CGAffineTransformRotate(CGAffineTransform t, CGFloat angle) {
  return CGAffineTransformConcat(CGAffineTransformMakeRotation(angle), t);
}
CGAffineTransform CGAffineTransformInvert(CGAffineTransform t) {
  CGFloat det = t.a * t.d - t.b * t.c;
  if (det == 0) return t;
  CGAffineTransform r;
  r.a = t.d / det;
  r.b = -t.b / det;
  r.c = -t.c / det;
  r.d = t.a / det;
  r.tx = -(r.a * t.tx + r.c * t.ty);
  r.ty = -(r.b * t.tx + r.d * t.ty);
  return r;
}
CGPoint CGPointApplyAffineTransform(CGPoint p, CGAffineTransform t) {
  return CGPointMake(t.a * p.x + t.c * p.y + t.tx, t.b * p.x + t.d * p.y + t.ty);
}
CGSize CGSizeApplyAffineTransform(CGSize s, CGAffineTransform t) {
  return CGSizeMake(t.a * s.width + t.c * s.height, t.b * s.width + t.d * s.height);
}
CGRect CGRectApplyAffineTransform(CGRect r, CGAffineTransform t) {
  if (CGRectIsNull(r)) return r;
  r = CGRectStandardize(r);
  CGPoint p[4] = {CGPointApplyAffineTransform(r.origin, t),
                  CGPointApplyAffineTransform(CGPointMake(CGRectGetMaxX(r), r.origin.y), t),
                  CGPointApplyAffineTransform(CGPointMake(r.origin.x, CGRectGetMaxY(r)), t),
                  CGPointApplyAffineTransform(CGPointMake(CGRectGetMaxX(r), CGRectGetMaxY(r)), t)};
  CGFloat minX = p[0].x, maxX = p[0].x, minY = p[0].y, maxY = p[0].y;
  for (int i = 1; i < 4; ++i) {
    minX = fmin(minX, p[i].x);
    maxX = fmax(maxX, p[i].x);
    minY = fmin(minY, p[i].y);
    maxY = fmax(maxY, p[i].y);
  }
  return CGRectMake(minX, minY, maxX - minX, maxY - minY);
}

}  // extern "C"
