// "IconColor", the one value both rows of the unlock-button page choose.
#pragma once
#import <Foundation/Foundation.h>
@class UIImage;
#include <cstdint>
#include <optional>

// The stored choice, 4 (the blue glyph) when absent or unreadable.
int64_t storedIconColor(void);
// What a tap on either row leaves behind: a chosen icon is stored, and the change
// signal is posted whether or not the tap chose one.
void recordIconTap(std::optional<int64_t> choice);
// An image of the settings bundle's resources, by name (nil when missing).
UIImage *buttonPageImage(NSString *name);
