#include "tables/rule_masks.hpp"

#include <algorithm>
#include <bit>
#include <cmath>

namespace soft {

// Rules in large classes are told apart by a probe and some more probes, so a class is not as bad
// as its size.
double RuleSample::Yield::score() const { return rules / std::cbrt(1 + in_class); }

// A probe of a hash table costs about as much as the comparison of a rule.
bool RuleSample::Yield::is_worthwhile() const { return rules >= 3 * (1 + in_class); }

void RuleSample::add(const uint8_t *value, const uint8_t *mask) {
  rules_.push_back(static_cast<uint32_t>(rules_.size()));
  values_.insert(values_.end(), value, value + bytes_);
  masks_.insert(masks_.end(), mask, mask + bytes_);
}

// If these bits of the nibble are chosen too.
RuleSample::Yield RuleSample::yield_of(size_t nibble, uint8_t bits) {
  const auto cell = [&](size_t i) -> uint32_t & {
    return counts_[classes_[i] * 16 + (value_of(rules_[i], nibble) & bits)];
  };
  const auto cares = [&](size_t i) { return (mask_of(rules_[i], nibble) & bits) == bits; };
  double rules = 0, pairs = 0;
  for (size_t i = 0; i < rules_.size(); ++i) {
    if (!cares(i)) continue;
    ++rules;
    pairs += 2 * ++cell(i) - 1;
  }
  for (size_t i = 0; i < rules_.size(); ++i)
    if (cares(i)) cell(i) = 0;
  return {rules * share_, 1 + share_ * (pairs / rules - 1)};
}

RuleSample::Step RuleSample::best_step(const uint8_t *chosen) {
  Step best{{0, 0}, 0, 0};
  for (size_t nibble = 0; nibble < 2 * bytes_; ++nibble) {
    uint32_t present = 0;
    for (const uint32_t rule : rules_) present |= 1u << mask_of(rule, nibble);
    const uint8_t before = nibble_of(chosen, nibble);
    for (uint8_t bits = 1; bits < 16; ++bits) {
      if ((present >> bits & 1) == 0 || bits == before || (before & ~bits) != 0) continue;
      const Yield yield = yield_of(nibble, bits);
      if (yield.score() > best.yield.score()) best = {yield, nibble, bits};
    }
  }
  return best;
}

void RuleSample::take(const Step &step) {
  std::vector<uint32_t> numbers(counts_.size());  // of the new classes, plus one
  uint32_t classes = 0;
  size_t kept = 0;
  for (size_t i = 0; i < rules_.size(); ++i) {
    if ((mask_of(rules_[i], step.nibble) & step.bits) != step.bits) continue;
    uint32_t &number = numbers[classes_[i] * 16 + (value_of(rules_[i], step.nibble) & step.bits)];
    if (number == 0) number = ++classes;
    rules_[kept] = rules_[i];
    classes_[kept++] = number - 1;
  }
  rules_.resize(kept);
  classes_.resize(kept);
}

size_t RuleSample::window(const uint8_t *chosen) const {
  std::vector<size_t> bits(bytes_);
  for (size_t at = 0; at < masks_.size(); ++at) {
    const size_t place = at % bytes_;
    bits[place] +=
        static_cast<size_t>(std::popcount(static_cast<uint8_t>(masks_[at] & ~chosen[place])));
  }
  size_t best = 0;
  for (size_t place = 1; place + 1 < bytes_; ++place)
    if (bits[place] + bits[place + 1] > bits[best] + bits[best + 1]) best = place;
  return best;
}

bool RuleSample::choose(uint8_t *mask) {
  constexpr double kBetter = 1.02;
  std::fill(mask, mask + bytes_, uint8_t{0});
  classes_.assign(rules_.size(), 0);
  counts_.assign(rules_.size() * 16, 0);
  const double all = static_cast<double>(rules_.size()) * share_;
  Yield yield{all, all};
  for (;;) {
    const Step step = best_step(mask);
    if (step.yield.score() <= yield.score() * kBetter) return yield.is_worthwhile();
    yield = step.yield;
    mask[step.nibble / 2] |= static_cast<uint8_t>(step.bits << step.nibble % 2 * 4);
    take(step);
  }
}

}  // namespace soft
