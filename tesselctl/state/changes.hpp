// What two states differ in, and how a device becomes the other one.
#pragma once

#include "tesselctl/state/device_state.hpp"
#include "tesselctl/text/results.hpp"

namespace tesselctl {

// An item that one state has and the other has not, or has otherwise. before is null where it is
// new, after where it is gone. All belongs to the states.
struct Change {
  const DeviceState::Part *part;
  const ItemStore::Item *before;
  const ItemStore::Item *after;

  Edit edit() const {
    if (before == nullptr) return Edit::add;
    return after == nullptr ? Edit::remove : Edit::modify;
  }
  const ItemStore::Item &item() const { return *(after != nullptr ? after : before); }
  Change inverse() const { return {part, after, before}; }
};

// The changes that lead from one state to the other, in the order of images. after must have been
// numbered like before. Throws Fault for a state that has an item twice.
std::vector<Change> changes_between(const DeviceState &before, const DeviceState &after);
// Adds those of the items of one part, to which the changes point.
void compare_items(const DeviceState::Part &part, std::span<const ItemStore::Item> before,
                   std::span<const ItemStore::Item> after, std::vector<Change> &changes);

// What is done for a change in a phase.
struct ChangeStep {
  Step step;
  const Change *change;
};
// In the order of phases. The changes outlive them.
std::vector<ChangeStep> steps_of(const std::vector<Change> &changes);

// Carries them out on a device that is as before, in the order of phases. Throws Fault at the first
// change that the device refuses.
void apply_changes(Target &to, const std::vector<Change> &changes);

// An item in the words of commands: "-" or "+", the object, and what it holds.
Row change_row(std::string_view sign, const DeviceState::Part &part, const ItemStore::Item &item);
// What such rows may have, of all objects or one.
void expect_changes(Results &results, std::string_view object = {});
// Visits the rows of a change.
template <class Visit>
void for_each_row(const Change &change, Visit visit) {
  if (change.before != nullptr) visit(change_row("-", *change.part, *change.before));
  if (change.after != nullptr) visit(change_row("+", *change.part, *change.after));
}
// Answers with changes, or where they are counted with how many there are.
void print_changes(Results &results, bool counted, const std::vector<Change> &changes);

}  // namespace tesselctl
