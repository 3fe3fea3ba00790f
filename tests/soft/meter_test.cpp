// Meters and WRED profiles through the contract, and what traffic makes of them.
#include "profile_program.hpp"

namespace {

using namespace soft_test;

class Meters : public ProfileTest {
 protected:
  static pipe_mgr_meter_spec_t spec_of(uint32_t unit, uint64_t committed_rate,
                                       uint64_t committed_burst, uint64_t peak_rate,
                                       uint64_t peak_burst) {
    return {PIPE_METER_COLOR_UNAWARE,
            {unit, committed_rate},
            committed_burst,
            {unit, peak_rate},
            peak_burst};
  }
  bf_status_t set(uint32_t pipe, uint32_t meter, uint32_t index,
                  const pipe_mgr_meter_spec_t &spec) {
    return pipe_mgr_meter_ent_set(session, kDevice, pipe, meter, index, &spec, 0);
  }
  pipe_mgr_meter_spec_t get(uint32_t pipe, uint32_t meter, uint32_t index) {
    pipe_mgr_meter_spec_t spec{};
    EXPECT_EQ(pipe_mgr_meter_read_entry_idx(session, kDevice, pipe, meter, index, &spec),
              BF_SUCCESS);
    return spec;
  }
  static void expect_same(const pipe_mgr_meter_spec_t &a, const pipe_mgr_meter_spec_t &b) {
    EXPECT_EQ(a.type, b.type);
    EXPECT_EQ(a.committed_rate.unit, b.committed_rate.unit);
    EXPECT_EQ(a.committed_rate.value, b.committed_rate.value);
    EXPECT_EQ(a.committed_burst, b.committed_burst);
    EXPECT_EQ(a.peak_rate.unit, b.peak_rate.unit);
    EXPECT_EQ(a.peak_rate.value, b.peak_rate.value);
    EXPECT_EQ(a.peak_burst, b.peak_burst);
  }
  int mark(uint32_t meter, uint64_t packets, uint64_t bytes, uint32_t pipe = 0) {
    uint8_t color = 99;
    EXPECT_EQ(soft_meter_mark(kDevice, pipe, meter, 7, packets, bytes, &color), BF_SUCCESS);
    return color;
  }
};

TEST_F(Meters, IndirectCellsKeepTheirSpec) {
  const auto one = spec_of(PIPE_RATE_BYTES, 1000, 2000, 3000, 0x100000000u);
  const auto two = spec_of(PIPE_RATE_BYTES, 1, 2, 3, 4);
  ASSERT_EQ(set(BF_ALL_PIPES, kPoliceMeter, 7, one), BF_SUCCESS);
  ASSERT_EQ(set(1, kPoliceMeter, 7, two), BF_SUCCESS);
  expect_same(get(0, kPoliceMeter, 7), one);
  expect_same(get(1, kPoliceMeter, 7), two);
  expect_same(get(BF_ALL_PIPES, kPoliceMeter, 7), one);
  expect_same(get(0, kPoliceMeter, 8), spec_of(PIPE_RATE_BYTES, 0, 0, 0, 0));
  expect_same(get(0, kFlowMeter, SOFT_METER_CELLS - 1), spec_of(PIPE_RATE_PACKETS, 0, 0, 0, 0));
}

TEST_F(Meters, RefuseASpecThatDoesNotFit) {
  auto mixed = spec_of(PIPE_RATE_BYTES, 1, 2, 3, 4);
  mixed.peak_rate.unit = PIPE_RATE_PACKETS;
  auto typeless = spec_of(PIPE_RATE_BYTES, 1, 2, 3, 4);
  typeless.type = 2;
  EXPECT_EQ(set(0, kPoliceMeter, 7, spec_of(PIPE_RATE_PACKETS, 1, 2, 3, 4)), BF_INVALID_ARGUMENT);
  EXPECT_EQ(set(0, kFlowMeter, 7, spec_of(PIPE_RATE_BYTES, 1, 2, 3, 4)), BF_INVALID_ARGUMENT);
  EXPECT_EQ(set(0, kPoliceMeter, 7, mixed), BF_INVALID_ARGUMENT);
  EXPECT_EQ(set(0, kPoliceMeter, 7, typeless), BF_INVALID_ARGUMENT);
  const auto right = spec_of(PIPE_RATE_BYTES, 1, 2, 3, 4);
  EXPECT_EQ(set(0, kPoliceMeter, SOFT_METER_CELLS, right), BF_INVALID_ARGUMENT);
  EXPECT_EQ(set(2, kPoliceMeter, 7, right), BF_INVALID_PIPE);
  EXPECT_EQ(set(0, kAclMeter, 7, right), BF_NOT_SUPPORTED) << "its cells are those of entries";
  EXPECT_EQ(pipe_mgr_meter_ent_set(session, kDevice, 0, kPoliceMeter, 7, nullptr, 0),
            BF_INVALID_ARGUMENT);
  expect_same(get(0, kPoliceMeter, 7), spec_of(PIPE_RATE_BYTES, 0, 0, 0, 0));
}

// 8 kbit/s is 8 bits a millisecond; a burst of 1 kbit is 125 bytes.
TEST_F(Meters, BytesMeterMarksByItsBuckets) {
  EXPECT_EQ(mark(kPoliceMeter, 1, 1u << 30), SOFT_COLOR_GREEN) << "never set";
  ASSERT_EQ(set(0, kPoliceMeter, 7, spec_of(PIPE_RATE_BYTES, 8, 1, 16, 2)), BF_SUCCESS);
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
  ASSERT_EQ(set(0, kPoliceMeter, 7, spec_of(PIPE_RATE_BYTES, 8, 1, 16, 2)), BF_SUCCESS);
  EXPECT_EQ(mark(kPoliceMeter, 1, 125), SOFT_COLOR_GREEN) << "setting fills the buckets";
}

TEST_F(Meters, PacketsMeterCountsPackets) {
  ASSERT_EQ(set(0, kFlowMeter, 7, spec_of(PIPE_RATE_PACKETS, 10, 2, 100, 4)), BF_SUCCESS);
  EXPECT_EQ(mark(kFlowMeter, 2, 100000), SOFT_COLOR_GREEN);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW);
  EXPECT_EQ(mark(kFlowMeter, 2, 1), SOFT_COLOR_RED);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW);
  soft_clock_advance(99);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_YELLOW) << "0.99 of a committed packet";
  soft_clock_advance(1);
  EXPECT_EQ(mark(kFlowMeter, 1, 1), SOFT_COLOR_GREEN);
  ASSERT_EQ(set(0, kFlowMeter, 7,
                spec_of(PIPE_RATE_PACKETS, UINT64_MAX, UINT64_MAX, UINT64_MAX, UINT64_MAX)),
            BF_SUCCESS);
  EXPECT_EQ(mark(kFlowMeter, UINT64_MAX, 0), SOFT_COLOR_GREEN);
  soft_clock_advance(5);
  EXPECT_EQ(mark(kFlowMeter, UINT64_MAX, 0), SOFT_COLOR_GREEN) << "full again without overflow";
}

