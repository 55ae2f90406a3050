// Search and the section index of the applications pages: the folding that makes what a
// person types find what the list shows, the matching, and where the index's letters lead.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "lists/ListSearch.hpp"
#include "lists/SearchText.hpp"

using namespace tessarin::lists;

TEST(SearchText, FoldsCaseDiacriticsWidthAndInvisibleCharacters) {
  struct Case {
    const char *text;
    const char *folded;
  };
  const Case cases[] = {
      {"Safari", "safari"},
      {"com.Apple.MobileSafari", "com.apple.mobilesafari"},
      // Latin-1 Supplement, precomposed and decomposed alike.
      {"\u00C0\u00E9\u00EE\u00F5\u00FC\u00C7\u00D1\u00FD\u00FF", "aeioucnyy"},
      {"Cafe\u0301 Cre\u0300me", "cafe creme"},
      // Latin Extended-A and -B, Vietnamese (Latin Extended Additional).
      {"\u0141\u00F3d\u017A \u0160koda \u0150r\u0171", "lodz skoda oru"},
      {"\u0110i\u1EC7n tho\u1EA1i \u01A0n \u01AF\u1EDBc", "dien thoai on uoc"},
      // Letters people type otherwise: strokes, ligatures, sharp s.
      {"\u00D8resund \u00C6bleskiver \u0152uvre Stra\u00DFe \u1E9E \u00DEing \uFB01le",
       "oresund aebleskiver oeuvre strasse ss thing file"},
      // Greek and Cyrillic case and accents.
      {"\u0386\u03A3\u03A9 \u03C2", "\u03B1\u03C3\u03C9 \u03C3"},
      {"\u0401\u041B\u041A\u0410 \u0419", "\u0435\u043B\u043A\u0430 \u0438"},
      // Fullwidth forms are ASCII; the ideographic space a space.
      {"\uFF33\uFF41\uFF46\uFF41\uFF52\uFF49\u3000\uFF11\uFF12\uFF01", "safari 12!"},
      // Direction marks, embeddings, isolates, zero widths, the soft hyphen, BOM: gone.
      {"\u200ESig\u00ADnal\u200F", "signal"},
      {"\u202B\u2067Tele\u200Bgram\u2069\u202C\uFEFF", "telegram"},
      {"Face\u200DTime\u2060\uFE0F", "facetime"},
      // Other spaces are one plain space each.
      {"Google\u00A0Maps\tPro\u2009X", "google maps pro x"},
      // Left alone: other scripts, halfwidth katakana, kana against each other, symbols.
      {"\u30E9\u30A4\u30F3 \uFF97\uFF72\uFF9D \u3089\u3044\u3093",
       "\u30E9\u30A4\u30F3 \uFF97\uFF72\uFF9D \u3089\u3044\u3093"},
      {"\u05D5\u05D5\u05D9\u05D9\u05D6 \u2113 \U0001F600", "\u05D5\u05D5\u05D9\u05D9\u05D6 \u2113 \U0001F600"},
      {"", ""},
  };
  for (const Case &c : cases) EXPECT_EQ(foldForSearch(c.text), c.folded) << c.text;
}

TEST(SearchText, BytesThatAreNotUtf8AreDroppedAndTheRestFolds) {
  const std::string cases[] = {
      std::string("Sa\xFF"
                  "fari"),  // a byte no character starts with
      std::string("Sa\xC3"
                  "fari"),  // a lead byte without its continuation
      std::string("Sa\xE2\x80"
                  "fari"),  // a three-byte character cut short
      std::string("Sa\xC0\xAF"
                  "fari"),  // an overlong form
      std::string("Sa\xED\xA0\x80"
                  "fari"),            // a surrogate
      std::string("Safari\xF0\x9F"),  // cut short at the end
  };
  for (const std::string &text : cases) EXPECT_EQ(foldForSearch(text), "safari");
}

TEST(SearchText, IndexLetters) {
  struct Case {
    const char *name;
    char letter;
  };
  const Case cases[] = {
      {"Safari", 'S'},
      {"safari", 'S'},
      {"\u00C9cole", 'E'},
      {"E\u0301cole", 'E'},
      {"\u00C4rlig", 'A'},
      {"\u00D8resund", 'O'},
      {"\u0141\u00F3d\u017A", 'L'},
      {"\u00DFtrasse", 'S'},
      {"\u00C6ble", 'A'},
      {"\uFF33\uFF49\uFF47\uFF4E\uFF41\uFF4C", 'S'},  // fullwidth
      {"\u200ESignal", 'S'},                          // a left-to-right mark first
      {"\u202B\u2067\u200FWhatsApp", 'W'},
      {"  Maps", 'M'},
      {"1Password", '#'},
      {"\uFF11Password", '#'},
      {"(Beta) Notes", '#'},
      {"\U0001F600 Smile", '#'},
      {"\u0410\u0432\u0438\u0442\u043E", '#'},  // Cyrillic
      {"\u03A9mega", '#'},                      // Greek
      {"\u5FAE\u4FE1", '#'},
      {"", '#'},
      {"\u200E\u200F", '#'},
      {"\xFF"
       "Safari",
       'S'},
  };
  for (const Case &c : cases) EXPECT_EQ(indexLetter(c.name), c.letter) << c.name;
}

