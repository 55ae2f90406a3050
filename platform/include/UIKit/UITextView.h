#ifndef UIKIT_UITEXTVIEW_H
#define UIKIT_UITEXTVIEW_H

#import <UIKit/UIScrollView.h>
#import <UIKit/NSText.h>

@interface UITextView : UIScrollView <UIKeyInput> {
  NSString *_text;
  id _font;
  id _textColor;
  NSTextAlignment _textAlignment;
  BOOL _editable;
  BOOL _selectable;
}
@property (nonatomic, copy) NSString *text;
@property (nonatomic, retain) id font;
@property (nonatomic, retain) id textColor;
@property (nonatomic) NSTextAlignment textAlignment;
@property (nonatomic, getter=isEditable) BOOL editable;
@property (nonatomic, getter=isSelectable) BOOL selectable;
@end

#endif
