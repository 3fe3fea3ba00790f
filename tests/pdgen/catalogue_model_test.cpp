// What the loader derives: the tiny catalogue against values worked out by hand, and the counts of
// the switch program's catalogue.
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "pdgen/load.hpp"
#include "pdgen/names.hpp"

namespace pdgen {
namespace {

const std::string kSourceDir = PDGEN_SOURCE_DIR;

class TinyCatalogue : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(loaded_.program) << loaded_.diagnostics.text(); }

  const Program &program() const { return *loaded_.program; }
  const Table &table(const char *name) const { return *find_row(program().tables, name); }
  const Action &action(const char *name) const { return *find_row(program().actions, name); }
  const KeyField &field(const char *table_name, const char *name) const {
    return *find_row(table(table_name).key, name);
  }

 private:
  const LoadResult loaded_ = load_program(kSourceDir + "/tests/pdgen/fixtures/tiny");
};

// One line per field of the record, in order: name, tool name, bits, bytes of storage.
std::string record_text(const Table &table) {
  std::string text;
  for (const RecordField &field : table.record) {
    text += field.name + " " + field.cli_name + " " + std::to_string(field.width) + " " +
            std::to_string(field.storage_bytes) + "\n";
  }
  return text;
}

// The items of an operation as "resource:parameter:tag".
std::string items_text(const Pair &pair, Operation operation) {
  std::string text;
  for (const ResourceItem &item : pair.sent_in(operation)) {
    text += item.resource->name + ":" + (item.index == nullptr ? "-" : item.index->name) + ":" +
            std::to_string(static_cast<int>(item.tag)) + " ";
  }
  return text;
}

TEST_F(TinyCatalogue, TableKindsFollowTheMostGeneralField) {
  EXPECT_EQ(table("portMap").kind, TableKind::kExact);
  EXPECT_EQ(table("filter").kind, TableKind::kTernary);
  EXPECT_EQ(table("fib4").kind, TableKind::kLpm);
  EXPECT_EQ(table("seen").kind, TableKind::kKeyless);
  EXPECT_TRUE(table("paths").indirect());
  EXPECT_EQ(program().profiles.front().tables, std::vector<const Table *>{&table("paths")});
  EXPECT_TRUE(table("hops").idle_time);
}

TEST_F(TinyCatalogue, KeyBytesFollowTheKeyOrder) {
  // in_port 2, dead 1, dead 1, valid 1, tagId 2, bits 1, layer4 2, src 4, dst 3 + 3, dst6 16.
  EXPECT_EQ(field("filter", "ig_intr_md_in_port").offset, 0U);
  EXPECT_EQ(field("filter", "meta_dead").offset, 2U);
  EXPECT_EQ(field("filter", "fw_dead").offset, 3U);
  EXPECT_EQ(field("filter", "tag_0__valid").offset, 4U);
  EXPECT_EQ(field("filter", "tag_0__tagId").offset, 5U);
  EXPECT_EQ(field("filter", "meta_bits").offset, 7U);
  EXPECT_EQ(field("filter", "meta_layer4").offset, 8U);
  EXPECT_EQ(field("filter", "ip4_src").offset, 10U);
  EXPECT_EQ(field("filter", "eth_dstOui").offset, 14U);
  EXPECT_EQ(field("filter", "eth_dstStation").offset, 17U);
  EXPECT_EQ(field("filter", "ip6_dst").offset, 20U);
  EXPECT_EQ(table("filter").key_bytes, 36U);
  EXPECT_EQ(table("filter").key_bits, 252U);
  EXPECT_EQ(field("fib4", "ip4_dst").offset, 1U);
}

TEST_F(TinyCatalogue, RecordKeepsTheDeclaredOrderWithCompanions) {
  EXPECT_EQ(record_text(table("fib4")),
            "l3_vrf vrf 8 1\n"
            "ip4_dst dst 32 4\n"
            "ip4_dst_prefix_length dstPrefixLength 16 2\n");
  EXPECT_EQ(record_text(table("flood")),
            "eth_dstOui dstOui 24 4\n"
            "eth_dstOui_mask dstOuiMask 24 4\n"
            "meta_slice slice 3 1\n");
  EXPECT_EQ(record_text(table("hops")), "l3_hop hop 14 4\n");
  EXPECT_EQ(record_text(table("fib6")),
            "ip6_dst dst 128 16\n"
            "ip6_dst_prefix_length dstPrefixLength 16 2\n");
}

