#import "SettingsIconRows.h"
#import <Preferences/PSListController.h>
#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>

// The rows' cells, views and glyphs, reached by name (they live in bundles loaded at run time).
@interface NSObject (SettingsIconRowsViews)
- (id)whiteButton;
- (id)blackButton;
- (id)goldenButton;
- (BOOL)isAnimating;
- (id)blackView;
- (id)blueView;
- (id)redView;
- (NSInteger)state;
@end

static UITableViewCell *iconCell(PSSpecifier *specifier, UIViewController *page) {
  id cellClass = [specifier propertyForKey:@"cellClass"];
  NSString *name = [cellClass description];
  if (![name hasSuffix:@"IconCell"] || ![page isKindOfClass:[PSListController class]]) return nil;
  return [(PSListController *)page cachedCellForSpecifier:specifier];
}

NSString *SettingsIconRowText(PSSpecifier *specifier, UIViewController *page) {
  UITableViewCell *cell = iconCell(specifier, page);
  if (cell == nil) return nil;
  NSMutableArray *parts = [NSMutableArray array];
  if ([cell respondsToSelector:@selector(whiteButton)]) {
    NSArray *names = [NSArray arrayWithObjects:@"white", @"black", @"golden", nil];
    id buttons[3] = {[cell whiteButton], [cell blackButton], [cell goldenButton]};
    for (NSUInteger i = 0; i < 3; i++) {
      BOOL on = [buttons[i] respondsToSelector:@selector(isAnimating)] && [buttons[i] isAnimating];
      [parts addObject:on ? [NSString stringWithFormat:@"[%@, animating]", [names objectAtIndex:i]]
                          : [names objectAtIndex:i]];
    }
  } else if ([cell respondsToSelector:@selector(blackView)]) {
    if ([cell blackView] == nil) return @"(no glyphs)";
    NSArray *names = [NSArray arrayWithObjects:@"black", @"blue", @"red", nil];
    id glyphs[3] = {[cell blackView], [cell blueView], [cell redView]};
    for (NSUInteger i = 0; i < 3; i++) {
      NSInteger state = [glyphs[i] respondsToSelector:@selector(state)] ? [glyphs[i] state] : 0;
      // A glyph away from its idle state is the chosen one (or on its way there).
      [parts addObject:state != 0 ? [NSString stringWithFormat:@"[%@, state %ld]", [names objectAtIndex:i], (long)state]
                                  : [NSString stringWithFormat:@"%@ 0", [names objectAtIndex:i]]];
    }
  }
  return [parts componentsJoinedByString:@"  "];
}

// The view holding the row's tap recognizer (the strip of thirds).
static UIView *tapStrip(UIView *view) {
  for (UIGestureRecognizer *recognizer in [view gestureRecognizers])
    if ([recognizer isKindOfClass:[UITapGestureRecognizer class]]) return view;
  for (UIView *subview in [view subviews]) {
    UIView *found = tapStrip(subview);
    if (found != nil) return found;
  }
  return nil;
}

NSString *SettingsIconRowTap(PSSpecifier *specifier, UIViewController *page, NSString *third) {
  UITableViewCell *cell = iconCell(specifier, page);
  if (cell == nil) return @"Only the button and glyph rows take a third: tap N left|middle|right";
  NSArray *names = [NSArray arrayWithObjects:@"left", @"middle", @"right", nil];
  NSUInteger index = [names indexOfObject:[third lowercaseString]];
  if (index == NSNotFound && [third integerValue] >= 1 && [third integerValue] <= 3) index = [third integerValue] - 1;
  if (index == NSNotFound) return @"Say which third: tap N left|middle|right";
  UIView *strip = tapStrip(cell);
  if (strip == nil) return @"That row has nothing to tap.";
  CGRect bounds = [strip bounds];
  CGFloat width = bounds.size.width / 3;
  CGPoint point = CGPointMake(width * index + width / 2, bounds.size.height / 2);
  return SimTapView(strip, point) ? nil : @"The tap reached nothing.";
}
