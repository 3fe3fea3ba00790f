// The member-selector helper: what a state remembers, and its JSON form.
#include <cjson/cJSON.h>

#include <gtest/gtest.h>

#include <cstdlib>
#include <string>
#include <vector>

#include "p4_pd_ms.h"
#include "soft_journal.hpp"

namespace {

constexpr uint32_t kSend = 0x200001be;
constexpr uint32_t kFlood = 0x200001c4;

// A state and one device of it.
struct Shadow {
  p4_pd_ms_state_t *state = p4_pd_ms_init_state();
  uint8_t device = 2;

  bf_status_t add(uint32_t member) { return p4_pd_ms_new_mbr(1, state, device, member); }
  bf_status_t del(uint32_t member) { return p4_pd_ms_del_mbr(1, state, device, member); }
  bf_status_t add_group(uint32_t group) { return p4_pd_ms_new_grp(1, state, device, group); }
  bf_status_t del_group(uint32_t group) { return p4_pd_ms_del_grp(1, state, device, group); }
  bf_status_t join(uint32_t member, uint32_t group) {
    return p4_pd_ms_add_mbr_to_grp(1, state, device, member, group);
  }
  bf_status_t leave(uint32_t member, uint32_t group) {
    return p4_pd_ms_del_mbr_from_grp(1, state, device, member, group);
  }
  // 0 stands for none.
  uint32_t action(uint32_t member) {
    uint32_t found = 0;
    const bf_status_t status = p4_pd_ms_get_mbr_act(state, device, member, &found);
    EXPECT_EQ(status, found == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return found;
  }
  uint32_t group_action(uint32_t group) {
    uint32_t found = 0;
    const bf_status_t status = p4_pd_ms_get_grp_act(state, device, group, &found);
    EXPECT_EQ(status, found == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
    return found;
  }
  std::string log() {
    cJSON *document = cJSON_CreateObject();
    EXPECT_EQ(p4_pd_ms_log_state(device, state, document), BF_SUCCESS);
    return text_of(document);
  }
  bf_status_t restore(const char *text) {
    cJSON *document = cJSON_Parse(text);
    EXPECT_NE(document, nullptr) << text;
    const bf_status_t status = p4_pd_ms_restore_state(device, state, document);
    cJSON_Delete(document);
    return status;
  }
  // Takes the document.
  static std::string text_of(cJSON *document) {
    char *text = cJSON_PrintUnformatted(document);
    std::string copied = text == nullptr ? "" : text;
    cJSON_free(text);
    cJSON_Delete(document);
    return copied;
  }
};

constexpr char kEmpty[] = R"({"members":[],"groups":[]})";

TEST(MemberSelector, KeepsStatesAndDevicesApart) {
  p4_pd_ms_init();
  Shadow first;
  Shadow second;
  ASSERT_NE(first.state, second.state);
  Shadow elsewhere{first.state, 3};
  ASSERT_EQ(first.add(7), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_set_mbr_act(first.state, 2, 7, kSend), BF_SUCCESS);
  EXPECT_EQ(first.action(7), kSend);
  EXPECT_EQ(second.action(7), 0u);
  EXPECT_EQ(elsewhere.action(7), 0u);
  ASSERT_EQ(elsewhere.add(8), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_destroy_state_for_dev(first.state, 2), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_destroy_txn_state_for_dev(2), BF_SUCCESS);
  EXPECT_EQ(first.log(), kEmpty);
  EXPECT_EQ(elsewhere.log(), R"({"members":[{"handle":8}],"groups":[]})");
}

TEST(MemberSelector, SaysWhatItDoesNotKnow) {
  Shadow shadow;
  ASSERT_EQ(shadow.add(7), BF_SUCCESS);
  EXPECT_EQ(shadow.add(7), BF_ALREADY_EXISTS);
  EXPECT_EQ(shadow.action(7), 0u) << "no action recorded yet";
  ASSERT_EQ(shadow.add_group(3), BF_SUCCESS);
  EXPECT_EQ(shadow.add_group(3), BF_ALREADY_EXISTS);
  EXPECT_EQ(shadow.group_action(3), 0u);
  EXPECT_EQ(shadow.join(8, 3), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(shadow.join(7, 4), BF_OBJECT_NOT_FOUND);
  ASSERT_EQ(shadow.join(7, 3), BF_SUCCESS);
  EXPECT_EQ(shadow.join(7, 3), BF_ALREADY_EXISTS);
  EXPECT_EQ(shadow.leave(7, 4), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(shadow.leave(8, 3), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(p4_pd_ms_set_mbr_act(shadow.state, 2, 8, kSend), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(p4_pd_ms_set_grp_act(shadow.state, 2, 4, kSend), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(shadow.del(8), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(shadow.del_group(4), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(p4_pd_ms_get_mbr_act(shadow.state, 2, 7, nullptr), BF_INVALID_ARGUMENT);
  EXPECT_EQ(p4_pd_ms_new_mbr(1, nullptr, 2, 7), BF_INVALID_ARGUMENT);
  EXPECT_EQ(p4_pd_ms_grp_update_res(2, 7, 3, nullptr), BF_INVALID_ARGUMENT);
}

TEST(MemberSelector, MembershipsEndWithEitherSide) {
  Shadow shadow;
  for (uint32_t member : {7u, 8u}) ASSERT_EQ(shadow.add(member), BF_SUCCESS);
  for (uint32_t group : {3u, 4u}) ASSERT_EQ(shadow.add_group(group), BF_SUCCESS);
  for (uint32_t member : {8u, 7u}) {
    for (uint32_t group : {4u, 3u}) ASSERT_EQ(shadow.join(member, group), BF_SUCCESS);
  }
  ASSERT_EQ(p4_pd_ms_set_grp_act(shadow.state, 2, 3, kFlood), BF_SUCCESS);
  ASSERT_EQ(shadow.del(7), BF_SUCCESS);
  ASSERT_EQ(shadow.del_group(4), BF_SUCCESS);
  EXPECT_EQ(
      shadow.log(),
      R"({"members":[{"handle":8}],"groups":[{"handle":3,"action":536871364,"members":[8]}]})");
  ASSERT_EQ(shadow.leave(8, 3), BF_SUCCESS);
  EXPECT_EQ(shadow.group_action(3), kFlood) << "the action of a group outlives its members";
}

struct Visits {
  std::vector<uint32_t> groups;
  p4_pd_ms_state_t *state;
};

// Refuses group 4 and, worse, group 9; takes itself the next group away.
bf_status_t visit(uint8_t device, uint32_t member, uint32_t group, void *cookie) {
  auto *visits = static_cast<Visits *>(cookie);
  visits->groups.push_back(group);
  EXPECT_EQ(p4_pd_ms_del_mbr_from_grp(1, visits->state, device, member, group), BF_SUCCESS);
  if (group == 4) return BF_TABLE_FULL;
  return group == 9 ? BF_IN_USE : BF_SUCCESS;
}

TEST(MemberSelector, VisitsEveryGroupOfAMember) {
  Shadow shadow;
  for (uint32_t member : {7u, 8u}) ASSERT_EQ(shadow.add(member), BF_SUCCESS);
  for (uint32_t group : {9u, 1u, 4u, 2u}) ASSERT_EQ(shadow.add_group(group), BF_SUCCESS);
  for (uint32_t group : {9u, 4u, 1u}) ASSERT_EQ(shadow.join(7, group), BF_SUCCESS);
  ASSERT_EQ(shadow.join(8, 2), BF_SUCCESS);
  Visits visits{{}, shadow.state};
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, visit, &visits), BF_TABLE_FULL);
  EXPECT_EQ(visits.groups, (std::vector<uint32_t>{1, 4, 9}));
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, visit, &visits), BF_SUCCESS);
  EXPECT_EQ(visits.groups.size(), 3u) << "it is in no group any more";
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 70, visit, &visits), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, nullptr, &visits), BF_INVALID_ARGUMENT);
}

TEST(MemberSelector, GivesGroupsTheResourcesOfTheirMember) {
  Shadow shadow;
  ASSERT_EQ(shadow.restore(R"({"members":[{"handle":7,"resources":[[67108869,12],[83886081,0]]}],
                               "groups":[{"handle":3,"members":[7]},{"handle":4}]})"),
            BF_SUCCESS);
  uint32_t count = 99;
  p4_pd_res_spec_t *resources = nullptr;
  ASSERT_EQ(p4_pd_ms_grp_get_res(shadow.state, 2, 3, &count, &resources), BF_SUCCESS);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(resources, nullptr);
  ASSERT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, p4_pd_ms_grp_update_res, shadow.state),
            BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_grp_get_res(shadow.state, 2, 3, &count, &resources), BF_SUCCESS);
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(resources[0].handle, 0x04000005u);
  EXPECT_EQ(resources[0].index, 12u);
  EXPECT_EQ(resources[1].handle, 0x05000001u);
  ASSERT_EQ(p4_pd_ms_grp_get_res(shadow.state, 2, 4, &count, &resources), BF_SUCCESS);
  EXPECT_EQ(count, 0u) << "not a group of the member";
  ASSERT_EQ(p4_pd_ms_mbr_get_res(shadow.state, 2, 7, &count, &resources), BF_SUCCESS);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(p4_pd_ms_mbr_get_res(shadow.state, 2, 8, &count, &resources), BF_OBJECT_NOT_FOUND);
}

