// The view tree as the device draws it: each layer with its background, corners, border,
// contents and shape, then what its view's class shows (text, images, controls), then its
// sublayers. Views are read through their public properties only.
#import <Preferences/Preferences.h>
#import <QuartzCore/QuartzCore.h>
#import <UIKit/UIKitSimulation.h>
#include <CoreGraphics/CoreGraphicsSimulation.h>
#include <Simulator/Simulator.h>

#include <math.h>
#include <objc/runtime.h>

#import "SimRenderInternal.h"

namespace simrender {

#pragma mark - Colours

Rgba rgbaOf(UIColor *color, Rgba fallback) {
  if (![color isKindOfClass:[UIColor class]]) return fallback;
  CGFloat r = 0, g = 0, b = 0, a = 0;
  [color getRed:&r green:&g blue:&b alpha:&a];
  return Rgba{r, g, b, a};
}

Rgba rgbaOfCG(CGColorRef color, Rgba fallback) {
  if (color == NULL) return fallback;
  size_t n = CGColorGetNumberOfComponents(color);
  const CGFloat *c = CGColorGetComponents(color);
  if (c == NULL) return fallback;
  if (n == 2) return Rgba{c[0], c[0], c[0], c[1]};
  if (n >= 4) return Rgba{c[0], c[1], c[2], c[3]};
  return fallback;
}

void setSource(cairo_t *cr, Rgba c) { cairo_set_source_rgba(cr, c.r, c.g, c.b, c.a); }

Rgba labelColour() {
  return rgbaOf([UIColor labelColor], Rgba { 0, 0, 0, 1 });
}
Rgba secondaryLabelColour() {
  return rgbaOf([UIColor secondaryLabelColor], Rgba { 0.235, 0.235, 0.263, 0.6 });
}
Rgba tertiaryLabelColour() {
  return rgbaOf([UIColor tertiaryLabelColor], Rgba { 0.235, 0.235, 0.263, 0.3 });
}
Rgba separatorColour() {
  return rgbaOf([UIColor separatorColor], Rgba { 0.235, 0.235, 0.263, 0.29 });
}
Rgba tintColour() {
  return rgbaOf([UIColor systemBlueColor], Rgba { 0, 0.478, 1, 1 });
}
Rgba groupedBackgroundColour() {
  return rgbaOf([UIColor systemGroupedBackgroundColor], Rgba { 0.949, 0.949, 0.969, 1 });
}
Rgba cellBackgroundColour() {
  return rgbaOf([UIColor secondarySystemGroupedBackgroundColor], Rgba { 1, 1, 1, 1 });
}

#pragma mark - Shapes

void roundedRectCorners(cairo_t *cr, CGRect r, double radius, bool top, bool bottom) {
  double x = r.origin.x, y = r.origin.y, w = r.size.width, h = r.size.height;
  radius = fmin(radius, fmin(w, h) / 2);
  if (radius <= 0) {
    cairo_rectangle(cr, x, y, w, h);
    return;
  }
  double tr = top ? radius : 0, br = bottom ? radius : 0;
  cairo_new_sub_path(cr);
  if (tr > 0) {
    cairo_arc(cr, x + w - tr, y + tr, tr, -M_PI / 2, 0);
  } else {
    cairo_move_to(cr, x + w, y);
  }
  if (br > 0) {
    cairo_arc(cr, x + w - br, y + h - br, br, 0, M_PI / 2);
    cairo_arc(cr, x + br, y + h - br, br, M_PI / 2, M_PI);
  } else {
    cairo_line_to(cr, x + w, y + h);
    cairo_line_to(cr, x, y + h);
  }
  if (tr > 0) {
    cairo_arc(cr, x + tr, y + tr, tr, M_PI, 3 * M_PI / 2);
  } else {
    cairo_line_to(cr, x, y);
  }
  cairo_close_path(cr);
}

void roundedRect(cairo_t *cr, CGRect r, double radius) { roundedRectCorners(cr, r, radius, true, true); }

void fillRect(cairo_t *cr, CGRect r, Rgba colour) {
  if (colour.a <= 0) return;
  setSource(cr, colour);
  cairo_rectangle(cr, r.origin.x, r.origin.y, r.size.width, r.size.height);
  cairo_fill(cr);
}

// One device pixel thick, on the pixel grid, as the device draws its hairlines.
void hairline(Canvas &canvas, double x0, double y0, double x1, double y1, Rgba colour) {
  double px = 1.0 / canvas.scale;
  fillRect(canvas.cr, CGRectMake(x0, y0, fmax(x1 - x0, px), fmax(y1 - y0, px)), colour);
}

void shadowedCircle(cairo_t *cr, double cx, double cy, double radius, Rgba fill, bool dark) {
  // A soft shadow under the knob: a few widening rings, fainter outwards.
  for (int i = 4; i >= 1; i--) {
    cairo_arc(cr, cx, cy + 1.5, radius + i * 0.6, 0, 2 * M_PI);
    cairo_set_source_rgba(cr, 0, 0, 0, dark ? 0.05 : 0.035);
    cairo_fill(cr);
  }
  cairo_arc(cr, cx, cy, radius + 0.25, 0, 2 * M_PI);
  cairo_set_source_rgba(cr, 0, 0, 0, 0.06);
  cairo_fill(cr);
  cairo_arc(cr, cx, cy, radius, 0, 2 * M_PI);
  setSource(cr, fill);
  cairo_fill(cr);
}

CGRect screenRect(cairo_t *cr, CGRect r, CGFloat scale) {
  double xs[4] = {r.origin.x, CGRectGetMaxX(r), CGRectGetMaxX(r), r.origin.x};
  double ys[4] = {r.origin.y, r.origin.y, CGRectGetMaxY(r), CGRectGetMaxY(r)};
  double minX = INFINITY, minY = INFINITY, maxX = -INFINITY, maxY = -INFINITY;
  for (int i = 0; i < 4; i++) {
    double x = xs[i], y = ys[i];
    cairo_user_to_device(cr, &x, &y);
    minX = fmin(minX, x);
    minY = fmin(minY, y);
    maxX = fmax(maxX, x);
    maxY = fmax(maxY, y);
  }
  return CGRectMake(minX / scale, minY / scale, (maxX - minX) / scale, (maxY - minY) / scale);
}

void recordControl(Canvas &canvas, UIView *view, NSString *kind, CGRect frame) {
  SimDrawnControl *control = [[[SimDrawnControl alloc] init] autorelease];
  [control setView:view];
  [control setKind:kind];
  [control setFrame:frame];
  [canvas.controls addObject:control];
}

#pragma mark - Text

SimTextFont systemFont(CGFloat size, int weight) {
  SimTextFont font = {size, weight, NO, NO};
  return font;
}

SimTextFont fontOf(UIFont *font, SimTextFont fallback) {
  if (![font isKindOfClass:[UIFont class]]) return fallback;
  return SimTextFontNamed([font fontName], [font pointSize]);
}

static bool gRightToLeft = false;
static CGFloat gScrollInsetTop = 0;
void setScrollInsetTop(CGFloat top) { gScrollInsetTop = top; }
void setRightToLeft(bool mirrored) { gRightToLeft = mirrored; }
bool rightToLeft() { return gRightToLeft; }

CGSize measureText(NSString *text, SimTextFont font, CGFloat width, NSInteger lines) {
  if ([text length] == 0) return CGSizeZero;
  PangoLayout *layout = SimTextCreateLayout(text, font, width, lines, SimTextAlignNatural, NO);
  CGSize size = SimTextLayoutSize(layout);
  g_object_unref(layout);
  return size;
}

CGSize drawText(cairo_t *cr, NSString *text, SimTextFont font, Rgba colour, CGRect box, int alignment, NSInteger lines,
                bool centreVertically, bool truncate) {
  if (![text isKindOfClass:[NSString class]] || [text length] == 0) return CGSizeZero;
  CGFloat width = box.size.width;
  // Natural alignment follows the interface's direction (a mirrored interface sets text right).
  if (alignment == SimTextAlignNatural && gRightToLeft) alignment = SimTextAlignRight;
  PangoLayout *layout = SimTextCreateLayout(text, font, width > 0 ? width : 0, lines, alignment, truncate);
  CGSize size = SimTextLayoutSize(layout);
  CGFloat y = box.origin.y;
  if (centreVertically) y += (box.size.height - size.height) / 2;
  CGFloat x = box.origin.x;
  // An unwrapped line (no width given to the layout) is placed by its alignment here.
  if (pango_layout_get_width(layout) < 0 && width > 0) {
    PangoLayoutLine *line = pango_layout_get_line_readonly(layout, 0);
    bool rtl = pango_layout_get_auto_dir(layout) && line != NULL && line->resolved_dir == PANGO_DIRECTION_RTL;
    if (alignment == SimTextAlignCenter) x += (width - size.width) / 2;
    if (alignment == SimTextAlignRight || (alignment == SimTextAlignNatural && rtl)) x += width - size.width;
  }
  SimTextDrawLayout(cr, layout, CGPointMake(x, y), colour.r, colour.g, colour.b, colour.a);
  g_object_unref(layout);
  return size;
}

#pragma mark - Images

void drawImage(Canvas &canvas, UIImage *image, CGRect rect, const Rgba *tint) {
  if (image == nil || rect.size.width <= 0 || rect.size.height <= 0) return;
  cairo_t *cr = canvas.cr;
  cairo_surface_t *pixels = SimCGImageSurface([image CGImage]);
  if (pixels == NULL) return;
  int w = cairo_image_surface_get_width(pixels), h = cairo_image_surface_get_height(pixels);
  if (w <= 0 || h <= 0) return;
  cairo_save(cr);
  cairo_rectangle(cr, rect.origin.x, rect.origin.y, rect.size.width, rect.size.height);
  cairo_clip(cr);
  cairo_translate(cr, rect.origin.x, rect.origin.y);
  cairo_scale(cr, rect.size.width / w, rect.size.height / h);
  cairo_pattern_t *pattern = cairo_pattern_create_for_surface(pixels);
  cairo_pattern_set_filter(pattern, CAIRO_FILTER_GOOD);
  bool templated = tint != NULL && [image renderingMode] == UIImageRenderingModeAlwaysTemplate;
  if (templated) {
    setSource(cr, *tint);
    cairo_mask(cr, pattern);
  } else {
    cairo_set_source(cr, pattern);
    cairo_paint(cr);
  }
  cairo_pattern_destroy(pattern);
  cairo_restore(cr);
}

#pragma mark - Temporary layout

TemporaryWidth::TemporaryWidth(UIView *v, CGFloat width, CGFloat height) : view(v), changed(false) {
  saved = [v frame];
  if (width <= 0) width = saved.size.width;
  if (height <= 0) height = saved.size.height;
  if (fabs(saved.size.width - width) > 0.01 || fabs(saved.size.height - height) > 0.01) {
    changed = true;
    [v setFrame:CGRectMake(saved.origin.x, saved.origin.y, width, height)];
  }
  [v layoutIfNeeded];
}

TemporaryWidth::~TemporaryWidth() {
  if (!changed) return;
  [view setFrame:saved];
  [view layoutIfNeeded];
}

#pragma mark - Classes

bool isSeparatorView(UIView *view) {
  static Class separator = Nil;
  if (separator == Nil) separator = NSClassFromString(@"_UITableViewCellSeparatorView");
  return separator != Nil && [view isKindOfClass:separator];
}

static bool overrides(UIView *view, SEL selector, Class base) {
  return [view methodForSelector:selector] != [base instanceMethodForSelector:selector];
}

static void drawLabel(Canvas &canvas, UILabel *label, CGRect bounds) {
  NSString *text = [label text];
  if ([text length] == 0) text = [[label attributedText] string];
  if ([text length] == 0) return;
  SimTextFont font = fontOf([label font], systemFont(17, 400));
  Rgba colour = rgbaOf([label textColor], labelColour());
  if (![label isEnabled]) colour = tertiaryLabelColour();
  NSInteger lines = [label numberOfLines];
  if (lines != 1) {
    // Lines that do not fit the label's height are left out, the last shown one ending in an
    // ellipsis, as UILabel does.
    CGFloat lineHeight = fmax(measureText(@"Ag", font, 0, 1).height, 1);
    NSInteger fit = (NSInteger)floor((bounds.size.height + 0.5) / lineHeight);
    if (fit < 1) fit = 1;
    if (lines == 0 || lines > fit) {
      CGSize whole = measureText(text, font, bounds.size.width, 0);
      if (whole.height > bounds.size.height + 0.5) lines = fit;
    }
  }
  drawText(canvas.cr, text, font, colour, bounds, (int)[label textAlignment], lines, true, true);
}

static void drawSwitch(Canvas &canvas, UISwitch *control, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  // The switch keeps its own size whatever its frame (51 x 31), centred in it.
  CGRect track = CGRectMake(bounds.origin.x + (bounds.size.width - 51) / 2,
                            bounds.origin.y + (bounds.size.height - 31) / 2, 51, 31);
  bool on = [control isOn];
  cairo_save(cr);
  if (![control isEnabled]) cairo_push_group(cr);
  Rgba green = rgbaOf([control onTintColor], rgbaOf([UIColor systemGreenColor], Rgba { 0.204, 0.78, 0.349, 1 }));
  if (on) {
    roundedRect(cr, track, 15.5);
    setSource(cr, green);
    cairo_fill(cr);
  } else if (canvas.system >= 13) {
    roundedRect(cr, track, 15.5);
    setSource(cr, canvas.dark ? Rgba{0.471, 0.471, 0.502, 0.32} : Rgba{0.471, 0.471, 0.502, 0.16});
    cairo_fill(cr);
  } else {
    // Before iOS 13 an off switch is white with a grey rim.
    roundedRect(cr, CGRectInset(track, 0.75, 0.75), 14.75);
    cairo_set_source_rgb(cr, 1, 1, 1);
    cairo_fill_preserve(cr);
    cairo_set_line_width(cr, 1.5);
    cairo_set_source_rgb(cr, 0.898, 0.898, 0.918);
    cairo_stroke(cr);
  }
  // A mirrored interface mirrors the switch: on, its knob is at the left.
  bool knobRight = on != gRightToLeft;
  double knobX = knobRight ? CGRectGetMaxX(track) - 15.5 : track.origin.x + 15.5;
  Rgba knob = rgbaOf([control thumbTintColor], Rgba { 1, 1, 1, 1 });
  shadowedCircle(cr, knobX, CGRectGetMidY(track), 13.5, knob, canvas.dark);
  if (![control isEnabled]) {
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, 0.5);
  }
  cairo_restore(cr);
  recordControl(canvas, control, @"switch", screenRect(cr, track, canvas.scale));
}

