#include "by_hand_text.h"

#include <stdio.h>

static const char lower[] = "0123456789abcdef";
static const char upper[] = "0123456789ABCDEF";

static inline char *put(char *out, uint32_t value, int digits) {
  *out++ = '0';
  *out++ = 'x';
#pragma GCC unroll 8
  for (int shift = 4 * (digits - 1); shift >= 0; shift -= 4) *out++ = lower[value >> shift & 15];
  *out++ = ',';
  return out;
}

static inline char *put_address(char *out, const uint8_t *address) {
  *out++ = '0';
  *out++ = 'x';
#pragma GCC unroll 16
  for (int i = 0; i < 16; ++i) {
    *out++ = upper[address[i] >> 4];
    *out++ = upper[address[i] & 15];
  }
  *out++ = ',';
  return out;
}

static inline int finish(char *buffer, char *out) {
  *out++ = ')';
  *out++ = ',';
  *out = '\0';
  return (int)(out - buffer);
}

int printf_cpuEncap(const p4_pd_tessel_switch_cpuEncap_match_spec_t *m, char *buffer) {
  return snprintf(buffer, 512, "( 0x%01x,0x%01x,0x%01x,0x%01x,0x%02x,0x%02x,0x%01x,0x%01x,),",
                  m->egrMd_trapToCpu & 0x1u, m->ingMd_vlanHdrValid & 0x1u,
                  m->phase0_switchPort & 0x1u, m->phase0_switchPort_mask & 0x1u,
                  m->egrMd_cpuReasonCode & 0xffu, m->egrMd_cpuReasonCode_mask & 0xffu,
                  m->vlanHdr_0__valid & 0x1u, m->vlanHdr_0__valid_mask & 0x1u);
}

int by_hand_text_cpuEncap(const p4_pd_tessel_switch_cpuEncap_match_spec_t *m, char *buffer) {
  char *out = buffer;
  *out++ = '(';
  *out++ = ' ';
  out = put(out, m->egrMd_trapToCpu & 0x1u, 1);
  out = put(out, m->ingMd_vlanHdrValid & 0x1u, 1);
  out = put(out, m->phase0_switchPort & 0x1u, 1);
  out = put(out, m->phase0_switchPort_mask & 0x1u, 1);
  out = put(out, m->egrMd_cpuReasonCode, 2);
  out = put(out, m->egrMd_cpuReasonCode_mask, 2);
  out = put(out, m->vlanHdr_0__valid & 0x1u, 1);
  out = put(out, m->vlanHdr_0__valid_mask & 0x1u, 1);
  return finish(buffer, out);
}

#define ADDRESS_FORMAT "%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X%02X"
#define ADDRESS(a)                                                                               \
  a[0], a[1], a[2], a[3], a[4], a[5], a[6], a[7], a[8], a[9], a[10], a[11], a[12], a[13], a[14], \
      a[15]

int printf_trapToCpu(const p4_pd_tessel_switch_trapToCpu_match_spec_t *m, char *buffer) {
  return snprintf(
      buffer, 512,
      "( "
      "0x%01x,0x%01x,0x%04x,0x%04x,0x%02x,0x%02x,0x%01x,0x%01x,0x%01x,0x%01x,0x%08x,0x%08x,"
      "0x" ADDRESS_FORMAT ",0x" ADDRESS_FORMAT
      ",0x%01x,0x%01x,0x%01x,0x%01x,0x%04x,0x%04x,0x%04x,0x%04x,0x%01x,0x%01x,0x%03x,0x%03x,0x%01x,"
      "0x%01x,0x%01x,0x%01x,0x%02x,0x%02x,0x%04x,0x%04x,0x%02x,0x%02x,0x%01x,0x%01x,0x%04x,0x%04x,)"
      ",",
      m->arpHdr_valid & 0x1u, m->arpHdr_valid_mask & 0x1u, m->arpHdr_opcode & 0xffffu,
      m->arpHdr_opcode_mask & 0xffffu, m->egrMd_cpuReasonCode & 0xffu,
      m->egrMd_cpuReasonCode_mask & 0xffu, m->egrMd_decapType & 0x7u,
      m->egrMd_decapType_mask & 0x7u, m->egrMd_vxlanFlood & 0x1u, m->egrMd_vxlanFlood_mask & 0x1u,
      m->ingIpv4_dip & 0xffffffffu, m->ingIpv4_dip_mask & 0xffffffffu, ADDRESS(m->ingIpv6_dip),
      ADDRESS(m->ingIpv6_dip_mask), m->ingMd_bcast & 0x1u, m->ingMd_bcast_mask & 0x1u,
      m->ingMd_cpuMemberOfIngressVlan & 0x1u, m->ingMd_cpuMemberOfIngressVlan_mask & 0x1u,
      m->ingMd_dstPort & 0xffffu, m->ingMd_dstPort_mask & 0xffffu, m->ingMd_etherType & 0xffffu,
      m->ingMd_etherType_mask & 0xffffu, m->ingMd_igmpSnoopingEnabled & 0x1u,
      m->ingMd_igmpSnoopingEnabled_mask & 0x1u, m->ingMd_ingL3Aintf & 0xfffu,
      m->ingMd_ingL3Aintf_mask & 0xfffu, m->ingMd_l4Attr & 0x7u, m->ingMd_l4Attr_mask & 0x7u,
      m->ingMd_mcast & 0x1u, m->ingMd_mcast_mask & 0x1u, m->ingMd_protocol & 0xffu,
      m->ingMd_protocol_mask & 0xffu, m->ingMd_srcPort & 0xffffu, m->ingMd_srcPort_mask & 0xffffu,
      m->ingMd_ttl & 0xffu, m->ingMd_ttl_mask & 0xffu, m->l3Info_ingL3DmacValid & 0x1u,
      m->l3Info_ingL3DmacValid_mask & 0x1u, m->phase0_ingVPort & 0x3fffu,
      m->phase0_ingVPort_mask & 0x3fffu);
}

