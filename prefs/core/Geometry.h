// The rules' frames and colours as UIKit values.
#pragma once
#import "core/PlatformAPI.h"
#include "core/Geometry.hpp"

inline CGRect cgRect(const tessarin::Rect &rect) { return CGRectMake(rect.x, rect.y, rect.width, rect.height); }

inline UIColor *uiColor(const tessarin::Rgba &colour) {
  return [UIColor colorWithRed:colour.red green:colour.green blue:colour.blue alpha:colour.alpha];
}
