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

// The changes of the items of one part, of which either may be null.
class PartComparison {
 public:
  PartComparison(const DeviceState::Part *before, const DeviceState::Part *after,
                 std::vector<Change> &changes)
      : part_(before != nullptr ? *before : *after), changes_(changes) {
    if (before != nullptr) before_ = before->items;
    if (after != nullptr) after_ = after->items;
  }

  void run() {
    skip_same_order();
    std::unordered_map<std::string_view, const ItemStore::Item *> wanted;
    wanted.reserve(after_.size());
    for (const ItemStore::Item &item : after_) {
      if (wanted.emplace(item.view().identity, &item).second) continue;
      throw Fault(line_of(part_, item) + ": this is there twice");
    }
    for (const ItemStore::Item &item : before_) {
      const auto found = wanted.find(item.view().identity);
      const ItemStore::Item *const now = found == wanted.end() ? nullptr : found->second;
      if (now == nullptr || now->view() != item.view()) add(&item, now);
      if (now != nullptr) wanted.erase(found);
    }
    for (const ItemStore::Item &item : after_) {
      const auto found = wanted.find(item.view().identity);
      if (found != wanted.end() && found->second == &item) add(nullptr, &item);
    }
  }

 private:
  void add(const ItemStore::Item *before, const ItemStore::Item *after) {
    changes_.push_back({&part_, before, after});
  }
  // States that are much alike have most items in the same order: at both ends no map is needed.
  void skip_same_order() {
    size_t same = 0;
    const size_t most = std::min(before_.size(), after_.size());
    while (same < most && before_[same].view() == after_[same].view()) ++same;
    before_ = before_.subspan(same);
    after_ = after_.subspan(same);
    while (!before_.empty() && !after_.empty() && before_.back().view() == after_.back().view()) {
      before_ = before_.first(before_.size() - 1);
      after_ = after_.first(after_.size() - 1);
    }
  }

  const DeviceState::Part &part_;
  Items before_;
  Items after_;
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
    PartComparison(before.find(place), after.find(place), changes).run();
  }
  return changes;
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

void apply_changes(const Device &device, const std::vector<Change> &changes) {
  Numbering numbering = Numbering::of_device(device);
  Target to = {device, numbering};
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
  return row;
}

void expect_changes(Results &results) {
  if (!results.asks_for_names()) return;
  for (const ItemKind *kind : kinds()) {
    for (size_t i = 0; const char *object = kind->object.name(i); ++i) {
      const auto items = kind->open(object);
      if (!items) continue;
      Row row = object_row("-", *kind, object);
      items->add_samples_to(row, Naming::numbers);
      results.expect(row.object("change", "+"));
    }
  }
}

}  // namespace tesselctl
