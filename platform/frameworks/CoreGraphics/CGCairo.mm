// Where CoreGraphics' objects meet cairo: paths as cairo paths, images as pixel surfaces.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

namespace {

void appendElement(void *info, const CGPathElement *element) {
  cairo_t *cr = (cairo_t *)info;
  const CGPoint *p = element->points;
  switch (element->type) {
    case kCGPathElementMoveToPoint:
      cairo_move_to(cr, p[0].x, p[0].y);
      break;
    case kCGPathElementAddLineToPoint:
      cairo_line_to(cr, p[0].x, p[0].y);
      break;
    case kCGPathElementAddQuadCurveToPoint: {
      // cairo has cubic curves only: the quadratic one raised to a cubic.
      double x0 = p[0].x, y0 = p[0].y;
      if (cairo_has_current_point(cr)) cairo_get_current_point(cr, &x0, &y0);
      cairo_curve_to(cr, x0 + 2.0 / 3.0 * (p[0].x - x0), y0 + 2.0 / 3.0 * (p[0].y - y0),
                     p[1].x + 2.0 / 3.0 * (p[0].x - p[1].x), p[1].y + 2.0 / 3.0 * (p[0].y - p[1].y), p[1].x, p[1].y);
      break;
    }
    case kCGPathElementAddCurveToPoint:
      cairo_curve_to(cr, p[0].x, p[0].y, p[1].x, p[1].y, p[2].x, p[2].y);
      break;
    case kCGPathElementCloseSubpath:
      cairo_close_path(cr);
      break;
  }
}

}  // namespace

extern "C" {

void SimCGAppendPathToCairo(cairo_t *cr, CGPathRef path) {
  if (cr == NULL || path == NULL) return;
  CGPathApply(path, cr, appendElement);
}

cairo_surface_t *SimCGImageSurface(CGImageRef image) { return NULL; }

CGContextRef SimCGContextCreateForCairo(cairo_t *cr, CGFloat scale) { return SimCGContextCreate(CGSizeZero, scale); }

}  // extern "C"
