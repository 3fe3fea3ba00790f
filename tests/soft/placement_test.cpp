// Placement data of entries and members, and the replay of a virtual device.
#include <array>

#include "program.hpp"
#include "tables/placement.hpp"

namespace {

using namespace soft_test;

// Placement data that is released with its scope.
struct Placement {
  pipe_mgr_placement_t *object = nullptr;

  Placement() = default;
  ~Placement() { soft_placement_free(object); }
  Placement(const Placement &) = delete;
  Placement &operator=(const Placement &) = delete;
};

// What a decoder fills, prepared as its callers do.
struct Decoded {
  Bytes value = Bytes(16, 0xa5), mask = Bytes(16, 0xa5), data = Bytes(16, 0xa5);
  pipe_mgr_match_spec_t match{};
  pipe_mgr_action_spec_t spec{};
  uint32_t action = 0;
  bf_status_t status;

  explicit Decoded(const Placement &placement) {
    match.value = value.data();
    match.mask = mask.data();
    spec.data.bytes = data.data();
    status = pipe_mgr_plcmt_mat_data_get_entry(placement.object, &match, &spec, &action);
  }
};

Bytes first(const Bytes &bytes, size_t count) {
  return {bytes.begin(), bytes.begin() + static_cast<ptrdiff_t>(count)};
}

// Calls on any of the devices.
class PlacementTest : public SoftTest {
 protected:
  static constexpr bf_device_id_t kVirtual = 7;

  void SetUp() override {
    SoftTest::SetUp();
    OK(soft_device_create(kVirtual, 2, &small_program(), true));
  }
  void TearDown() override {
    OK(soft_device_remove(kVirtual));
    SoftTest::TearDown();
  }

  uint32_t add(bf_device_id_t device, uint32_t table, const Key &key, uint32_t action,
               const Action &spec, uint32_t ttl = 0) {
    uint32_t entry = 0;
    OK(pipe_mgr_mat_ent_add(session, device, BF_ALL_PIPES, table, &key.spec, action, &spec.spec,
                            ttl, 0, &entry));
    return entry;
  }
  uint32_t add_member(bf_device_id_t device, uint8_t port) {
    Action send(9, {0x01, port});
    send.spec.type = 0;
    uint32_t member = 0;
    OK(pipe_mgr_adt_ent_add(session, device, BF_ALL_PIPES, kMembers, kSend, &send.spec, &member,
                            0));
    return member;
  }
  uint32_t add_group(bf_device_id_t device) {
    uint32_t group = 0;
    OK(pipe_mgr_sel_grp_add(session, device, BF_ALL_PIPES, kSelector, 4, &group, 0));
    return group;
  }
  void join(uint32_t group, uint32_t member) {
    OK(pipe_mgr_sel_grp_mbr_add(session, kVirtual, kSelector, group, kSend, member, 0));
  }
  // An entry of kLag that points at a member or group.
  uint32_t add_lag(bf_device_id_t device, uint8_t number, uint32_t type, uint32_t reference) {
    Action to;
    to.spec.type = type;
    (type == PIPE_ACTION_MEMBER ? to.spec.member : to.spec.group) = reference;
    return add(device, kLag, Key(8, {number}, {0xff}), kSend, to);
  }
};

TEST_F(PlacementTest, OfAnEntryHoldsItsKeyAndAction) {
  Action forward(9, {0x01, 0x23});
  forward.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH);
  const uint32_t host =
      add(kVirtual, kHost, Key(20, {0x0a, 0xbc, 0x2d}, {0xff, 0xff, 0xff}), kForward, forward);
  Placement placement;
  OK(soft_placement_of_entry(kVirtual, kHost, host, &placement.object));
  OK(pipe_mgr_mat_ent_del(session, kVirtual, kHost, host, 0));

