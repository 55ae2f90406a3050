// Where CoreGraphics' objects meet cairo: paths as cairo paths, a context's drawing as cairo
// drawing, images as pixel surfaces (decoded from their PNG files or data when first drawn).
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>

#include <math.h>
#include <string.h>

#include "CGPixels.h"

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

// CoreGraphics' blend modes as cairo's operators (the Porter-Duff ones and the separable and
// non-separable blends cairo shares with PDF).
cairo_operator_t operatorFor(int mode) {
  static const cairo_operator_t operators[] = {CAIRO_OPERATOR_OVER,        CAIRO_OPERATOR_MULTIPLY,
                                               CAIRO_OPERATOR_SCREEN,      CAIRO_OPERATOR_OVERLAY,
                                               CAIRO_OPERATOR_DARKEN,      CAIRO_OPERATOR_LIGHTEN,
                                               CAIRO_OPERATOR_COLOR_DODGE, CAIRO_OPERATOR_COLOR_BURN,
                                               CAIRO_OPERATOR_SOFT_LIGHT,  CAIRO_OPERATOR_HARD_LIGHT,
                                               CAIRO_OPERATOR_DIFFERENCE,  CAIRO_OPERATOR_EXCLUSION,
                                               CAIRO_OPERATOR_HSL_HUE,     CAIRO_OPERATOR_HSL_SATURATION,
                                               CAIRO_OPERATOR_HSL_COLOR,   CAIRO_OPERATOR_HSL_LUMINOSITY,
                                               CAIRO_OPERATOR_CLEAR,       CAIRO_OPERATOR_SOURCE,
                                               CAIRO_OPERATOR_IN,          CAIRO_OPERATOR_OUT,
                                               CAIRO_OPERATOR_ATOP,        CAIRO_OPERATOR_DEST_OVER,
                                               CAIRO_OPERATOR_DEST_IN,     CAIRO_OPERATOR_DEST_OUT,
                                               CAIRO_OPERATOR_DEST_ATOP,   CAIRO_OPERATOR_XOR,
                                               CAIRO_OPERATOR_MULTIPLY,    CAIRO_OPERATOR_ADD};
  if (mode < 0 || (size_t)mode >= sizeof operators / sizeof operators[0]) return CAIRO_OPERATOR_OVER;
  return operators[mode];
}

void setColour(cairo_t *cr, const CGFloat *rgba, CGFloat alpha) {
  cairo_set_source_rgba(cr, rgba[0], rgba[1], rgba[2], rgba[3] * alpha);
}

}  // namespace

#pragma mark - Pixels

SimCGPixels::SimCGPixels(cairo_t *cr, cairo_surface_t *own) : cr_(cr), own_(own), depth_(0) {
  cairo_get_matrix(cr_, &base_);
}

SimCGPixels *SimCGPixels::withSize(CGSize size, CGFloat scale) {
  if (scale <= 0) scale = 1;
  int w = (int)llround(size.width * scale), h = (int)llround(size.height * scale);
  // Pictures this large are not drawn by the product; beyond it, the context only records.
  if (w <= 0 || h <= 0 || (long)w * h > 64L * 1024 * 1024) return NULL;
  cairo_surface_t *surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
  if (cairo_surface_status(surface) != CAIRO_STATUS_SUCCESS) {
    cairo_surface_destroy(surface);
    return NULL;
  }
  cairo_t *cr = cairo_create(surface);
  cairo_scale(cr, scale, scale);
  return new SimCGPixels(cr, surface);
}

SimCGPixels *SimCGPixels::onCairo(cairo_t *cr) {
  if (cr == NULL) return NULL;
  cairo_save(cr);
  return new SimCGPixels(cairo_reference(cr), NULL);
}

SimCGPixels::~SimCGPixels() {
  while (depth_ > 0) restore();
  if (own_ == NULL) cairo_restore(cr_);
  cairo_destroy(cr_);
  if (own_ != NULL) cairo_surface_destroy(own_);
}

void SimCGPixels::save() {
  cairo_save(cr_);
  saved_.push_back(state_);
  depth_++;
}

