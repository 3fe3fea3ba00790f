// Labels of counted entries, to the letter.
#include "text_fixture.hpp"

namespace pd_test {
namespace {

std::string label(const Spec &spec) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_LABEL_MAX);
  const Export &function = *find_export("match_spec_stringify_for_counter", spec.record().name);
  return buffer.text(call(function, spec.data(), buffer.data()));
}

std::string drop(Spec::Values values) { return label({"finalDropControl", values}); }
std::string trap(Spec::Values values) { return label({"trapToCpu", values}); }

TEST(Label, ExactNumbersAreCutToTheirKeys) {
  EXPECT_EQ(label({"kiteFlow1Counter", {{"kflowMd_counterIndex", 0xfff}}}), "counterIndex 0x7ff ");
  EXPECT_EQ(label({"kiteFlow2Counter", {{"kflowMd_counterIndex", 0xfff}}}), "counterIndex 0xfff ");
  EXPECT_EQ(label({"kiteFlow3Counter", {{"kflowMd_counterIndex", 0x805}}}), "counterIndex 0x005 ");
  EXPECT_EQ(label({"ingressPortDropCheck", {{"ig_intr_md_ingress_port", 0x1ff}}}),
            "Ingress Port 0x7f ");
  EXPECT_EQ(label({"egressPortDropCheck", {{"eg_intr_md_egress_port", 0x83}}}),
            "Egress Port 0x03 ");
}

TEST(Label, MacAddresses) {
  const auto dmac = [](uint32_t oui_mask, uint32_t station_mask) {
    return label({"l2DmacClassify",
                  {{"outerEthHdr_dmacOui", 0x001122},
                   {"outerEthHdr_dmacOui_mask", oui_mask},
                   {"outerEthHdr_dmacStation", 0x334455},
                   {"outerEthHdr_dmacStation_mask", station_mask}}});
  };
  EXPECT_EQ(dmac(0, 0), "Ingress Port 0x00 ");
  EXPECT_EQ(dmac(0xffffff, 0xffffff), "Ingress Port 0x00 dmac 0011.2233.4455 ");
  EXPECT_EQ(dmac(0xffffff, 0xff0000), "Ingress Port 0x00 dmac 0011.2233.4455/ffff.ffff.0000 ");
}

TEST(Label, FlagsOfOneBit) {
  EXPECT_EQ(drop({}), "");
  EXPECT_EQ(drop({{"ingMd_dropSmac", 1}}), "");
  EXPECT_EQ(drop({{"ingMd_dropSmac", 1}, {"ingMd_dropSmac_mask", 1}}), "dropSmac ");
  EXPECT_EQ(drop({{"ingMd_dropSmac_mask", 1}}), "!dropSmac ");
  // Bits beyond the field are neither mask nor value.
  EXPECT_EQ(drop({{"ingMd_dropSmac", 1}, {"ingMd_dropSmac_mask", 0xfe}}), "");
  EXPECT_EQ(drop({{"ingMd_dropSmac", 0xfe}, {"ingMd_dropSmac_mask", 1}}), "!dropSmac ");
  // Two flags are followed by two blanks.
  EXPECT_EQ(drop({{"ingMd_drop", 1}, {"ingMd_drop_mask", 1}}),
            "Ingress Port Drop - See ingressPortDropCount  ");
  EXPECT_EQ(drop({{"ingMd_drop_mask", 1}}), "!Ingress Port Drop - See ingressPortDropCount  ");
  EXPECT_EQ(drop({{"egrMd_routed", 1}, {"egrMd_routed_mask", 1}}), "Routed Drop  ");
  // A field that is never written.
  EXPECT_EQ(drop({{"tesselFlowMgmtHdr_valid", 1}, {"tesselFlowMgmtHdr_valid_mask", 1}}), "");
}

