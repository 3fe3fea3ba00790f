// Entries and default entries of a table on both sides.
#include <algorithm>
#include <vector>

#include "p4_pd_tessel_switch.h"
#include "tesselctl/verify_parts.hpp"

namespace tesselctl {

namespace {

class TableCheck {
 public:
  TableCheck(Verification &run, const soft_table_t &table)
      : old_(run.old_device),
        new_(run.new_device),
        table_(table),
        report_(run.report),
        counts_(run.counts) {}

  void run() {
    check_defaults();
    if (table_.key_bytes == 0) return;
    uint64_t in_place = 0;
    for_each_entry(old_, [&](uint32_t entry) { in_place += check_entry(entry) ? 1 : 0; });
    // Each entry of the old device met one of its own: so many are accounted for.
    if (in_place != entry_count(new_)) look_for_extra();
  }

 private:
  template <class Visit>
  void for_each_entry(const Device &device, Visit visit) {
    const p4_pd_device_target_t all = device.target_of(BF_ALL_PIPES);
    walk(
        table_.name,
        [&](uint32_t *entry) {
          return p4_pd_tessel_switch_entry_hdl_first(device.session(), all, table_.handle, entry);
        },
        [&](uint32_t entry, uint32_t count, uint32_t *entries) {
          return p4_pd_tessel_switch_entry_hdl_next(device.session(), all, table_.handle, entry,
                                                    count, entries);
        },
        visit);
  }

  uint64_t entry_count(const Device &device) const {
    const p4_pd_device_target_t all = device.target_of(BF_ALL_PIPES);
    uint32_t count = 0;
    Call call = device.prepare("get_entry_count", table_.name);
    call.set("target", static_cast<const void *>(&all)).set("count", &count);
    need(call.run(), "the number of entries", table_.name);
    return count;
  }

  bool equals(const Device &device, uint32_t entry, const pipe_mgr_placement_t *placement) const {
    return p4_pd_tessel_switch_plcmt_data_eq_to_hw(device.session(), short_id(device),
                                                   table_.handle, entry, placement) == 1;
  }

  // Whether the new device has an equal entry under the same handle.
  bool check_entry(uint32_t entry) {
    ++counts_.entries;
    const pipe_mgr_placement_t *placement = placement_.of_entry(old_, table_, entry);
    if (equals(new_, entry, placement)) return true;
    const uint32_t found = find(new_, placement);
    if (found != 0 && equals(new_, found, placement)) return false;
    tell(found == 0 ? Difference::missing : Difference::different, Compared::entry, entry, found);
    return false;
  }

  void look_for_extra() {
    for_each_entry(new_, [&](uint32_t entry) {
      const pipe_mgr_placement_t *placement = placement_.of_entry(new_, table_, entry);
      if (equals(old_, entry, placement) || find(old_, placement) != 0) return;
      tell(Difference::extra, Compared::entry, 0, entry);
    });
  }

  // The entry of the device with the key of the placement data, or 0; of several with the key, in
  // pipes of their own, an equal one before others.
  uint32_t find(const Device &device, const pipe_mgr_placement_t *placement) {
    decode(placement);
    Call call = device.prepare("match_spec_to_entry_hdl", table_.name);
    p4_pd_device_target_t target = device.target();
    uint32_t entry = 0;
    call.set("target", static_cast<const void *>(&target)).set("entry", &entry);
    call.set("match_spec", static_cast<const void *>(key_.data()));
    call.set_if_taken("priority", uint64_t{priority_});
    uint32_t best = 0;
    for_each_pipe(device, [&](uint16_t pipe) {
      target.pipe_id = pipe;
      if (call.run() != BF_SUCCESS) return;
      if (best == 0 || equals(device, entry, placement)) best = entry;
    });
    return best;
  }

