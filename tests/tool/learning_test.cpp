// Digests and snapshots by their commands: what packets bring, field by field.
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

TEST_F(ToolTest, DigestsAreDeliveredAndHeldUntilTheyAreAcknowledged) {
  const std::string entry = "smac=00:11:22:33:44:55 ingL2Domain=10 ingL2Aintf=4";
  EXPECT_EQ(run("digest inject macLearningDigest " + entry).substr(0, 43),
            "15: 'macLearningDigest': BF_NOT_READY (1): ");
  EXPECT_EQ(run("digest listen macLearningDigest"), "");
  EXPECT_EQ(run("digest inject macLearningDigest " + entry + " pipe=1"),
            "macLearningDigest message=1 pipe=1 " + entry + "\n");
  EXPECT_EQ(run("digest inject macLearningDigest " + entry), "macLearningDigest known\n");
  EXPECT_EQ(run("digest inject macLearningDigest smacStation=0x10203"),
            "macLearningDigest message=2 pipe=0 smac=00:00:00:01:02:03 ingL2Domain=0 "
            "ingL2Aintf=0\n");
  EXPECT_EQ(run("digest ack macLearningDigest message=1"), "");
  EXPECT_EQ(run("digest inject macLearningDigest " + entry),
            "macLearningDigest message=3 pipe=0 " + entry + "\n");
  EXPECT_EQ(run("digest show flowLearningDigest"), "");
  EXPECT_EQ(run("digest show macLearningDigest"),
            "macLearningDigest message=2 pipe=0 smac=00:00:00:01:02:03 ingL2Domain=0 "
            "ingL2Aintf=0\n"
            "macLearningDigest message=3 pipe=0 " +
                entry + "\n");
  EXPECT_EQ(run("digest ack macLearningDigest"), "");
  EXPECT_EQ(run("digest show macLearningDigest"), "");
  EXPECT_EQ(run("digest ignore macLearningDigest"), "");
  EXPECT_EQ(run("digest ignore macLearningDigest").substr(0, 25), "15: 'macLearningDigest': ");
}

TEST_F(ToolTest, DigestsArriveWhenTheTimeoutHasPassed) {
  EXPECT_EQ(run("digest listen flowLearningDigest timeout=5000"), "");
  EXPECT_EQ(run("digest inject flowLearningDigest sip=10.0.0.1 dip=10.0.0.2 protocol=6 "
                "srcPort=1025 dstPort=443 ingress_port=300 tstamp=0xffffffffffff vrfId=9"),
            "");
  EXPECT_EQ(run("age advance 4"), "");
  EXPECT_EQ(run("age advance 1"),
            "flowLearningDigest message=1 pipe=0 protocol=6 srcPort=1025 hash2=0 hash1=0 "
            "sip=10.0.0.1 fromParserAuxIngressGlobalTstamp=281474976710655 ingressPort=300 "
            "dip=10.0.0.2 dstPort=443 response=0 flowDigestCount=0 presentSecond=0 tcpFlags=0 "
            "vrfId=9 presentFirst=0\n");
}

TEST_F(ToolTest, SnapshotsShowWhatTheyCaught) {
  EXPECT_EQ(run("snapshot create first=2 last=4 direction=egress as=s"), "");
  const std::string handle = std::to_string(context_.labels["s"]);
  EXPECT_EQ(run("snapshot trigger snapshot=$s outerIpv4Hdr_dip=10.0.0.0/8 egress_port=5"), "");
  EXPECT_EQ(run("snapshot show snapshot=$s"), "");
  EXPECT_EQ(run("snapshot inject direction=egress first=2 outerIpv4Hdr_dip=11.0.0.1 "
                "egress_port=5"),
            "captures=0\n");
  EXPECT_EQ(run("snapshot inject direction=egress first=0 last=3 pipe=1 egress_port=5 "
                "outerIpv4Hdr_dip=10.1.2.3 outerEthHdr_dmac=00:11:22:33:44:55 "
                "outerIpv6Hdr_dip_0=0x20010db8 outerIpv6Hdr_dip_3=1 sipDrop=1"),
            "captures=1\n");
  const std::string caught =
      " triggered=yes outerEthHdrDmac=00:11:22:33:44:55 outerIpv4HdrDip=10.1.2.3 "
      "outerIpv6HdrDip=2001:db8::1 egressPort=5 sipDrop=1\n";
  EXPECT_EQ(run("snapshot show snapshot=$s pipe=1"),
            "snapshot=" + handle + " direction=egress stage=2" + caught + "snapshot=" + handle +
                " direction=egress stage=3" + caught);
  EXPECT_EQ(run("snapshot show snapshot=$s pipe=0"), "");
  EXPECT_EQ(run("snapshot delete snapshot=$s"), "");
  EXPECT_EQ(run("snapshot delete snapshot=$s").substr(0, 34), "26: '$s': BF_OBJECT_NOT_FOUND (7):");
}

// What the program's key leaves out of a field is no part of the comparison, whatever entries and
// packets have there.
TEST_F(ToolTest, LookupsCompareTheBitsThatTheKeyUses) {
  EXPECT_EQ(run("add reservedNextHop nextHop=0x1003 as=three action=setNextHopToCpu "
                "cpuReasonCode=3"),
            "");
  const std::string three = std::to_string(context_.labels["three"]);
  EXPECT_EQ(run("lookup reservedNextHop nextHop=0x23").substr(0, 24 + three.size()),
            "reservedNextHop entry=" + three + " n");
  EXPECT_EQ(run("lookup reservedNextHop nextHop=0x1004"),
            "reservedNextHop default action=setNextHopToCpu cpuReasonCode=0\n");
  // Of the interface the highest 4 bits count, of the group too.
  const std::string rest = " action=setPruneParams l1xId=1 as=";
  run("add mcastPrune priority=9 egrL2AintfUnresolved=0x31234" + rest + "late");
  run("add mcastPrune priority=9 mcast_grp_a=0x8fff" + rest + "tie");
  run("add mcastPrune priority=7 egrL2AintfUnresolved=0x50000 mcast_grp_a=0x1000&0x1000" + rest +
      "first");
  const auto hit = [&](const std::string &packet) {
    const std::string found = run("lookup mcastPrune decapType=0 routed=0 portType=0" + packet);
    for (const auto &[name, entry] : context_.labels) {
      if (found.starts_with("mcastPrune entry=" + std::to_string(entry) + " ")) return name;
    }
    return found;
  };
  EXPECT_EQ(hit(" egrL2AintfUnresolved=0x3ffff mcast_grp_a=0x8000"), "late");
  EXPECT_EQ(hit(" egrL2AintfUnresolved=0x40000 mcast_grp_a=0x8123"), "tie");
  EXPECT_EQ(hit(" egrL2AintfUnresolved=0x5abcd mcast_grp_a=0x9000"), "first");
  EXPECT_EQ(hit(" egrL2AintfUnresolved=0x5abcd mcast_grp_a=0xe000").substr(0, 19),
            "mcastPrune default ");
}

}  // namespace
}  // namespace tesselctl
