// Entries and default entries of a table on both sides.
#include <algorithm>

#include "tesselctl/device/read_back.hpp"
#include "tesselctl/program/trace.hpp"
#include "tesselctl/state/verify.hpp"

namespace tesselctl {

namespace {

// Whether an entry of a device is what placement data describe.
class Equality {
 public:
  Equality(const Device &device, const TableInfo &table)
      : call_(device.prepare("plcmt_data_eq_to_hw", table.name())) {
    call_.set("table_handle", uint64_t{table.description->handle});
  }
  Equality(const Equality &) = delete;
  Equality &operator=(const Equality &) = delete;

  bool holds(uint32_t entry, const pipe_mgr_placement_t *placement) const {
    entry_ = entry;
    placement_ = reinterpret_cast<uintptr_t>(placement);
    return call_.run() == 1;
  }

 private:
  Call call_;
  uint64_t &entry_ = call_.word("entry");
  uint64_t &placement_ = call_.word("placement");
};

class TableCheck {
 public:
  TableCheck(Verification &run, const TableInfo &table)
      : run_(run),
        old_(run.old_device),
        new_(run.new_device),
        table_(table),
        word_{table.name(), 1},
        old_reader_(old_, table, EntryReader::Resources::none),
        new_reader_(new_, table, EntryReader::Resources::none),
        old_equality_(old_, table),
        new_equality_(new_, table) {}

  void run() {
    check_defaults();
    if (!table_.keyed()) return;
    uint64_t in_place = 0;
    for_each_entry(old_, table_, word_,
                   [&](uint32_t entry) { in_place += check_entry(entry) ? 1 : 0; });
    // Each entry of the old device met one of its own: so many are accounted for.
    if (in_place != entry_count(new_, table_, word_)) look_for_extra();
  }

 private:
  bool equals(const Device &device, uint32_t entry, const pipe_mgr_placement_t *placement) {
    const TraceScope quiet(nullptr);
    return (&device == &old_ ? old_equality_ : new_equality_).holds(entry, placement);
  }

  // The same for the entry under a handle of the other device. Placement data are without the
  // priority, which is part of what a ternary entry is, so that one has to be found by its key.
  bool is_in_place(const Device &other, uint32_t entry, const pipe_mgr_placement_t *placement) {
    return !table_.has_priority() && equals(other, entry, placement);
  }

  // Whether the new device has an equal entry under the same handle.
  bool check_entry(uint32_t entry) {
    ++run_.counts.entries;
    const pipe_mgr_placement_t *placement = placement_.of_entry(old_, table_, entry);
    if (is_in_place(new_, entry, placement)) return true;
    const uint32_t found = find(new_, old_reader_, placement);
    if (found != 0 && equals(new_, found, placement)) return found == entry;
    report(found == 0 ? Difference::missing : Difference::different, Compared::entry, entry, found);
    return false;
  }

  void look_for_extra() {
    for_each_entry(new_, table_, word_, [&](uint32_t entry) {
      const pipe_mgr_placement_t *placement = placement_.of_entry(new_, table_, entry);
      if (is_in_place(old_, entry, placement) || find(old_, new_reader_, placement) != 0) return;
      report(Difference::extra, Compared::entry, 0, entry);
    });
  }

  // The entry of the device with the key of the placement data, which reader reads, or 0; of
  // several with the key, in pipes of their own, an equal one before others.
  uint32_t find(const Device &device, EntryReader &reader, const pipe_mgr_placement_t *placement) {
    check(reader.decode(placement, item_), word_);
    Call call = device.prepare("match_spec_to_entry_hdl", table_.name());
    p4_pd_device_target_t target = device.target();
    uint32_t entry = 0;
    call.set("target", static_cast<const void *>(&target)).set("entry", &entry);
    call.set("match_spec", static_cast<const void *>(item_.identity.data()));
    call.set_if_taken("priority", uint64_t{priority_of(table_, item_.identity)});
    uint32_t best = 0;
    for_each_pipe(device, [&](uint16_t pipe) {
      target.pipe_id = pipe;
      if (call.run() != BF_SUCCESS) return;
      if (best == 0 || equals(device, entry, placement)) best = entry;
    });
    return best;
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
      const std::array<uint32_t, 2> pair = {old_reader_.default_entry(pipe).value_or(0),
                                            new_reader_.default_entry(pipe).value_or(0)};
      if (std::ranges::find(seen, pair) != seen.end()) return;
      seen.push_back(pair);
      check_default(pair[0], pair[1]);
    });
  }

  void check_default(uint32_t old_entry, uint32_t new_entry) {
    if (old_entry == 0 && new_entry == 0) return;
    if (old_entry == 0) return report(Difference::extra, Compared::default_entry, 0, new_entry);
    ++run_.counts.default_entries;
    if (new_entry == 0) return report(Difference::missing, Compared::default_entry, old_entry, 0);
    if (equals(new_, new_entry, placement_.of_entry(old_, table_, old_entry))) return;
    report(Difference::different, Compared::default_entry, old_entry, new_entry);
  }

  std::string text(const Device &device, uint32_t entry) {
    if (entry == 0) return "";
    return value_of(need_export("plcmt_data_value", table_.name()),
                    placement_.of_entry(device, table_, entry));
  }

  // Ends the use of the placement data.
  void report(Difference difference, Compared what, uint32_t old_entry, uint32_t new_entry) {
    run_.find({difference, what, table_.name(), old_entry, new_entry, text(old_, old_entry),
               text(new_, new_entry)});
  }

  Verification &run_;
  const Device &old_;
  const Device &new_;
  const TableInfo &table_;
  Word word_;
  EntryReader old_reader_;
  EntryReader new_reader_;
  Equality old_equality_;
  Equality new_equality_;
  Placement placement_;
  ItemBytes item_;
};

}  // namespace

void verify_table(Verification &run, const TableInfo &table) { TableCheck(run, table).run(); }

}  // namespace tesselctl
