// Search and the section index of a long list of named rows (the applications pages):
// which rows a query finds, and where the index's letters lead.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace tessarin::lists {

/// The rows of a list as search sees them: each row's name and identifier, folded once
/// (foldForSearch), in the list's order.
class ListSearch {
 public:
  void add(std::string_view name, std::string_view identifier);
  size_t size() const { return names_.size(); }

  /// Whether the text asks for anything: it has a word once folded (spaces and invisible
  /// characters alone do not).
  static bool isQuery(std::string_view text);

  /// The rows the query finds, in list order: those whose folded name or identifier holds
  /// each of the query's folded words (words apart from each other, in any order; each in
  /// the name or in the identifier). Every row for a text that is no query.
  std::vector<size_t> matches(std::string_view query) const;

 private:
  std::vector<std::string> names_;
  std::vector<std::string> identifiers_;
};

/// The titles of the section index, top to bottom: "A" to "Z", then "#".
inline constexpr std::string_view kIndexTitles = "ABCDEFGHIJKLMNOPQRSTUVWXYZ#";

/// A run of consecutive rows that stand under the same index letter.
struct IndexRun {
  size_t firstRow;  ///< the run's first row, in list order
  char letter;      ///< 'A' to 'Z' or '#'
};

/// The runs of a list whose rows stand under `letters` (one per row, in list order). The
/// list keeps its order: a letter whose rows are not together (names the device's language
/// sorts apart, such as "Ä" after "Z" in Swedish) has more than one run.
std::vector<IndexRun> indexRuns(std::string_view letters);

/// The run the index's `letter` leads to: the first run of that letter; for a letter without
/// rows, the first run of the nearest letter after it in the index, else of the nearest
/// before it. -1 when there are no runs.
int runForIndexLetter(const std::vector<IndexRun> &runs, char letter);

}  // namespace tessarin::lists
