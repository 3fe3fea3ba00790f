#include "render.hpp"

namespace pd {

namespace {

int print_unknown(int descriptor, uint32_t handle) {
  char line[] = "0x00000000";
  put_hex(line + 2, handle, 8);
  return print_text_line(descriptor, 0, line, " table not found");
}

void store_none(uint32_t *out) {
  if (out != nullptr) *out = 0xffffffffu;
}

}  // namespace

int print_placement_of(const Rendered &all, int descriptor, int indent, uint32_t table,
                       const pipe_mgr_placement_t *placement) {
  const RenderedTable *found = all.table(table);
  return found == nullptr ? print_unknown(descriptor, table)
                          : print_placement(*found, descriptor, indent, placement);
}

int print_member_placement_of(const Rendered &all, int descriptor, int indent, uint32_t profile,
                              const pipe_mgr_placement_t *placement) {
  const RenderedProfile *found = all.profile(profile);
  return found == nullptr ? print_unknown(descriptor, profile)
                          : print_member_placement(*found, descriptor, indent, placement);
}

int placement_value_of(const Rendered &all, uint32_t table, const pipe_mgr_placement_t *placement,
                       char *buffer) {
  const RenderedTable *found = all.table(table);
  return found == nullptr ? 0 : placement_value(*found, placement, buffer);
}

int member_placement_value_of(const Rendered &all, uint32_t profile,
                              const pipe_mgr_placement_t *placement, char *buffer) {
  const RenderedProfile *found = all.profile(profile);
  return found == nullptr ? 0 : member_placement_value(*found, placement, buffer);
}

int placement_of_equals_hardware(const Rendered &all, p4_pd_session_handle_t session,
                                 uint8_t device, uint32_t table, p4_pd_entry_handle_t entry,
                                 const pipe_mgr_placement_t *placement) {
  const RenderedTable *found = all.table(table);
  return found == nullptr
             ? 0
             : placement_equals_hardware(*found, session, device, table, entry, placement);
}

int entry_value_of(const Rendered &all, p4_pd_session_handle_t session, uint32_t device,
                   uint32_t table, p4_pd_entry_handle_t entry, uint32_t read_from_hardware,
                   char *buffer) {
  const RenderedTable *found = all.table(table);
  if (found == nullptr) return 0;
  return found->entry_value(
      {session, static_cast<uint8_t>(device), entry, static_cast<uint8_t>(read_from_hardware) != 0},
      buffer);
}

p4_pd_status_t first_entry_of(const Rendered &all, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t table,
                              p4_pd_entry_handle_t *entry) {
  if (all.table(table) != nullptr) return get_first(table, session, target, entry);
  store_none(entry);
  return BF_SUCCESS;
}

p4_pd_status_t next_entries_of(const Rendered &all, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, uint32_t table,
                               p4_pd_entry_handle_t entry, uint32_t count,
                               p4_pd_entry_handle_t *entries) {
  if (all.table(table) != nullptr) return get_next(table, session, target, entry, count, entries);
  if (count != 0) store_none(entries);
  return BF_SUCCESS;
}

p4_pd_status_t default_entry_of(const Rendered &all, p4_pd_session_handle_t session,
                                p4_pd_device_target_t target, uint32_t table,
                                p4_pd_entry_handle_t *entry) {
  if (all.table(table) != nullptr) return get_default_entry_handle(table, session, target, entry);
  store_none(entry);
  return BF_SUCCESS;
}

p4_pd_status_t next_members_of(const Rendered &all, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, uint32_t profile,
                               p4_pd_member_handle_t member, uint32_t count,
                               p4_pd_member_handle_t *members) {
  if (all.profile(profile) != nullptr) {
    return get_next(profile, session, target, member, count, members);
  }
  if (count != 0) store_none(members);
  return 0xffffffffu;
}

}  // namespace pd