static void drawSlider(Canvas &canvas, UISlider *slider, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  float low = [slider minimumValue], high = [slider maximumValue], value = [slider value];
  double fraction = high > low ? (value - low) / (high - low) : 0;
  fraction = fmin(fmax(fraction, 0), 1);
  const double thumb = 28, trackHeight = canvas.system >= 13 ? 4 : 2;
  double left = bounds.origin.x + thumb / 2, right = CGRectGetMaxX(bounds) - thumb / 2;
  double cy = CGRectGetMidY(bounds), x = left + (right - left) * fraction;
  Rgba minimum = rgbaOf([slider minimumTrackTintColor], rgbaOf([slider tintColor], tintColour()));
  Rgba maximum = rgbaOf([slider maximumTrackTintColor],
                        canvas.dark ? Rgba{0.471, 0.471, 0.502, 0.36} : Rgba{0.471, 0.471, 0.502, 0.2});
  cairo_save(cr);
  if (![slider isEnabled]) cairo_push_group(cr);
  roundedRect(cr, CGRectMake(bounds.origin.x + 2, cy - trackHeight / 2, bounds.size.width - 4, trackHeight),
              trackHeight / 2);
  setSource(cr, maximum);
  cairo_fill(cr);
  roundedRect(cr, CGRectMake(bounds.origin.x + 2, cy - trackHeight / 2, x - bounds.origin.x - 2, trackHeight),
              trackHeight / 2);
  setSource(cr, minimum);
  cairo_fill(cr);
  // A slider that stops on steps shows where they are.
  if ([slider isKindOfClass:[PSSegmentableSlider class]] && [(PSSegmentableSlider *)slider isSegmented]) {
    unsigned long long steps = [(PSSegmentableSlider *)slider segmentCount];
    if (steps > 0 && steps < 100) {
      for (unsigned long long i = 0; i <= steps; i++) {
        double tx = left + (right - left) * (double)i / (double)steps;
        fillRect(cr, CGRectMake(tx - 0.5, cy - 5, 1, 10), tx <= x ? minimum : maximum);
      }
    }
  }
  shadowedCircle(cr, x, cy, thumb / 2, Rgba{1, 1, 1, 1}, canvas.dark);
  if (![slider isEnabled]) {
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, 0.5);
  }
  cairo_restore(cr);
  recordControl(canvas, slider, @"slider", screenRect(cr, bounds, canvas.scale));
}

