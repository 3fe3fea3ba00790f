// Equality under key masks, widths of key fields, values and names of actions.
#include <gtest/gtest.h>

#include "text_fixture.hpp"

namespace pd_test {
namespace {

bool equal(const Spec &a, const Spec &b, const char *family = "match_specs_are_equal") {
  return call(*find_export(family, a.record().name), a.data(), b.data()) != 0;
}

std::string value(const Spec &spec, const char *family) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX);
  return buffer.text(call(*find_export(family, spec.record().name), spec.data(), buffer.data()));
}

// Flips each bit of each member of a random record and has judge(spec, flipped, member, bit) look
// at both. Bits of a wide member count from the top of its first byte, others from the lowest.
template <class Judge>
void flip_every_bit(const Record &record, std::mt19937 &random, Judge judge) {
  Spec spec(record);
  spec.fill(random);
  for (size_t i = 0; i < record.member_count; ++i) {
    const Member &member = record.members[i];
    for (unsigned bit = 0; bit < 8 * member.storage; ++bit) {
      Spec flipped = spec;
      if (member.storage == 16) {
        uint8_t &byte = flipped.at(member)[bit / 8];
        byte = static_cast<uint8_t>(byte ^ 0x80 >> bit % 8);
      } else {
        flipped.set(member, spec.get(member) ^ 1u << bit);
      }
      judge(spec, flipped, i, bit);
    }
  }
}

TEST(Comparison, MatchSpecsDifferExactlyWhereTheirKeysDo) {
  std::mt19937 random(3);
  ASSERT_EQ(exports_of("match_specs_are_equal").size(), 85u);
  size_t flips = 0;
  for (const Record &table : tables()) {
    if (table.member_count == 0) continue;
    EXPECT_TRUE(equal(Spec(table), Spec(table))) << table.name;
    const std::vector<Literal> schema = schema_fields(table.name);
    flip_every_bit(table, random, [&](const Spec &a, const Spec &b, size_t i, unsigned bit) {
      const Member &member = table.members[i];
      const bool wide = member.storage == 16;
      const bool counts = wide ? (schema[i][3].bytes()[bit / 8] << bit % 8 & 0x80) != 0
                               : (schema[i][3].number() >> bit & 1) != 0;
      EXPECT_EQ(equal(a, b), !counts) << table.name << " " << member.name << " bit " << bit;
      EXPECT_EQ(equal(b, a), !counts);
      const bool same_text = value(a, "match_spec_value") == value(b, "match_spec_value");
      EXPECT_EQ(same_text, !wide && !counts) << table.name << " " << member.name;
      ++flips;
    });
  }
  EXPECT_GT(flips, 4000u);
}

TEST(Comparison, ActionSpecsDifferInTheBitsOfTheirWidths) {
  std::mt19937 random(5);
  ASSERT_EQ(exports_of("action_specs_are_equal").size(), 103u);
  for (const Record &action : actions()) {
    if (action.member_count == 0) continue;
    flip_every_bit(action, random, [&](const Spec &a, const Spec &b, size_t i, unsigned bit) {
      const bool counts = bit < action.members[i].width;
      EXPECT_EQ(equal(a, b, "action_specs_are_equal"), !counts) << action.name << " bit " << bit;
      EXPECT_EQ(value(a, "action_value") == value(b, "action_value"), !counts) << action.name;
    });
  }
}

