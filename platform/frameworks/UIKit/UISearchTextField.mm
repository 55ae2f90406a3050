// The search bar's text field (public from iOS 13; a private UITextField subclass before).
#import "UIKitInternal.h"

@implementation UISearchTextField
@end
