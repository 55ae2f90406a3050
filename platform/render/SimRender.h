/* Pictures of the simulated Settings app: its key window drawn as the device draws it, at the
   profile's screen size in points and its scale. The view tree is walked and each view drawn
   by its class through its public properties (labels, images, switches, sliders, segmented
   controls, text fields, passcode fields, layers with their colours, corners, borders, shapes
   and contents); the chrome the system draws around a page (status bar, navigation bar, the
   grouped table's look of the profile's system version, alerts, sheets) is drawn here too.
   Not part of the device's frameworks: product code never includes this header. */
#ifndef SIMRENDER_H
#define SIMRENDER_H

#import <UIKit/UIKit.h>
#include <cairo.h>

/* A text as drawn: the string, its line box and the clip it was drawn in (screen points). */
@interface SimDrawnText : NSObject {
  NSString *_text;
  CGRect _frame;
  CGRect _clip;
  BOOL _truncated;
  NSInteger _row;
}
@property (nonatomic, copy) NSString *text;
@property (nonatomic, assign) CGRect frame;
@property (nonatomic, assign) CGRect clip;
/* An ellipsis stands for text that did not fit. */
@property (nonatomic, assign) BOOL truncated;
/* Index into the picture's rows of the row it was drawn in, or -1. */
@property (nonatomic, assign) NSInteger row;
@end

/* A table row as drawn: its cell, its title and where it lies on the screen (points). */
@interface SimDrawnRow : NSObject {
  UITableViewCell *_cell;
  NSString *_title;
  CGRect _frame;
  CGRect _visibleFrame;
}
@property (nonatomic, retain) UITableViewCell *cell;
@property (nonatomic, copy) NSString *title;
/* The cell's whole frame, and the part of it the screen shows. */
@property (nonatomic, assign) CGRect frame;
@property (nonatomic, assign) CGRect visibleFrame;
@end

/* A control as drawn, for checks of its state ("switch", "slider", "segments", "field"). */
@interface SimDrawnControl : NSObject {
  UIView *_view;
  NSString *_kind;
  CGRect _frame;
}
@property (nonatomic, retain) UIView *view;
@property (nonatomic, copy) NSString *kind;
@property (nonatomic, assign) CGRect frame;
@end

@interface SimScreenPicture : NSObject {
  cairo_surface_t *_surface;
  CGSize _size;
  CGFloat _scale;
  NSArray *_texts;
  NSArray *_rows;
  NSArray *_controls;
  NSString *_title;
}
/* The screen's size in points and its scale (pixels per point). */
@property (nonatomic, readonly) CGSize size;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) size_t pixelWidth;
@property (nonatomic, readonly) size_t pixelHeight;
/* The title of the page on top. */
@property (nonatomic, copy) NSString *title;
@property (nonatomic, copy) NSArray *texts;    /* SimDrawnText, in drawing order */
@property (nonatomic, copy) NSArray *rows;     /* SimDrawnRow, top to bottom */
@property (nonatomic, copy) NSArray *controls; /* SimDrawnControl */
/* The pixels (ARGB32, premultiplied). */
@property (nonatomic, readonly) cairo_surface_t *surface;
/* The colour at a point of the screen (0 to 255 each, not premultiplied). */
- (void)getRed:(int *)red green:(int *)green blue:(int *)blue alpha:(int *)alpha atPoint:(CGPoint)point;
/* Writes the picture as a PNG; `scale` > 0 writes it at that scale instead (a smaller copy). */
- (BOOL)writePNGToFile:(NSString *)path scale:(CGFloat)scale;
@end

/* Draws what the simulated Settings app shows now. `fullPage` draws the whole page on top
   however long it is (a picture taller than the screen) instead of what the screen shows. */
UIKIT_EXTERN SimScreenPicture *SimRenderSettingsScreen(BOOL fullPage);

#endif
