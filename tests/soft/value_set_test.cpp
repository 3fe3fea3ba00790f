// Parser value sets: where entries are, which ones exclude each other, capacity and enumeration.
#include "small_program.hpp"

namespace {

using namespace soft_test;

constexpr uint16_t kAllPipes = BF_ALL_PIPES;
constexpr uint8_t kAllParsers = SOFT_ALL_PARSERS;

class ValueSets : public SmallTest {
 protected:
  // An ingress parser or several; the handle is written on success.
  struct Where {
    uint16_t pipe;
    uint8_t parser;
  };
  bf_status_t add(Where where, uint32_t value, uint32_t mask, uint32_t *entry) {
    return pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 0, where.pipe, where.parser, value,
                                  mask, entry);
  }
  uint32_t added(Where where, uint32_t value, uint32_t mask) {
    uint32_t entry = 0;
    EXPECT_EQ(add(where, value, mask, &entry), BF_SUCCESS);
    return entry;
  }
  bf_status_t erase(uint32_t entry) {
    return pipe_mgr_pvs_entry_delete(session, kDevice, kPortSet, entry);
  }
  uint32_t count(Where where) {
    uint32_t entries = kNowhere;
    EXPECT_EQ(pipe_mgr_pvs_entry_get_count(session, kDevice, kPortSet, 0, where.pipe, where.parser,
                                           1, &entries),
              BF_SUCCESS);
    return entries;
  }
  // The entry that a value matches in a parser, 0 for none.
  uint32_t match(Where where, uint32_t value) {
    uint32_t entry = 0;
    const bf_status_t status =
        soft_value_set_match(kDevice, kPortSet, 0, where.pipe, where.parser, value, &entry);
    EXPECT_EQ(status, entry == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return entry;
  }
  bf_status_t find(Where where, uint32_t value, uint32_t mask, uint32_t *entry) {
    return pipe_mgr_pvs_entry_handle_get(session, kDevice, kPortSet, 0, where.pipe, where.parser,
                                         value, mask, entry);
  }
  bf_status_t capacity(uint32_t value) {
    return pipe_mgr_pvs_set_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, value, 0, 0);
  }
};

TEST_F(ValueSets, AParserMatchesTheEntriesThatItHas) {
  const uint32_t here = added({0, 3}, 0x1200, 0xff00);
  const uint32_t all_of_pipe = added({0, kAllParsers}, 0x3400, 0xff00);
  const uint32_t everywhere = added({kAllPipes, kAllParsers}, 0x5600, 0xff00);
  const uint32_t narrow = added({0, 3}, 0x1234, 0xffff);
  EXPECT_EQ(match({0, 3}, 0x1299), here);
  EXPECT_EQ(match({0, 3}, 0x1234), here) << "the oldest of two";
  EXPECT_EQ(match({0, 4}, 0x1299), 0u);
  EXPECT_EQ(match({0, 4}, 0x3499), all_of_pipe);
  EXPECT_EQ(match({1, 3}, 0x3499), 0u);
  EXPECT_EQ(match({1, 3}, 0x5601), everywhere);
  EXPECT_EQ(erase(here), BF_SUCCESS);
  EXPECT_EQ(match({0, 3}, 0x1234), narrow);

  uint32_t egress = 0;
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 1, 0, 3, 0x1200, 0xff00, &egress),
            BF_SUCCESS);
  EXPECT_EQ(match({0, 3}, 0x1201), 0u);
  EXPECT_EQ(soft_value_set_match(kDevice, kTypeSet, 0, 1, 3, 0x5601, &egress), BF_OBJECT_NOT_FOUND)
      << "another set";
}

TEST_F(ValueSets, EntriesThatAParserCannotTellApartExcludeEachOther) {
  const uint32_t first = added({0, 3}, 0x12ff, 0xff00);
  uint32_t entry = kNowhere;
  EXPECT_EQ(add({0, 3}, 0x1200, 0xff00, &entry), BF_ALREADY_EXISTS);
  EXPECT_EQ(add({0, kAllParsers}, 0x1200, 0xff00, &entry), BF_ALREADY_EXISTS);
  EXPECT_EQ(add({kAllPipes, 3}, 0x1200, 0xff00, &entry), BF_ALREADY_EXISTS);
  EXPECT_EQ(entry, kNowhere);
  const uint32_t elsewhere = added({1, kAllParsers}, 0x1200, 0xff00);
  const uint32_t wider = added({0, 3}, 0x1200, 0xf000);

  EXPECT_EQ(pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, wider, 0x1234, 0xff00),
            BF_ALREADY_EXISTS);
  EXPECT_EQ(pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, first, 0x1201, 0xff00),
            BF_SUCCESS)
      << "an entry does not exclude itself";
  EXPECT_EQ(pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, wider, 0x9900, 0xff00),
            BF_SUCCESS);
  uint32_t value = 0, mask = 0;
  EXPECT_EQ(pipe_mgr_pvs_entry_get(session, kDevice, kPortSet, first, &value, &mask), BF_SUCCESS);
  EXPECT_EQ(value, 0x1201u) << "as given, bits outside the mask included";
  EXPECT_EQ(mask, 0xff00u);

  EXPECT_EQ(find({0, 3}, 0x12aa, 0xff00, &entry), BF_SUCCESS);
  EXPECT_EQ(entry, first);
  EXPECT_EQ(find({1, 9}, 0x1200, 0xff00, &entry), BF_SUCCESS);
  EXPECT_EQ(entry, elsewhere);
  EXPECT_EQ(find({kAllPipes, kAllParsers}, 0x1200, 0xff00, &entry), BF_SUCCESS);
  EXPECT_EQ(entry, first);
  EXPECT_EQ(find({0, 3}, 0x1200, 0xfff0, &entry), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(find({0, 4}, 0x1200, 0xff00, &entry), BF_OBJECT_NOT_FOUND);
}

