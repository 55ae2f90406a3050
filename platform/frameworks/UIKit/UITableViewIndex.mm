// The section index a table shows down its right edge: a private control of UIKit
// (UITableViewIndex in header dumps, with `titles`, `selectedSection` and
// `selectedSectionTitle`) that sends its value-changed action to the table when touched.
#import "UIKitInternal.h"

@implementation UITableViewIndex
@synthesize titles = _titles;
@synthesize selectedSection = _selectedSection;
- (void)dealloc {
  [_titles release];
  [super dealloc];
}
- (NSString *)selectedSectionTitle {
  return _selectedSection >= 0 && (NSUInteger)_selectedSection < _titles.count
             ? [_titles objectAtIndex:_selectedSection]
             : nil;
}
- (void)_simSelect:(NSInteger)position {
  _selectedSection = position;
  [self sendActionsForControlEvents:UIControlEventValueChanged];
}
@end