  const Decoded decoded(placement);  // needs the entry no longer
  OK(decoded.status);
  EXPECT_EQ(decoded.match.value, decoded.value.data());
  EXPECT_EQ(decoded.match.byte_count, 3);
  EXPECT_EQ(decoded.match.valid_bit_count, 20);
  EXPECT_EQ(first(decoded.value, 4), (Bytes{0x0a, 0xbc, 0x2d, 0xa5}));
  EXPECT_EQ(first(decoded.mask, 4), (Bytes{0xff, 0xff, 0xff, 0xa5}));
  EXPECT_EQ(decoded.action, kForward);
  EXPECT_EQ(decoded.spec.type, PIPE_ACTION_DATA);
  EXPECT_EQ(decoded.spec.data.bytes, decoded.data.data());
  EXPECT_EQ(decoded.spec.data.byte_count, 2);
  EXPECT_EQ(decoded.spec.data.valid_bit_count, 9);
  EXPECT_EQ(first(decoded.data, 3), (Bytes{0x01, 0x23, 0xa5}));
  ASSERT_EQ(decoded.spec.resource_count, 1u);
  EXPECT_EQ(decoded.spec.resources[0].handle, kHostCount);
  EXPECT_EQ(decoded.spec.resources[0].tag, PIPE_RESOURCE_ATTACH);
}

TEST_F(PlacementTest, OfADefaultEntryHasNoKey) {
  const Action permit(35, {1, 2, 3, 4, 5});
  uint32_t entry = 0;
  OK(pipe_mgr_mat_default_entry_set(session, kVirtual, BF_ALL_PIPES, kAcl, kPermit, &permit.spec, 0,
                                    &entry));
  Placement of_acl, of_encap;
  OK(soft_placement_of_entry(kVirtual, kAcl, entry, &of_acl.object));
  const Decoded acl(of_acl);
  OK(acl.status);
  EXPECT_EQ(acl.match.value, nullptr);
  EXPECT_EQ(acl.match.mask, nullptr);
  EXPECT_EQ(acl.match.byte_count, 0);
  EXPECT_EQ(acl.value[0], 0xa5);
  EXPECT_EQ(first(acl.data, 6), (Bytes{1, 2, 3, 4, 5, 0xa5}));

  // The only entry of a keyless table.
  OK(pipe_mgr_table_get_default_entry_handle(session, kVirtual, BF_ALL_PIPES, kEncap, &entry));
  OK(soft_placement_of_entry(kVirtual, kEncap, entry, &of_encap.object));
  const Decoded encap(of_encap);
  EXPECT_EQ(encap.match.value, nullptr);
  EXPECT_EQ(encap.action, kWrap);
  EXPECT_EQ(first(encap.data, 4), (Bytes{0, 0, 0, 0xa5}));
}

