#ifndef UIKIT_UIGRAPHICS_H
#define UIKIT_UIGRAPHICS_H

#import <UIKit/UIImage.h>

UIKIT_EXTERN CGContextRef UIGraphicsGetCurrentContext(void);
UIKIT_EXTERN void UIGraphicsPushContext(CGContextRef context);
UIKIT_EXTERN void UIGraphicsPopContext(void);
UIKIT_EXTERN void UIRectFill(CGRect rect);
UIKIT_EXTERN void UIRectFillUsingBlendMode(CGRect rect, CGBlendMode blendMode);
UIKIT_EXTERN void UIRectFrame(CGRect rect);
UIKIT_EXTERN void UIRectClip(CGRect rect);
UIKIT_EXTERN void UIGraphicsBeginImageContext(CGSize size);
/* A scale of 0 means the main screen's scale. */
UIKIT_EXTERN void UIGraphicsBeginImageContextWithOptions(CGSize size, BOOL opaque, CGFloat scale);
UIKIT_EXTERN UIImage *UIGraphicsGetImageFromCurrentImageContext(void);
UIKIT_EXTERN void UIGraphicsEndImageContext(void);

#endif
