// Counters through the contract: hardware and software copies, direct and indirect cells.
#include "profile_program.hpp"

namespace {

using namespace soft_test;

class Counters : public ProfileTest {
 protected:
  using Value = std::pair<uint64_t, uint64_t>;  // packets, bytes
  static constexpr Value kUnread{0xdead, 0xbeef};

  Value direct(uint32_t entry, bf_status_t expected = BF_SUCCESS) {
    pipe_mgr_counter_t value{kUnread.second, kUnread.first};
    EXPECT_EQ(pipe_mgr_mat_ent_direct_stat_query(session, kDevice, kAcl, entry, &value), expected);
    return {value.packets, value.bytes};
  }
  Value cell(uint32_t pipe, uint32_t index) {
    pipe_mgr_counter_t value{kUnread.second, kUnread.first};
    EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, pipe, kAclCount, index, &value),
              BF_SUCCESS);
    return {value.packets, value.bytes};
  }
  bf_status_t set_cell(uint32_t pipe, uint32_t index, uint64_t packets, uint64_t bytes) {
    const pipe_mgr_counter_t value{bytes, packets};
    return pipe_mgr_stat_ent_set(session, kDevice, pipe, kAclCount, index, &value);
  }
  bf_status_t sync_cell(uint32_t pipe, uint32_t index) {
    return pipe_mgr_stat_ent_database_sync(session, kDevice, pipe, kAclCount, index);
  }
  bf_status_t sync_direct(uint32_t entry) {
    return pipe_mgr_direct_stat_ent_database_sync(session, kDevice, 0, kAcl, entry);
  }
  uint32_t counted_acl(uint8_t type) {
    Action deny;
    deny.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH);
    return new_acl(type, deny);
  }
};

TEST_F(Counters, DirectCountsReachTheSoftwareCopyBySynchronisation) {
  const uint32_t entry = counted_acl(1), other = counted_acl(2);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 3, 300).entry, entry);
  hit(1, kAcl, {0x08, 0x01}, 1, 64);
  hit(1, kAcl, {0x08, 0x02}, 5, 500);
  EXPECT_EQ(direct(entry), Value(0, 0));
  ASSERT_EQ(sync_direct(entry), BF_SUCCESS);
  EXPECT_EQ(direct(entry), Value(4, 364)) << "of all pipes";
  EXPECT_EQ(direct(other), Value(0, 0));
  ASSERT_EQ(sync_direct(entry), BF_SUCCESS);
  EXPECT_EQ(direct(entry), Value(4, 364)) << "counted once";

  hit(0, kAcl, {0x08, 0x01}, 9, 900);
  const pipe_mgr_counter_t value{1000, 10};
  ASSERT_EQ(pipe_mgr_mat_ent_direct_stat_set(session, kDevice, kAcl, entry, &value), BF_SUCCESS);
  ASSERT_EQ(sync_direct(entry), BF_SUCCESS);
  EXPECT_EQ(direct(entry), Value(10, 1000)) << "setting clears the hardware";
}

struct Synced {
  pipe_session_handle_t session;
  uint32_t entry;
  pipe_mgr_counter_t seen;
  int calls;
};

void read_when_synced(bf_device_id_t device, void *cookie) {
  auto *synced = static_cast<Synced *>(cookie);
  ++synced->calls;
  EXPECT_EQ(pipe_mgr_mat_ent_direct_stat_query(synced->session, device, kAcl, synced->entry,
                                               &synced->seen),
            BF_SUCCESS);
}

TEST_F(Counters, WholeTableIsVisibleWhenTheCallbackRuns) {
  counted_acl(1);
  Synced synced{session, counted_acl(2), {}, 0};
  hit(0, kAcl, {0x08, 0x01}, 1, 100);
  hit(0, kAcl, {0x08, 0x02}, 2, 200);
  ASSERT_EQ(
      pipe_mgr_direct_stat_database_sync(session, kDevice, 0, kAcl, read_when_synced, &synced),
      BF_SUCCESS);
  EXPECT_EQ(synced.calls, 1);
  EXPECT_EQ(synced.seen.packets, 2u);
  EXPECT_EQ(
      pipe_mgr_direct_stat_database_sync(session, kDevice, 0, kHost, read_when_synced, &synced),
      BF_NOT_SUPPORTED);
  EXPECT_EQ(pipe_mgr_stat_database_sync(session, kDevice, 0, kHostCount, read_when_synced, &synced),
            BF_NOT_SUPPORTED);
  EXPECT_EQ(synced.calls, 1) << "no callback without a synchronisation";
  EXPECT_EQ(
      pipe_mgr_stat_database_sync(session, kDevice, BF_ALL_PIPES, kAclCount, nullptr, nullptr),
      BF_SUCCESS);
}

TEST_F(Counters, ACounterGoesWithItsEntry) {
  const uint32_t entry = counted_acl(1);
  const uint32_t plain = new_acl(2, Action());
  EXPECT_EQ(direct(plain, BF_OBJECT_NOT_FOUND), kUnread) << "none attached";
  hit(0, kAcl, {0x08, 0x01}, 3, 300);
  ASSERT_EQ(sync_direct(entry), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0), BF_SUCCESS);
  EXPECT_EQ(direct(entry, BF_OBJECT_NOT_FOUND), kUnread);
  EXPECT_EQ(sync_direct(entry), BF_OBJECT_NOT_FOUND);
  const uint32_t again = counted_acl(1);
  ASSERT_EQ(sync_direct(again), BF_SUCCESS);
  EXPECT_EQ(direct(again), Value(0, 0));
  pipe_mgr_counter_t value{};
  EXPECT_EQ(pipe_mgr_mat_ent_direct_stat_query(session, kDevice, kHost, entry, &value),
            BF_NOT_SUPPORTED);
}

