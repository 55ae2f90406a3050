#include "core/plist/Utf.hpp"

namespace tessarin::plist {

void appendUtf8(std::string &out, uint32_t cp) {
  if (cp < 0x80) {
    out.push_back(static_cast<char>(cp));
  } else if (cp < 0x800) {
    out.push_back(static_cast<char>(0xC0 | (cp >> 6)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  } else if (cp < 0x10000) {
    out.push_back(static_cast<char>(0xE0 | (cp >> 12)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  } else {
    out.push_back(static_cast<char>(0xF0 | (cp >> 18)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 12) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | ((cp >> 6) & 0x3F)));
    out.push_back(static_cast<char>(0x80 | (cp & 0x3F)));
  }
}

bool nextUtf8(std::string_view s, size_t &pos, uint32_t &cp) {
  if (pos >= s.size()) return false;
  const auto b0 = static_cast<uint8_t>(s[pos]);
  if (b0 < 0x80) {
    cp = b0;
    ++pos;
    return true;
  }
  size_t len;
  uint32_t min;
  if ((b0 & 0xE0) == 0xC0) {
    len = 2;
    cp = b0 & 0x1F;
    min = 0x80;
  } else if ((b0 & 0xF0) == 0xE0) {
    len = 3;
    cp = b0 & 0x0F;
    min = 0x800;
  } else if ((b0 & 0xF8) == 0xF0) {
    len = 4;
    cp = b0 & 0x07;
    min = 0x10000;
  } else {
    return false;
  }
  if (s.size() - pos < len) return false;
  for (size_t i = 1; i < len; ++i) {
    const auto b = static_cast<uint8_t>(s[pos + i]);
    if ((b & 0xC0) != 0x80) return false;
    cp = (cp << 6) | (b & 0x3F);
  }
  if (cp < min || cp > 0x10FFFF || (cp >= 0xD800 && cp <= 0xDFFF)) return false;
  pos += len;
  return true;
}

bool isValidUtf8(std::string_view s) {
  size_t pos = 0;
  uint32_t cp;
  while (pos < s.size())
    if (!nextUtf8(s, pos, cp)) return false;
  return true;
}

bool isAscii(std::string_view s) {
  for (char c : s)
    if (static_cast<uint8_t>(c) >= 0x80) return false;
  return true;
}

bool utf8ToUtf16(std::string_view s, std::vector<uint16_t> &out) {
  out.clear();
  out.reserve(s.size());
  size_t pos = 0;
  uint32_t cp;
  while (pos < s.size()) {
    if (!nextUtf8(s, pos, cp)) return false;
    if (cp >= 0x10000) {
      cp -= 0x10000;
      out.push_back(static_cast<uint16_t>(0xD800 | (cp >> 10)));
      out.push_back(static_cast<uint16_t>(0xDC00 | (cp & 0x3FF)));
    } else {
      out.push_back(static_cast<uint16_t>(cp));
    }
  }
  return true;
}

}  // namespace tessarin::plist
