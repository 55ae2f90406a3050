#include "core/LocalText.hpp"

namespace tessarin {

std::string englishText(const LocalText &text) { return std::string(text.english); }

}  // namespace tessarin
