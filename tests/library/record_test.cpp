// What follows from a typed record, worked out by hand: key and mask bytes, action data and
// resources, value string and printed lines, and the label of a counted entry. One row a record.
#include <fmt/format.h>

#include "texts.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

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
};

const KeyRow kKeyRows[] = {
    // Ternary: the value keeps the bits that its mask has, the mask is cut to the width.
    {"cpuEncap", "egrMd_trapToCpu=1 phase0_switchPort=1/1 egrMd_cpuReasonCode=0x25/0xf0", 12,
     "01 00 01 20 00", "01 01 01 f0 00", 10},
    // The key starts with another field than the record.
    {"egressPortDropCheck",
     "eg_intr_md_egress_port=0x105 outerIpv4Hdr_ttl=0x7f/0xff egrMd_routed=1/0xff "
     "fwMd_sipDrop=0xff/0x81",
     23, "01 05 00 00 81 00 7f 00 01", "01 ff 00 00 01 00 ff 00 01", 10},
    // Exact: the mask is whole, and whole bytes of the value travel.
    {"ecmpGroup", "l3_ecmpGroup=0x3f12", 14, "3f 12", "ff ff", 0},
    // Longest prefix: the priority is the number of wildcard bits, and a prefix beyond the address
    // comes last.
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=0", 40,
     "03 00 00 00 00", "ff 00 00 00 00", 32},
    {"ipv4ShortMaskLpm", "l3Info_vrfId=3 ingIpv4_dip=0x0a010203 ingIpv4_dip_prefix_length=33", 40,
     "03 0a 01 02 03", "ff ff ff ff ff", 41},
    {"ipv6ShortMaskLpm",
     "l3Info_vrfId=9 ingIpv6_dip=20010db80000ffff01020304050607ff ingIpv6_dip_prefix_length=61",
     136, "09 20 01 0d b8 00 00 ff f8 00 00 00 00 00 00 00 00",
     "ff ff ff ff ff ff ff ff f8 00 00 00 00 00 00 00 00", 67},
};

