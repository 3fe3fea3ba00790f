/* A host in C: a device of the soft SDK, one route through the library, and the route read back. */
#include <inttypes.h>
#include <stdio.h>

#include "p4_pd_tessel_switch.h"
#include "soft_sdk.h"

extern const soft_program_t soft_program_tessel_switch;

#define CHECK(call)                                               \
  do {                                                            \
    const uint32_t status = (call);                               \
    if (status != BF_SUCCESS) {                                   \
      fprintf(stderr, "%s: status %" PRIu32 "\n", #call, status); \
      return 1;                                                   \
    }                                                             \
  } while (0)

int main(void) {
  p4_pd_session_handle_t session;
  CHECK(p4_pd_tessel_switch_init());
  CHECK(soft_device_create(0, 4, &soft_program_tessel_switch, false));
  CHECK(soft_session_open(&session));

  const p4_pd_device_target_t target = {.device_id = 0, .pipe_id = BF_ALL_PIPES};
  p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match = {
      .l3Info_vrfId = 3, .ingIpv4_dip = 0x0a010200, .ingIpv4_dip_prefix_length = 24};
  p4_pd_tessel_switch_setNextHop_action_spec_t action = {.action_nextHop = 17};
  p4_pd_entry_handle_t entry;
  CHECK(p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(session, target, &match,
                                                                       &action, 0, &entry));
  char text[512];
  p4_pd_tessel_switch_ipv4ShortMaskLpm_value(session, 0, entry, false, text);
  printf("entry %" PRIu32 ": %s\n", entry, text);

  CHECK(soft_session_close(session));
  CHECK(soft_device_remove(0));
  CHECK(p4_pd_tessel_switch_cleanup());
  return 0;
}
