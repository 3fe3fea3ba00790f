#include "tesselctl/text/suggest.hpp"

#include <algorithm>
#include <vector>

namespace tesselctl {

namespace {

std::string lower_case(std::string_view text) {
  std::string lower(text);
  for (char &c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lower;
}

// Edit distance with swapped neighbours as one step.
size_t distance(std::string_view a, std::string_view b) {
  std::vector<size_t> before(b.size() + 1);
  std::vector<size_t> above(b.size() + 1);
  std::vector<size_t> row(b.size() + 1);
  for (size_t j = 0; j <= b.size(); ++j) above[j] = j;
  for (size_t i = 1; i <= a.size(); ++i) {
    row[0] = i;
    for (size_t j = 1; j <= b.size(); ++j) {
      row[j] = std::min({above[j] + 1, row[j - 1] + 1, above[j - 1] + (a[i - 1] != b[j - 1])});
      if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1]) {
        row[j] = std::min(row[j], before[j - 2] + 1);
      }
    }
    std::swap(before, above);
    std::swap(above, row);
  }
  return above[b.size()];
}

// Names longer than this are no names of ours; comparing them would only cost time.
constexpr size_t kLongestName = 200;

}  // namespace

Nearest::Nearest(std::string_view name)
    : wanted_(name.size() > kLongestName ? std::string() : lower_case(name)),
      best_distance_(std::max<size_t>(1, name.size() / 3) + 1) {}

void Nearest::consider(std::string_view candidate) {
  if (wanted_.empty()) return;
  const std::string lower = lower_case(candidate);
  size_t steps = distance(wanted_, lower);
  // An abbreviation counts as one step, more than another case and less than most slips.
  if (wanted_.size() >= 3 && lower.starts_with(wanted_)) steps = std::min<size_t>(steps, 1);
  if (steps >= best_distance_) return;
  best_distance_ = steps;
  best_ = candidate;
}

}  // namespace tesselctl
