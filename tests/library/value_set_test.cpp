// Parser value sets: handles, parser targets, properties.
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

class ValueSets : public StatefulTest {
 protected:
  p4_pd_parser_target_t parser = {kDevice, 1, 2, 17};
};

TEST_F(ValueSets, NameTheirHandleAndParser) {
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_add(session, parser, 0x11, 0xff, &entry),
            BF_SUCCESS);
  const Call added = take_one();
  EXPECT_EQ(added.scalar("value_set"), 512u);
  EXPECT_EQ(added.scalar("direction"), 1u);
  EXPECT_EQ(added.scalar("pipe"), 2u);
  EXPECT_EQ(added.scalar("parser"), 17u);
  uint32_t value = 0;
  uint32_t mask = 0;
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get(session, kDevice, entry, &value, &mask),
            BF_SUCCESS);
  EXPECT_EQ(value, 0x11u);
  EXPECT_EQ(mask, 0xffu);
}

TEST_F(ValueSets, WriteAPropertyOnFailureToo) {
  uint32_t value = 9;
  const auto get = [&] {
    return p4_pd_tessel_switch_pvs_fabric_port_get_property(session, kDevice, PIPE_PVS_CAPACITY,
                                                            &value, 0);
  };
  ASSERT_EQ(
      p4_pd_tessel_switch_pvs_fabric_port_set_property(session, kDevice, PIPE_PVS_CAPACITY, 20, 0),
      BF_SUCCESS);
  EXPECT_EQ(get(), BF_SUCCESS);
  EXPECT_EQ(value, 20u);
  soft::faults::fail_call("pipe_mgr_pvs_get_property", 1, BF_HARDWARE_FAULT);
  EXPECT_EQ(get(), uint32_t{BF_HARDWARE_FAULT});
  EXPECT_EQ(value, 0xffffffffu);
}

}  // namespace
