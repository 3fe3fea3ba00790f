/* Six tables for encoders written by hand: where their fields stand in the key, line by line. */
#ifndef BY_HAND_TABLES_H
#define BY_HAND_TABLES_H

/* clang-format off */
#define cpuEncap_FIELDS(EXACT8, F8, F16, F24, F32, F128) \
  EXACT8(0, egrMd_trapToCpu)         \
  EXACT8(1, ingMd_vlanHdrValid)      \
  F8(2, phase0_switchPort, 0x1)      \
  F8(3, egrMd_cpuReasonCode, 0xff)   \
  F8(4, vlanHdr_0__valid, 0x1)

#define trapToCpu_FIELDS(EXACT8, F8, F16, F24, F32, F128) \
  F16(0, ingMd_etherType, 0xffff)          \
  F8(2, ingMd_bcast, 0x1)                  \
  F8(3, ingMd_mcast, 0x1)                  \
  F8(4, ingMd_l4Attr, 0x7)                 \
  F16(5, ingMd_srcPort, 0xffff)            \
  F16(7, ingMd_dstPort, 0xffff)            \
  F16(9, phase0_ingVPort, 0x3fff)          \
  F16(11, ingMd_ingL3Aintf, 0xfff)         \
  F8(13, l3Info_ingL3DmacValid, 0x1)       \
  F8(14, ingMd_ttl, 0xff)                  \
  F8(15, arpHdr_valid, 0x1)                \
  F16(16, arpHdr_opcode, 0xffff)           \
  F8(18, ingMd_igmpSnoopingEnabled, 0x1)   \
  F32(19, ingIpv4_dip)                     \
  F8(23, ingMd_protocol, 0xff)             \
  F8(24, egrMd_vxlanFlood, 0x1)            \
  F8(25, egrMd_decapType, 0x7)             \
  F128(26, ingIpv6_dip)                    \
  F8(42, ingMd_cpuMemberOfIngressVlan, 0x1)\
  F8(43, egrMd_cpuReasonCode, 0xff)

#define finalDropControl_FIELDS(EXACT8, F8, F16, F24, F32, F128) \
  F16(0, ig_intr_md_ingress_port, 0x1ff)         \
  F8(2, ingMd_drop, 0x1)                         \
  F8(3, ingMd_dropSmac, 0x1)                     \
  F8(4, ingMd_dropDmac, 0x1)                     \
  F8(5, ingMd_invalidEgressPort, 0x1)            \
  F8(6, ingMd_samePortBridging, 0x1)             \
  F8(7, ingMd_routedMartian, 0x1)                \
  F8(8, ingMd_mlagPrune, 0x1)                    \
  F8(9, ingMd_v4V6Valid, 0x7)                    \
  F24(10, egrMd_egrL2AintfUnresolved, 0xfffff)   \
  F16(13, ig_intr_md_for_tm_mcast_grp_a, 0xffff) \
  F8(15, egrMd_routed, 0x1)                      \
  F8(16, egrMd_trapToCpu, 0x1)                   \
  F8(17, ingMd_dropDatalink, 0x1)                \
  F8(18, ingVlanStpCheck_stpBlocked, 0x1)        \
  F8(19, ingVlanStpCheck_invalidVlan, 0x1)       \
  F8(20, ingMd_dot1xDrop, 0x1)                   \
  F8(21, ig_intr_md_for_tm_copy_to_cpu, 0x1)     \
  F8(22, ingMd_stormControlDrop, 0x1)            \
  F8(23, fwMd_fwDrop, 0x1)                       \
  F8(24, fwMd_escortToRecircPort, 0x1)           \
  F8(25, fwMd_meterDrop, 0x1)                    \
  F8(26, flowMgmt_newFlowMeterDrop, 0x1)         \
  F8(27, tesselFlowMgmtHdr_valid, 0x1)           \
  F8(28, flowMgmt_flowLimitDrop, 0x1)            \
  F8(29, kflowMd_drop, 0x1)                      \
  F8(30, ingMd_bcast, 0x1)                       \
  F8(31, ingMd_mcast, 0x1)