TEST(Label, FlagsOfOneBitAmongSeveral) {
  EXPECT_EQ(drop({{"ingMd_v4V6Valid", 7}, {"ingMd_v4V6Valid_mask", 4}}), "Invalid IP Version ");
  EXPECT_EQ(drop({{"ingMd_v4V6Valid", 3}, {"ingMd_v4V6Valid_mask", 7}}), "!Invalid IP Version ");
  EXPECT_EQ(drop({{"ingMd_v4V6Valid", 7}, {"ingMd_v4V6Valid_mask", 3}}), "");
  EXPECT_EQ(label({"ingressPortDropCheck",
                   {{"ingMd_invalidTunnel_mask", 1},
                    {"ingMd_illegalSmac", 1},
                    {"ingMd_illegalSmac_mask", 1},
                    {"ingMd_illegalDmac_mask", 1},
                    {"parserMd_outerHdrFlags", 0x8},
                    {"parserMd_outerHdrFlags_mask", 0xf},
                    {"ig_intr_md_from_parser_aux_ingress_parser_err", 0xefff},
                    {"ig_intr_md_from_parser_aux_ingress_parser_err_mask", 0x1000}}}),
            "Ingress Port 0x00 !invalidTunnel illegalSmac !illegalDmac Pause Frame "
            "!Invalid IP Checksum ");
}

TEST(Label, Numbers) {
  EXPECT_EQ(drop({{"ig_intr_md_ingress_port", 0x1ff}, {"ig_intr_md_ingress_port_mask", 0x7f}}),
            "Ingress Port 0x7f ");
  EXPECT_EQ(drop({{"ig_intr_md_ingress_port", 0x1ff}, {"ig_intr_md_ingress_port_mask", 0x3}}),
            "Ingress Port & 0x3 0x7f ");
  // A mask of more than the key's bits is not the key's.
  EXPECT_EQ(drop({{"ig_intr_md_ingress_port", 2}, {"ig_intr_md_ingress_port_mask", 0x1ff}}),
            "Ingress Port & 0x1ff 0x02 ");
  const auto ttl = [](uint32_t mask) {
    return label({"egressPortDropCheck",
                  {{"outerIpv4Hdr_ttl", 9},
                   {"outerIpv4Hdr_ttl_mask", mask},
                   {"outerIpv4Hdr_valid", 1},
                   {"outerIpv4Hdr_valid_mask", 1}}});
  };
  EXPECT_EQ(ttl(0xff), "Egress Port 0x00 ttl 0x09 ");
  EXPECT_EQ(ttl(0xf), "Egress Port 0x00 ttl & 0xf 0x09 ");
  EXPECT_EQ(ttl(0), "Egress Port 0x00 ");
}

TEST(Label, UnresolvedInterface) {
  const auto unresolved = [](uint32_t value, uint32_t mask) {
    return drop({{"egrMd_egrL2AintfUnresolved", value}, {"egrMd_egrL2AintfUnresolved_mask", mask}});
  };
  EXPECT_EQ(unresolved(5, 0), "");
  EXPECT_EQ(unresolved(0, 0xfffff), " ");
  EXPECT_EQ(unresolved(0x10000, 0xfffff), " ");
  EXPECT_EQ(unresolved(0x10, 0xf), " ");
  EXPECT_EQ(unresolved(0x1ff, 0xfffff), "Invalid Port  ");
  EXPECT_EQ(unresolved(0x3ff, 0x1ff), "Invalid Port  ");
  EXPECT_EQ(unresolved(5, 0xfffff), "egrL2AintfUnresolved 0x00005 ");
  EXPECT_EQ(unresolved(0xff, 0xf), "egrL2AintfUnresolved & 0xf 0x000ff ");
  // No bit of the field in the mask, and bits beside those of the field.
  EXPECT_EQ(unresolved(0, 0x100000), "egrL2AintfUnresolved & 0x100000 0x00000 ");
  EXPECT_EQ(unresolved(0x1ff, 0xfff00000), "egrL2AintfUnresolved & 0xfff00000 0x001ff ");
  EXPECT_EQ(unresolved(0x1005, 0xffffffff), "egrL2AintfUnresolved & 0xffffffff 0x01005 ");
  EXPECT_EQ(unresolved(0x1ff, 0xffffffff), "Invalid Port  ");
}

