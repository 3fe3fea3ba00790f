// Counters, registers, hash calculations, value sets and traffic by their commands.
#include "soft_journal.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

using soft::journal::Bytes;

TEST_F(ToolTest, TrafficCountsInHardwareUntilACounterIsRead) {
  run("add l2DmacClassify ingressPort=1 dmac=01:00:00:00:00:00&01:00:00:00:00:00 priority=1 "
      "action=setMcast as=d");
  const std::string entry = "entry=" + std::to_string(context_.labels["d"]);
  const std::string label = " label=Ingress Port 0x01 dmac 0100.0000.0000/0100.0000.0000\n";
  EXPECT_EQ(run("traffic l2DmacClassify ingressPort=1 dmac=01:00:5e:00:00:01 packets=5 bytes=640"),
            "l2DmacClassify " + entry +
                " ingressPort=1 dmac=01:00:00:00:00:00&01:00:00:00:00:00 priority=1 "
                "action=setMcast color=green\n");
  EXPECT_EQ(run("counter read l2DmacClassifyCount entry=$d source=software"),
            "l2DmacClassifyCount " + entry + " packets=0 bytes=0" + label);
  EXPECT_EQ(run("counter read l2DmacClassifyCount entry=$d"),
            "l2DmacClassifyCount " + entry + " packets=5 bytes=640" + label);
  run("traffic l2DmacClassify ingressPort=1 dmac=01:00:5e:00:00:01");
  EXPECT_EQ(run("counter sync l2DmacClassifyCount"), "l2DmacClassifyCount synchronised\n");
  EXPECT_EQ(run("counter read l2DmacClassifyCount entry=$d source=software"),
            "l2DmacClassifyCount " + entry + " packets=6 bytes=704" + label);
  EXPECT_EQ(run("lookup l2DmacClassify ingressPort=1 dmac=00:00:5e:00:00:01"),
            "l2DmacClassify default action=onMiss\n");
}

TEST_F(ToolTest, LookupTakesTheLongestPrefix) {
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.0.0/8 action=setNextHop nextHop=1");
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.2.0.0/16 action=setNextHop nextHop=2");
  const std::string hit = run("lookup ipv4ShortMaskLpm vrfId=1 dip=10.2.3.4");
  EXPECT_TRUE(hit.ends_with("dip=10.2.0.0/16 ttl=0 action=setNextHop nextHop=2\n")) << hit;
  EXPECT_EQ(run("lookup ipv4ShortMaskLpm vrfId=2 dip=10.2.3.4"),
            "ipv4ShortMaskLpm default action=ipv4ShortMaskLpmMiss\n");
}

TEST_F(ToolTest, CountersByIndexKeepWhatIsWritten) {
  EXPECT_EQ(run("counter write firewallPolicyCount index=3 packets=10 bytes=0x100000000"), "");
  EXPECT_EQ(run("counter read firewallPolicyCount index=3"),
            "firewallPolicyCount index=3 packets=10 bytes=4294967296\n");
}

// The device has two pipes, so that a cell has two values.
TEST_F(ToolTest, RegistersOfBothWidthsAreWrittenReadAndReset) {
  EXPECT_EQ(run("register write flowDigestCountReg index=3 value=0xfedcba98"), "");
  EXPECT_EQ(run("register range flowDigestCountReg first=2 count=2"),
            "flowDigestCountReg index=2 values=0,0\n"
            "flowDigestCountReg index=3 values=4275878552,4275878552\n");
  EXPECT_EQ(run("register reset flowDigestCountReg first=3 count=1"), "");
  EXPECT_EQ(run("register read flowDigestCountReg index=3"),
            "flowDigestCountReg index=3 values=0,0\n");
  EXPECT_EQ(run("register write ingVlanCheckData index=9 value=1"), "");
  EXPECT_EQ(run("register range ingVlanCheckData first=8 count=3"),
            "ingVlanCheckData index=8 values=0,0\n"
            "ingVlanCheckData index=9 values=1,1\n"
            "ingVlanCheckData index=10 values=0,0\n");
  EXPECT_EQ(run("register write ingVlanCheckData index=9 value=2"), "47: '2': value is at most 1");
}

