// A parser value set against a naive one with random calls.
#include <algorithm>

#include "program.hpp"

namespace {

using namespace soft_test;

struct Where {
  uint32_t direction;
  uint16_t pipe;
  uint8_t parser;
  bool meets(const Where &other) const {
    const auto agree = [](uint32_t a, uint32_t b, uint32_t all) {
      return a == b || a == all || b == all;
    };
    return direction == other.direction && agree(pipe, other.pipe, kAll) &&
           agree(parser, other.parser, SOFT_ALL_PARSERS);
  }
};
struct Entry {
  uint32_t handle;
  Where where;
  uint32_t value, mask;
};

class ValueSets : public SoftTest, public testing::WithParamInterface<uint32_t> {
 protected:
  Where any_where() {
    return {random.below(2), static_cast<uint16_t>(random.one_in(3) ? kAll : random.below(2)),
            static_cast<uint8_t>(random.one_in(3) ? SOFT_ALL_PARSERS : random.below(3))};
  }
  uint32_t any_value() { return random.below(4) * 0x100 + random.below(3); }
  uint32_t any_mask() { return random.one_in(2) ? 0xff00 : 0xffff; }
  // The oldest entry that test holds for.
  template <class Test>
  Entry *first(Test test) {
    const auto at = std::ranges::find_if(entries, test);
    return at == entries.end() ? nullptr : &*at;
  }
  Entry *clash(const Where &where, uint32_t value, uint32_t mask, const Entry *but = nullptr) {
    return first([&](const Entry &e) {
      return &e != but && e.where.meets(where) && e.mask == mask && ((e.value ^ value) & mask) == 0;
    });
  }
  // Whether one of the parsers has no room; parser 3 stands for all that no entry names.
  bool is_full(const Where &where) const {
    for (uint16_t pipe = 0; capacity != 0 && pipe < 2; ++pipe) {
      for (uint8_t parser = 0; parser < 4; ++parser) {
        const Where one{where.direction, pipe, parser};
        const auto held = std::ranges::count_if(
            entries, [&](const Entry &entry) { return entry.where.meets(one); });
        if (where.meets(one) && static_cast<uint32_t>(held) >= capacity) return true;
      }
    }
    return false;
  }
  uint32_t any_entry() {
    return entries.empty() || random.one_in(9) ? random.below(50) : random.of(entries).handle;
  }
  static bf_status_t found(const Entry *entry) {
    return entry == nullptr ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
  }

