// The rules' frames as the platform's rectangles.
#pragma once
#import "core/PlatformAPI.h"
#include "appearance/ButtonRules.hpp"

inline CGRect cgRectOf(const tessarin::appearance::Frame &frame) {
  return CGRectMake(frame.x, frame.y, frame.width, frame.height);
}

inline NSString *nsStringOf(std::string_view text) {
  return [[[NSString alloc] initWithBytes:text.data() length:text.size() encoding:NSUTF8StringEncoding] autorelease];
}
