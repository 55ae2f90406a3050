#ifndef PREFERENCES_PSFOOTERHYPERLINKVIEW_H
#define PREFERENCES_PSFOOTERHYPERLINKVIEW_H

#import <UIKit/UIKit.h>
#import <Preferences/PSHeaderFooterView.h>

@class PSSpecifier;

/* A group footer whose text ("headerFooterHyperlinkButtonTitle") has a link over
   "footerHyperlinkRange" (an NSStringFromRange text); tapping the link sends
   "footerHyperlinkAction" to "footerHyperlinkTarget" (an object, or an NSValue holding one)
   with the view as argument. */
@interface PSFooterHyperlinkView : UIView <PSHeaderFooterView> {
  PSSpecifier *_specifier;
  UILabel *_textLabel;
  NSString *_text;
  NSRange _linkRange;
  id _target;
  SEL _action;
  NSURL *_URL;
}
@property (nonatomic, readonly) NSString *text;
@property (nonatomic, readonly) NSRange linkRange;
@property (nonatomic, assign) id target;
@property (nonatomic) SEL action;
@property (nonatomic, retain) NSURL *URL;
@property (nonatomic, readonly) UILabel *textLabel;
@end

#endif
