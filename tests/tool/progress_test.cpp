// The line that shows how far a long task is.
#include "tesselctl/text/progress.hpp"

#include <gtest/gtest.h>

namespace tesselctl {
namespace {

TEST(ProgressTest, ShowsRateAndRemainingTime) {
  EXPECT_EQ(progress_text("adding", 250000, 1000000, 0.5),
            "adding 250,000 of 1,000,000 (25 %), 500,000 a second, 1.5 s left");
  EXPECT_EQ(progress_text("adding", 0, 10, 0), "adding 0 of 10 (0 %), 0 a second");
}

}  // namespace
}  // namespace tesselctl
