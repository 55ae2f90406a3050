#import "UIKitInternal.h"

// The first responder, one per process as on the device.
static UIResponder *gFirstResponder;

UIResponder *SimUIKitFirstResponder(void) { return gFirstResponder; }

void SimUIKitResetResponders(void) {
  [gFirstResponder release];
  gFirstResponder = nil;
}

@implementation UIResponder
- (UIResponder *)nextResponder {
  return nil;
}
- (BOOL)canBecomeFirstResponder {
  return NO;
}
- (BOOL)canResignFirstResponder {
  return YES;
}
- (BOOL)isFirstResponder {
  return gFirstResponder == self;
}
- (BOOL)becomeFirstResponder {
  if (gFirstResponder == self) return YES;
  if (![self canBecomeFirstResponder]) return NO;
  if (gFirstResponder && ![gFirstResponder canResignFirstResponder]) return NO;
  if (gFirstResponder && ![gFirstResponder resignFirstResponder]) return NO;
  gFirstResponder = [self retain];
  return YES;
}
- (BOOL)resignFirstResponder {
  if (gFirstResponder == self) {
    gFirstResponder = nil;
    [self autorelease];
  }
  return YES;
}
- (void)touchesBegan:(NSSet *)touches withEvent:(UIEvent *)event {
  [[self nextResponder] touchesBegan:touches withEvent:event];
}
- (void)touchesMoved:(NSSet *)touches withEvent:(UIEvent *)event {
  [[self nextResponder] touchesMoved:touches withEvent:event];
}
- (void)touchesEnded:(NSSet *)touches withEvent:(UIEvent *)event {
  [[self nextResponder] touchesEnded:touches withEvent:event];
}
- (void)touchesCancelled:(NSSet *)touches withEvent:(UIEvent *)event {
  [[self nextResponder] touchesCancelled:touches withEvent:event];
}
- (BOOL)canPerformAction:(SEL)action withSender:(id)sender {
  return [self respondsToSelector:action];
}
@end
