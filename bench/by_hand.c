#include "by_hand.h"

#include <string.h>

#include "pipe_mgr.h"

/* Sixteen bytes at a time: a plain clear becomes a slow string instruction. */
static inline void clear_action(pipe_mgr_action_spec_t *action) {
  typedef uint32_t chunk __attribute__((vector_size(16), aligned(4), may_alias));
  chunk *chunks = (chunk *)(void *)action;
  const chunk zero = {0, 0, 0, 0};
#pragma GCC unroll 32
  for (size_t i = 0; i < sizeof *action / 16; ++i) chunks[i] = zero;
  memset(chunks + sizeof *action / 16, 0, sizeof *action % 16);
}

p4_pd_status_t by_hand_cpuEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry) {
  uint8_t value[5];
  uint8_t mask[5];
  uint8_t data[1];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 12;
  match.byte_count = 5;
  match.value = value;
  match.mask = mask;
  value[0] = (uint8_t)(match_spec->egrMd_trapToCpu);
  mask[0] = 0x01;
  value[1] = (uint8_t)(match_spec->ingMd_vlanHdrValid);
  mask[1] = 0x01;
  value[2] = (uint8_t)((match_spec->phase0_switchPort & match_spec->phase0_switchPort_mask));
  mask[2] = (uint8_t)(match_spec->phase0_switchPort_mask & 0x1);
  value[3] = (uint8_t)((match_spec->egrMd_cpuReasonCode & match_spec->egrMd_cpuReasonCode_mask));
  mask[3] = (uint8_t)(match_spec->egrMd_cpuReasonCode_mask);
  value[4] = (uint8_t)((match_spec->vlanHdr_0__valid & match_spec->vlanHdr_0__valid_mask));
  mask[4] = (uint8_t)(match_spec->vlanHdr_0__valid_mask & 0x1);
  match.priority = priority;
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 5;
  action.data.byte_count = 1;
  action.data.bytes = data;
  data[0] = (uint8_t)(action_spec->action_copyPipelineQid);
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x0100005e, &match,
                              0x200002d0, &action, 0, 0, entry);
}

p4_pd_status_t by_hand_l2Lookup(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry) {
  uint8_t value[8];
  uint8_t mask[8];
  uint8_t data[3];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 60;
  match.byte_count = 8;
  match.value = value;
  match.mask = mask;
  memset(mask, 0xff, sizeof mask);
  value[0] = (uint8_t)(match_spec->egrMd_dmacOui >> 16);
  value[1] = (uint8_t)(match_spec->egrMd_dmacOui >> 8);
  value[2] = (uint8_t)(match_spec->egrMd_dmacOui);
  value[3] = (uint8_t)(match_spec->egrMd_dmacStation >> 16);
  value[4] = (uint8_t)(match_spec->egrMd_dmacStation >> 8);
  value[5] = (uint8_t)(match_spec->egrMd_dmacStation);
  value[6] = (uint8_t)(match_spec->egrMd_egrL2Domain >> 8);
  value[7] = (uint8_t)(match_spec->egrMd_egrL2Domain);
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 20;
  action.data.byte_count = 3;
  action.data.bytes = data;
  data[0] = (uint8_t)(action_spec->action_egrL2Aintf >> 16);
  data[1] = (uint8_t)(action_spec->action_egrL2Aintf >> 8);
  data[2] = (uint8_t)(action_spec->action_egrL2Aintf);
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x01000049, &match,
                              0x200001dc, &action, 0, 0, entry);
}

p4_pd_status_t by_hand_ipv4ShortMaskLpm(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry) {
  uint8_t value[5];
  uint8_t mask[5];
  uint8_t data[2];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 40;
  match.byte_count = 5;
  match.value = value;
  match.mask = mask;
  memset(mask, 0xff, sizeof mask);
  value[0] = (uint8_t)(match_spec->l3Info_vrfId);
  const uint32_t wildcard = 32u - match_spec->ingIpv4_dip_prefix_length;
  const uint32_t bits = wildcard > 32 ? 0xffffffffu : wildcard == 32 ? 0 : 0xffffffffu << wildcard;
  const uint32_t address = match_spec->ingIpv4_dip & bits;
  value[1] = (uint8_t)(address >> 24);
  mask[1] = (uint8_t)(bits >> 24);
  value[2] = (uint8_t)(address >> 16);
  mask[2] = (uint8_t)(bits >> 16);
  value[3] = (uint8_t)(address >> 8);
  mask[3] = (uint8_t)(bits >> 8);
  value[4] = (uint8_t)(address);
  mask[4] = (uint8_t)(bits);
  match.priority = wildcard > 32 ? 41 : wildcard;
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 14;
  action.data.byte_count = 2;
  action.data.bytes = data;
  data[0] = (uint8_t)(action_spec->action_nextHop >> 8);
  data[1] = (uint8_t)(action_spec->action_nextHop);
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x0100002c, &match,
                              0x20000139, &action, ttl, 0, entry);
}