  // The key; what else there is goes where nobody looks.
  void decode(const pipe_mgr_placement_t *placement) {
    p4_pd_tessel_switch_action_specs_t action_specs;
    uint32_t member = 0;
    uint32_t group = 0;
    bool flags[3] = {};
    const bool indirect = table_.action_data_table != 0;
    Call call(
        need_export(indirect ? "get_indirect_entry_from_plcmt_data" : "get_entry_from_plcmt_data",
                    table_.name));
    key_.resize(record().size);
    call.set("placement", placement).set("match_spec", static_cast<const void *>(key_.data()));
    call.set_if_taken("priority", static_cast<const void *>(&priority_));
    call.set_if_taken("action_specs", static_cast<const void *>(&action_specs));
    call.set_if_taken("member", static_cast<const void *>(&member));
    call.set_if_taken("group", static_cast<const void *>(&group));
    call.set_if_taken("has_member", static_cast<const void *>(&flags[0]));
    call.set_if_taken("has_group", static_cast<const void *>(&flags[1]));
    need(call.set("no_key", static_cast<const void *>(&flags[2])).run(), "an entry", table_.name);
  }

  const bindings::Record &record() const {
    return *std::ranges::find(tables(), table_.handle, &bindings::Record::number);
  }

  template <class Visit>
  static void for_each_pipe(const Device &device, Visit visit) {
    visit(uint16_t{BF_ALL_PIPES});
    for (uint32_t pipe = 0; pipe < device.pipes(); ++pipe) visit(static_cast<uint16_t>(pipe));
  }

  // Pipes share a default entry unless the table is scoped to them; then each is looked at once.
  void check_defaults() {
    std::vector<std::array<uint32_t, 2>> seen;
    for_each_pipe(old_, [&](uint16_t pipe) {
      const std::array<uint32_t, 2> pair = {default_entry(old_, pipe), default_entry(new_, pipe)};
      if (std::ranges::find(seen, pair) != seen.end()) return;
      seen.push_back(pair);
      check_default(pair[0], pair[1]);
    });
  }

  uint32_t default_entry(const Device &device, uint16_t pipe) const {
    p4_pd_device_target_t target = device.target();
    target.pipe_id = pipe;
    uint32_t entry = 0;
    const p4_pd_status_t status =
        p4_pd_tessel_switch_entry_hdl_default(device.session(), target, table_.handle, &entry);
    if (status == BF_OBJECT_NOT_FOUND) return 0;
    need(status, "the default entry", table_.name);
    return entry;
  }

  void check_default(uint32_t old_entry, uint32_t new_entry) {
    if (old_entry == 0 && new_entry == 0) return;
    if (old_entry == 0) return tell(Difference::extra, Compared::default_entry, 0, new_entry);
    ++counts_.default_entries;
    if (new_entry == 0) return tell(Difference::missing, Compared::default_entry, old_entry, 0);
    if (equals(new_, new_entry, placement_.of_entry(old_, table_, old_entry))) return;
    tell(Difference::different, Compared::default_entry, old_entry, new_entry);
  }

  std::string text(const Device &device, uint32_t entry) {
    if (entry == 0) return "";
    char buffer[P4_PD_TESSEL_SWITCH_VALUE_MAX] = "";
    p4_pd_tessel_switch_plcmt_data_value(table_.handle, placement_.of_entry(device, table_, entry),
                                         buffer);
    return buffer;
  }

  // Ends the use of the placement data.
  void tell(Difference difference, Compared what, uint32_t old_entry, uint32_t new_entry) {
    ++counts_.differences;
    report_({difference, what, table_.name, old_entry, new_entry, text(old_, old_entry),
             text(new_, new_entry)});
  }

  const Device &old_;
  const Device &new_;
  const soft_table_t &table_;
  const std::function<void(const Finding &)> &report_;
  VerifyCounts &counts_;
  Placement placement_;
  std::vector<uint8_t> key_;
  uint32_t priority_ = 0;
};

}  // namespace

void verify_table(Verification &run, const soft_table_t &table) { TableCheck(run, table).run(); }

}  // namespace tesselctl
