// Counters, meters and registers that entries refer to.
#include "entries_program.hpp"

namespace {

using namespace soft_test;
using EntryResources = EntriesTest;
using Bytes = std::vector<uint8_t>;

TEST_F(EntryResources, RefusesResourcesThatAreNotTheirs) {
  const Key key(20, {0x00, 0x10, 0x01}, {0xff, 0xff, 0xff});
  const auto with = [&](uint32_t handle, uint32_t tag) {
    Action forward(9, {0x00, 0x01});
    forward.resource(handle, 0, tag);
    uint32_t entry = 0;
    return add(kHost, key, kForward, forward, &entry);
  };
  EXPECT_EQ(with(0x04000099, PIPE_RESOURCE_ATTACH), BF_INVALID_HANDLE);
  EXPECT_EQ(with(0x01000002, PIPE_RESOURCE_ATTACH), BF_INVALID_HANDLE);
  EXPECT_EQ(with(kAclMeter, PIPE_RESOURCE_ATTACH), BF_INVALID_ARGUMENT) << "direct to kAcl";
  EXPECT_EQ(with(kHostCount, 3), BF_INVALID_ARGUMENT);
  EXPECT_EQ(count(kHost), 0u);
  EXPECT_EQ(with(kHostCount, PIPE_RESOURCE_ATTACH), BF_SUCCESS);
}

TEST_F(EntryResources, NameCellsThatThereAre) {
  const Key key(16, {0x08, 0x00}, {0xff, 0xff}, 1);
  uint32_t entry = 0;
  for (const uint32_t handle : {kAclCount, kPoliceMeter}) {
    Action beyond(35, {0, 0, 0, 0, 1});
    beyond.resource(handle, 0x400000, PIPE_RESOURCE_ATTACH);
    EXPECT_EQ(add(kAcl, key, kPermit, beyond, &entry), BF_INVALID_ARGUMENT);
    EXPECT_EQ(count(kAcl), 0u);
    Action last(35, {0, 0, 0, 0, 1});
    last.resource(handle, 0x3fffff, PIPE_RESOURCE_ATTACH);
    EXPECT_EQ(add(kAcl, key, kPermit, last, &entry), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kAcl, entry, kPermit, &beyond.spec, 0),
              BF_INVALID_ARGUMENT);
    EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0), BF_SUCCESS);
  }
}

// Handles of the resources of an entry, in order.
std::vector<uint32_t> resources_of(const pipe_mgr_action_spec_t &spec) {
  std::vector<uint32_t> handles;
  for (uint32_t i = 0; i < spec.resource_count; ++i) handles.push_back(spec.resources[i].handle);
  return handles;
}

TEST_F(EntryResources, KeepsDirectResourcesThatAModifyDoesNotName) {
  const Key key(16, {0x08, 0x00}, {0xff, 0xff}, 1);
  Action permit(35, {0, 0, 0, 0, 1});
  permit.resource(kAclCount, 4, PIPE_RESOURCE_ATTACH);
  permit.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH).data.meter.peak_burst = 55;
  uint32_t entry = 0;
  ASSERT_EQ(add(kAcl, key, kPermit, permit, &entry), BF_SUCCESS);

  const auto read = [&](Action &into) {
    Key got(16, {0, 0}, {0, 0});
    uint32_t action = 0;
    EXPECT_EQ(
        pipe_mgr_get_entry(session, kAcl, kDevice, entry, &got.spec, &into.spec, &action, false),
        BF_SUCCESS);
  };
  Action before(0, Bytes(28));
  read(before);
  EXPECT_EQ(resources_of(before.spec), (std::vector<uint32_t>{kAclCount, kAclMeter}));
  EXPECT_EQ(before.spec.resources[0].index, 4u);

  Action deny;
  deny.resource(kAclMeter, 0, PIPE_RESOURCE_KEEP);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kAcl, entry, kDeny, &deny.spec, 0),
            BF_SUCCESS);
  Action after(0, Bytes(28));
  read(after);
  EXPECT_EQ(resources_of(after.spec), (std::vector<uint32_t>{kAclMeter}))
      << "the indirect counter belonged to the old action";
  EXPECT_EQ(after.spec.resources[0].data.meter.peak_burst, 55u);

  pipe_mgr_resource_t changes[3] = {};
  changes[0].handle = kAclMeter;
  changes[0].tag = PIPE_RESOURCE_DETACH;
  changes[1].handle = kPoliceMeter;
  changes[1].index = 2;
  changes[1].tag = PIPE_RESOURCE_ATTACH;
  changes[2] = changes[1];
  changes[2].index = 3;
  ASSERT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kAcl, entry, changes, 3, 0),
            BF_SUCCESS);
  Action last(0, Bytes(28));
  read(last);
  EXPECT_EQ(resources_of(last.spec), (std::vector<uint32_t>{kPoliceMeter}));
  EXPECT_EQ(last.spec.resources[0].index, 3u);
  EXPECT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kAcl, entry, nullptr, 1, 0),
            BF_INVALID_ARGUMENT);
}

}  // namespace