/* The actions that entries of the tables may hold: name, handle and where parameters stand. */
#define cpuEncap_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  ACTION(trapPktToCpuUntagged, 0x200002b8, P16(0, cpuPort) P8(2, trapPipelineQid)) \
  ACTION(copyPktToCpuUntagged, 0x200002bc, P8(0, copyPipelineQid)) \
  ACTION(trapPktToCpuTagged, 0x200002c1, P16(0, cpuPort) P8(2, trapPipelineQid)) \
  ACTION(copyPktToCpuTagged, 0x200002c5, P8(0, copyPipelineQid)) \
  ACTION(trapPktToCpuSubintf, 0x200002cb, P16(0, cpuPort) P8(2, trapPipelineQid)) \
  ACTION(copyPktToCpuSubintf, 0x200002d0, P8(0, copyPipelineQid))

#define l2Lookup_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  ACTION(l2LookupKnownUcast, 0x200001dc, P24(0, egrL2Aintf)) \
  ACTION(l2LookupKnownMcast, 0x200001de, P16(0, l2McastId)) \
  ACTION(l2LookupKnownUcastTunnel, 0x200001e2, P24(0, egrL2Aintf) P16(3, tunnelNextHop)) \
  PLAIN(l2LookupDrop, 0x200001e4) \
  PLAIN(onMiss, 0x200001e6)

#define ipv4ShortMaskLpm_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  ACTION(setNextHop, 0x20000139, P16(0, nextHop)) \
  ACTION(setNextHop2, 0x2000013c, P16(0, nextHop)) \
  ACTION(setNextHop3, 0x2000013f, P16(0, nextHop)) \
  ACTION(setEcmp, 0x20000142, P16(0, ecmpGroup)) \
  PLAIN(ipv4ShortMaskLpmMiss, 0x20000145)

#define ipv6ShortMaskLpm_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  ACTION(setNextHop, 0x20000148, P16(0, nextHop)) \
  ACTION(setNextHop2, 0x2000014b, P16(0, nextHop)) \
  ACTION(setNextHop3, 0x2000014e, P16(0, nextHop)) \
  ACTION(setEcmp, 0x20000151, P16(0, ecmpGroup)) \
  PLAIN(setFibMiss, 0x20000154)

#define trapToCpu_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  ACTION(trapPacket, 0x2000034f, P8(0, cpuReasonCode)) \
  ACTION(copyPacket, 0x20000353, P8(0, cpuReasonCode) P8(1, llm)) \
  PLAIN(setLlm, 0x20000355) \
  PLAIN(noOp, 0x20000357)

#define finalDropControl_ACTIONS(ACTION, PLAIN, P8, P16, P24) \
  PLAIN(accept, 0x2000032f) \
  PLAIN(acceptLog, 0x20000331) \
  PLAIN(dropCount, 0x20000334) \
  PLAIN(dropCountAndLog, 0x20000337) \
  PLAIN(finalDrop, 0x20000339)

/* Name, match kind, key bits, key bytes, handle; the action of entries: name, handle, bits and bytes
 * of its parameters, counter; the action of the default entry: name, handle, counter. */
#define BY_HAND_TABLES(TABLE) \
  TABLE(cpuEncap, TERNARY, 12, 5, 0x0100005e, \
        copyPktToCpuSubintf, 0x200002d0, 5, 1, 0, copyPktToCpuTagged, 0x200002c5, 5, 1, 0) \
  TABLE(l2Lookup, EXACT, 60, 8, 0x01000049, \
        l2LookupKnownUcast, 0x200001dc, 20, 3, 0, onMiss, 0x200001e6, 0, 0, 0) \
  TABLE(ipv4ShortMaskLpm, LPM, 40, 5, 0x0100002c, \
        setNextHop, 0x20000139, 14, 2, 0, ipv4ShortMaskLpmMiss, 0x20000145, 0, 0, 0) \
  TABLE(ipv6ShortMaskLpm, LPM, 136, 17, 0x0100002d, \
        setNextHop, 0x20000148, 14, 2, 0, setFibMiss, 0x20000154, 0, 0, 0) \
  TABLE(trapToCpu, TERNARY, 287, 44, 0x0100006d, \
        trapPacket, 0x2000034f, 8, 1, 0x0400000a, trapPacket, 0x2000034f, 8, 1, 0x0400000a) \
  TABLE(finalDropControl, TERNARY, 72, 32, 0x0100006a, \
        dropCount, 0x20000334, 0, 0, 0x04000009, accept, 0x2000032f, 0, 0, 0x04000009)
/* clang-format on */

#endif