TEST_F(ToolTest, HashValuesAreLaidEndToEnd) {
  soft::journal::start();
  run("hash compute hashOuterIpv4Hdr 10.0.0.1/32 00:11:22:33:44:55/48 6/8");
  soft::journal::stop();
  const auto calls = soft::journal::calls("pipe_mgr_hash_calc_calculate_hash_value");
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].get<Bytes>("stream"),
            (Bytes{10, 0, 0, 1, 0x00, 0x11, 0x22, 0x33, 0x44, 0x55, 6}));
  EXPECT_EQ(run("hash set hashOuterIpv4Hdr seed=0x1234"), "");
  EXPECT_EQ(run("hash get hashOuterIpv4Hdr"), "hashOuterIpv4Hdr input=0 algorithm=0 seed=0x1234\n");
  EXPECT_EQ(run("hash compute hashOuterIpv4Hdr 256/8"),
            "31: '256': the value has 8 bits, so at most 255");
}

TEST_F(ToolTest, ValueSetsKeepTheirValues) {
  EXPECT_EQ(run("valueset add recirc_ports value=0x44 as=v"), "");
  EXPECT_EQ(run("valueset modify recirc_ports entry=$v value=0x40 mask=0xf0"), "");
  EXPECT_EQ(
      run("valueset show recirc_ports"),
      "recirc_ports entry=" + std::to_string(context_.labels["v"]) + " value=0x40 mask=0xf0\n");
  EXPECT_EQ(run("valueset add recirc_ports value=1 direction=egres"),
            "45: 'egres': direction is one of ingress, egress; did you mean 'egress'?");
  EXPECT_EQ(run("valueset delete recirc_ports entry=$v"), "");
  EXPECT_EQ(run("valueset show recirc_ports"), "");
}

// Names as the header has them, records that are passed by value, texts, room for what comes back.
TEST_F(ToolTest, TheTraceIsC) {
  const std::string begin = "  status = p4_pd_tessel_switch_";
  EXPECT_EQ(run("default set egressMcRemap action=setL2DomainReplicated l2Domain=7 --trace"),
            "{\n  p4_pd_tessel_switch_setL2DomainReplicated_action_spec_t action_spec = "
            "{.action_l2Domain = 0x7};\n  p4_pd_entry_handle_t entry = {0};\n" +
                begin +
                "egressMcRemap_set_default_action_setL2DomainReplicated(session, target, "
                "&action_spec, &entry);  /* BF_SUCCESS (0) */\n}\n");
  EXPECT_EQ(run("counter write pdpClassCount index=1 packets=3 bytes=4 --trace"),
            "{\n  p4_pd_counter_values_t values = {3u, 4u};\n" + begin +
                "counter_write_pdpClassCount(session, target, 1, values);  /* BF_SUCCESS (0) */\n"
                "}\n");
  EXPECT_EQ(run("valueset add recirc_ports value=3 --trace"),
            "{\n  p4_pd_parser_target_t parser = {0, 0, 0xffff, 0xff};\n"
            "  p4_pd_entry_handle_t entry = {0};\n" +
                begin +
                "pvs_recirc_ports_entry_add(session, parser, 3, 0xffffffff, &entry);"
                "  /* BF_SUCCESS (0) */\n}\n");
  const std::string hash = run("hash compute hashOuterIpv4Hdr 10.0.0.1/32 6/8 --trace");
  EXPECT_EQ(hash.substr(0, hash.find("  status")),
            "{\n  p4_pd_hash_calc_attr_t attributes[2] = "
            "{{.field = 0, .value = 0xa000001}, {.field = 1, .value = 0x6}};\n"
            "  uint32_t attribute_sizes[2] = {32, 8};\n  uint8_t hash[8] = {0};\n");
  const std::string range = run("register range flowDigestCountReg first=0 count=3 --trace");
  EXPECT_NE(range.find("  uint32_t values[4096] = {0};\n"), std::string::npos) << range;
}

}  // namespace
}  // namespace tesselctl
