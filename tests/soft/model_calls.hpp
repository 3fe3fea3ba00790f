// A device of the SDK beside a naive one: each call is made on both, and both must answer alike.
#pragma once

#include "calls.hpp"
#include "model.hpp"

namespace soft_test {

// What listeners hear.
struct Update {
  uint32_t object, update, handle, member;
  bool operator==(const Update &) const = default;
};
struct Expiry {
  uint32_t entry;
  uint64_t at_ms;
};

class Beside : public testing::TestWithParam<uint32_t> {
 public:
  void SetUp() override;
  void TearDown() override;

  // ---- Entries ----
  void add_entry();
  void change_entry();
  void change_resources();
  void remove_entry();
  void find_entry();
  void change_default();
  void change_property();
  void compare_tables();

  // ---- Traffic, direct counters and meters, ageing ----
  void send_traffic();
  void change_counter();
  void switch_ageing();
  void change_age();
  void advance_clock();

  // ---- Profiles ----
  void change_member();
  void change_group();
  void change_membership();
  void join(uint32_t group, uint32_t member);
  void change_fallback();
  void compare_profiles();
  void compare_groups();
  void compare_slots();

  // ---- Indirect counters and meters ----
  void change_counter_cell();
  void change_meter_cell();
  void compare_cells();

  // Goes on with a copy of the device, or with one that its state was replayed to.
  void move();

  void create(bf_device_id_t id, bool is_virtual);
  void expect_update(bf_status_t status, const Update &update);
  ModelTable &any_table();
  ModelEntry random_key(const ModelTable &table);
  Bytes random_packet(const ModelTable &table);
  Wanted random_action(ModelTable &table);
  void add_random_resources(const ModelTable &table, Wanted *wanted);
  // What a call with this action does to an entry, or its status.
  bf_status_t apply(ModelTable &table, const Wanted &wanted, ModelEntry *entry);
  // Of an entry with a key.
  bf_status_t apply_keyed(ModelTable &table, const Wanted &wanted, ModelEntry *entry);
  // One that is there, or now and then one that is gone.
  uint32_t any_entry(const ModelTable &table);
  uint32_t any_member(uint32_t table);
  uint32_t any_group();
  pipe_mgr_match_spec_t record_of(const ModelTable &table, ModelEntry *key);
  void compare(const ModelTable &table, const ModelEntry &entry);
  void compare_entry(const ModelTable &table, const ModelEntry &entry, const Room &room);
  void compare_action(const ModelEntry &entry, uint32_t action, const pipe_mgr_action_spec_t &spec);
  // Every handle of a list, in steps of a random length.
  Words walk(uint32_t object, uint32_t pipe);

  Random random{GetParam()};
  ModelDevice model;
  pipe_session_handle_t session = 0;
  bf_device_id_t device = 20, other = 21;
  bool is_virtual = true;
  std::vector<Update> heard;
  int owner_heard = 0;  // of the selector
  std::vector<Expiry> expired;
  Words gone{0, 0xfffffff};
  pipe_mgr_placement_t *placed = nullptr;
};

}  // namespace soft_test