p4_pd_status_t by_hand_ipv6ShortMaskLpm(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry) {
  uint8_t value[17];
  uint8_t mask[17];
  uint8_t data[2];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 136;
  match.byte_count = 17;
  match.value = value;
  match.mask = mask;
  memset(mask, 0xff, sizeof mask);
  value[0] = (uint8_t)(match_spec->l3Info_vrfId);
  const unsigned length = match_spec->ingIpv6_dip_prefix_length;
  if (length <= 128) {
    const unsigned whole = length / 8;
    memset(mask + 1 + whole, 0, 16 - whole);
    if (length % 8 != 0) mask[1 + whole] = (uint8_t)(0xff00u >> length % 8);
  }
  for (int i = 0; i < 16; ++i) value[1 + i] = match_spec->ingIpv6_dip[i] & mask[1 + i];
  match.priority = length > 128 ? 137 : 128 - length;
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 14;
  action.data.byte_count = 2;
  action.data.bytes = data;
  data[0] = (uint8_t)(action_spec->action_nextHop >> 8);
  data[1] = (uint8_t)(action_spec->action_nextHop);
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x0100002d, &match,
                              0x20000148, &action, ttl, 0, entry);
}

p4_pd_status_t by_hand_trapToCpu(p4_pd_session_handle_t session, p4_pd_device_target_t target,
                                 const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec,
                                 uint32_t priority,
                                 const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec,
                                 p4_pd_entry_handle_t *entry) {
  uint8_t value[44];
  uint8_t mask[44];
  uint8_t data[1];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 287;
  match.byte_count = 44;
  match.value = value;
  match.mask = mask;
  value[0] = (uint8_t)((match_spec->ingMd_etherType & match_spec->ingMd_etherType_mask) >> 8);
  mask[0] = (uint8_t)(match_spec->ingMd_etherType_mask >> 8);
  value[1] = (uint8_t)((match_spec->ingMd_etherType & match_spec->ingMd_etherType_mask));
  mask[1] = (uint8_t)(match_spec->ingMd_etherType_mask);
  value[2] = (uint8_t)((match_spec->ingMd_bcast & match_spec->ingMd_bcast_mask));
  mask[2] = (uint8_t)(match_spec->ingMd_bcast_mask & 0x1);
  value[3] = (uint8_t)((match_spec->ingMd_mcast & match_spec->ingMd_mcast_mask));
  mask[3] = (uint8_t)(match_spec->ingMd_mcast_mask & 0x1);
  value[4] = (uint8_t)((match_spec->ingMd_l4Attr & match_spec->ingMd_l4Attr_mask));
  mask[4] = (uint8_t)(match_spec->ingMd_l4Attr_mask & 0x7);
  value[5] = (uint8_t)((match_spec->ingMd_srcPort & match_spec->ingMd_srcPort_mask) >> 8);
  mask[5] = (uint8_t)(match_spec->ingMd_srcPort_mask >> 8);
  value[6] = (uint8_t)((match_spec->ingMd_srcPort & match_spec->ingMd_srcPort_mask));
  mask[6] = (uint8_t)(match_spec->ingMd_srcPort_mask);
  value[7] = (uint8_t)((match_spec->ingMd_dstPort & match_spec->ingMd_dstPort_mask) >> 8);
  mask[7] = (uint8_t)(match_spec->ingMd_dstPort_mask >> 8);
  value[8] = (uint8_t)((match_spec->ingMd_dstPort & match_spec->ingMd_dstPort_mask));
  mask[8] = (uint8_t)(match_spec->ingMd_dstPort_mask);
  value[9] = (uint8_t)((match_spec->phase0_ingVPort & match_spec->phase0_ingVPort_mask) >> 8);
  mask[9] = (uint8_t)(match_spec->phase0_ingVPort_mask >> 8 & 0x3f);
  value[10] = (uint8_t)((match_spec->phase0_ingVPort & match_spec->phase0_ingVPort_mask));
  mask[10] = (uint8_t)(match_spec->phase0_ingVPort_mask);
  value[11] = (uint8_t)((match_spec->ingMd_ingL3Aintf & match_spec->ingMd_ingL3Aintf_mask) >> 8);
  mask[11] = (uint8_t)(match_spec->ingMd_ingL3Aintf_mask >> 8 & 0xf);
  value[12] = (uint8_t)((match_spec->ingMd_ingL3Aintf & match_spec->ingMd_ingL3Aintf_mask));
  mask[12] = (uint8_t)(match_spec->ingMd_ingL3Aintf_mask);
  value[13] =
      (uint8_t)((match_spec->l3Info_ingL3DmacValid & match_spec->l3Info_ingL3DmacValid_mask));
  mask[13] = (uint8_t)(match_spec->l3Info_ingL3DmacValid_mask & 0x1);
  value[14] = (uint8_t)((match_spec->ingMd_ttl & match_spec->ingMd_ttl_mask));
  mask[14] = (uint8_t)(match_spec->ingMd_ttl_mask);
  value[15] = (uint8_t)((match_spec->arpHdr_valid & match_spec->arpHdr_valid_mask));
  mask[15] = (uint8_t)(match_spec->arpHdr_valid_mask & 0x1);
  value[16] = (uint8_t)((match_spec->arpHdr_opcode & match_spec->arpHdr_opcode_mask) >> 8);
  mask[16] = (uint8_t)(match_spec->arpHdr_opcode_mask >> 8);
  value[17] = (uint8_t)((match_spec->arpHdr_opcode & match_spec->arpHdr_opcode_mask));
  mask[17] = (uint8_t)(match_spec->arpHdr_opcode_mask);
  value[18] = (uint8_t)((match_spec->ingMd_igmpSnoopingEnabled &
                         match_spec->ingMd_igmpSnoopingEnabled_mask));
  mask[18] = (uint8_t)(match_spec->ingMd_igmpSnoopingEnabled_mask & 0x1);
  value[19] = (uint8_t)((match_spec->ingIpv4_dip & match_spec->ingIpv4_dip_mask) >> 24);
  mask[19] = (uint8_t)(match_spec->ingIpv4_dip_mask >> 24);
  value[20] = (uint8_t)((match_spec->ingIpv4_dip & match_spec->ingIpv4_dip_mask) >> 16);
  mask[20] = (uint8_t)(match_spec->ingIpv4_dip_mask >> 16);
  value[21] = (uint8_t)((match_spec->ingIpv4_dip & match_spec->ingIpv4_dip_mask) >> 8);
  mask[21] = (uint8_t)(match_spec->ingIpv4_dip_mask >> 8);
  value[22] = (uint8_t)((match_spec->ingIpv4_dip & match_spec->ingIpv4_dip_mask));
  mask[22] = (uint8_t)(match_spec->ingIpv4_dip_mask);
  value[23] = (uint8_t)((match_spec->ingMd_protocol & match_spec->ingMd_protocol_mask));
  mask[23] = (uint8_t)(match_spec->ingMd_protocol_mask);
  value[24] = (uint8_t)((match_spec->egrMd_vxlanFlood & match_spec->egrMd_vxlanFlood_mask));
  mask[24] = (uint8_t)(match_spec->egrMd_vxlanFlood_mask & 0x1);
  value[25] = (uint8_t)((match_spec->egrMd_decapType & match_spec->egrMd_decapType_mask));
  mask[25] = (uint8_t)(match_spec->egrMd_decapType_mask & 0x7);
  for (int i = 0; i < 16; ++i) {
    mask[26 + i] = match_spec->ingIpv6_dip_mask[i];
    value[26 + i] = match_spec->ingIpv6_dip[i] & match_spec->ingIpv6_dip_mask[i];
  }
  value[42] = (uint8_t)((match_spec->ingMd_cpuMemberOfIngressVlan &
                         match_spec->ingMd_cpuMemberOfIngressVlan_mask));
  mask[42] = (uint8_t)(match_spec->ingMd_cpuMemberOfIngressVlan_mask & 0x1);
  value[43] = (uint8_t)((match_spec->egrMd_cpuReasonCode & match_spec->egrMd_cpuReasonCode_mask));
  mask[43] = (uint8_t)(match_spec->egrMd_cpuReasonCode_mask);
  match.priority = priority;
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 8;
  action.data.byte_count = 1;
  action.data.bytes = data;
  data[0] = (uint8_t)(action_spec->action_cpuReasonCode);
  action.resources[0].handle = 0x0400000a;
  action.resources[0].tag = PIPE_RESOURCE_ATTACH;
  action.resource_count = 1;
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x0100006d, &match,
                              0x2000034f, &action, 0, 0, entry);
}

