#ifndef UIKIT_UISCREEN_H
#define UIKIT_UISCREEN_H

#import <UIKit/UIKitDefines.h>
#import <UIKit/UITraitCollection.h>

/* The device's screen, from the profile's "screen" (width and height in points, scale). */
@interface UIScreen : NSObject <UITraitEnvironment>
+ (UIScreen *)mainScreen;
+ (NSArray *)screens;
@property (nonatomic, readonly) CGRect bounds;
@property (nonatomic, readonly) CGFloat scale;
@property (nonatomic, readonly) CGRect nativeBounds;
@property (nonatomic, readonly) CGFloat nativeScale;
@property (nonatomic) CGFloat brightness;
@property (nonatomic, readonly) UITraitCollection *traitCollection;
@end

#endif
