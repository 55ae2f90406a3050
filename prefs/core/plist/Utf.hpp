// UTF-8 / UTF-16 helpers for the property-list coders.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::plist {

/// Appends the UTF-8 form of a code point (which must be a scalar value).
void appendUtf8(std::string &out, uint32_t codePoint);

/// Decodes one UTF-8 sequence at s[pos]; on success stores the code point,
/// advances pos and returns true. Rejects overlong forms, surrogates and
/// values above U+10FFFF.
bool nextUtf8(std::string_view s, size_t &pos, uint32_t &codePoint);

bool isValidUtf8(std::string_view s);

/// True when every byte is below 0x80.
bool isAscii(std::string_view s);

/// UTF-8 to UTF-16 code units; false when the input is not valid UTF-8.
bool utf8ToUtf16(std::string_view s, std::vector<uint16_t> &out);

}  // namespace tessarin::plist
