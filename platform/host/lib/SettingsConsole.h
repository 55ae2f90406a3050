// The Settings host's command interpreter: one command line in, the outcome and the new
// screen out. Used by the interactive front end, by scripts and by tests in-process.
//
// Commands:
//   tap N                 open a link row, press a button row, follow a footer link
//   tap N left|middle|right one third of a row of three choices (unlock buttons, glyphs)
//   flip N                turn a switch row over
//   switch N on|off       set a switch row
//   alert N | alert TITLE trigger an action of the alert on screen
//   type TEXT             enter a passcode on a passcode page, else TEXT and Return in the focused field
//   back                  go back one page
//   cancel                the bar button of a modal page
//   delete N              swipe row N away on an editable list
//   touch N X             tap row N's cell X points from the screen's left edge
//   share                 the share button of the page (its right bar button)
//   mail send|save|cancel|fail   answer the mail composer on screen
//   pasteboard            print what the general pasteboard holds
//   text N "WORDS"        type into a text row and end editing
//   press TITLE           the page's bar button with that title
//   search WORDS          type WORDS into the page's search field; search alone: its Cancel
//   index L               touch letter L of the page's section index
//   wait SECONDS          let the app run (animations, delayed work)
//   show                  print the screen again
//   quit                  leave
// After each command the run loop runs until nothing is due soon, then the screen is rendered.
#pragma once
#import <Foundation/Foundation.h>

@class SettingsScreen;

@interface SettingsConsole : NSObject {
  SettingsScreen *_screen;
  BOOL _finished;
  double _settleLimit;
}

// The short help printed for unknown commands.
+ (NSString *)helpText;

// The screen as of the last render (renders once if nothing was rendered yet).
- (SettingsScreen *)screen;
// Renders the screen now and returns its text.
- (NSString *)render;

// Runs one command line and returns what it says followed by the new screen. Blank
// lines and lines starting with "#" do nothing and return an empty string.
- (NSString *)perform:(NSString *)line;

// Opens the Settings list's row with this label (the product's entry). NO when absent.
- (BOOL)openEntryNamed:(NSString *)label;

// Runs the main run loop until no timer is due within about a second, at most `limit` seconds.
- (void)settle;

// YES once "quit" ran.
@property (nonatomic, assign) BOOL finished;
// Longest time one settle may take (seconds; default 3).
@property (nonatomic, assign) double settleLimit;
@end
