// Adds the entries of a line: those of a range all or none.
#pragma once

#include <optional>

#include "tesselctl/device/entry_line.hpp"

namespace tesselctl {

// The function of the table for what the line says: one per action, or one for members and one for
// groups. Throws Fault.
const bindings::Export &outcome_export(const EntryLine &line, std::string_view direct,
                                       std::string_view member, std::string_view group);

struct AddedEntry {
  p4_pd_entry_handle_t handle;
  bool is_new;  // or one that was there and was modified
};

class EntryAdder {
 public:
  // The line must live as long, and may have another key, priority or choice at each run. replaces:
  // entries that are there are made those that would have been added. Throws Fault.
  EntryAdder(const Device &device, EntryLine &line, bool replaces);
  EntryAdder(const EntryAdder &) = delete;
  EntryAdder &operator=(const EntryAdder &) = delete;

  // The entries of the line, until the next run. Throws Fault, and then the device is as it was.
  const std::vector<AddedEntry> &run();

 private:
  bool find();
  void add();
  void make_as_added(p4_pd_entry_handle_t entry);
  uint32_t exchange_ttl(p4_pd_entry_handle_t entry, uint32_t ttl);
  void take_back();

  const Device &device_;
  EntryLine &line_;
  p4_pd_entry_handle_t entry_ = 0;  // what calls give
  Call add_;
  std::optional<Call> find_;  // to replace
  std::vector<AddedEntry> entries_;
};

}  // namespace tesselctl
