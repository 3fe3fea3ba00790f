// For scenarios that call the library as its users do: typed functions, short names.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>

#include "pipe_mgr.h"
#include "support.hpp"

// A function or type of the program.
#define PD(name) p4_pd_tessel_switch_##name

namespace pd_test {

// A number that no field of a record or status of a call has by chance.
inline constexpr uint32_t kUnwritten = 0xeeeeeeee;

inline std::string data_of(const soft::journal::ActionSpec &spec) {
  return hex(spec.data.bytes.value_or(Bytes{0xde, 0xad}));
}

// "handle:index:tag" of each resource.
inline std::string resources_of(const soft::journal::ActionSpec &spec) {
  std::string text;
  for (const pipe_mgr_resource_t &resource : spec.resources) {
    char part[40];
    std::snprintf(part, sizeof part, "%s%08x:%x:%u", text.empty() ? "" : " ", resource.handle,
                  resource.index, resource.tag);
    text += part;
  }
  return text;
}

// ---- Another program in the device than in the library ----

constexpr bf_device_id_t kOther = 12;

// A copy of the program in which one table is described otherwise.
class Altered {
 public:
  explicit Altered(std::string_view table)
      : tables_(soft_program_tessel_switch.tables,
                soft_program_tessel_switch.tables + soft_program_tessel_switch.table_count),
        altered_(&*std::ranges::find(tables_, table_named(table).handle, &soft_table_t::handle)),
        program_(soft_program_tessel_switch) {
    program_.tables = tables_.data();
  }
  const soft_program_t &program() const { return program_; }
  soft_table_t &table() { return *altered_; }

  // The actions of the table from now on.
  void use(std::vector<soft_action_t> actions) {
    actions_ = std::move(actions);
    altered_->actions = actions_.data();
    altered_->action_count = static_cast<uint32_t>(actions_.size());
  }
  // Those that it has.
  std::vector<soft_action_t> actions() const {
    return {altered_->actions, altered_->actions + altered_->action_count};
  }

 private:
  std::vector<soft_table_t> tables_;
  soft_table_t *altered_;
  std::vector<soft_action_t> actions_;
  soft_program_t program_;
};

}  // namespace pd_test
