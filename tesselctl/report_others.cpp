// What a report tells of hashes, registers and value sets.
#include <fmt/format.h>

#include "p4_pd_tessel_switch.h"
#include "soft_contents.h"
#include "soft_state.h"
#include "tesselctl/command.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/number.hpp"
#include "tesselctl/read_back.hpp"
#include "tesselctl/report.hpp"

namespace tesselctl {

namespace {

void add_hashes(const Device &device, std::vector<OtherReport> &others) {
  for (const soft_hash_t &hash : program_rows<soft_hash_t>()) {
    uint64_t seed = 0;
    check(device.prepare("hash_calc_seed_get", hash.name).set("seed", &seed).run(), {});
    if (seed != 0) others.push_back({"hash", hash.name, fmt::format("seed {:#x}", seed)});
  }
}

// The values of a cell, one a pipe; a single one where they are equal.
std::string cell_text(const Device &device, const soft_register_t &reg, uint32_t cell) {
  std::vector<uint32_t> values(device.pipes());
  uint32_t count = 0;
  Call call = device.prepare("register_read", reg.name);
  call.set("index", uint64_t{cell}).set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE});
  check(call.set("values", values.data()).set("value_count", &count).run(), {});
  std::string text;
  bool equal = true;
  for (uint32_t i = 0; i < count; ++i) {
    const uint32_t value = register_value(reg.width, values.data(), i);
    equal = equal && value == register_value(reg.width, values.data(), 0);
    text += (text.empty() ? "" : "/") + decimal(value);
  }
  return equal && count > 0 ? text.substr(0, text.find('/')) : text;
}

void add_registers(const Device &device, size_t limit, std::vector<OtherReport> &others) {
  for (const soft_register_t &reg : program_rows<soft_register_t>()) {
    const std::string most = cell_text(device, reg, SOFT_REGISTER_CELLS - 1);
    std::string text;
    uint64_t count = 0;
    uint32_t cell = 0;
    while (soft_next_cell(device.id(), reg.handle, cell, &cell) == BF_SUCCESS) {
      check_interrupt();
      if (count++ < limit) {
        text +=
            fmt::format("{}{} = {}", count == 1 ? "" : ", ", cell, cell_text(device, reg, cell));
      }
      ++cell;
    }
    if (count > limit) text += fmt::format(" and {} more", grouped(count - limit));
    if (count == 0 && most == "0") continue;
    text = count == 0 ? "all cells " + most
                      : fmt::format("cell{} {}; all others {}", count == 1 ? "" : "s", text, most);
    others.push_back({"register", reg.name, text});
  }
}

void add_value_sets(const Device &device, size_t limit, std::vector<OtherReport> &others) {
  for (const soft_value_set_t &set : program_rows<soft_value_set_t>()) {
    std::string text;
    uint64_t count = 0;
    for (uint32_t direction = 0; direction < 2; ++direction) {
      const p4_pd_parser_target_t all = {device.id(), direction, BF_ALL_PIPES, SOFT_ALL_PARSERS};
      Call first = device.prepare("pvs_entry_get_first_entry_handle", set.name);
      Call next = device.prepare("pvs_entry_get_next_entry_handles", set.name);
      first.set("target", &all);
      next.set("target", &all);
      for_each_handle({first, next, "entry", "entries", "entry"}, {}, [&](uint32_t entry) {
        if (count++ >= limit) return;
        uint32_t value = 0;
        uint32_t mask = 0;
        Call call = device.prepare("pvs_entry_get", set.name);
        check(call.set("entry", uint64_t{entry}).set("value", &value).set("mask", &mask).run(), {});
        text += fmt::format("{}{:#x}&{:#x} {}", count == 1 ? "" : ", ", value, mask,
                            direction == 0 ? "ingress" : "egress");
      });
    }
    if (count > limit) text += fmt::format(" and {} more", grouped(count - limit));
    if (count != 0) others.push_back({"value set", set.name, text});
  }
}

}  // namespace

std::vector<OtherReport> collect_others(const Device &device, size_t limit) {
  std::vector<OtherReport> others;
  add_hashes(device, others);
  add_registers(device, limit, others);
  add_value_sets(device, limit, others);
  return others;
}

}  // namespace tesselctl
