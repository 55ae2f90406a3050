// Short ways to write the values the core tests feed their rules.
#pragma once

#include <initializer_list>
#include <string>
#include <vector>

#include "core/plist/Value.hpp"

// An array value of strings.
inline tessarin::plist::Value strings(std::initializer_list<const char *> items) {
  tessarin::plist::Value a = tessarin::plist::Value::array();
  for (const char *s : items) a.append(tessarin::plist::Value::string(s));
  return a;
}

// The list of strings a rule is expected to give.
inline std::vector<std::string> list(std::initializer_list<const char *> items) { return {items.begin(), items.end()}; }
