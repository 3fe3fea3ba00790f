// What follows from a typed record, worked out by hand: key and mask bytes, action data and
// resources, value string and printed lines. One row a record; then every record of the program
// with random bits, by the masks of its schema.
#include <algorithm>
#include <cstdio>

#include "placement_fixture.hpp"
#include "text_fixture.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

std::string value_of(const Spec &spec, const char *family, size_t room) {
  TextBuffer buffer(room);
  const Export &function = *find_export(family, spec.record().name);
  if (function.parameter_count == 1) return buffer.text(call(function, buffer.data()));
  return buffer.text(call(function, spec.data(), buffer.data()));
}

// At indent 1.
std::string lines_of(const Spec &spec, const char *family) {
  return printed([&](int file) {
    call(*find_export(family, spec.record().name), static_cast<uint64_t>(file), uint64_t{1},
         spec.data());
  });
}

class Records : public LibraryTest {
 protected:
  // The only call of a function that is given records.
  static Call sent(const Arguments &arguments) {
    return only_call([&] { arguments.call(); });
  }
};

// ---- Match specs ----

struct KeyRow {
  const char *table;
  const char *members;
  unsigned bits;
  const char *key;
  const char *mask;
  uint32_t priority;  // of a table with priorities the given one, 10
  const char *value;  // this and the lines: all of the text, or a piece of a long one
  const char *lines;
};

