// Profiles, counters and meters without memory: each call says so and changes nothing. Replaces
// operator new, so this file is a program of its own.
#include <cjson/cJSON.h>

#include "limited_memory.hpp"
#include "p4_pd_ms.h"
#include "profile_program.hpp"

namespace {

using namespace soft_test;

class ProfileMemory : public ProfileTest {
 protected:
  uint32_t size_of(uint32_t group) {
    uint32_t held = 0;
    EXPECT_EQ(pipe_mgr_get_sel_grp_mbr_count(session, kDevice, kSelector, group, &held),
              BF_SUCCESS);
    return held;
  }
};

TEST_F(ProfileMemory, ProfilesStayAsTheyWere) {
  uint32_t member = 0, group = 0, entry = 0;
  const Action send(9, {0x01, 0x02});
  const Key key(8, {1}, {0xff});
  EXPECT_GT(until_success(
                [&] {
                  return pipe_mgr_adt_ent_add(session, kDevice, 0, kMembers, kSend, &send.spec,
                                              &member, 0);
                },
                [&] { return count(kMembers); }),
            0);
  EXPECT_GT(until_success(
                [&] { return pipe_mgr_sel_grp_add(session, kDevice, 0, kSelector, 0, &group, 0); },
                [&] { return count(kSelector); }),
            0);
  EXPECT_GT(until_success([&] { return join(group, member); }, [&] { return size_of(group); }), 0);
  const pipe_mgr_action_spec_t to_group = naming(PIPE_ACTION_GROUP, group);
  EXPECT_GT(until_success(
                [&] {
                  return pipe_mgr_mat_ent_add(session, kDevice, 0, kLag, &key.spec, kSend,
                                              &to_group, 0, 0, &entry);
                },
                [&] { return count(kLag); }),
            0);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kLag, entry, 0), BF_SUCCESS);
  EXPECT_EQ(del_group(group), BF_SUCCESS) << "no reference of a refused entry is left";
  EXPECT_EQ(del_member(member), BF_SUCCESS) << "none of a refused membership either";
}

TEST_F(ProfileMemory, CellsStayAsTheyWere) {
  const pipe_mgr_counter_t value{64, 1};
  const auto counted = [&] {
    pipe_mgr_counter_t sum{};
    EXPECT_EQ(pipe_mgr_stat_ent_query(session, kDevice, BF_ALL_PIPES, kAclCount, 700, &sum),
              BF_SUCCESS);
    return sum.packets;
  };
  EXPECT_GT(until_success(
                [&] {
                  return pipe_mgr_stat_ent_set(session, kDevice, BF_ALL_PIPES, kAclCount, 700,
                                               &value);
                },
                counted),
            0);
  const pipe_mgr_meter_spec_t spec{
      PIPE_METER_COLOR_UNAWARE, {PIPE_RATE_PACKETS, 5}, 1, {PIPE_RATE_PACKETS, 6}, 2};
  const auto rates = [&] {
    pipe_mgr_meter_spec_t in[2];
    for (uint32_t pipe : {0u, 1u}) {
      EXPECT_EQ(pipe_mgr_meter_read_entry_idx(session, kDevice, pipe, kFlowMeter, 700, &in[pipe]),
                BF_SUCCESS);
    }
    return in[0].peak_rate.value + in[1].peak_rate.value;
  };
  EXPECT_GT(until_success(
                [&] {
                  return pipe_mgr_meter_ent_set(session, kDevice, BF_ALL_PIPES, kFlowMeter, 700,
                                                &spec, 0);
                },
                rates),
            2)
      << "each pipe has memory of its own";
  EXPECT_EQ(rates(), 12u);
  const pipe_mgr_wred_spec_t wred{1, 2, 3, 0.5f};
  EXPECT_GT(until_success(
                [&] {
                  return pipe_mgr_wred_ent_set(session, kDevice, BF_ALL_PIPES, 0x07000001, 9, &wred,
                                               0);
                },
                [&]() -> uint64_t {
                  pipe_mgr_wred_spec_t got{};
                  return soft_wred_get(kDevice, 0, 0x07000001, 9, &got);
                }),
            2);
}

TEST_F(ProfileMemory, MemberSelectorStatesStayAsTheyWere) {
  allocations_left = 0;
  EXPECT_EQ(p4_pd_ms_init_state(), nullptr);
  allocations_left = -1;
  p4_pd_ms_state_t *state = p4_pd_ms_init_state();
  ASSERT_NE(state, nullptr);
  const auto size_of_log = [&]() -> uint64_t {
    cJSON *document = cJSON_CreateObject();
    EXPECT_EQ(p4_pd_ms_log_state(1, state, document), BF_SUCCESS);
    char *text = cJSON_PrintUnformatted(document);
    const uint64_t size = std::string(text).size();
    cJSON_free(text);
    cJSON_Delete(document);
    return size;
  };
  const auto run = [&](const std::function<bf_status_t()> &call) {
    EXPECT_GT(until_success(call, size_of_log), 0);
  };
  run([&] { return p4_pd_ms_new_mbr(1, state, 1, 7); });
  run([&] { return p4_pd_ms_new_grp(1, state, 1, 3); });
  run([&] { return p4_pd_ms_add_mbr_to_grp(1, state, 1, 7, 3); });
  run([&] { return p4_pd_ms_mbr_apply_to_grps(state, 1, 7, p4_pd_ms_grp_update_res, state); });
  cJSON *document = cJSON_Parse(R"({"members":[{"handle":8,"resources":[[1,2]]}],
                                    "groups":[{"handle":4,"members":[8]}]})");
  run([&] { return p4_pd_ms_restore_state(1, state, document); });
  cJSON_Delete(document);
  ASSERT_EQ(p4_pd_ms_destroy_state_for_dev(state, 1), BF_SUCCESS);
}

}  // namespace
