// The mail composer and the editable list's swipe-to-delete of the stand-in.
#import <MessageUI/MessageUISimulation.h>
#import <Preferences/PreferencesSimulation.h>
#include <Simulator/Simulator.h>

#include "DeviceFixture.h"

@interface UITestMailDelegate : NSObject <MFMailComposeViewControllerDelegate> {
  NSMutableArray *_results;
  NSError *_lastError;
}
@property (nonatomic, retain) NSMutableArray *results;
@property (nonatomic, retain) NSError *lastError;
@end
@implementation UITestMailDelegate
@synthesize results = _results;
@synthesize lastError = _lastError;
- (void)dealloc {
  [_results release];
  [_lastError release];
  [super dealloc];
}
- (void)mailComposeController:(MFMailComposeViewController *)controller
          didFinishWithResult:(MFMailComposeResult)result
                        error:(NSError *)error {
  [_results addObject:[NSNumber numberWithInteger:result]];
  self.lastError = error;
}
@end

// An editable list with one row that refuses editing and two that can be deleted.
@interface UITestEditableList : PSEditableListController {
  NSMutableArray *_events;
}
@property (nonatomic, retain) NSMutableArray *events;
@end
@implementation UITestEditableList
@synthesize events = _events;
- (void)dealloc {
  [_events release];
  [super dealloc];
}
- (NSArray *)specifiers {
  if (!_specifiers) {
    NSMutableArray *rows = [NSMutableArray arrayWithObject:[PSSpecifier groupSpecifierWithName:@"Rows"]];
    for (NSString *name in [NSArray arrayWithObjects:@"Fixed", @"One", @"Two", nil]) {
      PSSpecifier *row = [PSSpecifier preferenceSpecifierNamed:name
                                                        target:self
                                                           set:NULL
                                                           get:NULL
                                                        detail:Nil
                                                          cell:PSLinkCell
                                                          edit:Nil];
      [row setProperty:@"removed:" forKey:@"deletionAction"];
      [rows addObject:row];
    }
    _specifiers = [rows copy];
  }
  return _specifiers;
}
- (UITableViewCellEditingStyle)tableView:(UITableView *)tableView
           editingStyleForRowAtIndexPath:(NSIndexPath *)indexPath {
  return indexPath.row == 0 ? UITableViewCellEditingStyleNone : UITableViewCellEditingStyleDelete;
}
- (BOOL)performDeletionActionForSpecifier:(PSSpecifier *)specifier {
  [_events addObject:[@"page:" stringByAppendingString:specifier.name]];
  return [super performDeletionActionForSpecifier:specifier];
}
- (void)removed:(PSSpecifier *)specifier {
  // The framework runs the row's own action after the row has gone.
  [_events addObject:[NSString stringWithFormat:@"action:%@:%@", specifier.name,
                                                [self containsSpecifier:specifier] ? @"listed" : @"gone"]];
}
@end

// Where a tap recognizer says the touch was, in the window and in its own view.
@interface UITestTapLocation : NSObject {
  CGPoint _inWindow;
  CGPoint _inView;
}
@property (nonatomic) CGPoint inWindow;
@property (nonatomic) CGPoint inView;
@end
@implementation UITestTapLocation
@synthesize inWindow = _inWindow;
@synthesize inView = _inView;
- (void)tapped:(UIGestureRecognizer *)recognizer {
  _inWindow = [recognizer locationInView:nil];
  _inView = [recognizer locationInView:recognizer.view];
}
@end