const KeyRow kKeyRows[] = {
    // Ternary: the value keeps the bits that its mask has, the mask is cut to the width.
    {"cpuEncap",
     "egrMd_trapToCpu=1 phase0_switchPort=1 phase0_switchPort_mask=1 egrMd_cpuReasonCode=0x25 "
     "egrMd_cpuReasonCode_mask=0xf0",
     12, "01 00 01 20 00", "01 01 01 f0 00", 10, "( 0x1,0x0,0x1,0x1,0x25,0xf0,0x0,0x0,),",
     " p4_pd_tessel_switch_cpuEncap_match_spec_t:\n"
     "  egrMd_trapToCpu: 0x1\n"
     "  ingMd_vlanHdrValid: 0x0\n"
     "  phase0_switchPort: 0x1\n"
     "  phase0_switchPort_mask: 0x1\n"
     "  egrMd_cpuReasonCode: 0x25\n"
     "  egrMd_cpuReasonCode_mask: 0xf0\n"
     "  vlanHdr_0__valid: 0x0\n"
     "  vlanHdr_0__valid_mask: 0x0\n"},
    {"kiteFlow1", "vlanHdr_1__vlanId=0xffff vlanHdr_1__vlanId_mask=0xffff", 28, "00 00 00 ff ff 00",
     "00 00 00 0f ff 00", 10, ",0xfff,0xfff,", "vlanId_mask: 0xfff\n"},
    {"mcastPrune", "egrMd_egrL2AintfUnresolved=0x123 egrMd_egrL2AintfUnresolved_mask=0xfffff", 42,
     "00 00 00 00 01 23 00 00", "00 00 00 0f ff ff 00 00", 10, ",0x00000,0xf0000,",
     "  egrMd_egrL2AintfUnresolved mask 0xf0000: 0x00000\n"
     "  egrMd_egrL2AintfUnresolved_mask mask 0xf0000: 0xf0000\n"},
    // The key starts with another field than the record.
    {"egressPortDropCheck",
     "eg_intr_md_egress_port=0x105 outerIpv4Hdr_ttl=0x7f outerIpv4Hdr_ttl_mask=0xff "
     "egrMd_routed=1 egrMd_routed_mask=0xff fwMd_sipDrop=0xff fwMd_sipDrop_mask=0x81",
     23, "01 05 00 00 81 00 7f 00 01", "01 ff 00 00 01 00 ff 00 01", 10,
     "( 0x005,0x1,0x1,0x0,0x0,0x0,0x0,0x0,0x0,0x1,0x1,0x0,0x0,0x7f,0xff,),",
     "  eg_intr_md_egress_port mask 0x7f: 0x005\n  egrMd_routed: 0x1\n"},
    {"trapToCpu",
     "arpHdr_valid=1 arpHdr_valid_mask=1 arpHdr_opcode=0x0102 arpHdr_opcode_mask=0xffff "
     "egrMd_cpuReasonCode=0xab egrMd_cpuReasonCode_mask=0x0f ingIpv4_dip=0x0a010203 "
     "ingIpv4_dip_mask=0xffffff00 ingIpv6_dip=ff020000000000000000000000000016 "
     "ingIpv6_dip_mask=ff000000000000000000000000000003 ingMd_etherType=0x0806 "
     "ingMd_etherType_mask=0xffff ingMd_srcPort=0x1234 ingMd_srcPort_mask=0xff00 "
     "phase0_ingVPort=0x2fff phase0_ingVPort_mask=0xffff",
     287,
     "08 06 00 00 00 12 00 00 00 2f ff 00 00 00 00 01 01 02 00 0a 01 02 00 00 00 00 "
     "ff 00 00 00 00 00 00 00 00 00 00 00 00 00 00 02 00 0b",
     "ff ff 00 00 00 ff 00 00 00 3f ff 00 00 00 00 01 ff ff 00 ff ff ff 00 00 00 00 "
     "ff 00 00 00 00 00 00 00 00 00 00 00 00 00 00 03 00 0f",
     10, ",0xFF020000000000000000000000000016,0xFF000000000000000000000000000003,",
     "  ingIpv6_dip: 0xFF020000000000000000000000000016\n"},
    // Masks of partial fields stand behind their names, a large one with an L.
    {"ingressSflowSample",
     "ig_intr_md_ingress_port=0x1ff ig_intr_md_ingress_port_mask=0x1ff ingMd_rand=0x12345678 "
     "ingMd_rand_mask=0xffffffff",
     41, "01 ff 12 34 56 78", "01 ff ff ff ff ff", 10, "( 0x1ff,0x1ff,0x12345600,0xffffff00,),",
     " p4_pd_tessel_switch_ingressSflowSample_match_spec_t:\n"
     "  ig_intr_md_ingress_port: 0x1ff\n"
     "  ig_intr_md_ingress_port_mask: 0x1ff\n"
     "  ingMd_rand mask 0xffffff00L: 0x12345600\n"
     "  ingMd_rand_mask mask 0xffffff00L: 0xffffff00\n"},
    // Exact: the mask is whole, and whole bytes of the value travel.
    {"l2Lookup", "egrMd_dmacOui=0x001122 egrMd_dmacStation=0x334455 egrMd_egrL2Domain=10", 60,
     "00 11 22 33 44 55 00 0a", "ff ff ff ff ff ff ff ff", 0, "( 0x001122,0x334455,0x00a,),",
     "  egrMd_dmacOui: 0x001122\n"},
    {"decapRestore", "egrMd_decapRestore=0x81 outerIpv6Hdr_valid=1", 3, "81 00 01", "ff ff ff", 0,
     "( 0x1,0x0,0x1,),", "  egrMd_decapRestore: 0x1\n"},
    {"nextHop", "l3_nextHop=0xabcd1234", 14, "12 34", "ff ff", 0, "( 0x1234,),",
     " p4_pd_tessel_switch_nextHop_match_spec_t:\n  l3_nextHop: 0x1234\n"},
    {"ecmpGroup", "l3_ecmpGroup=0x3f12", 14, "3f 12", "ff ff", 0, "( 0x0012,),",
     " p4_pd_tessel_switch_ecmpGroup_match_spec_t:\n  l3_ecmpGroup mask 0xff: 0x0012\n"},
    // Longest prefix: the priority is the number of wildcard bits, and a prefix beyond the address
    // comes last.
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=0", 40,
     "03 00 00 00 00", "ff 00 00 00 00", 32, "( 0x03,0x0a010203,0x0000,),",
     " p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t:\n  l3Info_vrfId: 0x03\n"
     "  ingIpv4_dip: 0x0a010203\n  ingIpv4_dip_prefix_length: 0x0000\n"},
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=20", 40,
     "03 0a 01 00 00", "ff ff ff f0 00", 12, ",0x0014,", ": 0x0014\n"},
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=31", 40,
     "03 0a 01 02 02", "ff ff ff ff fe", 1, ",0x001f,", ": 0x001f\n"},
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=32", 40,
     "03 0a 01 02 03", "ff ff ff ff ff", 0, ",0x0020,", ": 0x0020\n"},
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=33", 40,
     "03 0a 01 02 03", "ff ff ff ff ff", 41, ",0x0021,", ": 0x0021\n"},
    {"ipv6ShortMaskLpm",
     "l3Info_vrfId=9 ingIpv6_dip=20010db80000ffff01020304050607ff ingIpv6_dip_prefix_length=61",
     136, "09 20 01 0d b8 00 00 ff f8 00 00 00 00 00 00 00 00",
     "ff ff ff ff ff ff ff ff f8 00 00 00 00 00 00 00 00", 67,
     "( 0x09,0x20010DB80000FFFF01020304050607FF,0x003d,),",
     "  ingIpv6_dip: 0x20010DB80000FFFF01020304050607FF\n"},
    {"ipv6ShortMaskLpm",
     "l3Info_vrfId=9 ingIpv6_dip=20010db80000ffff01020304050607ff ingIpv6_dip_prefix_length=127",
     136, "09 20 01 0d b8 00 00 ff ff 01 02 03 04 05 06 07 fe",
     "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff fe", 1, ",0x007f,", ": 0x007f\n"},
    {"ipv6ShortMaskLpm",
     "l3Info_vrfId=9 ingIpv6_dip=20010db80000ffff01020304050607ff ingIpv6_dip_prefix_length=129",
     136, "09 20 01 0d b8 00 00 ff ff 01 02 03 04 05 06 07 ff",
     "ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff ff", 137, ",0x0081,", ": 0x0081\n"},
};

