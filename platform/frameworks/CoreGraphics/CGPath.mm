// Paths: an Objective-C object behind the opaque C pointer holding the elements in order.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <math.h>
#include <vector>

struct SimPathElement {
  CGPathElementType type;
  CGPoint points[3];
};

@interface _SimCGPath : NSObject {
  std::vector<SimPathElement> *_elements;
}
- (std::vector<SimPathElement> &)elements;
@end
@implementation _SimCGPath
- (instancetype)init {
  if ((self = [super init])) _elements = new std::vector<SimPathElement>();
  return self;
}
- (void)dealloc {
  delete _elements;
  [super dealloc];
}
- (std::vector<SimPathElement> &)elements {
  return *_elements;
}
- (NSString *)description {
  return SimCGPathDescription((CGPathRef)self);
}
@end

extern "C" {

static CGPoint applyOptional(const CGAffineTransform *m, CGFloat x, CGFloat y) {
  CGPoint p = CGPointMake(x, y);
  return m ? CGPointApplyAffineTransform(p, *m) : p;
}

static void addElement(CGMutablePathRef path, CGPathElementType type, const CGAffineTransform *m, const CGPoint *pts,
                       int n) {
  if (!path) return;
  SimPathElement e;
  e.type = type;
  for (int i = 0; i < 3; ++i) e.points[i] = CGPointZero;
  for (int i = 0; i < n; ++i) e.points[i] = applyOptional(m, pts[i].x, pts[i].y);
  [(_SimCGPath *)path elements].push_back(e);
}

CGMutablePathRef CGPathCreateMutable(void) { return (CGMutablePathRef)[[_SimCGPath alloc] init]; }

CGPathRef CGPathCreateWithRect(CGRect rect, const CGAffineTransform *transform) {
  CGMutablePathRef p = CGPathCreateMutable();
  CGPathAddRect(p, transform, rect);
  return p;
}
CGPathRef CGPathCreateWithEllipseInRect(CGRect rect, const CGAffineTransform *transform) {
  CGMutablePathRef p = CGPathCreateMutable();
  CGPathAddEllipseInRect(p, transform, rect);
  return p;
}
CGPathRef CGPathCreateWithRoundedRect(CGRect rect, CGFloat cw, CGFloat ch, const CGAffineTransform *transform) {
  CGMutablePathRef p = CGPathCreateMutable();
  CGPathAddRoundedRect(p, transform, rect, cw, ch);
  return p;
}
CGMutablePathRef CGPathCreateMutableCopy(CGPathRef path) {
  if (!path) return NULL;
  _SimCGPath *copy = [[_SimCGPath alloc] init];
  [copy elements] = [(_SimCGPath *)path elements];
  return (CGMutablePathRef)copy;
}
CGPathRef CGPathCreateCopy(CGPathRef path) { return CGPathCreateMutableCopy(path); }
CGPathRef CGPathRetain(CGPathRef path) {
  [(id)path retain];
  return path;
}
void CGPathRelease(CGPathRef path) { [(id)path release]; }

bool CGPathEqualToPath(CGPathRef a, CGPathRef b) {
  if (a == b) return true;
  if (!a || !b) return false;
  std::vector<SimPathElement> &x = [(_SimCGPath *)a elements], &y = [(_SimCGPath *)b elements];
  if (x.size() != y.size()) return false;
  for (size_t i = 0; i < x.size(); ++i) {
    if (x[i].type != y[i].type) return false;
    for (int k = 0; k < 3; ++k)
      if (!CGPointEqualToPoint(x[i].points[k], y[i].points[k])) return false;
  }
  return true;
}

void CGPathMoveToPoint(CGMutablePathRef path, const CGAffineTransform *m, CGFloat x, CGFloat y) {
  CGPoint p = CGPointMake(x, y);
  addElement(path, kCGPathElementMoveToPoint, m, &p, 1);
}
void CGPathAddLineToPoint(CGMutablePathRef path, const CGAffineTransform *m, CGFloat x, CGFloat y) {
  CGPoint p = CGPointMake(x, y);
  addElement(path, kCGPathElementAddLineToPoint, m, &p, 1);
}
void CGPathAddQuadCurveToPoint(CGMutablePathRef path, const CGAffineTransform *m, CGFloat cpx, CGFloat cpy, CGFloat x,
                               CGFloat y) {
  CGPoint p[2] = {CGPointMake(cpx, cpy), CGPointMake(x, y)};
  addElement(path, kCGPathElementAddQuadCurveToPoint, m, p, 2);
}
void CGPathAddCurveToPoint(CGMutablePathRef path, const CGAffineTransform *m, CGFloat cp1x, CGFloat cp1y, CGFloat cp2x,
                           CGFloat cp2y, CGFloat x, CGFloat y) {
  CGPoint p[3] = {CGPointMake(cp1x, cp1y), CGPointMake(cp2x, cp2y), CGPointMake(x, y)};
  addElement(path, kCGPathElementAddCurveToPoint, m, p, 3);
}
void CGPathCloseSubpath(CGMutablePathRef path) { addElement(path, kCGPathElementCloseSubpath, NULL, NULL, 0); }

void CGPathAddRect(CGMutablePathRef path, const CGAffineTransform *m, CGRect r) {
  r = CGRectStandardize(r);
  CGPathMoveToPoint(path, m, r.origin.x, r.origin.y);
  CGPathAddLineToPoint(path, m, CGRectGetMaxX(r), r.origin.y);
  CGPathAddLineToPoint(path, m, CGRectGetMaxX(r), CGRectGetMaxY(r));
  CGPathAddLineToPoint(path, m, r.origin.x, CGRectGetMaxY(r));
  CGPathCloseSubpath(path);
}
void CGPathAddRects(CGMutablePathRef path, const CGAffineTransform *m, const CGRect *rects, size_t count) {
  for (size_t i = 0; i < count; ++i) CGPathAddRect(path, m, rects[i]);
}
void CGPathAddLines(CGMutablePathRef path, const CGAffineTransform *m, const CGPoint *points, size_t count) {
  for (size_t i = 0; i < count; ++i) {
    if (i == 0)
      CGPathMoveToPoint(path, m, points[i].x, points[i].y);
    else
      CGPathAddLineToPoint(path, m, points[i].x, points[i].y);
  }
}
void CGPathAddEllipseInRect(CGMutablePathRef path, const CGAffineTransform *m, CGRect r) {
  r = CGRectStandardize(r);
  const CGFloat k = 0.5522847498;
  CGFloat cx = CGRectGetMidX(r), cy = CGRectGetMidY(r), rx = r.size.width / 2, ry = r.size.height / 2;
  CGPathMoveToPoint(path, m, cx + rx, cy);
  CGPathAddCurveToPoint(path, m, cx + rx, cy + k * ry, cx + k * rx, cy + ry, cx, cy + ry);
  CGPathAddCurveToPoint(path, m, cx - k * rx, cy + ry, cx - rx, cy + k * ry, cx - rx, cy);
  CGPathAddCurveToPoint(path, m, cx - rx, cy - k * ry, cx - k * rx, cy - ry, cx, cy - ry);
  CGPathAddCurveToPoint(path, m, cx + k * rx, cy - ry, cx + rx, cy - k * ry, cx + rx, cy);
  CGPathCloseSubpath(path);
}
void CGPathAddRoundedRect(CGMutablePathRef path, const CGAffineTransform *m, CGRect r, CGFloat cw, CGFloat ch) {
  r = CGRectStandardize(r);
  cw = fmin(fmax(cw, 0), r.size.width / 2);
  ch = fmin(fmax(ch, 0), r.size.height / 2);
  if (cw == 0 || ch == 0) {
    CGPathAddRect(path, m, r);
    return;
  }
  const CGFloat k = 0.5522847498;
  CGFloat minX = r.origin.x, minY = r.origin.y, maxX = CGRectGetMaxX(r), maxY = CGRectGetMaxY(r);
  CGPathMoveToPoint(path, m, minX + cw, minY);
  CGPathAddLineToPoint(path, m, maxX - cw, minY);
  CGPathAddCurveToPoint(path, m, maxX - cw + k * cw, minY, maxX, minY + ch - k * ch, maxX, minY + ch);
  CGPathAddLineToPoint(path, m, maxX, maxY - ch);
  CGPathAddCurveToPoint(path, m, maxX, maxY - ch + k * ch, maxX - cw + k * cw, maxY, maxX - cw, maxY);
  CGPathAddLineToPoint(path, m, minX + cw, maxY);
  CGPathAddCurveToPoint(path, m, minX + cw - k * cw, maxY, minX, maxY - ch + k * ch, minX, maxY - ch);
  CGPathAddLineToPoint(path, m, minX, minY + ch);
  CGPathAddCurveToPoint(path, m, minX, minY + ch - k * ch, minX + cw - k * cw, minY, minX + cw, minY);
  CGPathCloseSubpath(path);
}
void CGPathAddArc(CGMutablePathRef path, const CGAffineTransform *m, CGFloat x, CGFloat y, CGFloat radius,
                  CGFloat startAngle, CGFloat endAngle, bool clockwise) {
  if (!path) return;
  // Approximated by line segments; enough for bounding boxes and descriptions.
  CGFloat sweep = endAngle - startAngle;
  if (clockwise && sweep > 0) sweep -= 2 * M_PI;
  if (!clockwise && sweep < 0) sweep += 2 * M_PI;
  int steps = 16;
  for (int i = 0; i <= steps; ++i) {
    CGFloat a = startAngle + sweep * i / steps;
    CGFloat px = x + radius * cos(a), py = y + radius * sin(a);
    if (i == 0 && [(_SimCGPath *)path elements].empty())
      CGPathMoveToPoint(path, m, px, py);
    else
      CGPathAddLineToPoint(path, m, px, py);
  }
}
void CGPathAddPath(CGMutablePathRef path1, const CGAffineTransform *m, CGPathRef path2) {
  if (!path1 || !path2) return;
  std::vector<SimPathElement> src = [(_SimCGPath *)path2 elements];
  for (const SimPathElement &e : src) {
    int n = e.type == kCGPathElementCloseSubpath          ? 0
            : e.type == kCGPathElementAddCurveToPoint     ? 3
            : e.type == kCGPathElementAddQuadCurveToPoint ? 2
                                                          : 1;
    addElement(path1, e.type, m, e.points, n);
  }
}

bool CGPathIsEmpty(CGPathRef path) { return !path || [(_SimCGPath *)path elements].empty(); }

bool CGPathIsRect(CGPathRef path, CGRect *rect) {
  if (!path) return false;
  std::vector<SimPathElement> &e = [(_SimCGPath *)path elements];
  if (e.size() != 5 || e[0].type != kCGPathElementMoveToPoint || e[4].type != kCGPathElementCloseSubpath) return false;
  CGPoint a = e[0].points[0], b = e[1].points[0], c = e[2].points[0], d = e[3].points[0];
  bool isRect = a.y == b.y && b.x == c.x && c.y == d.y && d.x == a.x;
  if (isRect && rect) *rect = CGRectStandardize(CGRectMake(a.x, a.y, c.x - a.x, c.y - a.y));
  return isRect;
}

CGPoint CGPathGetCurrentPoint(CGPathRef path) {
  if (CGPathIsEmpty(path)) return CGPointZero;
  std::vector<SimPathElement> &e = [(_SimCGPath *)path elements];
  for (size_t i = e.size(); i-- > 0;) {
    switch (e[i].type) {
      case kCGPathElementMoveToPoint:
      case kCGPathElementAddLineToPoint:
        return e[i].points[0];
      case kCGPathElementAddQuadCurveToPoint:
        return e[i].points[1];
      case kCGPathElementAddCurveToPoint:
        return e[i].points[2];
      case kCGPathElementCloseSubpath:
        break;
    }
  }
  return CGPointZero;
}

CGRect CGPathGetBoundingBox(CGPathRef path) {
  if (CGPathIsEmpty(path)) return CGRectNull;
  bool any = false;
  CGFloat minX = 0, minY = 0, maxX = 0, maxY = 0;
  for (const SimPathElement &e : [(_SimCGPath *)path elements]) {
    int n = e.type == kCGPathElementCloseSubpath          ? 0
            : e.type == kCGPathElementAddCurveToPoint     ? 3
            : e.type == kCGPathElementAddQuadCurveToPoint ? 2
                                                          : 1;
    for (int i = 0; i < n; ++i) {
      CGPoint p = e.points[i];
      if (!any) {
        minX = maxX = p.x;
        minY = maxY = p.y;
        any = true;
      }
      minX = fmin(minX, p.x);
      maxX = fmax(maxX, p.x);
      minY = fmin(minY, p.y);
      maxY = fmax(maxY, p.y);
    }
  }
  return any ? CGRectMake(minX, minY, maxX - minX, maxY - minY) : CGRectNull;
}

bool CGPathContainsPoint(CGPathRef path, const CGAffineTransform *m, CGPoint point, bool eoFill) {
  // Bounding-box test: the stand-in paths are rectangles and rounded rectangles.
  if (m) point = CGPointApplyAffineTransform(point, CGAffineTransformInvert(*m));
  CGRect box = CGPathGetBoundingBox(path);
  if (CGRectIsNull(box)) return false;
  return point.x >= box.origin.x && point.x <= CGRectGetMaxX(box) && point.y >= box.origin.y &&
         point.y <= CGRectGetMaxY(box);
}

void CGPathApply(CGPathRef path, void *info, CGPathApplierFunction function) {
  if (!path || !function) return;
  std::vector<SimPathElement> copy = [(_SimCGPath *)path elements];
  for (SimPathElement &e : copy) {
    CGPathElement element;
    element.type = e.type;
    element.points = e.points;
    function(info, &element);
  }
}

NSString *SimCGPathDescription(CGPathRef path) {
  if (!path) return @"";
  NSMutableArray *parts = [NSMutableArray array];
  for (const SimPathElement &e : [(_SimCGPath *)path elements]) {
    switch (e.type) {
      case kCGPathElementMoveToPoint:
        [parts addObject:[NSString stringWithFormat:@"M %g %g", e.points[0].x, e.points[0].y]];
        break;
      case kCGPathElementAddLineToPoint:
        [parts addObject:[NSString stringWithFormat:@"L %g %g", e.points[0].x, e.points[0].y]];
        break;
      case kCGPathElementAddQuadCurveToPoint:
        [parts addObject:[NSString stringWithFormat:@"Q %g %g %g %g", e.points[0].x, e.points[0].y, e.points[1].x,
                                                    e.points[1].y]];
        break;
      case kCGPathElementAddCurveToPoint:
        [parts addObject:[NSString stringWithFormat:@"C %g %g %g %g %g %g", e.points[0].x, e.points[0].y, e.points[1].x,
                                                    e.points[1].y, e.points[2].x, e.points[2].y]];
        break;
      case kCGPathElementCloseSubpath:
        [parts addObject:@"Z"];
        break;
    }
  }
  return [parts componentsJoinedByString:@"; "];
}

}  // extern "C"
