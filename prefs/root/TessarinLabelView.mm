#import "root/TessarinLabelView.h"
#import "core/Geometry.h"
#include "root/RootViews.hpp"

namespace views = tessarin::root;

@implementation TessarinLabelView

@synthesize specifier = _specifier;
@synthesize label = _label;

- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
  CGFloat width = 0;
  id target = [specifier target];
  if ([target isKindOfClass:[UIViewController class]]) width = [[(UIViewController *)target view] frame].size.width;
  if ((self = [super initWithFrame:CGRectMake(0, 0, width, views::label_view::kPreferredHeight)])) {
    [self setSpecifier:specifier];
    [self setBackgroundColor:uiColor(views::label_view::kBackground)];
    UILabel *label = [[UILabel alloc] initWithFrame:cgRect(views::label_view::labelFrame(width))];
    [label setBackgroundColor:[UIColor clearColor]];
    [label setTextAlignment:(NSTextAlignment)views::label_view::kAlignment];
    [label setTextColor:uiColor(views::label_view::kText)];
    id text = [specifier propertyForKey:@(views::label_view::kTextProperty.data())];
    [label setText:[text isKindOfClass:[NSString class]] ? text : nil];
    [label setUserInteractionEnabled:YES];
    [self setLabel:label];
    [self addSubview:label];
    [label release];
  }
  return self;
}

- (void)dealloc {
  [_specifier release];
  [_label release];
  [super dealloc];
}

- (CGFloat)preferredHeightForWidth:(CGFloat)width {
  return views::label_view::kPreferredHeight;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  [_label setFrame:cgRect(views::label_view::labelFrame([self frame].size.width))];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  id target = [_specifier target];
  SEL action = [_specifier buttonAction];
  if (target == nil || action == NULL || ![target respondsToSelector:action]) return;
  [target performSelector:action withObject:self afterDelay:views::label_view::kActionDelay];
}

@end
