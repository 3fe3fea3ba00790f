#include "tesselctl/state/recorder.hpp"

#include <algorithm>
#include <array>

#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/trace.hpp"
#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

// The kinds of items that a function changes, by keyword.
struct FamilyKinds {
  std::string_view family;
  std::array<std::string_view, 3> keywords;
};

constexpr FamilyKinds kChanging[] = {
    {"table_add", {"entry"}},
    {"table_modify", {"entry"}},
    {"table_modify_by_match_spec", {"entry"}},
    {"table_delete", {"entry"}},
    {"table_delete_by_match_spec", {"entry"}},
    {"add_entry", {"entry"}},
    {"add_entry_with_selector", {"entry"}},
    {"modify_entry", {"entry"}},
    {"modify_entry_by_match_spec", {"entry"}},
    {"modify_entry_with_selector", {"entry"}},
    {"modify_entry_with_selector_by_match_spec", {"entry"}},
    {"set_ttl", {"entry"}},
    {"set_default_action", {"default"}},
    {"set_default_entry", {"default"}},
    {"set_default_entry_with_selector", {"default"}},
    {"table_reset_default_entry", {"default"}},
    {"set_property", {"capacity"}},
    {"idle_tmo_enable", {"ageing", "entry"}},
    {"idle_tmo_disable", {"ageing"}},
    {"add_member", {"member"}},
    {"modify_member", {"member"}},
    {"del_member", {"member"}},
    {"create_group", {"group"}},
    {"del_group", {"group"}},
    {"add_member_to_group", {"group"}},
    {"del_member_from_group", {"group"}},
    {"group_member_state_set", {"group"}},
    {"set_dynamic_action_selection_fallback_member", {"fallback"}},
    {"reset_dynamic_action_selection_fallback_member", {"fallback"}},
    {"meter_set", {"entry", "default", "cell"}},
    {"counter_write", {"entry", "default", "cell"}},
    {"register_write", {"all", "cell"}},
    {"register_write_all", {"all", "cell"}},
    {"register_reset_all", {"all", "cell"}},
    {"register_range_reset", {"all", "cell"}},
    {"hash_calc_seed_set", {"seed"}},
    {"pvs_entry_add", {"value"}},
    {"pvs_entry_modify", {"value"}},
    {"pvs_entry_delete", {"value"}},
    {"wred_set", {"cell"}},
};

// The table whose entries have the cells of that object, or null.
template <class Object>
const char *table_of_cells(std::string_view object) {
  const Object *const found = find_object<Object>(object);
  return found == nullptr || found->table == 0 ? nullptr : table_of_handle(found->table).name();
}

// The objects that a function is about.
std::array<std::string_view, 3> objects_of(const bindings::Export &target) {
  const char *const of_counter = table_of_cells<soft_counter_t>(target.object);
  const char *const of_meter = table_of_cells<soft_meter_t>(target.object);
  return {target.object, of_counter != nullptr ? of_counter : target.object,
          of_meter != nullptr ? of_meter : target.object};
}

// The name of the object of that kind among those, or null. What commands do not name, calls do not
// name either.
const char *find_name(const ObjectKind &kind, std::span<const std::string_view> objects) {
  for (size_t i = 0; const char *name = kind.name(i); ++i) {
    const std::string_view wanted = kind.in_commands ? name : "";
    if (std::ranges::find(objects, wanted) != objects.end()) return name;
  }
  return nullptr;
}

// What the parameter of a handle is called for items of that kind; empty when they have none.
std::string_view handle_name(std::string_view keyword) {
  if (keyword == "cell") return "index";
  return keyword == "entry" || keyword == "member" || keyword == "group" ? keyword : "";
}

}  // namespace

Recorder::Recorder(Device &device) : device_(device), numbering_(Numbering::lasting(device)) {
  device_.set_listener(this);
}

// ---- What functions change ----

std::unique_ptr<Recorder::Function> Recorder::make_function(const bindings::Export &target) {
  const auto *const row = std::ranges::find(kChanging, target.family, &FamilyKinds::family);
  if (row == std::end(kChanging)) return nullptr;
  auto function = std::make_unique<Function>();
  std::string_view handle;
  for (const ItemKind *kind : kinds()) {
    if (std::ranges::find(row->keywords, kind->keyword) == row->keywords.end()) continue;
    const char *const name = find_name(kind->object, objects_of(target));
    if (name == nullptr) continue;
    const Part &part = parts_.of(*kind, name);
    if (!part.access) continue;
    function->parts.push_back(&part);
    if (handle.empty()) handle = handle_name(kind->keyword);
  }
  for (size_t i = 0; i < target.parameter_count; ++i) {
    const auto [type, name] = target.parameters[i];
    if (name == handle) function->handle = i;
    if (name == handle) function->makes = std::string_view(type).ends_with('*');
    if (std::string_view(name) == "match_spec") function->match_spec = i;
    if (std::string_view(name) == "priority") function->priority = i;
  }
  if (function->match_spec && !function->handle) {
    function->find = device_.prepare("match_spec_to_entry_hdl", target.object);
  }
  return function;
}

Recorder::Function *Recorder::function_of(const bindings::Export &target) {
  auto found = functions_.find(&target);
  if (found == functions_.end()) found = functions_.emplace(&target, make_function(target)).first;
  return found->second.get();
}

// ---- Calls ----

