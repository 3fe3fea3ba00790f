// The member-selector helper: what a state remembers, and its JSON form.
#include <cjson/cJSON.h>

#include <string>

#include "p4_pd_ms.h"
#include "program.hpp"

namespace {

constexpr uint32_t kFlood = 0x200001c4;

// A state and one device of it.
struct Shadow {
  p4_pd_ms_state_t *state = p4_pd_ms_init_state();
  uint8_t device = 2;

  bf_status_t add(uint32_t member) { return p4_pd_ms_new_mbr(1, state, device, member); }
  bf_status_t add_group(uint32_t group) { return p4_pd_ms_new_grp(1, state, device, group); }
  bf_status_t join(uint32_t member, uint32_t group) {
    return p4_pd_ms_add_mbr_to_grp(1, state, device, member, group);
  }
  bf_status_t leave(uint32_t member, uint32_t group) {
    return p4_pd_ms_del_mbr_from_grp(1, state, device, member, group);
  }
  std::string log() {
    cJSON *document = cJSON_CreateObject();
    OK(p4_pd_ms_log_state(device, state, document));
    return text_of(document);
  }
  bf_status_t restore(const std::string &text) {
    cJSON *document = cJSON_Parse(text.c_str());
    EXPECT_NE(document, nullptr) << text;
    const bf_status_t status = p4_pd_ms_restore_state(device, state, document);
    cJSON_Delete(document);
    return status;
  }
  // Takes the document.
  static std::string text_of(cJSON *document) {
    char *text = cJSON_PrintUnformatted(document);
    std::string copied = text;
    cJSON_free(text);
    cJSON_Delete(document);
    return copied;
  }
};

constexpr char kEmpty[] = R"({"members":[],"groups":[]})";

TEST(MemberSelector, MembershipsEndWithEitherSide) {
  Shadow shadow;
  uint32_t action = 0;
  for (const uint32_t member : {7u, 8u}) OK(shadow.add(member));
  for (const uint32_t group : {3u, 4u}) OK(shadow.add_group(group));
  EXPECT_EQ(shadow.add(7), BF_ALREADY_EXISTS);
  EXPECT_EQ(shadow.add_group(3), BF_ALREADY_EXISTS);
  EXPECT_EQ(p4_pd_ms_get_mbr_act(shadow.state, 2, 7, &action), BF_OBJECT_NOT_FOUND);
  for (const uint32_t member : {8u, 7u}) {
    for (const uint32_t group : {4u, 3u}) {
      EXPECT_EQ(shadow.leave(member, group), BF_OBJECT_NOT_FOUND);
      OK(shadow.join(member, group));
      EXPECT_EQ(shadow.join(member, group), BF_ALREADY_EXISTS);
    }
  }
  EXPECT_EQ(shadow.join(9, 3), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(shadow.join(7, 5), BF_OBJECT_NOT_FOUND);
  for (const uint32_t last : {9u, kFlood}) OK(p4_pd_ms_set_grp_act(shadow.state, 2, 3, last));
  for (const bf_status_t status : {bf_status_t{BF_SUCCESS}, bf_status_t{BF_OBJECT_NOT_FOUND}}) {
    EXPECT_EQ(p4_pd_ms_del_mbr(1, shadow.state, 2, 7), status);
    EXPECT_EQ(p4_pd_ms_del_grp(1, shadow.state, 2, 4), status);
  }
  EXPECT_EQ(
      shadow.log(),
      R"({"members":[{"handle":8}],"groups":[{"handle":3,"action":536871364,"members":[8]}]})");
  OK(shadow.leave(8, 3));
  OK(p4_pd_ms_get_grp_act(shadow.state, 2, 3, &action)) << "it outlives the members";
}

struct Visits {
  std::vector<uint32_t> groups;
  p4_pd_ms_state_t *state;
};

// Refuses group 4 and, worse, group 9; takes itself the next group away.
bf_status_t visit(uint8_t device, uint32_t member, uint32_t group, void *cookie) {
  auto *visits = static_cast<Visits *>(cookie);
  visits->groups.push_back(group);
  OK(p4_pd_ms_del_mbr_from_grp(1, visits->state, device, member, group));
  if (group == 4) return BF_TABLE_FULL;
  return group == 9 ? BF_IN_USE : BF_SUCCESS;
}

TEST(MemberSelector, VisitsEveryGroupOfAMember) {
  Shadow shadow;
  OK(shadow.restore(R"({"members":[{"handle":7},{"handle":8}],"groups":[)"
                    R"({"handle":9,"members":[7]},{"handle":1,"members":[7]},)"
                    R"({"handle":4,"members":[7]},{"handle":2,"members":[8]}]})"));
  Visits visits{{}, shadow.state};
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, visit, &visits), BF_TABLE_FULL);
  EXPECT_EQ(visits.groups, (std::vector<uint32_t>{1, 4, 9}));
  OK(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, visit, &visits));
  EXPECT_EQ(visits.groups.size(), 3u) << "it is in no group any more";
  EXPECT_EQ(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 70, visit, &visits), BF_OBJECT_NOT_FOUND);
}

