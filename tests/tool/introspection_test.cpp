// What the tool tells of the program and its entries by the library's own words.
#include "tesselctl/files.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/schema_value.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

class Introspection : public ToolTest {
 protected:
  // For people, in columns.
  Introspection() { context_.defaults.terse = false; }
};

TEST_F(Introspection, TablesAreListedWithTheirKeys) {
  EXPECT_EQ(run("tables cpuEncap vlanDecap ecmpGroup ipv4ShortMaskLpm --terse"),
            "cpuEncap match=ternary actions=6 size=unlimited entries=0 fields=trapToCpu,"
            "vlanHdrValid,switchPort/mask,cpuReasonCode/mask,vlanHdrValid/mask\n"
            "vlanDecap match=keyless actions=1 size=unlimited entries=0\n"
            "ecmpGroup match=exact actions=0 size=unlimited entries=0 fields=ecmpGroup\n"
            "ipv4ShortMaskLpm match=lpm actions=5 size=unlimited entries=0 fields=vrfId,dip/lpm\n");
  const std::string all = run("tables");
  EXPECT_EQ(std::count(all.begin(), all.end(), '\n'), 121);
  EXPECT_NE(all.find("trapToCpu                   ternary        4  unlimited        0  "
                     "arpHdrValid/mask,opcode/mask,cpuReasonCode/mask,+17\n"),
            std::string::npos)
      << all;
}

TEST_F(Introspection, SchemasInLinesAndAsTheyAre) {
  EXPECT_EQ(run("schema vlanDecap --raw"),
            "( ('vlanDecap','mat',(False,)),(),(( ('removeVlanHdr'),()),))\n");
  EXPECT_EQ(run("schema ecmpMemberActionProfile"),
            "(('setEcmpNextHop', (('nextHop', None, 14, None),)),)\n");
  EXPECT_EQ(run("schema trapPktToCpuTagged --raw"),
            "( ('trapPktToCpuTagged'),(('cpuPort',None,9,None),('trapPipelineQid',None,5,None),))"
            "\n");
  EXPECT_EQ(run("schema cpuEncapFields"),
            "(\n"
            "  ('cpuEncapFields', 'mat', (False,)),\n"
            "  (\n"
            "    ('egressPort', 'eg_intr_md_egress_port', 9, 0x1ff, None, None, None),\n"
            "    ('switchPort', 'phase0_switchPort', 1, 0x1, None, None, None),\n"
            "    ('ingressTagged', 'egrMd_ingressTagged', 1, 0x1, None, None, None),\n"
            "    ('decapType', 'egrMd_decapType', 3, 0x7, None, None, None),\n"
            "  ),\n"
            "  (('encapPktToCpu', (('tagType', None, 2, None),)), ('onMiss', ())),\n"
            ")\n");
}

