// Grouped tables as Settings shows them: from iOS 13 the sections are inset with rounded
// corners, before that they run from edge to edge between hairlines. Section headers are small
// capitals above a section, footers wrap below it; each cell is laid out at the width it is
// drawn at, and its standard parts (icon, title, detail, accessory) are placed as UIKit places
// them, with the real widths of their texts.
#import <Preferences/Preferences.h>
#import <UIKit/UIKitSimulation.h>

#include <math.h>
#include <objc/runtime.h>

#import "SimRenderInternal.h"

namespace simrender {

namespace {

struct TableLook {
  bool inset;      // rounded sections inset from the edges (iOS 13 on)
  double margin;   // the sections' distance from the column's edges
  double radius;   // their corners
  double content;  // the cells' content margin
};

TableLook lookFor(Canvas &canvas, UITableView *table, CGFloat width) {
  TableLook look;
  look.inset = canvas.system >= 13 && [table style] != UITableViewStylePlain;
  // Layout margins: 20 points on regular widths (iPads, the widest phones), 16 on the others.
  look.margin = look.inset ? (canvas.pad || width >= 414 ? 20 : 16) : 0;
  look.radius = look.inset ? 10 : 0;
  look.content = look.inset ? 16 : (canvas.pad ? 20 : 16);
  return look;
}

// The class's own layoutSubviews, or one UIKit's cells share (nothing of the product's).
bool standardLayout(UITableViewCell *cell) {
  IMP own = [cell methodForSelector:@selector(layoutSubviews)];
  return own == [UITableViewCell instanceMethodForSelector:@selector(layoutSubviews)] ||
         own == [PSTableCell instanceMethodForSelector:@selector(layoutSubviews)];
}

// Rows whose control spans the row (sliders, segmented choices): the device shows the control
// alone, from margin to margin, without the row's title.
bool controlSpansRow(UITableViewCell *cell) {
  return [cell isKindOfClass:[PSSliderTableCell class]] || [cell isKindOfClass:[PSSegmentTableCell class]];
}

// A text row without a name is its field alone (the stand-in's label repeats the field's text).
bool fieldOnly(UITableViewCell *cell) {
  return [cell isKindOfClass:[PSEditableTableCell class]] && [[[(PSTableCell *)cell specifier] name] length] == 0;
}

NSString *rowTitle(UITableViewCell *cell) {
  if (controlSpansRow(cell) || fieldOnly(cell) || [[cell textLabel] isHidden]) return nil;
  NSString *title = [[cell textLabel] text];
  return [title length] > 0 ? title : nil;
}

// The disclosure chevron with its point at `tip`, pointing to the right (left when mirrored).
void drawChevron(Canvas &canvas, double tip, double cy, bool dark) {
  cairo_t *cr = canvas.cr;
  double back = canvas.rightToLeft ? 6.5 : -6.5;
  cairo_save(cr);
  cairo_set_line_width(cr, 2.2);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
  cairo_move_to(cr, tip + back, cy - 6);
  cairo_line_to(cr, tip, cy);
  cairo_line_to(cr, tip + back, cy + 6);
  setSource(cr, dark ? Rgba{0.922, 0.922, 0.961, 0.3} : Rgba{0.235, 0.235, 0.263, 0.3});
  cairo_stroke(cr);
  cairo_restore(cr);
}

void drawCheckmark(Canvas &canvas, double right, double cy, Rgba tint) {
  cairo_t *cr = canvas.cr;
  if (canvas.rightToLeft) right += 14;
  cairo_save(cr);
  cairo_set_line_width(cr, 2.3);
  cairo_set_line_cap(cr, CAIRO_LINE_CAP_ROUND);
  cairo_set_line_join(cr, CAIRO_LINE_JOIN_ROUND);
  cairo_move_to(cr, right - 14, cy + 0.5);
  cairo_line_to(cr, right - 9, cy + 5.5);
  cairo_line_to(cr, right, cy - 6.5);
  setSource(cr, tint);
  cairo_stroke(cr);
  cairo_restore(cr);
}

// The standard parts of a cell, placed as UIKit places them (cell coordinates).
struct StandardParts {
  CGRect icon = CGRectZero, title = CGRectZero, detail = CGRectZero;
  double textX = 0;
};

StandardParts placeStandardParts(UITableViewCell *cell, CGSize size, double margin, double accessoryRoom) {
  StandardParts parts;
  double x = margin, h = size.height;
  UIImage *icon = [[cell imageView] image];
  if (icon != nil && ![[cell imageView] isHidden]) {
    CGSize s = [icon size];
    if (s.height > h - 4) s = CGSizeMake(s.width * (h - 4) / s.height, h - 4);
    parts.icon = CGRectMake(margin, floor((h - s.height) / 2), s.width, s.height);
    x = margin + fmax(s.width, 29) + 15;
  }
  parts.textX = x;
  double right = size.width - margin - accessoryRoom;
  double available = fmax(right - x, 0);
  UILabel *title = [cell textLabel], *detail = [cell detailTextLabel];
  SimTextFont titleFont = fontOf([title font], systemFont(17, 400));
  SimTextFont detailFont = fontOf([detail font], systemFont(17, 400));
  NSString *detailText = [detail text];
  switch ([cell style]) {
    case UITableViewCellStyleValue1: {
      double dw = [detailText length] > 0 ? fmin(measureText(detailText, detailFont, 0, 1).width, available) : 0;
      double tw = measureText([title text], titleFont, 0, 1).width;
      // The title keeps its whole width when both do not fit; the detail gives way.
      if (tw + dw + 8 > available) dw = fmax(fmin(dw, available - tw - 8), fmin(dw, available * 0.4));
      parts.detail = CGRectMake(right - dw, 0, dw, h);
      parts.title = CGRectMake(x, 0, fmax(available - (dw > 0 ? dw + 8 : 0), 0), h);
      break;
    }
    case UITableViewCellStyleValue2:
      parts.title = CGRectMake(x, 0, 67, h);
      parts.detail = CGRectMake(x + 73, 0, fmax(available - 73, 0), h);
      break;
    case UITableViewCellStyleSubtitle: {
      double th = [[title text] length] > 0 ? measureText([title text], titleFont, available, 1).height : 0;
      double dh =
          [detailText length] > 0 ? measureText(detailText, detailFont, available, [detail numberOfLines]).height : 0;
      double top = floor((h - th - dh) / 2);
      parts.title = CGRectMake(x, top, available, th);
      parts.detail = CGRectMake(x, top + th, available, dh);
      break;
    }
    default:
      parts.title = CGRectMake(x, 0, available, h);
      break;
  }
  return parts;
}

void drawLabelIn(Canvas &canvas, UILabel *label, CGRect box, bool wraps) {
  NSString *text = [label text];
  if ([text length] == 0 || [label isHidden]) return;
  Rgba colour = rgbaOf([label textColor], labelColour());
  if (![label isEnabled]) colour = tertiaryLabelColour();
  int alignment = (int)[label textAlignment];
  drawText(canvas.cr, text, fontOf([label font], systemFont(17, 400)), colour, box, alignment, wraps ? 0 : 1, true,
           true);
}

// A cell drawn at `rect` (user space = screen points). The cell is laid out at the width it is
// drawn at for the drawing and put back afterwards.
void drawCell(Canvas &canvas, UITableView *table, UITableViewCell *cell, CGRect rect, const TableLook &look,
              bool lastInSection) {
  cairo_t *cr = canvas.cr;
  TemporaryWidth width(cell, rect.size.width, rect.size.height);
  NSUInteger firstText = SimTextRecordedCount();
  cairo_save(cr);
  cairo_translate(cr, rect.origin.x, rect.origin.y);
  CGSize size = rect.size;

  Rgba background = rgbaOfCG([[cell layer] backgroundColor], cellBackgroundColour());
  fillRect(cr, CGRectMake(0, 0, size.width, size.height), background);
  if ([cell backgroundView] != nil) drawViewAt(canvas, [cell backgroundView], CGPointZero);

  UIView *accessory =
      [cell isEditing] && [cell editingAccessoryView] != nil ? [cell editingAccessoryView] : [cell accessoryView];
  UITableViewCellAccessoryType type = [cell isEditing] ? [cell editingAccessoryType] : [cell accessoryType];
  double margin = look.content;
  double accessoryRoom = 0;
  if (accessory != nil && ![accessory isHidden]) {
    accessoryRoom = [accessory frame].size.width + 12;
  } else if (type == UITableViewCellAccessoryDisclosureIndicator || type == UITableViewCellAccessoryCheckmark) {
    accessoryRoom = 22;
  }

  double separatorX = margin;
  // A mirrored row puts what UIKit lays out from the left at the right.
  auto mirror = [&](CGRect r) {
    return canvas.rightToLeft ? CGRectMake(size.width - CGRectGetMaxX(r), r.origin.y, r.size.width, r.size.height) : r;
  };
  if (standardLayout(cell)) {
    StandardParts parts = placeStandardParts(cell, size, margin, accessoryRoom);
    parts.icon = mirror(parts.icon);
    parts.title = mirror(parts.title);
    parts.detail = mirror(parts.detail);
    UIView *content = [cell contentView];
    // The content view's own background and anything the product added to it.
    Rgba contentBackground = rgbaOfCG([[content layer] backgroundColor], Rgba{0, 0, 0, 0});
    if (contentBackground.a > 0) fillRect(cr, [content frame], contentBackground);
    UIImageView *iconView = [cell imageView];
    if (!CGRectIsEmpty(parts.icon)) {
      Rgba tint = rgbaOf([iconView tintColor], tintColour());
      drawImage(canvas, [iconView image], parts.icon, &tint);
    }
    bool subtitle = [cell style] == UITableViewCellStyleSubtitle;
    if (!controlSpansRow(cell)) drawLabelIn(canvas, [cell textLabel], parts.title, false);
    if ([cell detailTextLabel] != nil && !controlSpansRow(cell)) {
      UILabel *detail = [cell detailTextLabel];
      Rgba colour = rgbaOf([detail textColor], secondaryLabelColour());
      if (![detail isEnabled]) colour = tertiaryLabelColour();
      int alignment = [cell style] == UITableViewCellStyleValue1
                          ? (canvas.rightToLeft ? SimTextAlignLeft : SimTextAlignRight)
                          : (int)[detail textAlignment];
      drawText(cr, [detail text], fontOf([detail font], systemFont(subtitle ? 12 : 17, 400)), colour, parts.detail,
               alignment, subtitle ? [detail numberOfLines] : 1, true, true);
    }
    for (UIView *subview in [content subviews]) {
      if (subview == iconView || subview == [cell textLabel] || subview == [cell detailTextLabel]) continue;
      drawViewAt(canvas, subview,
                 CGPointMake([content frame].origin.x + [subview frame].origin.x,
                             [content frame].origin.y + [subview frame].origin.y));
    }
    separatorX = parts.textX;
  } else {
    // The product lays the cell out itself: drawn as laid out.
    UILabel *hiddenTitle = fieldOnly(cell) ? [cell textLabel] : nil;
    bool shown = hiddenTitle != nil && ![hiddenTitle isHidden];
    if (shown) [hiddenTitle setHidden:YES];
    for (UIView *subview in [cell subviews]) {
      if (subview == accessory || subview == [cell backgroundView]) continue;
      drawView(canvas, subview);
    }
    if (shown) [hiddenTitle setHidden:NO];
    if ([[[cell textLabel] text] length] > 0) separatorX = fmax([[cell textLabel] frame].origin.x, margin);
  }

  double right = size.width - margin;
  double accessoryEdge = canvas.rightToLeft ? margin : right;
  if (accessory != nil && ![accessory isHidden] && controlSpansRow(cell) && standardLayout(cell)) {
    CGSize own = [accessory frame].size;
    TemporaryWidth wide(accessory, size.width - 2 * margin, own.height);
    drawViewAt(canvas, accessory, CGPointMake(margin, floor((size.height - own.height) / 2)));
  } else if (accessory != nil && ![accessory isHidden]) {
    CGRect frame = [accessory frame];
    double x = canvas.rightToLeft ? accessoryEdge : right - frame.size.width;
    drawViewAt(canvas, accessory, CGPointMake(x, floor((size.height - frame.size.height) / 2)));
  } else if (type == UITableViewCellAccessoryDisclosureIndicator) {
    drawChevron(canvas, canvas.rightToLeft ? accessoryEdge + 1 : right - 1, size.height / 2, canvas.dark);
  } else if (type == UITableViewCellAccessoryCheckmark) {
    drawCheckmark(canvas, canvas.rightToLeft ? accessoryEdge + 1 : right - 1, size.height / 2,
                  rgbaOf([cell tintColor], tintColour()));
  }

  // The separator under the row, from the text's start; the section's last row has none
  // when the section is inset (its rounded edge ends it).
  bool separators = [table separatorStyle] != UITableViewCellSeparatorStyleNone;
  if (separators && !(lastInSection && look.inset)) {
    Rgba colour = rgbaOf([table separatorColor], separatorColour());
    double x0 = lastInSection ? 0 : separatorX;
    if (canvas.rightToLeft)
      hairline(canvas, 0, size.height - 1.0 / canvas.scale, size.width - x0, size.height, colour);
    else
      hairline(canvas, x0, size.height - 1.0 / canvas.scale, size.width, size.height, colour);
  }
  cairo_restore(cr);

  SimDrawnRow *row = [[[SimDrawnRow alloc] init] autorelease];
  [row setCell:cell];
  [row setTitle:rowTitle(cell)];
  CGRect screen = screenRect(cr, rect, canvas.scale);
  [row setFrame:screen];
  double cx0, cy0, cx1, cy1;
  cairo_clip_extents(cr, &cx0, &cy0, &cx1, &cy1);
  CGRect clip = screenRect(cr, CGRectMake(cx0, cy0, cx1 - cx0, cy1 - cy0), canvas.scale);
  [row setVisibleFrame:CGRectIntersection(screen, clip)];
  [canvas.rows addObject:row];
  [canvas.rowTextRanges addObject:[NSValue valueWithRange:NSMakeRange(firstText, SimTextRecordedCount() - firstText)]];
}

NSString *headerTitle(UITableView *table, NSInteger section) {
  id source = [table dataSource];
  if (![source respondsToSelector:@selector(tableView:titleForHeaderInSection:)]) return nil;
  return [source tableView:table titleForHeaderInSection:section];
}

NSString *footerTitle(UITableView *table, NSInteger section) {
  id source = [table dataSource];
  if (![source respondsToSelector:@selector(tableView:titleForFooterInSection:)]) return nil;
  return [source tableView:table titleForFooterInSection:section];
}

// The height the table gives a section's header (UIKit's own measure of it).
double headerHeight(UITableView *table, NSInteger section) {
  SEL measure = NSSelectorFromString(@"_simHeightForHeader:");
  if (![table respondsToSelector:measure]) return 0;
  typedef CGFloat (*Measure)(id, SEL, NSInteger);
  return ((Measure)[table methodForSelector:measure])(table, measure, section);
}

// A header or footer view of the delegate's, laid out at the column's width.
void drawSectionView(Canvas &canvas, UIView *view, CGRect rect) {
  if (view == nil || rect.size.height <= 0) return;
  TemporaryWidth width(view, rect.size.width, rect.size.height);
  drawViewAt(canvas, view, rect.origin);
}

}  // namespace

void drawTable(Canvas &canvas, UITableView *table, CGRect column, CGFloat contentTop, bool fullPage) {
  cairo_t *cr = canvas.cr;
  [table layoutIfNeeded];
  TableLook look = lookFor(canvas, table, column.size.width);
  fillRect(cr, column, rgbaOfCG([[table layer] backgroundColor], groupedBackgroundColour()));
  if ([table backgroundView] != nil) drawSectionView(canvas, [table backgroundView], column);

  cairo_save(cr);
  cairo_rectangle(cr, column.origin.x, column.origin.y, column.size.width, column.size.height);
  cairo_clip(cr);
  // The table's content starts under the bars (the device insets it by their height).
  double originY = contentTop - [table contentOffset].y;
  double x = column.origin.x, width = column.size.width;
  double bottom = CGRectGetMaxY(column);

  UIView *header = [table tableHeaderView];
  if (header != nil && ![header isHidden]) {
    drawSectionView(canvas, header,
                    CGRectMake(x, originY + [header frame].origin.y, width, [header frame].size.height));
  }

  id delegate = [table delegate];
  NSInteger sections = [table numberOfSections];
  for (NSInteger section = 0; section < sections; section++) {
    CGRect sectionRect = [table rectForSection:section];
    if (originY + sectionRect.origin.y > bottom) break;
    NSInteger rows = [table numberOfRowsInSection:section];
    double rowsTop = sectionRect.origin.y, rowsBottom = CGRectGetMaxY(sectionRect);
    if (rows == 0) {
      // A section without rows: its header's height says where its footer starts.
      rowsTop = rowsBottom = sectionRect.origin.y + headerHeight(table, section);
    } else {
      rowsTop = [table rectForRowAtIndexPath:[NSIndexPath indexPathForRow:0 inSection:section]].origin.y;
      rowsBottom = CGRectGetMaxY([table rectForRowAtIndexPath:[NSIndexPath indexPathForRow:rows - 1
                                                                                 inSection:section]]);
    }

    // The header: the delegate's view, or its title in small capitals just above the rows.
    UIView *headerView = [delegate respondsToSelector:@selector(tableView:viewForHeaderInSection:)]
                             ? [delegate tableView:table viewForHeaderInSection:section]
                             : nil;
    CGRect headerRect = CGRectMake(x, originY + sectionRect.origin.y, width, rowsTop - sectionRect.origin.y);
    if (headerView != nil) {
      drawSectionView(canvas, headerView, headerRect);
    } else {
      NSString *title = headerTitle(table, section);
      if ([title length] > 0) {
        double textX = x + look.margin + look.content;
        CGSize size = measureText([title uppercaseString], systemFont(13, 400), width - 2 * (textX - x), 0);
        drawText(cr, [title uppercaseString], systemFont(13, 400), secondaryLabelColour(),
                 CGRectMake(textX, CGRectGetMaxY(headerRect) - 7 - size.height, width - 2 * (textX - x), size.height),
                 SimTextAlignNatural, 0, false, false);
      }
    }

    // The rows: one rounded group (inset) or a band between hairlines (edge to edge).
    if (rows > 0) {
      CGRect group = CGRectMake(x + look.margin, originY + rowsTop, width - 2 * look.margin, rowsBottom - rowsTop);
      cairo_save(cr);
      roundedRect(cr, group, look.radius);
      cairo_clip(cr);
      for (NSInteger row = 0; row < rows; row++) {
        NSIndexPath *path = [NSIndexPath indexPathForRow:row inSection:section];
        CGRect rect = [table rectForRowAtIndexPath:path];
        CGRect drawn = CGRectMake(group.origin.x, originY + rect.origin.y, group.size.width, rect.size.height);
        if (rect.size.height <= 0) continue;
        if (CGRectGetMaxY(drawn) < column.origin.y || drawn.origin.y > bottom) continue;
        UITableViewCell *cell = [table cellForRowAtIndexPath:path];
        if (cell == nil || [cell isHidden]) continue;
        drawCell(canvas, table, cell, drawn, look, row == rows - 1);
      }
      cairo_restore(cr);
      if (!look.inset && [table separatorStyle] != UITableViewCellSeparatorStyleNone) {
        Rgba colour = rgbaOf([table separatorColor], separatorColour());
        hairline(canvas, group.origin.x, group.origin.y, CGRectGetMaxX(group), group.origin.y, colour);
      }
    }

    // The footer: the delegate's view, or its title wrapped under the rows.
    UIView *footerView = [delegate respondsToSelector:@selector(tableView:viewForFooterInSection:)]
                             ? [delegate tableView:table viewForFooterInSection:section]
                             : nil;
    CGRect footerRect = CGRectMake(x, originY + rowsBottom, width, CGRectGetMaxY(sectionRect) - rowsBottom);
    if (footerView != nil) {
      drawSectionView(canvas, footerView, footerRect);
    } else {
      NSString *title = footerTitle(table, section);
      if ([title length] > 0) {
        double textX = x + look.margin + look.content;
        drawText(cr, title, systemFont(13, 400), secondaryLabelColour(),
                 CGRectMake(textX, footerRect.origin.y + 7, width - 2 * (textX - x), 0), SimTextAlignNatural, 0, false,
                 false);
      }
    }
  }

  UIView *footer = [table tableFooterView];
  if (footer != nil && ![footer isHidden]) {
    CGRect last = [table rectForSection:sections - 1];
    double top = sections > 0 ? CGRectGetMaxY(last) : 0;
    drawSectionView(canvas, footer, CGRectMake(x, originY + top, width, [footer frame].size.height));
  }
  cairo_restore(cr);
  (void)fullPage;
}

}  // namespace simrender
