// The name that was probably meant.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace tesselctl {

// Collects the candidate nearest to a name: the fewest letters changed, added, left out or swapped
// with their neighbour, upper and lower case counting as equal. A candidate that the name begins
// is near as well. Among equals the first candidate stays.
class Nearest {
 public:
  explicit Nearest(std::string_view name);
  void consider(std::string_view candidate);
  // Empty when nothing is near.
  const std::string &name() const { return best_; }

 private:
  std::string wanted_;
  std::string best_;
  size_t best_distance_;
};

template <class Range>
std::string nearest(std::string_view name, const Range &candidates) {
  Nearest near(name);
  for (const auto &candidate : candidates) near.consider(candidate);
  return near.name();
}

}  // namespace tesselctl