int by_hand_text_trapToCpu(const p4_pd_tessel_switch_trapToCpu_match_spec_t *m, char *buffer) {
  char *out = buffer;
  *out++ = '(';
  *out++ = ' ';
  out = put(out, m->arpHdr_valid & 0x1u, 1);
  out = put(out, m->arpHdr_valid_mask & 0x1u, 1);
  out = put(out, m->arpHdr_opcode, 4);
  out = put(out, m->arpHdr_opcode_mask, 4);
  out = put(out, m->egrMd_cpuReasonCode, 2);
  out = put(out, m->egrMd_cpuReasonCode_mask, 2);
  out = put(out, m->egrMd_decapType & 0x7u, 1);
  out = put(out, m->egrMd_decapType_mask & 0x7u, 1);
  out = put(out, m->egrMd_vxlanFlood & 0x1u, 1);
  out = put(out, m->egrMd_vxlanFlood_mask & 0x1u, 1);
  out = put(out, m->ingIpv4_dip, 8);
  out = put(out, m->ingIpv4_dip_mask, 8);
  out = put_address(out, m->ingIpv6_dip);
  out = put_address(out, m->ingIpv6_dip_mask);
  out = put(out, m->ingMd_bcast & 0x1u, 1);
  out = put(out, m->ingMd_bcast_mask & 0x1u, 1);
  out = put(out, m->ingMd_cpuMemberOfIngressVlan & 0x1u, 1);
  out = put(out, m->ingMd_cpuMemberOfIngressVlan_mask & 0x1u, 1);
  out = put(out, m->ingMd_dstPort, 4);
  out = put(out, m->ingMd_dstPort_mask, 4);
  out = put(out, m->ingMd_etherType, 4);
  out = put(out, m->ingMd_etherType_mask, 4);
  out = put(out, m->ingMd_igmpSnoopingEnabled & 0x1u, 1);
  out = put(out, m->ingMd_igmpSnoopingEnabled_mask & 0x1u, 1);
  out = put(out, m->ingMd_ingL3Aintf & 0xfffu, 3);
  out = put(out, m->ingMd_ingL3Aintf_mask & 0xfffu, 3);
  out = put(out, m->ingMd_l4Attr & 0x7u, 1);
  out = put(out, m->ingMd_l4Attr_mask & 0x7u, 1);
  out = put(out, m->ingMd_mcast & 0x1u, 1);
  out = put(out, m->ingMd_mcast_mask & 0x1u, 1);
  out = put(out, m->ingMd_protocol, 2);
  out = put(out, m->ingMd_protocol_mask, 2);
  out = put(out, m->ingMd_srcPort, 4);
  out = put(out, m->ingMd_srcPort_mask, 4);
  out = put(out, m->ingMd_ttl, 2);
  out = put(out, m->ingMd_ttl_mask, 2);
  out = put(out, m->l3Info_ingL3DmacValid & 0x1u, 1);
  out = put(out, m->l3Info_ingL3DmacValid_mask & 0x1u, 1);
  out = put(out, m->phase0_ingVPort & 0x3fffu, 4);
  out = put(out, m->phase0_ingVPort_mask & 0x3fffu, 4);
  return finish(buffer, out);
}
