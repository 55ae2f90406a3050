// The Settings app's screen: its window's controllers (the list and the pane, side by side on
// an iPad), the page on top with its navigation bar, what is presented over it (modal pages
// as sheets, alerts, action sheets), and the status bar the system draws above everything.
#import <MessageUI/MessageUI.h>
#import <MessageUI/MessageUISimulation.h>
#import <Preferences/Preferences.h>
#import <Preferences/PreferencesSimulation.h>
#import <UIKit/UIKitSimulation.h>
#include <Simulator/Simulator.h>

#include <math.h>

#import "SimRenderInternal.h"

using namespace simrender;

namespace {

#pragma mark - Controllers

// The navigation controller whose top page is on screen inside `controller` (a pane's
// navigation held as a level of the list's on a phone).
UINavigationController *shownNavigation(UIViewController *controller) {
  if (![controller isKindOfClass:[UINavigationController class]]) return nil;
  UIViewController *top = [(UINavigationController *)controller topViewController];
  if ([top isKindOfClass:[UINavigationController class]]) return shownNavigation(top);
  return (UINavigationController *)controller;
}

UIViewController *topOf(UIViewController *controller) {
  if ([controller isKindOfClass:[PSSplitViewController class]]) {
    NSArray *sides = [(PSSplitViewController *)controller viewControllers];
    for (UIViewController *side in [sides reverseObjectEnumerator]) {
      UINavigationController *inner = shownNavigation(side);
      if ([[inner viewControllers] count] > 0) return [inner topViewController];
    }
    return controller;
  }
  UINavigationController *navigation = shownNavigation(controller);
  return navigation != nil ? [navigation topViewController] : controller;
}

UIViewController *presentedBy(UIViewController *controller) {
  UIViewController *presented = [controller presentedViewController];
  if (presented != nil && [presented presentingViewController] != nil && presented != controller) return presented;
  UIViewController *top = topOf(controller);
  if (top != nil && top != controller) {
    presented = [top presentedViewController];
    if (presented != nil && presented != controller) return presented;
  }
  return nil;
}

NSString *nonEmpty(id value) { return [value isKindOfClass:[NSString class]] && [value length] > 0 ? value : nil; }

NSString *pageTitle(UIViewController *page) {
  NSString *title = nil;
  @try {
    title = nonEmpty([[page navigationItem] title]);
    if (title == nil) title = nonEmpty([page title]);
    if (title == nil && [page respondsToSelector:@selector(specifier)])
      title = nonEmpty([(PSSpecifier *)[(id)page specifier] name]);
  } @catch (NSException *exception) {
    title = nil;
  }
  if (title == nil && [page isKindOfClass:[PrefsListController class]]) title = @"Settings";
  return title;
}

// The title of the level below the page on top: the back button's title.
NSString *backTitle(UINavigationController *navigation) {
  NSArray *levels = [navigation viewControllers];
  if ([levels count] >= 2) return pageTitle([levels objectAtIndex:[levels count] - 2]);
  UIViewController *parent = [navigation parentViewController];
  if ([parent isKindOfClass:[UINavigationController class]]) {
    NSArray *outer = [(UINavigationController *)parent viewControllers];
    NSUInteger at = [outer indexOfObjectIdenticalTo:navigation];
    if (at != NSNotFound && at > 0) return pageTitle([outer objectAtIndex:at - 1]);
  }
  return nil;
}

UITableView *tableOf(UIViewController *page) {
  if (![page isViewLoaded]) return nil;
  UIView *view = [page view];
  if ([view isKindOfClass:[UITableView class]]) return (UITableView *)view;
  if ([page isKindOfClass:[PSListController class]]) {
    UITableView *table = [(PSListController *)page table];
    if (table != nil && [table isDescendantOfView:view]) return table;
  }
  return nil;
}

int majorVersion() {
  NSString *version = [[UIDevice currentDevice] systemVersion];
  int major = [version intValue];
  return major > 0 ? major : 16;
}

#pragma mark - Status bar

}  // namespace

