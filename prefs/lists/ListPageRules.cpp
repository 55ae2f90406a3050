#include "lists/ListPageRules.hpp"

#include "core/Names.hpp"

namespace tessarin::lists {

namespace {

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  std::string out;
  size_t at = 0;
  while (true) {
    const size_t found = text.find(from, at);
    if (found == std::string_view::npos) break;
    out.append(text.substr(at, found - at));
    out.append(to);
    at = found + from.size();
  }
  out.append(text.substr(at));
  return out;
}

}  // namespace

PaneRow paneRow(std::string_view name, int cellType) {
  if (name == kOwnPaneName) return PaneRow::Skip;
  if (cellType == kGroupCellType) return PaneRow::Group;
  return PaneRow::Switch;
}

std::string rowItem(const std::optional<std::string> &identifier, std::string_view name) {
  return identifier ? *identifier : std::string(name);
}

bool listsToggle(std::string_view switchIdentifier) { return switchIdentifier != kSwitchIdentifier; }

std::string faceIDText(std::string_view row, RowText property, std::string_view text, TextLookup lookup) {
  if (row == kCallerTopRow && property == RowText::Footer) {
    const std::string touchID = lookup(kTouchIDName);
    return touchID.empty() ? std::string(text) : replaceAll(text, touchID, lookup(kFaceIDName));
  }
  // The resource text reads "lifting you finger"; the search keeps its missing "r".
  if (row == kCallerFingerUpRow && property == RowText::Footer) {
    const std::string phrase = lookup(kLiftFingerPhrase);
    if (phrase.empty()) return std::string(text);
    return replaceAll(text, phrase, lookup(kLookAwayPhrase));
  }
  if (row == kCallerHideRow && (property == RowText::Label || property == RowText::Name))
    return lookup(kHideCallerFaceIDTitle);
  return std::string(text);
}

}  // namespace tessarin::lists
