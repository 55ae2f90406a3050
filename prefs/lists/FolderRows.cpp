#include "lists/FolderRows.hpp"

namespace tessarin::lists {

std::optional<std::string> folderRowName(const std::optional<std::string> &folderType,
                                         const InfoValue &defaultDisplayName, const InfoValue &displayName) {
  if (folderType && *folderType == kNewsstandType) return std::string(kNewsstandName);
  const InfoValue &name = defaultDisplayName.isPresent() ? defaultDisplayName : displayName;
  if (!name.isString()) return std::nullopt;
  return name.text;
}

PictureRect folderIconFrame(size_t index) {
  constexpr double origin = 8, step = 15, side = 13;
  // The drawing walks x by one step per icon and starts a new row after the
  // third and the sixth only.
  const size_t row = index < 3 ? 0 : index < 6 ? 1 : 2;
  const size_t column = index - row * 3;
  return {origin + step * static_cast<double>(column), origin + step * static_cast<double>(row), side, side};
}

FolderElement folderElementKind(bool isString, const std::optional<std::string> &listType) {
  if (isString) return FolderElement::Application;
  if (listType && *listType == kNewsstandType) return FolderElement::NewsstandList;
  return FolderElement::OtherList;
}

}  // namespace tessarin::lists
