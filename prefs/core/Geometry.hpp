// Frames and colours as the rules give them to the views, in points and 0-to-1 components.
#pragma once

namespace tessarin {

/// A frame in points, in the coordinates of the view it is set on.
struct Rect {
  double x, y, width, height;
};

constexpr bool operator==(const Rect &a, const Rect &b) {
  return a.x == b.x && a.y == b.y && a.width == b.width && a.height == b.height;
}

/// A colour with 0-to-1 components.
struct Rgba {
  double red, green, blue, alpha;
};

}  // namespace tessarin
