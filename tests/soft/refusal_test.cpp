// What an entry, a member, a membership or a value of parsers cannot be made of. No typed call says
// such things, so random calls of a library do not meet them.
#include "program.hpp"

namespace {

using namespace soft_test;

class Refusals : public SoftTest {
 protected:
  struct Case {
    bf_status_t expected;
    uint32_t table, action;
    std::function<void(Action &)> change;  // of a spec with the data that the action has
  };
  using Change = std::function<void(Action &)>;

  static Change attach(uint32_t handle, uint32_t index = 0, uint32_t unit = PIPE_RATE_BYTES) {
    return [=](Action &action) {
      pipe_mgr_resource_t &added = action.resource(handle, index);
      if (handle == kAclMeter) added.data.meter = meter_spec(unit, 1, 1, 1, 1);
    };
  }
  static Change point(uint32_t type) {
    return [=](Action &action) { action.spec.type = type; };
  }

  void try_entry(const Case &one) const {
    const bool has_data = one.action == kForward || one.action == kSend;
    Action made(has_data ? 9 : 0, has_data ? Bytes{0, 1} : Bytes{});
    one.change(made);
    const size_t bytes = one.table == kAcl ? 2 : one.table == kHost ? 3 : 1;
    const Key key(bytes == 3 ? 20 : static_cast<uint16_t>(8 * bytes), Bytes(bytes, 1),
                  Bytes(bytes, 255));
    uint32_t entry = kNowhere;
    EXPECT_EQ(pipe_mgr_mat_ent_add(session, kDevice, kAll, one.table, &key.spec, one.action,
                                   &made.spec, 0, 0, &entry),
              one.expected);
    EXPECT_EQ(entry == kNowhere, one.expected != BF_SUCCESS);
    EXPECT_EQ(count(one.table), one.expected == BF_SUCCESS ? 1u : 0u);
    if (one.expected == BF_SUCCESS) {
      OK(pipe_mgr_mat_ent_del(session, kDevice, one.table, entry, 0));
    }
  }
};

TEST_F(Refusals, OfActionsOfEntries) {
  const auto plain = [](Action &) {};
  const Case cases[] = {
      {BF_SUCCESS, kHost, kForward, plain},
      {BF_SUCCESS, kAcl, kDeny, attach(kAclMeter)},
      {BF_FOREIGN_ACTION, kHost, kDeny, plain},
      {BF_INVALID_ARGUMENT, kHost, kDrop, plain},  // the default only
      {BF_WRONG_LENGTH, kHost, kForward, [](Action &a) { a.spec.data.byte_count = 1; }},
      {BF_WRONG_LENGTH, kHost, kForward, [](Action &a) { a.spec.data.valid_bit_count = 10; }},
      {BF_INVALID_ARGUMENT, kHost, kForward, point(PIPE_ACTION_MEMBER)},
      {BF_INVALID_ARGUMENT, kLag, kFlood, point(PIPE_ACTION_DATA)},
      {BF_OBJECT_NOT_FOUND, kLag, kFlood, point(PIPE_ACTION_GROUP)},
      {BF_INVALID_ARGUMENT, kBridge, kFlood, point(PIPE_ACTION_GROUP)},  // has no selector
      {BF_OBJECT_NOT_FOUND, kBridge, kFlood, point(PIPE_ACTION_MEMBER)},
      {BF_INVALID_HANDLE, kAcl, kDeny, attach(0x04000099)},
      {BF_INVALID_ARGUMENT, kAcl, kDeny, attach(kHostCount)},  // of another table
      {BF_INVALID_ARGUMENT, kAcl, kDeny, attach(kAclCount, SOFT_COUNTER_CELLS)},
      {BF_INVALID_ARGUMENT, kAcl, kDeny, attach(kPoliceMeter, SOFT_METER_CELLS)},
      {BF_INVALID_ARGUMENT, kAcl, kDeny, attach(kWordRegister, SOFT_REGISTER_CELLS)},
      {BF_INVALID_ARGUMENT, kAcl, kDeny, attach(kAclMeter, 0, PIPE_RATE_PACKETS)},
      {BF_INVALID_ARGUMENT, kAcl, kDeny,
       [](Action &a) { a.resource(kAclCount).tag = PIPE_RESOURCE_DETACH + 1; }},
      {BF_INVALID_ARGUMENT, kAcl, kDeny,
       [](Action &a) { a.spec.resource_count = PIPE_RESOURCES_PER_ACTION + 1; }},
  };
  for (const Case &one : cases) {
    SCOPED_TRACE(&one - cases);
    try_entry(one);
  }
}

TEST_F(Refusals, OfMembersAndMemberships) {
  Action send(9, {0, 1});
  uint32_t member = 0, group = 0, refused = kNowhere;
  const auto add = [&](uint32_t action, uint32_t *made) {
    return pipe_mgr_adt_ent_add(session, kDevice, kAll, kMembers, action, &send.spec, made, 0);
  };
  OK(add(kSend, &member));
  OK(pipe_mgr_sel_grp_add(session, kDevice, kAll, kSelector, 0, &group, 0));
  EXPECT_EQ(add(kDeny, &refused), BF_FOREIGN_ACTION);
  EXPECT_EQ(add(kFlood, &refused), BF_WRONG_LENGTH);
  send.spec.type = PIPE_ACTION_MEMBER;
  EXPECT_EQ(add(kSend, &refused), BF_INVALID_ARGUMENT);
  send.spec.type = PIPE_ACTION_DATA;
  send.resource(kAclCount);
  EXPECT_EQ(add(kSend, &refused), BF_INVALID_ARGUMENT);
  EXPECT_EQ(refused, kNowhere);
  const auto join = [&](uint32_t action) {
    return pipe_mgr_sel_grp_mbr_add(session, kDevice, kSelector, group, action, member, 0);
  };
  EXPECT_EQ(join(kDeny), BF_FOREIGN_ACTION);
  EXPECT_EQ(join(kFlood), BF_INVALID_ARGUMENT) << "the member has another action";
  OK(join(kSend));
}

TEST_F(Refusals, OfValuesOfParsers) {
  uint32_t entry = kNowhere;
  EXPECT_EQ(pipe_mgr_pvs_set_property(session, kDevice, kPortSet, 2, 0, 0, 0), BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_pvs_get_property(session, kDevice, kPortSet, 0, &entry, 0, 0),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 2, 0, 0, 1, 1, &entry),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_value_set_match(kDevice, kPortSet, 0, 0, SOFT_ALL_PARSERS, 1, &entry),
            BF_INVALID_ARGUMENT);
  for (const uint32_t from : {0u, 8u}) {  // never issued
    EXPECT_EQ(pipe_mgr_pvs_entry_get_next(session, kDevice, kPortSet, 0, 0, 0, from, 1, &entry),
              BF_OBJECT_NOT_FOUND);
  }
  EXPECT_EQ(entry, kNowhere);
}

}  // namespace
