// Property-list objects to and from the core's value type.
#pragma once
#import <Foundation/Foundation.h>
#include <optional>
#include "core/plist/Value.hpp"

// An autoreleased Foundation object for the value.
id objectFromPlistValue(const tessarin::plist::Value &value);
// The value of a property-list object; nothing for nil or any other class.
std::optional<tessarin::plist::Value> plistValueFromObject(id object);
