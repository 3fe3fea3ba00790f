// Placement data that is not what the SDK made, and what the replay of a virtual device reports.
// What is in placement data and what a replay does to a device is compared beside the model.
#include "tables/placement.hpp"

#include <array>

#include "calls.hpp"

namespace {

using namespace soft_test;

class Placements : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    Action send(9, {0x01, 0x09});
    OK(add_host(1, &host));
    OK(pipe_mgr_adt_ent_add(session, kDevice, kAll, kMembers, kSend, &send.spec, &member, 0));
  }
  void TearDown() override {
    soft_placement_free(placed);
    SoftTest::TearDown();
  }
  void place_host() { OK(soft_placement_of_entry(kDevice, kHost, host, &placed)); }
  void place_member() { OK(soft_placement_of_member(kDevice, kMembers, member, &placed)); }
  bf_status_t open_entry() {
    room.clear();
    return pipe_mgr_plcmt_mat_data_get_entry(placed, &room.match, &room.action, room.word);
  }
  bf_status_t open_member() {
    room.clear();
    return pipe_mgr_plcmt_adt_data_get_entry(placed, &room.data, room.word);
  }

  uint32_t host = 0, member = 0;
  pipe_mgr_placement_t *placed = nullptr;
  Room room;
};

TEST_F(Placements, AnyChangedBitIsNoticed) {
  place_host();
  uint8_t *const contents = placed->contents();
  for (size_t bit = 0; bit < 8 * placed->length; ++bit) {
    const auto flip = static_cast<uint8_t>(1u << bit % 8);
    contents[bit / 8] ^= flip;
    ASSERT_EQ(open_entry(), BF_CORRUPT_DATA) << bit;
    ASSERT_EQ(room.bytes[0], 0xa5);
    contents[bit / 8] ^= flip;
  }
  OK(open_entry());
  placed->length -= 8;
  EXPECT_EQ(open_entry(), BF_CORRUPT_DATA);
}

TEST_F(Placements, AnObjectKeepsItsKind) {
  place_member();
  EXPECT_EQ(open_entry(), BF_INVALID_ARGUMENT);
  soft_placement_corrupt(placed);
  EXPECT_EQ(open_member(), BF_CORRUPT_DATA);
  place_host();  // what has gone bad is made anew
  EXPECT_EQ(open_member(), BF_INVALID_ARGUMENT);
  alignas(8) uint8_t zeros[64] = {};
  EXPECT_EQ(pipe_mgr_plcmt_adt_data_get_entry(reinterpret_cast<pipe_mgr_placement_t *>(zeros),
                                              &room.data, room.word),
            BF_CORRUPT_DATA);
}

// ---- Replay ----

// What the callback was given: table, action, group, member, has_resources.
using Told = std::array<uint32_t, 5>;
std::vector<Told> told;
size_t told_limit = 0;  // the callback refuses what comes after so many

bf_status_t hear(pipe_session_handle_t, uint8_t device, uint32_t table, uint32_t action,
                 uint32_t group, uint32_t member, uint32_t has_resources) {
  EXPECT_EQ(device, 4u);
  if (told.size() == told_limit) return 77;
  told.push_back({table, action, group, member, has_resources});
  return BF_SUCCESS;
}

class Replay : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    OK(soft_device_create(kVirtual, 2, &small_program(), true));
    told.clear();
    told_limit = 100;
  }
  void TearDown() override {
    OK(soft_device_remove(kVirtual));
    SoftTest::TearDown();
  }
  bf_status_t replay(bf_device_id_t from = kVirtual, bf_pipe_id_t pipe = kAll) {
    return pipe_mgr_hitless_ha_restore_virtual_dev_state(session, kDevice, from, pipe, 5, hear);
  }
};

TEST_F(Replay, ReportsMembersThenGroupsThenMemberships) {
  uint32_t members[2], group = 0, held = 0;
  const Action send(9, {0x01, 0x09});
  OK(pipe_mgr_sel_grp_add(session, kVirtual, kAll, kSelector, 4, &group, 0));
  for (uint32_t &member : members) {
    OK(pipe_mgr_adt_ent_add(session, kVirtual, kAll, kMembers, kSend, &send.spec, &member, 0));
    OK(pipe_mgr_sel_grp_mbr_add(session, kVirtual, kSelector, group, kSend, member, 0));
  }
  const std::vector<Told> all{{kMembers, kSend, 0, members[0], 0},
                              {kMembers, kSend, 0, members[1], 0},
                              {kMembers, 0, group, 0, 0},
                              {kMembers, kSend, group, members[0], 0},
                              {kMembers, kSend, group, members[1], 0}};
  for (told_limit = 0; told_limit < all.size(); ++told_limit) {
    told.clear();
    EXPECT_EQ(replay(), 77u);
    EXPECT_EQ(told, std::vector<Told>(all.begin(), all.begin() + static_cast<int>(told_limit)));
    OK(pipe_mgr_get_sel_grp_mbr_count(session, kDevice, kSelector, group, &held));
    EXPECT_EQ(held, 2u) << "the device is complete";
  }
  told.clear();
  OK(replay()) << "another one takes the place of the last";
  EXPECT_EQ(told, all);
}

TEST_F(Replay, TakesOnlyAVirtualDeviceThatIsAlike) {
  EXPECT_EQ(replay(kDevice), BF_INVALID_ARGUMENT);
  for (const auto &[pipes, program, is_virtual] : {std::tuple{2u, &small_program(), false},
                                                   {1u, &small_program(), true},
                                                   {2u, &other_program, true}}) {
    OK(soft_device_create(8, pipes, program, is_virtual));
    EXPECT_EQ(replay(8), BF_INVALID_ARGUMENT);
    OK(soft_device_remove(8));
  }
  EXPECT_EQ(replay(8), BF_INVALID_DEVICE);
  EXPECT_EQ(replay(kVirtual, 1), BF_NOT_SUPPORTED);
  EXPECT_TRUE(told.empty());
}

}  // namespace
