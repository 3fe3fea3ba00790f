// Meters, counters and WRED profiles where the numbers are worked out by hand.
#include "program.hpp"

namespace {

using namespace soft_test;

class Meters : public SoftTest {
 protected:
  bf_status_t set(uint32_t meter, uint32_t index, const pipe_mgr_meter_spec_t &spec) const {
    return pipe_mgr_meter_ent_set(session, kDevice, 0, meter, index, &spec, 0);
  }
  static int mark(uint32_t meter, uint64_t packets, uint64_t bytes, uint32_t pipe = 0) {
    uint8_t color = 99;
    OK(soft_meter_mark(kDevice, pipe, meter, 7, packets, bytes, &color));
    return color;
  }
};

// 8 kbit/s is 8 bits a millisecond; a burst of 1 kbit is 125 bytes.
TEST_F(Meters, BytesMeterMarksByItsBuckets) {
  EXPECT_EQ(mark(kPoliceMeter, 1, 1u << 30), SOFT_COLOR_GREEN) << "never set";
  OK(set(kPoliceMeter, 7, meter_spec(PIPE_RATE_BYTES, 8, 1, 16, 2)));
  EXPECT_EQ(mark(kPoliceMeter, 1, 100), SOFT_COLOR_GREEN) << "leaves 200 and 1200 bits";
  EXPECT_EQ(mark(kPoliceMeter, 1, 100), SOFT_COLOR_YELLOW) << "leaves 200 and 400";
  EXPECT_EQ(mark(kPoliceMeter, 1, 100), SOFT_COLOR_RED) << "costs nothing";
  EXPECT_EQ(mark(kPoliceMeter, 1, 25), SOFT_COLOR_GREEN) << "leaves 0 and 200";
  EXPECT_EQ(mark(kPoliceMeter, 1, 100, 1), SOFT_COLOR_GREEN) << "not set in the other pipe";
  soft_clock_advance(50);
  EXPECT_EQ(mark(kPoliceMeter, 1, 100), SOFT_COLOR_YELLOW) << "400 and 1000; leaves 400 and 200";
  EXPECT_EQ(mark(kPoliceMeter, 1, 26), SOFT_COLOR_RED) << "208 of 200";
  soft_clock_advance(1000000);
  EXPECT_EQ(mark(kPoliceMeter, 2, 126), SOFT_COLOR_YELLOW) << "1008 of 1000 bits, the burst";
  EXPECT_EQ(mark(kPoliceMeter, 1, 124), SOFT_COLOR_GREEN) << "992 of 992";
  EXPECT_EQ(mark(kPoliceMeter, 1, 1), SOFT_COLOR_RED);
  OK(set(kPoliceMeter, 7, meter_spec(PIPE_RATE_BYTES, 8, 1, 16, 2)));
  EXPECT_EQ(mark(kPoliceMeter, 1, 125), SOFT_COLOR_GREEN) << "setting fills the buckets";
}

TEST_F(Meters, PacketsMeterCountsPackets) {
  OK(set(kFlowMeter, 7, meter_spec(PIPE_RATE_PACKETS, 10, 2, 100, 4)));
  EXPECT_EQ(mark(kFlowMeter, 2, 100000), SOFT_COLOR_GREEN);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW);
  EXPECT_EQ(mark(kFlowMeter, 2, 1), SOFT_COLOR_RED);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW);
  soft_clock_advance(99);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW) << "0.99 of a committed packet";
  soft_clock_advance(1);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_GREEN);
  OK(set(kFlowMeter, 7,
         meter_spec(PIPE_RATE_PACKETS, UINT64_MAX, UINT64_MAX, UINT64_MAX, UINT64_MAX)));
  EXPECT_EQ(mark(kFlowMeter, UINT64_MAX, 0), SOFT_COLOR_GREEN);
  soft_clock_advance(5);
  EXPECT_EQ(mark(kFlowMeter, UINT64_MAX, 0), SOFT_COLOR_GREEN) << "full again without overflow";
}