void SimCGPixels::restore() {
  if (depth_ == 0) return;
  cairo_restore(cr_);
  state_ = saved_.back();
  saved_.pop_back();
  depth_--;
}

void SimCGPixels::setFill(const CGFloat *rgba) { memcpy(state_.fill, rgba, sizeof state_.fill); }
void SimCGPixels::setStroke(const CGFloat *rgba) { memcpy(state_.stroke, rgba, sizeof state_.stroke); }
void SimCGPixels::setBlendMode(int mode) { cairo_set_operator(cr_, operatorFor(mode)); }

void SimCGPixels::setMatrix(CGAffineTransform ctm) {
  cairo_matrix_t user;
  cairo_matrix_init(&user, ctm.a, ctm.b, ctm.c, ctm.d, ctm.tx, ctm.ty);
  cairo_matrix_t whole;
  cairo_matrix_multiply(&whole, &user, &base_);
  cairo_set_matrix(cr_, &whole);
}

cairo_t *SimCGPixels::cairoWith(CGAffineTransform ctm) {
  setMatrix(ctm);
  return cr_;
}

void SimCGPixels::usePath(Verb verb, CGPathRef path, CGAffineTransform ctm) {
  cairo_set_matrix(cr_, &base_);
  cairo_new_path(cr_);
  SimCGAppendPathToCairo(cr_, path);
  // A stroke's width is in the user space in force when it is stroked.
  setMatrix(ctm);
  switch (verb) {
    case kClip:
      cairo_clip(cr_);
      break;
    case kFill:
    case kEOFill:
      cairo_set_fill_rule(cr_, verb == kEOFill ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
      setColour(cr_, state_.fill, state_.alpha);
      cairo_fill(cr_);
      cairo_set_fill_rule(cr_, CAIRO_FILL_RULE_WINDING);
      break;
    case kStroke:
      setColour(cr_, state_.stroke, state_.alpha);
      cairo_set_line_width(cr_, state_.lineWidth);
      cairo_stroke(cr_);
      break;
    case kFillStroke:
      setColour(cr_, state_.fill, state_.alpha);
      cairo_fill_preserve(cr_);
      setColour(cr_, state_.stroke, state_.alpha);
      cairo_set_line_width(cr_, state_.lineWidth);
      cairo_stroke(cr_);
      break;
    default:
      cairo_new_path(cr_);
      break;
  }
}

void SimCGPixels::useRect(Verb verb, CGRect r, CGAffineTransform ctm) {
  setMatrix(ctm);
  cairo_new_path(cr_);
  if (verb == kEllipse) {
    cairo_save(cr_);
    cairo_translate(cr_, CGRectGetMidX(r), CGRectGetMidY(r));
    cairo_scale(cr_, fmax(r.size.width / 2, 1e-6), fmax(r.size.height / 2, 1e-6));
    cairo_arc(cr_, 0, 0, 1, 0, 2 * M_PI);
    cairo_restore(cr_);
  } else {
    cairo_rectangle(cr_, r.origin.x, r.origin.y, r.size.width, r.size.height);
  }
  switch (verb) {
    case kClip:
      cairo_clip(cr_);
      break;
    case kFill:
    case kEllipse:
      setColour(cr_, state_.fill, state_.alpha);
      cairo_fill(cr_);
      break;
    case kStroke:
      setColour(cr_, state_.stroke, state_.alpha);
      cairo_set_line_width(cr_, state_.lineWidth);
      cairo_stroke(cr_);
      break;
    case kClear: {
      cairo_save(cr_);
      cairo_set_operator(cr_, CAIRO_OPERATOR_CLEAR);
      cairo_fill(cr_);
      cairo_restore(cr_);
      break;
    }
    default:
      cairo_new_path(cr_);
      break;
  }
}

void SimCGPixels::drawImage(CGRect r, CGImageRef image, CGAffineTransform ctm) {
  cairo_surface_t *pixels = SimCGImageSurface(image);
  if (pixels == NULL || r.size.width <= 0 || r.size.height <= 0) return;
  int w = cairo_image_surface_get_width(pixels), h = cairo_image_surface_get_height(pixels);
  if (w <= 0 || h <= 0) return;
  setMatrix(ctm);
  cairo_save(cr_);
  cairo_rectangle(cr_, r.origin.x, r.origin.y, r.size.width, r.size.height);
  cairo_clip(cr_);
  cairo_translate(cr_, r.origin.x, r.origin.y);
  cairo_scale(cr_, r.size.width / w, r.size.height / h);
  cairo_set_source_surface(cr_, pixels, 0, 0);
  cairo_pattern_set_filter(cairo_get_source(cr_), CAIRO_FILTER_GOOD);
  cairo_paint_with_alpha(cr_, state_.alpha);
  cairo_restore(cr_);
}

cairo_surface_t *SimCGPixels::copySurface() const {
  if (own_ == NULL) return NULL;
  cairo_surface_flush(own_);
  int w = cairo_image_surface_get_width(own_), h = cairo_image_surface_get_height(own_);
  cairo_surface_t *copy = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, w, h);
  cairo_t *cr = cairo_create(copy);
  cairo_set_source_surface(cr, own_, 0, 0);
  cairo_set_operator(cr, CAIRO_OPERATOR_SOURCE);
  cairo_paint(cr);
  cairo_destroy(cr);
  return copy;
}