TEST(SearchText, BlankNames) {
  for (const char *blank : {"", " ", "\u200E", "\u00A0\u202A\u202C", "\uFEFF\t", "\u3000"})
    EXPECT_TRUE(isBlankName(blank)) << blank;
  for (const char *shown : {"a", " Maps ", "\u200E1", "\U0001F600", "\u0301", "\u00AD-"})
    EXPECT_FALSE(isBlankName(shown)) << shown;
}

namespace {

ListSearch phone() {
  ListSearch search;
  search.add("Safari", "com.apple.mobilesafari");
  search.add("\u00C9cole Directe", "fr.ecole.directe");
  search.add("Google Maps", "com.google.Maps");
  search.add("Maps", "com.apple.Maps");
  search.add("\u200ESignal", "org.whispersystems.signal");
  search.add("Stra\u00DFenbahn", "de.bahn.strasse");
  search.add("\uFF2C\uFF29\uFF2E\uFF25", "jp.naver.line");
  search.add("Untitled", "");
  return search;
}

}  // namespace

TEST(ListSearch, FindsByNameAndIdentifierInListOrder) {
  const ListSearch search = phone();
  struct Case {
    const char *query;
    std::vector<size_t> rows;
  };
  const Case cases[] = {
      {"saf", {0}},
      {"SAFARI", {0}},
      {"safari", {0}},
      {"com.apple.mobilesafari", {0}},
      {"com.apple.", {0, 3}},
      {"maps", {2, 3}},
      {"google maps", {2}},
      {"maps google", {2}},         // words in any order
      {"google  maps ", {2}},       // spaces around and between words
      {"maps apple", {3}},          // one word in the name, one in the identifier
      {"ecole", {1}},               // the name has an accent, the query none
      {"\u00E9cole", {1}},          // and the other way round
      {"E\u0301COLE", {1}},         // decomposed
      {"\uFF53\uFF41\uFF46", {0}},  // fullwidth query
      {"signal", {4}},              // the name's direction mark does not get in the way
      {"\u200Esig", {4}},           // nor the query's
      {"strasse", {5}},
      {"stra\u00DFe", {5}},
      {"line", {6}},      // a fullwidth name
      {"untitled", {7}},  // a row without identifier
      {"zzz", {}},
      {"maps zzz", {}},  // every word must be found
      {".", {0, 1, 2, 3, 4, 5, 6}},
  };
  for (const Case &c : cases) EXPECT_EQ(search.matches(c.query), c.rows) << c.query;
}

TEST(ListSearch, TextWithoutWordsIsNoQuery) {
  for (const char *text : {"", " ", "\u200E", "\u3000\t"}) {
    EXPECT_FALSE(ListSearch::isQuery(text)) << text;
    EXPECT_EQ(phone().matches(text).size(), phone().size()) << text;
  }
  for (const char *text : {"a", " a ", "\u200E1", "#"}) EXPECT_TRUE(ListSearch::isQuery(text)) << text;
}

TEST(IndexRuns, RunsFollowTheListOrder) {
  struct Case {
    const char *letters;
    std::vector<std::pair<size_t, char>> runs;
  };
  const Case cases[] = {
      {"", {}},
      {"A", {{0, 'A'}}},
      {"##AAB", {{0, '#'}, {2, 'A'}, {4, 'B'}}},
      // Swedish puts "Ä" (under A) after Z, and other scripts follow Latin: repeated runs.
      {"#AMZA#", {{0, '#'}, {1, 'A'}, {2, 'M'}, {3, 'Z'}, {4, 'A'}, {5, '#'}}},
  };
  for (const Case &c : cases) {
    std::vector<std::pair<size_t, char>> got;
    for (const IndexRun &run : indexRuns(c.letters)) got.emplace_back(run.firstRow, run.letter);
    EXPECT_EQ(got, c.runs) << c.letters;
  }
}

TEST(IndexRuns, EachIndexLetterLeadsToItsFirstRunOrTheNearestLetter) {
  const std::vector<IndexRun> runs = indexRuns("#BBMZB#");  // runs: # B M Z B #
  struct Case {
    char letter;
    int run;
  };
  const Case cases[] = {
      {'B', 1},                                // the first of B's two runs
      {'M', 2}, {'Z', 3}, {'#', 0}, {'A', 1},  // nothing under A: the next letter with rows
      {'C', 2}, {'N', 3}, {'?', 0},            // anything else stands for "#"
  };
  for (const Case &c : cases) EXPECT_EQ(runForIndexLetter(runs, c.letter), c.run) << c.letter;

  const std::vector<IndexRun> early = indexRuns("ABC");
  EXPECT_EQ(runForIndexLetter(early, 'Q'), 2);  // nothing after Q: the nearest before
  EXPECT_EQ(runForIndexLetter(early, '#'), 2);
  EXPECT_EQ(runForIndexLetter({}, 'A'), -1);
}
