// Entries of a table that is bound to an action profile: they name members and groups, and keep
// them in use.
#include "entries_program.hpp"

namespace {

using namespace soft_test;

constexpr uint32_t kMembers = 0x02000005;
constexpr uint32_t kGroups = 0x03000005;

class BoundEntries : public EntriesTest {
 protected:
  uint32_t add_member(uint8_t port) {
    Action send(9, {0x00, port});
    send.spec.type = 0;
    uint32_t member = 0;
    EXPECT_EQ(pipe_mgr_adt_ent_add(session, kDevice, BF_ALL_PIPES, kMembers, kSend, &send.spec,
                                   &member, 0),
              BF_SUCCESS);
    return member;
  }
  bf_status_t del_member(uint32_t member) {
    return pipe_mgr_adt_ent_del(session, kDevice, kMembers, member, 0);
  }
  static pipe_mgr_action_spec_t naming(uint32_t type, uint32_t handle) {
    pipe_mgr_action_spec_t spec{};
    spec.type = type;
    (type == PIPE_ACTION_MEMBER ? spec.member : spec.group) = handle;
    return spec;
  }
  bf_status_t add_lag(uint8_t number, const pipe_mgr_action_spec_t &spec, uint32_t *entry) {
    const Key key(8, {number}, {0xff});
    return pipe_mgr_mat_ent_add(session, kDevice, 0, kLag, &key.spec, kSend, &spec, 0, 0, entry);
  }
};

TEST_F(BoundEntries, KeepTheirMemberInUse) {
  const uint32_t first = add_member(1), second = add_member(2);
  const auto to_first = naming(PIPE_ACTION_MEMBER, first);
  const auto to_second = naming(PIPE_ACTION_MEMBER, second);
  const auto to_none = naming(PIPE_ACTION_MEMBER, second + 1000);
  uint32_t entry = 0, other = 0;
  EXPECT_EQ(add_lag(1, to_none, &entry), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(add_lag(1, to_first, &entry), BF_SUCCESS);
  EXPECT_EQ(add_lag(1, to_second, &other), BF_ALREADY_EXISTS);
  EXPECT_EQ(del_member(first), BF_IN_USE);

  // A change moves the reference, a refused one leaves it where it was.
  EXPECT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kLag, entry, kSend, &to_none, 0),
            BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(del_member(first), BF_IN_USE);
  ASSERT_EQ(pipe_mgr_mat_ent_set_action(session, kDevice, kLag, entry, kSend, &to_second, 0),
            BF_SUCCESS);
  EXPECT_EQ(del_member(first), BF_SUCCESS);
  EXPECT_EQ(del_member(second), BF_IN_USE);

  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kLag, entry, 0), BF_SUCCESS);
  EXPECT_EQ(del_member(second), BF_SUCCESS) << "a refused add left no reference behind";
}

TEST_F(BoundEntries, DefaultEntriesReferToo) {
  const uint32_t first = add_member(1), second = add_member(2);
  uint32_t entry = 0;
  for (uint32_t member : {first, second}) {
    const auto spec = naming(PIPE_ACTION_MEMBER, member);
    ASSERT_EQ(pipe_mgr_mat_default_entry_set(session, kDevice, 0, kLag, kSend, &spec, 0, &entry),
              BF_SUCCESS);
    EXPECT_EQ(del_member(member), BF_IN_USE);
  }
  EXPECT_EQ(del_member(first), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_mat_tbl_default_entry_reset(session, kDevice, 0, kLag, 0), BF_SUCCESS);
  EXPECT_EQ(del_member(second), BF_SUCCESS);
}

}  // namespace