TEST_F(Meters, RefuseASpecOrACellThatDoesNotFit) {
  const auto right = meter_spec(PIPE_RATE_BYTES, 1, 2, 3, 4);
  auto mixed = right, other = right, typeless = right;
  mixed.peak_rate.unit = PIPE_RATE_PACKETS;
  other.committed_rate.unit = PIPE_RATE_PACKETS;
  typeless.type = 2;
  for (const auto &spec : {mixed, other, typeless}) {
    EXPECT_EQ(set(kPoliceMeter, 7, spec), BF_INVALID_ARGUMENT);
  }
  EXPECT_EQ(set(kFlowMeter, 7, right), BF_INVALID_ARGUMENT);
  uint32_t out = 0;
  EXPECT_EQ(soft_next_cell(kDevice, kPoliceMeter, 0, &out), BF_OBJECT_NOT_FOUND);
  pipe_mgr_meter_spec_t read{};
  pipe_mgr_counter_t count{};
  uint8_t color = 0;
  for (const uint32_t cell : {SOFT_METER_CELLS, SOFT_METER_CELLS - 1}) {
    const bf_status_t expected = cell == SOFT_METER_CELLS ? BF_INVALID_ARGUMENT : BF_SUCCESS;
    EXPECT_EQ(set(kPoliceMeter, cell, right), expected);
    EXPECT_EQ(pipe_mgr_meter_read_entry_idx(session, kDevice, 0, kPoliceMeter, cell, &read),
              expected);
    EXPECT_EQ(soft_meter_mark(kDevice, 0, kPoliceMeter, cell, 1, 1, &color), expected);
    EXPECT_EQ(pipe_mgr_stat_ent_set(session, kDevice, 0, kAclCount, cell, &count), expected);
    EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, 0, kAclCount, cell, &count), expected);
    EXPECT_EQ(pipe_mgr_stat_ent_database_sync(session, kDevice, 0, kAclCount, cell), expected);
    EXPECT_EQ(soft_counter_count(kDevice, 0, kAclCount, cell, 1, 64), expected);
  }
  uint64_t bytes = 0;
  OK(soft_memory_bytes(kDevice, kAclCount, &bytes));
  EXPECT_LT(bytes, 1u << 20) << "cells in between take no memory";
}

// A meter that met traffic takes memory with its entry, and no longer.
TEST_F(Meters, BucketsGoWithTheirEntry) {
  const Key key(16, {8, 1}, {255, 255});
  Action deny;
  deny.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH).data.meter =
      meter_spec(PIPE_RATE_BYTES, 0, 1, 0, 2);
  uint32_t entry = 0;
  uint64_t held[3] = {};
  for (uint64_t &bytes : held) {
    OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kAcl, &key.spec, kDeny, &deny.spec, 0, 0,
                            &entry));
    OK(soft_packet(kDevice, 0, kAcl, key.value.data(), 2, 64, &entry, nullptr));
    OK(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0));
    OK(soft_memory_bytes(kDevice, kAcl, &bytes));
  }
  EXPECT_EQ(held[2], held[1]);
}

TEST_F(Meters, WredCellsReadBack) {
  const pipe_mgr_wred_spec_t spec{1.5f, 100, 200, 0.25f};
  const auto set_wred = [&](uint32_t pipe, uint32_t table, uint32_t index) {
    return pipe_mgr_wred_ent_set(session, kDevice, pipe, table, index, &spec, 0);
  };
  pipe_mgr_wred_spec_t got{};
  EXPECT_EQ(soft_wred_get(kDevice, 0, kWred, 3, &got), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(set_wred(1, kWred, 3), BF_SUCCESS);
  EXPECT_EQ(soft_wred_get(kDevice, 0, kWred, 3, &got), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(soft_wred_get(kDevice, 1, kWred, 2, &got), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(soft_wred_get(kDevice, 1, kWred, 3, &got), BF_SUCCESS);
  EXPECT_EQ(got.time_constant_ns, 1.5f);
  EXPECT_EQ(got.min_threshold_cells, 100u);
  EXPECT_EQ(got.max_threshold_cells, 200u);
  EXPECT_EQ(got.max_probability, 0.25f);
  ASSERT_EQ(set_wred(BF_ALL_PIPES, 0x07ffffff, SOFT_WRED_CELLS - 1), BF_SUCCESS);
  EXPECT_EQ(soft_wred_get(kDevice, 0, 0x07ffffff, SOFT_WRED_CELLS - 1, &got), BF_SUCCESS);
  // One after the other, in pipe 1.
  pipe_object_handle_t wred = 0;
  uint32_t index = 0;
  ASSERT_EQ(soft_next_wred_cell(kDevice, 1, &wred, &index), BF_SUCCESS);
  EXPECT_EQ(std::pair(wred, index), std::pair(kWred, 3u));
  ASSERT_EQ(soft_next_wred_cell(kDevice, 1, &wred, &++index), BF_SUCCESS);
  EXPECT_EQ(std::pair(wred, index), std::pair(0x07ffffffu, SOFT_WRED_CELLS - 1));
  EXPECT_EQ(soft_next_wred_cell(kDevice, 1, &wred, &++index), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(set_wred(0, kWred, SOFT_WRED_CELLS), BF_INVALID_ARGUMENT);
  for (uint32_t handle : {0x07000000u, 0x06000001u, kPoliceMeter, 0u}) {
    EXPECT_EQ(set_wred(0, handle, 0), BF_INVALID_HANDLE) << handle;
  }
}

}  // namespace
