// Shared parts of the Settings app's renderer: the drawing state of one picture and the
// helpers every part draws with. All geometry is in points; cairo's matrix carries the scale.
#pragma once

#import <UIKit/UIKit.h>
#include <CoreGraphics/CoreGraphicsCairo.h>
#include <cairo.h>

#import "SimRender.h"

namespace simrender {

struct Rgba {
  double r, g, b, a;
};

// One picture being drawn.
struct Canvas {
  cairo_t *cr = nullptr;
  cairo_surface_t *surface = nullptr;
  CGSize size = CGSizeZero;  // points
  CGFloat scale = 1;
  int system = 16;  // the profile's major system version
  bool pad = false;
  bool dark = false;
  bool rightToLeft = false;        // the user's language is written right to left: the UI is mirrored
  NSMutableArray *rows = nil;      // SimDrawnRow
  NSMutableArray *controls = nil;  // SimDrawnControl
  // Text records drawn while each row was drawn: [first, end) into the text records.
  NSMutableArray *rowTextRanges = nil;
};

// Colours.
Rgba rgbaOf(UIColor *color, Rgba fallback);
Rgba rgbaOfCG(CGColorRef color, Rgba fallback);
void setSource(cairo_t *cr, Rgba colour);
inline Rgba withAlpha(Rgba c, double a) { return Rgba{c.r, c.g, c.b, c.a * a}; }
// The system colours as the profile's appearance shows them.
Rgba labelColour();
Rgba secondaryLabelColour();
Rgba tertiaryLabelColour();
Rgba separatorColour();
Rgba tintColour();
Rgba groupedBackgroundColour();
Rgba cellBackgroundColour();

// Shapes.
void roundedRect(cairo_t *cr, CGRect r, double radius);
void roundedRectCorners(cairo_t *cr, CGRect r, double radius, bool top, bool bottom);
void fillRect(cairo_t *cr, CGRect r, Rgba colour);
void hairline(Canvas &canvas, double x0, double y0, double x1, double y1, Rgba colour);
void shadowedCircle(cairo_t *cr, double cx, double cy, double radius, Rgba fill, bool dark);

// Where a page's content starts on the screen (under its bars): a text view reaching under the
// bars starts its text below them, as UIKit insets scroll views.
void setScrollInsetTop(CGFloat top);

// Whether the interface is mirrored: natural alignment is then the right edge, as UIKit has it.
void setRightToLeft(bool rightToLeft);
bool rightToLeft();

// Text: lays out, draws and returns the laid-out size. `width` <= 0: one unbounded line.
CGSize drawText(cairo_t *cr, NSString *text, SimTextFont font, Rgba colour, CGRect box, int alignment, NSInteger lines,
                bool centreVertically, bool truncate);
CGSize measureText(NSString *text, SimTextFont font, CGFloat width, NSInteger lines);
SimTextFont systemFont(CGFloat size, int weight);
SimTextFont fontOf(UIFont *font, SimTextFont fallback);

// Images: draws `image` to fill `rect` (its own pixels, or a stand-in picture for images
// known only by name, such as application icons). `tint` colours template images.
void drawImage(Canvas &canvas, UIImage *image, CGRect rect, const Rgba *tint);

// The view tree: draws `view` (its layer and every sublayer) in the current user space,
// where the view's superview's bounds are. Views listed in `skip` are left out.
void drawView(Canvas &canvas, UIView *view);
// The view's layer tree drawn with the view's frame at `origin` instead of where it is.
void drawViewAt(Canvas &canvas, UIView *view, CGPoint origin);
// Draws what a view of a known class shows in its bounds (labels, switches...), without
// its background or subviews. Returns NO for views with nothing of their own to draw.
bool drawViewContent(Canvas &canvas, UIView *view, CGRect bounds);
// Lays a view out at another size for drawing and puts it back afterwards.
struct TemporaryWidth {
  UIView *view;
  CGRect saved;
  bool changed;
  TemporaryWidth(UIView *v, CGFloat width, CGFloat height);
  ~TemporaryWidth();
};

// Records a control drawn at `frame` (points, screen).
void recordControl(Canvas &canvas, UIView *view, NSString *kind, CGRect frame);
// The current user-space rectangle in screen points.
CGRect screenRect(cairo_t *cr, CGRect r, CGFloat scale);

// Table pages and the chrome around pages.
void drawTable(Canvas &canvas, UITableView *table, CGRect column, CGFloat contentTop, bool fullPage);
CGFloat statusBarHeight(Canvas &canvas);
void drawStatusBar(Canvas &canvas, CGRect area, bool lightContent);

// True for views whose class the renderer draws itself, rather than through their subviews
// (the cells' separator views are drawn by the table).
bool isSeparatorView(UIView *view);

}  // namespace simrender

@interface SimScreenPicture (Making)
// Takes a reference to the surface.
- (instancetype)_simInitWithSurface:(cairo_surface_t *)surface size:(CGSize)size scale:(CGFloat)scale;
@end
