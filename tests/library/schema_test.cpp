// Schemas: rows to the letter, and every object's schema against its record.
#include <bit>
#include <set>

#include "text_fixture.hpp"

namespace pd_test {
namespace {

std::string written(const Export &function) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_SCHEMA_MAX);
  return buffer.text(call(function, buffer.data()));
}

std::string cli_schema(uint32_t handle) {
  TextBuffer buffer(P4_PD_TESSEL_SWITCH_SCHEMA_MAX);
  const int length = p4_pd_tessel_switch_cli_schema(handle, buffer.data());
  return buffer.text(static_cast<uint64_t>(length));
}

TEST(Schema, TellingRows) {
  EXPECT_EQ(written(*find_export("table_schema", "cpuEncapFields")),
            "( ('cpuEncapFields','mat',(False,)),(( 'egressPort','eg_intr_md_egress_port',9,0x1ff,"
            "None,None,None),( 'switchPort','phase0_switchPort',1,0x1,None,None,None),( "
            "'ingressTagged','egrMd_ingressTagged',1,0x1,None,None,None),( 'decapType',"
            "'egrMd_decapType',3,0x7,None,None,None),),(( ('encapPktToCpu'),(('tagType',None,2,"
            "None),)),( ('onMiss'),()),))");
  EXPECT_EQ(written(*find_export("table_schema", "vlanDecap")),
            "( ('vlanDecap','mat',(False,)),(),(( ('removeVlanHdr'),()),))");
  EXPECT_EQ(written(*find_export("table_schema", "ecmpGroup")),
            "( ('ecmpGroup','mat',(True,)),(( 'ecmpGroup','l3_ecmpGroup',14,0xff,None,None,None),)"
            ",( ('setMbrHdl',(('mbrHdl',None,32,None),)),( 'setGrpHdl', ( ( 'grpHdl', None, 32, "
            "None ), ) ) ))");
  EXPECT_EQ(cli_schema(0x0200002f), "(( ('setEcmpNextHop'),(('nextHop',None,14,None),)),)");
  EXPECT_EQ(cli_schema(0x0200002f).size(), 52u);
  EXPECT_STREQ(p4_pd_tessel_switch_flowHashTypeSelect_match_spec_schema(),
               "(( 'sip','ingIpv4_sip',32,0xffffffffL,'v4addr',None,None),( 'sipMask',"
               "'ingIpv4_sip_mask',32,0xffffffffL,None,None,None),( 'dip','ingIpv4_dip',32,"
               "0xffffffffL,'v4addr',None,None),( 'dipMask','ingIpv4_dip_mask',32,0xffffffffL,"
               "None,None,None),)");
  EXPECT_STREQ(p4_pd_tessel_switch_trapPktToCpuTagged_schema(),
               "( ('trapPktToCpuTagged'),(('cpuPort',None,9,None),('trapPipelineQid',None,5,"
               "None),))");
  EXPECT_EQ(written(*find_export("table_schema", "finalDropControl")).size(), 3785u);
  EXPECT_EQ(P4_PD_TESSEL_SWITCH_SCHEMA_MAX, 3786);
}

// One field of a match spec schema, up to its hint.
struct FieldRow {
  const char *table;
  const char *text;
};

