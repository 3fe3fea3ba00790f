// The storage engine of match tables: against a plain model with random operations, and in
// scenarios worked out by hand.
#include "tables/match_table.hpp"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory_resource>
#include <new>
#include <optional>
#include <random>
#include <set>
#include <tuple>
#include <vector>

namespace soft {
namespace {

using Bytes = std::vector<uint8_t>;

constexpr uint32_t kUnknown = 0x0badf00d;

soft_table_t table_of(soft_match_kind match, uint16_t key_bytes) {
  soft_table_t table{};
  table.match = match;
  table.key_bytes = key_bytes;
  return table;
}

EntryLayout ageing() {
  EntryLayout layout;
  layout.ages = true;
  return layout;
}

// Adds an entry whose action handle tells entries apart; 0 when it was refused.
uint32_t add(MatchTable &table, const Bytes &value, const Bytes &mask = {}, uint32_t priority = 0,
             bf_pipe_id_t pipe = BF_ALL_PIPES, uint32_t ttl = 0, uint64_t now = 0) {
  uint32_t handle = 0;
  const EntryKey key{value.data(), mask.empty() ? nullptr : mask.data(), priority, pipe};
  EntryAction action;
  action.action = 0x20000001;
  const bf_status_t status = table.add(key, action, ttl, now, &handle);
  EXPECT_EQ(status == BF_SUCCESS, handle != 0) << status;
  return handle;
}

// The same numbers on every machine.
class Random {
 public:
  explicit Random(uint32_t seed) : engine_(seed) {}
  uint32_t operator()() { return static_cast<uint32_t>(engine_()); }

 private:
  std::mt19937 engine_;
};

std::vector<uint32_t> walk(const MatchTable &table) {
  std::vector<uint32_t> handles;
  uint32_t handle;
  bf_status_t status = table.first(&handle);
  for (; status == BF_SUCCESS; status = table.next(handle, &handle)) handles.push_back(handle);
  EXPECT_EQ(status, static_cast<bf_status_t>(BF_END_OF_LIST));
  return handles;
}

// Hands out memory until a set number of allocations was made, then fails once.
class RationedMemory final : public std::pmr::memory_resource {
 public:
  std::optional<uint32_t> left;
  size_t outstanding = 0;

 private:
  void *do_allocate(size_t bytes, size_t alignment) override {
    if (left && (*left)-- == 0) {
      left.reset();
      throw std::bad_alloc();
    }
    outstanding += bytes;
    return std::pmr::new_delete_resource()->allocate(bytes, alignment);
  }
  void do_deallocate(void *memory, size_t bytes, size_t alignment) override {
    outstanding -= bytes;
    std::pmr::new_delete_resource()->deallocate(memory, bytes, alignment);
  }
  bool do_is_equal(const memory_resource &other) const noexcept override { return this == &other; }
};

// ---- Against a model: a list that is searched from end to end ----

struct ModelEntry {
  Bytes value;
  Bytes mask;
  uint32_t priority;
  bf_pipe_id_t pipe;
  uint32_t action;
  uint32_t handle;
};

bool agree(const Bytes &a, const Bytes &b, const Bytes &mask) {
  for (size_t i = 0; i < a.size(); ++i)
    if (((a[i] ^ b[i]) & mask[i]) != 0) return false;
  return true;
}

using ModelCase = std::tuple<soft_match_kind, bool, uint32_t>;  // duplicate check, seed

class MatchTableModel : public testing::TestWithParam<ModelCase> {
 protected:
  // Few distinct bytes and masks, so that keys meet often; 10 bytes take in a whole word and a
  // rest.
  ModelEntry random_entry() {
    ModelEntry entry{Bytes(10, 0x11), Bytes(10, 0xff), 0, BF_ALL_PIPES, random_(), 0};
    entry.value[0] = static_cast<uint8_t>(random_() % 4);
    entry.value[9] = static_cast<uint8_t>(random_() % 64);
    if (kind_ == SOFT_LPM) {
      entry.priority = random_() % 7;
      entry.mask[9] = static_cast<uint8_t>(0xffu << entry.priority);
    } else if (kind_ == SOFT_TERNARY) {
      entry.mask[0] = static_cast<uint8_t>(random_() % 4);
      entry.mask[9] = static_cast<uint8_t>(random_() % 2 * 0x0f | random_() % 2 * 0xf0);
      entry.priority = random_() % 5;
    }
    if (random_() % 4 == 0) entry.pipe = random_() % 2;
    return entry;
  }

