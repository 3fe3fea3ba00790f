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

// ---- The meter that travels with an entry ----

class StormControl : public LibraryTest {
 protected:
  // The action spec that the only call of body carries: no data, and one resource.
  template <class Body>
  static soft::journal::ActionSpec sent(Body &&body, const std::string &resource) {
    p4_pd_status_t status = BF_HARDWARE_FAULT;
    const Call call = only_call([&] { status = body(); });
    EXPECT_EQ(status, BF_SUCCESS);
    const auto spec = call.get<soft::journal::ActionSpec>("action_spec");
    EXPECT_EQ(spec.data.byte_count, 0u);
    EXPECT_EQ(resources_of(spec), resource);
    return spec;
  }
  p4_pd_status_t add(const p4_pd_bytes_meter_spec_t *meter) {
    return PD(l2LookupMiss_table_add_with_l2LookupBcastHit)(session(), kTarget, &key_, 4, meter,
                                                            &entry_);
  }
  static void expect_meter(const soft::journal::ActionSpec &spec, uint64_t committed_rate) {
    const pipe_mgr_meter_spec_t &meter = spec.resources.at(0).data.meter;
    EXPECT_EQ(meter.type, 1u);
    EXPECT_EQ(meter.committed_rate.unit, 0u);
    EXPECT_EQ(meter.committed_rate.value, committed_rate);
    EXPECT_EQ(meter.committed_burst, 2000u);
    EXPECT_EQ(meter.peak_rate.unit, 0u);
    EXPECT_EQ(meter.peak_rate.value, 3000u);
    EXPECT_EQ(meter.peak_burst, 0xffffffffu);
  }

  p4_pd_entry_handle_t entry_ = 0;
  PD(l2LookupMiss_match_spec_t) key_ = {};
  p4_pd_bytes_meter_spec_t meter_ = {1000, 2000, 3000, 0xffffffff, PD_METER_TYPE_COLOR_UNAWARE};
};

TEST_F(StormControl, AddNeedsTheSpec) {
  const auto calls = recorded([&] { EXPECT_EQ(add(nullptr), P4_PD_METER_SPEC_MISSING); });
  EXPECT_TRUE(calls.empty());
  EXPECT_EQ(entry_, 0u);
  expect_meter(sent([&] { return add(&meter_); }, "05000005:0:1"), 1000);
}

TEST_F(StormControl, ModifyWithoutSpecKeepsTheMeter) {
  ASSERT_EQ(add(&meter_), BF_SUCCESS);
  const auto kept = sent(
      [&] {
        return PD(l2LookupMiss_table_modify_with_l2LookupUnknownUcastAction)(session(), kDevice,
                                                                             entry_, nullptr);
      },
      "05000005:0:0");
  EXPECT_EQ(kept.resources.at(0).data.meter.committed_rate.value, 0u);
  p4_pd_bytes_meter_spec_t read = {};
  EXPECT_EQ(PD(meter_read_stormControlMeter)(session(), kTarget, entry_, &read), BF_SUCCESS);
  EXPECT_EQ(read.committed_rate, 1000u);

  meter_.committed_rate = 0xfffffff0;
  const auto changed = sent(
      [&] {
        return PD(l2LookupMiss_table_modify_with_l2LookupBcastHit_by_match_spec)(session(), kTarget,
                                                                                 &key_, 4, &meter_);
      },
      "05000005:0:1");
  expect_meter(changed, 0xfffffff0);
}

TEST_F(StormControl, TheDefaultEntryLetsGoOfItWithoutSpec) {
  sent(
      [&] {
        return PD(l2LookupMiss_set_default_action_l2LookupBcastHit)(session(), kTarget, nullptr,
                                                                    &entry_);
      },
      "05000005:0:2");
  const auto spec = sent(
      [&] {
        return PD(l2LookupMiss_set_default_action_l2LookupUnknownMcastAction)(session(), kTarget,
                                                                              &meter_, &entry_);
      },
      "05000005:0:1");
  expect_meter(spec, 1000);
}

TEST_F(StormControl, RefusesAMeterThatLooksAtColours) {
  ASSERT_EQ(add(&meter_), BF_SUCCESS);
  for (const uint32_t type : {0u, 2u, 0xffffffffu}) {
    meter_.meter_type = type;
    const auto calls = recorded([&] {
      EXPECT_EQ(add(&meter_), P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(
          PD(l2LookupMiss_table_modify_with_l2LookupBcastHit)(session(), kDevice, entry_, &meter_),
          P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(PD(l2LookupMiss_set_default_action_l2LookupBcastHit)(session(), kTarget, &meter_,
                                                                     &entry_),
                P4_PD_METER_TYPE_REFUSED);
      EXPECT_EQ(PD(meter_set_stormControlMeter)(session(), kTarget, entry_, &meter_),
                P4_PD_METER_TYPE_REFUSED);
    });
    EXPECT_TRUE(calls.empty()) << type;
  }
}

}  // namespace
}  // namespace pd_test