// ---- JSON ----

constexpr char kState[] =
    R"({"members":[{"handle":7,"action":536871358},{"handle":4294967295,"resources":[[1,2]]}],)"
    R"("groups":[{"handle":3,"action":536871364,"members":[7,4294967295]},)"
    R"({"handle":5,"resources":[[8,0],[9,4294967295]],"members":[]}]})";

TEST(MemberSelector, LogsAndRestoresTheSameText) {
  Shadow shadow;
  ASSERT_EQ(shadow.add(99), BF_SUCCESS);
  ASSERT_EQ(shadow.restore(kState), BF_SUCCESS);
  EXPECT_EQ(shadow.action(7), kSend);
  EXPECT_EQ(shadow.group_action(3), kFlood);
  EXPECT_EQ(shadow.log(), kState) << "what was there before is gone";
}

TEST(MemberSelector, LogLeavesOtherKeysAloneAndReplacesItsOwn) {
  Shadow shadow;
  ASSERT_EQ(shadow.add(7), BF_SUCCESS);
  cJSON *document = cJSON_Parse(R"({"groups":"old","name":"lag","members":[1,2]})");
  ASSERT_EQ(p4_pd_ms_log_state(2, shadow.state, document), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_log_state(2, shadow.state, document), BF_SUCCESS);
  EXPECT_EQ(Shadow::text_of(document), R"({"name":"lag","members":[{"handle":7}],"groups":[]})");
  cJSON *list = cJSON_CreateArray();
  EXPECT_EQ(p4_pd_ms_log_state(2, shadow.state, list), BF_INVALID_ARGUMENT);
  EXPECT_EQ(Shadow::text_of(list), "[]");
}

