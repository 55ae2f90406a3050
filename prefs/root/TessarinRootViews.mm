#import "root/TessarinRootViews.h"
#import "core/PreferenceStore.h"
#include "root/RootViews.hpp"

namespace {

namespace views = tessarin::root;

UIColor *colorOf(const views::Rgba &rgba) {
  return [UIColor colorWithRed:rgba.red green:rgba.green blue:rgba.blue alpha:rgba.alpha];
}

CGRect rectOf(const views::Rect &rect) { return CGRectMake(rect.x, rect.y, rect.width, rect.height); }

// The cell's separator is a private property of the platform cell; skipped where absent.
void clearSeparator(UITableViewCell *cell) {
  SEL setter = @selector(setSeparatorColor:);
  if ([cell respondsToSelector:setter]) [cell performSelector:setter withObject:[UIColor clearColor]];
}

}  // namespace

@implementation TessarinTrustedWiFiWarningCell

- (void)layoutSubviews {
  [super layoutSubviews];
  [self setBackgroundColor:colorOf(views::warning_cell::kBackground)];
  clearSeparator(self);
  UILabel *label = [self textLabel];
  [label setTextAlignment:(NSTextAlignment)views::warning_cell::kAlignment];
  [label setBackgroundColor:[UIColor clearColor]];
  [label setTextColor:colorOf(views::warning_cell::kText)];
  [label setFont:[UIFont systemFontOfSize:views::warning_cell::kFontSize]];
  [label setNumberOfLines:views::warning_cell::kNumberOfLines];
  [label setFrame:rectOf(views::warning_cell::labelFrame([self frame].size.width, gracePeriodIsActive()))];
}

@end

@implementation TessarinCreditsCell

- (void)layoutSubviews {
  [super layoutSubviews];
  [self setBackgroundColor:colorOf(views::credits_cell::kBackground)];
  clearSeparator(self);
  UILabel *label = [self textLabel];
  [label setBackgroundColor:[UIColor clearColor]];
  [label setTextColor:colorOf(views::credits_cell::kText)];
  [label setFont:[UIFont systemFontOfSize:views::credits_cell::kFontSize]];
}

@end

@implementation TessarinColorCell

- (instancetype)initWithStyle:(UITableViewCellStyle)style
              reuseIdentifier:(NSString *)reuseIdentifier
                    specifier:(PSSpecifier *)specifier {
  if ((self = [super initWithStyle:style reuseIdentifier:reuseIdentifier specifier:specifier])) {
    id control = [self control];
    if ([control isKindOfClass:[UISwitch class]])
      [(UISwitch *)control setOnTintColor:colorOf(views::color_cell::kSwitchOnTint)];
  }
  return self;
}

@end

@implementation TessarinSwitchCell

- (void)setValue:(id)value {
  [super setValue:value];
  BOOL on = [value respondsToSelector:@selector(boolValue)] && [value boolValue];
  UIImageView *icon = [self respondsToSelector:@selector(iconImageView)] ? [self iconImageView] : [self imageView];
  [icon setAlpha:views::switch_cell::iconAlpha(on)];
}

@end

@implementation TessarinLabelView

@synthesize specifier = _specifier;
@synthesize label = _label;

- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
  CGFloat width = 0;
  id target = [specifier target];
  if ([target isKindOfClass:[UIViewController class]]) width = [[(UIViewController *)target view] frame].size.width;
  if ((self = [super initWithFrame:CGRectMake(0, 0, width, views::label_view::kPreferredHeight)])) {
    [self setSpecifier:specifier];
    [self setBackgroundColor:colorOf(views::label_view::kBackground)];
    UILabel *label = [[UILabel alloc] initWithFrame:rectOf(views::label_view::labelFrame(width))];
    [label setBackgroundColor:[UIColor clearColor]];
    [label setTextAlignment:(NSTextAlignment)views::label_view::kAlignment];
    [label setTextColor:colorOf(views::label_view::kText)];
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
  [_label setFrame:rectOf(views::label_view::labelFrame([self frame].size.width))];
}

- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  id target = [_specifier target];
  SEL action = [_specifier buttonAction];
  if (target == nil || action == NULL || ![target respondsToSelector:action]) return;
  [target performSelector:action withObject:self afterDelay:views::label_view::kActionDelay];
}

@end

@implementation TessarinHightlightView

+ (Class)layerClass {
  return [CAShapeLayer class];
}

- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    CAShapeLayer *layer = (CAShapeLayer *)[self layer];
    [layer setStrokeColor:[colorOf(views::highlight_view::kStroke) CGColor]];
    [layer setFillColor:NULL];
    NSMutableArray *dashes = [NSMutableArray array];
    for (double length : views::highlight_view::kDashPattern) [dashes addObject:@(length)];
    [layer setLineDashPattern:dashes];
  }
  return self;
}

- (void)layoutSubviews {
  [super layoutSubviews];
  CAShapeLayer *layer = (CAShapeLayer *)[self layer];
  CGRect bounds = [self bounds];
  CGPathRef path = CGPathCreateWithRect(bounds, NULL);
  [layer setPath:path];
  CGPathRelease(path);
  [layer setFrame:bounds];
}

@end