static void drawSegments(Canvas &canvas, UISegmentedControl *control, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  NSUInteger count = [control numberOfSegments];
  if (count == 0) return;
  NSInteger selected = [control selectedSegmentIndex];
  double segment = bounds.size.width / count;
  cairo_save(cr);
  if (canvas.system >= 13) {
    roundedRect(cr, bounds, 8.91);
    setSource(cr, canvas.dark ? Rgba{0.463, 0.463, 0.502, 0.24} : Rgba{0.463, 0.463, 0.502, 0.12});
    cairo_fill(cr);
    if (selected >= 0 && (NSUInteger)selected < count) {
      CGRect chosen = CGRectInset(
          CGRectMake(bounds.origin.x + segment * selected, bounds.origin.y, segment, bounds.size.height), 2, 2);
      roundedRect(cr, CGRectOffset(chosen, 0, 1), 6.93);
      cairo_set_source_rgba(cr, 0, 0, 0, 0.06);
      cairo_fill(cr);
      roundedRect(cr, chosen, 6.93);
      setSource(cr, canvas.dark ? Rgba{0.388, 0.388, 0.4, 1} : Rgba{1, 1, 1, 1});
      cairo_fill(cr);
    }
    for (NSUInteger i = 1; i < count; i++) {
      if ((NSInteger)i == selected || (NSInteger)i - 1 == selected) continue;
      double x = bounds.origin.x + segment * i;
      fillRect(cr, CGRectMake(x - 0.5, CGRectGetMidY(bounds) - 6, 1, 12),
               canvas.dark ? Rgba{0.557, 0.557, 0.576, 0.3} : Rgba{0.557, 0.557, 0.576, 0.3});
    }
    for (NSUInteger i = 0; i < count; i++) {
      CGRect box = CGRectMake(bounds.origin.x + segment * i + 4, bounds.origin.y, segment - 8, bounds.size.height);
      drawText(cr, [control titleForSegmentAtIndex:i], systemFont(13, (NSInteger)i == selected ? 600 : 400),
               labelColour(), box, SimTextAlignCenter, 1, true, true);
    }
  } else {
    Rgba tint = rgbaOf([control tintColor], tintColour());
    roundedRect(cr, CGRectInset(bounds, 0.5, 0.5), 4);
    setSource(cr, tint);
    cairo_set_line_width(cr, 1);
    cairo_stroke(cr);
    for (NSUInteger i = 0; i < count; i++) {
      CGRect box = CGRectMake(bounds.origin.x + segment * i, bounds.origin.y, segment, bounds.size.height);
      bool chosen = (NSInteger)i == selected;
      if (chosen) {
        cairo_save(cr);
        roundedRect(cr, CGRectInset(bounds, 0.5, 0.5), 4);
        cairo_clip(cr);
        fillRect(cr, box, tint);
        cairo_restore(cr);
      }
      if (i > 0) fillRect(cr, CGRectMake(box.origin.x - 0.5, bounds.origin.y, 1, bounds.size.height), tint);
      drawText(cr, [control titleForSegmentAtIndex:i], systemFont(13, 400), chosen ? Rgba{1, 1, 1, 1} : tint,
               CGRectInset(box, 4, 0), SimTextAlignCenter, 1, true, true);
    }
  }
  cairo_restore(cr);
  recordControl(canvas, control, @"segments", screenRect(cr, bounds, canvas.scale));
}

