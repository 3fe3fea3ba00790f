// What the loader derives: the tiny catalogue against values worked out by hand.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pdgen/load/load.hpp"
#include "pdgen/names.hpp"

namespace pdgen {
namespace {

const std::string kSourceDir = PDGEN_SOURCE_DIR;

class TinyCatalogue : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(loaded_.program) << loaded_.diagnostics.text(); }

  const Program &program() const { return *loaded_.program; }
  const Table &table(const char *name) const { return *find_row(program().tables, name); }
  const KeyField &field(const char *table_name, const char *name) const {
    return *find_row(table(table_name).key, name);
  }

 private:
  const LoadResult loaded_ = load_program(kSourceDir + "/tests/pdgen/fixtures/tiny");
};

TEST_F(TinyCatalogue, ToolNamesAndHints) {
  EXPECT_EQ(field("portMap", "ig_intr_md_in_port").hint, Hint::kPort);
  EXPECT_EQ(field("filter", "tag_0__valid").width_name, "tag_0_");
  EXPECT_EQ(field("filter", "tag_0__tagId").width_name, "tag_0__tagId");
  EXPECT_EQ(field("filter", "eth_dstOui").hint, Hint::kMac);
  EXPECT_EQ(field("filter", "ip6_dst").hint, Hint::kV6Addr);
  EXPECT_EQ(field("filter", "meta_bits").hint, Hint::kNone);
  const Table &filter = table("filter");
  EXPECT_TRUE(std::all_of(filter.record.begin(), filter.record.end(), [](const RecordField &f) {
    return f.role == RecordRole::kValue || f.hint == Hint::kNone;
  }));
}

// A validity bit may share its tool name with a field; it neither gives way nor makes others.
TEST(ToolNames, CollisionsDoNotCountValidityBits) {
  std::vector<KeyField> key(4);
  key[0].name = "md_tagValid";
  key[1].name = "tag_0__valid";
  key[1].is_validity_bit = true;
  key[2].name = "tag_1__set_bit";
  key[3].name = "ig_md_for_x_set_bit";
  EXPECT_EQ(cli_names(key, {"ig_md_", "ig_md_for_x_"}),
            (std::vector<std::string>{"tagValid", "tagValid", "tag1SetBit", "igMdForXSetBit"}));
}

TEST(CapturedParts, HaveAnyNumberAndNoNameOfTheirOwn) {
  Snapshots snapshots;
  snapshots.capture = {{"sip", {}, 0, 16}, {"sip_2", {}, 16, 1}};
  EXPECT_EQ(captured_part(snapshots, "sip_12").whole, &snapshots.capture[0]);
  EXPECT_EQ(captured_part(snapshots, "sip_12").number, 12U);
  for (const char *name : {"sip_2", "sip_02", "sip_", "sip", "dip_1"}) {
    EXPECT_EQ(captured_part(snapshots, name).whole, nullptr) << name;
  }
}

TEST_F(TinyCatalogue, FreshTables) {
  EXPECT_EQ(table("sampling").size, 2U);
  const Pair &discard = table("hops").pairs[1];
  EXPECT_TRUE(discard.as_default && !discard.in_entries);
  EXPECT_EQ(table("hops").default_entry->pair, &discard);  // the only one that may be it
  EXPECT_FALSE(table("sampling").default_entry);
  const DefaultEntry &police = *table("flows").default_entry;
  EXPECT_EQ(police.values, (std::vector<std::uint32_t>{5, 1}));
  EXPECT_EQ(police.cells.size(), 2U);
}

}  // namespace
}  // namespace pdgen
