// What calls change in a device, item by item.
#pragma once

#include <optional>
#include <unordered_map>
#include <vector>

#include "tesselctl/state/changes.hpp"

namespace tesselctl {

// Hears of the calls on a device. The items that one changes are read before it and behind the last
// of several on the same items. What packets and time change is no change.
class Recorder : public CallListener {
 public:
  // Listens as long as it lives, which is no longer than the device. Members and groups go by
  // lasting numbers. Throws Fault.
  explicit Recorder(Device &device);
  ~Recorder() override { device_.set_listener(nullptr); }
  Recorder(const Recorder &) = delete;
  Recorder &operator=(const Recorder &) = delete;

  // Since it was cleared, in the order of the calls; good until it is cleared. Throws Fault.
  const std::vector<Change> &changes();
  void clear();

  // What goes back to how the device was forgets the changes since.
  struct Mark {
    size_t changes = 0;
    Numbering numbering = {};
  };
  Mark mark();
  void forget_since(const Mark &mark);

  // Takes the changes back, and forgets them. Throws Fault where the device refuses.
  void take_back();
  // Does the inverse of changes, the last of them first, and notes it as changes. They are not its
  // own. Throws Fault where the device refuses, with a part of it done.
  void invert(const std::vector<Change> &changes);

  Numbering &numbering() { return numbering_; }

  void before(const Call &call) override;
  void after(const Call &call, uint64_t result) override;

 private:
  using Part = DeviceState::Part;
  using Items = std::vector<ItemStore::Item>;
  using KeptItems = std::span<const ItemStore::Item>;
  using Parts = std::vector<const Part *>;
  // What a function changes, by the places of its parameters.
  struct Function {
    Parts parts;
    std::optional<size_t> handle = {};      // its value, or where it writes it
    bool makes = false;                     // it writes it
    std::optional<size_t> match_spec = {};  // in place of a handle
    std::optional<size_t> priority = {};
    std::optional<Call> find = {};
  };
  // What calls have touched since it was read.
  struct Touched {
    const Parts *parts;
    std::optional<uint32_t> handle;
    std::vector<KeptItems> before;
  };

  Function *function_of(const bindings::Export &target);
  std::unique_ptr<Function> make_function(const bindings::Export &target);
  std::optional<uint32_t> handle_of(Function &function, const Call &call);
  void touch(const Function &function, std::optional<uint32_t> handle);
  Items read(const Part &part, std::optional<uint32_t> handle);
  KeptItems keep(Items items) {
    if (items.empty()) return {};
    return kept_.emplace_back(std::move(items));
  }
  void finish_touched();
  void join_with_last(size_t at);

  Device &device_;
  Numbering numbering_;
  bool is_reading_ = false;  // calls are its own
  std::unordered_map<const bindings::Export *, std::unique_ptr<Function>> functions_;
  ItemParts parts_;
  std::optional<Touched> touched_;
  std::vector<Change> changes_;
  std::deque<Items> kept_;  // what the changes point at
  size_t joined_from_ = 0;  // changes before belong to who may go back to them
  ItemStore store_;
};

}  // namespace tesselctl
