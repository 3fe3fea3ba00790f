// Default entries.
#include "entries_program.hpp"

namespace {

using namespace soft_test;
using DefaultEntries = EntriesTest;
using Bytes = std::vector<uint8_t>;

TEST_F(DefaultEntries, StartAsTheProgramDeclares) {
  Action data(99, Bytes(28, 0xcc));
  uint32_t action = 0, entry = 0;
  const auto read = [&](uint32_t table) {
    data.spec.data.byte_count = 28;
    return pipe_mgr_table_get_default_entry(session, kDevice, 0, table, &data.spec, &action, false);
  };
  ASSERT_EQ(read(kEncap), BF_SUCCESS);
  EXPECT_EQ(action, kWrap);
  EXPECT_EQ(data.spec.type, uint32_t{PIPE_ACTION_DATA});
  EXPECT_EQ(data.spec.data.byte_count, 3);
  EXPECT_EQ(data.spec.data.valid_bit_count, 20);
  EXPECT_EQ(Bytes(data.bytes.begin(), data.bytes.begin() + 4), (Bytes{0, 0, 0, 0xcc}));
  EXPECT_EQ(data.spec.resource_count, 0u);
  ASSERT_EQ(read(kHost), BF_SUCCESS);
  EXPECT_EQ(action, kDrop);
  for (uint32_t none : {kAcl, kRoute, kLag}) {
    EXPECT_EQ(read(none), BF_OBJECT_NOT_FOUND) << none;
    EXPECT_EQ(pipe_mgr_table_get_default_entry_handle(session, kDevice, 0, none, &entry),
              BF_OBJECT_NOT_FOUND);
  }
  EXPECT_EQ(count(kHost), 0u) << "default entries do not count";
}

TEST_F(DefaultEntries, AreSetReadByHandleAndReset) {
  Action permit(35, {0, 0, 0, 0, 7});
  permit.resource(kAclCount, 9, PIPE_RESOURCE_ATTACH);
  permit.resource(kAclMeter, 0, PIPE_RESOURCE_DETACH);
  uint32_t entry = 0;
  ASSERT_EQ(
      pipe_mgr_mat_default_entry_set(session, kDevice, 0, kAcl, kPermit, &permit.spec, 0, &entry),
      BF_SUCCESS);
  uint32_t same = 0;
  ASSERT_EQ(pipe_mgr_table_get_default_entry_handle(session, kDevice, 1, kAcl, &same), BF_SUCCESS);
  EXPECT_EQ(same, entry) << "in scope 0 all pipes have one";

  Key room(16, {1, 1}, {1, 1}, 5);
  Action data(0, Bytes(28));
  uint32_t action = 0;
  ASSERT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry, &room.spec, &data.spec, &action, false),
      BF_SUCCESS);
  EXPECT_EQ(room.spec.value, nullptr);
  EXPECT_EQ(room.spec.mask, nullptr);
  EXPECT_EQ(room.spec.priority, 0u);
  EXPECT_EQ(room.value, (Bytes{1, 1})) << "no key, nothing written";
  EXPECT_EQ(action, kPermit);
  EXPECT_EQ(data.bytes[4], 7);
  ASSERT_EQ(data.spec.resource_count, 1u);
  EXPECT_EQ(data.spec.resources[0].index, 9u);

  Action bare;
  bare.spec.data.bytes = nullptr;
  ASSERT_EQ(pipe_mgr_table_get_default_entry(session, kDevice, 0, kAcl, &bare.spec, &action, true),
            BF_SUCCESS)
      << "a caller without room for data";
  EXPECT_EQ(bare.spec.data.byte_count, 5);

  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0), BF_NOT_SUPPORTED);
  ASSERT_EQ(pipe_mgr_mat_tbl_default_entry_reset(session, kDevice, 0, kAcl, 0), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_table_get_default_entry_handle(session, kDevice, 0, kAcl, &same),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(
      pipe_mgr_get_entry(session, kAcl, kDevice, entry, &room.spec, &data.spec, &action, false),
      BF_OBJECT_NOT_FOUND);
}

TEST_F(DefaultEntries, TakeOnlyActionsOfTheTableThatMayBeDefault) {
  const Action forward(9, {0x00, 0x01}), deny, wrap(20, {0x01, 0x23, 0x45});
  uint32_t entry = 0xabcd;
  const auto set = [&](uint32_t table, uint32_t action, const Action &spec) {
    return pipe_mgr_mat_default_entry_set(session, kDevice, 0, table, action, &spec.spec, 0,
                                          &entry);
  };
  EXPECT_EQ(set(kHost, kForward, forward), BF_INVALID_ARGUMENT);
  EXPECT_EQ(set(kHost, kDeny, deny), BF_FOREIGN_ACTION);
  EXPECT_EQ(set(kEncap, kWrap, deny), BF_WRONG_LENGTH);
  EXPECT_EQ(entry, 0xabcdu);
  ASSERT_EQ(set(kEncap, kWrap, wrap), BF_SUCCESS);
  Action data(0, Bytes(28));
  uint32_t action = 0;
  pipe_mgr_match_spec_t keyless{};
  ASSERT_EQ(
      pipe_mgr_get_entry(session, kEncap, kDevice, entry, &keyless, &data.spec, &action, false),
      BF_SUCCESS);
  EXPECT_EQ(Bytes(data.bytes.begin(), data.bytes.begin() + 3), (Bytes{0x01, 0x23, 0x45}));
}

TEST_F(DefaultEntries, KeepARegisterThroughAChangeByHandle) {
  Action wrap(20, {0, 0, 1});
  wrap.resource(kEncapData, 0, PIPE_RESOURCE_ATTACH);
  uint32_t entry = 0;
  ASSERT_EQ(
      pipe_mgr_mat_default_entry_set(session, kDevice, 0, kEncap, kWrap, &wrap.spec, 0, &entry),
      BF_SUCCESS);
  const Action changed(20, {0, 0, 2});
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kEncap, entry, kWrap, &changed.spec, 0),
            BF_SUCCESS);
  Action data(0, Bytes(28));
  uint32_t action = 0;
  ASSERT_EQ(
      pipe_mgr_table_get_default_entry(session, kDevice, 0, kEncap, &data.spec, &action, false),
      BF_SUCCESS);
  EXPECT_EQ(data.bytes[2], 2);
  ASSERT_EQ(data.spec.resource_count, 1u);
  EXPECT_EQ(data.spec.resources[0].handle, kEncapData);
}

TEST_F(DefaultEntries, OfAPipeStandBeforeThatOfAllPipes) {
  ASSERT_EQ(pipe_mgr_tbl_set_property(session, kDevice, kEncap, PIPE_TABLE_ENTRY_SCOPE, 1, 0),
            BF_SUCCESS);
  const Action wrap(20, {0, 0, 9});
  uint32_t all = 0, own = 0, seen = 0;
  ASSERT_EQ(pipe_mgr_table_get_default_entry_handle(session, kDevice, 1, kEncap, &all), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_default_entry_set(session, kDevice, 1, kEncap, kWrap, &wrap.spec, 0, &own),
            BF_SUCCESS);
  EXPECT_NE(own, all);
  ASSERT_EQ(soft_lookup(kDevice, 1, kEncap, nullptr, 0, &seen, nullptr), BF_SUCCESS);
  EXPECT_EQ(seen, own);
  ASSERT_EQ(soft_lookup(kDevice, 0, kEncap, nullptr, 0, &seen, nullptr), BF_SUCCESS);
  EXPECT_EQ(seen, all);
}

}  // namespace