TEST_F(Meters, AdjustmentIsASignedNumberOfBytes) {
  const auto adjust = [&](uint32_t meter, uint32_t adjustment) {
    uint32_t read = 1;
    EXPECT_EQ(pipe_mgr_meter_set_bytecount_adjust(session, kDevice, 0, meter, adjustment),
              BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_meter_get_bytecount_adjust(session, kDevice, 1, meter, &read), BF_SUCCESS);
    EXPECT_EQ(read, adjustment);
  };
  adjust(kPoliceMeter, 25);
  adjust(kAclMeter, 0xffffffff);
  const auto spec = spec_of(PIPE_RATE_BYTES, 0, 1, 0, 1);  // 125 bytes, never refilled
  ASSERT_EQ(set(0, kPoliceMeter, 7, spec), BF_SUCCESS);
  EXPECT_EQ(mark(kPoliceMeter, 2, 76), SOFT_COLOR_RED) << "126 bytes";
  EXPECT_EQ(mark(kPoliceMeter, 2, 75), SOFT_COLOR_GREEN);
  adjust(kPoliceMeter, static_cast<uint32_t>(-50));
  EXPECT_EQ(mark(kPoliceMeter, 3, 150), SOFT_COLOR_GREEN) << "nothing is left, nothing is needed";
  EXPECT_EQ(mark(kPoliceMeter, 3, 151), SOFT_COLOR_RED);
  EXPECT_EQ(mark(kPoliceMeter, 4, 151), SOFT_COLOR_GREEN) << "not less than nothing";
  EXPECT_EQ(pipe_mgr_meter_get_bytecount_adjust(session, kDevice, 0, kAclMeter, nullptr),
            BF_INVALID_ARGUMENT);
}

TEST_F(Meters, DirectMeterBelongsToItsEntry) {
  const auto spec = spec_of(PIPE_RATE_BYTES, 0, 1, 0, 2);
  Action deny;
  deny.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH).data.meter = spec;
  const uint32_t entry = new_acl(1, deny), plain = new_acl(2, Action());
  const auto read = [&](uint32_t of, pipe_mgr_meter_spec_t *into) {
    return pipe_mgr_meter_read_entry(session, kDevice, 0, kAcl, of, into);
  };
  pipe_mgr_meter_spec_t got{};
  ASSERT_EQ(read(entry, &got), BF_SUCCESS);
  expect_same(got, spec);
  EXPECT_EQ(read(plain, &got), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(pipe_mgr_meter_read_entry(session, kDevice, 0, kHost, entry, &got), BF_NOT_SUPPORTED);

  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 125).color, SOFT_COLOR_GREEN);
  EXPECT_EQ(hit(1, kAcl, {0x08, 0x01}, 1, 125).color, SOFT_COLOR_YELLOW);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 125).color, SOFT_COLOR_RED);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x02}, 1, 125).color, SOFT_COLOR_GREEN);

  pipe_mgr_resource_t again{};
  again.handle = kAclMeter;
  again.data.meter = spec_of(PIPE_RATE_PACKETS, 1, 1, 1, 1);
  again.tag = PIPE_RESOURCE_ATTACH;
  EXPECT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kAcl, entry, &again, 1, 0),
            BF_INVALID_ARGUMENT);
  again.data.meter = spec_of(PIPE_RATE_BYTES, 0, 2, 0, 2);
  ASSERT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kAcl, entry, &again, 1, 0), BF_SUCCESS);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 250).color, SOFT_COLOR_GREEN) << "full again";
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 1).color, SOFT_COLOR_RED);
  uint64_t held = 0, left = 0;
  ASSERT_EQ(soft_memory_bytes(kDevice, kAcl, &held), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0), BF_SUCCESS);
  ASSERT_EQ(soft_memory_bytes(kDevice, kAcl, &left), BF_SUCCESS);
  EXPECT_LT(left, held) << "its buckets are gone";
  EXPECT_EQ(read(entry, &got), BF_OBJECT_NOT_FOUND);
}

