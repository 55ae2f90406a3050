#ifndef UIKIT_UIPASTEBOARD_H
#define UIKIT_UIPASTEBOARD_H

#import <UIKit/UIKitDefines.h>

@class UIImage;
@class UIColor;

@interface UIPasteboard : NSObject {
  NSString *_name;
  NSArray *_items;
}
+ (UIPasteboard *)generalPasteboard;
+ (UIPasteboard *)pasteboardWithName:(NSString *)pasteboardName create:(BOOL)create;
@property (nonatomic, readonly) NSString *name;
@property (nonatomic, copy) NSArray *items;
@property (nonatomic, readonly) NSInteger numberOfItems;
@property (nonatomic, copy) NSString *string;
@property (nonatomic, copy) NSArray *strings;
@property (nonatomic, copy) NSURL *URL;
@property (nonatomic, copy) UIImage *image;
@property (nonatomic, readonly) BOOL hasStrings;
@end

#endif
