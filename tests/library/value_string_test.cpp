// Value strings of match specs and actions: rows to the letter, and every record with random bits.
#include <cstdio>

#include "text_fixture.hpp"

namespace pd_test {
namespace {

std::string key_value(const Spec &spec) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX);
  const Export &function = *find_export("match_spec_value", spec.record().name);
  return buffer.text(call(function, spec.data(), buffer.data()));
}

std::string action_value(const Spec &spec) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX);
  const Export &function = *find_export("action_value", spec.record().name);
  if (function.parameter_count == 1) return buffer.text(call(function, buffer.data()));
  return buffer.text(call(function, spec.data(), buffer.data()));
}

// A number as the syntax has it, by the width of the field and a mask.
std::string number(const Spec &spec, const Member &member, uint64_t mask) {
  char text[40];
  if (member.storage != 16) {
    std::snprintf(text, sizeof text, "0x%0*x,", static_cast<int>((member.width + 3) / 4),
                  static_cast<uint32_t>(spec.get(member) & mask));
    return text;
  }
  std::string digits = "0x";
  for (size_t i = 0; i < 16; ++i) {
    std::snprintf(text, sizeof text, "%02X", spec.at(member)[i]);
    digits += text;
  }
  return digits + ",";
}

TEST(ValueString, RowsOfMatchSpecs) {
  EXPECT_EQ(key_value({"cpuEncap",
                       {{"egrMd_trapToCpu", 1},
                        {"phase0_switchPort", 1},
                        {"phase0_switchPort_mask", 1},
                        {"egrMd_cpuReasonCode", 5},
                        {"egrMd_cpuReasonCode_mask", 0xff},
                        {"vlanHdr_0__valid", 1},
                        {"vlanHdr_0__valid_mask", 1}}}),
            "( 0x1,0x0,0x1,0x1,0x05,0xff,0x1,0x1,),");
  EXPECT_EQ(key_value({"ecmpGroup", {{"l3_ecmpGroup", 0x3f12}}}), "( 0x0012,),");
  Spec route("ipv6ShortMaskLpm", {{"ingIpv6_dip_prefix_length", 0x20}, {"l3Info_vrfId", 0xa}});
  route.set_bytes("ingIpv6_dip", {0x20, 0x01, 0x0d, 0xb8});
  EXPECT_EQ(key_value(route), "( 0x0a,0x20010DB8000000000000000000000000,0x0020,),");
}

TEST(ValueString, KeyMasksCutValuesAndMasksOfPartialFields) {
  const Spec drop("finalDropControl", {{"ingMd_v4V6Valid", 7},
                                       {"ingMd_v4V6Valid_mask", 7},
                                       {"ig_intr_md_ingress_port", 0x1ff},
                                       {"ig_intr_md_ingress_port_mask", 0x1ff},
                                       {"egrMd_egrL2AintfUnresolved", 0xffffffff}});
  const std::string text = key_value(drop);
  EXPECT_NE(text.find("0x07f,0x07f,"), std::string::npos) << text;
  EXPECT_NE(text.find("0x4,0x4,"), std::string::npos) << text;
  EXPECT_NE(text.find("0xfffff,0x00000,"), std::string::npos) << text;
  // Wide fields are written whole, whatever part of them the key uses.
  Spec trap("trapToCpu", {});
  std::array<uint8_t, 16> bytes;
  for (size_t i = 0; i < 16; ++i) bytes[i] = static_cast<uint8_t>(0xa0 + i);
  trap.set_bytes("ingIpv6_dip", bytes);
  EXPECT_NE(key_value(trap).find("0xA0A1A2A3A4A5A6A7A8A9AAABACADAEAF,"), std::string::npos);
  EXPECT_EQ(key_value(trap).size(), 280u);
  EXPECT_EQ(P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX, 281);
}

TEST(ValueString, RowsOfActions) {
  Spec trap(record_of(actions(), "trapPktToCpuUntagged"));
  trap.set(trap.member("cpuPort"), 0xfe40);
  trap.set(trap.member("trapPipelineQid"), 3);
  EXPECT_EQ(action_value(trap), "('trapPktToCpuUntagged',(0x040,0x03,)),");
  EXPECT_EQ(action_value(Spec(record_of(actions(), "removeTesselHdrs"))),
            "('removeTesselHdrs',()),");
  EXPECT_EQ(action_value(Spec(record_of(actions(), "setMirrorPacketEncapGreIpv4"))).size(), 98u);
  EXPECT_EQ(P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX, 99);
}

// Numbers by the schema's masks, and as many of them as the schema lists.
TEST(ValueString, EveryMatchSpec) {
  std::mt19937 random(1);
  ASSERT_EQ(exports_of("match_spec_value").size(), 85u);
  for (const Record &table : tables()) {
    if (table.member_count == 0) continue;
    const std::vector<Literal> schema = schema_fields(table.name);
    for (int round = 0; round < 20; ++round) {
      Spec spec(table);
      spec.fill(random);
      std::string expected = "( ";
      for (size_t i = 0; i < table.member_count; ++i) {
        const bool wide = table.members[i].storage == 16;
        expected += number(spec, table.members[i], wide ? 0 : schema[i][3].number());
      }
      const std::string text = key_value(spec);
      ASSERT_EQ(text, expected + "),");
      const auto read = read_literal(text);
      ASSERT_TRUE(read && read->is_tuple(1) && (*read)[0].is_tuple(table.member_count)) << text;
    }
  }
}

TEST(ValueString, EveryAction) {
  std::mt19937 random(2);
  ASSERT_EQ(exports_of("action_value").size(), 232u);
  for (const Record &action : actions()) {
    Spec spec(action);
    spec.fill(random);
    std::string expected = "('" + std::string(action.name) + "',(";
    for (const Member &member : action.member_list()) {
      expected += number(spec, member, 0xffffffffull >> (32 - member.width));
    }
    const std::string text = action_value(spec);
    ASSERT_EQ(text, expected + ")),");
    const auto read = read_literal(text);
    ASSERT_TRUE(read && read->is_tuple(1) && (*read)[0].is_tuple(2)) << text;
    EXPECT_TRUE((*read)[0][1].is_tuple(action.member_count)) << text;
  }
}

}  // namespace
}  // namespace pd_test
