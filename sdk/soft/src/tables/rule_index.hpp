// Finds the rule that a packet hits among rules that care for different bits of the key.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <memory_resource>
#include <span>
#include <vector>

#include "store/key_twins.hpp"
#include "store/mask_pool.hpp"
#include "store/slot_store.hpp"
#include "tables/match_table_record.hpp"
#include "tables/rule_masks.hpp"

namespace soft {

// A chain of levels, each with a mask of its own: rules that care for all bits of the mask stand in
// a hash table by their bits under it, each in the first level that has room for it; what fits
// nowhere is the rest of the chain, a list in the order of rank. Many rules with the same bits make
// a chain of their own, which tells them apart by other bits. So a packet costs a probe for each
// level and the comparison of a few rules, however many masks the rules have.
//
// The index is made by the first look-up in a table of more than a few rules, kept up to date from
// then on, and made anew when as many rules have come as there were: the masks are those that suit
// the rules there are. It is a help and no more: where there is no memory for it, all rules are
// compared.
//
// Rank: the smallest priority number first, then the oldest.
class RuleIndex {
 public:
  static constexpr uint32_t kNone = SlotStore::kNone;

  // Of the rules that stand in the records. compared: the bits that packets are compared in, null
  // for all. Allocates nothing.
  RuleIndex(std::pmr::memory_resource *memory, const RecordLayout &record, const SlotStore &slots,
            const MaskPool &masks, const uint8_t *compared);
  ~RuleIndex() { reset(); }
  RuleIndex(const RuleIndex &) = delete;
  RuleIndex &operator=(const RuleIndex &) = delete;

  // The rule of highest rank that a packet with this key hits in a pipe, or kNone.
  uint32_t find(const uint8_t *key, uint8_t pipe) noexcept;

  // After a record is written, and before it is erased.
  void insert(uint32_t slot) noexcept;
  void erase(uint32_t slot) noexcept;

  // Gives the memory back; the next look-up makes the index anew.
  void reset() noexcept;

 private:
  // The pipe and the first bytes of a key or mask. The bytes that have no place here are compared
  // with the others in the record.
  static constexpr size_t kMostWords = 16;
  using Words = std::array<uint64_t, kMostWords>;

  // Two bytes of a rule, those in the window of a level or chain: most rules that a packet does not
  // hit are sorted out by them, without a look at the record.
  struct Filter {
    uint16_t value = 0;
    uint16_t mask = 0;
    bool passes(uint16_t packet) const { return ((packet ^ value) & mask) == 0; }
  };

  // A rule, or a chain in the place of some.
  struct Cell {
    uint32_t tag;
    uint32_t to;        // slot, or kChain and the number of a chain; kNone: a free cell
    uint32_t priority;  // least of what is there
    Filter filter;
  };
  static constexpr uint32_t kChain = 1u << 31;
  static bool is_chain(uint32_t to) { return to != kNone && (to & kChain) != 0; }

  struct Level {
    std::pmr::vector<Cell> cells;  // a power of two
    uint32_t used;
    uint32_t least_priority;
    uint32_t window;
  };
  struct Ranked {
    uint32_t slot;
    uint32_t priority;
    Filter filter;
  };
  struct Chain {
    explicit Chain(std::pmr::memory_resource *memory)
        : masks(memory), levels(memory), rest(memory) {}

    std::pmr::vector<uint64_t> masks;  // words_ for each level
    std::pmr::vector<Level> levels;
    std::pmr::vector<Ranked> rest;
    size_t next_try = 0;  // to make levels of the rest, when it has this many rules
    uint32_t window = 0;  // of the rest
  };

  struct Rule {
    Ranked ranked;
    Words value;
    Words mask;
  };
  struct Packet {
    const uint8_t *key;
    uint8_t pipe;
    Words words;
  };
  struct Best {
    uint32_t slot = kNone;
    uint32_t priority = 0xffffffff;
    uint64_t age = 0;
  };

  uint32_t priority_of(uint32_t slot) const;
  uint64_t age_of(uint32_t slot) const { return load<uint64_t>(slots_.at(slot) + record_.age); }
  const uint8_t *mask_of(uint32_t slot) const;
  bool is_before(const Ranked &a, const Ranked &b) const;
  bool hits(const Packet &packet, uint32_t slot) const;
  void read(uint32_t slot, Rule &rule) const;
  void copy_words(const uint8_t *bytes, uint8_t pipe, Words &words) const;

  const uint64_t *mask(const Chain &chain, size_t level) const {
    return chain.masks.data() + level * words_;
  }
  static uint16_t in_window(const Words &words, uint32_t window) {
    return load<uint16_t>(reinterpret_cast<const uint8_t *>(words.data()) + window);
  }
  static Filter filter_of(const Rule &rule, uint32_t window) {
    return {in_window(rule.value, window), in_window(rule.mask, window)};
  }
  uint32_t tag_of(const Words &words, const uint64_t *mask) const;
  bool fits(const Rule &rule, const uint64_t *mask) const;
  size_t level_of(const Chain &chain, const Rule &rule) const;

  void build();
  uint32_t new_chain();
  void add(Chain &chain, const Rule &rule);
  void add_to(Level &level, uint32_t tag, const Rule &rule);
  void add_to_rest(Chain &chain, const Rule &rule);
  uint32_t make_chain(Level &level, uint32_t tag);
  void refine(Chain &chain);
  bool add_level(Chain &chain);
  void set_window(Chain &chain);
  RuleSample sample_of(const Chain &chain) const;
  void build_front(std::span<const Ranked> first);
  static void place(Level &level, const Cell &cell);
  static void free_cell(Level &level, uint32_t at);
  static void make_room(Level &level);
  void remove(Chain &chain, const Rule &rule);

  void consider(const Packet &packet, const Ranked &rule, Best &best) const;
  void search(const Chain &chain, const Packet &packet, Best &best) const;
  void search(const Level &level, uint32_t tag, const Packet &packet, Best &best) const;

  std::pmr::memory_resource *memory_;
  const RecordLayout &record_;
  const SlotStore &slots_;
  const MaskPool &masks_;
  const uint8_t *compared_;
  size_t words_;
  std::pmr::vector<Chain *> chains_;  // the first one holds all rules; none: there is no index
  // Holds the first rules once more where packets mostly hit one of them: behind such a hit the
  // search is short. Null elsewhere.
  Chain *front_ = nullptr;
  size_t rules_ = 0;  // when it was made
  size_t added_ = 0;  // since then
};

}  // namespace soft
