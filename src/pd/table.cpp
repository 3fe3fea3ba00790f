#include "table.hpp"

namespace pd {

p4_pd_status_t get_property(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                            uint32_t property, uint32_t *value, uint32_t *argument) {
  if (value == nullptr || argument == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t read_value = 0;
  uint32_t read_argument = 0;
  const p4_pd_status_t status =
      pipe_mgr_tbl_get_property(session, device, table, property, &read_value, &read_argument);
  *value = status == BF_SUCCESS ? read_value : 0xffffffffu;
  *argument = status == BF_SUCCESS ? read_argument : 0xffffffffu;
  return status;
}

}  // namespace pd