namespace simrender {

CGFloat statusBarHeight(Canvas &canvas) {
  if (canvas.pad) return canvas.system >= 12 ? 24 : 20;
  double h = fmax(canvas.size.height, canvas.size.width);
  if (h >= 852 && (h == 852 || h == 932)) return 59;  // the island's phones
  if (h >= 844 && (h == 844 || h == 926)) return 47;
  if (h >= 812) return 44;
  return 20;
}

void drawStatusBar(Canvas &canvas, CGRect area, bool lightContent) {
  cairo_t *cr = canvas.cr;
  Rgba ink = lightContent ? Rgba{1, 1, 1, 1} : Rgba{0, 0, 0, 1};
  double h = area.size.height;
  bool notch = !canvas.pad && h > 30;
  SimTextFont timeFont = systemFont(notch ? 17 : 15, 600);
  if (canvas.pad) {
    drawText(cr, @"9:41  Tue 9 Jan", systemFont(15, 600), ink, CGRectMake(area.origin.x + 20, area.origin.y, 200, h),
             SimTextAlignLeft, 1, true, false);
  } else if (notch) {
    // The time sits in the left shoulder, centred there.
    double shoulder = (area.size.width - 126) / 2;
    drawText(cr, @"9:41", timeFont, ink, CGRectMake(area.origin.x + 10, area.origin.y + 2, shoulder - 10, h - 6),
             SimTextAlignCenter, 1, true, false);
  } else {
    drawText(cr, @"9:41", timeFont, ink, CGRectMake(area.origin.x, area.origin.y, area.size.width, h),
             SimTextAlignCenter, 1, true, false);
  }
  // Signal bars, Wi-Fi and battery at the right.
  double right = CGRectGetMaxX(area) - (notch ? 24 : 8);
  double cy = area.origin.y + (notch ? (h - 4) / 2 : h / 2);
  cairo_save(cr);
  setSource(cr, ink);
  // Battery: outline, cap and charge.
  CGRect battery = CGRectMake(right - 27, cy - 6, 25, 12);
  roundedRect(cr, CGRectInset(battery, 0.5, 0.5), 3.5);
  cairo_set_line_width(cr, 1);
  cairo_set_source_rgba(cr, ink.r, ink.g, ink.b, 0.4);
  cairo_stroke(cr);
  roundedRect(cr, CGRectMake(right - 1.5, cy - 2, 1.5, 4), 0.75);
  cairo_fill(cr);
  setSource(cr, ink);
  roundedRect(cr, CGRectInset(battery, 2, 2), 2);
  cairo_fill(cr);
  // Wi-Fi: three arcs and a dot.
  double wx = right - 40, wy = cy + 5;
  cairo_set_line_width(cr, 1.8);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  for (int i = 1; i <= 3; i++) {
    cairo_arc(cr, wx, wy, 3.3 * i, -M_PI * 0.75, -M_PI * 0.25);
    cairo_stroke(cr);
  }
  cairo_arc(cr, wx, wy - 0.5, 1.3, 0, 2 * M_PI);
  cairo_fill(cr);
  if (!canvas.pad) {
    // Signal: four bars of rising height.
    double sx = right - 72;
    for (int i = 0; i < 4; i++) {
      double bh = 4 + i * 2.4;
      roundedRect(cr, CGRectMake(sx + i * 4.5, cy + 5.5 - bh, 3, bh), 1);
      cairo_fill(cr);
    }
  }
  cairo_restore(cr);
}

}  // namespace simrender

