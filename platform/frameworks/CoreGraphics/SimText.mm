// Text for the stand-in's pixels: pango lays text out (harfbuzz shapes it, fontconfig finds a
// face for every character), cairo draws it. Sizes are absolute, so one unit of the layout is
// one point of user space whatever the context's scale; hinting is off so that a text measures
// the same at every scale, as on the device.
#import <Foundation/Foundation.h>
#include <CoreGraphics/CoreGraphicsCairo.h>

#include <math.h>
#include <string.h>

namespace {

PangoContext *sharedContext() {
  static PangoContext *context;
  if (context == NULL) {
    PangoFontMap *map = pango_cairo_font_map_get_default();
    context = pango_font_map_create_context(map);
    cairo_font_options_t *options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(context, options);
    cairo_font_options_destroy(options);
    pango_context_set_round_glyph_positions(context, FALSE);
  }
  return context;
}

struct Recording {
  NSMutableArray *records = nil;
  cairo_surface_t *surface = NULL;
};

Recording &recording() {
  static Recording state;
  return state;
}

CGRect deviceBox(cairo_t *cr, double x0, double y0, double x1, double y1) {
  double xs[4] = {x0, x1, x1, x0}, ys[4] = {y0, y0, y1, y1};
  double minX = INFINITY, minY = INFINITY, maxX = -INFINITY, maxY = -INFINITY;
  for (int i = 0; i < 4; i++) {
    double x = xs[i], y = ys[i];
    cairo_user_to_device(cr, &x, &y);
    minX = fmin(minX, x);
    minY = fmin(minY, y);
    maxX = fmax(maxX, x);
    maxY = fmax(maxY, y);
  }
  return CGRectMake(minX, minY, maxX - minX, maxY - minY);
}

// The system font's tracking by size (points), as the platform's typography tables give it:
// text sizes are set a little tighter than the face's own spacing, large titles looser.
double trackingFor(double size) {
  static const double table[][2] = {{11, 0.06},  {12, 0},     {13, -0.08}, {14, -0.15}, {15, -0.24}, {16, -0.31},
                                    {17, -0.43}, {20, -0.45}, {22, -0.26}, {24, 0.07},  {28, 0.38},  {34, 0.40}};
  const size_t n = sizeof table / sizeof table[0];
  if (size <= table[0][0]) return table[0][1];
  for (size_t i = 1; i < n; i++) {
    if (size <= table[i][0]) {
      double t = (size - table[i - 1][0]) / (table[i][0] - table[i - 1][0]);
      return table[i - 1][1] + t * (table[i][1] - table[i - 1][1]);
    }
  }
  return table[n - 1][1];
}

NSArray *rectArray(CGRect r) { return @[ @(r.origin.x), @(r.origin.y), @(r.size.width), @(r.size.height) ]; }

}  // namespace