TEST(Label, MulticastGroup) {
  const auto group = [](uint32_t value, uint32_t mask) {
    return drop(
        {{"ig_intr_md_for_tm_mcast_grp_a", value}, {"ig_intr_md_for_tm_mcast_grp_a_mask", mask}});
  };
  EXPECT_EQ(group(7, 0), "");
  EXPECT_EQ(group(0, 0xffff), " ");
  EXPECT_EQ(group(0xf0, 0xf), " ");
  EXPECT_EQ(group(0x12, 0xffff), "mcast_grp_a 0x0012 ");
  EXPECT_EQ(group(0x12, 0xff), "mcast_grp_a & 0xff 0x0012 ");
}

TEST(Label, Decapsulation) {
  const auto decap = [](uint32_t value, uint32_t mask) {
    return trap({{"egrMd_decapType", value}, {"egrMd_decapType_mask", mask}});
  };
  EXPECT_EQ(decap(3, 0), "");
  EXPECT_EQ(decap(0, 7), "NoDecap ");
  EXPECT_EQ(decap(1, 7), "VxLanDecap ");
  EXPECT_EQ(decap(2, 7), "CPU-to-Port ");
  EXPECT_EQ(decap(3, 7), "CPU-to-VLAN ");
  EXPECT_EQ(decap(3, 1), "VxLanDecap ");
  EXPECT_EQ(decap(6, 7), "decapType 0x6 ");
  EXPECT_EQ(decap(7, 5), "decapType & 0x5 0x7 ");
  // Whatever the mask, one beside the field's bits too.
  EXPECT_EQ(decap(4, 3), "NoDecap ");
  EXPECT_EQ(decap(7, 8), "NoDecap ");
}

TEST(Label, IpAddresses) {
  EXPECT_EQ(trap({{"ingIpv4_dip", 0x0a000001}, {"ingIpv4_dip_mask", 0xff00ff00}}),
            "dip 10.0.0.1/8 ");
  EXPECT_EQ(trap({{"ingIpv4_dip", 0x0a000001}}), "");
  Spec v6("trapToCpu", {});
  v6.set_bytes("ingIpv6_dip", {0x20, 0x01, 0x0d, 0xb8});
  EXPECT_EQ(label(v6), "");
  v6.set_bytes("ingIpv6_dip_mask", {0xff, 0xff, 0xff});
  // Address and mask whole, though the key uses two bytes of them.
  EXPECT_EQ(label(v6), "dip 2001:db8::/ffff:ff00:: ");
}

// Every item of a label in its order, each mask full and each value set.
Spec all_set(const char *table) {
  Spec spec(record_of(tables(), table));
  for (const Member &member : spec.record().member_list()) {
    std::memset(spec.at(member), 0xff, member.storage);
  }
  for (const Literal &field : schema_fields(table)) {
    if (field[1].text.ends_with("_mask") && field[2].number() <= 32) {
      spec.set(spec.member(field[1].text), static_cast<uint32_t>(field[3].number()));
    }
  }
  return spec;
}

TEST(Label, ItemsInTheirOrder) {
  EXPECT_EQ(label(all_set("finalDropControl")),
            "Ingress Port 0x7f Ingress Port Drop - See ingressPortDropCount  dropSmac dropDmac "
            "invalidEgressPort samePortBridging routedMartian mlagPrune Invalid IP Version "
            "egrL2AintfUnresolved 0xfffff mcast_grp_a 0xffff Routed Drop  trapToCpu Datalink "
            "stpBlocked invalidVlan dot1xDrop copy_to_cpu stormControlDrop Firewall Drop "
            "escortToRecircPort Meter Drop New-flow Meter Drop Flow Limit Drop kFlow Drop bcast "
            "mcast ");
  const std::string ones = "ffff:ffff:ffff:ffff:ffff:ffff:ffff:ffff";
  EXPECT_EQ(label(all_set("trapToCpu")),
            "etherType 0xffff bcast mcast l4Attr 0x7 srcPort 0xffff dstPort 0xffff ingVPort "
            "0x3fff ingL3Aintf 0xfff L3DmacValid Ttl 0xff ARP opcode 0xffff IGMP snoop dip "
            "255.255.255.255/32 protocol 0xff VXLAN flood decapType 0x7 dip " +
                ones + "/" + ones + " CPUinVLan cpuReasonCode 0xff ");
  EXPECT_EQ(label(all_set("egressPortDropCheck")),
            "Egress Port 0x7f stpBlocked invalidVlan Firewall Source IP Meter drop Firewall "
            "Destination IP Meter drop ttl 0xff routed ");
}