static NSString *bullets(NSUInteger count) {
  NSMutableString *s = [NSMutableString string];
  for (NSUInteger i = 0; i < count; i++) [s appendString:@"\u2022"];
  return s;
}

static void drawTextField(Canvas &canvas, UITextField *field, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  if ([field borderStyle] == UITextBorderStyleRoundedRect) {
    roundedRect(cr, CGRectInset(bounds, 0.25, 0.25), 5);
    setSource(cr, canvas.dark ? Rgba{0.11, 0.11, 0.118, 1} : Rgba{1, 1, 1, 1});
    cairo_fill_preserve(cr);
    cairo_set_line_width(cr, 0.5);
    setSource(cr, canvas.dark ? Rgba{0.3, 0.3, 0.32, 1} : Rgba{0.8, 0.8, 0.8, 1});
    cairo_stroke(cr);
    bounds = CGRectInset(bounds, 7, 0);
  } else if ([field borderStyle] != UITextBorderStyleNone) {
    cairo_rectangle(cr, bounds.origin.x + 0.5, bounds.origin.y + 0.5, bounds.size.width - 1, bounds.size.height - 1);
    cairo_set_line_width(cr, 1);
    setSource(cr, secondaryLabelColour());
    cairo_stroke(cr);
    bounds = CGRectInset(bounds, 4, 0);
  }
  NSString *text = [field text];
  SimTextFont font = fontOf([field font], systemFont(17, 400));
  int alignment = (int)[field textAlignment];
  if ([text length] > 0) {
    NSString *shown = [field isSecureTextEntry] ? bullets([text length]) : text;
    drawText(cr, shown, font, rgbaOf([field textColor], labelColour()), bounds, alignment, 1, true, true);
  } else if ([[field placeholder] length] > 0) {
    drawText(cr, [field placeholder], font, rgbaOf([UIColor placeholderTextColor], tertiaryLabelColour()), bounds,
             alignment, 1, true, true);
  }
  recordControl(canvas, field, @"field", screenRect(cr, bounds, canvas.scale));
}

