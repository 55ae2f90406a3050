#include "appearance/ButtonRules.hpp"

namespace tessarin::appearance {

Frame containerFrame(double contentWidth) {
  return {contentWidth / 2 - kContainerWidth / 2, 0, kContainerWidth, kRowHeight};
}

std::optional<int> tappedColumn(double x) {
  if (x > 0 && x < kColumnWidth) return 0;
  if (x >= kColumnWidth && x < 2 * kColumnWidth) return 1;
  if (x >= 2 * kColumnWidth && x < kContainerWidth) return 2;
  return std::nullopt;
}

std::optional<int64_t> buttonChoiceAt(double x) {
  if (auto column = tappedColumn(x)) return kWhiteButton + *column;
  return std::nullopt;
}

std::optional<int64_t> glyphChoiceAt(double x) {
  if (auto column = tappedColumn(x)) return kBlackGlyph + *column;
  return std::nullopt;
}

std::optional<int> chosenButton(int64_t iconColor) {
  if (iconColor >= kWhiteButton && iconColor <= kGoldenButton) return static_cast<int>(iconColor - kWhiteButton);
  return std::nullopt;
}

std::optional<int> chosenGlyph(int64_t iconColor) {
  if (iconColor >= kBlackGlyph && iconColor <= kRedGlyph) return static_cast<int>(iconColor - kBlackGlyph);
  return std::nullopt;
}

Frame button::thirdFrame(int column) { return {column * kColumnWidth, 0, kRowHeight, kRowHeight}; }

std::string_view button::thumbImage(bool isBlackButton) { return isBlackButton ? "thumb-black" : "thumb-white"; }

Frame glyph::frameInThird(double third) { return {third / 2 - 31, 17, 63, 63}; }

Frame glyph::thirdFrame(int column, double third) { return {column * third, 0, kRowHeight, kRowHeight}; }

int glyph::chosenState(const SystemVersionFlags &flags) {
  if (flags.iOS11) return 11;
  return flags.iOS10_2 ? 7 : 6;
}

std::vector<int> glyph::tapChain(const SystemVersionFlags &flags) {
  return {1, flags.iOS11 ? 8 : 2, 1, chosenState(flags)};
}

bool glyph::reappliesPaletteBeforeLastStep(const SystemVersionFlags &flags) { return flags.iOS11; }

glyph::Look glyph::look(int glyph, const SystemVersionFlags &flags) {
  if (flags.iOS11) return {0, hookPaletteStyle(glyph), {}, {}};
  switch (glyph) {
    case 0:
      return {1, 0, {}, {}};
    case 1:
      return {1, 0, "305a94", "8a9bb1"};
    default:
      return {0, 0, {}, {}};
  }
}

int glyph::hookPaletteStyle(int glyph) {
  switch (glyph) {
    case 0:
      return 3;
    case 1:
      return 2;
    case 2:
      return 1;
    default:
      return 0;
  }
}

namespace {
int hexDigit(char c) {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

bool skippable(char c) { return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '\v' || c == '\f'; }
}  // namespace

std::optional<uint32_t> scanHexInt(std::string_view text) {
  size_t i = 0;
  while (i < text.size() && skippable(text[i])) ++i;
  // "0x" counts as a prefix only when a digit follows; otherwise the "0" is the number.
  if (i + 2 < text.size() && text[i] == '0' && (text[i + 1] == 'x' || text[i + 1] == 'X') && hexDigit(text[i + 2]) >= 0)
    i += 2;
  if (i >= text.size() || hexDigit(text[i]) < 0) return std::nullopt;
  uint64_t value = 0;
  bool overflow = false;
  for (; i < text.size() && hexDigit(text[i]) >= 0; ++i) {
    value = value * 16 + static_cast<uint64_t>(hexDigit(text[i]));
    if (value > 0xFFFFFFFFu) {
      overflow = true;
      value = 0xFFFFFFFFu;
    }
  }
  return overflow ? 0xFFFFFFFFu : static_cast<uint32_t>(value);
}

Rgb rgbFromHexValue(uint32_t value) {
  return {((value >> 16) & 0xFF) / 255.0, ((value >> 8) & 0xFF) / 255.0, (value & 0xFF) / 255.0};
}

Rgb rgbFromHexString(std::string_view text) { return rgbFromHexValue(scanHexInt(text).value_or(0)); }

}  // namespace tessarin::appearance