TEST_F(Records, OfKeys) {
  for (const KeyRow &row : kKeyRows) {
    SCOPED_TRACE(std::string(row.table) + " " + row.members);
    const Spec spec = key_spec(row.table, row.members);
    uint32_t entry = 0;
    Arguments find(*find_export("match_spec_to_entry_hdl", row.table));
    find.give(with("match_spec", spec.data(), "entry", &entry, "priority", 10));
    const auto match = sent(find).get<soft::journal::MatchSpec>("match");
    EXPECT_EQ(match.valid_bit_count, row.bits);
    EXPECT_EQ(match.byte_count, (std::strlen(row.key) + 1) / 3);
    EXPECT_EQ(hex(match.value.value()), row.key);
    EXPECT_EQ(hex(match.mask.value()), row.mask);
    EXPECT_EQ(match.priority, row.priority);
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
  const char *resources;  // handle:index:tag and a blank for each
};

const ActionRow kActionRows[] = {
    // What is above the last byte is dropped.
    {"table_add", "nextHop", "setNextHopDetails",
     "dmacOui=0xff123456 dmacStation=0xee654321 domain=0xf00d", 60, "12 34 56 65 43 21 f0 0d", ""},
    // Cells of indirect resources.
    {"table_add", "firewallPolicy", "setFirewallPolicyDrop", "counterIndex=7 log=1", 34,
     "00 00 00 00 01 00", "04000005:7:1 "},
    {"table_add", "pdpPolicy", "pdpPolice", "pdpResourceIndex=0x1234", 32, "00 00 00 00",
     "04000007:1234:1 05000001:1234:1 "},
    {"table_modify", "pdpPolicy", "setPdpClassCount", "pdpResourceIndex=0x5678", 32, "00 00 00 00",
     "04000007:5678:1 05000001:0:2 "},
    {"set_default_action", "egressMirrorRate", "setEgressMirrorColorRed", "", 0, "",
     "05000007:0:2 "},
    // Direct ones: a modified entry keeps its counter, defaults attach.
    {"table_add", "trapToCpu", "noOp", "", 0, "", "0400000a:0:1 "},
    {"table_modify", "trapToCpu", "trapPacket", "cpuReasonCode=0x42", 8, "42", ""},
    // A meter of the entry: without a spec it is kept, or let go of by the default entry.
    {"table_modify", "l2LookupMiss", "l2LookupBcastHit", "", 0, "", "05000005:0:0 "},
    {"set_default_action", "l2LookupMiss", "l2LookupBcastHit", "", 0, "", "05000005:0:2 "},
    {"set_default_action", "egrStpCheck", "egrStpAction", "", 0, "", "06000009:0:1 "},
};

TEST_F(Records, OfActions) {
  for (const ActionRow &row : kActionRows) {
    SCOPED_TRACE(std::string(row.family) + " " + row.action);
    const Spec spec = action_spec(row.action, row.members);
    const Spec key = key_spec(row.table);
    uint32_t entry = 1;
    Arguments install(*find_export(row.family, row.table, row.action));
    install.give(with("match_spec", key.data(), "action_spec", spec.data(), "meter_spec", 0,
                      "priority", 0, "ttl", 0));
    if (std::string_view(row.family) == "table_modify") install.set("entry", uint64_t{1});
    if (!std::string_view(row.family).starts_with("table_modify")) install.set("entry", &entry);
    const auto action = sent(install).get<soft::journal::ActionSpec>("action_spec");
    EXPECT_EQ(action.type, 1u);
    EXPECT_EQ(action.data.valid_bit_count, row.bits);
    EXPECT_EQ(action.data.byte_count, (std::strlen(row.data) + 1) / 3);
    EXPECT_EQ(hex(action.data.bytes.value()), row.data) << "no bytes have an address too";
    std::string resources;
    for (const pipe_mgr_resource_t &resource : action.resources) {
      resources += fmt::format("{:08x}:{:x}:{} ", resource.handle, resource.index, resource.tag);
    }
    EXPECT_EQ(resources, row.resources);
  }
}

// ---- Texts ----

TEST_F(Records, OfTexts) {
  const Spec key = key_spec("ingressSflowSample",
                            "ig_intr_md_ingress_port=0x1ff/0x1ff ingMd_rand=0x12345678/0xffffffff");
  EXPECT_EQ(value_of(key, true), "( 0x1ff,0x1ff,0x12345600,0xffffff00,),");
  // Masks of partial fields stand behind their names, a large one with an L.
  EXPECT_EQ(lines_of(key, true),
            " p4_pd_tessel_switch_ingressSflowSample_match_spec_t:\n  ig_intr_md_ingress_port: "
            "0x1ff\n  ig_intr_md_ingress_port_mask: 0x1ff\n  ingMd_rand mask 0xffffff00L: "
            "0x12345600\n  ingMd_rand_mask mask 0xffffff00L: 0xffffff00\n");
  // What is above the width is dropped.
  EXPECT_EQ(value_of(action_spec("setNextHopDetails",
                                 "dmacOui=0xff123456 dmacStation=0xee654321 domain=0xf00d"),
                     false),
            "('setNextHopDetails',(0x123456,0x654321,0x00d,)),");
}

// ---- Labels ----

struct LabelRow {
  const char *table;
  const char *members;
  const char *label;
};

const LabelRow kLabelRows[] = {
    // Exact numbers are cut to their keys.
    {"kiteFlow1Counter", "kflowMd_counterIndex=0xfff", "counterIndex 0x7ff "},
    {"l2DmacClassify", "outerEthHdr_dmacOui=0x001122/0 outerEthHdr_dmacStation=0x334455/0",
     "Ingress Port 0x00 "},
    {"l2DmacClassify",
     "outerEthHdr_dmacOui=0x001122/0xffffff outerEthHdr_dmacStation=0x334455/0xff0000",
     "Ingress Port 0x00 dmac 0011.2233.4455/ffff.ffff.0000 "},
    // Flags: bits beyond the field are neither mask nor value.
    {"finalDropControl", "", ""},
    {"finalDropControl", "ingMd_dropSmac=1/0", ""},
    {"finalDropControl", "ingMd_dropSmac=1/1", "dropSmac "},
    {"finalDropControl", "ingMd_dropSmac=0xfe/1", "!dropSmac "},
    {"finalDropControl", "ingMd_v4V6Valid=7/4", "Invalid IP Version "},
    {"finalDropControl", "ingMd_v4V6Valid=3/7", "!Invalid IP Version "},
    {"finalDropControl", "tesselFlowMgmtHdr_valid=1/1", ""},  // never written
    {"ingressPortDropCheck",
     "ig_intr_md_ingress_port=0x1ff ingMd_invalidTunnel=0/1 ingMd_illegalSmac=1/1 "
     "ingMd_illegalDmac=0/1 parserMd_outerHdrFlags=8/0xf "
     "ig_intr_md_from_parser_aux_ingress_parser_err=0xefff/0x1000",
     "Ingress Port 0x7f !invalidTunnel illegalSmac !illegalDmac Pause Frame "
     "!Invalid IP Checksum "},
    // Numbers: a mask of more than the key's bits is not the key's.
    {"finalDropControl", "ig_intr_md_ingress_port=0x1ff/0x7f", "Ingress Port 0x7f "},
    {"finalDropControl", "ig_intr_md_ingress_port=0x1ff/0x3", "Ingress Port & 0x3 0x7f "},
    {"finalDropControl", "ig_intr_md_ingress_port=2/0x1ff", "Ingress Port & 0x1ff 0x02 "},
    // Texts for values under the mask, and bits beside those of the field.
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=5/0", ""},
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=0x10000/0xfffff", " "},
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=0x10/0xf", " "},
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=0x3ff/0x1ff", "Invalid Port  "},
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=5/0xfffff", "egrL2AintfUnresolved 0x00005 "},
    {"finalDropControl", "egrMd_egrL2AintfUnresolved=0xff/0xf",
     "egrL2AintfUnresolved & 0xf 0x000ff "},
    {"finalDropControl", "ig_intr_md_for_tm_mcast_grp_a=0xf0/0xf", " "},
    {"trapToCpu", "egrMd_decapType=3/0", ""},
    {"trapToCpu", "egrMd_decapType=0/7", "NoDecap "},
    {"trapToCpu", "egrMd_decapType=3/1", "VxLanDecap "},
    {"trapToCpu", "egrMd_decapType=7/5", "decapType & 0x5 0x7 "},
    {"trapToCpu", "egrMd_decapType=7/8", "NoDecap "},  // whatever the mask
    {"trapToCpu", "ingIpv4_dip=0x0a000001/0xff00ff00", "dip 10.0.0.1/8 "},
    {"trapToCpu", "ingIpv6_dip=20010db8000000000000000000000000/00000000000000000000000000000000",
     ""},
    // Address and mask whole, though the key uses two bytes of them.
    {"trapToCpu", "ingIpv6_dip=20010db8000000000000000000000000/ffffff00000000000000000000000000",
     "dip 2001:db8::/ffff:ff00:: "},
};

std::string label(const Spec &spec) {
  return written(*find_export("match_spec_stringify_for_counter", spec.record().name),
                 with("match_spec", spec.data()), binding().sizes.label);
}

TEST_F(Records, OfLabels) {
  for (const LabelRow &row : kLabelRows) {
    EXPECT_EQ(label(key_spec(row.table, row.members)), row.label) << row.members;
  }
}

// Every item of a label in its order, each value set and each mask that of the key.
TEST_F(Records, OfLabelsInTheOrderOfTheirItems) {
  Spec all_set = key_spec("trapToCpu");
  for (const Member &member : all_set.record().member_list()) {
    std::memset(all_set.at(member), 0xff, member.storage);
    if (member.role != bindings::Role::mask || member.storage == 16) continue;
    std::memcpy(all_set.at(member), key_bits(table_named("trapToCpu"), member).data(),
                member.storage);
  }
  const std::string ones = "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff";
  EXPECT_EQ(label(all_set),
            "etherType 0xffff bcast mcast l4Attr 0x7 srcPort 0xffff dstPort 0xffff ingVPort "
            "0x3fff ingL3Aintf 0xfff L3DmacValid Ttl 0xff ARP opcode 0xffff IGMP snoop dip "
            "255.255.255.255/32 protocol 0xff VXLAN flood decapType 0x7 dip " +
                ones + "/" + ones + " CPUinVLan cpuReasonCode 0xff ");
}

}  // namespace
}  // namespace pd_test
