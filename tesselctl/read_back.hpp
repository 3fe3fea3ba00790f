// What the device holds, read through the library and put into the words of scripts.
#pragma once

#include <functional>
#include <string>

#include "tesselctl/device.hpp"
#include "tesselctl/entry_line.hpp"

namespace tesselctl {

// "vrfId=1 dip=10.0.0.0/8 ttl=0 action=setNextHop nextHop=12": what would add the entry again.
// Throws Fault at the word when it cannot be read.
std::string entry_text(const Device &device, const TableInfo &table, p4_pd_entry_handle_t entry,
                       Word word);
// "action=onMiss", "member=3" or "group=1".
std::string default_entry_text(const Device &device, const TableInfo &table, Word word);
std::string member_text(const Device &device, const char *profile, p4_pd_member_handle_t member,
                        Word word);

// "action=NAME PARAM=VALUE..." of an action by its enumeration value and record.
std::string outcome_text(uint32_t action, const uint8_t *record);

// Visits what a pair of get_first and get_next functions enumerates: entries of a table, members or
// groups of a profile, members of a group. first and next are prepared but for their outputs, whose
// parameters are named one (in first) and many (in next); next also takes the handle before as
// from.
struct Enumeration {
  Call first;
  Call next;
  const char *one;
  const char *many;
  const char *from;
};
void for_each_handle(Enumeration enumeration, Word word,
                     const std::function<void(uint32_t)> &visit);
void for_each_entry(const Device &device, const TableInfo &table, Word word,
                    const std::function<void(p4_pd_entry_handle_t)> &visit);

}  // namespace tesselctl