TEST_F(Records, OfKeys) {
  for (const KeyRow &row : kKeyRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.members);
    const Spec spec(record_of(tables(), row.table), row.members);
    uint32_t entry = 0;
    Arguments find(*find_export("match_spec_to_entry_hdl", row.table));
    find.set("match_spec", spec.data()).set("entry", &entry);
    if (find.takes("priority")) find.set("priority", uint64_t{10});
    const auto match = sent(find).get<soft::journal::MatchSpec>("match");
    EXPECT_EQ(match.valid_bit_count, row.bits);
    EXPECT_EQ(match.byte_count, (std::strlen(row.key) + 1) / 3);
    EXPECT_EQ(hex(match.value.value()), row.key);
    EXPECT_EQ(hex(match.mask.value()), row.mask);
    EXPECT_EQ(match.priority, row.priority);
    const std::string value =
        value_of(spec, "match_spec_value", P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX);
    EXPECT_NE(value.find(row.value), std::string::npos) << value;
    const std::string lines = lines_of(spec, "match_spec_print");
    EXPECT_NE(lines.find(row.lines), std::string::npos) << lines;
  }
}

// ---- Action specs ----

struct ActionRow {
  const char *family;
  const char *table;
  const char *action;
  const char *members;
  unsigned bits;
  const char *data;
  const char *resources;  // handle:index:tag
  const char *value;
};

