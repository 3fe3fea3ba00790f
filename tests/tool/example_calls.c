/* What the examples of functions stand in: example_calls_test.py writes them into examples.inc. */
#include <stdio.h>
#include <string.h>

#include "p4_pd_tessel_switch.h"
#include "soft_learning.h"
#include "soft_placement.h"
#include "soft_sdk.h"
#include "soft_snapshot.h"

extern const soft_program_t soft_program_tessel_switch;
static p4_pd_session_handle_t session;
static uint8_t device = 0;
static p4_pd_device_target_t target = {0, BF_ALL_PIPES};
static pipe_mgr_placement_t *placement;
static pipe_mgr_digest_message_t *message;
static p4_pd_status_t status;
static uint32_t made_entry, made_member, made_group, made_snapshot;
static long outcome;

bf_status_t on_digest(pipe_session_handle_t s, pipe_mgr_digest_message_t *learnt, void *cookie) {
  message = learnt;
  return BF_SUCCESS;
}
void on_entry_update(pipe_session_handle_t s, bf_device_id_t d, pipe_object_handle_t t, uint32_t u,
                     pipe_entry_handle_t e, void *c) {}
void on_member_update(pipe_session_handle_t s, bf_device_id_t d, pipe_object_handle_t a, uint32_t u,
                      pipe_member_handle_t m, void *c) {}
void on_group_update(pipe_session_handle_t s, bf_device_id_t d, pipe_object_handle_t t, uint32_t u,
                     pipe_group_handle_t g, pipe_member_handle_t m, void *c) {}
void on_expiry(bf_device_id_t d, pipe_object_handle_t t, pipe_entry_handle_t e, void *c) {}
void on_synchronised(bf_device_id_t d, void *cookie) {}

static void first(void) {
  soft_device_remove(0);
  soft_device_create(0, 2, &soft_program_tessel_switch, false);
}
static void place(uint32_t made,
                  bf_status_t (*of)(bf_device_id_t, pipe_object_handle_t, uint32_t,
                                    pipe_mgr_placement_t **),
                  p4_pd_status_t (*handle_of)(uint32_t *)) {
  uint32_t handle = 0;
  handle_of(&handle);
  of(0, handle, made, &placement);
}
static void learn(const char *name) {
  static const uint8_t entry[4096];
  for (uint32_t i = 0; i < soft_program_tessel_switch.digest_count; ++i) {
    const soft_digest_t *digest = &soft_program_tessel_switch.digests[i];
    if (strcmp(name, digest->name) == 0) {
      soft_digest_inject(0, 0, digest->handle, entry, 1, digest->entry_bytes, NULL);
    }
  }
}
static void capture(void) {
  static const uint8_t packet[4096];
  soft_snapshot_inject(0, 0, 0, 1, packet, 1, soft_program_tessel_switch.snapshot_bytes, NULL);
}
static void check(void (*run)(void), const char *name, bool may_be_missing, bool may_be_any) {
  status = 0;
  outcome = 1;
  run();
  if (status != 0 && !(may_be_missing && status == BF_OBJECT_NOT_FOUND)) {
    fprintf(stderr, "%s: %s\n", name, soft_status_name(status));
  }
  if (!may_be_any && (outcome == 0 || outcome == -1)) fprintf(stderr, "%s: %ld\n", name, outcome);
}

#include "examples.inc"

int main(void) {
  p4_pd_tessel_switch_init();
  soft_session_open(&session);
  soft_device_create(1, 2, &soft_program_tessel_switch, true);
  run_all();
  return 0;
}
