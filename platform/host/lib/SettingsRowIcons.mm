#import "SettingsRowIcons.h"

#import <Preferences/PSSpecifier.h>
#import <UIKit/UIKit.h>
#import <UIKit/UIKitSimulation.h>

#import "SettingsScreen.h"

NSString *SettingsImageSummary(id image) {
  if (![image isKindOfClass:[UIImage class]]) return @"no icon";
  NSArray *ops = [image _simDrawOperations];
  if (ops == nil) return [image _simDescription];
  CGSize canvas = [image size];
  NSMutableArray *parts = [NSMutableArray array];
  BOOL clipped = NO, tinted = NO;
  for (NSString *op in ops) {
    if ([op hasPrefix:@"clip"]) clipped = YES;
    if ([op isEqualToString:@"blendMode 18"]) tinted = YES;
    if (![op hasPrefix:@"drawImage "]) continue;
    NSRange brace = [op rangeOfString:@" {{" options:NSBackwardsSearch];
    if (brace.location == NSNotFound) continue;
    NSString *what = [op substringWithRange:NSMakeRange(10, brace.location - 10)];
    if ([what hasPrefix:@"appicon:"]) what = [what substringFromIndex:8];
    CGRect r = CGRectFromString([op substringFromIndex:brace.location + 1]);
    NSString *place = CGRectGetMinX(r) >= canvas.width || CGRectGetMinY(r) >= canvas.height ? @" (outside)"
                      : CGRectGetMaxX(r) > canvas.width || CGRectGetMaxY(r) > canvas.height ? @" (cut at the edge)"
                                                                                            : @"";
    [parts addObject:[NSString stringWithFormat:@"%@ at %g,%g%@", what, r.origin.x, r.origin.y, place]];
  }
  NSMutableString *summary = [NSMutableString stringWithFormat:@"drawn %gx%g", canvas.width, canvas.height];
  if (clipped) [summary appendString:@", rounded"];
  if (tinted) [summary appendString:@", tinted white"];
  if ([parts count] != 0) [summary appendFormat:@": %@", [parts componentsJoinedByString:@"; "]];
  return summary;
}

NSString *SettingsRowIconsReport(SettingsScreen *screen) {
  NSMutableString *report = [NSMutableString string];
  NSUInteger number = 0;
  for (SettingsScreenItem *item in [screen items]) {
    number++;
    PSSpecifier *row = [item specifier];
    if ([item footerLink] || row == nil) continue;
    NSString *state = @"";
    if ([row cellType] == PSSwitchCell) {
      id value = SettingsScreenRowValue(row, [item controller]);
      state = [value respondsToSelector:@selector(boolValue)] && [value boolValue] ? @" [on]" : @" [off]";
    }
    NSString *icon;
    id image = [row propertyForKey:@"iconImage"];
    NSString *lazy = [row propertyForKey:@"appIDForLazyIcon"];
    if (image != nil)
      icon = SettingsImageSummary(image);
    else if ([[row propertyForKey:@"useLazyIcons"] boolValue] && [lazy isKindOfClass:[NSString class]])
      icon = [NSString stringWithFormat:@"%@ (application icon, loaded lazily)", lazy];
    else
      icon = @"no icon";
    [report
        appendFormat:@"  [%lu] %@%@  icon: %@\n", (unsigned long)number, [row name] ? [row name] : @"", state, icon];
  }
  return [report length] ? report : @"No rows on this screen.\n";
}
