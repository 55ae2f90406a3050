#include "lists/ListSearch.hpp"

#include "lists/SearchText.hpp"

namespace tessarin::lists {

namespace {

std::vector<std::string> words(std::string_view text) {
  std::vector<std::string> found;
  const std::string folded = foldForSearch(text);
  size_t at = 0;
  while (at < folded.size()) {
    const size_t start = folded.find_first_not_of(' ', at);
    if (start == std::string::npos) break;
    const size_t end = folded.find(' ', start);
    found.push_back(folded.substr(start, end == std::string::npos ? std::string::npos : end - start));
    at = end == std::string::npos ? folded.size() : end;
  }
  return found;
}

// The letter's place in the index (A to Z, then #).
size_t indexPlace(char letter) {
  const size_t place = kIndexTitles.find(letter);
  return place == std::string_view::npos ? kIndexTitles.size() - 1 : place;
}

}  // namespace

void ListSearch::add(std::string_view name, std::string_view identifier) {
  names_.push_back(foldForSearch(name));
  identifiers_.push_back(foldForSearch(identifier));
}

bool ListSearch::isQuery(std::string_view text) { return !words(text).empty(); }

std::vector<size_t> ListSearch::matches(std::string_view query) const {
  const std::vector<std::string> wanted = words(query);
  std::vector<size_t> found;
  for (size_t row = 0; row < names_.size(); ++row) {
    bool all = true;
    for (const std::string &word : wanted) {
      if (names_[row].find(word) == std::string::npos && identifiers_[row].find(word) == std::string::npos) {
        all = false;
        break;
      }
    }
    if (all) found.push_back(row);
  }
  return found;
}

std::vector<IndexRun> indexRuns(std::string_view letters) {
  std::vector<IndexRun> runs;
  for (size_t row = 0; row < letters.size(); ++row)
    if (runs.empty() || runs.back().letter != letters[row]) runs.push_back({row, letters[row]});
  return runs;
}

int runForIndexLetter(const std::vector<IndexRun> &runs, char letter) {
  const size_t wanted = indexPlace(letter);
  int after = -1, before = -1;
  for (size_t i = 0; i < runs.size(); ++i) {
    const size_t place = indexPlace(runs[i].letter);
    if (place == wanted) return static_cast<int>(i);
    if (place > wanted && (after < 0 || place < indexPlace(runs[after].letter))) after = static_cast<int>(i);
    if (place < wanted && (before < 0 || place > indexPlace(runs[before].letter))) before = static_cast<int>(i);
  }
  return after >= 0 ? after : before;
}

}  // namespace tessarin::lists
