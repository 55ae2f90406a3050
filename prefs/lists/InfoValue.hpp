// A name-like value as a page finds it in a dictionary it does not control (an
// application's Info.plist, SpringBoard's folder answer): absent, a string, or
// something else.
#pragma once

#include <string>
#include <utility>

namespace tessarin::lists {

struct InfoValue {
  enum class Kind { Absent, String, Other };
  Kind kind = Kind::Absent;
  std::string text;  ///< when a string

  static InfoValue absent() { return {}; }
  static InfoValue string(std::string s) { return {Kind::String, std::move(s)}; }
  static InfoValue other() { return {Kind::Other, {}}; }
  bool isString() const { return kind == Kind::String; }
  bool isPresent() const { return kind != Kind::Absent; }
};

}  // namespace tessarin::lists
