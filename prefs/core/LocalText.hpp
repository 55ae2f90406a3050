// A text the user reads, as the core knows it: its key in the bundle's
// Localizable table and its English text. The shell looks the key up in the
// user's language and shows the English text when the table lacks the key; a
// text without a key (a name) is shown as it stands. The core itself never
// localises: rules that compose a text from texts are handed the shell's lookup.
#pragma once

#include <string>
#include <string_view>

namespace tessarin {

struct LocalText {
  std::string_view key;      ///< empty: a name, shown as it stands in every language
  std::string_view english;  ///< backed by a string literal
};

constexpr bool operator==(const LocalText &a, const LocalText &b) { return a.key == b.key && a.english == b.english; }
constexpr bool operator!=(const LocalText &a, const LocalText &b) { return !(a == b); }
/// Against a plain text: the English text is what is compared.
constexpr bool operator==(const LocalText &a, std::string_view english) { return a.english == english; }
constexpr bool operator!=(const LocalText &a, std::string_view english) { return a.english != english; }

/// The shell's lookup, for the rules that compose texts (a plain function: the
/// core knows no bundle).
using TextLookup = std::string (*)(const LocalText &text);

/// The English text itself: what rules compose when no lookup is given.
std::string englishText(const LocalText &text);

}  // namespace tessarin
