// The folders page's rules: a folder row's name and the geometry of the
// picture drawn for it from the folder's content.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "core/Geometry.hpp"
#include "lists/InfoValue.hpp"

namespace tessarin::lists {

/// The literal name of the newsstand folder's row, and the "folderType" and
/// nested-list "listType" that mark it.
inline constexpr const char *kNewsstandName = "newsstand";
inline constexpr const char *kNewsstandType = "newsstand";
inline constexpr const char *kNewsstandImage = "NewsstandIconInternational";
inline constexpr const char *kSpringBoardBundle = "/System/Library/CoreServices/SpringBoard.app";

/// A folder row's name: "newsstand" for the newsstand folder, else its default
/// name when it is present, else its display name. A present name that is not a
/// string (the page shows a number as its digits) gives a row without a name, as
/// a folder with neither name does.
std::optional<std::string> folderRowName(const std::optional<std::string> &folderType,
                                         const InfoValue &defaultDisplayName, const InfoValue &displayName);

using PictureRect = tessarin::Rect;

/// The picture: a translucent grey-blue rounded view drawn into a square canvas.
inline constexpr PictureRect kFolderPictureView{0, 2, 58, 58};
inline constexpr double kFolderPictureCanvas = 60;
inline constexpr double kFolderPictureCornerRadius = 13.5;
inline constexpr double kFolderPictureColour[4] = {0.614312, 0.695196, 0.822695, 0.8};
/// Application icons are asked for in this format and scale; a nested
/// newsstand list's icon is redrawn at this size.
inline constexpr int kFolderIconFormat = 8;
inline constexpr double kFolderIconScale = 2.0;
inline constexpr double kNestedNewsstandIconSize = 20;

/// The frame of the icon of the content's element at `index` (0 for the
/// first): a three-by-three grid from (8, 8) with a 15-point step, icons 13
/// points wide. The count is not capped: from the tenth element on, icons go
/// on along the third row (x 53, 68, ...), beyond the canvas.
PictureRect folderIconFrame(size_t index);

/// What an element of a folder's content shows: a string is an application's
/// icon; a nested list of type "newsstand" the newsstand icon; any other nested
/// list an empty cell (the icon request without an identifier gives none); any
/// other element is treated as a nested list.
enum class FolderElement { Application, NewsstandList, OtherList };
FolderElement folderElementKind(bool isString, const std::optional<std::string> &listType);

}  // namespace tessarin::lists
