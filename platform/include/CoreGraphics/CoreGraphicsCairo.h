/* The stand-in's pixels: CoreGraphics drawing is done by cairo, text is shaped and laid out by
   pango (harfbuzz, fontconfig). Inter stands for the system font, with Noto for the scripts it
   lacks; fontconfig picks a face per character, pango shapes Arabic and Hebrew and lays them
   out right to left. Not part of the device's frameworks: product code never includes this
   header. */
#ifndef COREGRAPHICS_COREGRAPHICSCAIRO_H
#define COREGRAPHICS_COREGRAPHICSCAIRO_H

#include <CoreGraphics/CoreGraphics.h>
#include <cairo.h>
#include <pango/pangocairo.h>

#ifdef __OBJC__
#import <Foundation/Foundation.h>

CG_EXTERN_C_BEGIN

/* A face of the system font or of a named font, as a UIFont describes it. */
typedef struct SimTextFont {
  CGFloat size; /* points */
  int weight;   /* 100 to 900, as CSS and pango count: 400 regular, 600 semibold */
  BOOL italic;
  BOOL monospace;
} SimTextFont;

/* The face a font name stands for: ".SFUI-Semibold" 600, "Helvetica-Bold" 700, "Courier"
   monospaced... Unknown names are the regular system font. */
SimTextFont SimTextFontNamed(NSString *name, CGFloat size);

/* Paragraph alignment, NSTextAlignment's values. Natural follows the text's own direction. */
enum {
  SimTextAlignLeft = 0,
  SimTextAlignCenter = 1,
  SimTextAlignRight = 2,
  SimTextAlignJustified = 3,
  SimTextAlignNatural = 4
};

/* Lays `text` out. `width` <= 0: one line as long as the text (no wrapping); otherwise lines
   wrap at word boundaries (characters when a word is longer than a line). `lines` > 0 keeps
   that many lines at most and ends the last with an ellipsis when text is left over; with
   `truncate` a single line wider than `width` ends in an ellipsis. The layout measures in
   points. Caller releases it with g_object_unref. */
PangoLayout *SimTextCreateLayout(NSString *text, SimTextFont font, CGFloat width, NSInteger lines, int alignment,
                                 BOOL truncate);
/* The layout's logical size in points. */
CGSize SimTextLayoutSize(PangoLayout *layout);
/* Distance from the layout's top to its first baseline, in points. */
CGFloat SimTextLayoutBaseline(PangoLayout *layout);
/* YES when the layout left text out (an ellipsis, or lines beyond `lines`). */
BOOL SimTextLayoutTruncated(PangoLayout *layout);

/* Draws the layout with its top left corner at `origin` (user space of `cr`) in the colour. */
void SimTextDrawLayout(cairo_t *cr, PangoLayout *layout, CGPoint origin, CGFloat red, CGFloat green, CGFloat blue,
                       CGFloat alpha);

/* Text records: while recording, every text drawn anywhere (the Settings host's screen, the
   product's own drawing) onto `surface` adds a dictionary: "text" (NSString, as written),
   "frame" (the laid-out text's box in device pixels of the surface: x, y, width and height,
   NSNumbers), "clip" (the clip in force, the same way), "truncated" (NSNumber: an ellipsis
   stands for text left out) and "alpha" (NSNumber). */
void SimTextBeginRecording(cairo_surface_t *surface);
/* How many texts were recorded so far (to tell which were drawn between two moments). */
NSUInteger SimTextRecordedCount(void);
/* Stops recording and returns the records (autoreleased). */
NSArray *SimTextEndRecording(void);

/* Appends the path's elements to cairo's current path (user space of `cr`). */
void SimCGAppendPathToCairo(cairo_t *cr, CGPathRef path);
/* The image's pixels (ARGB32, premultiplied), decoded when first asked for; NULL when it has
   none (not a PNG). Images known only by what they show ("appicon:<id>", "settings:<pane>")
   get a stand-in picture. The image keeps them. */
cairo_surface_t *SimCGImageSurface(CGImageRef image);
/* Where the image's pixels come from: a PNG file or PNG data. */
void SimCGImageSetSource(CGImageRef image, NSString *file, NSData *data);
/* An icon made from another image: its pixels scaled into the icon's size, corners rounded. */
void SimCGImageSetIconSource(CGImageRef icon, CGImageRef source);
/* An image of the surface's pixels (referenced, not copied). Caller releases. */
CGImageRef SimCGImageCreateWithSurface(cairo_surface_t *surface, NSString *description, NSArray *operations);
/* A stand-in picture for a name (a coloured rounded square with its first letter). */
cairo_surface_t *SimCGCreateNamedPicture(NSString *name, size_t width, size_t height);

/* A context drawing onto `cr` as it stands (its matrix, clip and target), for a view's own
   drawing inside a larger picture; it records as other contexts do. Caller releases. */
CGContextRef SimCGContextCreateForCairo(cairo_t *cr, CGFloat scale);
/* The cairo context behind a context, its user space the context's current one; NULL for a
   context without pixels. */
cairo_t *SimCGContextCairo(CGContextRef c);
/* A copy of an image context's pixels, or NULL. Caller destroys it. */
cairo_surface_t *SimCGContextCopySurface(CGContextRef c);

/* The user's languages decide which face draws characters shared by several scripts (CJK). */
void SimTextSetLanguage(NSString *language);

CG_EXTERN_C_END
#endif

#endif
