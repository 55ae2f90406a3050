#import "UIKitInternal.h"

@implementation NSParagraphStyle
@synthesize alignment = _alignment;
@synthesize lineBreakMode = _lineBreakMode;
@synthesize lineSpacing = _lineSpacing;
@synthesize paragraphSpacing = _paragraphSpacing;
+ (NSParagraphStyle *)defaultParagraphStyle {
  return [[[NSParagraphStyle alloc] init] autorelease];
}
- (instancetype)init {
  if ((self = [super init])) _alignment = NSTextAlignmentNatural;
  return self;
}
- (id)copyWithZone:(NSZone *)zone {
  NSParagraphStyle *s = [[NSParagraphStyle allocWithZone:zone] init];
  s->_alignment = _alignment;
  s->_lineBreakMode = _lineBreakMode;
  s->_lineSpacing = _lineSpacing;
  s->_paragraphSpacing = _paragraphSpacing;
  return s;
}
- (id)mutableCopyWithZone:(NSZone *)zone {
  NSMutableParagraphStyle *s = [[NSMutableParagraphStyle allocWithZone:zone] init];
  s.alignment = _alignment;
  s.lineBreakMode = _lineBreakMode;
  s.lineSpacing = _lineSpacing;
  s.paragraphSpacing = _paragraphSpacing;
  return s;
}
@end
