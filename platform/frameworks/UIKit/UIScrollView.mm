#import "UIKitInternal.h"

@implementation UIScrollView
@synthesize contentSize = _contentSize;
@synthesize contentInset = _contentInset;
@synthesize scrollIndicatorInsets = _scrollIndicatorInsets;
@synthesize delegate = _scrollDelegate;
@synthesize scrollEnabled = _scrollEnabled;
@synthesize bounces = _bounces;
@synthesize alwaysBounceVertical = _alwaysBounceVertical;
@synthesize alwaysBounceHorizontal = _alwaysBounceHorizontal;
@synthesize pagingEnabled = _pagingEnabled;
@synthesize showsVerticalScrollIndicator = _showsVerticalScrollIndicator;
@synthesize showsHorizontalScrollIndicator = _showsHorizontalScrollIndicator;
@synthesize keyboardDismissMode = _keyboardDismissMode;
- (instancetype)initWithFrame:(CGRect)frame {
  if ((self = [super initWithFrame:frame])) {
    _scrollEnabled = YES;
    _bounces = YES;
    _showsVerticalScrollIndicator = YES;
    _showsHorizontalScrollIndicator = YES;
    self.clipsToBounds = YES;
  }
  return self;
}
- (CGPoint)contentOffset {
  return self.bounds.origin;
}
- (void)setContentOffset:(CGPoint)offset {
  CGRect b = self.bounds;
  b.origin = offset;
  self.bounds = b;
  [self setNeedsLayout];  // what is on screen changed
  if ([_scrollDelegate respondsToSelector:@selector(scrollViewDidScroll:)]) [_scrollDelegate scrollViewDidScroll:self];
}
- (void)setContentOffset:(CGPoint)offset animated:(BOOL)animated {
  self.contentOffset = offset;
}
- (void)scrollRectToVisible:(CGRect)rect animated:(BOOL)animated {
  CGRect b = self.bounds;
  if (CGRectContainsRect(b, rect)) return;
  CGPoint o = b.origin;
  if (rect.origin.y < b.origin.y)
    o.y = rect.origin.y;
  else if (CGRectGetMaxY(rect) > CGRectGetMaxY(b))
    o.y = CGRectGetMaxY(rect) - b.size.height;
  self.contentOffset = o;
}
@end
