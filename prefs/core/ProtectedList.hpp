// Changing one entry of a list-valued preference.
#pragma once

#include <optional>
#include <string_view>

#include "core/plist/Value.hpp"

namespace tessarin {

/// What one switch of a protected list does to the stored list. Switching on appends the
/// item when no entry is that string and leaves the stored value alone when one is;
/// switching off removes every entry that is that string and always stores, even when
/// nothing was removed. Every switch is announced, whether it stored or not.
///
/// The list is edited as the page's mutable copy of the stored array would be: entries
/// that are not strings (a number, a dictionary another version wrote) stay where they
/// are, since a switch must not lose what it does not understand. A stored value that is
/// not an array cannot be edited as a list and counts as empty.
///
/// A row with no item (an application without an identifier, a folder without a name)
/// switches nothing, yet the rule runs as for an item that is never there: the list is
/// stored unchanged and the change announced.
struct ProtectedListEdit {
  bool store;         ///< write `list` back under the list's key
  plist::Value list;  ///< the array to write (the current list when not storing)
};
ProtectedListEdit protectedListEdit(const plist::Value *stored, std::optional<std::string_view> item, bool on);

/// Whether one of the stored list's string entries is the item; anything that is not an
/// array holds nothing.
bool protectedListContains(const plist::Value *stored, std::string_view item);

}  // namespace tessarin
