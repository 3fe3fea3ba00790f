// Ranges against a plain search.
#include "tesselctl/program/value_range.hpp"

#include <gtest/gtest.h>

namespace tesselctl {
namespace {

// The prefixes follow one another from low to high and are as few as any that do.
TEST(ValueRange, TheFewestPrefixesOfEveryRangeOf8Bits) {
  for (unsigned low = 0; low < 256; ++low) {
    unsigned fewest[257] = {};  // by the end of the range; above low
    for (unsigned end = low + 1; end <= 256; ++end) {
      fewest[end] = 256;
      for (unsigned size = 1; size <= end - low; size *= 2) {
        if (end % size == 0) fewest[end] = std::min(fewest[end], fewest[end - size] + 1);
      }
      const std::vector<FieldValue> prefixes = prefixes_of({low, end - 1}, 8);
      EXPECT_EQ(prefixes.size(), fewest[end]) << low << " to " << end - 1;
      Number next = low;
      for (const FieldValue &prefix : prefixes) {
        EXPECT_TRUE(prefix.value == next && (next & ~prefix.mask).is_zero()) << low << " " << end;
        EXPECT_TRUE(prefix_length_of(prefix.mask, 8));
        next = next + (low_ones(8) - prefix.mask) + 1;
      }
      EXPECT_TRUE(next == Number(end)) << low << " to " << end - 1;
    }
  }
}

TEST(ValueRange, AllBitsThatAFieldMayHave) {
  const Number most = ~Number();
  EXPECT_EQ(prefixes_of({0, most}, 128), std::vector{FieldValue{}});
  EXPECT_EQ(prefixes_of({1, most - 1}, 128).size(), 254u);
  EXPECT_EQ(prefixes_of({most, most}, 128), (std::vector{FieldValue{most, most}}));
}

}  // namespace
}  // namespace tesselctl
