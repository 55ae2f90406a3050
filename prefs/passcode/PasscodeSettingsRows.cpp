#include "passcode/PasscodeSettingsRows.hpp"

namespace tessarin::passcode {

SettingsFooter settingsFooter(const SettingsContext &ctx, TextLookup lookup) {
  SettingsFooter f;
  if (ctx.passcodeStored && ctx.biometric) {
    const std::string link = lookup(kForgotPasscodeLink);
    f.text = lookup(ctx.faceID ? kRecoveryFaceIDFooter : kRecoveryTouchIDFooter) + " " + link;
    f.hasLink = true;
    const std::size_t linkUnits = utf16Length(link);
    f.linkLocation = utf16Length(f.text) - linkUnits - 1;
    f.linkLength = linkUnits;
  } else if (ctx.biometric) {
    f.text = lookup(ctx.faceID ? kFaceFooter : kFingerprintFooter);
  } else {
    f.text = lookup(kPlainFooter);
  }
  return f;
}

std::size_t utf16Length(std::string_view utf8) {
  std::size_t units = 0;
  for (unsigned char c : utf8) {
    if ((c & 0xC0) == 0x80) continue;  // continuation byte
    units += c >= 0xF0 ? 2 : 1;        // four-byte sequences are surrogate pairs
  }
  return units;
}

std::string_view actionSelector(RowAction action) {
  switch (action) {
    case RowAction::AddPassword:
      return "addPassword";
    case RowAction::ChangePassword:
      return "changePassword";
    case RowAction::RemovePassword:
      return "removePassword";
    case RowAction::None:
      break;
  }
  return {};
}

std::vector<KeptRow> keptSettingsRows(const SettingsContext &ctx, const std::vector<std::string> &loadedIDs) {
  std::vector<KeptRow> kept;
  for (std::size_t i = 0; i < loadedIDs.size(); ++i) {
    const std::string &id = loadedIDs[i];
    KeptRow row;
    row.index = i;
    if (id == kAddRowID && !ctx.passcodeStored) {
      row.id = kAddRowID;
      row.action = RowAction::AddPassword;
    } else if (id == kChangeRowID && ctx.passcodeStored) {
      row.id = kChangeRowID;
      row.action = RowAction::ChangePassword;
    } else if (id == kRemoveRowID && ctx.passcodeStored) {
      row.id = kRemoveRowID;
      row.action = RowAction::RemovePassword;
    } else if (id == kUseOnlyRowID && ctx.passcodeStored && ctx.biometric) {
      row.id = kUseOnlyRowID;
      row.renameForFaceID = ctx.faceID;
    } else {
      continue;
    }
    kept.push_back(row);
  }
  return kept;
}

}  // namespace tessarin::passcode
