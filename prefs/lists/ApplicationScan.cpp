#include "lists/ApplicationScan.hpp"

#include "lists/SearchText.hpp"

namespace tessarin::lists {

std::string sourceDirectory(AppSource source, bool containerRootExists) {
  switch (source) {
    case AppSource::Applications:
      return "/Applications";
    case AppSource::LegacyContainers:
      return "/private/var/mobile/Applications/";
    case AppSource::Binpack:
      return "/private/var/binpack/Applications/";
    case AppSource::ContainerRoot:
      return containerRootExists ? kContainerRoot : kContainerRootFallback;
  }
  return {};
}

bool holdsContainers(AppSource source) {
  return source == AppSource::LegacyContainers || source == AppSource::ContainerRoot;
}

bool isCandidateEntry(AppSource source, std::string_view entry, bool insideContainer) {
  if (!holdsContainers(source) || !insideContainer) return true;
  constexpr std::string_view suffix = "app";
  return entry.size() >= suffix.size() && entry.substr(entry.size() - suffix.size()) == suffix;
}

std::string withoutIphoneSuffix(std::string_view name) {
  constexpr std::string_view marker = "~iphone";
  std::string out;
  out.reserve(name.size());
  size_t at = 0;
  for (size_t found; (found = name.find(marker, at)) != std::string_view::npos; at = found + marker.size())
    out.append(name.substr(at, found - at));
  out.append(name.substr(at));
  return out;
}

InfoValue infoName(const InfoValue &displayName, const InfoValue &name, const InfoValue &executable) {
  for (const InfoValue *v : {&displayName, &name, &executable}) {
    if (v->kind == InfoValue::Kind::Absent) continue;
    if (v->isString()) return InfoValue::string(withoutIphoneSuffix(v->text));
    return *v;
  }
  return InfoValue::absent();
}

AllowedApplications::AllowedApplications(std::vector<std::string> identifiers)
    : answered_(true), identifiers_(identifiers.begin(), identifiers.end()) {}

bool AllowedApplications::allows(const std::optional<std::string> &bundleIdentifier) const {
  if (!answered_) return true;
  return bundleIdentifier && identifiers_.count(*bundleIdentifier) > 0;
}

std::optional<std::string> ApplicationListing::consider(AppSource source, const InfoValue &localised,
                                                        const std::optional<std::string> &bundleIdentifier) {
  std::optional<std::string> name;
  if (localised.isString() && !isBlankName(localised.text)) name = localised.text;
  if (source == AppSource::ContainerRoot) {
    if (!name && bundleIdentifier && !isBlankName(*bundleIdentifier)) name = bundleIdentifier;
    if (name && names_.count(*name) > 0) return std::nullopt;
  }
  if (!name || !allowed_.allows(bundleIdentifier)) return std::nullopt;
  names_.insert(*name);
  return name;
}

}  // namespace tessarin::lists
