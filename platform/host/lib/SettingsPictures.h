// The Settings host's pictures: the screen as a PNG file, and the gallery of every page.
#pragma once
#import <Foundation/Foundation.h>

@class SettingsConsole;

// Writes what the screen shows now to `path` (a PNG). `fullPage`: the whole page on top,
// however long; `scale` > 0: at that scale instead of the screen's. Returns nil, or what went wrong.
NSString *SettingsWriteScreenshot(NSString *path, BOOL fullPage, CGFloat scale);

// Opens every page the product has, from its root page (each row, the pages and alerts they
// open, and the rows of those pages in turn) and writes one picture of each into `folder`,
// with `pages.tsv` listing the files and the pages' names. Comes back to the root page.
// Returns what it did, one line per picture.
NSString *SettingsWriteGallery(SettingsConsole *console, NSString *folder);