TEST(MemberSelector, RestoresWhatIsValidOfAHostileDocument) {
  struct Case {
    const char *document;
    const char *restored;
  };
  const Case cases[] = {
      {R"({"members":[],"groups":17})", kEmpty},
      {R"({"members":{"handle":7},"groups":[]})", kEmpty},
      {R"({"members":[7,"7",null,true,[],[[7]],{},{"Handle":7},{"handle":"7"}],"groups":[]})",
       kEmpty},
      {R"({"members":[{"handle":-1},{"handle":4294967296},{"handle":1.5},{"handle":1e300}]})",
       kEmpty},
      {R"({"members":[{"handle":7,"action":1},{"handle":7,"action":2,"resources":[[1,2]]}]})",
       R"({"members":[{"handle":7,"action":1}],"groups":[]})"},
      {R"({"members":[{"handle":7,"action":"1","resources":[[],[1],[1,2,3],[1,-2],5,[3,4]]}]})",
       R"({"members":[{"handle":7,"resources":[[3,4]]}],"groups":[]})"},
      {R"({"groups":[{"handle":3,"members":[7,3]}],"members":[{"handle":7}]})",
       R"({"members":[{"handle":7}],"groups":[{"handle":3,"members":[7]}]})"},
      {R"({"members":[{"handle":7}],"groups":[{"handle":3,"members":[7,7,"7",{}]},)"
       R"({"handle":3,"members":[]},{"members":[7]},{"handle":4,"members":{"a":7}}]})",
       R"({"members":[{"handle":7}],"groups":[{"handle":3,"members":[7]},)"
       R"({"handle":4,"members":[]}]})"},
  };
  for (const Case &one : cases) {
    Shadow shadow;
    ASSERT_EQ(shadow.add(5), BF_SUCCESS);
    EXPECT_EQ(shadow.restore(one.document), BF_SUCCESS) << one.document;
    EXPECT_EQ(shadow.log(), one.restored) << one.document;
  }
}

