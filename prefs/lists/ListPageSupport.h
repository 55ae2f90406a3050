// What the protection-list pages share beyond the core helpers they re-export:
// bundle images and the icon resizing.
#pragma once
#import "core/PlatformAPI.h"
#import "core/Specifiers.h"
#import "core/SpringBoardRequests.h"
#import "core/Strings.h"
#include "lists/InfoValue.hpp"

// The bundle at a device path (nil when there is none).
NSBundle *deviceBundle(std::string_view path);

// The image of that name in `bundle`, through UIKit's two-argument lookup (the public
// lookup with no trait collection should a system lack it).
UIImage *imageInBundle(NSString *name, NSBundle *bundle);

// A name-like value of a dictionary the page does not control, for the core's name rules.
tessarin::lists::InfoValue nameValue(id object);

// The image redrawn at `size` (points) at the screen's scale.
UIImage *resizedImage(UIImage *image, CGSize size);