static void drawPasscodeField(Canvas &canvas, PSPasscodeField *field, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  NSUInteger boxes = [field numberOfEntryFields];
  NSUInteger entered = [[field stringValue] length];
  Rgba ink = labelColour();
  NSArray *dots = [field dotFields];
  for (NSUInteger i = 0; i < boxes; i++) {
    CGRect box = i < [dots count] ? [(UIView *)[dots objectAtIndex:i] frame]
                                  : CGRectMake(bounds.origin.x + i * 35.0, bounds.origin.y, 27, 33);
    double cx = CGRectGetMidX(box), cy = CGRectGetMidY(box);
    if (i < entered) {
      cairo_arc(cr, cx, cy, 7, 0, 2 * M_PI);
      setSource(cr, ink);
      cairo_fill(cr);
    } else {
      roundedRect(cr, CGRectMake(cx - 8.5, cy - 1.5, 17, 3), 1.5);
      setSource(cr, ink);
      cairo_fill(cr);
    }
  }
  recordControl(canvas, field, @"passcode", screenRect(cr, bounds, canvas.scale));
}

static void drawTextView(Canvas &canvas, UITextView *view, CGRect bounds) {
  NSString *text = [view text];
  if ([text length] == 0) return;
  id font = [view font];
  SimTextFont face = fontOf([font isKindOfClass:[UIFont class]] ? font : nil, systemFont(12, 400));
  id colour = [view textColor];
  Rgba ink = rgbaOf([colour isKindOfClass:[UIColor class]] ? colour : nil, labelColour());
  CGRect box = CGRectInset(bounds, 5, 8);
  // Under the bars its content starts below them.
  double under = fmax(gScrollInsetTop - screenRect(canvas.cr, bounds, canvas.scale).origin.y, 0);
  box.origin.y += under;
  box.size.height = fmax(box.size.height - under, 0);
  // Only what the view's height shows is laid out: long logs stop at the bottom edge.
  cairo_save(canvas.cr);
  cairo_rectangle(canvas.cr, bounds.origin.x, bounds.origin.y, bounds.size.width, bounds.size.height);
  cairo_clip(canvas.cr);
  CGFloat lineHeight = fmax(measureText(@"Ag", face, 0, 1).height, 1);
  NSInteger lines = (NSInteger)ceil(box.size.height / lineHeight) + 1;
  NSString *head = [text length] > 20000 ? [text substringToIndex:20000] : text;
  drawText(canvas.cr, head, face, ink, box, (int)[view textAlignment], lines, false, false);
  cairo_restore(canvas.cr);
}

