#include "device_state.hpp"

#include <cjson/cJSON.h>
#include <string.h>

namespace pd {

p4_pd_ms_state_t *profile_states[limits::profiles];

namespace {

const Profile *find_profile(uint32_t action_data_table) {
  for (uint32_t i = 0; i < program.profile_count; ++i) {
    if (program.profiles[i]->action_data_table == action_data_table) return program.profiles[i];
  }
  return nullptr;
}

bool has_action(const Profile &profile, uint32_t action) {
  for (uint32_t i = 0; i < profile.pair_count; ++i) {
    if (profile.pairs[i].handle == action) return true;
  }
  return false;
}

// The document owns the item afterwards; without memory for the key the item is dropped.
void add_item(cJSON *object, const char *key, cJSON *item) {
  if (!cJSON_AddItemToObject(object, key, item)) cJSON_Delete(item);
}

void log_profile(uint8_t device, const Profile &profile, cJSON *array) {
  cJSON *object = cJSON_CreateObject();
  if (object == nullptr || !cJSON_AddItemToArray(array, object)) {
    cJSON_Delete(object);
    return;
  }
  add_item(object, "name", cJSON_CreateString(profile.name));
  p4_pd_ms_log_state(device, state_of(profile), object);
}

}  // namespace

p4_pd_status_t device_remove(uint32_t device) {
  for (uint32_t i = 0; i < program.profile_count; ++i) {
    p4_pd_ms_destroy_state_for_dev(profile_states[i], static_cast<uint8_t>(device));
  }
  p4_pd_ms_destroy_txn_state_for_dev(static_cast<uint8_t>(device));
  return BF_SUCCESS;
}

p4_pd_status_t device_log(uint8_t device, cJSON *document) {
  add_item(document, "name", cJSON_CreateString(program.name));
  cJSON *array = cJSON_CreateArray();
  if (!cJSON_AddItemToObject(document, "act_profs", array)) {
    cJSON_Delete(array);
    return BF_SUCCESS;
  }
  for (uint32_t i = 0; i < program.profile_count; ++i) {
    log_profile(device, *program.profiles[i], array);
  }
  return BF_SUCCESS;
}

p4_pd_status_t device_restore(uint8_t device, cJSON *document) {
  const cJSON *array = cJSON_GetObjectItem(document, "act_profs");
  if (!cJSON_IsArray(array)) return BF_SUCCESS;
  const cJSON *element = nullptr;
  cJSON_ArrayForEach(element, array) {
    const cJSON *name = cJSON_GetObjectItem(element, "name");
    if (!cJSON_IsString(name)) continue;
    for (uint32_t i = 0; i < program.profile_count; ++i) {
      if (strcmp(name->valuestring, program.profiles[i]->name) == 0) {
        p4_pd_ms_restore_state(device, profile_states[i], element);
      }
    }
  }
  return BF_SUCCESS;
}

p4_pd_status_t replay(p4_pd_session_handle_t session, uint8_t device, uint32_t action_data_table,
                      uint32_t action, p4_pd_group_handle_t group, p4_pd_member_handle_t member,
                      uint32_t has_resources) {
  const Profile *profile = find_profile(action_data_table);
  if (profile == nullptr) return P4_PD_UNKNOWN_HANDLE;
  if (has_resources != 0 && !has_action(*profile, action)) return P4_PD_FOREIGN_ACTION;
  p4_pd_ms_state_t *state = state_of(*profile);
  if (member != 0 && group == 0) {
    p4_pd_ms_new_mbr(session, state, device, member);
    p4_pd_ms_set_mbr_act(state, device, member, action);
  } else if (member == 0 && group != 0) {
    p4_pd_ms_new_grp(session, state, device, group);
  } else if (member != 0) {
    p4_pd_ms_add_mbr_to_grp(session, state, device, member, group);
    uint32_t member_action = 0;
    const p4_pd_status_t status = p4_pd_ms_get_mbr_act(state, device, member, &member_action);
    if (status != BF_SUCCESS) return status;
    p4_pd_ms_set_grp_act(state, device, group, member_action);
  }
  if (has_resources == 0) return BF_SUCCESS;
  return p4_pd_ms_mbr_apply_to_grps(state, device, member, p4_pd_ms_grp_update_res, state);
}

}  // namespace pd
