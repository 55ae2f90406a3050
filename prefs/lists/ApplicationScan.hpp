// Which installed applications the applications pages list, and under which
// name: the four directories scanned, the bundles found in each, the name rule
// and the filter by the identifiers SpringBoard offers.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <unordered_set>
#include <vector>

#include "lists/InfoValue.hpp"

namespace tessarin::lists {

/// The scanned directories, in scan order.
enum class AppSource {
  Applications,      // "/Applications": every entry is a bundle
  LegacyContainers,  // "/private/var/mobile/Applications/": containers of bundles
  Binpack,           // "/private/var/binpack/Applications/": every entry is a bundle
  ContainerRoot,     // the bundle container root: containers of bundles, own name rules
};
inline constexpr AppSource kAppSources[] = {AppSource::Applications, AppSource::LegacyContainers, AppSource::Binpack,
                                            AppSource::ContainerRoot};

inline constexpr const char *kContainerRoot = "/var/containers/Bundle/Application";
inline constexpr const char *kContainerRootFallback = "/var/mobile/Containers/Bundle/Application";

/// The directory a source reads; the container root is the first of its two
/// paths when that exists.
std::string sourceDirectory(AppSource source, bool containerRootExists);

/// Whether the source's entries are containers whose own entries are the bundles.
bool holdsContainers(AppSource source);

/// Whether an entry (of the directory, or of a container for sources that hold
/// containers) is a candidate bundle: in a container only names ending in "app"
/// (no dot required); elsewhere every entry.
bool isCandidateEntry(AppSource source, std::string_view entry, bool insideContainer);

/// The name before localisation: the display name, else the name, else the
/// executable (the first that is present, whatever its type); a string has every
/// "~iphone" removed.
InfoValue infoName(const InfoValue &displayName, const InfoValue &name, const InfoValue &executable);

/// Every occurrence of "~iphone" removed.
std::string withoutIphoneSuffix(std::string_view name);

/// Whether the name is localised through the bundle's "InfoPlist" table (with the
/// name as default value): in the container root only a string name is; elsewhere
/// any name that is present, so a name of the wrong type still takes the table's
/// string when the bundle has one.
inline bool localisesName(AppSource source, const InfoValue &name) {
  if (source == AppSource::ContainerRoot) return name.isString();
  return name.kind != InfoValue::Kind::Absent;
}

/// The identifiers SpringBoard offers for protection ("apps" of the "appL"
/// reply): none when it gave no usable answer, in which case every application
/// is allowed.
class AllowedApplications {
 public:
  AllowedApplications() = default;  ///< no answer: everything allowed
  explicit AllowedApplications(std::vector<std::string> identifiers);
  bool allows(const std::optional<std::string> &bundleIdentifier) const;

 private:
  bool answered_ = false;
  std::unordered_set<std::string> identifiers_;
};

/// Builds the list as the sources are scanned: each call decides one candidate
/// and, when it is listed, remembers its name.
class ApplicationListing {
 public:
  explicit ApplicationListing(AllowedApplications allowed) : allowed_(std::move(allowed)) {}

  /// The row name of a candidate, or nothing when it is not listed. `localised`
  /// is the name after localisation (infoName, then the bundle's table for a
  /// string). In the first three sources a candidate needs a string name; in the
  /// container root a candidate without one is named by its bundle identifier
  /// and one whose name was already listed is skipped. Then the identifier must
  /// be allowed. A name that shows nothing (empty, or only spaces and invisible
  /// marks: isBlankName) counts as none, so no row stands there without a title.
  std::optional<std::string> consider(AppSource source, const InfoValue &localised,
                                      const std::optional<std::string> &bundleIdentifier);

 private:
  AllowedApplications allowed_;
  std::unordered_set<std::string> names_;
};

}  // namespace tessarin::lists
