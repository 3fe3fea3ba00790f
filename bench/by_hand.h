/* What an engineer would write for six tables without a generator: straight-line encoders that make
 * the same SDK call with the same bytes. The measure that the library is held to. */
#ifndef BY_HAND_H
#define BY_HAND_H

#include "p4_pd_tessel_switch.h"

#ifdef __cplusplus
extern "C" {
#endif

p4_pd_status_t by_hand_cpuEncap(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_cpuEncap_match_spec_t *match_spec, uint32_t priority,
    const p4_pd_tessel_switch_copyPktToCpuSubintf_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);

p4_pd_status_t by_hand_l2Lookup(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_l2Lookup_match_spec_t *match_spec,
    const p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t *action_spec,
    p4_pd_entry_handle_t *entry);

p4_pd_status_t by_hand_ipv4ShortMaskLpm(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);

p4_pd_status_t by_hand_ipv6ShortMaskLpm(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_ipv6ShortMaskLpm_match_spec_t *match_spec,
    const p4_pd_tessel_switch_setNextHop_action_spec_t *action_spec, uint32_t ttl,
    p4_pd_entry_handle_t *entry);

p4_pd_status_t by_hand_trapToCpu(p4_pd_session_handle_t session, p4_pd_device_target_t target,
                                 const p4_pd_tessel_switch_trapToCpu_match_spec_t *match_spec,
                                 uint32_t priority,
                                 const p4_pd_tessel_switch_trapPacket_action_spec_t *action_spec,
                                 p4_pd_entry_handle_t *entry);

p4_pd_status_t by_hand_finalDropControl(
    p4_pd_session_handle_t session, p4_pd_device_target_t target,
    const p4_pd_tessel_switch_finalDropControl_match_spec_t *match_spec, uint32_t priority,
    p4_pd_entry_handle_t *entry);

#ifdef __cplusplus
}
#endif

#endif