  const ModelEntry *find(const ModelEntry &key) const {
    for (const ModelEntry &entry : entries_)
      if (entry.mask == key.mask && entry.priority == key.priority && entry.pipe == key.pipe &&
          agree(entry.value, key.value, key.mask))
        return &entry;
    return nullptr;
  }

  uint32_t lookup(const Bytes &key, bf_pipe_id_t pipe) const {
    const ModelEntry *best = nullptr;
    for (const ModelEntry &entry : entries_) {  // the oldest first
      if (entry.pipe != BF_ALL_PIPES && entry.pipe != pipe) continue;
      if (!agree(entry.value, key, entry.mask)) continue;
      if (best == nullptr || entry.priority < best->priority) best = &entry;
    }
    return best != nullptr ? best->handle : 0;
  }

  void add_one() {
    ModelEntry entry = random_entry();
    const bool refused = checks_ && find(entry) != nullptr;
    EntryAction action;
    action.action = entry.action;
    const EntryKey key{entry.value.data(), entry.mask.data(), entry.priority, entry.pipe};
    const bf_status_t status = table_.add(key, action, 0, 0, &entry.handle);
    ASSERT_EQ(status, static_cast<bf_status_t>(refused ? BF_ALREADY_EXISTS : BF_SUCCESS));
    if (!refused) entries_.push_back(entry);
  }

  void erase_one() {
    if (entries_.empty()) return;
    const auto at = entries_.begin() + static_cast<ptrdiff_t>(random_() % entries_.size());
    ASSERT_EQ(table_.erase(at->handle), 0u);
    ASSERT_EQ(table_.erase(at->handle), static_cast<bf_status_t>(BF_OBJECT_NOT_FOUND));
    entries_.erase(at);
  }

  void search_one() {
    const ModelEntry key = random_entry();
    const ModelEntry *expected = find(key);
    uint32_t handle = kUnknown;
    const EntryKey wanted{key.value.data(), key.mask.data(), key.priority, key.pipe};
    const bf_status_t status = table_.find(wanted, &handle);
    ASSERT_EQ(handle, expected != nullptr ? expected->handle : kUnknown);
    ASSERT_EQ(status, static_cast<bf_status_t>(expected ? BF_SUCCESS : BF_OBJECT_NOT_FOUND));
    ASSERT_EQ(table_.lookup(key.value.data(), key.pipe), lookup(key.value, key.pipe));
  }

  void compare_all() {
    ASSERT_EQ(table_.count(), entries_.size());
    std::vector<uint32_t> expected;
    for (const ModelEntry &entry : entries_) {
      EntryView view;
      ASSERT_EQ(table_.get(entry.handle, &view), 0u);
      ASSERT_EQ(Bytes(view.value, view.value + 10), entry.value);
      ASSERT_EQ(Bytes(view.mask, view.mask + 10), entry.mask);
      ASSERT_EQ(std::tie(view.priority, view.pipe, view.action),
                std::tie(entry.priority, entry.pipe, entry.action));
      expected.push_back(entry.handle);
    }
    std::vector<uint32_t> walked = walk(table_);
    std::sort(walked.begin(), walked.end());
    std::sort(expected.begin(), expected.end());
    ASSERT_EQ(walked, expected);
  }