TEST(Schema, NamesMasksAndHintsOfFields) {
  const FieldRow rows[] = {
      // Validity bits, also of stack elements; two fields may share such a name.
      {"cpuEncap", "( 'vlanHdrValid','ingMd_vlanHdrValid',1,0x1,None"},
      {"cpuEncap", "( 'vlanHdrValid','vlanHdr_0__valid',1,0x1,None"},
      {"cpuEncap", "( 'vlanHdrValidMask','vlanHdr_0__valid_mask',1,0x1,None"},
      {"finalDropControl", "( 'tesselFlowMgmtHdrValid','tesselFlowMgmtHdr_valid',1,0x1,None"},
      // Whole names where the short ones clash.
      {"finalDropControl", "( 'ingMdDrop','ingMd_drop',1,0x1,None"},
      {"finalDropControl", "( 'kflowMdDropMask','kflowMd_drop_mask',1,0x1,None"},
      {"trapToCpu", "( 'ingIpv4Dip','ingIpv4_dip',32,0xffffffffL,'v4addr'"},
      {"ingressTrafficClass", "( 'tesselCpuHdrTrustMode','tesselCpuHdr_trustMode',2,0x3,None"},
      {"ingressTrafficClass", "( 'tc','tesselCpuHdr_tc',3,0x7,None"},
      {"finalizeMcResult", "( 'ingL2McEValidMask','ingL2Mc_eValid_mask',1,0x1,None"},
      // Intrinsic metadata drops its whole prefix.
      {"finalDropControl", "( 'mcastGrpA','ig_intr_md_for_tm_mcast_grp_a',16,0xffff,None"},
      {"ingressPortDropCheck",
       "( 'ingressParserErr','ig_intr_md_from_parser_aux_ingress_parser_err',16,0x1000,None"},
      // Partial masks, on companions too; L beyond 31 bits.
      {"finalDropControl", "( 'ingressPort','ig_intr_md_ingress_port',9,0x7f,'port'"},
      {"finalDropControl", "( 'ingressPortMask','ig_intr_md_ingress_port_mask',9,0x7f,None"},
      {"finalDropControl", "( 'v4V6Valid','ingMd_v4V6Valid',3,0x4,None"},
      {"finalDropControl", "( 'egrL2AintfUnresolved','egrMd_egrL2AintfUnresolved',20,0xfffff,None"},
      {"encapDecap", "_tunnelInfo',32,0xc0000,None"},
      {"trapToCpu",
       "( 'ingIpv6Dip','ingIpv6_dip',128,0xffff0000000000000000000000000000L,'v6addr'"},
      {"trapToCpu",
       "( 'ingIpv6DipMask','ingIpv6_dip_mask',128,0xffff0000000000000000000000000000L,None"},
      {"trapToCpu", "( 'ingVPort','phase0_ingVPort',14,0x3fff,'vport'"},
      {"ipv6ShortMaskLpm",
       "( 'dip','ingIpv6_dip',128,0xffffffffffffffffffffffffffffffffL,'v6addr'"},
      {"tunnelTermination", "_dip',32,0xffffffffL,'v4addr'"},
      {"ipv6ShortMaskLpm", "( 'dipPrefixLength','ingIpv6_dip_prefix_length',16,0xffff,None"},
      {"l2DmacClassify", "( 'dmacOui','outerEthHdr_dmacOui',24,0xffffff,'mac'"},
      {"l2DmacClassify", "( 'dmacStationMask','outerEthHdr_dmacStation_mask',24,0xffffff,None"},
  };
  for (const FieldRow &row : rows) {
    const std::string schema = constant_text("match_spec_schema", row.table);
    EXPECT_NE(schema.find(row.text + std::string(",None,None),")), std::string::npos)
        << row.text << " in " << schema;
  }
}

TEST(Schema, FieldsAreThoseOfTheRecord) {
  size_t fields = 0;
  size_t partial = 0;
  size_t partial_wide = 0;
  for (const Record &table : tables()) {
    if (table.member_count == 0) continue;
    const std::vector<Literal> schema = schema_fields(table.name);
    ASSERT_EQ(schema.size(), table.member_count) << table.name;
    for (size_t i = 0; i < schema.size(); ++i) {
      const Member &member = table.members[i];
      const Literal &field = schema[i];
      ASSERT_TRUE(field.is_tuple(7)) << table.name;
      EXPECT_TRUE(field[1].is(member.name)) << table.name << " " << member.name;
      EXPECT_EQ(field[2].number(), member.width) << table.name << " " << member.name;
      EXPECT_TRUE(field[5].is_word("None") && field[6].is_word("None"));
      if (member.role != bindings::Role::value) {
        const bool mask = member.role == bindings::Role::mask;
        EXPECT_TRUE(field[0].is(schema[i - 1][0].text + (mask ? "Mask" : "PrefixLength")));
        EXPECT_EQ(field[3].text, mask ? schema[i - 1][3].text : "0xffff") << member.name;
        EXPECT_TRUE(field[4].is_word("None")) << member.name;
      }
      unsigned bits = 0;
      for (const uint8_t byte : field[3].bytes())
        bits += static_cast<unsigned>(std::popcount(byte));
      EXPECT_GT(bits, 0u);
      EXPECT_LE(bits, member.width);
      if (bits < member.width) ++(member.storage == 16 ? partial_wide : partial);
      ++fields;
    }
  }
  EXPECT_EQ(exports_of("match_spec_schema").size(), 85u);
  EXPECT_EQ(partial, 39u);
  EXPECT_EQ(partial_wide, 2u);
  EXPECT_GT(fields, 318u);
}

