/* UIKit's text attribute names and paragraph styles. */
#ifndef UIKIT_NSATTRIBUTEDSTRING_H
#define UIKIT_NSATTRIBUTEDSTRING_H

#import <UIKit/NSText.h>

UIKIT_EXTERN NSString *const NSFontAttributeName;
UIKIT_EXTERN NSString *const NSParagraphStyleAttributeName;
UIKIT_EXTERN NSString *const NSForegroundColorAttributeName;
UIKIT_EXTERN NSString *const NSBackgroundColorAttributeName;
UIKIT_EXTERN NSString *const NSUnderlineStyleAttributeName;
UIKIT_EXTERN NSString *const NSStrikethroughStyleAttributeName;
UIKIT_EXTERN NSString *const NSLinkAttributeName;
UIKIT_EXTERN NSString *const NSKernAttributeName;

typedef NS_ENUM(NSInteger, NSUnderlineStyle) {
  NSUnderlineStyleNone = 0x00,
  NSUnderlineStyleSingle = 0x01,
  NSUnderlineStyleThick = 0x02,
  NSUnderlineStyleDouble = 0x09,
};

@interface NSParagraphStyle : NSObject <NSCopying, NSMutableCopying> {
  NSTextAlignment _alignment;
  NSLineBreakMode _lineBreakMode;
  CGFloat _lineSpacing;
  CGFloat _paragraphSpacing;
}
+ (NSParagraphStyle *)defaultParagraphStyle;
@property (nonatomic, readonly) NSTextAlignment alignment;
@property (nonatomic, readonly) NSLineBreakMode lineBreakMode;
@property (nonatomic, readonly) CGFloat lineSpacing;
@property (nonatomic, readonly) CGFloat paragraphSpacing;
@end

@interface NSMutableParagraphStyle : NSParagraphStyle
@property (nonatomic) NSTextAlignment alignment;
@property (nonatomic) NSLineBreakMode lineBreakMode;
@property (nonatomic) CGFloat lineSpacing;
@property (nonatomic) CGFloat paragraphSpacing;
@end

#endif
