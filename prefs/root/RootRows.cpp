#include "root/RootRows.hpp"

#include <algorithm>

namespace tessarin::root {

std::optional<LocalText> singleGroupFooter(std::uint32_t libraryVersion, bool supportedSystem) {
  if (libraryVersion == 0) return kLibraryMissingFooter;
  if (!supportedSystem) return kUnsupportedSystemFooter;
  return std::nullopt;
}

DeviceFacts deviceFacts(bool biometricSensor, bool faceID, bool iPad, const SystemVersionFlags &system) {
  return {biometricSensor, faceID, iPad, system.iOS8, system.iOS10, system.iOS11};
}

bool biometricsSet(std::optional<long long> idsnValue) { return idsnValue.has_value() && *idsnValue >= 1; }

std::optional<WarningRow> warningRow(bool gracePeriod, bool trustedNetwork, bool plistHasWarningRow) {
  if (plistHasWarningRow) return std::nullopt;
  if (gracePeriod) return WarningRow{kGraceWarningText, kGraceWarningHeight};
  if (trustedNetwork) return WarningRow{kTrustedWarningText, kTrustedWarningHeight};
  return std::nullopt;
}

bool fileExists(const ProbePath &path, const FileProbe &probe) {
  return probe.exists(path.underJailRoot ? probe.jailRoot(path.path) : std::string(path.path));
}

RowAction rowAction(std::string_view id, const DeviceFacts &device, const FileProbe &probe) {
  RowAction kept = RowAction::Keep;

  // 1. No biometric sensor: no unlock-button options at all.
  if (!device.biometricSensor && (id == kExtrasId || id == kUnlockWithTouchIdId || id == kCircleColorId))
    return RowAction::Drop;

  // 2. From iOS 11 on: no Touch ID unlock option, and the extras lose their footer.
  if (device.iOS11) {
    if (id == kUnlockWithTouchIdId) return RowAction::Drop;
    if (id == kExtrasId) kept = RowAction::KeepWithoutFooter;
  }

  // 3. Face ID: no Touch ID unlock option and no button colour.
  if (device.faceID && (id == kUnlockWithTouchIdId || id == kCircleColorId)) return RowAction::Drop;

  // 4. iPad: no haptics.
  if (device.iPad && id == kVibrateOnErrorId) return RowAction::Drop;

  // 5. Protected toggles need the toggle library.
  if (id == kFlipswitchesId) return anyExists(kToggleLibraryProbes, probe) ? kept : RowAction::Drop;

  // 6. The built-in Control Center page only without either add-on.
  if (id == kControlCenterId) return anyExists(kControlCenterAddOnProbes, probe) ? RowAction::Drop : kept;

  // 7. The CCSettings page only with CCSettings.
  if (id == kCCSettingsId) return anyExists(kCCSettingsProbes, probe) ? kept : RowAction::Drop;

  // 8. Protected notifications: only between iOS 10 and iOS 11.
  if (id == kApplicationsNotificationsId && (!device.iOS10 || device.iOS11)) return RowAction::Drop;

  // 9. Caller-ID protection needs a biometric sensor and iOS 8.
  if (id == kCallerIdProtectionId && !(device.biometricSensor && device.iOS8)) return RowAction::Drop;

  // 10. The reset button's action must reach the page.
  if (id == kResetAllId) return RowAction::KeepAsResetTarget;

  return kept;
}

bool rowDisabled(std::string_view id, bool biometricsAreSet, bool productPasscodeSet) {
  if (biometricsAreSet || productPasscodeSet) return false;
  return id != kPasscodeOptionsId && id != kCrashLogsId && id != kResetAllId && id != kTrustedWiFiNetworksId;
}

bool isSimplePasscode(const PasscodeCharacteristics &characteristics) {
  return characteristics.allDigits && !characteristics.hasAlpha &&
         (characteristics.length == 4 || characteristics.length == 6);
}

std::optional<DeviceAuthRow> deviceAuthRow(const DeviceFacts &device,
                                           const std::optional<PasscodeCharacteristics> &devicePasscode,
                                           bool warningAdded, FunctionRef<bool(std::string_view)> classExists) {
  if (!device.biometricSensor) return std::nullopt;

  DeviceAuthRow row{};
  row.name = device.faceID ? kFaceIdRowName : kTouchIdRowName;
  if (!devicePasscode) {
    if (device.faceID)
      row.detailClass = kPearlPasscodeControllerClass;
    else if (classExists && classExists(kTouchIdPasscodeControllerClass))
      row.detailClass = kTouchIdPasscodeControllerClass;
    else
      row.detailClass = kMesaSettingsControllerClass;
  } else {
    row.loadAction = isSimplePasscode(*devicePasscode) ? kLoadUserPasswordAction : kLoadUserComplexPasswordAction;
  }
  // Fixed positions counted in the rows appended so far; kept as they are.
  row.groupIndex = warningAdded ? 9 : 7;
  row.rowIndex = row.groupIndex + 1;
  return row;
}

RootRowsPlan planRootRows(const std::vector<std::string> &loadedIds, const RootPageFacts &facts, const FileProbe &probe,
                          FunctionRef<bool(std::string_view)> classExists) {
  RootRowsPlan plan;
  const auto disabled = [&](std::string_view id) {
    return rowDisabled(id, facts.biometricsSet, facts.productPasscodeSet);
  };

  const bool plistHasWarning = std::find(loadedIds.begin(), loadedIds.end(), kTrustedWarningId) != loadedIds.end();
  plan.warning = warningRow(facts.gracePeriod, facts.trustedNetwork, plistHasWarning);
  if (plan.warning) {
    plan.rows.push_back({PlannedRowKind::WarningGroup, 0, RowAction::Keep, disabled(kTrustedWarningGroupId)});
    plan.rows.push_back({PlannedRowKind::Warning, 0, RowAction::Keep, disabled(kTrustedWarningId)});
  }

  for (std::size_t i = 0; i < loadedIds.size(); ++i) {
    const RowAction action = rowAction(loadedIds[i], facts.device, probe);
    if (action == RowAction::Drop) continue;
    plan.rows.push_back({PlannedRowKind::Loaded, i, action, disabled(loadedIds[i])});
  }

  plan.deviceAuth = deviceAuthRow(facts.device, facts.devicePasscode, plan.warning.has_value(), classExists);
  if (plan.deviceAuth) {
    // A list shorter than the fixed position takes the rows at its end.
    const std::size_t at = std::min(plan.deviceAuth->groupIndex, plan.rows.size());
    plan.deviceAuth->groupIndex = at;
    plan.deviceAuth->rowIndex = at + 1;
    const PlannedRow group{PlannedRowKind::DeviceAuthGroup, 0, RowAction::Keep, false};
    const PlannedRow row{PlannedRowKind::DeviceAuth, 0, RowAction::Keep, false};
    plan.rows.insert(plan.rows.begin() + static_cast<std::ptrdiff_t>(at), {group, row});
  }

  plan.rows.push_back({PlannedRowKind::CreditsGroup, 0, RowAction::Keep, false});
  plan.rows.push_back({PlannedRowKind::Credits, 0, RowAction::Keep, false});
  plan.rows.push_back({PlannedRowKind::MoreAppsGroup, 0, RowAction::Keep, false});
  return plan;
}

}  // namespace tessarin::root
