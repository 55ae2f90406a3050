// Text as the list pages search and index it: folded so that what a person types finds
// what the list shows, whatever the case, accents or width of either.
#pragma once

#include <string>
#include <string_view>

namespace tessarin::lists {

/// The folded form of UTF-8 text, for matching and for the index:
/// - upper case to lower case (full case folding: "ß" and "ẞ" become "ss");
/// - letters with diacritics to their base letters, by their Unicode decomposition, for the
///   Latin-1 Supplement, Latin Extended-A and -B, Latin Extended Additional (Vietnamese),
///   Greek and Cyrillic; letters with strokes and the Latin ligatures to the letters people
///   type for them ("ø" "o", "ł" "l", "đ" "d", "æ" "ae", "œ" "oe", "þ" "th", "ﬁ" "fi");
/// - fullwidth forms (U+FF01 to U+FF5E) to ASCII, the ideographic space to a space;
/// - combining marks dropped, so decomposed and precomposed text fold alike;
/// - invisible characters dropped: direction marks and embeddings (U+200E, U+200F,
///   U+202A to U+202E, U+2066 to U+2069, U+061C), zero-width spaces and joiners, the word
///   joiner, the byte-order mark, the soft hyphen, variation selectors;
/// - every other space (no-break, thin, tabs, line ends) to one ASCII space.
/// Left as they are: halfwidth katakana and hangul, kana against each other, other scripts'
/// letters and case (Armenian, Georgian...), Latin Extended-C to -E, letter-like and enclosed
/// symbols ("ℓ", "Ⓐ") and mathematical letters. Bytes that are not UTF-8 are dropped.
std::string foldForSearch(std::string_view text);

/// The letter a name stands under in the section index: "A" to "Z" for names whose first
/// visible character folds to a Latin letter, "#" for every other name (digits, symbols,
/// other scripts, and names with nothing visible).
char indexLetter(std::string_view name);

/// Whether a name shows nothing: empty, or only spaces and invisible characters.
bool isBlankName(std::string_view name);

}  // namespace tessarin::lists