// Every field clear under a mask of its lowest bit or its lowest two.
TEST(Label, ItemsWithPartialMasks) {
  Spec trap("trapToCpu", {});
  Spec egress("egressPortDropCheck", {});
  for (Spec *spec : {&trap, &egress}) {
    for (const Member &member : spec->record().member_list()) {
      if (member.role != bindings::Role::mask || member.storage == 16) continue;
      spec->set(member, member.width == 1 ? 1 : 3);
    }
  }
  trap.set(trap.member("egrMd_decapType"), 7);
  trap.set(trap.member("egrMd_decapType_mask"), 4);
  trap.set(trap.member("ingMd_srcPort"), 0xabc);
  EXPECT_EQ(label(trap),
            "etherType & 0x3 0x0000 !bcast !mcast l4Attr & 0x3 0x0 srcPort & 0x3 0x0abc dstPort & "
            "0x3 0x0000 ingVPort & 0x3 0x0000 ingL3Aintf & 0x3 0x000 !L3DmacValid Ttl & 0x3 0x00 "
            "ARP opcode & 0x3 0x0000 !IGMP snoop dip 0.0.0.0/0 protocol & 0x3 0x00 !VXLAN flood "
            "decapType & 0x4 0x7 !CPUinVLan cpuReasonCode & 0x3 0x00 ");
  EXPECT_EQ(label(egress),
            "Egress Port 0x00 !stpBlocked !invalidVlan !Firewall Source IP Meter drop !Firewall "
            "Destination IP Meter drop ttl & 0x3 0x00 !routed ");
}

// Every flag negated, every number with a mask of its own: nothing is longer.
TEST(Label, TheLongestFillsTheStatedBuffer) {
  Spec spec("finalDropControl", {});
  for (const Member &member : spec.record().member_list()) {
    if (member.role == bindings::Role::mask) spec.set(member, 0xffffffff);
  }
  spec.set(spec.member("ig_intr_md_ingress_port_mask"), 0xfffe);
  spec.set(spec.member("ig_intr_md_for_tm_mcast_grp_a"), 0xffff);
  spec.set(spec.member("ig_intr_md_for_tm_mcast_grp_a_mask"), 0xfffe);
  spec.set(spec.member("egrMd_egrL2AintfUnresolved"), 0xfffff);
  const std::string text = label(spec);
  EXPECT_EQ(text,
            "Ingress Port & 0xfffe 0x00 !Ingress Port Drop - See ingressPortDropCount  !dropSmac "
            "!dropDmac !invalidEgressPort !samePortBridging !routedMartian !mlagPrune !Invalid IP "
            "Version egrL2AintfUnresolved & 0xffffffff 0xfffff mcast_grp_a & 0xfffe 0xffff !Routed "
            "Drop  !trapToCpu !Datalink !stpBlocked !invalidVlan !dot1xDrop !copy_to_cpu "
            "!stormControlDrop !Firewall Drop !escortToRecircPort !Meter Drop !New-flow Meter Drop "
            "!Flow Limit Drop !kFlow Drop !bcast !mcast ");
  EXPECT_EQ(text.size() + 1, static_cast<size_t>(P4_PD_TESSEL_SWITCH_LABEL_MAX));
}

}  // namespace
}  // namespace pd_test
