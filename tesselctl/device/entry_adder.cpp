#include "tesselctl/device/entry_adder.hpp"

#include <fmt/format.h>

#include "tesselctl/device/group_call.hpp"

namespace tesselctl {

// The function of the table for what the line says: one per action, or one for members and one for
// groups.
const bindings::Export &outcome_export(const EntryLine &line, std::string_view direct,
                                       std::string_view member, std::string_view group) {
  const char *table = line.table().name();
  if (line.need_outcome()) {
    const bindings::Export *found = find_export(direct, table, line.action());
    if (found != nullptr) return *found;
    throw Fault(line.table_word(),
                fmt::format("{} may only be the default action of {}", line.action(), table));
  }
  return need_export(line.member() ? member : group, table);
}

EntryAdder::EntryAdder(const Device &device, EntryLine &line, bool replaces)
    : device_(device),
      line_(line),
      add_(device.prepare(
          outcome_export(line, "table_add", "add_entry", "add_entry_with_selector"))) {
  line.fill(add_.set("entry", &entry_), true);
  if (!replaces) return;
  find_.emplace(device.prepare("match_spec_to_entry_hdl", line.table().name()));
  find_->set("entry", &entry_);
}

// Additions, which a full table refuses, come before changes. What the device takes for one entry
// it takes for all of them, so that no change stands before a refused one.
const std::vector<AddedEntry> &EntryAdder::run() {
  line_.give(add_);
  if (find_) line_.give(*find_);
  entries_.clear();
  size_t at = 0;
  try {
    for (; at < line_.count(); ++at) {
      line_.choose(at);
      const bool is_there = find();
      if (!is_there) add();
      entries_.push_back({entry_, !is_there});
    }
    for (const AddedEntry &entry : entries_) {
      if (!entry.is_new) make_as_added(entry.handle);
    }
  } catch (const Fault &fault) {
    take_back();
    throw line_.with_chosen(fault, at, "; the device is as it was");
  }
  return entries_;
}

bool EntryAdder::find() {
  if (!find_) return false;
  const uint64_t status = find_->run();
  if (status != BF_OBJECT_NOT_FOUND) check(status, line_.table_word());
  return status == BF_SUCCESS;
}

void EntryAdder::add() {
  check_outcome(run_with_group(device_, line_.table(), add_), device_, line_, line_.table_word());
}

void EntryAdder::take_back() {
  Call remove = device_.prepare("table_delete", line_.table().name());
  for (const AddedEntry &entry : entries_) {
    if (entry.is_new) remove.set("entry", uint64_t{entry.handle}).run();
  }
}

// Gives an entry another ttl, where the table ages its entries. The former one.
uint32_t EntryAdder::exchange_ttl(p4_pd_entry_handle_t entry, uint32_t ttl) {
  if (!line_.table().ages()) return 0;
  const auto run = [&](const char *family, auto value) {
    Call call = device_.prepare(family, line_.table().name());
    check(call.set("entry", uint64_t{entry}).set("ttl", value).run(), line_.table_word());
  };
  uint32_t before = 0;
  run("get_ttl", static_cast<const void *>(&before));
  run("set_ttl", uint64_t{ttl});
  return before;
}

void EntryAdder::make_as_added(p4_pd_entry_handle_t entry) {
  Call call = device_.prepare(
      outcome_export(line_, "table_modify", "modify_entry", "modify_entry_with_selector"));
  line_.give(call.set("entry", uint64_t{entry}));
  const uint32_t ttl = exchange_ttl(entry, line_.ttl());
  try {
    check_outcome(run_with_group(device_, line_.table(), call), device_, line_, line_.table_word());
  } catch (const Fault &) {
    exchange_ttl(entry, ttl);
    throw;
  }
}

}  // namespace tesselctl
