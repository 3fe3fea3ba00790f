#include "tesselctl/state/changes.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <unordered_map>

#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

namespace {

using Items = std::span<const ItemStore::Item>;

std::string line_of(const DeviceState::Part &part, const ItemStore::Item &item) {
  std::string text =
      fmt::format("{} {}: {} ", part.kind->object.keyword, part.object, part.kind->keyword);
  part.access->print(text, item.view());
  return text;
}

// The changes of the items of one part. States that are much alike have most items in the same
// order: those are paired as they stand, and only what is left needs a map.
class PartComparison {
 public:
  PartComparison(const DeviceState::Part &part, Items before, Items after,
                 std::vector<Change> &changes)
      : part_(part), before_(before), after_(after), all_after_(after), changes_(changes) {}

  void run() {
    if (before_.empty() && after_.size() == 1) return add(nullptr, &after_.front());
    const auto first = static_cast<ptrdiff_t>(changes_.size());
    pair_same_order();
    pair_others();
    std::ranges::sort(changes_.begin() + first, changes_.end(), {}, &Change::before);
    for (const Item *item : others_after_) {
      if (unpaired_.contains(item->view().identity)) add(nullptr, item);
    }
  }

 private:
  using Item = ItemStore::Item;
  // How many items in a row one state may lack before the order counts as another one.
  static constexpr size_t kAhead = 32;

  static std::string_view identity(const Item &item) { return item.view().identity; }
  void add(const Item *before, const Item *after) { changes_.push_back({&part_, before, after}); }
  void pair(const Item &before, const Item &after) {
    if (before.view().value != after.view().value) add(&before, &after);
  }
  static size_t distance_to(const Item &wanted, Items items) {
    items = items.first(std::min(items.size(), kAhead));
    const auto found = std::ranges::find(items, identity(wanted), identity);
    return found == items.end() ? kAhead : static_cast<size_t>(found - items.begin());
  }
  static void leave(Items &items, size_t count, std::vector<const Item *> &others) {
    for (const Item &item : items.first(count)) others.push_back(&item);
    items = items.subspan(count);
  }

  void pair_same_order() {
    while (!before_.empty() && !after_.empty()) {
      if (identity(before_.front()) == identity(after_.front())) {
        pair(before_.front(), after_.front());
        before_ = before_.subspan(1);
        after_ = after_.subspan(1);
        continue;
      }
      const size_t gone = distance_to(after_.front(), before_);
      const size_t came = distance_to(before_.front(), after_);
      const bool found = gone != kAhead || came != kAhead;
      if (!found || gone <= came) leave(before_, found ? gone : 1, others_before_);
      if (!found || came < gone) leave(after_, found ? came : 1, others_after_);
    }
    leave(before_, before_.size(), others_before_);
    leave(after_, after_.size(), others_after_);
  }

  void pair_others() {
    unpaired_.reserve(others_after_.size());
    for (const Item *item : others_after_) {
      if (!unpaired_.emplace(identity(*item), item).second) refuse_twice(*item);
    }
    for (const Item *item : others_before_) {
      const auto found = unpaired_.find(identity(*item));
      if (found == unpaired_.end()) {
        add(item, nullptr);
      } else {
        pair(*item, *found->second);
        unpaired_.erase(found);
      }
    }
    if (others_after_.size() == all_after_.size() || unpaired_.empty()) return;
    for (const Item &item : all_after_) {
      const auto found = unpaired_.find(identity(item));
      if (found != unpaired_.end() && found->second != &item) refuse_twice(item);
    }
  }
  [[noreturn]] void refuse_twice(const Item &item) const {
    throw Fault(line_of(part_, item) + ": this is there twice");
  }

  const DeviceState::Part &part_;
  Items before_;
  Items after_;
  Items all_after_;
  std::vector<const Item *> others_before_;
  std::vector<const Item *> others_after_;
  std::unordered_map<std::string_view, const Item *> unpaired_;
  std::vector<Change> &changes_;
};

}  // namespace

std::vector<Change> changes_between(const DeviceState &before, const DeviceState &after) {
  std::map<DeviceState::Place, bool> places;
  for (const DeviceState *state : {&before, &after}) {
    for (const auto &[place, part] : state->parts()) places[place] = true;
  }
  std::vector<Change> changes;
  for (const auto &[place, present] : places) {
    check_interrupt();
    const DeviceState::Part *const was = before.find(place);
    const DeviceState::Part *const is = after.find(place);
    const auto items_of = [](const DeviceState::Part *part) {
      return part != nullptr ? Items(part->items) : Items();
    };
    compare_items(was != nullptr ? *was : *is, items_of(was), items_of(is), changes);
  }
  return changes;
}

void compare_items(const DeviceState::Part &part, Items before, Items after,
                   std::vector<Change> &changes) {
  PartComparison(part, before, after, changes).run();
}

std::vector<ChangeStep> steps_of(const std::vector<Change> &changes) {
  std::vector<ChangeStep> steps;
  steps.reserve(changes.size());
  for (const Change &change : changes) {
    for (const Step &step : change.part->kind->steps) {
      if (step.difference == change.edit()) steps.push_back({step, &change});
    }
  }
  std::ranges::stable_sort(steps, {}, [](const ChangeStep &one) { return one.step.phase; });
  return steps;
}

void apply_changes(Target &to, const std::vector<Change> &changes) {
  for (const auto &[step, change] : steps_of(changes)) {
    check_interrupt();
    const DeviceState::Part &part = *change->part;
    const ItemStore::Item &item = change->item();
    try {
      part.access->write(to, step.edit, item.view(), {part.kind->keyword, 1});
    } catch (const Fault &fault) {
      throw Fault(fmt::format("{}: {}", line_of(part, item), fault.sentence()));
    }
  }
}

namespace {

Row object_row(std::string_view sign, const ItemKind &kind, const char *object) {
  return Row().object("change", sign).object(kind.object.keyword, object);
}

}  // namespace

Row change_row(std::string_view sign, const DeviceState::Part &part, const ItemStore::Item &item) {
  Row row = object_row(sign, *part.kind, part.object);
  part.access->add_to(row, item.view(), Naming::numbers);
  return row.in_style(sign == "-" ? Style::removed : Style::good);
}

void print_changes(Results &results, bool counted, const std::vector<Change> &changes) {
  uint64_t added = 0, removed = 0, modified = 0;
  for (const Change &change : changes) {
    const uint64_t passed = results.passed();
    for_each_row(change, [&](const Row &row) { results.row(row); });
    if (results.passed() == passed) continue;
    const Edit edit = change.edit();
    ++(edit == Edit::add ? added : edit == Edit::remove ? removed : modified);
  }
  if (added + removed + modified == 0 && !counted) return;
  Row row;
  row.number("added", added).number("removed", removed).number("modified", modified);
  results.summary(row, fmt::format("+{} -{} ~{}", added, removed, modified));
}

void expect_changes(Results &results, std::string_view wanted) {
  if (!results.asks_for_names()) return;
  for (const ItemKind *kind : kinds()) {
    for (size_t i = 0; const char *object = kind->object.name(i); ++i) {
      if (!wanted.empty() && wanted != object) continue;
      const auto items = kind->open(object);
      if (!items) continue;
      Row row = object_row("-", *kind, object);
      items->add_samples_to(row, Naming::numbers);
      results.expect(row.object("change", "+"));
    }
  }
}

}  // namespace tesselctl
