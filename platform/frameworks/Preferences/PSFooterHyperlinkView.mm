#import <Preferences/PreferencesSimulation.h>

@implementation PSFooterHyperlinkView
@synthesize text = _text;
@synthesize linkRange = _linkRange;
@synthesize target = _target;
@synthesize action = _action;
@synthesize URL = _URL;
@synthesize textLabel = _textLabel;
- (instancetype)initWithSpecifier:(PSSpecifier *)specifier {
  if ((self = [super initWithFrame:CGRectMake(0, 0, [UIScreen mainScreen].bounds.size.width, 44)])) {
    _specifier = [specifier retain];
    id text = [specifier propertyForKey:@"headerFooterHyperlinkButtonTitle"];
    if (![text isKindOfClass:[NSString class]]) text = [specifier propertyForKey:PSFooterTextGroupKey];
    _text = [[text isKindOfClass:[NSString class]] ? text : @"" copy];
    id range = [specifier propertyForKey:@"footerHyperlinkRange"];
    _linkRange = [range isKindOfClass:[NSString class]] ? NSRangeFromString(range) : NSMakeRange(NSNotFound, 0);
    if (_linkRange.location == NSNotFound || NSMaxRange(_linkRange) > _text.length)
      _linkRange = NSMakeRange(NSNotFound, 0);
    id t = [specifier propertyForKey:@"footerHyperlinkTarget"];
    if ([t isKindOfClass:[NSValue class]] && strcmp([t objCType], @encode(id)) == 0) {
      id unboxed = nil;
      [t getValue:&unboxed];
      t = unboxed;
    } else if ([t isKindOfClass:[NSValue class]] && ![t isKindOfClass:[NSNumber class]]) {
      t = [t nonretainedObjectValue];
    }
    _target = t;
    id a = [specifier propertyForKey:@"footerHyperlinkAction"];
    _action = [a isKindOfClass:[NSString class]] ? NSSelectorFromString(a) : NULL;
    id url = [specifier propertyForKey:@"footerHyperlinkURL"];
    if ([url isKindOfClass:[NSString class]]) _URL = [[NSURL URLWithString:url] retain];
    _textLabel = [[UILabel alloc] initWithFrame:CGRectZero];
    _textLabel.numberOfLines = 0;
    _textLabel.font = [UIFont systemFontOfSize:13];
    _textLabel.textColor = [UIColor secondaryLabelColor];
    _textLabel.text = _text;
    [self addSubview:_textLabel];
  }
  return self;
}
- (instancetype)initWithFrame:(CGRect)frame {
  return [self initWithSpecifier:nil];
}
- (void)dealloc {
  [_specifier release];
  [_text release];
  [_URL release];
  [_textLabel release];
  [super dealloc];
}
- (CGFloat)preferredHeightForWidth:(CGFloat)width {
  NSDictionary *attrs = [NSDictionary dictionaryWithObject:_textLabel.font forKey:NSFontAttributeName];
  return [_text boundingRectWithSize:CGSizeMake(width - 30, CGFLOAT_MAX) options:0 attributes:attrs context:nil]
             .size.height +
         17;
}
- (void)layoutSubviews {
  [super layoutSubviews];
  CGRect b = self.bounds;
  _textLabel.frame = CGRectMake(15, 7, MAX(b.size.width - 30, 0), MAX(b.size.height - 17, 0));
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  SimFooterHyperlinkTap(self);
}
@end

BOOL SimFooterHyperlinkTap(PSFooterHyperlinkView *view) {
  if (!view || [[UIApplication sharedApplication] isIgnoringInteractionEvents]) return NO;
  if (view.linkRange.location == NSNotFound) return NO;
  if (view.target && view.action && [view.target respondsToSelector:view.action]) {
    [view.target performSelector:view.action withObject:view];
    return YES;
  }
  if (view.URL) {
    UIApplication *app = [UIApplication sharedApplication];
    if (![app canOpenURL:view.URL]) return NO;
    [app openURL:view.URL options:[NSDictionary dictionary] completionHandler:nil];
    return YES;
  }
  return NO;
}