TEST_F(Counters, IndirectCellsStandInEveryPipe) {
  ASSERT_EQ(set_cell(0, 7, 10, 1000), BF_SUCCESS);
  ASSERT_EQ(set_cell(1, 7, 1, 50), BF_SUCCESS);
  EXPECT_EQ(cell(0, 7), Value(10, 1000));
  EXPECT_EQ(cell(BF_ALL_PIPES, 7), Value(11, 1050));
  EXPECT_EQ(cell(0, 8), Value(0, 0));

  ASSERT_EQ(soft_counter_count(kDevice, 0, kAclCount, 7, 2, 200), BF_SUCCESS);
  ASSERT_EQ(soft_counter_count(kDevice, 1, kAclCount, 7, 3, 300), BF_SUCCESS);
  ASSERT_EQ(sync_cell(1, 7), BF_SUCCESS);
  EXPECT_EQ(cell(BF_ALL_PIPES, 7), Value(14, 1350)) << "pipe 0 is not synchronised yet";
  ASSERT_EQ(soft_counter_count(kDevice, 1, kAclCount, SOFT_COUNTER_CELLS - 1, 4, 400), BF_SUCCESS);
  ASSERT_EQ(
      pipe_mgr_stat_database_sync(session, kDevice, BF_ALL_PIPES, kAclCount, nullptr, nullptr),
      BF_SUCCESS);
  EXPECT_EQ(cell(0, 7), Value(12, 1200));
  EXPECT_EQ(cell(1, SOFT_COUNTER_CELLS - 1), Value(4, 400));

  ASSERT_EQ(soft_counter_count(kDevice, 1, kAclCount, 7, 9, 900), BF_SUCCESS);
  ASSERT_EQ(set_cell(BF_ALL_PIPES, 7, 5, 55), BF_SUCCESS);
  ASSERT_EQ(sync_cell(BF_ALL_PIPES, 7), BF_SUCCESS);
  EXPECT_EQ(cell(BF_ALL_PIPES, 7), Value(5, 55)) << "what is set for all pipes is their sum";
  EXPECT_EQ(cell(0, 7), Value(5, 55));
}

TEST_F(Counters, CellsHaveALimit) {
  pipe_mgr_counter_t value{};
  EXPECT_EQ(set_cell(0, SOFT_COUNTER_CELLS, 1, 1), BF_INVALID_ARGUMENT);
  EXPECT_EQ(sync_cell(0, SOFT_COUNTER_CELLS), BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 0, kAclCount, 0xffffffff, &value),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 0, kAclCount, 0, nullptr),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 2, kAclCount, 0, &value), BF_INVALID_PIPE);
  EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 0, kAclMeter, 0, &value), BF_INVALID_HANDLE);
  EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 0, kHostCount, 0, &value), BF_NOT_SUPPORTED)
      << "its cells are those of entries";
  uint64_t before = 0, after = 0;
  ASSERT_EQ(soft_memory_bytes(kDevice, kAclCount, &before), BF_SUCCESS);
  ASSERT_EQ(set_cell(0, SOFT_COUNTER_CELLS - 1, 1, 1), BF_SUCCESS);
  ASSERT_EQ(soft_memory_bytes(kDevice, kAclCount, &after), BF_SUCCESS);
  EXPECT_GT(after, before);
  EXPECT_LT(after - before, 1u << 20) << "cells in between take no memory";
}

TEST_F(Counters, TrafficCountsInAttachedCells) {
  Action deny;
  deny.resource(kAclCount, 12, PIPE_RESOURCE_ATTACH);
  deny.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH);
  const uint32_t entry = new_acl(1, deny);
  hit(1, kAcl, {0x08, 0x01}, 2, 128);
  uint32_t found = 0;
  const uint8_t key[] = {0x08, 0x01};
  ASSERT_EQ(soft_packet(kDevice, 0, kAcl, key, 2, 64, &found, nullptr), BF_SUCCESS);
  ASSERT_EQ(sync_direct(entry), BF_SUCCESS);
  ASSERT_EQ(sync_cell(BF_ALL_PIPES, 12), BF_SUCCESS);
  EXPECT_EQ(direct(entry), Value(3, 192));
  EXPECT_EQ(cell(1, 12), Value(2, 128));
  EXPECT_EQ(cell(0, 12), Value(1, 64));
  // A default entry counts what misses.
  uint32_t handle = 0;
  ASSERT_EQ(pipe_mgr_mat_default_entry_set(session, kDevice, BF_ALL_PIPES, kAcl, kDeny, &deny.spec,
                                           0, &handle),
            BF_SUCCESS);
  const soft_hit_t missed = hit(0, kAcl, {0x09, 0x01}, 7, 700);
  EXPECT_TRUE(missed.is_default);
  EXPECT_EQ(missed.entry, handle);
  EXPECT_EQ(missed.action, kDeny);
  ASSERT_EQ(sync_direct(handle), BF_SUCCESS);
  EXPECT_EQ(direct(handle), Value(7, 700));
}

}  // namespace
