#ifndef UIKIT_UITRAITCOLLECTION_H
#define UIKIT_UITRAITCOLLECTION_H

#import <UIKit/UIKitDefines.h>
#import <UIKit/UIDevice.h>

typedef NS_ENUM(NSInteger, UIUserInterfaceStyle) {
  UIUserInterfaceStyleUnspecified,
  UIUserInterfaceStyleLight,
  UIUserInterfaceStyleDark,
};

typedef NS_ENUM(NSInteger, UIUserInterfaceSizeClass) {
  UIUserInterfaceSizeClassUnspecified = 0,
  UIUserInterfaceSizeClassCompact = 1,
  UIUserInterfaceSizeClassRegular = 2,
};

/* Traits of the device in use: style from the profile's "darkMode", idiom from "idiom". */
@interface UITraitCollection : NSObject <NSCopying> {
  UIUserInterfaceStyle _userInterfaceStyle;
  UIUserInterfaceIdiom _userInterfaceIdiom;
  CGFloat _displayScale;
  UIUserInterfaceSizeClass _horizontalSizeClass;
  UIUserInterfaceSizeClass _verticalSizeClass;
}
+ (UITraitCollection *)currentTraitCollection;
+ (UITraitCollection *)traitCollectionWithUserInterfaceStyle:(UIUserInterfaceStyle)userInterfaceStyle;
@property (nonatomic, readonly) UIUserInterfaceStyle userInterfaceStyle;
@property (nonatomic, readonly) UIUserInterfaceIdiom userInterfaceIdiom;
@property (nonatomic, readonly) CGFloat displayScale;
@property (nonatomic, readonly) UIUserInterfaceSizeClass horizontalSizeClass;
@property (nonatomic, readonly) UIUserInterfaceSizeClass verticalSizeClass;
@end

@protocol UITraitEnvironment <NSObject>
@property (nonatomic, readonly) UITraitCollection *traitCollection;
- (void)traitCollectionDidChange:(UITraitCollection *)previousTraitCollection;
@end

#endif