TEST_F(TinyCatalogue, KeyBitsAreTheWholeFieldUnlessGiven) {
  EXPECT_EQ(field("portMap", "ig_intr_md_in_port").key_bits, 0x7fU);
  EXPECT_TRUE(field("portMap", "ig_intr_md_in_port").partial);
  EXPECT_EQ(field("filter", "ig_intr_md_in_port").key_bits, 0x1ffU);
  EXPECT_FALSE(field("filter", "ig_intr_md_in_port").partial);
  EXPECT_EQ(field("filter", "ip4_src").key_bits, 0xffffffffU);
  std::array<std::uint8_t, 16> first_two{0xff, 0xff};
  EXPECT_EQ(field("filter", "ip6_dst").wide_key_bits, first_two);
  EXPECT_TRUE(field("filter", "ip6_dst").partial);
  EXPECT_EQ(field("fib6", "ip6_dst").wide_key_bits[15], 0xffU);
  EXPECT_FALSE(field("fib6", "ip6_dst").partial);
}

TEST_F(TinyCatalogue, ToolNamesAndHints) {
  EXPECT_EQ(field("portMap", "ig_intr_md_in_port").cli_name, "inPort");
  EXPECT_EQ(field("portMap", "ig_intr_md_in_port").hint, Hint::kPort);
  EXPECT_EQ(field("filter", "tag_0__valid").cli_name, "tagValid");
  EXPECT_EQ(field("filter", "tag_0__valid").width_name, "tag_0_");
  EXPECT_EQ(field("filter", "tag_0__tagId").cli_name, "tagId");
  EXPECT_EQ(field("filter", "tag_0__tagId").width_name, "tag_0__tagId");
  EXPECT_EQ(field("filter", "meta_dead").cli_name, "metaDead");
  EXPECT_EQ(field("filter", "fw_dead").cli_name, "fwDead");
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

TEST_F(TinyCatalogue, ActionDataAndOrder) {
  EXPECT_EQ(program().actions[5].name, "countOnly");
  EXPECT_EQ(action("police").value, 6U);
  const Action &router = action("setRouter");
  EXPECT_EQ(router.data_bits, 80U);
  EXPECT_EQ(router.data_bytes, 10U);
  EXPECT_EQ(router.params[2].offset, 7U);
  EXPECT_EQ(router.params[2].storage_bytes, 4U);
  EXPECT_EQ(router.params[0].hint, Hint::kV4Addr);
  EXPECT_EQ(action("setHop").params[0].storage_bytes, 4U);
  EXPECT_EQ(action("setHop").data_bytes, 2U);
  EXPECT_EQ(action("police").params[0].index_of[1]->name, "flowRate");
  EXPECT_TRUE(action("police").params[0].is_index());
}

TEST_F(TinyCatalogue, PairsSendTheirResources) {
  const Pair &police = table("flows").pairs[0];
  const Pair &count_only = table("flows").pairs[1];
  EXPECT_EQ(items_text(police, Operation::kDefault), "flowCount:cell:0 flowRate:cell:0 ");
  EXPECT_EQ(items_text(count_only, Operation::kAdd), "flowCount:cell:0 flowRate:-:1 ");
  EXPECT_EQ(items_text(count_only, Operation::kDefault), "flowCount:cell:0 ");
  const Pair &filtered = table("filter").pairs[2];
  EXPECT_EQ(items_text(filtered, Operation::kAdd), "filterHits:-:0 ");
  EXPECT_EQ(items_text(filtered, Operation::kModify), "");
  EXPECT_FALSE(filtered.as_default);
  EXPECT_TRUE(filtered.in_entries);
  EXPECT_TRUE(table("flood").pairs[0].takes_meter_spec(Operation::kModify));
  EXPECT_FALSE(filtered.takes_meter_spec(Operation::kAdd));
  EXPECT_FALSE(table("seen").pairs[0].in_entries);
  EXPECT_TRUE(table("seen").pairs[0].as_default);
}

TEST_F(TinyCatalogue, LabelsAndSnapshots) {
  const std::vector<LabelItem> &items = program().labels.front().items;
  EXPECT_EQ(items[1].bit, 1U);
  EXPECT_EQ(items[2].after, 2U);
  EXPECT_EQ(items[3].bit, 8U);
  EXPECT_EQ(items[5].texts[1].text, "any ");
  EXPECT_EQ(items[5].texts_mask, 0xffU);
  EXPECT_EQ(items[8].station->name, "eth_dstStation");
  const Snapshots &snapshots = *program().snapshots;
  EXPECT_EQ(snapshots.layouts[0].fields[2].offset, 3U);
  EXPECT_EQ(snapshots.layouts[0].used_bytes, 7U);
  EXPECT_EQ(snapshots.capture[1].offset, 6U);
}

TEST_F(TinyCatalogue, NamesOfTheInterface) {
  const Table &filter = table("filter");
  const Action &send = action("sendTo");
  EXPECT_EQ(table_function(program(), filter, "table_modify_with_", send, "_by_match_spec"),
            "p4_pd_tiny_filter_table_modify_with_sendTo_by_match_spec");
  EXPECT_EQ(width_function(program(), filter, field("filter", "tag_0__valid")),
            "p4_pd_tiny_filter_tag_0__width");
  EXPECT_EQ(resource_function(program(), program().meters[0], "bytecount_adjust_set"),
            "p4_pd_tiny_meter_bytecount_adjust_set_flowRate");
  EXPECT_EQ(resource_function(program(), program().registers[0], "range_read"),
            "p4_pd_tiny_register_range_read_seenReg");
  EXPECT_EQ(profile_function(program(), program().profiles[0], "add_member_with_", send),
            "p4_pd_tiny_pathMembers_add_member_with_sendTo");
  EXPECT_EQ(hash_function(program(), program().hashes[0], "seed_get"),
            "p4_pd_tiny_hash_calc_flowHash_seed_get");
  EXPECT_EQ(value_set_function(program(), program().value_sets[0], "entry_add"),
            "p4_pd_tiny_pvs_trunk_ports_entry_add");
  EXPECT_EQ(action_spec_type(program(), send), "p4_pd_tiny_sendTo_action_spec_t");
}

// The switch program: how many objects of each kind its catalogue holds.
TEST(SwitchCatalogue, HasNoFaultAndAllItsObjects) {
  const LoadResult result = load_program(kSourceDir + "/catalogue");
  ASSERT_TRUE(result.program) << result.diagnostics.text();
  const Program &program = *result.program;
  const std::vector<Table> &tables = program.tables;
  const auto tables_of = [&](TableKind kind) {
    return std::count_if(tables.begin(), tables.end(),
                         [&](const Table &table) { return table.kind == kind; });
  };
  EXPECT_EQ(tables.size(), 120U);
  EXPECT_EQ(tables_of(TableKind::kExact), 44);
  EXPECT_EQ(tables_of(TableKind::kTernary), 39);
  EXPECT_EQ(tables_of(TableKind::kLpm), 2);
  EXPECT_EQ(tables_of(TableKind::kKeyless), 35);
  std::size_t fields = 0;
  std::size_t handles = 0;
  std::size_t defaults = 0;
  for (const Table &table : tables) {
    fields += table.key.size();
    handles += table.pairs.size();
    for (const Pair &pair : table.pairs) defaults += pair.as_default ? 1 : 0;
  }
  for (const Profile &profile : program.profiles) handles += profile.actions.size();
  EXPECT_EQ(fields, 318U);
  EXPECT_EQ(handles, 264U);
  EXPECT_EQ(defaults, 179U);
  EXPECT_EQ(program.actions.size(), 232U);
  EXPECT_EQ(std::count_if(program.actions.begin(), program.actions.end(),
                          [](const Action &action) { return action.has_params(); }),
            103);
  EXPECT_EQ(program.counters.size(), 11U);
  EXPECT_EQ(program.meters.size(), 7U);
  EXPECT_EQ(program.registers.size(), 9U);
  EXPECT_EQ(program.labels.size(), 8U);
}

}  // namespace
}  // namespace pdgen
