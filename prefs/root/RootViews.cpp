#include "root/RootViews.hpp"

namespace tessarin::root {

Rect warning_cell::labelFrame(double cellWidth, bool gracePeriod) {
  return {0, 2, cellWidth, gracePeriod ? 65.0 : 40.0};
}

double switch_cell::iconAlpha(bool value) { return value ? 1.0 : 0.3; }

Rect label_view::labelFrame(double width) { return {0, 10, width, 30}; }

}  // namespace tessarin::root
