// The pixels behind a CoreGraphics context: a cairo context with the graphics state cairo does
// not keep for CoreGraphics (fill and stroke colours, global alpha). Paths arrive in the
// context's base space (the CTM applied as they were added, as CoreGraphics does); rectangles
// and images in user space with the CTM in force.
#pragma once

#include <CoreGraphics/CoreGraphicsCairo.h>

#include <vector>

class SimCGPixels {
 public:
  // A bitmap of `size` points at `scale`, transparent; NULL when the size is empty.
  static SimCGPixels *withSize(CGSize size, CGFloat scale);
  // Drawing onto `cr` as it stands: its matrix is the base space.
  static SimCGPixels *onCairo(cairo_t *cr);
  ~SimCGPixels();

  enum Verb { kClip, kFill, kEOFill, kStroke, kFillStroke, kClear, kEllipse };

  void save();
  void restore();
  void setFill(const CGFloat *rgba);
  void setStroke(const CGFloat *rgba);
  void setLineWidth(CGFloat width) { state_.lineWidth = width; }
  void setAlpha(CGFloat alpha) { state_.alpha = alpha; }
  void setBlendMode(int mode);
  void usePath(Verb verb, CGPathRef path, CGAffineTransform ctm);
  void useRect(Verb verb, CGRect rect, CGAffineTransform ctm);
  void drawImage(CGRect rect, CGImageRef image, CGAffineTransform ctm);
  // The cairo context with user space = base space x `ctm` (for text).
  cairo_t *cairoWith(CGAffineTransform ctm);
  // A copy of the bitmap (NULL for a context drawing onto another's).
  cairo_surface_t *copySurface() const;

 private:
  struct State {
    CGFloat fill[4] = {0, 0, 0, 1};
    CGFloat stroke[4] = {0, 0, 0, 1};
    CGFloat lineWidth = 1;
    CGFloat alpha = 1;
  };
  SimCGPixels(cairo_t *cr, cairo_surface_t *own);
  void setMatrix(CGAffineTransform ctm);

  cairo_t *cr_;
  cairo_surface_t *own_;
  cairo_matrix_t base_;
  State state_;
  std::vector<State> saved_;
  int depth_;
};