namespace {

// The island of the phones that have one, black over whatever is there.
void drawIsland(Canvas &canvas) {
  double h = fmax(canvas.size.height, canvas.size.width);
  if (canvas.pad || !(h == 852 || h == 932)) return;
  roundedRect(canvas.cr, CGRectMake((canvas.size.width - 126) / 2, 11, 126, 37), 18.5);
  cairo_set_source_rgb(canvas.cr, 0, 0, 0);
  cairo_fill(canvas.cr);
}

void drawHomeIndicator(Canvas &canvas, bool light) {
  if (statusBarHeight(canvas) < 44 && !canvas.pad) return;
  if (canvas.pad && statusBarHeight(canvas) < 24) return;
  double w = canvas.pad ? 320 : 134;
  roundedRect(canvas.cr, CGRectMake((canvas.size.width - w) / 2, canvas.size.height - 8 - 5, w, 5), 2.5);
  setSource(canvas.cr, light ? Rgba{1, 1, 1, 1} : Rgba{0, 0, 0, 1});
  cairo_fill(canvas.cr);
}

#pragma mark - Navigation bar

NSString *systemItemTitle(UIBarButtonItem *item) {
  id value = nil;
  @try {
    value = [item valueForKey:@"systemItem"];
  } @catch (NSException *exception) {
    value = nil;
  }
  if (![value respondsToSelector:@selector(integerValue)]) return nil;
  switch ([value integerValue]) {
    case UIBarButtonSystemItemDone:
      return @"Done";
    case UIBarButtonSystemItemCancel:
      return @"Cancel";
    case UIBarButtonSystemItemEdit:
      return @"Edit";
    case UIBarButtonSystemItemSave:
      return @"Save";
    case UIBarButtonSystemItemAdd:
      return @"+";
    default:
      return nil;
  }
}

// A bar button at `edge` (its left or right end there). Returns its width.
double drawBarButton(Canvas &canvas, UIBarButtonItem *item, double edge, bool alignRight, double cy) {
  if (item == nil) return 0;
  cairo_t *cr = canvas.cr;
  Rgba tint = rgbaOf([item tintColor], tintColour());
  if (![item isEnabled]) tint = tertiaryLabelColour();
  UIView *custom = [item customView];
  if (custom != nil) {
    CGSize s = [custom frame].size;
    drawViewAt(canvas, custom, CGPointMake(alignRight ? edge - s.width : edge, cy - s.height / 2));
    return s.width;
  }
  NSString *title = nonEmpty([item title]);
  if (title == nil && [item image] == nil) title = systemItemTitle(item);
  if (title != nil) {
    SimTextFont font = systemFont(17, [item style] == UIBarButtonItemStyleDone ? 600 : 400);
    double w = measureText(title, font, 0, 1).width;
    drawText(cr, title, font, tint, CGRectMake(alignRight ? edge - w : edge, cy - 15, w, 30), SimTextAlignLeft, 1, true,
             false);
    return w;
  }
  UIImage *image = [item image];
  if (image != nil) {
    CGSize s = [image size];
    if (s.height > 28) s = CGSizeMake(s.width * 28 / s.height, 28);
    CGRect rect = CGRectMake(alignRight ? edge - s.width : edge, cy - s.height / 2, s.width, s.height);
    // Bar images are templates unless made otherwise: they take the bar's tint.
    UIImage *shown = [image renderingMode] == UIImageRenderingModeAlwaysOriginal
                         ? image
                         : [image imageWithRenderingMode:UIImageRenderingModeAlwaysTemplate];
    drawImage(canvas, shown, rect, &tint);
    return s.width;
  }
  return 0;
}

// The back chevron in the 12-point box at `x`, pointing back (to the right when mirrored).
void drawBackChevron(Canvas &canvas, double x, double cy, Rgba tint) {
  cairo_t *cr = canvas.cr;
  double from = canvas.rightToLeft ? x + 1.5 : x + 10, to = canvas.rightToLeft ? x + 10 : x + 1.5;
  cairo_save(cr);
  cairo_set_line_width(cr, 3);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
  cairo_move_to(cr, from, cy - 10);
  cairo_line_to(cr, to, cy);
  cairo_line_to(cr, from, cy + 10);
  setSource(cr, tint);
  cairo_stroke(cr);
  cairo_restore(cr);
}

void drawNavigationBar(Canvas &canvas, UINavigationController *navigation, UIViewController *page, CGRect bar,
                       bool largeTitle, bool solid) {
  cairo_t *cr = canvas.cr;
  if (solid) {
    // Before iOS 15 (and on sheets) the bar is a translucent material over the page with a
    // hairline under it; from iOS 15 at the top of a page it shows the page through.
    Rgba material = canvas.dark ? Rgba{0.118, 0.118, 0.118, 0.94} : Rgba{0.976, 0.976, 0.976, 0.94};
    fillRect(cr, bar, material);
    hairline(canvas, bar.origin.x, CGRectGetMaxY(bar) - 1.0 / canvas.scale, CGRectGetMaxX(bar), CGRectGetMaxY(bar),
             canvas.dark ? Rgba{1, 1, 1, 0.15} : Rgba{0, 0, 0, 0.3});
  }
  UINavigationItem *item = [page navigationItem];
  double rowHeight = canvas.pad ? 50 : 44;
  double cy = bar.origin.y + rowHeight / 2;
  double left = bar.origin.x + (canvas.pad ? 20 : 8), right = CGRectGetMaxX(bar) - (canvas.pad ? 20 : 16);
  Rgba tint = tintColour();

  // The leading side (the left, the right when mirrored): the page's own left buttons, else
  // the back button. The trailing side: the page's right buttons, the first at the edge.
  bool mirrored = canvas.rightToLeft;
  double leadingEdge = mirrored ? CGRectGetMaxX(bar) - (left - bar.origin.x) : left;
  double trailingEdge = mirrored ? bar.origin.x + (CGRectGetMaxX(bar) - right) : right;
  double leading = 0, trailing = 0;  // how far each side's buttons reach from their edge
  NSArray *leftItems = [item leftBarButtonItems];
  if ([leftItems count] == 0 && [item leftBarButtonItem] != nil) leftItems = @[ [item leftBarButtonItem] ];
  if ([leftItems count] > 0) {
    double inset = canvas.pad ? 20 : 16;
    double x = mirrored ? CGRectGetMaxX(bar) - inset : bar.origin.x + inset;
    for (UIBarButtonItem *button in leftItems) {
      double w = drawBarButton(canvas, button, x, mirrored, cy) + 16;
      x += mirrored ? -w : w;
    }
    leading = fabs(x - (mirrored ? CGRectGetMaxX(bar) : bar.origin.x));
  } else if (![item hidesBackButton]) {
    NSString *back = backTitle(navigation);
    if (back != nil) {
      NSString *shown = [back length] > 14 ? @"Back" : back;
      double w = measureText(shown, systemFont(17, 400), 0, 1).width;
      drawBackChevron(canvas, mirrored ? leadingEdge - 12 : leadingEdge, cy, tint);
      double textX = mirrored ? leadingEdge - 18 - w : leadingEdge + 18;
      drawText(cr, shown, systemFont(17, 400), tint, CGRectMake(textX, cy - 15, w, 30), SimTextAlignLeft, 1, true,
               false);
      leading = fabs(leadingEdge - (mirrored ? CGRectGetMaxX(bar) : bar.origin.x)) + 18 + w + 8;
    }
  }
  NSArray *rightItems = [item rightBarButtonItems];
  if ([rightItems count] == 0 && [item rightBarButtonItem] != nil) rightItems = @[ [item rightBarButtonItem] ];
  double x = trailingEdge;
  for (UIBarButtonItem *button in rightItems) {
    double w = drawBarButton(canvas, button, x, !mirrored, cy) + 16;
    x += mirrored ? w : -w;
  }
  trailing = fabs((mirrored ? bar.origin.x : CGRectGetMaxX(bar)) - x);
  double leftEnd = bar.origin.x + (mirrored ? trailing : leading);
  double rightStart = CGRectGetMaxX(bar) - (mirrored ? leading : trailing);

  NSString *title = pageTitle(page);
  UIView *titleView = [item titleView];
  if (titleView != nil) {
    CGSize s = [titleView frame].size;
    drawViewAt(canvas, titleView, CGPointMake(CGRectGetMidX(bar) - s.width / 2, cy - s.height / 2));
  } else if (largeTitle) {
    drawText(cr, title, systemFont(34, 700), labelColour(),
             CGRectMake(bar.origin.x + (canvas.pad ? 20 : 16), bar.origin.y + rowHeight, bar.size.width - 32, 41),
             SimTextAlignNatural, 1, true, true);
  } else if (title != nil) {
    // Centred on the bar while it clears the buttons, else between them.
    SimTextFont font = systemFont(17, 600);
    double w = measureText(title, font, 0, 1).width;
    double room = fmin(CGRectGetMidX(bar) - leftEnd, rightStart - CGRectGetMidX(bar)) * 2;
    CGRect box = CGRectMake(CGRectGetMidX(bar) - room / 2, cy - 15, room, 30);
    if (w > room) box = CGRectMake(leftEnd, cy - 15, fmax(rightStart - leftEnd, 0), 30);
    drawText(cr, title, font, labelColour(), box, SimTextAlignCenter, 1, true, true);
  }
}

#pragma mark - Pages

bool isLargeTitlePage(Canvas &canvas, UIViewController *page) {
  return canvas.system >= 11 && [page isKindOfClass:[PrefsListController class]];
}

Rgba pageBackground(UIViewController *page, UITableView *table) {
  if (table != nil) return rgbaOfCG([[table layer] backgroundColor], groupedBackgroundColour());
  UIView *view = [page isViewLoaded] ? [page view] : nil;
  Rgba colour = rgbaOfCG([[view layer] backgroundColor], Rgba{0, 0, 0, 0});
  if (colour.a > 0) return colour;
  return rgbaOf([UIColor systemBackgroundColor], Rgba { 1, 1, 1, 1 });
}

// A page with its bar in `column`: `top` is where the bar starts (under the status bar).
void drawColumn(Canvas &canvas, UIViewController *controller, CGRect column, double top, bool sheet, bool fullPage) {
  cairo_t *cr = canvas.cr;
  UINavigationController *navigation = shownNavigation(controller);
  UIViewController *page = navigation != nil ? [navigation topViewController] : controller;
  if (page == nil) {
    fillRect(cr, column, groupedBackgroundColour());
    return;
  }
  @try {
    [page view];
  } @catch (NSException *exception) {
    fillRect(cr, column, groupedBackgroundColour());
    return;
  }
  UITableView *table = tableOf(page);
  bool bar = navigation != nil && ![navigation isNavigationBarHidden];
  bool large = bar && isLargeTitlePage(canvas, page);
  double barHeight = !bar                           ? 0
                     : large                        ? (canvas.pad ? 50 : 44) + 52
                     : sheet && canvas.system >= 13 ? 56
                     : canvas.pad                   ? 50
                                                    : 44;
  double contentTop = top + barHeight;

  cairo_save(cr);
  cairo_rectangle(cr, column.origin.x, column.origin.y, column.size.width, column.size.height);
  cairo_clip(cr);
  fillRect(cr, column, pageBackground(page, table));
  if ([controller isKindOfClass:[MFMailComposeViewController class]]) {
    // The mail composer's fields, as its sheet shows them.
    MFMailComposeViewController *mail = (MFMailComposeViewController *)controller;
    double y = contentTop + 4, x = column.origin.x + 16, w = column.size.width - 32;
    NSArray *to = [mail _simToRecipients];
    NSArray *fields = @[
      @[ @"To:", to != nil ? [to componentsJoinedByString:@", "] : @"" ], @[ @"Cc/Bcc, From:", @"" ],
      @[ @"Subject:", [mail _simSubject] != nil ? [mail _simSubject] : @"" ]
    ];
    for (NSArray *field in fields) {
      double lw = measureText([field objectAtIndex:0], systemFont(15, 400), 0, 1).width;
      drawText(cr, [field objectAtIndex:0], systemFont(15, 400), secondaryLabelColour(), CGRectMake(x, y, lw, 44),
               SimTextAlignLeft, 1, true, false);
      drawText(cr, [field objectAtIndex:1], systemFont(15, 400), labelColour(),
               CGRectMake(x + lw + 6, y, w - lw - 6, 44), SimTextAlignLeft, 1, true, true);
      hairline(canvas, x, y + 44, CGRectGetMaxX(column), y + 44, separatorColour());
      y += 44;
    }
    drawText(cr, [mail _simMessageBody], systemFont(15, 400), labelColour(),
             CGRectMake(x, y + 10, w, CGRectGetMaxY(column) - y - 10), SimTextAlignNatural,
             (NSInteger)floor((CGRectGetMaxY(column) - y - 10) / 18), false, true);
  } else if (table != nil) {
    drawTable(canvas, table, column, contentTop, fullPage);
  } else {
    // A page of its own views: laid out at the column's size and drawn from its top, under
    // the bar, as the device lays pages out (their views reach under translucent bars).
    UIView *view = [page view];
    TemporaryWidth size(view, column.size.width, column.size.height - (top - column.origin.y) + (sheet ? 0 : top));
    CGRect frame = [view frame];
    CGPoint origin = CGPointMake(column.origin.x, sheet ? top : column.origin.y);
    cairo_save(cr);
    cairo_translate(cr, origin.x - frame.origin.x, origin.y - frame.origin.y);
    setScrollInsetTop(contentTop);
    drawView(canvas, view);
    setScrollInsetTop(0);
    cairo_restore(cr);
  }
  if (bar) {
    bool solid = canvas.system < 15 || sheet || table == nil || [table contentOffset].y > 1;
    if (!solid)
      fillRect(cr, CGRectMake(column.origin.x, top, column.size.width, barHeight), pageBackground(page, table));
    drawNavigationBar(canvas, navigation, page, CGRectMake(column.origin.x, top, column.size.width, barHeight), large,
                      solid);
  }
  cairo_restore(cr);
}

#pragma mark - Alerts

void drawAlert(Canvas &canvas, UIAlertController *alert) {
  cairo_t *cr = canvas.cr;
  fillRect(cr, CGRectMake(0, 0, canvas.size.width, canvas.size.height), Rgba{0, 0, 0, canvas.dark ? 0.48 : 0.2});
  bool sheet = [alert preferredStyle] == UIAlertControllerStyleActionSheet && !canvas.pad;
  NSArray *actions = [alert actions];
  NSString *title = nonEmpty([alert title]), *message = nonEmpty([alert message]);
  Rgba material = canvas.dark ? Rgba{0.17, 0.17, 0.18, 0.97} : Rgba{0.95, 0.95, 0.95, 0.97};
  Rgba line = canvas.dark ? Rgba{1, 1, 1, 0.12} : Rgba{0.235, 0.235, 0.263, 0.29};
  Rgba tint = tintColour(), red = rgbaOf([UIColor systemRedColor], Rgba { 1, 0.231, 0.188, 1 });

  double width = sheet ? canvas.size.width - 16 : 270;
  double inner = width - 32;
  SimTextFont titleFont = systemFont(sheet ? 13 : 17, 600), messageFont = systemFont(13, 400);
  double titleH = title ? measureText(title, titleFont, inner, 0).height : 0;
  double messageH = message ? measureText(message, messageFont, inner, 0).height : 0;
  double head = (title || message) ? 20 + titleH + (title && message ? 2 : 0) + messageH + 20 : 0;
  double buttonH = sheet ? 57 : 44;

  NSMutableArray *plain = [NSMutableArray array];
  UIAlertAction *cancel = nil;
  for (UIAlertAction *action in actions) {
    if ([action style] == UIAlertActionStyleCancel && sheet && cancel == nil)
      cancel = action;
    else
      [plain addObject:action];
  }
  // Two buttons of an alert stand side by side; more stack, the cancel one last.
  bool sideBySide = !sheet && [plain count] == 2;
  if (!sheet) {
    NSMutableArray *ordered = [NSMutableArray array];
    UIAlertAction *cancelAction = nil;
    for (UIAlertAction *action in plain) {
      if ([action style] == UIAlertActionStyleCancel && cancelAction == nil)
        cancelAction = action;
      else
        [ordered addObject:action];
    }
    if (cancelAction != nil) {
      if (sideBySide)
        [ordered insertObject:cancelAction atIndex:0];
      else
        [ordered addObject:cancelAction];
    }
    plain = ordered;
  }
  double buttons = sideBySide ? buttonH : buttonH * [plain count];
  double boxH = head + buttons;
  double cancelGap = cancel != nil ? 8 + buttonH : 0;
  double x = (canvas.size.width - width) / 2;
  double y = sheet ? canvas.size.height - (statusBarHeight(canvas) >= 44 ? 34 : 8) - cancelGap - boxH
                   : (canvas.size.height - boxH) / 2;
  double radius = sheet ? 13 : 14;
  CGRect box = CGRectMake(x, y, width, boxH);
  roundedRect(cr, box, radius);
  setSource(cr, material);
  cairo_fill(cr);
  double ty = y + 20;
  if (title) {
    drawText(cr, title, titleFont, sheet ? secondaryLabelColour() : labelColour(),
             CGRectMake(x + 16, ty, inner, titleH), SimTextAlignCenter, 0, false, false);
    ty += titleH + 2;
  }
  if (message) {
    drawText(cr, message, messageFont, sheet ? secondaryLabelColour() : labelColour(),
             CGRectMake(x + 16, ty, inner, messageH), SimTextAlignCenter, 0, false, false);
  }
  double by = y + head;
  for (NSUInteger i = 0; i < [plain count]; i++) {
    UIAlertAction *action = [plain objectAtIndex:i];
    CGRect button = sideBySide ? CGRectMake(x + i * width / 2, by, width / 2, buttonH)
                               : CGRectMake(x, by + i * buttonH, width, buttonH);
    if (i == 0 || !sideBySide) hairline(canvas, x, button.origin.y, x + width, button.origin.y, line);
    if (sideBySide && i == 1) hairline(canvas, button.origin.x, by, button.origin.x, by + buttonH, line);
    bool preferred = [alert preferredAction] == action ||
                     ([alert preferredAction] == nil && !sheet && [action style] == UIAlertActionStyleCancel);
    Rgba colour = [action style] == UIAlertActionStyleDestructive ? red : tint;
    if (![action isEnabled]) colour = tertiaryLabelColour();
    drawText(cr, [action title], systemFont(sheet ? 20 : 17, preferred ? 600 : 400), colour, CGRectInset(button, 8, 0),
             SimTextAlignCenter, 1, true, true);
  }
  if (cancel != nil) {
    CGRect button = CGRectMake(x, y + boxH + 8, width, buttonH);
    roundedRect(cr, button, radius);
    setSource(cr, canvas.dark ? Rgba{0.17, 0.17, 0.18, 1} : Rgba{1, 1, 1, 1});
    cairo_fill(cr);
    drawText(cr, [cancel title], systemFont(20, 600), tint, CGRectInset(button, 8, 0), SimTextAlignCenter, 1, true,
             true);
  }
}

}  // namespace