const ActionRow kActionRows[] = {
    {"table_add", "ingressPortMapping", "setPhase0",
     "ingVPort=0x0123 nativeAintf=0x0456 switchPort=1 physicalPort=2", 29, "01 23 04 56 01 02", "",
     "('setPhase0',(0x0123,0x456,0x1,0x2,)),"},
    {"table_add", "cpuEncap", "trapPktToCpuSubintf", "cpuPort=0x1ab trapPipelineQid=0x1f", 14,
     "01 ab 1f", "", "('trapPktToCpuSubintf',(0x1ab,0x1f,)),"},
    {"table_add", "mirrorPacketEncap", "setMirrorPacketEncapGreIpv4",
     "srcIp=0x0a000001 dstIp=0xc0a80102 ttl=64 dscp=0x2e greProto=0x88be vlanId=0x0fed "
     "dmacOui=0x00abcdef dmacStation=0x00123456",
     154, "0a 00 00 01 c0 a8 01 02 40 2e 88 be 0f ed ab cd ef 12 34 56", "",
     "('setMirrorPacketEncapGreIpv4',(0x0a000001,0xc0a80102,0x40,0x2e,0x88be,0xfed,0xabcdef,"
     "0x123456,)),"},
    // What is above the last byte is dropped.
    {"table_add", "nextHop", "setNextHopDetails",
     "dmacOui=0xff123456 dmacStation=0xee654321 domain=0xf00d", 60, "12 34 56 65 43 21 f0 0d", "",
     "('setNextHopDetails',(0x123456,0x654321,0x00d,)),"},
    {"table_add", "ipv4ShortMaskLpm", "setNextHop", "nextHop=0x00010005", 14, "00 05", "",
     "('setNextHop',(0x0005,)),"},
    {"table_add", "hashComputeInnerIpHdr", "hashComputeInnerIpv4HdrAction", "", 0, "", "",
     "('hashComputeInnerIpv4HdrAction',()),"},
    // Cells of indirect resources.
    {"table_add", "firewallPolicy", "setFirewallPolicyDrop", "counterIndex=7 log=1", 34,
     "00 00 00 00 01 00", "04000005:7:1", "('setFirewallPolicyDrop',(0x00000007,0x1,0x0,)),"},
    {"table_modify", "firewallPolicy", "setFirewallPolicyPermit",
     "counterIndex=12 updateFlowBusy=1 response=1", 35, "00 00 00 00 01 00 01", "04000005:c:1",
     "('setFirewallPolicyPermit',(0x0000000c,0x1,0x0,0x1,)),"},
    {"set_default_action", "firewallPolicy", "setFirewallPolicyDrop",
     "counterIndex=9 log=1 meterDrop=1", 34, "00 00 00 00 01 01", "04000005:9:1",
     "('setFirewallPolicyDrop',(0x00000009,0x1,0x1,)),"},
    {"table_add", "pdpPolicy", "pdpPolice", "pdpResourceIndex=0x1234", 32, "00 00 00 00",
     "04000007:1234:1 05000001:1234:1", "('pdpPolice',(0x00001234,)),"},
    {"table_modify", "pdpPolicy", "setPdpClassCount", "pdpResourceIndex=0x5678", 32, "00 00 00 00",
     "04000007:5678:1 05000001:0:2", "('setPdpClassCount',(0x00005678,)),"},
    {"table_add", "egressMirrorRate", "setEgressMirrorColor", "meterIndex=44", 32, "00 00 00 00",
     "05000007:2c:1", "('setEgressMirrorColor',(0x0000002c,)),"},
    {"set_default_action", "egressMirrorRate", "setEgressMirrorColorRed", "", 0, "", "05000007:0:2",
     "('setEgressMirrorColorRed',()),"},
    {"table_add", "ingressMirrorRate", "setIngressMirrorColorRed", "", 0, "", "05000006:0:2",
     "('setIngressMirrorColorRed',()),"},
    // Direct ones: a modified entry keeps its counter, defaults attach.
    {"table_add", "trapToCpu", "noOp", "", 0, "", "0400000a:0:1", "('noOp',()),"},
    {"table_modify", "trapToCpu", "trapPacket", "cpuReasonCode=0x42", 8, "42", "",
     "('trapPacket',(0x42,)),"},
    {"table_modify_by_match_spec", "l2DmacClassify", "setBcast", "", 0, "", "", "('setBcast',()),"},
    {"set_default_action", "kiteFlow1Counter", "onMiss", "", 0, "", "04000002:0:1",
     "('onMiss',()),"},
    {"set_default_action", "egrStpCheck", "egrStpAction", "", 0, "", "06000009:0:1",
     "('egrStpAction',()),"},
};

