// An SDK that reports more than it was given room for, less than it was asked for, or sizes that
// make no sense: what fits is delivered, and nothing beyond the room is read or written. And one
// whose entries are of another program than the library's.
#include "pipe_stful.h"
#include "scene.hpp"
#include "soft_snapshot.h"
#include "soft_state.h"
#include "typed.hpp"

namespace {

// The soft SDK's own function, called.
#define SOFT(function, ...) pd_test::soft_function(function, #function)(__VA_ARGS__)

// How many items more than there are the SDK reports.
uint32_t excess = 0;
// Whether a range read of a register leaves the records behind the last cell that it read as they
// were given.
bool leaves_unread_records = false;
// While on, the snapshots have captured total bytes in stages of a size of their own: byte i is
// i % 251.
struct OddService {
  bool on = false;
  uint32_t total = 0;
  uint32_t stage = 0;
} odd_service;
// What is added to the handles of actions that are read, and the type of what entries hold, as they
// are read from the device and from placement data; 0 is the true one.
struct OddActions {
  uint32_t handles = 0;
  uint32_t read_type = 0;
  uint32_t placed_type = 0;
} odd_actions;

bf_status_t spoil(bf_status_t status, uint32_t *action, pipe_mgr_action_spec_t *spec = nullptr,
                  uint32_t type = 0) {
  *action += odd_actions.handles;
  if (type != 0) spec->type = type;
  return status;
}

}  // namespace

extern "C" {

bf_status_t pipe_stful_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                                 pipe_stful_query_t *query, bool read_from_hardware) {
  const bf_status_t status =
      SOFT(pipe_stful_ent_query, session, device, pipe, reg, index, query, read_from_hardware);
  query->count += excess;
  return status;
}

bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session, bf_device_id_t device,
                                       bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t first,
                                       uint32_t count, pipe_stful_query_t *queries,
                                       uint32_t *filled, bool read_from_hardware) {
  const uint32_t capacity = count == 0 ? 0 : queries[0].count;
  const bf_status_t status = SOFT(pipe_stful_ent_query_range, session, device, pipe, reg, first,
                                  count, queries, filled, read_from_hardware);
  for (uint32_t i = *filled; leaves_unread_records && i < count; ++i) queries[i].count = capacity;
  for (uint32_t i = 0; i < count; ++i) queries[i].count += excess;
  *filled += excess;
  return status;
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t list, uint32_t max_count, pipe_mgr_hash_attribute_t *attributes,
    uint32_t *filled) {
  const bf_status_t status = SOFT(pipe_mgr_hash_calc_input_field_attribute_get, session, device,
                                  calculation, list, max_count, attributes, filled);
  *filled += excess;
  return status;
}

bf_status_t pipe_mgr_sel_grp_mbr_state_get(pipe_session_handle_t session, bf_device_id_t device,
                                           pipe_object_handle_t selector, pipe_group_handle_t group,
                                           pipe_member_handle_t member, uint32_t *state) {
  const bf_status_t status =
      SOFT(pipe_mgr_sel_grp_mbr_state_get, session, device, selector, group, member, state);
  *state += excess;
  return status;
}

// So many resources that whoever believes it reads beyond the stack; what is not attached but
// detached counts for nothing.
bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware) {
  const bf_status_t status = SOFT(pipe_mgr_get_entry, session, table, device, entry, match,
                                  action_spec, action, read_from_hardware);
  if (excess == 0) return spoil(status, action, action_spec, odd_actions.read_type);
  action_spec->resource_count += excess << 20;
  action_spec->resources[3] = action_spec->resources[1];
  action_spec->resources[3].index = 77;
  action_spec->resources[3].tag = PIPE_RESOURCE_DETACH;
  return status;
}

bf_status_t pipe_mgr_table_get_default_entry(pipe_session_handle_t session, bf_device_id_t device,
                                             bf_pipe_id_t pipe, pipe_object_handle_t table,
                                             pipe_mgr_action_spec_t *action_spec,
                                             pipe_object_handle_t *action,
                                             bool read_from_hardware) {
  return spoil(SOFT(pipe_mgr_table_get_default_entry, session, device, pipe, table, action_spec,
                    action, read_from_hardware),
               action, action_spec, odd_actions.read_type);
}

