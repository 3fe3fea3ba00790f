// Counters: which calls an access makes, the order of the two counts, and what failures leave.
#include <cstring>

#include "soft_traffic.h"
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

class Counters : public StatefulTest {
 protected:
  // An entry of a table whose entries are counted.
  p4_pd_entry_handle_t add_counted_entry() {
    const p4_pd_tessel_switch_l2DmacClassify_match_spec_t key = {5, 0x010203, 0xffffff, 0x040506,
                                                                 0xffffff};
    p4_pd_entry_handle_t entry = 0;
    EXPECT_EQ(p4_pd_tessel_switch_l2DmacClassify_table_add_with_setUcast(session, target, &key, 1,
                                                                         &entry),
              BF_SUCCESS);
    take();
    return entry;
  }
};

struct Row {
  const char *counter;
  bool direct;
  uint32_t handle;
};

const Row kRows[] = {
    {"kf1Count", true, 0x01000008},
    {"kf2Count", true, 0x01000009},
    {"kf3Count", true, 0x0100000a},
    {"l2DmacClassifyCount", true, 0x01000002},
    {"ingressPortDropCount", true, 0x0100003f},
    {"finalDropControlCount", true, 0x0100006a},
    {"trapToCpuCount", true, 0x0100006d},
    {"egressPortDropCount", true, 0x01000078},
    {"firewallPolicyCount", false, 0x04000005},
    {"pdpClassCount", false, 0x04000007},
    {"egressPortQueueCount", false, 0x04000008},
};

void noted(bf_device_id_t device, void *cookie) { *static_cast<bf_device_id_t *>(cookie) = device; }

// The calls themselves are stood in for, so that direct counters need no entry.
TEST_F(Counters, EachNamesItsHandleAndTakesThePipeWhereTheDeviceWantsIt) {
  target.pipe_id = 2;
  EXPECT_EQ(count_exports("counter_read"), std::size(kRows));
  EXPECT_EQ(count_exports("counter_write"), std::size(kRows));
  EXPECT_EQ(count_exports("counter_hw_sync"), std::size(kRows));
  for (const Row &row : kRows) {
    SCOPED_TRACE(row.counter);
    const char *sync =
        row.direct ? "pipe_mgr_direct_stat_ent_database_sync" : "pipe_mgr_stat_ent_database_sync";
    const char *query =
        row.direct ? "pipe_mgr_mat_ent_direct_stat_query" : "pipe_mgr_stat_ent_query";
    const char *object = row.direct ? "table" : "counter";
    const char *cell = row.direct ? "entry" : "index";
    const auto expect_piped = [&](const Call &call) {
      expect_scalars(call, {{"session", session},
                            {"device", kDevice},
                            {"pipe", 2},
                            {object, row.handle},
                            {cell, 77}});
    };
    const auto expect_access = [&](const Call &call) {
      if (!row.direct) return expect_piped(call);
      expect_scalars(
          call, {{"session", session}, {"device", kDevice}, {"table", row.handle}, {"entry", 77}});
    };

    p4_pd_counter_values_t values = {1, 2};
    soft::faults::fail_call(sync, 1, BF_SUCCESS);
    soft::faults::fail_call(query, 1, BF_SUCCESS);
    EXPECT_EQ(call_export("counter_read", row.counter,
                          {session, word(&target), 77, 0xffffffff, word(&values)}),
              uint64_t{BF_SUCCESS});
    std::vector<Call> calls = take();
    ASSERT_EQ(names(calls), (std::vector<std::string>{sync, query}));
    expect_piped(calls[0]);
    expect_access(calls[1]);

    soft::faults::fail_call(query, 1, BF_SUCCESS);
    EXPECT_EQ(call_export("counter_read", row.counter,
                          {session, word(&target), 77, 0xfffffffe, word(&values)}),
              uint64_t{BF_SUCCESS});
    EXPECT_EQ(take_one().function, query) << "bits other than bit 0 mean nothing";

    call_export("counter_write", row.counter, {session, word(&target), 77, word(&values)});
    const Call set = take_one();
    EXPECT_EQ(set.function,
              row.direct ? "pipe_mgr_mat_ent_direct_stat_set" : "pipe_mgr_stat_ent_set");
    expect_access(set);

    bf_device_id_t seen = 99;
    EXPECT_EQ(
        call_export("counter_hw_sync", row.counter,
                    {session, word(&target), reinterpret_cast<uintptr_t>(noted), word(&seen)}),
        uint64_t{BF_SUCCESS});
    const Call synced = take_one();
    EXPECT_EQ(synced.function,
              row.direct ? "pipe_mgr_direct_stat_database_sync" : "pipe_mgr_stat_database_sync");
    expect_scalars(synced,
                   {{"session", session}, {"device", kDevice}, {"pipe", 2}, {object, row.handle}});
    EXPECT_EQ(seen, kDevice) << "callback and cookie arrive unchanged";
  }
}