TEST_F(Records, OfActions) {
  for (const ActionRow &row : kActionRows) {
    SCOPED_TRACE(std::string(row.family) + " " + row.action);
    const Spec spec(record_of(actions(), row.action), row.members);
    const Spec key(record_of(tables(), row.table));
    Arguments install(*find_export(row.family, row.table, row.action));
    uint32_t entry = 0;
    if (install.takes("match_spec")) install.set("match_spec", key.data());
    if (install.takes("priority")) install.set("priority", uint64_t{0});
    if (install.takes("ttl")) install.set("ttl", uint64_t{0});
    if (install.takes("action_spec")) install.set("action_spec", spec.data());
    const bool modifies = std::string_view(row.family).starts_with("table_modify");
    if (!modifies) install.set("entry", &entry);
    if (modifies && install.takes("entry")) install.set("entry", uint64_t{1});
    const auto action = sent(install).get<soft::journal::ActionSpec>("action_spec");
    EXPECT_EQ(action.type, 1u);
    EXPECT_EQ(action.data.valid_bit_count, row.bits);
    EXPECT_EQ(action.data.byte_count, (std::strlen(row.data) + 1) / 3);
    EXPECT_EQ(data_of(action), row.data) << "no bytes have an address too";
    EXPECT_EQ(resources_of(action), row.resources);
    EXPECT_EQ(value_of(spec, "action_value", P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX), row.value);
  }
}

// ---- Every record ----

// Value string and printed lines, by the masks of the schema; wide fields are written whole.
struct Texts {
  std::string value;
  std::string lines;
};

Texts texts_of(const Spec &spec, bool is_table) {
  const Record &record = spec.record();
  const std::string name = record.name;
  const std::vector<Literal> schema = is_table ? schema_fields(name) : std::vector<Literal>{};
  Texts texts{is_table ? "( " : "('" + name + "',(",
              is_table ? " p4_pd_tessel_switch_" + name + "_match_spec_t:\n" : ""};
  for (size_t i = 0; i < record.member_count; ++i) {
    const Member &member = record.members[i];
    const uint32_t full = member.width < 32 ? (1u << member.width) - 1 : 0xffffffff;
    const bool wide = member.storage == 16;
    const uint32_t mask = is_table && !wide ? static_cast<uint32_t>(schema[i][3].number()) : full;
    char text[48];
    texts.lines += std::string(is_table ? "  " : "  action_") + member.name;
    if (!wide && mask != full) {
      std::snprintf(text, sizeof text, " mask 0x%x%s", mask, mask > 0x7fffffff ? "L" : "");
      texts.lines += text;
    }
    std::string digits;
    for (size_t byte = 0; wide && byte < 16; ++byte) {
      std::snprintf(text, sizeof text, "%02X", spec.at(member)[byte]);
      digits += text;
    }
    if (!wide) {
      std::snprintf(text, sizeof text, "%0*x", static_cast<int>((member.width + 3) / 4),
                    spec.get(member) & mask);
      digits = text;
    }
    texts.lines += ": 0x" + digits + "\n";
    texts.value += "0x" + digits + ",";
  }
  texts.value += is_table ? ")," : ")),";
  return texts;
}

TEST_F(Records, OfEveryTableAndAction) {
  std::mt19937 random(1);
  size_t compared = 0;
  size_t longest[2] = {};
  for (const bool is_table : {true, false}) {
    for (const Record &record : is_table ? tables() : actions()) {
      if (is_table && record.member_count == 0) continue;
      for (int round = 0; round < 10; ++round) {
        Spec spec(record);
        spec.fill(random);
        const Texts wanted = texts_of(spec, is_table);
        const std::string value =
            is_table ? value_of(spec, "match_spec_value", P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX)
                     : value_of(spec, "action_value", P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX);
        ASSERT_EQ(value, wanted.value);
        const auto read = read_literal(value);
        ASSERT_TRUE(read && read->is_tuple(1) && (is_table || (*read)[0].is_tuple(2))) << value;
        longest[is_table] = std::max(longest[is_table], value.size() + 1);
        if (record.member_count == 0) continue;
        ASSERT_EQ(lines_of(spec, is_table ? "match_spec_print" : "action_print"), wanted.lines);
        ++compared;
      }
    }
  }
  EXPECT_EQ(compared, 1880u);
  EXPECT_EQ(longest[true], static_cast<size_t>(P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX));
  EXPECT_EQ(longest[false], static_cast<size_t>(P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX));
}

}  // namespace
}  // namespace pd_test
