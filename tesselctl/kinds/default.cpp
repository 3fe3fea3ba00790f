// Default entries of tables in images.
#include "tesselctl/kinds/table_items.hpp"

namespace tesselctl {

namespace {

class DefaultEntry : public TableItems {
 public:
  explicit DefaultEntry(const char *table)
      : TableItems(table, false, {"set_default_action", "set_default_action"}) {}

  void add_to(Row &row, const ItemView &item) const override {
    row.object("which", "default");
    TableItems::add_to(row, item);
  }
  void add_samples_to(Row &row) const override {
    TableItems::add_samples_to(row.object("which", "default"));
  }

  void read(Source &from, const ItemVisitor &visit) override {
    EntryReader reader(from.device, table(), EntryReader::Resources::all);
    const auto entry = reader.default_entry();
    if (!entry) return;
    ItemBytes item;
    read_entry(from, reader, *entry, item);
    visit(item.view());
  }

  void write(Target &to, Edit edit, const ItemView &item, Word word) override {
    const EntryHead head = head_of(item.value);
    if (edit == Edit::remove || head.outcome == EntryHead::kNothing) {
      return check(to.device.prepare("table_reset_default_entry", table().name()).run(), word);
    }
    // The program's own default may have what no call can set: an index that names no cell.
    if (edit == Edit::add && is_there(to, item)) return;
    const p4_pd_bytes_meter_spec_t meter = meter_spec(head.meter);
    p4_pd_entry_handle_t entry = 0;
    Call call = set_call(to, item.value, word);
    call.set_if_taken("entry", static_cast<const void *>(&entry));
    const void *const spec = head.has_meter != 0 ? &meter : nullptr;
    check(call.set_if_taken("meter_spec", spec).run(), word);
    if (entry != 0) write_counter(to, edit, head, entry, word);
  }

 private:
  bool is_there(const Target &to, const ItemView &item) {
    EntryReader reader(to.device, table(), EntryReader::Resources::all);
    const auto entry = reader.default_entry();
    ItemBytes now;
    return !table().indirect() && entry && reader.read(*entry, now) == BF_SUCCESS &&
           now.view() == item;
  }

  Call set_call(Target &to, std::string_view value, Word word) {
    const EntryHead head = head_of(value);
    if (head.outcome == EntryHead::kAction) return action_call(to, value, Edit::modify);
    const bool group = head.outcome == EntryHead::kGroup;
    Call call = to.device.prepare(group ? "set_default_entry_with_selector" : "set_default_entry",
                                  table().name());
    return call.set(group ? "group" : "member", uint64_t{target_of(to, head, word)});
  }
};

constexpr Step kSteps[] = {
    {Phase::entries, Edit::modify}, {Phase::entries, Edit::add}, {Phase::entries, Edit::remove}};

}  // namespace

extern const ItemKind kDefaultKind = {kTableObjects, "default", kSteps,
                                      [](const char *table) -> std::unique_ptr<ObjectItems> {
                                        return std::make_unique<DefaultEntry>(table);
                                      }};

}  // namespace tesselctl
