// What exports that read an entry or a member report.
#pragma once

#include "oracle.hpp"

namespace pd_test {

inline constexpr uint32_t kUnset = 0xeeeeeeee;

// What an export that reads an entry reports. Every byte is set beforehand.
struct Read {
  const Export *from;
  Bytes match_spec;
  Bytes action_specs = Bytes(binding().sizes.action_specs, 0xee);
  Bytes action_name = Bytes(binding().sizes.action_name, 0xee);
  uint32_t priority = kUnset, member = kUnset, group = kUnset;
  uint8_t has_member = 0xee, has_group = 0xee, no_key = 0xee;

  Read(const Export &exported, const pdgen::Table *table, const Given &where)
      : from(&exported), match_spec(table == nullptr ? 0 : record_of(*table).size, 0xee) {
    Arguments read(exported);
    read.give(with("read_from_hardware", 0, "match_spec", match_spec.data(), "priority", &priority,
                   "action_specs", action_specs.data(), "action", action_specs.data(),
                   "action_spec", &action_specs[binding().sizes.action_spec], "action_name",
                   action_name.data(), "member", &member, "group", &group, "has_member",
                   &has_member, "has_group", &has_group, "no_key", &no_key))
        .give(where);
    EXPECT_EQ(read.status(), BF_SUCCESS) << exported.name;
  }
  bool reports(std::string_view name) const { return Arguments(*from).takes(name); }
};

}  // namespace pd_test
