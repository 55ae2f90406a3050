// Text attribute names.
#import "UIKitInternal.h"

NSString *const NSFontAttributeName = @"NSFont";
NSString *const NSParagraphStyleAttributeName = @"NSParagraphStyle";
NSString *const NSForegroundColorAttributeName = @"NSColor";
NSString *const NSBackgroundColorAttributeName = @"NSBackgroundColor";
NSString *const NSUnderlineStyleAttributeName = @"NSUnderline";
NSString *const NSStrikethroughStyleAttributeName = @"NSStrikethrough";
NSString *const NSLinkAttributeName = @"NSLink";
NSString *const NSKernAttributeName = @"NSKern";
