// The host's "icons" command: every numbered row of the screen with its switch state and
// the icon it carries, read back from the image (what a drawn picture holds and where).
#pragma once
#import <Foundation/Foundation.h>

@class SettingsScreen;

// One line per numbered row: "[N] Name [on] icon: ...".
NSString *SettingsRowIconsReport(SettingsScreen *screen);
// What an image shows: its file or icon name; for a drawn image, the images drawn into it
// with their places (and whether the canvas cuts them), clipping and white tint.
NSString *SettingsImageSummary(id image);