bf_status_t pipe_mgr_plcmt_mat_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_match_spec_t *match,
                                              pipe_mgr_action_spec_t *action_spec,
                                              pipe_object_handle_t *action) {
  return spoil(SOFT(pipe_mgr_plcmt_mat_data_get_entry, placement, match, action_spec, action),
               action, action_spec, odd_actions.placed_type);
}

bf_status_t pipe_mgr_plcmt_adt_data_get_entry(const pipe_mgr_placement_t *placement,
                                              pipe_mgr_action_data_t *data,
                                              pipe_object_handle_t *action) {
  return spoil(SOFT(pipe_mgr_plcmt_adt_data_get_entry, placement, data, action), action);
}

bf_status_t pipe_mgr_get_action_data_entry(pipe_object_handle_t table, bf_device_id_t device,
                                           pipe_member_handle_t member,
                                           pipe_mgr_action_data_t *data,
                                           pipe_object_handle_t *action, bool read_from_hardware) {
  return spoil(
      SOFT(pipe_mgr_get_action_data_entry, table, device, member, data, action, read_from_hardware),
      action);
}

bf_status_t bf_snapshot_capture_phv_fields_dict_size(uint32_t snapshot, uint32_t *total_size,
                                                     uint32_t *stage_size) {
  if (!odd_service.on) {
    return SOFT(bf_snapshot_capture_phv_fields_dict_size, snapshot, total_size, stage_size);
  }
  *total_size = odd_service.total;
  *stage_size = odd_service.stage;
  return BF_SUCCESS;
}

bf_status_t bf_snapshot_capture_get(uint32_t snapshot, uint16_t pipe, void *fields,
                                    bf_snapshot_control_t *control, uint32_t *captures) {
  if (!odd_service.on) {
    return SOFT(bf_snapshot_capture_get, snapshot, pipe, fields, control, captures);
  }
  for (uint32_t i = 0; i < odd_service.total; ++i) {
    static_cast<uint8_t *>(fields)[i] = static_cast<uint8_t>(i % 251);
  }
  *captures = 21;
  return BF_SUCCESS;
}

}  // extern "C"