#pragma mark - Stand-in pictures

namespace {

// A stable colour for a name.
void colourForName(NSString *name, double rgb[3]) {
  static const double palette[][3] = {{0.20, 0.60, 0.98}, {0.30, 0.78, 0.40}, {1.00, 0.58, 0.00}, {0.98, 0.26, 0.36},
                                      {0.56, 0.36, 0.90}, {0.35, 0.35, 0.40}, {0.00, 0.70, 0.75}, {1.00, 0.75, 0.00}};
  unsigned hash = 5381;
  for (const char *s = [name UTF8String]; s != NULL && *s != '\0'; s++) hash = hash * 33 + (unsigned char)*s;
  const double *c = palette[hash % (sizeof palette / sizeof palette[0])];
  rgb[0] = c[0];
  rgb[1] = c[1];
  rgb[2] = c[2];
}

}  // namespace

extern "C" {

void SimCGAppendPathToCairo(cairo_t *cr, CGPathRef path) {
  if (cr == NULL || path == NULL) return;
  CGPathApply(path, cr, appendElement);
}

cairo_surface_t *SimCGCreateNamedPicture(NSString *name, size_t width, size_t height) {
  if (width == 0 || height == 0 || width > 4096 || height > 4096) return NULL;
  cairo_surface_t *surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, (int)width, (int)height);
  cairo_t *cr = cairo_create(surface);
  double w = (double)width, h = (double)height, r = fmin(w, h) * 0.225, rgb[3];
  colourForName(name, rgb);
  cairo_new_sub_path(cr);
  cairo_arc(cr, w - r, r, r, -M_PI / 2, 0);
  cairo_arc(cr, w - r, h - r, r, 0, M_PI / 2);
  cairo_arc(cr, r, h - r, r, M_PI / 2, M_PI);
  cairo_arc(cr, r, r, r, M_PI, 3 * M_PI / 2);
  cairo_close_path(cr);
  cairo_set_source_rgb(cr, rgb[0], rgb[1], rgb[2]);
  cairo_fill(cr);
  NSString *shown = [[name
      componentsSeparatedByCharactersInSet:[NSCharacterSet characterSetWithCharactersInString:@".:"]] lastObject];
  if ([shown length] == 0) shown = name;
  if ([shown length] > 0) {
    NSString *letter = [[shown substringToIndex:1] uppercaseString];
    SimTextFont font = {fmin(w, h) * 0.55, 600, NO, NO};
    PangoLayout *layout = SimTextCreateLayout(letter, font, 0, 1, SimTextAlignLeft, NO);
    CGSize size = SimTextLayoutSize(layout);
    SimTextDrawLayout(cr, layout, CGPointMake((w - size.width) / 2, (h - size.height) / 2), 1, 1, 1, 1);
    g_object_unref(layout);
  }
  cairo_destroy(cr);
  return surface;
}

}  // extern "C"