namespace {

// While it lives, calls are the recorder's own: nobody records, prints or interrupts them.
class OwnCalls {
 public:
  explicit OwnCalls(bool &flag) : flag_(flag) { flag_ = true; }
  ~OwnCalls() { flag_ = false; }
  OwnCalls(const OwnCalls &) = delete;
  OwnCalls &operator=(const OwnCalls &) = delete;

 private:
  bool &flag_;
  TraceScope untraced_{nullptr};
  UninterruptedScope uninterrupted_;
};

}  // namespace

std::optional<uint32_t> Recorder::handle_of(Function &function, const Call &call) {
  if (function.handle) return static_cast<uint32_t>(call.words()[*function.handle]);
  if (!function.find) return {};
  p4_pd_entry_handle_t entry = 0;
  const OwnCalls scope(is_reading_);
  function.find->set("match_spec", call.words()[*function.match_spec]);
  if (function.priority) function.find->set("priority", call.words()[*function.priority]);
  function.find->set("entry", &entry).run();
  return entry;
}

// All that may fail is done here, where the call is not made then.
void Recorder::before(const Call &call) {
  if (is_reading_) return;
  Function *const function = function_of(call.target());
  if (function == nullptr) return;
  if (!function->makes) return touch(*function, handle_of(*function, call));
  finish_touched();
  touched_ = Touched{&function->parts, {}, std::vector<KeptItems>(function->parts.size())};
}

void Recorder::after(const Call &call, uint64_t result) {
  if (is_reading_) return;
  Function *const function = function_of(call.target());
  if (function == nullptr || !function->makes) return;
  if (result != BF_SUCCESS) return touched_.reset();
  uint32_t handle = 0;
  memcpy(&handle,
         reinterpret_cast<const void *>(static_cast<uintptr_t>(call.words()[*function->handle])),
         sizeof handle);
  touched_->handle = handle;
  const Part &part = *function->parts.front();
  if (part.kind->numbered == Numbered::no) return;
  numbering_.of(part.access->profile()).of(part.kind->numbered).add_lasting(handle);
}

void Recorder::touch(const Function &function, std::optional<uint32_t> handle) {
  if (touched_ && touched_->handle == handle && *touched_->parts == function.parts) return;
  finish_touched();
  Touched now = {&function.parts, handle, {}};
  for (const Part *part : function.parts) now.before.push_back(keep(read(*part, handle)));
  touched_ = std::move(now);
}

Recorder::Items Recorder::read(const Part &part, std::optional<uint32_t> handle) {
  const OwnCalls scope(is_reading_);
  Items items;
  Source from = {device_, numbering_, handle};
  part.access->read(from, [&](const ItemView &item) { items.push_back(store_.add(item)); });
  return items;
}

// Where it fails, what is not among the changes is still touched.
void Recorder::finish_touched() {
  if (!touched_) return;
  for (size_t i = 0; i < touched_->parts->size(); ++i) {
    const Part &part = *(*touched_->parts)[i];
    const size_t first = changes_.size();
    const KeptItems now = keep(read(part, touched_->handle));
    try {
      compare_items(part, touched_->before[i], now, changes_);
    } catch (...) {
      changes_.resize(first);
      throw;
    }
    touched_->before[i] = now;
    if (first == changes_.size()) continue;
    if (part.kind->numbered != Numbered::no && changes_.back().edit() == Edit::remove) {
      numbering_.of(part.access->profile())
          .of(part.kind->numbered)
          .erase(read_bytes<uint32_t>(changes_.back().item().view().identity));
    }
    join_with_last(first);
  }
  touched_.reset();
}

// Two changes of one item, one behind the other, are one.
void Recorder::join_with_last(size_t at) {
  if (at <= joined_from_ || changes_.size() != at + 1) return;
  Change &last = changes_[at - 1];
  const Change now = changes_[at];
  if (last.part != now.part || last.item().view().identity != now.item().view().identity) return;
  changes_.pop_back();
  last.after = now.after;
  const bool is_none = last.before != nullptr && last.after != nullptr
                           ? last.before->view() == last.after->view()
                           : last.before == last.after;
  if (is_none) changes_.pop_back();
}

// ---- What was changed ----

const std::vector<Change> &Recorder::changes() {
  finish_touched();
  return changes_;
}

void Recorder::clear() {
  touched_.reset();
  changes_.clear();
  kept_.clear();
  joined_from_ = 0;
  store_.clear();
}

Recorder::Mark Recorder::mark() {
  joined_from_ = changes().size();
  return {joined_from_, numbering_};
}

void Recorder::forget_since(const Mark &mark) {
  touched_.reset();
  changes_.resize(mark.changes);
  numbering_ = mark.numbering;
}

void Recorder::invert(const std::vector<Change> &changes) {
  finish_touched();
  const OwnCalls scope(is_reading_);
  Target to = {device_, numbering_};
  const auto kept = [&](const ItemStore::Item *item) {
    return item != nullptr ? &keep({store_.add(item->view())}).front() : nullptr;
  };
  for (size_t i = changes.size(); i-- > 0;) {
    const Change change = changes[i].inverse();
    apply_changes(to, {change});
    changes_.push_back({&parts_.of(*change.part->kind, change.part->object), kept(change.before),
                        kept(change.after)});
  }
}

void Recorder::take_back() {
  const std::vector<Change> all = changes();
  invert(all);
  clear();
}

}  // namespace tesselctl