  const soft_match_kind kind_ = std::get<0>(GetParam());
  const bool checks_ = std::get<1>(GetParam());
  Random random_{std::get<2>(GetParam())};
  MatchTable table_{table_of(kind_, 10), EntryLayout{}};
  std::vector<ModelEntry> entries_;
};

TEST_P(MatchTableModel, AgreesAfterRandomOperations) {
  table_.set_duplicate_check(checks_);
  for (int step = 0; step < 12000 && !HasFatalFailure(); ++step) {
    const bool grows = step / 2000 % 2 == 0;  // fills and drains in turn
    random_() % 10 < (grows ? 7u : 3u) ? add_one() : erase_one();
    search_one();
    if (step % 500 == 0) compare_all();
  }
}

INSTANTIATE_TEST_SUITE_P(Kinds, MatchTableModel,
                         testing::Combine(testing::Values(SOFT_EXACT, SOFT_LPM, SOFT_TERNARY),
                                          testing::Bool(), testing::Values(1u, 2u)));

// ---- Handles and enumeration ----

TEST(MatchTableHandles, StaleHandlesStayUnknown) {
  MatchTable table(table_of(SOFT_EXACT, 1), EntryLayout{});
  const uint32_t stale = add(table, {1});
  table.erase(stale);
  for (int i = 1; i < 65536; ++i) {
    const uint32_t handle = add(table, {1});
    ASSERT_NE(handle, stale);
    ASSERT_NE(handle, 0xffffffff);
    ASSERT_FALSE(table.contains(stale));
    table.erase(handle);
  }
  for (const uint32_t never : {0u, 0xffffffffu, 5000u}) EXPECT_FALSE(table.contains(never));
}

TEST(MatchTableHandles, WalkHoldsWhileEntriesComeAndGo) {
  MatchTable table(table_of(SOFT_EXACT, 1), EntryLayout{});
  std::vector<uint32_t> handles;
  for (uint8_t i = 0; i < 6; ++i) handles.push_back(add(table, {i}));
  uint32_t at;
  ASSERT_EQ(table.first(&at), 0u);
  EXPECT_EQ(at, handles[0]);
  table.erase(handles[0]);  // the one we stand on
  table.erase(handles[1]);  // and the one ahead
  ASSERT_EQ(table.next(at, &at), 0u);
  EXPECT_EQ(at, handles[2]);
  const uint32_t added = add(table, {99});
  EXPECT_EQ(walk(table),
            (std::vector<uint32_t>{handles[2], handles[3], handles[4], handles[5], added}));
  EXPECT_EQ(table.next(added, &at), static_cast<bf_status_t>(BF_END_OF_LIST));
  EXPECT_EQ(table.next(0x00001000, &at), static_cast<bf_status_t>(BF_OBJECT_NOT_FOUND));
  EXPECT_EQ(table.next(handles[3] | 0x04000000, &at),  // a generation that was never issued
            static_cast<bf_status_t>(BF_OBJECT_NOT_FOUND));
}

TEST(MatchTableHandles, GrowsOverManyChunksAndDrains) {
  MatchTable table(table_of(SOFT_EXACT, 3), EntryLayout{});
  const auto key = [](uint32_t i) {
    return Bytes{static_cast<uint8_t>(i >> 16), static_cast<uint8_t>(i >> 8),
                 static_cast<uint8_t>(i)};
  };
  std::vector<uint32_t> handles;
  for (uint32_t i = 0; i < 300000; ++i) handles.push_back(add(table, key(i)));
  ASSERT_EQ(std::set<uint32_t>(handles.begin(), handles.end()).size(), 300000u);
  for (uint32_t i = 0; i < 300000; ++i) ASSERT_EQ(table.lookup(key(i).data()), handles[i]);
  for (uint32_t i = 0; i < 300000; ++i) {  // 262,143 is alone behind many free places
    if (i == 262143 || i == 5) continue;
    ASSERT_EQ(table.erase(handles[i]), 0u);
  }
  EXPECT_EQ(walk(table), (std::vector<uint32_t>{handles[5], handles[262143]}));
  const size_t bytes = table.memory_bytes();
  for (uint32_t i = 0; i < 299998; ++i) ASSERT_NE(add(table, key(0x800000 + i)), 0u);
  EXPECT_EQ(walk(table).size(), 300000u);
  EXPECT_LT(table.memory_bytes(), bytes + bytes / 50);  // slots are used again
  uint32_t handle;
  while (table.first(&handle) == BF_SUCCESS) ASSERT_EQ(table.erase(handle), 0u);
  EXPECT_LT(table.memory_bytes(), 2 * 300000u) << "the generations of the slots";
  for (uint32_t i = 0; i < 300000; ++i) {
    const uint32_t again = add(table, key(i));
    ASSERT_NE(again, handles[i]);
    ASSERT_EQ(table.lookup(key(i).data()), again);
  }
}

// ---- What an entry holds ----

TEST(MatchTableEntries, PayForNothingElse) {
  MatchTable table(table_of(SOFT_EXACT, 4), EntryLayout{});
  const uint8_t byte = 1;
  const EntryResource resource{1, 2};
  uint32_t handle = add(table, {0, 0, 0, 0});
  EXPECT_EQ(table.set_action(handle, {1, PIPE_ACTION_DATA, {&byte, 1}, 0, {}}),
            static_cast<bf_status_t>(BF_WRONG_LENGTH));
  EXPECT_EQ(table.set_action(handle, {1, PIPE_ACTION_MEMBER, {}, 1, {}}),
            static_cast<bf_status_t>(BF_INVALID_ARGUMENT));
  EXPECT_EQ(table.set_resources(handle, {&resource, 1}),
            static_cast<bf_status_t>(BF_INVALID_ARGUMENT));
  EXPECT_EQ(table.set_meter(handle, {}), static_cast<bf_status_t>(BF_NOT_SUPPORTED));
  for (uint32_t i = 1; i < 100000; ++i)
    add(table,
        {0, static_cast<uint8_t>(i >> 16), static_cast<uint8_t>(i >> 8), static_cast<uint8_t>(i)});
  // 12 bytes of record; an index cell of 8 bytes at a load of 11/32 to 11/16; bits of the walk.
  EXPECT_LT(table.memory_bytes(), 100000u * (12 + 24 + 1));
}

TEST(MatchTableEntries, AKeylessTableHasOneEntry) {
  MatchTable table(table_of(SOFT_EXACT, 0), EntryLayout{});
  const uint32_t only = add(table, {});
  EXPECT_EQ(add(table, {}), 0u);
  EXPECT_EQ(table.lookup(nullptr), only);
}

// ---- Ageing ----

TEST(MatchTableAgeing, AgreesWithALinearScan) {
  struct Timed {
    uint32_t handle;
    uint32_t ttl;
    uint64_t hit;
    bool expired;
  };
  MatchTable table(table_of(SOFT_EXACT, 1), ageing());
  Random random(11);
  std::vector<Timed> entries;
  uint64_t now = 123;
  const auto any_ttl = [&random] { return random() >> random() % 32; };  // of every magnitude
  for (uint8_t i = 0; i < 200; ++i) {
    const uint32_t ttl = any_ttl();
    entries.push_back({add(table, {i}, {}, 0, BF_ALL_PIPES, ttl, now), ttl, now, false});
  }
  for (int step = 0; step < 20000; ++step) {
    now += random() % 4 == 0 ? any_ttl() / 64 : random() % 3;
    Timed &entry = entries[random() % entries.size()];
    if (random() % 2 == 0) entry.ttl = any_ttl();
    if (random() % 2 == 0)
      table.hit(entry.handle, now), table.set_ttl(entry.handle, entry.ttl, now);
    else
      table.set_ttl(entry.handle, entry.ttl, now), table.hit(entry.handle, now);
    entry.hit = now;
    entry.expired = false;
    Timed &other = entries[random() % entries.size()];
    table.hit(other.handle, other.hit = now);
    other.expired = false;
    uint64_t before = 0;
    for (uint32_t handle; (handle = table.next_expired(now)) != 0;) {
      auto it = std::find_if(entries.begin(), entries.end(),
                             [handle](const Timed &timed) { return timed.handle == handle; });
      ASSERT_FALSE(it->expired);
      ASSERT_GE(it->hit + it->ttl, before);
      before = it->hit + it->ttl;
      it->expired = true;
    }
    for (const Timed &timed : entries)
      ASSERT_EQ(timed.expired, timed.ttl != 0 && timed.hit + timed.ttl <= now);
  }
}

// ---- Memory ----

TEST(MatchTableMemory, IsCountedExactlyAndGivenBack) {
  RationedMemory memory;
  {
    MatchTable table(table_of(SOFT_TERNARY, 2), ageing(), &memory);
    EXPECT_EQ(memory.outstanding, 0u);
    for (uint32_t i = 0; i < 20000; ++i)
      add(table, {static_cast<uint8_t>(i), static_cast<uint8_t>(i >> 8)},
          {0xff, static_cast<uint8_t>(i >> 4)}, i, BF_ALL_PIPES, i);
    EXPECT_EQ(table.memory_bytes(), sizeof(table) + memory.outstanding);
    for (const uint32_t handle : walk(table)) table.erase(handle);
    EXPECT_LT(memory.outstanding, 20000u) << "an emptied table";
  }
  EXPECT_EQ(memory.outstanding, 0u);
}

// Every addition is tried with its first allocation failing, its second, and so on until it gets
// through: after each failure the table must be what it was.
TEST(MatchTableMemory, FailingAllocationsChangeNothing) {
  RationedMemory memory;
  MatchTable table(table_of(SOFT_TERNARY, 2), ageing(), &memory);
  std::vector<uint32_t> handles;
  uint32_t failures = 0;
  for (uint32_t i = 0; i < 12000; ++i) {
    const Bytes value{static_cast<uint8_t>(i % 97), static_cast<uint8_t>(i % 89)};
    const Bytes mask{0xff, static_cast<uint8_t>(i % 3 == 0 ? i >> 4 : 0xff)};
    const EntryKey key{value.data(), mask.data(), i};
    const uint32_t hit = table.lookup(value.data());
    const size_t masks = table.distinct_masks();
    uint32_t handle = kUnknown;
    bf_status_t status = BF_NO_MEMORY;
    for (uint32_t attempt = 0; status != BF_SUCCESS; ++attempt) {
      memory.left = attempt;
      status = table.add(key, EntryAction{}, 7, 0, &handle);
      memory.left.reset();
      if (status == BF_SUCCESS) break;
      ++failures;
      ASSERT_EQ(status, static_cast<bf_status_t>(BF_NO_MEMORY));
      ASSERT_EQ(table.count(), i);
      ASSERT_EQ(table.distinct_masks(), masks);
      ASSERT_EQ(table.find(key, &handle), static_cast<bf_status_t>(BF_OBJECT_NOT_FOUND));
      ASSERT_EQ(table.lookup(value.data()), hit);
      ASSERT_EQ(handle, kUnknown);
      if (failures % 8 == 0) {
        ASSERT_EQ(walk(table), handles);
      }
    }
    handles.push_back(handle);
  }
  EXPECT_GT(failures, 60u);  // chunks, segments, directory, masks and twins all grew
  EXPECT_EQ(walk(table), handles);
  uint32_t expired = 0;
  while (table.next_expired(7) != 0) ++expired;
  EXPECT_EQ(expired, 12000u);
}

}  // namespace
}  // namespace soft
