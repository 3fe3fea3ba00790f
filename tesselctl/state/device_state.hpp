// A whole device, or a whole image, in memory.
#pragma once

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <unordered_map>
#include <vector>

#include "tesselctl/state/kind.hpp"

namespace tesselctl {

// Keeps the bytes of items at addresses that stay.
class ItemStore {
 public:
  struct Item {
    char *bytes;  // the identity, and at the next multiple of 8 the value
    uint32_t identity_size;
    uint32_t value_size;

    std::span<char> identity() const { return {bytes, identity_size}; }
    std::span<char> value() const { return {bytes + rounded(identity_size), value_size}; }
    ItemView view() const {
      return {{bytes, identity_size}, {bytes + rounded(identity_size), value_size}};
    }
  };

  Item add(const ItemView &item);
  // Forgets them all, and keeps room for some.
  void clear();

 private:
  static constexpr size_t kChunk = 1u << 20;
  static constexpr size_t rounded(size_t size) { return (size + 7) / 8 * 8; }

  std::vector<std::unique_ptr<char[]>> chunks_;
  size_t left_ = 0;
  char *next_ = nullptr;
};

class DeviceState {
 public:
  // The items of one kind in one object.
  struct Part {
    const ItemKind *kind;
    const char *object;
    std::unique_ptr<ObjectItems> access;
    std::vector<ItemStore::Item> items;
  };
  // The object kind, the object, the kind: parts stand in the order of images.
  using Place = std::array<size_t, 3>;

  // Both throw Fault; that of a file names file, line and column.
  static DeviceState of_file(const std::string &path, std::string_view shown);
  // All of the device, or the objects alone that are wanted.
  using Wanted = std::function<bool(const ObjectKind &, const char *object)>;
  static DeviceState of_device(const Device &device, const Wanted &is_wanted = {},
                               Naming naming = Naming::numbers);

  const std::map<Place, Part> &parts() const { return parts_; }
  const Part *find(const Place &place) const;
  // Adds an item, takes one away, or gives it another value. Throws Fault where it is there
  // already, or is not.
  void edit(const ItemKind &kind, const char *object, Edit edit, const ItemView &item);
  // Gives the members and groups of each profile the numbers that equal ones have in the other
  // state: first those of the same number, then any other; what is left over keeps its number where
  // it is free. What names them follows.
  void number_like(const DeviceState &other);

 private:
  Part &part_at(const Place &place);

  // Where the items of an edited part stand.
  using Index = std::unordered_map<std::string_view, size_t>;

  std::map<Place, Part> parts_;
  std::map<const Part *, Index> indexes_;
  ItemStore store_;
};

// The parts of what changes, without items.
class ItemParts {
 public:
  const DeviceState::Part &of(const ItemKind &kind, const char *object) {
    auto found = parts_.find({&kind, object});
    if (found == parts_.end()) {
      DeviceState::Part part = {&kind, object, kind.open(object), {}};
      found = parts_.try_emplace({&kind, object}, std::move(part)).first;
    }
    return found->second;
  }

 private:
  std::map<std::pair<const ItemKind *, const char *>, DeviceState::Part> parts_;
};

// Puts the state into an empty device so that its members and groups have their numbers as handles.
// Throws Fault.
void load_by_number(const Device &device, const DeviceState &state);

}  // namespace tesselctl
