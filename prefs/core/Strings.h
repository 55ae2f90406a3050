// Strings between the C++ rules (UTF-8 std::string) and Foundation.
#pragma once
#import <Foundation/Foundation.h>

#include <optional>
#include <string>
#include <string_view>

// The text as an NSString (autoreleased); nil when it is not valid UTF-8.
NSString *nsString(std::string_view text);
// As nsString, but the empty string where that gives nil: for values that must be strings.
NSString *nsStringOrEmpty(std::string_view text);
// The UTF-8 of a string; empty for nil and for anything that is not a string.
std::string stdString(id object);
// The UTF-8 of a string; nothing for nil and for anything that is not a string.
std::optional<std::string> utf8String(id object);
