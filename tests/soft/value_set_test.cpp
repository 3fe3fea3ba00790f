// Parser value sets: which entries parsers have in common, and what there is room for.
#include "program.hpp"

namespace {

using namespace soft_test;

constexpr uint8_t kAnyParser = SOFT_ALL_PARSERS;

struct Where {
  uint32_t direction;
  uint16_t pipe;
  uint8_t parser;
};
#define AT(where) session, kDevice, kPortSet, (where).direction, (where).pipe, (where).parser

class ValueSets : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    for (const auto &[where, value, mask] : kEntries) OK(add(where, value, mask));
  }
  bf_status_t add(const Where &where, uint32_t value, uint32_t mask) {
    return pipe_mgr_pvs_entry_add(AT(where), value, mask, &last);
  }
  bf_status_t modify(uint32_t entry, uint32_t value, uint32_t mask) {
    return pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, entry, value, mask);
  }
  uint32_t find(const Where &where, uint32_t value, uint32_t mask) {
    uint32_t entry = 0;
    const bf_status_t status = pipe_mgr_pvs_entry_handle_get(AT(where), value, mask, &entry);
    EXPECT_EQ(status, entry == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return entry;
  }
  uint32_t hit(const Where &where, uint32_t value) {
    uint32_t entry = 0;
    const bf_status_t status = soft_value_set_match(kDevice, kPortSet, where.direction, where.pipe,
                                                    where.parser, value, &entry);
    EXPECT_EQ(status, entry == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return entry;
  }
  // Every entry of the parsers, so many a step.
  Words walk(const Where &where, size_t step) {
    Words walked(1), next(step);
    bf_status_t status = pipe_mgr_pvs_entry_get_first(AT(where), walked.data());
    if (status != BF_SUCCESS) return {};
    while (status == BF_SUCCESS && walked.back() != kNone) {
      status = pipe_mgr_pvs_entry_get_next(AT(where), walked.back(), static_cast<uint32_t>(step),
                                           next.data());
      if (status == BF_SUCCESS) walked.insert(walked.end(), next.begin(), next.end());
    }
    std::erase(walked, kNone);
    return walked;
  }

  struct Entry {
    Where where;
    uint32_t value, mask;
  };
  // They have the handles 1 to 7.
  static constexpr Entry kEntries[] = {
      {{0, 0, 0}, 0x101, 0xffff},         {{0, 0, 0}, 0x1ff, 0xff00},
      {{0, 0, 1}, 0x101, 0xffff},         {{0, 1, 0}, 0x101, 0xffff},
      {{1, 0, 0}, 0x101, 0xffff},         {{0, BF_ALL_PIPES, 2}, 0x101, 0xffff},
      {{1, 1, kAnyParser}, 0x101, 0xffff}};
  uint32_t last = 0;
};

TEST_F(ValueSets, BelongToTheParsersThatEntriesName) {
  const struct {
    Where where;
    Words entries;
  } rows[] = {
      {{0, 0, 0}, {1, 2}},       {{0, 0, 1}, {3}},
      {{0, 1, 2}, {6}},          {{0, kAll, kAnyParser}, {1, 2, 3, 4, 6}},
      {{0, kAll, 0}, {1, 2, 4}}, {{1, 1, 3}, {7}},
      {{1, 0, kAnyParser}, {5}}, {{1, 0, 3}, {}},
  };
  for (const auto &[where, entries] : rows) {
    uint32_t count = kNowhere;
    OK(pipe_mgr_pvs_entry_get_count(AT(where), 0, &count));
    EXPECT_EQ(count, entries.size());
    for (const size_t step : {1, 2, 9}) EXPECT_EQ(walk(where, step), entries) << step;
  }
  soft_parsers_t parsers{};
  OK(soft_value_set_parsers(kDevice, kPortSet, 6, &parsers));
  EXPECT_EQ((Words{parsers.direction, parsers.pipe, parsers.parser}), (Words{0, kAll, 2}));
}

TEST_F(ValueSets, HaveEachValueOfAMaskOnce) {
  for (const Entry &held : kEntries) {
    EXPECT_EQ(add(held.where, held.value ^ (0xffff & ~held.mask), held.mask), BF_ALREADY_EXISTS);
  }
  for (const Where &where : {Where{0, 1, 2}, {0, 1, kAnyParser}, {1, kAll, kAnyParser}}) {
    EXPECT_EQ(add(where, 0x101, 0xffff), BF_ALREADY_EXISTS);
  }
  EXPECT_EQ(find({0, 0, 0}, 0x101, 0xffff), 1u);
  EXPECT_EQ(find({0, 0, 0}, 0x1aa, 0xff00), 2u);
  EXPECT_EQ(find({0, 1, kAnyParser}, 0x101, 0xffff), 4u) << "the oldest";
  EXPECT_EQ(find({0, 0, 0}, 0x101, 0xfff0), 0u);
  EXPECT_EQ(hit({0, 0, 0}, 0x101), 1u);
  EXPECT_EQ(hit({0, 0, 0}, 0x1aa), 2u);
  EXPECT_EQ(hit({1, 1, 9}, 0x101), 7u);
  EXPECT_EQ(hit({0, 0, 0}, 0x201), 0u);

  EXPECT_EQ(modify(2, 0x101, 0xffff), BF_ALREADY_EXISTS);
  EXPECT_EQ(modify(9, 0x333, 0xffff), BF_OBJECT_NOT_FOUND);
  OK(modify(2, 0x177, 0xff00)) << "its own value is no other's";
  uint32_t read[2] = {};
  OK(pipe_mgr_pvs_entry_get(session, kDevice, kPortSet, 2, read, read + 1));
  EXPECT_EQ(read[0], 0x177u) << "as given, bits outside the mask included";
  EXPECT_EQ(read[1], 0xff00u);
  OK(pipe_mgr_pvs_entry_delete(session, kDevice, kPortSet, 1));
  EXPECT_EQ(pipe_mgr_pvs_entry_delete(session, kDevice, kPortSet, 1), BF_OBJECT_NOT_FOUND);
  OK(add({0, 0, 0}, 0x101, 0xffff));
  EXPECT_EQ(last, 8u) << "a handle is never used again";
}

TEST_F(ValueSets, AreFullWhereOneParserIs) {
  uint32_t capacity = kNowhere;
  OK(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, 2, 0, 0));
  OK(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, &capacity, 0, 0));
  EXPECT_EQ(capacity, 2u);
  EXPECT_EQ(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, 2, 0, 0, 0), BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, 0, &capacity, 0, 0),
            BF_INVALID_ARGUMENT);
  for (const Where &full :
       {Where{0, 0, 0}, {0, kAll, 0}, {0, 0, kAnyParser}, {0, kAll, kAnyParser}}) {
    EXPECT_EQ(add(full, 0x500, 0xffff), BF_TABLE_FULL);
  }
  OK(add({0, kAll, 1}, 0x500, 0xffff));
  EXPECT_EQ(add({0, kAll, 1}, 0x600, 0xffff), BF_TABLE_FULL) << "in pipe 0";
  OK(add({0, 1, kAnyParser}, 0x700, 0xffff)) << "three entries, but two of each parser";
  OK(add({1, kAll, kAnyParser}, 0x500, 0xffff));
  OK(add({0, 0, 3}, 0x500, 0xffff));
  OK(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, 0, 0, 0));
  OK(add({0, 0, 0}, 0x500, 0xffff)) << "without a limit";
}

TEST_F(ValueSets, RefuseWhatNamesNoParser) {
  uint32_t entry = kNowhere;
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 2, 0, 0, 1, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kPortSet, 0, 0, SOFT_ALL_PARSERS, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kTypeSet, 0, 0, 0, 1, &entry), BF_OBJECT_NOT_FOUND);
  for (const uint32_t from : {0u, 8u}) {  // never issued
    EXPECT_EQ(pipe_mgr_pvs_entry_get_next(session, kDevice, kPortSet, 0, 0, 0, from, 1, &entry),
              BF_OBJECT_NOT_FOUND);
  }
  EXPECT_EQ(entry, kNowhere);
}

}  // namespace
