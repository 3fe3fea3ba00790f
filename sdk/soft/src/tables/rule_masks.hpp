// Which bits of their keys to tell rules apart by.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace soft {

// A sample of rules, each as the bytes of its value and mask. Many rules care for bits that others
// leave open, so no set of bits is good for all: chosen are those that put many of the rules into
// small classes of alike bits, at the price of leaving out the ones that do not care for them all.
class RuleSample {
 public:
  // Each rule of the sample stands for this many. May throw std::bad_alloc, as all below.
  RuleSample(size_t rule_bytes, double share) : bytes_(rule_bytes), share_(share) {}

  void add(const uint8_t *value, const uint8_t *mask);

  // Sets the chosen bits; false when looking at all rules one by one is as good.
  bool choose(uint8_t *mask);

  // The place of the two bytes that most rules care for beside the chosen bits.
  size_t window(const uint8_t *chosen) const;

 private:
  // What a set of bits is good for: so many rules care for them all, in classes of so many.
  struct Yield {
    double rules, in_class;
    double score() const;
    bool is_worthwhile() const;
  };
  struct Step {
    Yield yield;
    size_t nibble;
    uint8_t bits;
  };

  static uint8_t nibble_of(const uint8_t *bytes, size_t nibble) {
    return bytes[nibble / 2] >> (nibble % 2 * 4) & 15;
  }
  uint8_t value_of(uint32_t rule, size_t nibble) const {
    return nibble_of(values_.data() + rule * bytes_, nibble);
  }
  uint8_t mask_of(uint32_t rule, size_t nibble) const {
    return nibble_of(masks_.data() + rule * bytes_, nibble);
  }
  Yield yield_of(size_t nibble, uint8_t bits);
  Step best_step(const uint8_t *chosen);
  void take(const Step &step);

  size_t bytes_;
  double share_;
  std::vector<uint8_t> values_, masks_;
  std::vector<uint32_t> rules_;    // that care for all bits chosen so far
  std::vector<uint32_t> classes_;  // of these rules: the same number for alike bits
  std::vector<uint32_t> counts_;   // rules by class and nibble, all 0 between uses
};

}  // namespace soft
