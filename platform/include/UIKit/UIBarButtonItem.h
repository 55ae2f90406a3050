#ifndef UIKIT_UIBARBUTTONITEM_H
#define UIKIT_UIBARBUTTONITEM_H

#import <UIKit/UIKitDefines.h>
#import <UIKit/UIControl.h>

@class UIImage;
@class UIColor;
@class UIView;

typedef NS_ENUM(NSInteger, UIBarButtonItemStyle) {
  UIBarButtonItemStylePlain,
  UIBarButtonItemStyleBordered,
  UIBarButtonItemStyleDone,
};

typedef NS_ENUM(NSInteger, UIBarButtonSystemItem) {
  UIBarButtonSystemItemDone,
  UIBarButtonSystemItemCancel,
  UIBarButtonSystemItemEdit,
  UIBarButtonSystemItemSave,
  UIBarButtonSystemItemAdd,
  UIBarButtonSystemItemFlexibleSpace,
  UIBarButtonSystemItemFixedSpace,
  UIBarButtonSystemItemCompose,
  UIBarButtonSystemItemReply,
  UIBarButtonSystemItemAction,
  UIBarButtonSystemItemOrganize,
  UIBarButtonSystemItemBookmarks,
  UIBarButtonSystemItemSearch,
  UIBarButtonSystemItemRefresh,
  UIBarButtonSystemItemStop,
  UIBarButtonSystemItemCamera,
  UIBarButtonSystemItemTrash,
  UIBarButtonSystemItemPlay,
  UIBarButtonSystemItemPause,
  UIBarButtonSystemItemRewind,
  UIBarButtonSystemItemFastForward,
  UIBarButtonSystemItemUndo,
  UIBarButtonSystemItemRedo,
  UIBarButtonSystemItemPageCurl,
  UIBarButtonSystemItemClose,
};

@interface UIBarItem : NSObject {
  NSString *_title;
  UIImage *_image;
  BOOL _enabled;
  NSInteger _tag;
}
@property (nonatomic, copy) NSString *title;
@property (nonatomic, retain) UIImage *image;
@property (nonatomic, getter=isEnabled) BOOL enabled;
@property (nonatomic) NSInteger tag;
- (void)setTitleTextAttributes:(NSDictionary *)attributes forState:(UIControlState)state;
@end

@interface UIBarButtonItem : UIBarItem {
  UIBarButtonItemStyle _style;
  id _target;
  SEL _action;
  UIView *_customView;
  UIColor *_tintColor;
  CGFloat _width;
  NSInteger _systemItem;
}
- (instancetype)initWithImage:(UIImage *)image style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action;
- (instancetype)initWithTitle:(NSString *)title style:(UIBarButtonItemStyle)style target:(id)target action:(SEL)action;
- (instancetype)initWithBarButtonSystemItem:(UIBarButtonSystemItem)systemItem target:(id)target action:(SEL)action;
- (instancetype)initWithCustomView:(UIView *)customView;
@property (nonatomic) UIBarButtonItemStyle style;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, retain) UIView *customView;
@property (nonatomic, retain) UIColor *tintColor;
@property (nonatomic) CGFloat width;
@end

#endif
