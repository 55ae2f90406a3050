// Readable gtest output for property-list values.
#pragma once

#include <ostream>

#include "core/plist/BinaryPlist.hpp"
#include "core/plist/Value.hpp"

namespace tessarin::plist {
inline void PrintTo(const Value &v, std::ostream *os) {
  const std::string xml = writeXmlPlist(v);
  *os << (xml.empty() ? std::string("<unprintable value>") : xml.substr(0, 600));
}
}  // namespace tessarin::plist
