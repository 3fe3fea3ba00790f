// A device beside the model: made, listened to and moved.
#include "model_calls.hpp"

namespace soft_test {

void Beside::create(bf_device_id_t id, bool as_virtual) {
  OK(soft_device_create(id, 2, &small_program(), as_virtual));
  for (const auto &[table, held] : model.tables) {
    const auto hear = [](pipe_session_handle_t, bf_device_id_t on, uint32_t object, uint32_t update,
                         uint32_t entry, void *cookie) {
      static_cast<Beside *>(cookie)->heard.push_back({object, update, entry, 0});
      // The table is not locked: a callback may ask it.
      uint32_t count = 0;
      OK(pipe_mgr_get_entry_count(static_cast<Beside *>(cookie)->session, on, kAll, object, 0,
                                  &count));
    };
    OK(pipe_register_mat_update_cb(session, id, table, hear, this));
  }
  for (const uint32_t table : {kMembers, kPorts}) {
    const auto hear = [](pipe_session_handle_t, bf_device_id_t, uint32_t object, uint32_t update,
                         uint32_t member, void *cookie) {
      static_cast<Beside *>(cookie)->heard.push_back({object, update, 0, member});
    };
    OK(pipe_register_adt_update_cb(session, id, table, hear, this));
  }
  const auto hear = [](pipe_session_handle_t, bf_device_id_t, uint32_t object, uint32_t update,
                       uint32_t group, uint32_t member, void *cookie) {
    static_cast<Beside *>(cookie)->heard.push_back({object, update, group, member});
  };
  OK(pipe_register_sel_update_cb(session, id, kSelector, hear, this));
  const auto count = [](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t,
                        uint32_t, void *cookie) { ++static_cast<Beside *>(cookie)->owner_heard; };
  OK(pipe_mgr_sel_tbl_register_cb(0, id, kSelector, count, this));  // before the first session
  const auto hear_expiry = [](bf_device_id_t, uint32_t, uint32_t entry, void *cookie) {
    static_cast<Beside *>(cookie)->expired.push_back({entry, 0});
  };
  OK(pipe_mgr_idle_register_tmo_cb(session, id, kRoute, hear_expiry, this));
}

void Beside::SetUp() {
  OK(soft_session_open(&session));
  create(device, is_virtual);
}

void Beside::TearDown() {
  soft_placement_free(placed);
  OK(soft_device_remove(device));
  OK(soft_session_close(session));
}

void Beside::expect_update(bf_status_t status, const Update &update) {
  ASSERT_EQ(heard, status == BF_SUCCESS ? std::vector{update} : std::vector<Update>{});
  const bool of_group = status == BF_SUCCESS && update.object == kSelector;
  ASSERT_EQ(owner_heard, of_group ? 1 : 0);
  owner_heard = 0;
  heard.clear();
}

void Beside::move() {
  create(other, !is_virtual);
  if (is_virtual && random.one_in(2)) {
    const auto report = [](pipe_session_handle_t, uint8_t, uint32_t, uint32_t, uint32_t, uint32_t,
                           uint32_t) -> bf_status_t { return BF_SUCCESS; };
    OK(pipe_mgr_hitless_ha_restore_virtual_dev_state(session, other, device, kAll, 0, report));
    model.counters.clear();
    model.meters.clear();
    model.adjustments.clear();
  } else {
    OK(soft_device_copy(device, other));
  }
  ASSERT_TRUE(heard.empty());
  OK(soft_device_remove(device));
  std::swap(device, other);
  is_virtual = !is_virtual;
}

}  // namespace soft_test