// The first count of the caller's record is the second one of the device's, and the other way
// round, in the memory of either.
TEST_F(Counters, ExchangeTheTwoCounts) {
  const uint64_t given[2] = {0x1111222233334444, 0x5555666677778888};
  p4_pd_counter_values_t values;
  std::memcpy(&values, given, sizeof values);
  const p4_pd_entry_handle_t entry = add_counted_entry();
  const auto expect_exchanged = [&](const Call &call, const char *name) {
    uint64_t seen[2];
    std::memcpy(seen, &call.get<pipe_mgr_counter_t>(name), sizeof seen);
    EXPECT_EQ(seen[0], given[1]);
    EXPECT_EQ(seen[1], given[0]);
  };
  const auto expect_read = [&](const p4_pd_counter_values_t &read) {
    EXPECT_EQ(std::memcmp(&read, given, sizeof read), 0);
  };

  ASSERT_EQ(p4_pd_tessel_switch_counter_write_l2DmacClassifyCount(session, target, entry, values),
            BF_SUCCESS);
  expect_exchanged(take_one(), "counter");
  p4_pd_counter_values_t read = {};
  ASSERT_EQ(p4_pd_tessel_switch_counter_read_l2DmacClassifyCount(session, target, entry, 0, &read),
            BF_SUCCESS);
  expect_read(read);

  take();
  target.pipe_id = 1;
  ASSERT_EQ(p4_pd_tessel_switch_counter_write_pdpClassCount(session, target, 9, values),
            BF_SUCCESS);
  expect_exchanged(take_one(), "value");
  read = {};
  ASSERT_EQ(p4_pd_tessel_switch_counter_read_pdpClassCount(session, target, 9, 0, &read),
            BF_SUCCESS);
  expect_read(read);
}

TEST_F(Counters, ReadWhatTheDeviceCountedOnceItIsAsked) {
  target.pipe_id = 1;
  ASSERT_EQ(soft_counter_count(kDevice, 1, 0x04000005, 5, 3, 192), BF_SUCCESS);
  p4_pd_counter_values_t read = {9, 9};
  const auto read_cell = [&](uint32_t flags) {
    return p4_pd_tessel_switch_counter_read_firewallPolicyCount(session, target, 5, flags, &read);
  };
  ASSERT_EQ(read_cell(0), BF_SUCCESS);
  EXPECT_EQ(read.packets, 0u);
  ASSERT_EQ(read_cell(P4_PD_READ_FROM_HARDWARE), BF_SUCCESS);
  EXPECT_EQ(read.packets, 3u);
  EXPECT_EQ(read.bytes, 192u);
}

TEST_F(Counters, LeaveTheRecordAloneOnFailure) {
  const p4_pd_entry_handle_t entry = add_counted_entry();
  p4_pd_counter_values_t values = {41, 42};
  const auto read_both = [&](uint32_t flags, uint32_t status) {
    EXPECT_EQ(p4_pd_tessel_switch_counter_read_l2DmacClassifyCount(session, target, entry, flags,
                                                                   &values),
              status);
    const size_t direct_calls = take().size();
    EXPECT_EQ(p4_pd_tessel_switch_counter_read_pdpClassCount(session, target, 1, flags, &values),
              status);
    EXPECT_EQ(take().size(), direct_calls);
    EXPECT_EQ(values.packets, 41u);
    EXPECT_EQ(values.bytes, 42u);
    return direct_calls;
  };
  soft::faults::fail_call("pipe_mgr_mat_ent_direct_stat_query", 1, BF_HARDWARE_FAULT);
  soft::faults::fail_call("pipe_mgr_stat_ent_query", 1, BF_HARDWARE_FAULT);
  EXPECT_EQ(read_both(0, BF_HARDWARE_FAULT), 1u);
  soft::faults::fail_call("pipe_mgr_direct_stat_ent_database_sync", 1, BF_NOT_READY);
  soft::faults::fail_call("pipe_mgr_stat_ent_database_sync", 1, BF_NOT_READY);
  EXPECT_EQ(read_both(1, BF_NOT_READY), 1u) << "no query behind a failed synchronisation";

  EXPECT_EQ(
      p4_pd_tessel_switch_counter_read_l2DmacClassifyCount(session, target, entry, 1, nullptr),
      uint32_t{P4_PD_NULL_ARGUMENT});
  EXPECT_EQ(p4_pd_tessel_switch_counter_read_pdpClassCount(session, target, 1, 1, nullptr),
            uint32_t{P4_PD_NULL_ARGUMENT});
  EXPECT_TRUE(take().empty());
}

}  // namespace
