#include <gtest/gtest.h>

#include "passcode/PasscodeFlow.hpp"

namespace tessarin::passcode {
namespace {

TEST(PasscodeAnimation, ShakeMovesAroundTheCentre) {
  const double cx = 160.0;
  const double expected[] = {140.0, 180.0, 140.0, 180.0, 160.0};
  for (int i = 0; i < kShakeMoves; ++i) EXPECT_EQ(shakeCentreX(cx, i), expected[i]) << i;
  EXPECT_EQ(shakeCentreX(cx, 9), cx);
}

}  // namespace
}  // namespace tessarin::passcode
