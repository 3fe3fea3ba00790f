// Parser value sets: the contract and the data plane's side.
#include "contract/resolve.hpp"
#include "pipe_mgr_pvs.h"
#include "pipe_mgr_types.h"
#include "services/value_set.hpp"
#include "soft_state.h"

using namespace soft;

namespace soft {

static bool is_refused(const Parsers &where) { return where.direction > 1; }

}  // namespace soft

bf_status_t pipe_mgr_pvs_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t value, uint32_t argument, uint32_t flags) {
  return SOFT_CALL(
      (session, device, value_set, property, value, argument, flags),
      on<&ValueSet::set_property>(ByHandle{session, device, value_set}, property, value));
}

bf_status_t pipe_mgr_pvs_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t *value, uint32_t argument, uint32_t flags) {
  return SOFT_CALL(
      (session, device, value_set, property, value, argument, flags),
      on<&ValueSet::get_property>(ByHandle{session, device, value_set}, property, given(value)));
}

bf_status_t pipe_mgr_pvs_entry_add(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, uint32_t direction,
                                   uint16_t pipe, uint8_t parser, uint32_t value, uint32_t mask,
                                   pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, value, mask, entry),
                   on<&ValueSet::add>(InPipes{session, device, pipe, value_set},
                                      Parsers{direction, pipe, parser}, value, mask, given(entry)));
}

bf_status_t pipe_mgr_pvs_entry_modify(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                      uint32_t value, uint32_t mask) {
  return SOFT_CALL((session, device, value_set, entry, value, mask),
                   on<&ValueSet::modify>(ByHandle{session, device, value_set}, entry, value, mask));
}

bf_status_t pipe_mgr_pvs_entry_delete(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry) {
  return SOFT_CALL((session, device, value_set, entry),
                   on<&ValueSet::erase>(ByHandle{session, device, value_set}, entry));
}

bf_status_t pipe_mgr_pvs_entry_get(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                   uint32_t *value, uint32_t *mask) {
  return SOFT_CALL(
      (session, device, value_set, entry, value, mask),
      on<&ValueSet::get>(ByHandle{session, device, value_set}, entry, given(value), given(mask)));
}

bf_status_t pipe_mgr_pvs_entry_handle_get(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t value_set, uint32_t direction,
                                          uint16_t pipe, uint8_t parser, uint32_t value,
                                          uint32_t mask, pipe_entry_handle_t *entry) {
  return SOFT_CALL(
      (session, device, value_set, direction, pipe, parser, value, mask, entry),
      on<&ValueSet::find>(InPipes{session, device, pipe, value_set},
                          Parsers{direction, pipe, parser}, value, mask, given(entry)));
}

bf_status_t pipe_mgr_pvs_entry_get_first(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser,
                                         pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, entry),
                   on<&ValueSet::first>(InPipes{session, device, pipe, value_set},
                                        Parsers{direction, pipe, parser}, given(entry)));
}

bf_status_t pipe_mgr_pvs_entry_get_next(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t value_set, uint32_t direction,
                                        uint16_t pipe, uint8_t parser, pipe_entry_handle_t entry,
                                        uint32_t count, pipe_entry_handle_t *entries) {
  return SOFT_CALL(
      (session, device, value_set, direction, pipe, parser, entry, count, list(entries, count)),
      on<&ValueSet::next>(InPipes{session, device, pipe, value_set},
                          Parsers{direction, pipe, parser}, entry, list(entries, count)));
}

bf_status_t pipe_mgr_pvs_entry_get_count(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser, uint8_t read_from_hardware,
                                         uint32_t *count) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, read_from_hardware, count),
                   read<&ValueSet::count>(InPipes{session, device, pipe, value_set}, count,
                                          Parsers{direction, pipe, parser}));
}

bf_status_t soft_value_set_match(bf_device_id_t device, pipe_object_handle_t value_set,
                                 uint32_t direction, bf_pipe_id_t pipe, uint8_t parser,
                                 uint32_t value, pipe_entry_handle_t *entry) {
  return control<&ValueSet::match>(InPipe{device, pipe, value_set},
                                   Parsers{direction, pipe, parser}, value, given(entry));
}