extern "C" {

SimTextFont SimTextFontNamed(NSString *name, CGFloat size) {
  SimTextFont font = {size > 0 ? size : 17, 400, NO, NO};
  if (![name isKindOfClass:[NSString class]]) return font;
  NSString *lower = [name lowercaseString];
  struct {
    const char *word;
    int weight;
  } weights[] = {{"ultralight", 200}, {"thin", 100}, {"light", 300}, {"medium", 500}, {"semibold", 600},
                 {"demibold", 600},   {"bold", 700}, {"heavy", 800}, {"black", 900}};
  // "semibold" contains "bold": the longest match wins.
  size_t matched = 0;
  for (size_t i = 0; i < sizeof weights / sizeof weights[0]; i++) {
    if ([lower rangeOfString:[NSString stringWithUTF8String:weights[i].word]].location != NSNotFound &&
        strlen(weights[i].word) > matched) {
      font.weight = weights[i].weight;
      matched = strlen(weights[i].word);
    }
  }
  font.italic =
      [lower rangeOfString:@"italic"].location != NSNotFound || [lower rangeOfString:@"oblique"].location != NSNotFound;
  font.monospace = [lower rangeOfString:@"courier"].location != NSNotFound ||
                   [lower rangeOfString:@"menlo"].location != NSNotFound ||
                   [lower rangeOfString:@"mono"].location != NSNotFound;
  return font;
}

PangoLayout *SimTextCreateLayout(NSString *text, SimTextFont font, CGFloat width, NSInteger lines, int alignment,
                                 BOOL truncate) {
  PangoLayout *layout = pango_layout_new(sharedContext());
  // The system font switches to its display cut at 20 points, as the device's does.
  const char *families = font.monospace    ? "DejaVu Sans Mono,Noto Sans Mono,monospace"
                         : font.size >= 20 ? "Inter Display,Inter,Noto Sans,Noto Sans CJK JP"
                                           : "Inter,Noto Sans,Noto Sans CJK JP";
  PangoFontDescription *description = pango_font_description_new();
  pango_font_description_set_family(description, families);
  pango_font_description_set_absolute_size(description, font.size * PANGO_SCALE);
  pango_font_description_set_weight(description, (PangoWeight)font.weight);
  pango_font_description_set_style(description, font.italic ? PANGO_STYLE_ITALIC : PANGO_STYLE_NORMAL);
  pango_layout_set_font_description(layout, description);
  pango_font_description_free(description);

  const char *utf8 = [text isKindOfClass:[NSString class]] ? [text UTF8String] : "";
  pango_layout_set_text(layout, utf8 != NULL ? utf8 : "", -1);
  if (!font.monospace) {
    PangoAttrList *attributes = pango_attr_list_new();
    pango_attr_list_insert(attributes,
                           pango_attr_letter_spacing_new((int)lround(trackingFor(font.size) * PANGO_SCALE)));
    pango_layout_set_attributes(layout, attributes);
    pango_attr_list_unref(attributes);
  }
  pango_layout_set_auto_dir(layout, alignment == SimTextAlignNatural);
  switch (alignment) {
    case SimTextAlignCenter:
      pango_layout_set_alignment(layout, PANGO_ALIGN_CENTER);
      break;
    case SimTextAlignRight:
      pango_layout_set_alignment(layout, PANGO_ALIGN_RIGHT);
      break;
    case SimTextAlignJustified:
      pango_layout_set_justify(layout, TRUE);
      pango_layout_set_alignment(layout, PANGO_ALIGN_LEFT);
      break;
    default:
      pango_layout_set_alignment(layout, PANGO_ALIGN_LEFT);
      break;
  }
  if (width > 0) {
    pango_layout_set_width(layout, (int)llround(width * PANGO_SCALE));
    if (lines == 1) {
      // One line: no wrapping; what does not fit is cut with an ellipsis when asked to.
      pango_layout_set_ellipsize(layout, truncate ? PANGO_ELLIPSIZE_END : PANGO_ELLIPSIZE_NONE);
      if (!truncate) pango_layout_set_width(layout, -1);
    } else {
      pango_layout_set_wrap(layout, PANGO_WRAP_WORD_CHAR);
      if (lines > 1) {
        pango_layout_set_height(layout, (int)-lines);
        pango_layout_set_ellipsize(layout, PANGO_ELLIPSIZE_END);
      }
    }
  }
  return layout;
}

CGSize SimTextLayoutSize(PangoLayout *layout) {
  if (layout == NULL) return CGSizeZero;
  PangoRectangle logical;
  pango_layout_get_extents(layout, NULL, &logical);
  return CGSizeMake((CGFloat)logical.width / PANGO_SCALE, (CGFloat)logical.height / PANGO_SCALE);
}

CGFloat SimTextLayoutBaseline(PangoLayout *layout) {
  return layout != NULL ? (CGFloat)pango_layout_get_baseline(layout) / PANGO_SCALE : 0;
}

BOOL SimTextLayoutTruncated(PangoLayout *layout) { return layout != NULL && pango_layout_is_ellipsized(layout); }

void SimTextDrawLayout(cairo_t *cr, PangoLayout *layout, CGPoint origin, CGFloat red, CGFloat green, CGFloat blue,
                       CGFloat alpha) {
  if (cr == NULL || layout == NULL) return;
  cairo_save(cr);
  cairo_move_to(cr, origin.x, origin.y);
  pango_cairo_update_layout(cr, layout);
  cairo_set_source_rgba(cr, red, green, blue, alpha);
  if (alpha > 0) pango_cairo_show_layout(cr, layout);

  Recording &state = recording();
  if (state.records != nil && cairo_get_target(cr) == state.surface) {
    PangoRectangle logical;
    pango_layout_get_extents(layout, NULL, &logical);
    double x0 = origin.x + (double)logical.x / PANGO_SCALE, y0 = origin.y + (double)logical.y / PANGO_SCALE;
    CGRect frame =
        deviceBox(cr, x0, y0, x0 + (double)logical.width / PANGO_SCALE, y0 + (double)logical.height / PANGO_SCALE);
    double cx0, cy0, cx1, cy1;
    cairo_clip_extents(cr, &cx0, &cy0, &cx1, &cy1);
    CGRect clip = deviceBox(cr, cx0, cy0, cx1, cy1);
    const char *utf8 = pango_layout_get_text(layout);
    NSString *text = [NSString stringWithUTF8String:utf8 != NULL ? utf8 : ""];
    [state.records addObject:@{
      @"text" : text != nil ? text : @"",
      @"frame" : rectArray(frame),
      @"clip" : rectArray(clip),
      @"truncated" : @(SimTextLayoutTruncated(layout) ? YES : NO),
      @"alpha" : @(alpha)
    }];
  }
  cairo_restore(cr);
}

void SimTextBeginRecording(cairo_surface_t *surface) {
  Recording &state = recording();
  [state.records release];
  state.records = [[NSMutableArray alloc] init];
  state.surface = surface;
}

NSUInteger SimTextRecordedCount(void) { return [recording().records count]; }

NSArray *SimTextEndRecording(void) {
  Recording &state = recording();
  NSArray *records = [state.records autorelease];
  state.records = nil;
  state.surface = NULL;
  return records != nil ? records : [NSArray array];
}

void SimTextSetLanguage(NSString *language) {
  if (![language isKindOfClass:[NSString class]] || [language length] == 0) return;
  pango_context_set_language(sharedContext(), pango_language_from_string([language UTF8String]));
}

}  // extern "C"
