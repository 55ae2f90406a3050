#ifndef UIKIT_UIFONT_H
#define UIKIT_UIFONT_H

#import <UIKit/UIKitDefines.h>

typedef CGFloat UIFontWeight;
UIKIT_EXTERN const UIFontWeight UIFontWeightUltraLight;
UIKIT_EXTERN const UIFontWeight UIFontWeightThin;
UIKIT_EXTERN const UIFontWeight UIFontWeightLight;
UIKIT_EXTERN const UIFontWeight UIFontWeightRegular;
UIKIT_EXTERN const UIFontWeight UIFontWeightMedium;
UIKIT_EXTERN const UIFontWeight UIFontWeightSemibold;
UIKIT_EXTERN const UIFontWeight UIFontWeightBold;
UIKIT_EXTERN const UIFontWeight UIFontWeightHeavy;
UIKIT_EXTERN const UIFontWeight UIFontWeightBlack;

typedef NSString *UIFontTextStyle;
UIKIT_EXTERN NSString *const UIFontTextStyleTitle1;
UIKIT_EXTERN NSString *const UIFontTextStyleHeadline;
UIKIT_EXTERN NSString *const UIFontTextStyleBody;
UIKIT_EXTERN NSString *const UIFontTextStyleCallout;
UIKIT_EXTERN NSString *const UIFontTextStyleSubheadline;
UIKIT_EXTERN NSString *const UIFontTextStyleFootnote;
UIKIT_EXTERN NSString *const UIFontTextStyleCaption1;

/* A font; metrics are approximations from the point size. */
@interface UIFont : NSObject <NSCopying> {
  NSString *_fontName;
  CGFloat _pointSize;
  UIFontWeight _weight;
}
+ (UIFont *)preferredFontForTextStyle:(NSString *)style;
+ (UIFont *)fontWithName:(NSString *)fontName size:(CGFloat)fontSize;
+ (UIFont *)systemFontOfSize:(CGFloat)fontSize;
+ (UIFont *)boldSystemFontOfSize:(CGFloat)fontSize;
+ (UIFont *)italicSystemFontOfSize:(CGFloat)fontSize;
+ (UIFont *)systemFontOfSize:(CGFloat)fontSize weight:(UIFontWeight)weight;
+ (UIFont *)monospacedDigitSystemFontOfSize:(CGFloat)fontSize weight:(UIFontWeight)weight;
+ (CGFloat)labelFontSize;
+ (CGFloat)buttonFontSize;
+ (CGFloat)smallSystemFontSize;
+ (CGFloat)systemFontSize;
- (UIFont *)fontWithSize:(CGFloat)fontSize;
@property (nonatomic, readonly) NSString *familyName;
@property (nonatomic, readonly) NSString *fontName;
@property (nonatomic, readonly) CGFloat pointSize;
@property (nonatomic, readonly) CGFloat ascender;
@property (nonatomic, readonly) CGFloat descender;
@property (nonatomic, readonly) CGFloat capHeight;
@property (nonatomic, readonly) CGFloat xHeight;
@property (nonatomic, readonly) CGFloat lineHeight;
@property (nonatomic, readonly) CGFloat leading;
@end

@interface NSString (UIStringDrawing)
/* Approximate size of the text in one line with the font of NSFontAttributeName. */
- (CGSize)sizeWithAttributes:(NSDictionary *)attrs;
- (CGRect)boundingRectWithSize:(CGSize)size
                       options:(NSInteger)options
                    attributes:(NSDictionary *)attributes
                       context:(id)context;
- (void)drawAtPoint:(CGPoint)point withAttributes:(NSDictionary *)attrs;
- (void)drawInRect:(CGRect)rect withAttributes:(NSDictionary *)attrs;
@end

#endif