static void drawImageView(Canvas &canvas, UIImageView *view, CGRect bounds) {
  UIImage *image = [view isHighlighted] && [view highlightedImage] != nil ? [view highlightedImage] : [view image];
  if (image == nil) return;
  CGSize size = [image size];
  CGRect rect = bounds;
  if (size.width > 0 && size.height > 0) {
    switch ([view contentMode]) {
      case UIViewContentModeScaleAspectFit:
      case UIViewContentModeScaleAspectFill: {
        double sx = bounds.size.width / size.width, sy = bounds.size.height / size.height;
        double s = [view contentMode] == UIViewContentModeScaleAspectFit ? fmin(sx, sy) : fmax(sx, sy);
        rect = CGRectMake(CGRectGetMidX(bounds) - size.width * s / 2, CGRectGetMidY(bounds) - size.height * s / 2,
                          size.width * s, size.height * s);
        break;
      }
      case UIViewContentModeCenter:
        rect = CGRectMake(CGRectGetMidX(bounds) - size.width / 2, CGRectGetMidY(bounds) - size.height / 2, size.width,
                          size.height);
        break;
      default:
        break;
    }
  }
  Rgba tint = rgbaOf([view tintColor], tintColour());
  drawImage(canvas, image, rect, &tint);
}

// PassKit's fingerprint glyph (a framework loaded by path, so known here by name): ridges of
// the print in its primary colour.
static void drawFingerprint(Canvas &canvas, UIView *view, CGRect bounds) {
  cairo_t *cr = canvas.cr;
  UIColor *primary =
      [view respondsToSelector:@selector(primaryColor)] ? [view performSelector:@selector(primaryColor)] : nil;
  double side = fmin(bounds.size.width, bounds.size.height);
  if (side <= 0) return;
  double cx = CGRectGetMidX(bounds), cy = CGRectGetMidY(bounds) + side * 0.04, unit = side * 0.42;
  cairo_save(cr);
  setSource(cr, rgbaOf(primary, Rgba{0, 0, 0, 1}));
  cairo_set_line_width(cr, unit * 0.085);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  // Each ridge: its radius and the part of the circle it covers (radians, from the right).
  static const double ridges[][3] = {{0.18, -2.6, 0.5}, {0.36, -2.9, -0.1},   {0.36, 0.35, 1.1},  {0.54, -3.0, -0.25},
                                     {0.54, 0.1, 0.8},  {0.72, -2.95, -0.45}, {0.72, -0.2, 0.45}, {0.9, -2.7, -0.65}};
  for (const auto &ridge : ridges) {
    cairo_new_sub_path(cr);
    cairo_arc(cr, cx, cy, unit * ridge[0], ridge[1], ridge[2]);
    cairo_stroke(cr);
  }
  cairo_restore(cr);
}