TEST(MemberSelector, GivesGroupsTheResourcesOfTheirMember) {
  Shadow shadow;
  OK(shadow.restore(R"({"members":[{"handle":7,"resources":[[67108869,12],[83886081,0]]}],
                               "groups":[{"handle":3,"members":[7]},{"handle":4}]})"));
  OK(p4_pd_ms_mbr_apply_to_grps(shadow.state, 2, 7, p4_pd_ms_grp_update_res, shadow.state));
  uint32_t count = 99;
  p4_pd_res_spec_t *resources = nullptr;
  OK(p4_pd_ms_grp_get_res(shadow.state, 2, 3, &count, &resources));
  ASSERT_EQ(count, 2u);
  EXPECT_EQ(resources[0].handle, 0x04000005u);
  EXPECT_EQ(resources[0].index, 12u);
  OK(p4_pd_ms_grp_get_res(shadow.state, 2, 4, &count, &resources));
  EXPECT_EQ(count, 0u) << "not a group of the member";
  EXPECT_EQ(resources, nullptr);
  OK(p4_pd_ms_mbr_get_res(shadow.state, 2, 7, &count, &resources));
  EXPECT_EQ(count, 2u);
}

// ---- JSON ----

TEST(MemberSelector, RestoresWhatIsValidOfADocument) {
  struct Case {
    const char *document;
    const char *restored;
  };
  constexpr char kState[] =
      R"({"members":[{"handle":7,"action":536871358},{"handle":4294967295,"resources":[[1,2]]}],)"
      R"("groups":[{"handle":3,"action":536871364,"members":[7,4294967295]},)"
      R"({"handle":5,"resources":[[8,0],[9,4294967295]],"members":[]}]})";
  const Case cases[] = {
      {kState, kState},
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
    OK(shadow.add(5));
    OK(shadow.restore(one.document)) << one.document;
    for (const char *text : {"[]", "17", "null", "{}", R"({"members":1,"groups":"x"})"}) {
      EXPECT_EQ(shadow.restore(text), BF_CORRUPT_DATA) << text;
    }
    EXPECT_EQ(shadow.log(), one.restored) << one.document;
  }
}

TEST(MemberSelector, LogsBesideOtherKeys) {
  Shadow shadow;
  OK(shadow.add(7));
  cJSON *old = cJSON_Parse(R"({"groups":"old","name":"lag","members":[1,2]})");
  OK(p4_pd_ms_log_state(2, shadow.state, old));
  EXPECT_EQ(Shadow::text_of(old), R"({"name":"lag","members":[{"handle":7}],"groups":[]})");
  cJSON *list = cJSON_CreateArray();
  EXPECT_EQ(p4_pd_ms_log_state(2, shadow.state, list), BF_INVALID_ARGUMENT);
  cJSON_Delete(list);
}

}  // namespace
