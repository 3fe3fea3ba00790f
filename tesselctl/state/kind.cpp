#include "tesselctl/state/kind.hpp"

#include <algorithm>

namespace tesselctl {

void Renumbering::replace(Numbered of, std::span<char> bytes, size_t at) const {
  if (of != what) return;
  const auto found = numbers.find(read_bytes<uint32_t>({bytes.data(), bytes.size()}, at));
  if (found != numbers.end()) memcpy(bytes.data() + at, &found->second, sizeof(uint32_t));
}

std::span<const ItemKind *const> kinds_of_same_objects(size_t at) {
  const auto all = kinds().subspan(at);
  const auto end = std::find_if(all.begin(), all.end(), [&](const ItemKind *kind) {
    return &kind->object != &all.front()->object;
  });
  return all.first(static_cast<size_t>(end - all.begin()));
}

}  // namespace tesselctl
