// "IconColor", the one value both rows of the unlock-button page choose.
#pragma once
#import <Foundation/Foundation.h>
@class UIImage;
#include <cstdint>

// The stored choice, 4 (the blue glyph) when absent or unreadable.
int64_t storedIconColor(void);
// Stores a choice. Posts nothing: the rows post the change signal on every tap themselves.
void storeIconColor(int64_t value);
// An image of the settings bundle's resources, by name (nil when missing).
UIImage *buttonPageImage(NSString *name);
