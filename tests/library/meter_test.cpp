// Meters and WRED profiles by name and by handle.
#include "typed.hpp"

namespace pd_test {
namespace {

class Meter : public LibraryTest {
 protected:
  p4_pd_bytes_meter_spec_t bytes_ = {1000, 2000, 3000, 4000, PD_METER_TYPE_COLOR_UNAWARE};
  p4_pd_packets_meter_spec_t packets_ = {1000, 2000, 3000, 4000, PD_METER_TYPE_COLOR_UNAWARE};

  static void expect_sent(const Call &call, uint32_t meter, uint32_t index, uint32_t type,
                          uint32_t unit) {
    EXPECT_EQ(call.function, "pipe_mgr_meter_ent_set");
    EXPECT_EQ(call.scalar("device"), 5u);
    EXPECT_EQ(call.scalar("pipe"), 2u);
    EXPECT_EQ(call.scalar("meter"), meter);
    EXPECT_EQ(call.scalar("index"), index);
    EXPECT_EQ(call.scalar("flags"), 0u);
    const auto &spec = call.get<pipe_mgr_meter_spec_t>("spec");
    EXPECT_EQ(spec.type, type);
    EXPECT_EQ(spec.committed_rate.unit, unit);
    EXPECT_EQ(spec.committed_rate.value, 1000u);
    EXPECT_EQ(spec.committed_burst, 2000u);
    EXPECT_EQ(spec.peak_rate.unit, unit);
    EXPECT_EQ(spec.peak_rate.value, 3000u);
    EXPECT_EQ(spec.peak_burst, 4000u);
  }
};

TEST_F(Meter, SendsRatesInTheUnitOfTheMeter) {
  expect_sent(only_call([&] {
                EXPECT_EQ(PD(meter_set_pdpMeter)(session(), kTarget, 17, &bytes_), BF_SUCCESS);
              }),
              0x05000001, 17, 1, 0);
  expect_sent(only_call([&] {
                EXPECT_EQ(PD(meter_set_newFlowMeter)(session(), kTarget, 18, &packets_),
                          BF_SUCCESS);
              }),
              0x05000002, 18, 1, 1);
}

TEST_F(Meter, SeesColoursOnlyWithAColourInput) {
  bytes_.meter_type = packets_.meter_type = PD_METER_TYPE_COLOR_AWARE;
  expect_sent(only_call([&] {
                EXPECT_EQ(PD(bytes_meter_set)(session(), kTarget, 0x05000003, 1, &bytes_, 7),
                          BF_SUCCESS);
              }),
              0x05000003, 1, 0, 0);
  expect_sent(only_call([&] {
                EXPECT_EQ(PD(packets_meter_set)(session(), kTarget, 0x05000002, 2, &packets_, 1),
                          BF_SUCCESS);
              }),
              0x05000002, 2, 0, 1);
  const auto calls = recorded([&] {
    EXPECT_EQ(PD(bytes_meter_set)(session(), kTarget, 0x05000003, 1, &bytes_, 0),
              P4_PD_METER_TYPE_REFUSED);
    EXPECT_EQ(PD(packets_meter_set)(session(), kTarget, 0x05000002, 1, &packets_, 0),
              P4_PD_METER_TYPE_REFUSED);
    EXPECT_EQ(PD(meter_set_firewallSipDropMeter)(session(), kTarget, 1, &bytes_),
              P4_PD_METER_TYPE_REFUSED);
    bytes_.meter_type = packets_.meter_type = 2;
    EXPECT_EQ(PD(bytes_meter_set)(session(), kTarget, 0x05000003, 1, &bytes_, 1),
              P4_PD_METER_TYPE_REFUSED);
    EXPECT_EQ(PD(packets_meter_set)(session(), kTarget, 0x05000002, 1, &packets_, 1),
              P4_PD_METER_TYPE_REFUSED);
  });
  EXPECT_TRUE(calls.empty());
}

// The device may hold more than 32 bits tell.
TEST_F(Meter, ReadsTheLowHalves) {
  pipe_mgr_meter_spec_t held = {0, {0, 0x100000005}, 0x200000006, {0, 0x300000007}, 0x400000008};
  ASSERT_EQ(pipe_mgr_meter_ent_set(session(), kDevice, kPipe, 0x05000006, 3, &held, 0), BF_SUCCESS);
  const auto expect_read = [&](auto read_with) {
    p4_pd_bytes_meter_spec_t read = {9, 9, 9, 9, 9};
    EXPECT_EQ(read_with(&read), BF_SUCCESS);
    EXPECT_EQ(read.committed_rate, 5u);
    EXPECT_EQ(read.committed_burst, 6u);
    EXPECT_EQ(read.peak_rate, 7u);
    EXPECT_EQ(read.peak_burst, 8u);
    EXPECT_EQ(read.meter_type, 0u);
  };
  expect_read(
      [](auto *spec) { return PD(meter_read_ingressMirrorMeter)(session(), kTarget, 3, spec); });
  expect_read(
      [](auto *spec) { return PD(bytes_meter_read)(session(), kTarget, 0x05000006, 3, spec); });
  expect_read([](auto *spec) {
    p4_pd_packets_meter_spec_t packets = {};
    const p4_pd_status_t status =
        PD(packets_meter_read)(session(), kTarget, 0x05000006, 3, &packets);
    *spec = {packets.committed_rate, packets.committed_burst, packets.peak_rate, packets.peak_burst,
             packets.meter_type};
    return status;
  });
}

TEST_F(Meter, OfAnEntryGoesByTableAndEntry) {
  const PD(l2LookupMiss_match_spec_t) key = {};
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(PD(l2LookupMiss_table_add_with_l2LookupBcastHit)(session(), kTarget, &key, 1, &bytes_,
                                                             &entry),
            BF_SUCCESS);
  bytes_.peak_rate = 99;
  const Call set = only_call([&] {
    EXPECT_EQ(PD(meter_set_stormControlMeter)(session(), kTarget, entry, &bytes_), BF_SUCCESS);
  });
  EXPECT_EQ(set.function, "pipe_mgr_mat_ent_set_resource");
  EXPECT_EQ(set.scalar("table"), 0x01000048u);
  EXPECT_EQ(set.scalar("entry"), entry);
  EXPECT_EQ(set.scalar("count"), 1u);
  const auto &resources = set.get<std::vector<pipe_mgr_resource_t>>("resources");
  ASSERT_EQ(resources.size(), 1u);
  EXPECT_EQ(resources[0].handle, 0x05000005u);
  EXPECT_EQ(resources[0].index, 0u);
  EXPECT_EQ(resources[0].tag, 1u);
  EXPECT_EQ(resources[0].data.meter.peak_rate.value, 99u);
  const Call read = only_call([&] {
    p4_pd_bytes_meter_spec_t spec = {};
    EXPECT_EQ(PD(meter_read_stormControlMeter)(session(), kTarget, entry, &spec), BF_SUCCESS);
    EXPECT_EQ(spec.peak_rate, 99u);
  });
  EXPECT_EQ(read.function, "pipe_mgr_meter_read_entry");
  EXPECT_EQ(read.scalar("table"), 0x01000048u);
  EXPECT_EQ(read.scalar("pipe"), 2u);
  // The byte-count adjustment is the meter's own.
  const Call adjust = only_call([&] {
    PD(meter_bytecount_adjust_set_stormControlMeter)(session(), kTarget, 0xffffffec);
  });
  EXPECT_EQ(adjust.scalar("meter"), 0x05000005u);
  EXPECT_EQ(adjust.scalar("adjustment"), 0xffffffecu);
}

TEST_F(Meter, PassesWredProfilesOnAsTheyAre) {
  const p4_pd_wred_params_t params = {1.5f, 0xfffffffe, 3, 0.75f};
  const Call call = only_call(
      [&] { EXPECT_EQ(PD(wred_set)(session(), kTarget, 0x07000009, 6, &params), BF_SUCCESS); });
  EXPECT_EQ(call.function, "pipe_mgr_wred_ent_set");
  EXPECT_EQ(call.scalar("wred"), 0x07000009u);
  EXPECT_EQ(call.scalar("index"), 6u);
  const auto &spec = call.get<pipe_mgr_wred_spec_t>("spec");
  EXPECT_EQ(spec.time_constant_ns, 1.5f);
  EXPECT_EQ(spec.min_threshold_cells, 0xfffffffeu);
  EXPECT_EQ(spec.max_threshold_cells, 3u);
  EXPECT_EQ(spec.max_probability, 0.75f);
}

}  // namespace
}  // namespace pd_test