namespace {

class UIMailEditingTest : public DeviceTest {
 protected:
  void TearDown() override {
    SimMailReset();
    SimSettingsReset();
    DeviceTest::TearDown();
  }
};

TEST_F(UIMailEditingTest, ComposerFollowsTheProfileAndTellsTheDelegate) {
  UseDevice("iphone-ios12");  // no mail account
  EXPECT_FALSE([MFMailComposeViewController canSendMail]);
  EXPECT_EQ([[[MFMailComposeViewController alloc] init] autorelease], nil);

  UseDevice("iphone-faceid-ios16");
  ASSERT_TRUE([MFMailComposeViewController canSendMail]);
  UITestMailDelegate *delegate = [[[UITestMailDelegate alloc] init] autorelease];
  delegate.results = [NSMutableArray array];
  const MFMailComposeResult answers[] = {MFMailComposeResultCancelled, MFMailComposeResultSaved,
                                         MFMailComposeResultFailed, MFMailComposeResultSent};
  for (MFMailComposeResult answer : answers) {
    MFMailComposeViewController *composer = [[[MFMailComposeViewController alloc] init] autorelease];
    ASSERT_NE(composer, nil);
    composer.mailComposeDelegate = delegate;
    [composer setSubject:@"Crash"];
    [composer setToRecipients:[NSArray arrayWithObject:@"help@example.net"]];
    [composer setMessageBody:@"log text" isHTML:NO];
    EXPECT_NSEQ([composer _simSubject], @"Crash");
    EXPECT_FALSE([composer _simMessageBodyIsHTML]);
    EXPECT_TRUE(SimMailComposerFinish(composer, answer));
    EXPECT_EQ(delegate.lastError != nil, answer == MFMailComposeResultFailed);
  }
  EXPECT_NSEQ(delegate.results,
              ([NSArray arrayWithObjects:[NSNumber numberWithInteger:0], [NSNumber numberWithInteger:1],
                                         [NSNumber numberWithInteger:3], [NSNumber numberWithInteger:2], nil]));
  // Only the one sent counts as sent.
  ASSERT_EQ([SimSentMails() count], 1u);
  NSDictionary *sent = [SimSentMails() objectAtIndex:0];
  EXPECT_NSEQ([sent objectForKey:@"to"], [NSArray arrayWithObject:@"help@example.net"]);
  EXPECT_NSEQ([sent objectForKey:@"body"], @"log text");
  EXPECT_FALSE(SimMailComposerFinish(nil, MFMailComposeResultSent));
}

TEST_F(UIMailEditingTest, SwipeToDeleteRemovesTheRowThenRunsItsAction) {
  UseDevice("iphone-faceid-ios16");
  UITestEditableList *list = [[[UITestEditableList alloc] init] autorelease];
  list.events = [NSMutableArray array];
  [list view];
  NSArray *rows = [list specifiers];
  PSSpecifier *fixed = [rows objectAtIndex:1], *one = [rows objectAtIndex:2];

  EXPECT_FALSE(SimEditableListSwipeToDelete(list, fixed));  // its editing style is none
  EXPECT_TRUE([list containsSpecifier:fixed]);

  EXPECT_TRUE(SimEditableListSwipeToDelete(list, one));
  EXPECT_FALSE([list containsSpecifier:one]);
  EXPECT_NSEQ(list.events, ([NSArray arrayWithObjects:@"page:One", @"action:One:gone", nil]));
  EXPECT_EQ([list.table numberOfRowsInSection:0], 2);
  EXPECT_FALSE(SimEditableListSwipeToDelete(list, one));  // no longer listed
}

}  // namespace

TEST_F(UIMailEditingTest, TapLocationsAreInWindowCoordinates) {
  UseDevice("iphone-faceid-ios16");
  UIWindow *window = [[[UIWindow alloc] initWithFrame:CGRectMake(0, 0, 393, 852)] autorelease];
  UIView *row = [[[UIView alloc] initWithFrame:CGRectMake(0, 300, 393, 44)] autorelease];
  UIView *content = [[[UIView alloc] initWithFrame:CGRectMake(50, 0, 300, 44)] autorelease];
  [window addSubview:row];
  [row addSubview:content];
  UITestTapLocation *target = [[[UITestTapLocation alloc] init] autorelease];
  [content addGestureRecognizer:[[[UITapGestureRecognizer alloc] initWithTarget:target
                                                                         action:@selector(tapped:)] autorelease]];

  EXPECT_TRUE(SimTapView(content, CGPointMake(149.9, 10)));
  EXPECT_NEAR(target.inWindow.x, 199.9, 1e-9);
  EXPECT_NEAR(target.inWindow.y, 310, 1e-9);
  EXPECT_NEAR(target.inView.x, 149.9, 1e-9);
  EXPECT_NEAR(target.inView.y, 10, 1e-9);
  window.hidden = YES;
}