p4_pd_status_t by_hand_finalDropControl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry) {
  uint8_t value[32];
  uint8_t mask[32];
  uint8_t data[1];
  pipe_mgr_match_spec_t match = {0};
  pipe_mgr_action_spec_t action;
  clear_action(&action);
  match.valid_bit_count = 72;
  match.byte_count = 32;
  match.value = value;
  match.mask = mask;
  value[0] =
      (uint8_t)((match_spec->ig_intr_md_ingress_port & match_spec->ig_intr_md_ingress_port_mask) >>
                8);
  mask[0] = (uint8_t)(match_spec->ig_intr_md_ingress_port_mask >> 8 & 0x1);
  value[1] =
      (uint8_t)((match_spec->ig_intr_md_ingress_port & match_spec->ig_intr_md_ingress_port_mask));
  mask[1] = (uint8_t)(match_spec->ig_intr_md_ingress_port_mask);
  value[2] = (uint8_t)((match_spec->ingMd_drop & match_spec->ingMd_drop_mask));
  mask[2] = (uint8_t)(match_spec->ingMd_drop_mask & 0x1);
  value[3] = (uint8_t)((match_spec->ingMd_dropSmac & match_spec->ingMd_dropSmac_mask));
  mask[3] = (uint8_t)(match_spec->ingMd_dropSmac_mask & 0x1);
  value[4] = (uint8_t)((match_spec->ingMd_dropDmac & match_spec->ingMd_dropDmac_mask));
  mask[4] = (uint8_t)(match_spec->ingMd_dropDmac_mask & 0x1);
  value[5] =
      (uint8_t)((match_spec->ingMd_invalidEgressPort & match_spec->ingMd_invalidEgressPort_mask));
  mask[5] = (uint8_t)(match_spec->ingMd_invalidEgressPort_mask & 0x1);
  value[6] =
      (uint8_t)((match_spec->ingMd_samePortBridging & match_spec->ingMd_samePortBridging_mask));
  mask[6] = (uint8_t)(match_spec->ingMd_samePortBridging_mask & 0x1);
  value[7] = (uint8_t)((match_spec->ingMd_routedMartian & match_spec->ingMd_routedMartian_mask));
  mask[7] = (uint8_t)(match_spec->ingMd_routedMartian_mask & 0x1);
  value[8] = (uint8_t)((match_spec->ingMd_mlagPrune & match_spec->ingMd_mlagPrune_mask));
  mask[8] = (uint8_t)(match_spec->ingMd_mlagPrune_mask & 0x1);
  value[9] = (uint8_t)((match_spec->ingMd_v4V6Valid & match_spec->ingMd_v4V6Valid_mask));
  mask[9] = (uint8_t)(match_spec->ingMd_v4V6Valid_mask & 0x7);
  value[10] = (uint8_t)((match_spec->egrMd_egrL2AintfUnresolved &
                         match_spec->egrMd_egrL2AintfUnresolved_mask) >>
                        16);
  mask[10] = (uint8_t)(match_spec->egrMd_egrL2AintfUnresolved_mask >> 16 & 0xf);
  value[11] = (uint8_t)((match_spec->egrMd_egrL2AintfUnresolved &
                         match_spec->egrMd_egrL2AintfUnresolved_mask) >>
                        8);
  mask[11] = (uint8_t)(match_spec->egrMd_egrL2AintfUnresolved_mask >> 8);
  value[12] = (uint8_t)((match_spec->egrMd_egrL2AintfUnresolved &
                         match_spec->egrMd_egrL2AintfUnresolved_mask));
  mask[12] = (uint8_t)(match_spec->egrMd_egrL2AintfUnresolved_mask);
  value[13] = (uint8_t)((match_spec->ig_intr_md_for_tm_mcast_grp_a &
                         match_spec->ig_intr_md_for_tm_mcast_grp_a_mask) >>
                        8);
  mask[13] = (uint8_t)(match_spec->ig_intr_md_for_tm_mcast_grp_a_mask >> 8);
  value[14] = (uint8_t)((match_spec->ig_intr_md_for_tm_mcast_grp_a &
                         match_spec->ig_intr_md_for_tm_mcast_grp_a_mask));
  mask[14] = (uint8_t)(match_spec->ig_intr_md_for_tm_mcast_grp_a_mask);
  value[15] = (uint8_t)((match_spec->egrMd_routed & match_spec->egrMd_routed_mask));
  mask[15] = (uint8_t)(match_spec->egrMd_routed_mask & 0x1);
  value[16] = (uint8_t)((match_spec->egrMd_trapToCpu & match_spec->egrMd_trapToCpu_mask));
  mask[16] = (uint8_t)(match_spec->egrMd_trapToCpu_mask & 0x1);
  value[17] = (uint8_t)((match_spec->ingMd_dropDatalink & match_spec->ingMd_dropDatalink_mask));
  mask[17] = (uint8_t)(match_spec->ingMd_dropDatalink_mask & 0x1);
  value[18] = (uint8_t)((match_spec->ingVlanStpCheck_stpBlocked &
                         match_spec->ingVlanStpCheck_stpBlocked_mask));
  mask[18] = (uint8_t)(match_spec->ingVlanStpCheck_stpBlocked_mask & 0x1);
  value[19] = (uint8_t)((match_spec->ingVlanStpCheck_invalidVlan &
                         match_spec->ingVlanStpCheck_invalidVlan_mask));
  mask[19] = (uint8_t)(match_spec->ingVlanStpCheck_invalidVlan_mask & 0x1);
  value[20] = (uint8_t)((match_spec->ingMd_dot1xDrop & match_spec->ingMd_dot1xDrop_mask));
  mask[20] = (uint8_t)(match_spec->ingMd_dot1xDrop_mask & 0x1);
  value[21] = (uint8_t)((match_spec->ig_intr_md_for_tm_copy_to_cpu &
                         match_spec->ig_intr_md_for_tm_copy_to_cpu_mask));
  mask[21] = (uint8_t)(match_spec->ig_intr_md_for_tm_copy_to_cpu_mask & 0x1);
  value[22] =
      (uint8_t)((match_spec->ingMd_stormControlDrop & match_spec->ingMd_stormControlDrop_mask));
  mask[22] = (uint8_t)(match_spec->ingMd_stormControlDrop_mask & 0x1);
  value[23] = (uint8_t)((match_spec->fwMd_fwDrop & match_spec->fwMd_fwDrop_mask));
  mask[23] = (uint8_t)(match_spec->fwMd_fwDrop_mask & 0x1);
  value[24] =
      (uint8_t)((match_spec->fwMd_escortToRecircPort & match_spec->fwMd_escortToRecircPort_mask));
  mask[24] = (uint8_t)(match_spec->fwMd_escortToRecircPort_mask & 0x1);
  value[25] = (uint8_t)((match_spec->fwMd_meterDrop & match_spec->fwMd_meterDrop_mask));
  mask[25] = (uint8_t)(match_spec->fwMd_meterDrop_mask & 0x1);
  value[26] = (uint8_t)((match_spec->flowMgmt_newFlowMeterDrop &
                         match_spec->flowMgmt_newFlowMeterDrop_mask));
  mask[26] = (uint8_t)(match_spec->flowMgmt_newFlowMeterDrop_mask & 0x1);
  value[27] =
      (uint8_t)((match_spec->tesselFlowMgmtHdr_valid & match_spec->tesselFlowMgmtHdr_valid_mask));
  mask[27] = (uint8_t)(match_spec->tesselFlowMgmtHdr_valid_mask & 0x1);
  value[28] =
      (uint8_t)((match_spec->flowMgmt_flowLimitDrop & match_spec->flowMgmt_flowLimitDrop_mask));
  mask[28] = (uint8_t)(match_spec->flowMgmt_flowLimitDrop_mask & 0x1);
  value[29] = (uint8_t)((match_spec->kflowMd_drop & match_spec->kflowMd_drop_mask));
  mask[29] = (uint8_t)(match_spec->kflowMd_drop_mask & 0x1);
  value[30] = (uint8_t)((match_spec->ingMd_bcast & match_spec->ingMd_bcast_mask));
  mask[30] = (uint8_t)(match_spec->ingMd_bcast_mask & 0x1);
  value[31] = (uint8_t)((match_spec->ingMd_mcast & match_spec->ingMd_mcast_mask));
  mask[31] = (uint8_t)(match_spec->ingMd_mcast_mask & 0x1);
  match.priority = priority;
  action.type = PIPE_ACTION_DATA;
  action.data.valid_bit_count = 0;
  action.data.byte_count = 0;
  action.data.bytes = data;
  action.resources[0].handle = 0x04000009;
  action.resources[0].tag = PIPE_RESOURCE_ATTACH;
  action.resource_count = 1;
  return pipe_mgr_mat_ent_add(session, target.device_id, target.pipe_id, 0x0100006a, &match,
                              0x20000334, &action, 0, 0, entry);
}
