// An SDK that reports more than it was given room for: what fits is delivered, and nothing beyond
// the room is read or written.
#include <functional>

#include "pipe_mgr.h"
#include "soft_state.h"
#include "stateful_fixture.hpp"

namespace stateful_test {

bool leaves_unread_records = false;

}  // namespace stateful_test

namespace {

using namespace stateful_test;

// How many items more than there are the SDK reports.
uint32_t excess = 0;

}  // namespace

extern "C" {

bf_status_t pipe_stful_ent_query(pipe_session_handle_t session, bf_device_id_t device,
                                 bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t index,
                                 pipe_stful_query_t *query, bool read_from_hardware) {
  const bf_status_t status = soft_function(pipe_stful_ent_query, "pipe_stful_ent_query")(
      session, device, pipe, reg, index, query, read_from_hardware);
  query->count += excess;
  return status;
}

bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session, bf_device_id_t device,
                                       bf_pipe_id_t pipe, pipe_object_handle_t reg, uint32_t first,
                                       uint32_t count, pipe_stful_query_t *queries,
                                       uint32_t *filled, bool read_from_hardware) {
  const uint32_t capacity = count == 0 ? 0 : queries[0].count;
  const bf_status_t status =
      soft_function(pipe_stful_ent_query_range, "pipe_stful_ent_query_range")(
          session, device, pipe, reg, first, count, queries, filled, read_from_hardware);
  for (uint32_t i = *filled; leaves_unread_records && i < count; ++i) queries[i].count = capacity;
  for (uint32_t i = 0; i < count; ++i) queries[i].count += excess;
  *filled += excess;
  return status;
}

bf_status_t pipe_mgr_hash_calc_input_field_attribute_get(
    pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t calculation,
    pipe_object_handle_t list, uint32_t max_count, pipe_mgr_hash_attribute_t *attributes,
    uint32_t *filled) {
  const bf_status_t status = soft_function(pipe_mgr_hash_calc_input_field_attribute_get,
                                           "pipe_mgr_hash_calc_input_field_attribute_get")(
      session, device, calculation, list, max_count, attributes, filled);
  *filled += excess;
  return status;
}

// Far enough that whoever believes it reads beyond the stack.
bf_status_t pipe_mgr_get_entry(pipe_session_handle_t session, pipe_object_handle_t table,
                               bf_device_id_t device, pipe_entry_handle_t entry,
                               pipe_mgr_match_spec_t *match, pipe_mgr_action_spec_t *action_spec,
                               pipe_object_handle_t *action, bool read_from_hardware) {
  const bf_status_t status = soft_function(pipe_mgr_get_entry, "pipe_mgr_get_entry")(
      session, table, device, entry, match, action_spec, action, read_from_hardware);
  action_spec->resource_count += excess << 20;
  return status;
}

}  // extern "C"

namespace {

using Words = std::vector<uint32_t>;

class Room : public StatefulTest {
 protected:
  void TearDown() override {
    excess = 0;
    StatefulTest::TearDown();
  }
};

TEST_F(Room, WhatFitsIsDelivered) {
  for (uint32_t pipe = 0; pipe < kPipes; ++pipe) {
    for (const uint32_t index : {20, 21}) {
      EXPECT_EQ(soft_register_write(kDevice, pipe, 0x06000005, index, 10 * index + pipe),
                BF_SUCCESS);
    }
  }
  const char *name = "hashOuterIpv4Hdr";
  const p4_pd_tessel_switch_hash_field_attr_t given[] = {{2, 7, 0}, {0, 5, 0}};
  ASSERT_EQ(
      p4_pd_tessel_switch_hash_calc_input_field_attribute_set(session, kDevice, name, 2, given),
      BF_SUCCESS);
  const p4_pd_tessel_switch_pdpPolicy_match_spec_t key = {};
  const p4_pd_tessel_switch_pdpPolice_action_spec_t police = {6};
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(p4_pd_tessel_switch_pdpPolicy_table_add_with_pdpPolice(session, target, &key, &police,
                                                                   &entry),
            BF_SUCCESS);

  // Each row: the counts that come back, what is delivered, and room that stays as it was.
  const struct {
    const char *what;
    std::function<uint32_t(uint32_t *count, uint32_t *room)> read;
    Words counts;
    Words delivered;
  } rows[] = {
      {"cells of an index",
       [&](uint32_t *count, uint32_t *room) {
         return p4_pd_tessel_switch_register_read_flowDigestCountReg(session, target, 20, 1, room,
                                                                     count);
       },
       {4, 9},
       {200, 201, 202, 203, 9}},
      {"indexes and their cells",
       [&](uint32_t *count, uint32_t *room) {
         return p4_pd_tessel_switch_register_range_read_flowDigestCountReg(
             session, target, 20, 2, 1, count, room, count + 1);
       },
       {2, 8},
       {200, 201, 202, 203, 210, 211, 212, 213, 9}},
      {"attributes",
       [&](uint32_t *count, uint32_t *room) {
         p4_pd_hash_calc_attr_t read[3] = {{9, 9, 9}, {9, 9, 9}, {9, 9, 9}};
         const uint32_t status =
             p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_get(
                 session, kDevice, 0, 2, read, count);
         for (size_t i = 0; i < 3; ++i) room[i] = read[i].field;
         return status;
       },
       {2, 9},
       {2, 0, 9}},
      {"attributes by name",
       [&](uint32_t *count, uint32_t *room) {
         p4_pd_tessel_switch_hash_field_attr_t read[3] = {{9, 9, 9}, {9, 9, 9}, {9, 9, 9}};
         const uint32_t status = p4_pd_tessel_switch_hash_calc_input_field_attribute_get(
             session, kDevice, name, 2, read, count);
         for (size_t i = 0; i < 3; ++i) room[i] = read[i].field;
         return status;
       },
       {2, 9},
       {2, 0, 9}},
      {"resources",
       [&](uint32_t *, uint32_t *room) {
         p4_pd_tessel_switch_pdpPolicy_match_spec_t read = {};
         bool no_key = true;
         return p4_pd_tessel_switch_pdpPolicy_get_entry(session, kDevice, entry, false, &read,
                                                        nullptr, room, nullptr, &no_key);
       },
       {9, 9},
       {6, 9}},
  };
  excess = 3;
  for (const auto &row : rows) {
    Words counts(2, 9);
    Words room(12, 9);
    EXPECT_EQ(row.read(counts.data(), room.data()), uint32_t{BF_SUCCESS}) << row.what;
    EXPECT_EQ(counts, row.counts) << row.what;
    room.resize(row.delivered.size());
    EXPECT_EQ(room, row.delivered) << row.what;
  }
}

}  // namespace
