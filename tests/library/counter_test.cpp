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
  const Call written = take_one();
  expect_exchanged(written, "counter");
  EXPECT_EQ(written.scalar("table"), 0x01000002u);
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
  ASSERT_EQ(read_cell(~P4_PD_READ_FROM_HARDWARE), BF_SUCCESS);
  EXPECT_EQ(read.packets, 0u) << "other flags mean nothing";
  ASSERT_EQ(read_cell(P4_PD_READ_FROM_HARDWARE), BF_SUCCESS);
  EXPECT_EQ(read.packets, 3u);
  EXPECT_EQ(read.bytes, 192u);
}

}  // namespace
