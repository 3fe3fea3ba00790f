// What is drawn on a terminal: the rounds of watch, and how far a long task is.
#include "tesselctl/shell/watch_screen.hpp"

#include <gtest/gtest.h>

#include "tesselctl/text/progress.hpp"

namespace tesselctl {

namespace {

TEST(WatchScreenTest, ARoundStandsWhereTheOneBeforeStoodWithItsChangesMarked) {
  Output out;
  WatchScreen plain(out);
  plain.draw("10:00", "table  n\na  1\nb  2\n", 24);
  EXPECT_EQ(out.take(),
            "\r\033[?7l10:00\033[K\n  table  n\033[K\n  a  1\033[K\n  b  2\033[K\n\033[J\033[?7h");
  // A line that moved is no change; too many lines for the window are counted.
  plain.draw("10:01", "table  n\nb  2\na  5\n", 4);
  EXPECT_EQ(out.take(),
            "\033[4A\r\033[?7l10:01\033[K\n  table  n\033[K\n(2 more lines)\033[K\n\033[J\033[?7h");
  plain.draw("10:02", "", 24);
  EXPECT_EQ(out.take(), "\033[3A\r\033[?7l10:02\033[K\n\033[J\033[?7h");

  out.set_colour(true);
  WatchScreen coloured(out);
  coloured.draw("h", "a  1  x\nb  2  y\n", 24);
  EXPECT_EQ(out.take().find("\033[7m"), std::string::npos);
  coloured.draw("h", "new 1\nb  3  y\na  1  x\n", 24);
  EXPECT_EQ(out.take(),
            "\033[3A\r\033[?7l\033[2mh\033[0m\033[K\n"
            "\033[7mnew\033[0m \033[7m1\033[0m\033[K\n"
            "b  \033[7m3\033[0m  y\033[K\n"
            "a  1  x\033[K\n\033[J\033[?7h");
}

TEST(ProgressTest, ShowsRateAndRemainingTime) {
  EXPECT_EQ(progress_text("adding", 250000, 1000000, 0.5),
            "adding 250,000 of 1,000,000 (25 %), 500,000 a second, 1.5 s left");
  EXPECT_EQ(progress_text("adding", 0, 10, 0), "adding 0 of 10 (0 %), 0 a second");
}

}  // namespace

}  // namespace tesselctl
