// The handles of what a device holds, one after the other.
#pragma once

#include <functional>
#include <optional>

#include "tesselctl/device/device.hpp"
#include "tesselctl/device/table_info.hpp"

namespace tesselctl {

// Visits what a pair of get_first and get_next functions enumerates: entries of a table, members or
// groups of a profile, members of a group. first and next are prepared but for their outputs, whose
// parameters are named one (in first) and many (in next); next also takes the handle before as
// from. Throws Fault at the word when the device refuses.
struct Enumeration {
  Call first;
  Call next;
  const char *one;
  const char *many;
  const char *from;
};
// Ends early when visit gives false.
void visit_handles(Enumeration enumeration, Word word, const std::function<bool(uint32_t)> &visit);
void for_each_handle(Enumeration enumeration, Word word,
                     const std::function<void(uint32_t)> &visit);

Enumeration entries_of(const Device &device, const TableInfo &table);
Enumeration members_of(const Device &device, const char *profile);
Enumeration groups_of(const Device &device, const char *profile);
// Of the parsers of a target.
Enumeration set_values_of(const Device &device, const char *value_set,
                          const p4_pd_parser_target_t &target);

// How many entries the table may have, 0 for any number.
uint32_t table_capacity(const Device &device, const TableInfo &table);
// How many it has. Throws Fault at the word.
uint32_t entry_count(const Device &device, const TableInfo &table, Word word);

void for_each_entry(const Device &device, const TableInfo &table, Word word,
                    const std::function<void(p4_pd_entry_handle_t)> &visit);
void for_each_member(const Device &device, const char *profile, Word word,
                     const std::function<void(p4_pd_member_handle_t)> &visit);
void for_each_group(const Device &device, const char *profile, Word word,
                    const std::function<void(p4_pd_group_handle_t)> &visit);
void for_each_group_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                           Word word,
                           const std::function<void(p4_pd_member_handle_t, bool active)> &visit);

// A handle that somebody wrote: of a "member" or a "group".
struct WrittenHandle {
  std::string_view kind;
  uint32_t handle;
  Word word;
};
bool has_handle(const Device &device, const char *profile, std::string_view kind, uint32_t handle);
// Throws Fault unless the status is good: at the first handle that the profile does not have, else
// at the word otherwise.
void check_handles(uint64_t status, const Device &device, const char *profile,
                   const std::vector<WrittenHandle> &handles, Word otherwise);

// The member that a packet of the hash gets from the group. A status: BF_OBJECT_NOT_FOUND when the
// group has no active member and the profile no fallback.
uint64_t choose_member(const Device &device, const char *profile, p4_pd_group_handle_t group,
                       uint32_t hash, p4_pd_member_handle_t &member);

// The cells of a counter, meter or register that are not as most are, or one of them alone.
void for_each_cell(const Device &device, uint32_t handle,
                   const std::function<void(uint32_t)> &visit, std::optional<uint32_t> only = {});

}  // namespace tesselctl