  void add() {
    const Where where = any_where();
    const uint32_t value = any_value(), mask = any_mask();
    uint32_t handle = kNowhere;
    const bf_status_t expected = clash(where, value, mask) != nullptr ? BF_ALREADY_EXISTS
                                 : is_full(where)                     ? BF_TABLE_FULL
                                                                      : BF_SUCCESS;
    ASSERT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, where.direction, where.pipe,
                                     where.parser, value, mask, &handle),
              expected);
    if (expected != BF_SUCCESS) return;
    ASSERT_TRUE(entries.empty() || handle > entries.back().handle);
    entries.push_back({handle, where, value, mask});
  }
  void change() {
    const uint32_t handle = any_entry(), value = any_value(), mask = any_mask();
    Entry *entry = first([&](const Entry &e) { return e.handle == handle; });
    bf_status_t expected = found(entry);
    if (random.one_in(2)) {
      ASSERT_EQ(pipe_mgr_pvs_entry_delete(session, kDevice, kPortSet, handle), expected);
      if (entry != nullptr) entries.erase(entries.begin() + (entry - entries.data()));
      return;
    }
    if (entry != nullptr && clash(entry->where, value, mask, entry) != nullptr) {
      expected = BF_ALREADY_EXISTS;
    }
    ASSERT_EQ(pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, handle, value, mask), expected);
    if (expected == BF_SUCCESS) entry->value = value, entry->mask = mask;
  }
  void limit() {
    uint32_t read = kNowhere;
    capacity = random.below(6);
    OK(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, capacity, 0, 0));
    OK(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, &read, 0, 0));
    ASSERT_EQ(read, capacity);
    EXPECT_EQ(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, 2, 0, 0, 0),
              BF_INVALID_ARGUMENT);
    EXPECT_EQ(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, 0, &read, 0, 0),
              BF_INVALID_ARGUMENT);
  }
  void find() {
    const Where where = any_where();
    const uint32_t value = any_value(), mask = any_mask();
    uint32_t handle = kNowhere;
    const Entry *same = clash(where, value, mask);
    ASSERT_EQ(pipe_mgr_pvs_entry_handle_get(session, kDevice, kPortSet, where.direction, where.pipe,
                                            where.parser, value, mask, &handle),
              found(same));
    ASSERT_EQ(handle, same == nullptr ? kNowhere : same->handle);
    if (where.pipe != kAll && where.parser != SOFT_ALL_PARSERS) {
      const Entry *hit = first([&](const Entry &e) {
        return e.where.meets(where) && ((e.value ^ value) & e.mask) == 0;
      });
      handle = kNowhere;
      ASSERT_EQ(soft_value_set_match(kDevice, kPortSet, where.direction, where.pipe, where.parser,
                                     value, &handle),
                found(hit));
      ASSERT_EQ(handle, hit == nullptr ? kNowhere : hit->handle);
    }
  }
  void compare() {
    const Where where = any_where();
    Words expected;
    for (const Entry &entry : entries) {
      if (!entry.where.meets(where)) continue;
      expected.push_back(entry.handle);
      uint32_t read[2] = {};
      soft_parsers_t parsers{};
      OK(pipe_mgr_pvs_entry_get(session, kDevice, kPortSet, entry.handle, read, read + 1));
      OK(soft_value_set_parsers(kDevice, kPortSet, entry.handle, &parsers));
      ASSERT_EQ(read[0], entry.value) << "as given, bits outside the mask included";
      ASSERT_EQ(read[1], entry.mask);
      ASSERT_EQ((Words{parsers.direction, parsers.pipe, parsers.parser}),
                (Words{entry.where.direction, entry.where.pipe, entry.where.parser}));
    }
    uint32_t count = kNowhere;
    OK(pipe_mgr_pvs_entry_get_count(session, kDevice, kPortSet, where.direction, where.pipe,
                                    where.parser, 0, &count));
    ASSERT_EQ(count, expected.size());
    Words walked{0};
    bf_status_t status = pipe_mgr_pvs_entry_get_first(session, kDevice, kPortSet, where.direction,
                                                      where.pipe, where.parser, walked.data());
    if (status != BF_SUCCESS) walked.clear();
    while (status == BF_SUCCESS && walked.back() != kNone) {
      Words next(1 + random.below(4));
      status = pipe_mgr_pvs_entry_get_next(session, kDevice, kPortSet, where.direction, where.pipe,
                                           where.parser, walked.back(),
                                           static_cast<uint32_t>(next.size()), next.data());
      if (status == BF_SUCCESS) walked.insert(walked.end(), next.begin(), next.end());
    }
    std::erase(walked, kNone);
    ASSERT_EQ(walked, expected);
  }

  Random random{GetParam()};
  std::vector<Entry> entries;  // the oldest first
  uint32_t capacity = 0;
};

TEST_P(ValueSets, AgreeAfterRandomCalls) {
  for (int step = 0; step < 3000 && !HasFailure(); ++step) {
    SCOPED_TRACE(step);
    const uint32_t what = random.below(40);
    if (what < 12) {
      add();
    } else if (what < 22) {
      change();
    } else if (what == 22) {
      limit();
    } else {
      find();
      compare();
    }
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, ValueSets, testing::Range(1u, 4u));

TEST_F(SoftTest, ValueSetsRefuseWhatNamesNoParser) {
  uint32_t entry = kNowhere;
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 2, 0, 0, 1, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kPortSet, 0, 0, SOFT_ALL_PARSERS, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kTypeSet, 0, 0, 0, 1, &entry), BF_OBJECT_NOT_FOUND);
  for (const uint32_t from : {0u, 1u}) {  // never issued
    EXPECT_EQ(pipe_mgr_pvs_entry_get_next(session, kDevice, kPortSet, 0, 0, 0, from, 1, &entry),
              BF_OBJECT_NOT_FOUND);
  }
  EXPECT_EQ(entry, kNowhere);
}

}  // namespace
