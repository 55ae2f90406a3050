#import "UIKitInternal.h"

@implementation NSMutableParagraphStyle
@dynamic alignment, lineBreakMode, lineSpacing, paragraphSpacing;
- (void)setAlignment:(NSTextAlignment)a {
  _alignment = a;
}
- (void)setLineBreakMode:(NSLineBreakMode)m {
  _lineBreakMode = m;
}
- (void)setLineSpacing:(CGFloat)s {
  _lineSpacing = s;
}
- (void)setParagraphSpacing:(CGFloat)s {
  _paragraphSpacing = s;
}
@end