bool drawViewContent(Canvas &canvas, UIView *view, CGRect bounds) {
  static Class glyph = Nil;
  if (glyph == Nil) glyph = NSClassFromString(@"PKGlyphView");
  if (glyph != Nil && [view isKindOfClass:glyph]) {
    drawFingerprint(canvas, view, bounds);
  } else if ([view isKindOfClass:[UILabel class]]) {
    drawLabel(canvas, (UILabel *)view, bounds);
  } else if ([view isKindOfClass:[UISwitch class]]) {
    drawSwitch(canvas, (UISwitch *)view, bounds);
  } else if ([view isKindOfClass:[UISlider class]]) {
    drawSlider(canvas, (UISlider *)view, bounds);
  } else if ([view isKindOfClass:[UISegmentedControl class]]) {
    drawSegments(canvas, (UISegmentedControl *)view, bounds);
  } else if ([view isKindOfClass:[UITextField class]]) {
    drawTextField(canvas, (UITextField *)view, bounds);
  } else if ([view isKindOfClass:[PSPasscodeField class]]) {
    drawPasscodeField(canvas, (PSPasscodeField *)view, bounds);
  } else if ([view isKindOfClass:[UITextView class]]) {
    drawTextView(canvas, (UITextView *)view, bounds);
  } else if ([view isKindOfClass:[UIImageView class]]) {
    drawImageView(canvas, (UIImageView *)view, bounds);
  } else {
    return false;
  }
  return true;
}

#pragma mark - Layers

// Subviews whose content the class drawer shows already (a passcode field's boxes).
static bool drawsOwnSubviews(UIView *view) {
  return [view isKindOfClass:[PSPasscodeField class]] || [view isKindOfClass:[UISwitch class]] ||
         [view isKindOfClass:[UISlider class]] || [view isKindOfClass:[UISegmentedControl class]];
}

static void applyLayerGeometry(cairo_t *cr, CALayer *layer) {
  CGRect b = [layer bounds];
  CGPoint p = [layer position], a = [layer anchorPoint];
  cairo_translate(cr, p.x, p.y);
  CGAffineTransform t = [layer affineTransform];
  if (!CGAffineTransformIsIdentity(t)) {
    cairo_matrix_t m;
    cairo_matrix_init(&m, t.a, t.b, t.c, t.d, t.tx, t.ty);
    cairo_transform(cr, &m);
  }
  cairo_translate(cr, -a.x * b.size.width - b.origin.x, -a.y * b.size.height - b.origin.y);
}

static void drawShapeLayer(Canvas &canvas, CAShapeLayer *shape) {
  CGPathRef path = [shape path];
  if (path == NULL) return;
  cairo_t *cr = canvas.cr;
  SimCGAppendPathToCairo(cr, path);
  Rgba fill = rgbaOfCG([shape fillColor], Rgba { 0, 0, 0, 0 });
  Rgba stroke = rgbaOfCG([shape strokeColor], Rgba { 0, 0, 0, 0 });
  cairo_set_fill_rule(
      cr, [[shape fillRule] isEqualToString:@"even-odd"] ? CAIRO_FILL_RULE_EVEN_ODD : CAIRO_FILL_RULE_WINDING);
  if (fill.a > 0) {
    setSource(cr, fill);
    cairo_fill_preserve(cr);
  }
  if (stroke.a > 0 && [shape lineWidth] > 0) {
    setSource(cr, stroke);
    cairo_set_line_width(cr, [shape lineWidth]);
    cairo_set_line_cap(cr, [[shape lineCap] isEqualToString:@"round"]    ? CAIRO_LINE_CAP_ROUND
                           : [[shape lineCap] isEqualToString:@"square"] ? CAIRO_LINE_CAP_SQUARE
                                                                         : CAIRO_LINE_CAP_BUTT);
    cairo_set_line_join(cr, [[shape lineJoin] isEqualToString:@"round"]   ? CAIRO_LINE_JOIN_ROUND
                            : [[shape lineJoin] isEqualToString:@"bevel"] ? CAIRO_LINE_JOIN_BEVEL
                                                                          : CAIRO_LINE_JOIN_MITER);
    cairo_stroke_preserve(cr);
  }
  cairo_new_path(cr);
}

static void drawGradientLayer(Canvas &canvas, CAGradientLayer *layer, CGRect b) {
  NSArray *colours = [layer colors];
  if ([colours count] == 0) return;
  CGPoint s = [layer startPoint], e = [layer endPoint];
  cairo_pattern_t *pattern =
      cairo_pattern_create_linear(b.origin.x + s.x * b.size.width, b.origin.y + s.y * b.size.height,
                                  b.origin.x + e.x * b.size.width, b.origin.y + e.y * b.size.height);
  NSArray *locations = [layer locations];
  for (NSUInteger i = 0; i < [colours count]; i++) {
    Rgba c = rgbaOfCG((CGColorRef)[colours objectAtIndex:i], Rgba{0, 0, 0, 0});
    double at = i < [locations count] ? [[locations objectAtIndex:i] doubleValue]
                                      : ([colours count] > 1 ? (double)i / ([colours count] - 1) : 0);
    cairo_pattern_add_color_stop_rgba(pattern, at, c.r, c.g, c.b, c.a);
  }
  cairo_rectangle(canvas.cr, b.origin.x, b.origin.y, b.size.width, b.size.height);
  cairo_set_source(canvas.cr, pattern);
  cairo_fill(canvas.cr);
  cairo_pattern_destroy(pattern);
}

