#include "root/RootViews.hpp"

#include <gtest/gtest.h>

using namespace tessarin::root;

TEST(RootViews, WarningLabelStartsBelowTopAndFitsItsRow) {
  struct Case { bool grace; double height; };
  for (const Case c : {Case{true, 65}, Case{false, 40}}) {
    const Rect frame = warning_cell::labelFrame(375, c.grace);
    EXPECT_EQ(frame.y, 2);
    EXPECT_EQ(frame.width, 375);
    EXPECT_EQ(frame.height, c.height);
  }
}

TEST(RootViews, LabelViewAndSwitchIcon) {
  const Rect frame = label_view::labelFrame(1024);
  EXPECT_EQ(frame.y, 10);
  EXPECT_EQ(frame.height, 30);
  EXPECT_EQ(frame.width, 1024);
  EXPECT_EQ(label_view::kPreferredHeight, 47);
  EXPECT_EQ(switch_cell::iconAlpha(false), 0.3);
  EXPECT_EQ(switch_cell::iconAlpha(true), 1.0);
}
