#include "tesselctl/device/handles.hpp"

#include "soft_contents.h"
#include "soft_sdk.h"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

void visit_handles(Enumeration enumeration, Word word, const std::function<bool(uint32_t)> &visit) {
  constexpr uint32_t kNone = 0xffffffffu;
  uint32_t first = 0;
  uint64_t status = enumeration.first.set(enumeration.one, &first).run();
  if (status == BF_OBJECT_NOT_FOUND) return;
  check(status, word);
  if (!visit(first)) return;
  uint32_t batch[256] = {first};
  uint32_t last = first;
  enumeration.next.set("count", uint64_t{std::size(batch)}).set(enumeration.many, batch);
  while (true) {
    status = enumeration.next.set(enumeration.from, uint64_t{last}).run();
    if (status == BF_OBJECT_NOT_FOUND) return;
    check(status, word);
    check_interrupt();
    for (const uint32_t handle : batch) {
      if (handle == kNone || !visit(handle)) return;
    }
    last = batch[std::size(batch) - 1];
  }
}

void for_each_handle(Enumeration enumeration, Word word,
                     const std::function<void(uint32_t)> &visit) {
  visit_handles(std::move(enumeration), word, [&](uint32_t handle) {
    visit(handle);
    return true;
  });
}

Enumeration entries_of(const Device &device, const TableInfo &table) {
  return {device.prepare("get_first_entry_handle", table.name()),
          device.prepare("get_next_entry_handles", table.name()), "entry", "entries", "entry"};
}

Enumeration members_of(const Device &device, const char *profile) {
  return {device.prepare("get_first_member", profile), device.prepare("get_next_members", profile),
          "member", "members", "member"};
}

Enumeration groups_of(const Device &device, const char *profile) {
  return {device.prepare("get_first_group", profile), device.prepare("get_next_groups", profile),
          "group", "groups", "group"};
}

Enumeration set_values_of(const Device &device, const char *value_set,
                          const p4_pd_parser_target_t &target) {
  Call first = device.prepare("pvs_entry_get_first_entry_handle", value_set);
  Call next = device.prepare("pvs_entry_get_next_entry_handles", value_set);
  first.set("target", &target);
  next.set("target", &target);
  return {first, next, "entry", "entries", "entry"};
}

uint32_t table_capacity(const Device &device, const TableInfo &table) {
  uint32_t capacity = 0;
  soft_table_capacity_get(device.id(), table.description->handle, &capacity);
  return capacity;
}

uint32_t entry_count(const Device &device, const TableInfo &table, Word word) {
  uint32_t count = 0;
  check(device.prepare("get_entry_count", table.name()).set("count", &count).run(), word);
  return count;
}

void for_each_entry(const Device &device, const TableInfo &table, Word word,
                    const std::function<void(p4_pd_entry_handle_t)> &visit) {
  for_each_handle(entries_of(device, table), word, visit);
}

void for_each_member(const Device &device, const char *profile, Word word,
                     const std::function<void(p4_pd_member_handle_t)> &visit) {
  for_each_handle(members_of(device, profile), word, visit);
}

void for_each_group(const Device &device, const char *profile, Word word,
                    const std::function<void(p4_pd_group_handle_t)> &visit) {
  for_each_handle(groups_of(device, profile), word, visit);
}

void for_each_group_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                           Word word,
                           const std::function<void(p4_pd_member_handle_t, bool active)> &visit) {
  Call first = device.prepare("get_first_group_member", profile);
  Call next = device.prepare("get_next_group_members", profile);
  Call get_state = device.prepare("group_member_state_get", profile);
  for (Call *call : {&first, &next, &get_state}) call->set("group", uint64_t{group});
  for_each_handle({first, next, "member", "members", "member"}, word, [&](uint32_t member) {
    uint32_t state = P4_PD_GRP_MBR_STATE_ACTIVE;
    check(get_state.set("member", uint64_t{member}).set("state", &state).run(), word);
    visit(member, state != P4_PD_GRP_MBR_STATE_INACTIVE);
  });
}

bool has_handle(const Device &device, const char *profile, std::string_view kind, uint32_t handle) {
  bool known = false;
  for_each_handle(kind == "group" ? groups_of(device, profile) : members_of(device, profile), {},
                  [&](uint32_t one) { known = known || one == handle; });
  return known;
}

void check_handles(uint64_t status, const Device &device, const char *profile,
                   const std::vector<WrittenHandle> &handles, Word otherwise) {
  if (status == BF_SUCCESS) return;
  for (const WrittenHandle &written : handles) {
    if (!has_handle(device, profile, written.kind, written.handle)) check(status, written.word);
  }
  check(status, otherwise);
}

uint64_t choose_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                       uint32_t hash, p4_pd_member_handle_t &member) {
  const auto bytes = to_bytes(uint64_t{hash});
  Call call = device.prepare("group_member_get_from_hash", profile);
  call.set("group", uint64_t{group}).set("member", &member);
  return call.set("hash", bytes.data() + 12).set("hash_length", uint64_t{4}).run();
}

void for_each_cell(const Device &device, uint32_t handle,
                   const std::function<void(uint32_t)> &visit, std::optional<uint32_t> only) {
  uint32_t cell = only.value_or(0);
  while (soft_next_cell(device.id(), handle, cell, &cell) == BF_SUCCESS) {
    if (only && cell != *only) return;
    check_interrupt();
    visit(cell);
    if (++cell == 0) return;
  }
}

}  // namespace tesselctl