TEST_F(PlacementTest, OfAProfileBoundEntryNamesItsMemberOrGroup) {
  const uint32_t member = add_member(kVirtual, 9);
  const uint32_t group = add_group(kVirtual);
  Placement to_member, to_group, of_member;
  OK(soft_placement_of_entry(kVirtual, kLag, add_lag(kVirtual, 1, PIPE_ACTION_MEMBER, member),
                             &to_member.object));
  OK(soft_placement_of_entry(kVirtual, kLag, add_lag(kVirtual, 2, PIPE_ACTION_GROUP, group),
                             &to_group.object));
  const Decoded by_member(to_member), by_group(to_group);
  EXPECT_EQ(by_member.spec.type, PIPE_ACTION_MEMBER);
  EXPECT_EQ(by_member.spec.member, member);
  EXPECT_EQ(by_member.spec.group, 0u);
  EXPECT_EQ(by_group.spec.type, PIPE_ACTION_GROUP);
  EXPECT_EQ(by_group.spec.group, group);
  EXPECT_EQ(by_group.value[0], 2);

  OK(soft_placement_of_member(kVirtual, kMembers, member, &of_member.object));
  Bytes bytes(4, 0xa5);
  pipe_mgr_action_data_t data{0, 0, bytes.data()};
  uint32_t action = 0;
  OK(pipe_mgr_plcmt_adt_data_get_entry(of_member.object, &data, &action));
  EXPECT_EQ(action, kSend);
  EXPECT_EQ(data.byte_count, 2);
  EXPECT_EQ(data.valid_bit_count, 9);
  EXPECT_EQ(bytes, (Bytes{0x01, 0x09, 0xa5, 0xa5}));

  // One kind is not taken for the other.
  EXPECT_EQ(pipe_mgr_plcmt_adt_data_get_entry(to_member.object, &data, &action),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(Decoded(of_member).status, BF_INVALID_ARGUMENT);
}

TEST_F(PlacementTest, DecodersTellWhatTheSdkDidNotMake) {
  const uint32_t acl = add(kDevice, kAcl, Key(16, {1, 2}, {0xff, 0xff}, 1), kDeny, Action());
  Placement entry, member;
  OK(soft_placement_of_entry(kDevice, kAcl, acl, &entry.object));
  OK(soft_placement_of_member(kDevice, kMembers, add_member(kDevice, 1), &member.object));
  soft_placement_corrupt(entry.object);
  soft_placement_corrupt(member.object);
  const Decoded decoded(entry);
  EXPECT_EQ(decoded.status, BF_CORRUPT_DATA);
  EXPECT_EQ(decoded.value[0], 0xa5);
  EXPECT_EQ(decoded.match.value, decoded.value.data());
  EXPECT_EQ(decoded.action, 0u);
  pipe_mgr_action_data_t data{};
  uint32_t action = 0;
  EXPECT_EQ(pipe_mgr_plcmt_adt_data_get_entry(member.object, &data, &action), BF_CORRUPT_DATA);
  EXPECT_EQ(Decoded(Placement()).status, BF_INVALID_ARGUMENT);
  alignas(8) const uint8_t zeros[64] = {};
  EXPECT_EQ(pipe_mgr_plcmt_adt_data_get_entry(reinterpret_cast<const pipe_mgr_placement_t *>(zeros),
                                              &data, &action),
            BF_CORRUPT_DATA);

  pipe_mgr_placement_t *none = nullptr;
  EXPECT_EQ(soft_placement_of_entry(kDevice, kAcl, acl + 1, &none), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(soft_placement_of_entry(kDevice, kMembers, 1, &none), BF_INVALID_HANDLE);
  EXPECT_EQ(soft_placement_of_member(kDevice, kMembers, 99, &none), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(soft_placement_of_member(kDevice, kAcl, acl, &none), BF_INVALID_HANDLE);
  EXPECT_EQ(none, nullptr);
}

TEST_F(PlacementTest, AnyChangedBitIsNoticed) {
  Action forward(9, {0x01, 0x23});
  forward.resource(kHostCount, 0, PIPE_RESOURCE_ATTACH);
  const uint32_t host =
      add(kDevice, kHost, Key(20, {0x0a, 0xbc, 0x2d}, {0xff, 0xff, 0xff}), kForward, forward);
  Placement placement;
  OK(soft_placement_of_entry(kDevice, kHost, host, &placement.object));
  uint8_t *const contents = placement.object->contents();
  for (size_t bit = 0; bit < 8 * placement.object->length; ++bit) {
    const auto flip = static_cast<uint8_t>(1u << bit % 8);
    contents[bit / 8] ^= flip;
    ASSERT_EQ(Decoded(placement).status, BF_CORRUPT_DATA) << bit;
    contents[bit / 8] ^= flip;
  }
  OK(Decoded(placement).status);
  placement.object->length -= 8;
  EXPECT_EQ(Decoded(placement).status, BF_CORRUPT_DATA);
}

TEST_F(PlacementTest, AnObjectIsUsedAgainAsLongAsItHasRoom) {
  const uint32_t member = add_member(kDevice, 9);
  const uint32_t host =
      add(kDevice, kHost, Key(20, {1, 2, 3}, {0xff, 0xff, 0xff}), kForward, Action(9, {0, 7}));
  const uint32_t drop =
      add(kDevice, kHost, Key(20, {4, 5, 6}, {0xff, 0xff, 0xff}), kDrop, Action());
  Placement placement;
  OK(soft_placement_of_member(kDevice, kMembers, member, &placement.object));
  OK(soft_placement_of_entry(kDevice, kHost, host, &placement.object));
  const pipe_mgr_placement_t *const object = placement.object;
  OK(soft_placement_of_entry(kDevice, kHost, drop, &placement.object));
  EXPECT_EQ(placement.object, object);
  {
    const Decoded decoded(placement);
    OK(decoded.status);
    EXPECT_EQ(first(decoded.value, 3), (Bytes{4, 5, 6}));
    EXPECT_EQ(decoded.action, kDrop);
    EXPECT_EQ(decoded.spec.data.byte_count, 0);
    EXPECT_EQ(decoded.data[0], 0xa5);
  }

  // What fails leaves it, what has gone bad is made anew.
  EXPECT_EQ(soft_placement_of_entry(kDevice, kHost, drop + 1, &placement.object),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(placement.object, object);
  EXPECT_EQ(Decoded(placement).action, kDrop);
  soft_placement_corrupt(placement.object);
  OK(soft_placement_of_member(kDevice, kMembers, member, &placement.object));
  EXPECT_EQ(placement.object, object);
  uint8_t bytes[2] = {};
  pipe_mgr_action_data_t data{0, 0, bytes};
  uint32_t action = 0;
  OK(pipe_mgr_plcmt_adt_data_get_entry(placement.object, &data, &action));
  EXPECT_EQ(bytes[1], 9);
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

class Replay : public PlacementTest {
 protected:
  void SetUp() override {
    PlacementTest::SetUp();
    told.clear();
    told_limit = 100;
    // A virtual device with some history, so that handles are no row of numbers.
    const uint32_t gone = add_member(kVirtual, 1);
    member_a = add_member(kVirtual, 2);
    member_b = add_member(kVirtual, 3);
    OK(pipe_mgr_adt_ent_del(session, kVirtual, kMembers, gone, 0));
    group = add_group(kVirtual);
    empty_group = add_group(kVirtual);
    join(group, member_b);
    join(group, member_a);
    OK(pipe_mgr_sel_grp_mbr_disable(session, kVirtual, kSelector, group, member_a, 0));
    OK(pipe_mgr_sel_fallback_mbr_set(session, kVirtual, BF_ALL_PIPES, kSelector, member_a, 0));
    lag = add_lag(kVirtual, 1, PIPE_ACTION_GROUP, group);
  }
  bf_status_t replay(bf_device_id_t from = kVirtual, bf_pipe_id_t pipe = BF_ALL_PIPES) {
    return pipe_mgr_hitless_ha_restore_virtual_dev_state(session, kDevice, from, pipe, 5, hear);
  }
  uint32_t hit(bf_device_id_t device, uint32_t table, const Bytes &key) {
    uint32_t entry = 0;
    bool is_default = false;
    OK(soft_lookup(device, 0, table, key.data(), static_cast<uint32_t>(key.size()), &entry,
                   &is_default));
    return is_default ? 0 : entry;
  }

  uint32_t member_a = 0, member_b = 0, group = 0, empty_group = 0, lag = 0;
};

TEST_F(Replay, ReportsMembersThenGroupsThenMemberships) {
  OK(replay());
  EXPECT_EQ(told, (std::vector<Told>{{kMembers, kSend, 0, member_a, 0},
                                     {kMembers, kSend, 0, member_b, 0},
                                     {kMembers, 0, group, 0, 0},
                                     {kMembers, 0, empty_group, 0, 0},
                                     {kMembers, kSend, group, member_a, 0},
                                     {kMembers, kSend, group, member_b, 0}}));
}

TEST_F(Replay, ProfilesKeepHandlesStatesAndReferences) {
  const uint32_t before = add_member(kDevice, 9);  // gives way
  OK(replay());
  uint8_t bytes[2] = {};
  pipe_mgr_action_data_t data{0, 2, bytes};
  uint32_t action = 0, state = 99, member = 0;
  OK(pipe_mgr_get_action_data_entry(kMembers, kDevice, member_b, &data, &action, false));
  EXPECT_EQ(bytes[1], 3);
  EXPECT_EQ(pipe_mgr_get_action_data_entry(kMembers, kDevice, before, &data, &action, false),
            BF_OBJECT_NOT_FOUND);
  OK(pipe_mgr_sel_grp_mbr_state_get(session, kDevice, kSelector, group, member_a, &state));
  EXPECT_EQ(state, PIPE_MEMBER_INACTIVE);
  const uint8_t hash[] = {0};
  OK(pipe_mgr_sel_grp_mbr_get_from_hash(session, kDevice, kSelector, group, hash, 1, &member));
  EXPECT_EQ(member, member_b);
  OK(pipe_mgr_sel_grp_mbr_get_from_hash(session, kDevice, kSelector, empty_group, hash, 1,
                                        &member));
  EXPECT_EQ(member, member_a) << "the fallback";

  EXPECT_EQ(pipe_mgr_sel_grp_del(session, kDevice, kSelector, group, 0), BF_IN_USE);
  OK(pipe_mgr_mat_ent_del(session, kDevice, kLag, lag, 0));
  OK(pipe_mgr_sel_grp_del(session, kDevice, kSelector, group, 0));
  OK(pipe_mgr_adt_ent_del(session, kDevice, kMembers, member_b, 0));

  // New objects do not meet the old handles, and the virtual device is one of its own.
  EXPECT_NE(add_member(kDevice, 5), member_a);
  EXPECT_EQ(pipe_mgr_sel_grp_del(session, kVirtual, kSelector, group, 0), BF_IN_USE);
  OK(pipe_mgr_sel_grp_mbr_enable(session, kVirtual, kSelector, group, member_a, 0));
}

TEST_F(Replay, CallbackMayEndItAndTheDeviceIsComplete) {
  told_limit = 3;
  EXPECT_EQ(replay(), 77u);
  EXPECT_EQ(told.size(), 3u);
  uint32_t members = 0;
  OK(pipe_mgr_get_sel_grp_mbr_count(session, kDevice, kSelector, group, &members));
  EXPECT_EQ(members, 2u);
  EXPECT_EQ(hit(kDevice, kLag, {1}), lag);

  told.clear();
  told_limit = 100;
  OK(replay()) << "a second one takes the place of the first";
  EXPECT_EQ(told.size(), 6u);
}

TEST_F(Replay, TakesOnlyAVirtualDeviceThatIsAlike) {
  OK(soft_device_create(8, 2, &small_program(), false));
  OK(soft_device_create(9, 1, &small_program(), true));
  OK(soft_device_create(10, 2, &other_program(), true));
  for (const bf_device_id_t unfit : {4u, 8u, 9u, 10u}) {
    EXPECT_EQ(replay(unfit), BF_INVALID_ARGUMENT) << unfit;
  }
  EXPECT_EQ(replay(11), BF_INVALID_DEVICE);
  EXPECT_EQ(replay(kVirtual, 2), BF_INVALID_PIPE);
  EXPECT_EQ(replay(kVirtual, 1), BF_NOT_SUPPORTED);
  EXPECT_TRUE(told.empty());
  uint32_t members = 9;
  OK(pipe_mgr_get_entry_count(session, kDevice, BF_ALL_PIPES, kMembers, 0, &members));
  EXPECT_EQ(members, 0u);
  for (const bf_device_id_t device : {8u, 9u, 10u}) {
    OK(soft_device_remove(device));
  }
}

}  // namespace