#pragma mark - The picture

static CGRect rectOf(NSArray *numbers) {
  if ([numbers count] != 4) return CGRectZero;
  return CGRectMake([[numbers objectAtIndex:0] doubleValue], [[numbers objectAtIndex:1] doubleValue],
                    [[numbers objectAtIndex:2] doubleValue], [[numbers objectAtIndex:3] doubleValue]);
}

SimScreenPicture *SimRenderSettingsScreen(BOOL fullPage) {
  NSAutoreleasePool *pool = [[NSAutoreleasePool alloc] init];
  Canvas canvas;
  canvas.size = [[UIScreen mainScreen] bounds].size;
  canvas.scale = [[UIScreen mainScreen] scale];
  if (canvas.scale <= 0) canvas.scale = 1;
  canvas.system = majorVersion();
  canvas.pad = [[UIDevice currentDevice] userInterfaceIdiom] == UIUserInterfaceIdiomPad;
  canvas.dark = [[UITraitCollection currentTraitCollection] userInterfaceStyle] == UIUserInterfaceStyleDark;
  canvas.rightToLeft =
      [[UIApplication sharedApplication] userInterfaceLayoutDirection] == UIUserInterfaceLayoutDirectionRightToLeft;
  setRightToLeft(canvas.rightToLeft);
  canvas.rows = [NSMutableArray array];
  canvas.controls = [NSMutableArray array];
  canvas.rowTextRanges = [NSMutableArray array];

  UIViewController *root = SimSettingsWindowRootController();
  // Which controllers are on screen: the window's, then what each presents.
  UIViewController *level = root;
  NSMutableArray *presented = [NSMutableArray array];
  for (int depth = 0; depth < 16 && level != nil; depth++) {
    UIViewController *next = presentedBy(level);
    if (next == nil) break;
    [presented addObject:next];
    if ([next isKindOfClass:[UIAlertController class]]) break;
    level = next;
  }
  UIViewController *topPage = topOf([presented count] > 0 ? [presented lastObject] : root);
  if ([topPage isKindOfClass:[UIAlertController class]])
    topPage = topOf([presented count] > 1 ? [presented objectAtIndex:[presented count] - 2] : root);

  // A whole page: as tall as the table on top needs.
  double statusHeight = 0;
  {
    Canvas probe = canvas;
    statusHeight = statusBarHeight(probe);
  }
  if (fullPage) {
    UITableView *table = tableOf(topPage);
    if (table != nil) {
      [table layoutIfNeeded];
      double needed = statusHeight + 96 + [table contentSize].height + 40;
      if (needed > canvas.size.height) canvas.size.height = ceil(needed);
      // Every row gets its cell when the table is as tall as its content.
    }
  }

  int pw = (int)llround(canvas.size.width * canvas.scale), ph = (int)llround(canvas.size.height * canvas.scale);
  canvas.surface = cairo_image_surface_create(CAIRO_FORMAT_ARGB32, pw, ph);
  canvas.cr = cairo_create(canvas.surface);
  cairo_scale(canvas.cr, canvas.scale, canvas.scale);
  SimTextBeginRecording(canvas.surface);
  cairo_t *cr = canvas.cr;
  fillRect(cr, CGRectMake(0, 0, canvas.size.width, canvas.size.height), Rgba{0, 0, 0, 1});

  double status = statusHeight;
  CGRect screen = CGRectMake(0, 0, canvas.size.width, canvas.size.height);
  bool lightStatus = canvas.dark;
  if (root == nil) {
    fillRect(cr, screen, groupedBackgroundColour());
  } else if ([root isKindOfClass:[PSSplitViewController class]]) {
    NSArray *sides = [(PSSplitViewController *)root viewControllers];
    double sidebar = fmin(320, floor(canvas.size.width * 0.4));
    CGRect list = CGRectMake(0, 0, sidebar, canvas.size.height);
    CGRect pane = CGRectMake(sidebar, 0, canvas.size.width - sidebar, canvas.size.height);
    drawColumn(canvas, [sides count] > 0 ? [sides objectAtIndex:0] : nil, list, status, false, false);
    UIViewController *right = [sides count] > 1 ? [sides objectAtIndex:1] : nil;
    if ([[shownNavigation(right) viewControllers] count] > 0)
      drawColumn(canvas, right, pane, status, false, fullPage);
    else
      fillRect(cr, pane, groupedBackgroundColour());
    hairline(canvas, sidebar, 0, sidebar, canvas.size.height, canvas.dark ? Rgba{1, 1, 1, 0.15} : Rgba{0, 0, 0, 0.2});
  } else {
    drawColumn(canvas, root, screen, status, false, fullPage && [presented count] == 0);
  }
  for (UIViewController *over in presented) {
    if ([over isKindOfClass:[UIAlertController class]]) continue;
    // From iOS 13 a modal page is a sheet over the dimmed page; before, it covers the screen.
    if (canvas.system >= 13) {
      fillRect(cr, screen, Rgba{0, 0, 0, canvas.dark ? 0.4 : 0.3});
      CGRect card = canvas.pad ? CGRectMake((canvas.size.width - 540) / 2, (canvas.size.height - 620) / 2, 540, 620)
                               : CGRectMake(0, status + 10, canvas.size.width, canvas.size.height - status - 10);
      cairo_save(cr);
      roundedRectCorners(cr, card, 10, true, canvas.pad);
      cairo_clip(cr);
      drawColumn(canvas, over, card, card.origin.y, true, false);
      cairo_restore(cr);
      lightStatus = true;
    } else {
      drawColumn(canvas, over, screen, status, false, false);
    }
  }
  drawStatusBar(canvas, CGRectMake(0, 0, canvas.size.width, status), lightStatus);
  drawIsland(canvas);
  for (UIViewController *over in presented) {
    if ([over isKindOfClass:[UIAlertController class]]) drawAlert(canvas, (UIAlertController *)over);
  }
  drawHomeIndicator(canvas, canvas.dark);

  cairo_surface_flush(canvas.surface);
  NSArray *records = SimTextEndRecording();
  // Text records in points, each with the row it was drawn in.
  NSMutableArray *texts = [NSMutableArray arrayWithCapacity:[records count]];
  NSMutableArray *rowOf = [NSMutableArray arrayWithCapacity:[records count]];
  for (NSUInteger i = 0; i < [records count]; i++) [rowOf addObject:@(-1)];
  for (NSUInteger r = 0; r < [canvas.rowTextRanges count]; r++) {
    NSRange range = [[canvas.rowTextRanges objectAtIndex:r] rangeValue];
    for (NSUInteger i = range.location; i < NSMaxRange(range) && i < [rowOf count]; i++)
      [rowOf replaceObjectAtIndex:i withObject:@((NSInteger)r)];
  }
  for (NSUInteger i = 0; i < [records count]; i++) {
    NSDictionary *record = [records objectAtIndex:i];
    CGRect frame = rectOf([record objectForKey:@"frame"]), clip = rectOf([record objectForKey:@"clip"]);
    SimDrawnText *text = [[[SimDrawnText alloc] init] autorelease];
    [text setText:[record objectForKey:@"text"]];
    [text setFrame:CGRectMake(frame.origin.x / canvas.scale, frame.origin.y / canvas.scale,
                              frame.size.width / canvas.scale, frame.size.height / canvas.scale)];
    [text setClip:CGRectMake(clip.origin.x / canvas.scale, clip.origin.y / canvas.scale, clip.size.width / canvas.scale,
                             clip.size.height / canvas.scale)];
    [text setTruncated:[[record objectForKey:@"truncated"] boolValue]];
    [text setRow:[[rowOf objectAtIndex:i] integerValue]];
    [texts addObject:text];
  }
  SimScreenPicture *picture = [[SimScreenPicture alloc] _simInitWithSurface:canvas.surface
                                                                       size:canvas.size
                                                                      scale:canvas.scale];
  [picture setTexts:texts];
  [picture setRows:canvas.rows];
  [picture setControls:canvas.controls];
  [picture setTitle:pageTitle(topPage)];
  cairo_destroy(canvas.cr);
  cairo_surface_destroy(canvas.surface);
  [pool drain];
  return [picture autorelease];
}