TEST(Comparison, RowsOfFieldsAndMasks) {
  const Spec drop("finalDropControl", {{"ig_intr_md_ingress_port", 0x01}});
  EXPECT_TRUE(equal(drop, {"finalDropControl", {{"ig_intr_md_ingress_port", 0x81}}}));
  EXPECT_FALSE(equal(drop, {"finalDropControl", {{"ig_intr_md_ingress_port", 0x41}}}));
  EXPECT_FALSE(equal(
      drop,
      {"finalDropControl", {{"ig_intr_md_ingress_port", 1}, {"ig_intr_md_ingress_port_mask", 1}}}));
  // An address counts beyond its prefix, a value beyond its mask.
  const Spec route("ipv4ShortMaskLpm",
                   {{"ingIpv4_dip", 0x0a000001}, {"ingIpv4_dip_prefix_length", 24}});
  EXPECT_FALSE(equal(route, {"ipv4ShortMaskLpm",
                             {{"ingIpv4_dip", 0x0a000002}, {"ingIpv4_dip_prefix_length", 24}}}));
  EXPECT_FALSE(equal(route, {"ipv4ShortMaskLpm",
                             {{"ingIpv4_dip", 0x0a000001}, {"ingIpv4_dip_prefix_length", 25}}}));
  EXPECT_FALSE(equal({"trapToCpu", {{"ingMd_ttl", 1}}}, {"trapToCpu", {{"ingMd_ttl", 0}}}));
  Spec near("trapToCpu", {});
  Spec far("trapToCpu", {});
  near.set_bytes("ingIpv6_dip", {0x20, 0x01, 0x0d, 0xb8});
  far.set_bytes("ingIpv6_dip", {0x20, 0x01, 0xff});
  EXPECT_TRUE(equal(near, far));
  far.set_bytes("ingIpv6_dip", {0x20, 0x02, 0x0d, 0xb8});
  EXPECT_FALSE(equal(near, far));
}

TEST(Width, RowsAndEveryKeyField) {
  EXPECT_EQ(p4_pd_tessel_switch_cpuEncap_vlanHdr_0__width(), 1u);
  EXPECT_EQ(p4_pd_tessel_switch_finalDropControl_tesselFlowMgmtHdr_width(), 1u);
  EXPECT_EQ(p4_pd_tessel_switch_flowDigestGeneration_ingMd_protocol_width(), 8u);
  EXPECT_EQ(p4_pd_tessel_switch_l2LearningLookup_ingMd_smacOui_width(), 24u);
  EXPECT_EQ(p4_pd_tessel_switch_ecmpGroup_l3_ecmpGroup_width(), 14u);
  std::map<std::string, const Export *> functions;
  for (const Export *function : exports_of("width")) functions[function->name] = function;
  EXPECT_EQ(functions.size(), 318u);
  size_t validity_bits = 0;
  for (const Record &table : tables()) {
    for (const Member &member : table.member_list()) {
      if (member.role != bindings::Role::value) continue;
      std::string field = member.name;
      if (field.ends_with("_valid")) {
        field.resize(field.size() - 6);
        ++validity_bits;
      }
      const auto found =
          functions.find("p4_pd_tessel_switch_" + std::string(table.name) + "_" + field + "_width");
      ASSERT_NE(found, functions.end()) << table.name << " " << field;
      EXPECT_EQ(call(*found->second), member.width) << table.name << " " << field;
      functions.erase(found);
    }
  }
  EXPECT_TRUE(functions.empty());
  EXPECT_EQ(validity_bits, 43u);
}

TEST(ActionNames, BothWays) {
  EXPECT_STREQ(p4_pd_tessel_switch_action_enum_to_string(0),
               "p4_pd_tessel_switch_trapPktToCpuUntagged");
  for (const uint32_t beyond : {232u, 233u, 0xffffffffu}) {
    EXPECT_EQ(p4_pd_tessel_switch_action_enum_to_string(beyond), nullptr);
  }
  const auto value_of = p4_pd_tessel_switch_action_string_to_enum;
  EXPECT_EQ(value_of("p4_pd_tessel_switch_setVlanProperties"), 231u);
  for (const char *none :
       {"setVlanProperties", "", "p4_pd_tessel_switch_setVlanPropertie",
        "p4_pd_tessel_switch_setVlanProperties ", "P4_PD_TESSEL_SWITCH_setVlanProperties"}) {
    EXPECT_EQ(value_of(none), 232u) << none;
  }
  EXPECT_EQ(value_of(nullptr), 232u);
  for (const Record &action : actions()) {
    const std::string name = "p4_pd_tessel_switch_" + std::string(action.name);
    EXPECT_EQ(p4_pd_tessel_switch_action_enum_to_string(action.number), name);
    EXPECT_EQ(value_of(name.c_str()), action.number);
  }
}

}  // namespace
}  // namespace pd_test
