/* A host in C99 that is linked with nothing of this project: it finds everything by name, makes the
 * first ten calls of examples/leaf.tessel as tesselctl --trace prints them (calls.inc), and shows
 * what the tables hold. */
#include <dlfcn.h>
#include <inttypes.h>
#include <stdio.h>
#include <stdlib.h>

#include "p4_pd_tessel_switch.h"
#include "soft_sdk.h"

static void *must(void *found) {
  if (!found) {
    fprintf(stderr, "%s\n", dlerror());
    exit(1);
  }
  return found;
}

static void check(uint32_t status) {
  if (status != BF_SUCCESS) {
    fprintf(stderr, "status %" PRIu32 "\n", status);
    exit(1);
  }
}

/* C99 converts no pointer to an object into one to a function. */
#define FIND(pointer, library, name) *(void **)&(pointer) = must(dlsym(library, name))

static const p4_pd_device_target_t target = {0, BF_ALL_PIPES};

static void make_calls(void *pd, p4_pd_session_handle_t session) {
  p4_pd_status_t (*p4_pd_tessel_switch_ingressPortMapping_table_add_with_setPhase0)(
      p4_pd_session_handle_t, p4_pd_device_target_t,
      const p4_pd_tessel_switch_ingressPortMapping_match_spec_t *,
      const p4_pd_tessel_switch_setPhase0_action_spec_t *, p4_pd_entry_handle_t *);
  p4_pd_status_t (*p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainUntagged)(
      p4_pd_session_handle_t, p4_pd_device_target_t,
      const p4_pd_tessel_switch_l2DomainLookup_match_spec_t *, uint32_t priority,
      const p4_pd_tessel_switch_setL2DomainUntagged_action_spec_t *, p4_pd_entry_handle_t *);
  FIND(p4_pd_tessel_switch_ingressPortMapping_table_add_with_setPhase0, pd,
       "p4_pd_tessel_switch_ingressPortMapping_table_add_with_setPhase0");
  FIND(p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainUntagged, pd,
       "p4_pd_tessel_switch_l2DomainLookup_table_add_with_setL2DomainUntagged");
  p4_pd_status_t status;
#include "calls.inc"
}

/* The entries of a table, as its function of that name writes them. */
static void show(void *pd, const char *function, p4_pd_session_handle_t session, uint32_t count) {
  int (*value)(p4_pd_session_handle_t, uint8_t, p4_pd_entry_handle_t, bool, char *);
  char text[P4_PD_TESSEL_SWITCH_VALUE_MAX];
  FIND(value, pd, function);
  for (p4_pd_entry_handle_t entry = 1; entry <= count; ++entry) {
    value(session, 0, entry, false, text);
    puts(text);
  }
}

int main(void) {
  void *sdk = must(dlopen("libsoft_sdk.so.1", RTLD_NOW | RTLD_GLOBAL));
  void *pd = must(dlopen("libp4_pd_tessel_switch.so.1", RTLD_NOW));
  void *program = must(dlopen("libsoft_program_tessel_switch.so.1", RTLD_NOW));
  p4_pd_status_t (*init)(void);
  bf_status_t (*create)(bf_device_id_t, uint32_t, const soft_program_t *, bool);
  bf_status_t (*open)(pipe_session_handle_t *);
  FIND(init, pd, "p4_pd_tessel_switch_init");
  FIND(create, sdk, "soft_device_create");
  FIND(open, sdk, "soft_session_open");
  p4_pd_session_handle_t session;
  check(init());
  check(create(0, 4, must(dlsym(program, "soft_program_tessel_switch")), false));
  check(open(&session));
  make_calls(pd, session);
  show(pd, "p4_pd_tessel_switch_ingressPortMapping_value", session, 6);
  show(pd, "p4_pd_tessel_switch_l2DomainLookup_value", session, 4);
  return 0;
}
