// Parser value sets: handles, parser targets, properties.
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

class ValueSets : public StatefulTest {
 protected:
  p4_pd_parser_target_t parser = {kDevice, 1, 2, 17};
};

const struct Row {
  const char *set;
  uint32_t handle;
} kRows[] = {{"recirc_ports", 511}, {"fabric_port", 512}};

// Numbers that no two arguments share, so that a swap shows.
TEST_F(ValueSets, HandEveryArgumentOnInOrder) {
  for (const Row &row : kRows) {
    SCOPED_TRACE(row.set);
    uint32_t out = 0;
    const auto run = [&](const char *operation, std::vector<uint64_t> words, const char *function) {
      words.insert(words.begin(), session);
      call_export(std::string("pvs_") + operation, row.set, words);
      const Call made = take_one();
      EXPECT_EQ(made.function, function);
      EXPECT_EQ(made.scalar("session"), session);
      EXPECT_EQ(made.scalar("device"), kDevice);
      EXPECT_EQ(made.scalar("value_set"), row.handle);
      return made;
    };
    const auto expect_parser = [](const Call &call) {
      EXPECT_EQ(call.scalar("direction"), 1u);
      EXPECT_EQ(call.scalar("pipe"), 2u);
      EXPECT_EQ(call.scalar("parser"), 17u);
    };
    Call made = run("set_property", {kDevice, 101, 102, 103}, "pipe_mgr_pvs_set_property");
    EXPECT_EQ(made.scalar("property"), 101u);
    EXPECT_EQ(made.scalar("value"), 102u);
    EXPECT_EQ(made.scalar("argument"), 103u);
    EXPECT_EQ(made.scalar("flags"), 0u);
    made = run("get_property", {kDevice, 101, word(&out), 103}, "pipe_mgr_pvs_get_property");
    EXPECT_EQ(made.scalar("property"), 101u);
    EXPECT_EQ(made.scalar("argument"), 103u);
    EXPECT_EQ(made.scalar("flags"), 0u);

    for (const auto &[operation, function] :
         {std::pair{"entry_add", "pipe_mgr_pvs_entry_add"},
          std::pair{"entry_handle_get", "pipe_mgr_pvs_entry_handle_get"}}) {
      made = run(operation, {word(&parser), 104, 105, word(&out)}, function);
      expect_parser(made);
      EXPECT_EQ(made.scalar("value"), 104u);
      EXPECT_EQ(made.scalar("mask"), 105u);
    }
    made = run("entry_modify", {kDevice, 106, 107, 108}, "pipe_mgr_pvs_entry_modify");
    EXPECT_EQ(made.scalar("entry"), 106u);
    EXPECT_EQ(made.scalar("value"), 107u);
    EXPECT_EQ(made.scalar("mask"), 108u);
    made = run("entry_delete", {kDevice, 109}, "pipe_mgr_pvs_entry_delete");
    EXPECT_EQ(made.scalar("entry"), 109u);
    made = run("entry_get", {kDevice, 110, word(&out), word(&out)}, "pipe_mgr_pvs_entry_get");
    EXPECT_EQ(made.scalar("entry"), 110u);
    made = run("entry_get_first_entry_handle", {word(&parser), word(&out)},
               "pipe_mgr_pvs_entry_get_first");
    expect_parser(made);
    uint32_t entries[3] = {};
    made = run("entry_get_next_entry_handles", {word(&parser), 111, 3, word(entries)},
               "pipe_mgr_pvs_entry_get_next");
    expect_parser(made);
    EXPECT_EQ(made.scalar("entry"), 111u);
    EXPECT_EQ(made.scalar("count"), 3u);
    made = run("entry_get_count", {word(&parser), 112, word(&out)}, "pipe_mgr_pvs_entry_get_count");
    expect_parser(made);
    EXPECT_EQ(made.scalar("read_from_hardware"), 112u);
  }
}

TEST_F(ValueSets, HoldEntries) {
  p4_pd_entry_handle_t first = 0;
  p4_pd_entry_handle_t second = 0;
  const auto add = [&](uint32_t value, p4_pd_entry_handle_t *entry) {
    return p4_pd_tessel_switch_pvs_fabric_port_entry_add(session, parser, value, 0xff, entry);
  };
  ASSERT_EQ(add(0x11, &first), BF_SUCCESS);
  ASSERT_EQ(add(0x22, &second), BF_SUCCESS);
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_modify(session, kDevice, first, 0x33, 0xf3),
            BF_SUCCESS);
  uint32_t value = 0;
  uint32_t mask = 0;
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get(session, kDevice, first, &value, &mask),
            BF_SUCCESS);
  EXPECT_EQ(value, 0x33u);
  EXPECT_EQ(mask, 0xf3u);
  p4_pd_entry_handle_t found = 0;
  ASSERT_EQ(
      p4_pd_tessel_switch_pvs_fabric_port_entry_handle_get(session, parser, 0x22, 0xff, &found),
      BF_SUCCESS);
  EXPECT_EQ(found, second);
  ASSERT_EQ(
      p4_pd_tessel_switch_pvs_fabric_port_entry_get_first_entry_handle(session, parser, &found),
      BF_SUCCESS);
  EXPECT_EQ(found, first);
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get_next_entry_handles(session, parser, first,
                                                                             1, &found),
            BF_SUCCESS);
  EXPECT_EQ(found, second);
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_delete(session, kDevice, second), BF_SUCCESS);
  uint32_t count = 0;
  ASSERT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get_count(session, parser, 0, &count),
            BF_SUCCESS);
  EXPECT_EQ(count, 1u);
  ASSERT_EQ(p4_pd_tessel_switch_pvs_recirc_ports_entry_get_count(session, parser, 0, &count),
            BF_SUCCESS);
  EXPECT_EQ(count, 0u);
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

TEST_F(ValueSets, RefuseNullPointers) {
  constexpr uint32_t kNull = P4_PD_NULL_ARGUMENT;
  uint32_t out = 9;
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_get_property(session, kDevice, 1, nullptr, 0),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_add(session, parser, 1, 1, nullptr), kNull);
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get(session, kDevice, 1, &out, nullptr),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get(session, kDevice, 1, nullptr, &out),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_pvs_fabric_port_entry_get_next_entry_handles(session, parser, 1, 1,
                                                                             nullptr),
            kNull);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(out, 9u);
}

}  // namespace