TEST_F(Introspection, DescribeExplains) {
  EXPECT_EQ(run("describe l2LookupMiss"),
            "l2LookupMiss: ternary table, handle 0x01000048, size unlimited, entries 0\n"
            "meter stormControlMeter, a cell for each entry\n"
            "field        bits  match    key_bits  shown_as  record_field\n"
            "ingressPort     9  ternary  0x7f      port      ig_intr_md_ingress_port\n"
            "dmacOui        24  ternary  all       mac       egrMd_dmacOui\n"
            "dmacStation    24  ternary  all       mac       egrMd_dmacStation\n"
            "action                      in              parameters\n"
            "l2LookupBcastHit            entry, default\n"
            "l2LookupUnknownMcastAction  entry, default\n"
            "l2LookupUnknownUcastAction  entry, default\n");
  EXPECT_EQ(run("describe lagGroup"),
            "lagGroup: ternary table, handle 0x01000046, size unlimited, entries 0\n"
            "entries name a member or a group of lagPortActionProfile\n"
            "field                 bits  match    key_bits  shown_as  record_field\n"
            "egrL2AintfUnresolved    20  ternary  all       number    "
            "egrMd_egrL2AintfUnresolved\n");
  EXPECT_EQ(run("describe ecmpMemberActionProfile"),
            "ecmpMemberActionProfile: action profile, handles 0x0200002f of members and 0x03000001 "
            "of groups\n"
            "action          parameters\n"
            "setEcmpNextHop  nextHop:14\n"
            "entries of ecmpGroup\n");
  EXPECT_EQ(run("describe setNextHop"),
            "setNextHop: action with 1 parameter\n"
            "parameter  bits  shown_as\n"
            "nextHop      14  number\n"
            "table             in\n"
            "ipv4ShortMaskLpm  entry\n"
            "ipv6ShortMaskLpm  entry\n");
  EXPECT_EQ(run("describe lagGroup --json"),
            "{\"version\":1,\"command\":\"describe lagGroup --json\",\"rows\":["
            "{\"table\":\"lagGroup\",\"match\":\"ternary\",\"handle\":\"0x01000046\",\"size\":"
            "\"unlimited\",\"entries\":0},{\"profile\":\"lagPortActionProfile\"},{\"field\":"
            "\"egrL2AintfUnresolved\",\"bits\":20,\"match\":\"ternary\",\"key_bits\":\"all\","
            "\"shown_as\":\"number\",\"record_field\":\"egrMd_egrL2AintfUnresolved\"}]}\n");
}

TEST_F(Introspection, EntriesAsValueStrings) {
  run("add ipv4ShortMaskLpm vrfId=1 dip=10.0.10.0/24 action=setNextHop nextHop=11 as=r");
  run("add ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 action=setEcmp ecmpGroup=7");
  const std::string route = "((( 0x01,0x0a000a00,0x0018,),('setNextHop',(0x000b,)),),(0,True))\n";
  EXPECT_EQ(run("dump ipv4ShortMaskLpm"),
            route + "((( 0x01,0x00000000,0x0000,),('setEcmp',(0x0007,)),),(0,True))\n");
  EXPECT_EQ(run("dump ipv4ShortMaskLpm entry=$r"), route);
  EXPECT_EQ(run("show ipv4ShortMaskLpm --raw entry=$r"), route);
  EXPECT_EQ(run("show ipv4ShortMaskLpm --raw"), run("dump ipv4ShortMaskLpm"));
  EXPECT_EQ(run("dump ipv4ShortMaskLpm --filter value=*setEcmp* --terse"),
            "ipv4ShortMaskLpm entry=2 value=((( 0x01,0x00000000,0x0000,),('setEcmp',(0x0007,)),),"
            "(0,True))\n");
  EXPECT_EQ(run("dump ipv4ShortMaskLpm entry=99"),
            "6: 'ipv4ShortMaskLpm': it has no entry 99 that can be read");
  EXPECT_EQ(run("dump l2Lookup"), "");
}

// The words of show, without what a value string does not tell, out of the schema alone.
TEST_F(Introspection, DisplayKnowsNoTableAndSaysWhatShowSays) {
  run_script(runner_, "leaf", read_input(EXAMPLES_DIR "/leaf.tessel"), {});
  out_.take();
  const auto without = [](std::string text, const std::string &name) {
    for (size_t at; (at = text.find(" " + name + "=")) != std::string::npos;) {
      text.erase(at, text.find_first_of(" \n", at + 1) - at);
    }
    return text;
  };
  size_t shown_tables = 0;
  for (const bindings::Record &record : tables()) {
    const std::string table = record.name;
    const std::string shown = without(without(run("show " + table + " --terse"), "ttl"), "meter");
    EXPECT_EQ(run("display " + table + " --terse"), shown);
    if (!shown.empty()) ++shown_tables;
  }
  EXPECT_EQ(shown_tables, 15u);
  // A default entry has no key and no priority.
  run("default set l2LookupMiss as=d action=l2LookupUnknownUcastAction");
  EXPECT_EQ(run("display l2LookupMiss entry=$d --terse"),
            "l2LookupMiss entry=" + std::to_string(context_.labels["d"]) +
                " action=l2LookupUnknownUcastAction\n");
}

