/* Points, sizes and rectangles. */
#ifndef COREGRAPHICS_CGGEOMETRY_H
#define COREGRAPHICS_CGGEOMETRY_H

#include <CoreGraphics/CGBase.h>

struct CGPoint {
  CGFloat x;
  CGFloat y;
};
typedef struct CGPoint CGPoint;

struct CGSize {
  CGFloat width;
  CGFloat height;
};
typedef struct CGSize CGSize;

struct CGVector {
  CGFloat dx;
  CGFloat dy;
};
typedef struct CGVector CGVector;

struct CGRect {
  CGPoint origin;
  CGSize size;
};
typedef struct CGRect CGRect;

typedef enum CGRectEdge { CGRectMinXEdge, CGRectMinYEdge, CGRectMaxXEdge, CGRectMaxYEdge } CGRectEdge;

CG_EXTERN const CGPoint CGPointZero;
CG_EXTERN const CGSize CGSizeZero;
CG_EXTERN const CGRect CGRectZero;
CG_EXTERN const CGRect CGRectNull;
CG_EXTERN const CGRect CGRectInfinite;

CG_INLINE CGPoint CGPointMake(CGFloat x, CGFloat y) {
  CGPoint p;
  p.x = x;
  p.y = y;
  return p;
}
CG_INLINE CGSize CGSizeMake(CGFloat width, CGFloat height) {
  CGSize s;
  s.width = width;
  s.height = height;
  return s;
}
CG_INLINE CGVector CGVectorMake(CGFloat dx, CGFloat dy) {
  CGVector v;
  v.dx = dx;
  v.dy = dy;
  return v;
}
CG_INLINE CGRect CGRectMake(CGFloat x, CGFloat y, CGFloat width, CGFloat height) {
  CGRect r;
  r.origin.x = x;
  r.origin.y = y;
  r.size.width = width;
  r.size.height = height;
  return r;
}

CG_EXTERN_C_BEGIN
CGFloat CGRectGetMinX(CGRect rect);
CGFloat CGRectGetMidX(CGRect rect);
CGFloat CGRectGetMaxX(CGRect rect);
CGFloat CGRectGetMinY(CGRect rect);
CGFloat CGRectGetMidY(CGRect rect);
CGFloat CGRectGetMaxY(CGRect rect);
CGFloat CGRectGetWidth(CGRect rect);
CGFloat CGRectGetHeight(CGRect rect);
bool CGPointEqualToPoint(CGPoint point1, CGPoint point2);
bool CGSizeEqualToSize(CGSize size1, CGSize size2);
bool CGRectEqualToRect(CGRect rect1, CGRect rect2);
CGRect CGRectStandardize(CGRect rect);
bool CGRectIsEmpty(CGRect rect);
bool CGRectIsNull(CGRect rect);
bool CGRectIsInfinite(CGRect rect);
CGRect CGRectInset(CGRect rect, CGFloat dx, CGFloat dy);
CGRect CGRectIntegral(CGRect rect);
CGRect CGRectUnion(CGRect r1, CGRect r2);
CGRect CGRectIntersection(CGRect r1, CGRect r2);
CGRect CGRectOffset(CGRect rect, CGFloat dx, CGFloat dy);
void CGRectDivide(CGRect rect, CGRect *slice, CGRect *remainder, CGFloat amount, CGRectEdge edge);
bool CGRectContainsPoint(CGRect rect, CGPoint point);
bool CGRectContainsRect(CGRect rect1, CGRect rect2);
bool CGRectIntersectsRect(CGRect rect1, CGRect rect2);
CG_EXTERN_C_END

#endif
