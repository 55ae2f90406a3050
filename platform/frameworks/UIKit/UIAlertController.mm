#import "UIKitInternal.h"

@implementation UIAlertController
@synthesize preferredStyle = _preferredStyle;
@synthesize preferredAction = _preferredAction;
@synthesize message = _message;
+ (instancetype)alertControllerWithTitle:(NSString *)title
                                 message:(NSString *)message
                          preferredStyle:(UIAlertControllerStyle)preferredStyle {
  UIAlertController *a = [[[self alloc] initWithNibName:nil bundle:nil] autorelease];
  a.title = title;
  a.message = message;
  a->_preferredStyle = preferredStyle;
  a.modalPresentationStyle =
      preferredStyle == UIAlertControllerStyleAlert ? UIModalPresentationOverFullScreen : UIModalPresentationPopover;
  return a;
}
- (instancetype)initWithNibName:(NSString *)nibNameOrNil bundle:(NSBundle *)nibBundleOrNil {
  if ((self = [super initWithNibName:nibNameOrNil bundle:nibBundleOrNil])) {
    _actions = [[NSMutableArray alloc] init];
    _textFields = [[NSMutableArray alloc] init];
  }
  return self;
}
- (void)dealloc {
  [_message release];
  [_actions release];
  [_preferredAction release];
  [_textFields release];
  [super dealloc];
}
- (void)addAction:(UIAlertAction *)action {
  if (!action) return;
  if (action.style == UIAlertActionStyleCancel) {
    for (UIAlertAction *a in _actions)
      if (a.style == UIAlertActionStyleCancel) {
        [NSException raise:NSInternalInconsistencyException
                    format:@"UIAlertController can only have one action with a style of UIAlertActionStyleCancel"];
      }
  }
  [_actions addObject:action];
}
- (NSArray *)actions {
  return [NSArray arrayWithArray:_actions];
}
- (void)addTextFieldWithConfigurationHandler:(void (^)(UITextField *))handler {
  UITextField *field = [[[UITextField alloc] initWithFrame:CGRectMake(0, 0, 240, 30)] autorelease];
  [_textFields addObject:field];
  if (handler) handler(field);
}
- (NSArray *)textFields {
  return _textFields.count ? [NSArray arrayWithArray:_textFields] : nil;
}
- (void)loadView {
  UIView *v = [[UIView alloc] initWithFrame:CGRectMake(0, 0, 270, 120)];
  self.view = v;
  [v release];
}
- (void)_dismissAnimated:(BOOL)animated triggeringAction:(UIAlertAction *)action {
  void (^handler)(UIAlertAction *) = action.handler;
  [action retain];
  [self dismissViewControllerAnimated:animated
                           completion:^{
                             if (handler) handler(action);
                             [action release];
                           }];
}
@end
