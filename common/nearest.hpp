// The name that was probably meant.
#pragma once

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace common {

inline std::string lower_case(std::string_view text) {
  std::string lower(text);
  for (char &c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

// Edit distance with swapped neighbours as one step, as far as it is below the limit; else the
// limit.
inline size_t distance(std::string_view a, std::string_view b, size_t limit) {
  if (std::max(a.size(), b.size()) - std::min(a.size(), b.size()) >= limit) return limit;
  std::vector<size_t> before(b.size() + 1);
  std::vector<size_t> above(b.size() + 1);
  std::vector<size_t> row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) above[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    // Farther from the diagonal every distance is the limit at least.
    const size_t first = i < limit ? 1 : i - limit + 1;
    const size_t last = std::min(b.size(), i + limit - 1);
    row[first - 1] = first == 1 ? i : limit;
    size_t least = row[first - 1];
    for (size_t j = first; j <= last; ++j) {
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (a[i - 1] != b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        row[j] = std::min(row[j], before[j - 2] + 1);
      }
      least = std::min(least, row[j]);
    }
    if (last < b.size()) row[last + 1] = limit;
    // A row has at most one step more than the one above, which a swap would reach back to.
    if (least >= limit) return limit;
    std::swap(before, above);
    std::swap(above, row);
  }
  return std::min(above[b.size()], limit);
}

// Collects the candidate nearest to a name: the fewest letters changed, added, left out or swapped
// with their neighbour, upper and lower case counting as equal. A candidate that the name begins
// is near as well. Among equals the first candidate stays.
class Nearest {
 public:
  explicit Nearest(std::string_view name)
      : wanted_(name.size() > kLongestName ? std::string() : lower_case(name)),
        best_distance_(std::max<size_t>(1, name.size() / 3) + 1) {}

  void consider(std::string_view candidate) {
    if (wanted_.empty()) return;
    const std::string lower = lower_case(candidate);
    // An abbreviation counts as one step, more than another case and less than most slips.
    const bool is_short = wanted_.size() >= 3 && lower.starts_with(wanted_);
    const size_t steps =
        is_short && lower != wanted_ ? 1 : distance(wanted_, lower, best_distance_);
    if (steps >= best_distance_) return;
    best_distance_ = steps;
    best_ = candidate;
  }
  // Empty when nothing is near.
  const std::string &name() const { return best_; }

 private:
  // Names longer than this are no names of ours; comparing them would only cost time.
  static constexpr size_t kLongestName = 200;

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

}  // namespace common