TEST(MemberSelector, LeavesTheStateAloneForADocumentOfAnotherForm) {
  Shadow shadow;
  ASSERT_EQ(shadow.restore(kState), BF_SUCCESS);
  std::string deep(900, '[');
  deep += std::string(900, ']');
  for (const std::string &text :
       {std::string("[]"), std::string("17"), std::string("\"members\""), std::string("null"),
        std::string("{}"), std::string(R"({"members":1,"groups":"x"})"), deep,
        R"({"members":)" + std::string("{\"members\":[]}") + "}"}) {
    EXPECT_EQ(shadow.restore(text.c_str()), BF_CORRUPT_DATA) << text;
  }
  EXPECT_EQ(p4_pd_ms_restore_state(2, shadow.state, nullptr), BF_INVALID_ARGUMENT);
  EXPECT_EQ(shadow.log(), kState);
  EXPECT_EQ(shadow.restore((R"({"members":[)" + deep + R"(,{"handle":7}]})").c_str()), BF_SUCCESS);
  EXPECT_EQ(shadow.log(), R"({"members":[{"handle":7}],"groups":[]})");
}

int allocations_until_failure = -1;  // none

void *failing_malloc(size_t bytes) {
  if (allocations_until_failure == 0) return nullptr;
  if (allocations_until_failure > 0) --allocations_until_failure;
  return std::malloc(bytes);
}

TEST(MemberSelector, LogsAllOrNothingWhenMemoryRunsOut) {
  Shadow shadow;
  ASSERT_EQ(shadow.restore(kState), BF_SUCCESS);
  cJSON_Hooks hooks{failing_malloc, std::free};
  cJSON_InitHooks(&hooks);
  bf_status_t status = BF_NO_MEMORY;
  int failures = 0;
  while (status != BF_SUCCESS && failures < 1000) {
    cJSON *document = cJSON_Parse(R"({"name":"lag"})");
    allocations_until_failure = failures;
    status = p4_pd_ms_log_state(2, shadow.state, document);
    allocations_until_failure = -1;
    if (status != BF_SUCCESS) {
      ++failures;
      EXPECT_EQ(status, BF_NO_MEMORY);
      EXPECT_EQ(Shadow::text_of(document), R"({"name":"lag"})");
    } else {
      cJSON_Delete(document);
    }
  }
  cJSON_InitHooks(nullptr);
  EXPECT_EQ(status, BF_SUCCESS);
  EXPECT_GT(failures, 30) << "each number, array, object and key of the log is an allocation";
}

}  // namespace