TEST(Schema, TablesAreAssembledOfTheirParts) {
  const std::set<std::string> bound = {"ecmpGroup", "lagGroup", "ingressMirrorLagGroup",
                                       "egressMirrorLagGroup"};
  ASSERT_EQ(exports_of("table_schema").size(), 120u);
  for (const Record &table : tables()) {
    const std::string text = written(*find_export("table_schema", table.name));
    EXPECT_EQ(cli_schema(table.number), text);
    const auto schema = read_literal(text);
    ASSERT_TRUE(schema && schema->is_tuple(3)) << text;
    const Literal &head = (*schema)[0];
    ASSERT_TRUE(head.is_tuple(3) && head[2].is_tuple(1)) << text;
    EXPECT_TRUE(head[0].is(table.name) && head[1].is("mat"));
    EXPECT_TRUE(head[2][0].is_word(bound.count(table.name) != 0 ? "True" : "False")) << text;
    const bool keyed = table.member_count != 0;
    const std::string key = keyed ? constant_text("match_spec_schema", table.name) : "()";
    EXPECT_EQ(text.find(key), std::string("( ('','mat',(,)),").size() + std::strlen(table.name) +
                                  head[2][0].text.size());
    const std::vector<Literal> &listed = (*schema)[2].items;
    EXPECT_TRUE(keyed || listed.size() == 1) << table.name;
    if (bound.count(table.name) != 0) continue;
    std::string joined;
    for (size_t i = 0; i < listed.size(); ++i) {
      ASSERT_TRUE(listed[i].is_tuple(2) && listed[i][0].kind == Literal::kText) << text;
      EXPECT_TRUE(i == 0 || listed[i - 1][0].text < listed[i][0].text) << table.name;
      joined += constant_text("action_schema", listed[i][0].text) + ",";
    }
    EXPECT_TRUE(text.ends_with("," + key + ",(" + joined + "))")) << text;
    EXPECT_FALSE(listed.empty()) << table.name;
  }
}

TEST(Schema, ActionsListTheirParameters) {
  const std::set<std::string> hints = {"mac", "v4addr", "vport"};
  std::set<std::string> seen;
  ASSERT_EQ(exports_of("action_schema").size(), 232u);
  for (const Record &action : actions()) {
    const auto schema = read_literal(constant_text("action_schema", action.name));
    ASSERT_TRUE(schema && schema->is_tuple(2) && (*schema)[0].is(action.name)) << action.name;
    const Literal &params = (*schema)[1];
    ASSERT_TRUE(params.is_tuple(action.member_count)) << action.name;
    for (size_t i = 0; i < action.member_count; ++i) {
      ASSERT_TRUE(params[i].is_tuple(4)) << action.name;
      EXPECT_TRUE(params[i][0].is(action.members[i].name)) << action.name;
      EXPECT_EQ(params[i][2].number(), action.members[i].width) << action.name;
      EXPECT_TRUE(params[i][3].is_word("None"));
      if (params[i][1].is_word("None")) continue;
      EXPECT_EQ(hints.count(params[i][1].text), 1u) << action.name;
      seen.insert(params[i][1].text);
    }
  }
  EXPECT_EQ(seen, hints);
}

TEST(Schema, ProfilesAndUnknownHandles) {
  ASSERT_EQ(exports_of("profile_schema").size(), 4u);
  const std::pair<uint32_t, const char *> handles[] = {
      {0x0200002f, "ecmpMemberActionProfile"},
      {0x02000046, "lagPortActionProfile"},
      {0x02000072, "mirrorLagPortActionProfile"},
      {0x02000075, "egrMirrorLagPortActionProfile"}};
  for (const auto &[handle, name] : handles) {
    EXPECT_EQ(cli_schema(handle), written(*find_export("profile_schema", name)));
  }
  const auto lag = read_literal(cli_schema(0x02000046));
  ASSERT_TRUE(lag && lag->is_tuple(5));
  const char *const sorted[] = {"fixL2SubintfAlignment", "invalidateUcastEgressPort", "setLagPort",
                                "setPhysicalPort", "setTunnelInfo"};
  for (size_t i = 0; i < 5; ++i) EXPECT_TRUE((*lag)[i][0].is(sorted[i])) << (*lag)[i][0].text;
  for (const uint32_t handle : {0u, 0x01000000u, 0x01000079u, 0x02000030u, 0xffffffffu}) {
    EXPECT_EQ(cli_schema(handle), "()");
  }
}

}  // namespace
}  // namespace pd_test