TEST(EntryWords, HintsTellHowToShow) {
  const auto words = [](std::string_view text, const TableSchema &schema) {
    Row row;
    EntryWords(schema).add_to(row, read_entry_value(parse_literal({text, 1}), schema));
    return row.words();
  };
  const TableSchema made = read_table_schema(parse_literal(
      {"(('t','mat',(False,)),(('port','a_port',9,0x7f,'port',None,None),"
       "('portMask','a_port_mask',9,0x7f,None,None,None),"
       "('sOui','a_sOui',24,0xffffff,'mac',None,None),('sip','a_sip',32,0xffffffffL,'v4addr',None,"
       "None),('sStation','a_sStation',24,0xffffff,'mac',None,None),),(('go',(('ip','v4addr',32,"
       "None),('mOui','mac',24,None),)),))",
       1}));
  EXPECT_EQ(words("(((0x005,0x07f,0x001122,0x0a000001,0x334455,),('go',(0x0a0a0a0a,0x5,)),),"
                  "(-1,True))",
                  made),
            "port=5 s=00:11:22:33:44:55 sip=10.0.0.1 priority=4294967295 action=go ip=10.10.10.10 "
            "mOui=5");
  EXPECT_EQ(words("(((0x005,0x003,0x1,0x1,0x1,),),(2,True))", made),
            "port=0x5&0x3 s=00:00:01:00:00:01 sip=0.0.0.1 priority=2");
  const TableSchema bound = table_schema("ecmpGroup");
  EXPECT_EQ(words("((( 0x0012,),('setMbrHdl',(0x5,))),(0,True))", bound), "ecmpGroup=18 member=5");
  EXPECT_EQ(words("(((),),(0,True))", bound), "");
  for (const char *wrong : {"()", "(((0x1,0x2),),(0,True))", "(((0x1,),('go',())),(0,True))",
                            "(((0x1,),('setMbrHdl',())),(0,True))", "(((0x1,),),(None,True))"}) {
    EXPECT_THROW(words(wrong, bound), Fault) << wrong;
  }
}

TEST_F(Introspection, CountersTellWhatTheyCount) {
  EXPECT_EQ(run("counter list"), "");
  run("add l2DmacClassify ingressPort=1 dmac=01:00:00:00:00:00&01:00:00:00:00:00 priority=1 "
      "action=setMcast as=m");
  run("add finalDropControl ingressPort=0x105 ingMdDrop=1 dropSmac=0 priority=3 action=dropCount "
      "as=d");
  run("add finalDropControl priority=4 action=dropCount as=any");
  // The key takes 7 of the 9 bits of the port.
  run("traffic finalDropControl ingressPort=0x85 ingMdDrop=1 packets=3 bytes=192");
  const std::string label =
      "Ingress Port 0x05 Ingress Port Drop - See ingressPortDropCount  !dropSmac";
  EXPECT_EQ(run("counter read finalDropControlCount entry=$d"),
            "finalDropControlCount entry=1 packets=3 bytes=192 label=" + label + "\n");
  EXPECT_EQ(run("counter read finalDropControlCount entry=$any"),
            "finalDropControlCount entry=2 packets=0 bytes=0\n");
  EXPECT_EQ(run("counter list"),
            "counter                entry  packets  bytes  label\n"
            "l2DmacClassifyCount        1        0      0  Ingress Port 0x01 dmac "
            "0100.0000.0000/0100.0000.0000\n"
            "finalDropControlCount      1        3    192  " +
                label +
                "\n"
                "finalDropControlCount      2        0      0  -\n");
  EXPECT_EQ(run("counter list l2DmacClassifyCount source=software"),
            "counter              entry  packets  bytes  label\n"
            "l2DmacClassifyCount      1        0      0  Ingress Port 0x01 dmac "
            "0100.0000.0000/0100.0000.0000\n");
}

}  // namespace
}  // namespace tesselctl