TEST_F(Meters, WorstColorOfAnEntryCounts) {
  ASSERT_EQ(set(0, kPoliceMeter, 7, spec_of(PIPE_RATE_BYTES, 0, 0, 0, 1)), BF_SUCCESS);
  ASSERT_EQ(set(0, kFlowMeter, 7, spec_of(PIPE_RATE_PACKETS, 0, 9, 0, 9)), BF_SUCCESS);
  Action deny;
  deny.resource(kPoliceMeter, 7, PIPE_RESOURCE_ATTACH);
  deny.resource(kFlowMeter, 7, PIPE_RESOURCE_ATTACH);
  new_acl(1, deny);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 100).color, SOFT_COLOR_YELLOW);
  EXPECT_EQ(hit(0, kAcl, {0x08, 0x01}, 1, 100).color, SOFT_COLOR_RED);
  EXPECT_EQ(mark(kFlowMeter, 7, 0), SOFT_COLOR_GREEN) << "it gave two of its nine packets";
  EXPECT_EQ(mark(kFlowMeter, 1, 0), SOFT_COLOR_RED);
}

// ---- Through tables to members ----

TEST_F(Meters, TrafficFollowsMembersAndGroups) {
  const uint32_t a = new_member(1), b = new_member(2), group = new_group(0);
  Action flood;
  uint32_t flooding = 0;
  ASSERT_EQ(pipe_mgr_adt_ent_add(session, kDevice, 0, kMembers, kFlood, &flood.spec, &flooding, 0),
            BF_SUCCESS);
  uint32_t direct = 0, indirect = 0;
  ASSERT_EQ(add_lag(1, PIPE_ACTION_MEMBER, b, &direct), BF_SUCCESS);
  ASSERT_EQ(add_lag(2, PIPE_ACTION_GROUP, group, &indirect), BF_SUCCESS);

  soft_hit_t found = hit(0, kLag, {1}, 1, 64, {9});
  EXPECT_EQ(found.entry, direct);
  EXPECT_FALSE(found.is_default);
  EXPECT_EQ(found.member, b);
  EXPECT_EQ(found.group, 0u);
  EXPECT_EQ(found.action, kSend);
  found = hit(0, kLag, {2}, 1, 64, {9});
  EXPECT_EQ(found.entry, indirect);
  EXPECT_EQ(found.group, group);
  EXPECT_EQ(found.member, 0u) << "the group is empty";
  EXPECT_EQ(found.action, 0u);
  ASSERT_EQ(join(group, a), BF_SUCCESS);
  ASSERT_EQ(join(group, flooding, kFlood), BF_SUCCESS);
  EXPECT_EQ(hit(0, kLag, {2}, 1, 64, {0, 4}).member, a);
  EXPECT_EQ(hit(0, kLag, {2}, 1, 64).member, a) << "no hash is 0";
  found = hit(0, kLag, {2}, 1, 64, {1, 1});
  EXPECT_EQ(found.member, flooding);
  EXPECT_EQ(found.action, kFlood) << "of the member, not of the entry";

  soft_traffic_t traffic{};
  const uint8_t key[] = {3};
  traffic.key = key;
  traffic.key_length = 1;
  EXPECT_EQ(soft_traffic_hit(kDevice, 0, kLag, &traffic, &found), BF_TABLE_MISS)
      << "no entry and no default entry";
  EXPECT_EQ(soft_traffic_hit(kDevice, BF_ALL_PIPES, kLag, &traffic, &found), BF_INVALID_PIPE);
  EXPECT_EQ(soft_traffic_hit(kDevice, 0, kMembers, &traffic, &found), BF_INVALID_HANDLE);
  traffic.key_length = 2;
  EXPECT_EQ(soft_traffic_hit(kDevice, 0, kLag, &traffic, &found), BF_WRONG_LENGTH);
  EXPECT_EQ(found.member, flooding) << "nothing is written";
}

// ---- WRED ----

TEST_F(Meters, WredCellsReadBack) {
  constexpr uint32_t kWred = 0x07000001;
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
