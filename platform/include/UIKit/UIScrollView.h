#ifndef UIKIT_UISCROLLVIEW_H
#define UIKIT_UISCROLLVIEW_H

#import <UIKit/UIView.h>

typedef NS_ENUM(NSInteger, UIScrollViewKeyboardDismissMode) {
  UIScrollViewKeyboardDismissModeNone,
  UIScrollViewKeyboardDismissModeOnDrag,
  UIScrollViewKeyboardDismissModeInteractive,
};

@protocol UIScrollViewDelegate <NSObject>
@optional
- (void)scrollViewDidScroll:(id)scrollView;
@end

/* The content offset is the bounds origin. */
@interface UIScrollView : UIView {
  CGSize _contentSize;
  UIEdgeInsets _contentInset;
  UIEdgeInsets _scrollIndicatorInsets;
  id _scrollDelegate;
  BOOL _scrollEnabled;
  BOOL _bounces;
  BOOL _alwaysBounceVertical;
  BOOL _alwaysBounceHorizontal;
  BOOL _pagingEnabled;
  BOOL _showsVerticalScrollIndicator;
  BOOL _showsHorizontalScrollIndicator;
  UIScrollViewKeyboardDismissMode _keyboardDismissMode;
}
@property (nonatomic) CGPoint contentOffset;
@property (nonatomic) CGSize contentSize;
@property (nonatomic) UIEdgeInsets contentInset;
@property (nonatomic) UIEdgeInsets scrollIndicatorInsets;
@property (nonatomic, assign) id delegate;
@property (nonatomic, getter=isScrollEnabled) BOOL scrollEnabled;
@property (nonatomic) BOOL bounces;
@property (nonatomic) BOOL alwaysBounceVertical;
@property (nonatomic) BOOL alwaysBounceHorizontal;
@property (nonatomic, getter=isPagingEnabled) BOOL pagingEnabled;
@property (nonatomic) BOOL showsVerticalScrollIndicator;
@property (nonatomic) BOOL showsHorizontalScrollIndicator;
@property (nonatomic) UIScrollViewKeyboardDismissMode keyboardDismissMode;
- (void)setContentOffset:(CGPoint)contentOffset animated:(BOOL)animated;
- (void)scrollRectToVisible:(CGRect)rect animated:(BOOL)animated;
@end

#endif