static void drawLayer(Canvas &canvas, CALayer *layer);

static void drawLayerBody(Canvas &canvas, CALayer *layer) {
  cairo_t *cr = canvas.cr;
  CGRect b = [layer bounds];
  id delegate = [layer delegate];
  UIView *view = [delegate isKindOfClass:[UIView class]] ? (UIView *)delegate : nil;
  double radius = [layer cornerRadius];

  Rgba background = rgbaOfCG([layer backgroundColor], Rgba { 0, 0, 0, 0 });
  if (background.a > 0) {
    roundedRect(cr, b, radius);
    setSource(cr, background);
    cairo_fill(cr);
  }
  cairo_save(cr);
  if ([layer masksToBounds]) {
    roundedRect(cr, b, radius);
    cairo_clip(cr);
  }
  id contents = [layer contents];
  if (contents != nil) {
    UIImage *image = [UIImage imageWithCGImage:(CGImageRef)contents
                                         scale:[layer contentsScale] > 0 ? [layer contentsScale] : 1
                                   orientation:UIImageOrientationUp];
    drawImage(canvas, image, b, NULL);
  }
  if ([layer isKindOfClass:[CAShapeLayer class]]) drawShapeLayer(canvas, (CAShapeLayer *)layer);
  if ([layer isKindOfClass:[CAGradientLayer class]]) drawGradientLayer(canvas, (CAGradientLayer *)layer, b);
  bool own = false;
  if (view != nil) {
    bool custom = [view isKindOfClass:[UILabel class]]
                      ? overrides(view, @selector(drawRect:), [UILabel class]) ||
                            overrides(view, @selector(drawTextInRect:), [UILabel class])
                      : overrides(view, @selector(drawRect:), [UIView class]);
    if (custom) {
      // The product's own drawing, through the CoreGraphics stand-in.
      CGContextRef context = SimCGContextCreateForCairo(cr, canvas.scale);
      UIGraphicsPushContext(context);
      [view drawRect:b];
      UIGraphicsPopContext();
      CGContextRelease(context);
      own = true;
    } else {
      own = drawViewContent(canvas, view, b);
    }
  }
  if (!(own && view != nil && drawsOwnSubviews(view))) {
    for (CALayer *sublayer in [[[layer sublayers] copy] autorelease]) drawLayer(canvas, sublayer);
  }
  cairo_restore(cr);
  if ([layer borderWidth] > 0) {
    double w = [layer borderWidth];
    roundedRect(cr, CGRectInset(b, w / 2, w / 2), fmax(radius - w / 2, 0));
    setSource(cr, rgbaOfCG([layer borderColor], Rgba { 0, 0, 0, 1 }));
    cairo_set_line_width(cr, w);
    cairo_stroke(cr);
  }
}

static void drawLayer(Canvas &canvas, CALayer *layer) {
  if (layer == nil || [layer isHidden] || [layer opacity] <= 0.01) return;
  id delegate = [layer delegate];
  if ([delegate isKindOfClass:[UIView class]]) {
    UIView *view = (UIView *)delegate;
    if (isSeparatorView(view) || [view isKindOfClass:[UINavigationBar class]]) return;
  }
  cairo_t *cr = canvas.cr;
  cairo_save(cr);
  applyLayerGeometry(cr, layer);
  bool group = [layer opacity] < 0.99;
  if (group) cairo_push_group(cr);
  drawLayerBody(canvas, layer);
  if (group) {
    cairo_pop_group_to_source(cr);
    cairo_paint_with_alpha(cr, [layer opacity]);
  }
  cairo_restore(cr);
}

void drawView(Canvas &canvas, UIView *view) {
  if (view == nil) return;
  drawLayer(canvas, [view layer]);
}

void drawViewAt(Canvas &canvas, UIView *view, CGPoint origin) {
  if (view == nil) return;
  CGRect frame = [view frame];
  cairo_save(canvas.cr);
  cairo_translate(canvas.cr, origin.x - frame.origin.x, origin.y - frame.origin.y);
  drawLayer(canvas, [view layer]);
  cairo_restore(canvas.cr);
}

}  // namespace simrender