TEST_F(ValueSets, CapacityHoldsForEveryParserOfAnEntry) {
  EXPECT_EQ(capacity(2), BF_SUCCESS);
  uint32_t value = 0;
  EXPECT_EQ(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, PIPE_PVS_CAPACITY, &value, 0, 0),
            BF_SUCCESS);
  EXPECT_EQ(value, 2u);
  added({0, 1}, 1, 0xff);
  added({0, 2}, 2, 0xff);
  added({1, 2}, 3, 0xff);
  // Three entries, but no parser has two.
  const uint32_t wide = added({kAllPipes, 2}, 4, 0xff);
  uint32_t entry = kNowhere;
  EXPECT_EQ(add({0, 2}, 5, 0xff, &entry), BF_TABLE_FULL);
  EXPECT_EQ(add({kAllPipes, kAllParsers}, 5, 0xff, &entry), BF_TABLE_FULL);
  EXPECT_EQ(add({1, kAllParsers}, 5, 0xff, &entry), BF_TABLE_FULL);
  EXPECT_EQ(entry, kNowhere);
  added({0, 1}, 5, 0xff);
  EXPECT_EQ(erase(wide), BF_SUCCESS);
  added({1, kAllParsers}, 5, 0xff);
  EXPECT_EQ(add({1, 2}, 6, 0xff, &entry), BF_TABLE_FULL);
  added({1, 7}, 6, 0xff);
  EXPECT_EQ(capacity(1), BF_SUCCESS);
  EXPECT_EQ(count({1, 7}), 2u) << "a smaller capacity keeps what is there";
  EXPECT_EQ(capacity(0), BF_SUCCESS);
  added({1, 7}, 7, 0xff);

  EXPECT_EQ(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, 2, 1, 0, 0), BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, 0, &value, 0, 0),
            BF_INVALID_ARGUMENT);
}

TEST_F(ValueSets, EnumerationGoesFromOldToNewThroughTheNamedParsers) {
  uint32_t entry = kNowhere;
  const auto first = [&](Where where) {
    return pipe_mgr_pvs_entry_get_first(session, kDevice, kPortSet, 0, where.pipe, where.parser,
                                        &entry);
  };
  EXPECT_EQ(first({kAllPipes, kAllParsers}), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(entry, kNowhere);
  std::vector<uint32_t> all;
  for (uint32_t value = 0; value < 4; ++value) {
    all.push_back(added({static_cast<uint16_t>(value % 2), 5}, value, 0xffffffff));
  }
  all.push_back(added({kAllPipes, kAllParsers}, 9, 0xffffffff));
  EXPECT_EQ(count({kAllPipes, kAllParsers}), 5u);
  EXPECT_EQ(count({0, 5}), 3u);
  EXPECT_EQ(count({0, 6}), 1u);
  EXPECT_EQ(count({kAllPipes, 6}), 1u);

  const auto next = [&](uint32_t from, uint32_t slots) {
    std::vector<uint32_t> entries(slots, kNowhere);
    const bf_status_t status = pipe_mgr_pvs_entry_get_next(session, kDevice, kPortSet, 0, 1, 5,
                                                           from, slots, entries.data());
    EXPECT_EQ(status,
              !entries.empty() && entries[0] == kNowhere ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return entries;
  };
  EXPECT_EQ(first({1, 5}), BF_SUCCESS);
  EXPECT_EQ(entry, all[1]);
  EXPECT_EQ(next(all[1], 1), (std::vector<uint32_t>{all[3]}));
  EXPECT_EQ(next(all[1], 4), (std::vector<uint32_t>{all[3], all[4], 0xffffffff, 0xffffffff}));
  EXPECT_EQ(next(all[4], 1), (std::vector<uint32_t>{kNowhere}));
  EXPECT_EQ(next(all[4], 0), (std::vector<uint32_t>{}));
  EXPECT_EQ(erase(all[1]), BF_SUCCESS);
  EXPECT_EQ(next(all[1], 2), (std::vector<uint32_t>{all[3], all[4]})) << "from an erased one";
  EXPECT_EQ(next(all[4] + 1, 1), (std::vector<uint32_t>{kNowhere})) << "never issued";
  EXPECT_EQ(next(0, 1), (std::vector<uint32_t>{kNowhere}));
}

TEST_F(ValueSets, RefusedCallsWriteNothing) {
  uint32_t entry = kNowhere, mask = kNowhere;
  EXPECT_EQ(add({2, 0}, 1, 1, &entry), BF_INVALID_PIPE);
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 2, 0, 0, 1, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kWordRegister, 0, 0, 0, 1, 1, &entry),
            BF_INVALID_HANDLE);
  EXPECT_EQ(soft_value_set_match(kDevice, kPortSet, 0, 0, kAllParsers, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kPortSet, 0, BF_ALL_PIPES, 0, 1, &entry),
            BF_INVALID_PIPE);
  EXPECT_EQ(erase(1), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_pvs_entry_get(session, kDevice, kPortSet, 1, &entry, &mask),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_pvs_entry_modify(session, kDevice, kPortSet, 1, 0, 0), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(entry, kNowhere);
  EXPECT_EQ(mask, kNowhere);
}

}  // namespace
