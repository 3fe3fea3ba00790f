#include "tables/rule_index.hpp"

#include <algorithm>
#include <cstring>
#include <new>

namespace soft {

namespace {

constexpr size_t kFewRules = 16;        // are compared one by one
constexpr size_t kFewAlike = 8;         // rules with one tag stand side by side
constexpr size_t kSampledRules = 1024;  // to choose a mask by
constexpr size_t kFrontRules = 256;
constexpr size_t kLevelsAhead = 16;     // are looked up at a time
constexpr size_t kAddedBeforeNew = 64;  // more than there were

}  // namespace

RuleIndex::RuleIndex(std::pmr::memory_resource *memory, const RecordLayout &record,
                     const SlotStore &slots, const MaskPool &masks, const uint8_t *compared)
    : memory_(memory),
      record_(record),
      slots_(slots),
      masks_(masks),
      compared_(compared),
      words_(std::min<size_t>(kMostWords, record.key_bytes / 8 + 1)),
      chains_(memory) {}

void RuleIndex::reset() noexcept {
  for (Chain *chain : chains_) std::pmr::polymorphic_allocator<>(memory_).delete_object(chain);
  std::pmr::vector<Chain *>(memory_).swap(chains_);
  front_ = nullptr;
}

// ---- Rules ----

uint32_t RuleIndex::priority_of(uint32_t slot) const {
  return record_.has_mask ? load<uint32_t>(slots_.at(slot) + record_.priority) : 0;
}

// Null where all bits count.
const uint8_t *RuleIndex::mask_of(uint32_t slot) const {
  if (!record_.has_mask) return nullptr;
  return masks_.bytes(load<uint32_t>(slots_.at(slot) + record_.mask));
}

bool RuleIndex::is_before(const Ranked &a, const Ranked &b) const {
  return a.priority != b.priority ? a.priority < b.priority : age_of(a.slot) < age_of(b.slot);
}

bool RuleIndex::hits(const Packet &packet, uint32_t slot) const {
  const uint8_t *record = slots_.at(slot);
  const uint8_t pipe = record[RecordLayout::kPipe];
  if (pipe != packet.pipe && pipe != KeyTwins::kAllPipes) return false;
  const uint8_t *value = record + record_.value;
  const uint8_t *mask = mask_of(slot);
  if (compared_ == nullptr) return equal_masked(value, packet.key, mask, record_.key_bytes);
  if (mask == nullptr) return equal_masked(value, packet.key, compared_, record_.key_bytes);
  for (size_t at = 0; at < record_.key_bytes; ++at)
    if (((value[at] ^ packet.key[at]) & mask[at] & compared_[at]) != 0) return false;
  return true;
}

void RuleIndex::copy_words(const uint8_t *bytes, uint8_t pipe, Words &words) const {
  const size_t count = std::min<size_t>(record_.key_bytes, words_ * 8 - 1);
  auto *to = reinterpret_cast<uint8_t *>(words.data());
  words[words_ - 1] = 0;
  to[0] = pipe;
  std::memcpy(to + 1, bytes, count);
}

void RuleIndex::read(uint32_t slot, Rule &rule) const {
  const uint8_t *record = slots_.at(slot);
  const uint8_t pipe = record[RecordLayout::kPipe];
  const uint8_t *mask = mask_of(slot);
  rule.ranked = {slot, priority_of(slot), {}};
  copy_words(record + record_.value, pipe, rule.value);
  Words kept;
  kept.fill(~uint64_t{0});
  if (compared_ != nullptr) copy_words(compared_, 0xff, kept);
  rule.mask.fill(~uint64_t{0});
  if (mask != nullptr) copy_words(mask, 0xff, rule.mask);
  auto *bytes = reinterpret_cast<uint8_t *>(rule.mask.data());
  if (pipe == KeyTwins::kAllPipes) bytes[0] = 0;
  for (size_t word = 0; word < words_; ++word) {
    rule.mask[word] &= kept[word];
    rule.value[word] &= rule.mask[word];
  }
}

// ---- Levels ----

uint32_t RuleIndex::tag_of(const Words &words, const uint64_t *mask) const {
  uint64_t hash = 0x9e3779b97f4a7c15u;
  for (size_t word = 0; word < words_; ++word) {
    hash = (hash ^ (words[word] & mask[word])) * 0xd6e8feb86659fd93u;
    hash ^= hash >> 32;
  }
  hash *= 0xbf58476d1ce4e5b9u;
  return static_cast<uint32_t>(hash >> 32);
}

bool RuleIndex::fits(const Rule &rule, const uint64_t *mask) const {
  uint64_t missing = 0;
  for (size_t word = 0; word < words_; ++word) missing |= mask[word] & ~rule.mask[word];
  return missing == 0;
}

// Behind the last level: it is in the rest.
size_t RuleIndex::level_of(const Chain &chain, const Rule &rule) const {
  size_t level = 0;
  while (level < chain.levels.size() && !fits(rule, mask(chain, level))) ++level;
  return level;
}

void RuleIndex::place(Level &level, const Cell &cell) {
  const size_t last = level.cells.size() - 1;
  size_t at = cell.tag & last;
  while (level.cells[at].to != kNone) at = (at + 1) & last;
  level.cells[at] = cell;
  ++level.used;
}

void RuleIndex::make_room(Level &level) {
  if (level.used + 1 <= level.cells.size() / 4 * 3) return;
  std::pmr::vector<Cell> old(level.cells.size() * 2, Cell{0, kNone, 0, {}},
                             level.cells.get_allocator());
  old.swap(level.cells);
  level.used = 0;
  for (const Cell &cell : old)
    if (cell.to != kNone) place(level, cell);
}

// Moves later cells of the run back instead of leaving a mark.
void RuleIndex::free_cell(Level &level, uint32_t hole) {
  const auto last = static_cast<uint32_t>(level.cells.size() - 1);
  auto &cells = level.cells;
  for (uint32_t at = (hole + 1) & last; cells[at].to != kNone; at = (at + 1) & last) {
    if (((at - cells[at].tag) & last) < ((at - hole) & last)) continue;
    cells[hole] = cells[at];
    hole = at;
  }
  cells[hole].to = kNone;
  --level.used;
}

// ---- Changes ----

uint32_t RuleIndex::new_chain() {
  if (chains_.size() == chains_.capacity()) chains_.reserve(chains_.size() * 2 + 4);
  chains_.push_back(std::pmr::polymorphic_allocator<>(memory_).new_object<Chain>(memory_));
  return static_cast<uint32_t>(chains_.size() - 1);
}

void RuleIndex::add(Chain &chain, const Rule &rule) {
  const size_t level = level_of(chain, rule);
  if (level == chain.levels.size()) return add_to_rest(chain, rule);
  add_to(chain.levels[level], tag_of(rule.value, mask(chain, level)), rule);
}

void RuleIndex::add_to_rest(Chain &chain, const Rule &rule) {
  const auto before = [this](const Ranked &a, const Ranked &b) { return is_before(a, b); };
  Ranked added = rule.ranked;
  added.filter = filter_of(rule, chain.window);
  chain.rest.insert(std::ranges::upper_bound(chain.rest, added, before), added);
  if (chain.rest.size() >= chain.next_try) refine(chain);
}

void RuleIndex::add_to(Level &level, uint32_t tag, const Rule &rule) {
  level.least_priority = std::min(level.least_priority, rule.ranked.priority);
  make_room(level);
  const size_t last = level.cells.size() - 1;
  size_t alike = 0;
  for (size_t at = tag & last; level.cells[at].to != kNone; at = (at + 1) & last) {
    Cell &cell = level.cells[at];
    if (cell.tag != tag) continue;
    if (is_chain(cell.to)) {
      cell.priority = std::min(cell.priority, rule.ranked.priority);
      return add(*chains_[cell.to & ~kChain], rule);
    }
    ++alike;
  }
  place(level, {tag, rule.ranked.slot, rule.ranked.priority, filter_of(rule, level.window)});
  if (alike == kFewAlike) refine(*chains_[make_chain(level, tag)]);
}

// Lets a chain take the place of the rules with one tag.
uint32_t RuleIndex::make_chain(Level &level, uint32_t tag) {
  const uint32_t number = new_chain();
  auto &rest = chains_[number]->rest;
  rest.reserve(kFewAlike + 1);
  const auto last = static_cast<uint32_t>(level.cells.size() - 1);
  for (uint32_t at = tag & last; level.cells[at].to != kNone;) {
    const Cell cell = level.cells[at];
    if (cell.tag != tag) {
      at = (at + 1) & last;
      continue;
    }
    rest.push_back({cell.to, cell.priority, {}});
    free_cell(level, at);
  }
  std::ranges::sort(rest, [this](const Ranked &a, const Ranked &b) { return is_before(a, b); });
  place(level, {tag, kChain | number, rest[0].priority, {}});
  return number;
}

// Makes levels of the rest as long as that pays.
void RuleIndex::refine(Chain &chain) {
  while (chain.rest.size() >= kFewAlike && add_level(chain)) {
  }
  set_window(chain);
  chain.next_try = std::max(2 * chain.rest.size(), 2 * kFewAlike);
}

void RuleIndex::set_window(Chain &chain) {
  const Words none{};
  const RuleSample sample = sample_of(chain);
  chain.window =
      static_cast<uint32_t>(sample.window(reinterpret_cast<const uint8_t *>(none.data())));
  Rule rule;
  for (Ranked &ranked : chain.rest) {
    read(ranked.slot, rule);
    ranked.filter = filter_of(rule, chain.window);
  }
}

RuleSample RuleIndex::sample_of(const Chain &chain) const {
  const size_t count = chain.rest.size();
  const size_t sampled = std::min(count, kSampledRules);
  RuleSample sample(words_ * 8, static_cast<double>(count) / static_cast<double>(sampled));
  Rule rule;
  for (size_t i = 0; i < sampled; ++i) {
    read(chain.rest[i * count / sampled].slot, rule);
    sample.add(reinterpret_cast<const uint8_t *>(rule.value.data()),
               reinterpret_cast<const uint8_t *>(rule.mask.data()));
  }
  return sample;
}

bool RuleIndex::add_level(Chain &chain) {
  RuleSample sample = sample_of(chain);
  Words chosen;
  auto *bytes = reinterpret_cast<uint8_t *>(chosen.data());
  if (!sample.choose(bytes)) return false;
  chain.masks.insert(chain.masks.end(), chosen.data(), chosen.data() + words_);
  chain.levels.push_back({std::pmr::vector<Cell>(16, Cell{0, kNone, 0, {}}, memory_), 0, 0xffffffff,
                          static_cast<uint32_t>(sample.window(bytes))});
  Level &level = chain.levels.back();
  Rule rule;
  size_t kept = 0;
  for (const Ranked &ranked : chain.rest) {
    read(ranked.slot, rule);
    if (fits(rule, chosen.data()))
      add_to(level, tag_of(rule.value, chosen.data()), rule);
    else
      chain.rest[kept++] = ranked;
  }
  chain.rest.resize(kept);
  chain.rest.shrink_to_fit();
  return true;
}

void RuleIndex::build() {
  struct Aged {
    uint32_t priority;
    uint32_t slot;
    uint64_t age;
  };
  std::vector<Aged> all;
  all.reserve(slots_.count());
  slots_.each_live([&](uint32_t slot) { all.push_back({priority_of(slot), slot, age_of(slot)}); });
  std::ranges::sort(all, [](const Aged &a, const Aged &b) {
    return a.priority != b.priority ? a.priority < b.priority : a.age < b.age;
  });
  rules_ = all.size();
  added_ = 0;
  Chain &first = *chains_[new_chain()];
  first.rest.reserve(all.size());
  for (const Aged &rule : all) first.rest.push_back({rule.slot, rule.priority, {}});
  const std::vector<Ranked> in_front(
      first.rest.begin(),
      first.rest.begin() + static_cast<ptrdiff_t>(std::min(all.size(), kFrontRules)));
  const bool is_long = all.size() > kFrontRules * 4;
  refine(first);
  if (is_long) build_front(in_front);
}

// Kept when one of them hits a quarter of the packets with the values of the others.
void RuleIndex::build_front(std::span<const Ranked> first) {
  Chain *front = chains_[new_chain()];
  front->rest.assign(first.begin(), first.end());
  refine(*front);
  size_t asked = 0, hit = 0;
  const size_t step = slots_.count() / kFrontRules + 1;
  size_t number = 0;
  slots_.each_live([&](uint32_t slot) {
    if (++number % step != 0) return;
    const uint8_t *record = slots_.at(slot);
    Packet packet{record + record_.value, record[RecordLayout::kPipe], {}};
    copy_words(packet.key, packet.pipe, packet.words);
    Best best;
    search(*front, packet, best);
    ++asked;
    hit += best.slot != kNone;
  });
  if (hit >= asked / 4) front_ = front;
}

void RuleIndex::insert(uint32_t slot) noexcept {
  if (chains_.empty()) return;
  if (++added_ > rules_ + kAddedBeforeNew) return reset();
  try {
    Rule rule;
    read(slot, rule);
    add(*chains_[0], rule);
  } catch (const std::bad_alloc &) {
    reset();
  }
}

void RuleIndex::erase(uint32_t slot) noexcept {
  if (chains_.empty()) return;
  if (slots_.count() <= rules_ / 4) return reset();
  Rule rule;
  read(slot, rule);
  remove(*chains_[0], rule);
  if (front_ != nullptr) remove(*front_, rule);
}

// If it is there.
void RuleIndex::remove(Chain &chain, const Rule &rule) {
  const size_t place = level_of(chain, rule);
  if (place == chain.levels.size()) {
    const auto before = [this](const Ranked &a, const Ranked &b) { return is_before(a, b); };
    const auto at = std::ranges::lower_bound(chain.rest, rule.ranked, before);
    if (at != chain.rest.end() && at->slot == rule.ranked.slot) chain.rest.erase(at);
    return;
  }
  Level &level = chain.levels[place];
  const uint32_t tag = tag_of(rule.value, mask(chain, place));
  const auto last = static_cast<uint32_t>(level.cells.size() - 1);
  for (uint32_t at = tag & last; level.cells[at].to != kNone; at = (at + 1) & last) {
    const Cell &cell = level.cells[at];
    if (cell.tag != tag) continue;
    if (is_chain(cell.to)) return remove(*chains_[cell.to & ~kChain], rule);
    if (cell.to == rule.ranked.slot) return free_cell(level, at);
  }
}

// ---- Look-up ----

void RuleIndex::consider(const Packet &packet, const Ranked &rule, Best &best) const {
  if (rule.priority > best.priority || !hits(packet, rule.slot)) return;
  const uint64_t age = age_of(rule.slot);
  if (best.slot != kNone && rule.priority == best.priority && age >= best.age) return;
  best = {rule.slot, rule.priority, age};
}

void RuleIndex::search(const Level &level, uint32_t tag, const Packet &packet, Best &best) const {
  if (level.least_priority > best.priority) return;
  const size_t last = level.cells.size() - 1;
  const uint16_t window = in_window(packet.words, level.window);
  for (size_t at = tag & last; level.cells[at].to != kNone; at = (at + 1) & last) {
    const Cell &cell = level.cells[at];
    if (cell.tag != tag || cell.priority > best.priority || !cell.filter.passes(window)) continue;
    if (is_chain(cell.to))
      search(*chains_[cell.to & ~kChain], packet, best);
    else
      consider(packet, {cell.to, cell.priority, {}}, best);
  }
}

void RuleIndex::search(const Chain &chain, const Packet &packet, Best &best) const {
  std::array<uint32_t, kLevelsAhead> tags;
  for (size_t from = 0; from < chain.levels.size(); from += kLevelsAhead) {
    const size_t to = std::min(chain.levels.size(), from + kLevelsAhead);
    for (size_t level = from; level < to; ++level) {
      const auto &cells = chain.levels[level].cells;
      const uint32_t tag = tag_of(packet.words, mask(chain, level));
      tags[level - from] = tag;
      __builtin_prefetch(&cells[tag & (cells.size() - 1)]);
    }
    for (size_t level = from; level < to; ++level)
      search(chain.levels[level], tags[level - from], packet, best);
  }
  const uint16_t window = in_window(packet.words, chain.window);
  for (const Ranked &rule : chain.rest) {
    if (rule.priority > best.priority) return;
    if (!rule.filter.passes(window)) continue;
    consider(packet, rule, best);
    if (best.slot == rule.slot) return;
  }
}

uint32_t RuleIndex::find(const uint8_t *key, uint8_t pipe) noexcept {
  Packet packet;
  packet.key = key;
  packet.pipe = pipe;
  Best best;
  try {
    if (chains_.empty() && slots_.count() > kFewRules) build();
  } catch (const std::bad_alloc &) {
    reset();
  }
  if (chains_.empty()) {
    slots_.each_live([&](uint32_t slot) { consider(packet, {slot, priority_of(slot), {}}, best); });
  } else {
    copy_words(key, pipe, packet.words);
    if (front_ != nullptr) search(*front_, packet, best);
    search(*chains_[0], packet, best);
  }
  return best.slot;
}

}  // namespace soft