namespace pd_test {
namespace {

using Words = std::vector<uint32_t>;

constexpr p4_pd_device_target_t kAllPipes = {kDevice, BF_ALL_PIPES};
constexpr uint32_t kWide = 0x06000005;

class OddSdk : public LibraryTest {
 protected:
  ~OddSdk() override {
    excess = 0;
    leaves_unread_records = false;
    odd_service.on = false;
  }
};

TEST_F(OddSdk, WhatFitsIsDelivered) {
  for (uint32_t pipe = 0; pipe < kPipes; ++pipe) {
    for (const uint32_t index : {20u, 21u}) {
      EXPECT_EQ(soft_register_write(kDevice, pipe, kWide, index, 10 * index + pipe), BF_SUCCESS);
    }
  }
  const char *name = "hashOuterIpv4Hdr";
  const PD(hash_field_attr_t) given[] = {{2, 7, 0}, {0, 5, 0}};
  PD(hash_calc_input_field_attribute_set)(session(), kDevice, name, 2, given);
  const PD(pdpPolicy_match_spec_t) key = {};
  const PD(pdpPolice_action_spec_t) police = {6};
  const uint32_t entry =
      make("table_add", "pdpPolicy", "pdpPolice", with("match_spec", &key, "action_spec", &police));

  PD(pdpPolicy_match_spec_t) read_key = {};
  bool no_key = true;

  // Each row: the counts that come back, what is delivered, and room that stays as it was.
  Words counts(2), room(12);
  const struct {
    const char *family;
    const char *object;
    Given given;
    Words counts;
    Words delivered;
  } rows[] = {
      {"register_read",
       "flowDigestCountReg",
       with("index", 20, "value_count", &counts[0]),
       {4, 9},
       {200, 201, 202, 203, 9}},
      {"register_range_read",
       "flowDigestCountReg",
       with("first", 20, "index_count", 2, "indexes_read", &counts[0], "value_count", &counts[1]),
       {2, 8},
       {200, 201, 202, 203, 210, 211, 212, 213, 9}},
      {"hash_calc_input_field_attribute_get_by_name",
       "",
       with("name", name, "max_count", 2, "attributes", &room[0], "filled", &counts[0]),
       {2, 9},
       {2, 7, 0, 0, 5, 0, 9}},
      {"get_entry",
       "pdpPolicy",
       with("entry", entry, "read_from_hardware", 0, "match_spec", &read_key, "action_name", 0,
            "action_spec", &room[0], "action", 0, "no_key", &no_key),
       {9, 9},
       {6, 9}},
  };
  excess = 3;
  for (const auto &row : rows) {
    SCOPED_TRACE(row.family);
    counts.assign(2, 9);
    room.assign(12, 9);
    Arguments read(*find_export(row.family, row.object));
    read.give(with("target", &kAllPipes, "flags", 1, "values", &room[0])).give(row.given);
    EXPECT_EQ(read.status(), BF_SUCCESS);
    EXPECT_EQ(counts, row.counts);
    EXPECT_EQ(Words(room.begin(), room.begin() + static_cast<int>(row.delivered.size())),
              row.delivered);
  }
}

TEST_F(OddSdk, RangesReportTheIndexesThatThereWere) {
  constexpr uint32_t last = SOFT_REGISTER_CELLS - 1;
  for (uint32_t pipe = 0; pipe < kPipes; ++pipe) {
    EXPECT_EQ(soft_register_write(kDevice, pipe, kWide, last, 5 + pipe), BF_SUCCESS);
  }
  Words words(12, 9);
  uint32_t indexes = 99, count = 99;
  const auto read = [&](uint32_t first, uint32_t wanted) {
    return PD(register_range_read_flowDigestCountReg)(session(), kAllPipes, first, wanted, 1,
                                                      &indexes, words.data(), &count);
  };
  leaves_unread_records = true;
  ASSERT_EQ(read(last, 3), BF_SUCCESS);
  EXPECT_TRUE(indexes == 1 && count == 4);
  EXPECT_EQ(words, (Words{5, 6, 7, 8, 9, 9, 9, 9, 9, 9, 9, 9}));
  // A range of none is asked for like any other and allocates nothing.
  const uint64_t allocations = soft_allocations_made();
  ASSERT_EQ(read(0, 0), BF_SUCCESS);
  EXPECT_TRUE(indexes == 0 && count == 0);
  EXPECT_EQ(soft_allocations_made(), allocations);
  EXPECT_EQ(read(last + 1, 0), BF_INVALID_ARGUMENT);
  // More cells than an address space holds are refused before the device is asked for them.
  if (sizeof(size_t) != 4) return;
  EXPECT_EQ(read(0, 0x40000001), P4_PD_NO_MEMORY);
}

// ---- Snapshots ----

constexpr size_t kRecord = sizeof(PD(snapshot_capture_t));

// Room is for 20 records; nothing behind those that there are is touched.
TEST_F(OddSdk, StagesOfOddSizes) {
  for (const auto &[total, stage, records] : {std::tuple{1000u, 0u, 0u},
                                              {0u, 0u, 0u},
                                              {699u, 700u, 0u},
                                              {25u, 10u, 2u},
                                              {1400u, 700u, 2u},
                                              {4 * 634u, 634u, 4u},
                                              {1000u, 1u, 20u}}) {
    odd_service = {true, total, stage};
    Bytes room(22 * kRecord, 0xa5), wanted = room;
    for (size_t i = 0; i < records * kRecord; ++i) {
      const size_t byte = i % kRecord;
      wanted[i] = byte < stage ? static_cast<uint8_t>((i / kRecord * stage + byte) % 251) : 0;
    }
    bf_snapshot_control_t control[32] = {};
    uint32_t captures = 0;
    EXPECT_EQ(
        PD(snapshot_capture_data_get)(0, 1, reinterpret_cast<PD(snapshot_capture_t) *>(room.data()),
                                      control, &captures),
        BF_SUCCESS);
    EXPECT_EQ(captures, 20u) << "as many as there is room for";
    EXPECT_EQ(hex(room), hex(wanted)) << total << " in stages of " << stage;
  }
}

TEST(OddSdkState, NeitherOfTheTwoIsNoState) {
  Scene scene(*find_export("group_member_state_get", "lagPortActionProfile"));
  excess = 2;
  EXPECT_EQ(scene.play(), BF_SUCCESS);
  excess = 0;
  EXPECT_EQ(scene.written_outputs(), "");
}

// ---- Another program in the device than in the library ----

constexpr uint32_t kNothing = 7;  // what entries hold that have no action and point nowhere

TEST(OddProgram, WhatIsNotOfTheProgramIsNotRead) {
  const struct {
    const char *family;
    OddActions odd;
    p4_pd_status_t status;
  } rows[] = {
      {"get_entry", {0x10000, 0, 0}, P4_PD_FOREIGN_ACTION},
      {"get_entry", {0, kNothing, 0}, P4_PD_NO_ACTION_DATA},
      {"table_get_default_entry", {0x10000, PIPE_ACTION_DATA, 0}, P4_PD_FOREIGN_ACTION},
      {"table_get_default_entry", {0, kNothing, 0}, P4_PD_FOREIGN_ACTION},
      {"get_entry_from_plcmt_data", {0x10000, 0, 0}, P4_PD_FOREIGN_ACTION},
      {"get_member", {0x10000, 0, 0}, P4_PD_FOREIGN_ACTION},
      {"get_member_from_plcmt_data", {0x10000, 0, 0}, P4_PD_FOREIGN_ACTION},
      {"get_full_member_info_from_plcmt_data", {0x10000, 0, 0}, P4_PD_FOREIGN_ACTION},
  };
  for (const auto &row : rows) {
    for (const Export *exported : exports_of(row.family)) {
      if (expected_status(*exported) != BF_SUCCESS) continue;
      Scene scene(*exported);
      odd_actions = row.odd;
      EXPECT_EQ(scene.play(), row.status) << exported->name;
      odd_actions = {};
      EXPECT_EQ(scene.written_outputs(), "") << exported->name;
    }
  }
}

TEST(OddProgram, EntriesMayPointAtNothing) {
  const auto play = [](const char *family, const char *table, uint32_t read, uint32_t placed) {
    Scene scene(*find_export(family, table));
    odd_actions = {0, read, placed};
    const uint64_t result = scene.play();
    odd_actions = {};
    const bool text = scene.is_output("buffer");
    const auto *buffer = text ? reinterpret_cast<const char *>(scene.output("buffer").data()) : "";
    return std::to_string(result) + ": " + (text ? buffer : scene.written_outputs());
  };
  EXPECT_EQ(play("get_indirect_entry", "ecmpGroup", kNothing, 0),
            "0: has_group has_member match_spec no_key ");
  EXPECT_EQ(play("get_indirect_entry_from_plcmt_data", "ecmpGroup", 0, kNothing),
            "0: match_spec no_key ");
  EXPECT_TRUE(play("table_value", "ecmpGroup", kNothing, 0).ends_with(",),),(0,True))"));
  EXPECT_TRUE(play("plcmt_data_value", "ecmpGroup", 0, kNothing).ends_with(",),)"));
  EXPECT_EQ(play("plcmt_data_eq_to_hw", "ecmpGroup", kNothing, kNothing), "1: ");
  EXPECT_EQ(play("plcmt_data_eq_to_hw", "ecmpGroup", kNothing, 0), "0: ");
  EXPECT_EQ(play("plcmt_data_eq_to_hw", "ecmpGroup", 0, kNothing), "0: ");
}

}  // namespace
}  // namespace pd_test
