// What a device holds, item by item: entries, members, cells.
#pragma once

#include <cstring>
#include <string>
#include <string_view>
#include <type_traits>

namespace tesselctl {

// What makes an item the same item on another device, and what it holds. Both are bytes that
// compare as a whole; the kind of the item makes and reads them. They stand at multiples of 4.
struct ItemView {
  std::string_view identity;
  std::string_view value;
  friend bool operator==(const ItemView &, const ItemView &) = default;
};

struct ItemBytes {
  std::string identity;
  std::string value;

  ItemView view() const { return {identity, value}; }
  void clear() {
    identity.clear();
    value.clear();
  }
};

// A struct without padding as bytes behind those that are there; nothing of an empty one.
template <class T>
void append_bytes(std::string &bytes, const T &part) {
  if constexpr (!std::is_empty_v<T>) {
    static_assert(std::has_unique_object_representations_v<T>);
    bytes.append(reinterpret_cast<const char *>(&part), sizeof part);
  }
}

template <class T>
T read_bytes(std::string_view bytes, size_t at = 0) {
  T part{};
  if constexpr (!std::is_empty_v<T>) memcpy(&part, bytes.data() + at, sizeof part);
  return part;
}

}  // namespace tesselctl
