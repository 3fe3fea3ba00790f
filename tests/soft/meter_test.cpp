// Meters, counters and WRED profiles where the model does not come.
#include "program.hpp"

namespace {

using namespace soft_test;

class Meters : public SoftTest {
 protected:
  bf_status_t set(uint32_t meter, uint32_t index, const pipe_mgr_meter_spec_t &spec) const {
    return pipe_mgr_meter_ent_set(session, kDevice, 0, meter, index, &spec, 0);
  }
};

// A thousand times as many, and four times as many, leave nothing in 64 bits.
TEST_F(Meters, GreatRatesBurstsAndCountsDoNotOverflow) {
  constexpr uint64_t great = uint64_t{1} << 62;
  for (const auto &[burst, expected] : {std::pair{great, SOFT_COLOR_GREEN}, {1, SOFT_COLOR_RED}}) {
    OK(set(kFlowMeter, 7, meter_spec(PIPE_RATE_PACKETS, great, burst, great, burst)));
    for (int i = 0; i < 2; ++i) {
      uint8_t color = 99;
      OK(soft_meter_mark(kDevice, 0, kFlowMeter, 7, great, 0, &color));
      EXPECT_EQ(color, expected);
      soft_clock_advance(4);
    }
  }
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
  deny.resource(kAclMeter).data.meter = meter_spec(PIPE_RATE_BYTES, 0, 1, 0, 2);
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

// Whichever of its meters says so. No program of this tree has an action with two.
TEST_F(Meters, TheWorstColourIsThatOfThePacket) {
  const Key key(16, {8, 1}, {255, 255});
  Action deny;
  deny.resource(kPoliceMeter);
  pipe_mgr_meter_spec_t &direct = deny.resource(kAclMeter).data.meter;
  const auto none = meter_spec(PIPE_RATE_BYTES, 0, 0, 0, 0),
             much = meter_spec(PIPE_RATE_BYTES, 9, 9999, 9, 9999);
  const soft_traffic_t traffic{key.value.data(), 2, nullptr, 0, 1, 64};
  for (const bool is_direct : {true, false}) {
    uint32_t entry = 0;
    soft_hit_t hit{};
    direct = is_direct ? none : much;
    OK(set(kPoliceMeter, 0, is_direct ? much : none));
    OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kAcl, &key.spec, kDeny, &deny.spec, 0, 0,
                            &entry));
    OK(soft_traffic_hit(kDevice, 0, kAcl, &traffic, &hit));
    EXPECT_EQ(hit.color, SOFT_COLOR_RED);
    OK(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0));
  }
}

TEST_F(Meters, WredCellsAreFoundOneAfterTheOther) {
  const std::pair<pipe_object_handle_t, uint32_t> cells[] = {
      {kWred, 3}, {kWred, 9}, {0x07ffffff, 1}};
  pipe_mgr_wred_spec_t spec{1, 2, 3, 0.5f};
  const auto set_wred = [&](uint32_t table, uint32_t index) {
    return pipe_mgr_wred_ent_set(session, kDevice, 1, table, index, &spec, 0);
  };
  for (const auto &[table, index] : cells) OK(set_wred(table, index));
  EXPECT_EQ(set_wred(kWred, SOFT_WRED_CELLS), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_wred_get(kDevice, 1, kWred, 2, &spec), BF_OBJECT_NOT_FOUND);
  pipe_object_handle_t wred = 0;
  uint32_t index = 0;
  for (const auto &cell : cells) {
    OK(soft_next_wred_cell(kDevice, 1, &wred, &index));
    EXPECT_EQ(std::pair(wred, index++), cell);
  }
  EXPECT_EQ(soft_next_wred_cell(kDevice, 1, &wred, &index), BF_OBJECT_NOT_FOUND);
}

}  // namespace
