// Parser value sets: the contract and the data plane's side.
#include "contract_call.hpp"
#include "pipe_mgr_pvs.h"
#include "pipe_mgr_types.h"
#include "resolve.hpp"
#include "soft_state.h"
#include "value_set.hpp"

namespace {

using soft::Parsers;
using soft::ValueSet;

// Calls that name parsers.
template <class Body>
bf_status_t with_parsers(pipe_session_handle_t session, bf_device_id_t device,
                         pipe_object_handle_t value_set, const Parsers &where, Body body) {
  return soft::with_piped_object<ValueSet>(session, device, where.pipe, value_set,
                                           [&](ValueSet &found) -> bf_status_t {
                                             if (where.direction > 1) return BF_INVALID_ARGUMENT;
                                             return body(found);
                                           });
}

}  // namespace

bf_status_t pipe_mgr_pvs_set_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t value, uint32_t argument, uint32_t flags) {
  return SOFT_CALL((session, device, value_set, property, value, argument, flags), {
    return soft::with_object<ValueSet>(session, device, value_set,
                                       [&](ValueSet &found) -> bf_status_t {
                                         if (property != PIPE_PVS_CAPACITY) {
                                           return BF_INVALID_ARGUMENT;
                                         }
                                         found.set_capacity(value);
                                         return BF_SUCCESS;
                                       });
  });
}

bf_status_t pipe_mgr_pvs_get_property(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, uint32_t property,
                                      uint32_t *value, uint32_t argument, uint32_t flags) {
  return SOFT_CALL((session, device, value_set, property, value, argument, flags), {
    return soft::with_object<ValueSet>(session, device, value_set,
                                       [&](ValueSet &found) -> bf_status_t {
                                         if (property != PIPE_PVS_CAPACITY || value == nullptr) {
                                           return BF_INVALID_ARGUMENT;
                                         }
                                         *value = found.capacity();
                                         return BF_SUCCESS;
                                       });
  });
}

bf_status_t pipe_mgr_pvs_entry_add(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, uint32_t direction,
                                   uint16_t pipe, uint8_t parser, uint32_t value, uint32_t mask,
                                   pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, value, mask, entry), {
    const Parsers where{direction, pipe, parser};
    return with_parsers(session, device, value_set, where, [&](ValueSet &found) -> bf_status_t {
      if (entry == nullptr) return BF_INVALID_ARGUMENT;
      return found.add(where, value, mask, entry);
    });
  });
}

bf_status_t pipe_mgr_pvs_entry_modify(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                      uint32_t value, uint32_t mask) {
  return SOFT_CALL((session, device, value_set, entry, value, mask), {
    return soft::with_object<ValueSet>(session, device, value_set, [&](ValueSet &found) {
      return found.modify(entry, value, mask);
    });
  });
}

bf_status_t pipe_mgr_pvs_entry_delete(pipe_session_handle_t session, bf_device_id_t device,
                                      pipe_object_handle_t value_set, pipe_entry_handle_t entry) {
  return SOFT_CALL((session, device, value_set, entry), {
    return soft::with_object<ValueSet>(session, device, value_set,
                                       [&](ValueSet &found) { return found.erase(entry); });
  });
}

bf_status_t pipe_mgr_pvs_entry_get(pipe_session_handle_t session, bf_device_id_t device,
                                   pipe_object_handle_t value_set, pipe_entry_handle_t entry,
                                   uint32_t *value, uint32_t *mask) {
  return SOFT_CALL((session, device, value_set, entry, value, mask), {
    return soft::with_object<ValueSet>(session, device, value_set,
                                       [&](ValueSet &found) -> bf_status_t {
                                         if (value == nullptr || mask == nullptr)
                                           return BF_INVALID_ARGUMENT;
                                         return found.get(entry, value, mask);
                                       });
  });
}

bf_status_t pipe_mgr_pvs_entry_handle_get(pipe_session_handle_t session, bf_device_id_t device,
                                          pipe_object_handle_t value_set, uint32_t direction,
                                          uint16_t pipe, uint8_t parser, uint32_t value,
                                          uint32_t mask, pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, value, mask, entry), {
    const Parsers where{direction, pipe, parser};
    return with_parsers(session, device, value_set, where, [&](ValueSet &found) -> bf_status_t {
      if (entry == nullptr) return BF_INVALID_ARGUMENT;
      return found.find(where, value, mask, entry);
    });
  });
}

bf_status_t pipe_mgr_pvs_entry_get_first(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser,
                                         pipe_entry_handle_t *entry) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, entry), {
    const Parsers where{direction, pipe, parser};
    return with_parsers(session, device, value_set, where, [&](ValueSet &found) -> bf_status_t {
      if (entry == nullptr) return BF_INVALID_ARGUMENT;
      return found.first(where, entry);
    });
  });
}

bf_status_t pipe_mgr_pvs_entry_get_next(pipe_session_handle_t session, bf_device_id_t device,
                                        pipe_object_handle_t value_set, uint32_t direction,
                                        uint16_t pipe, uint8_t parser, pipe_entry_handle_t entry,
                                        uint32_t count, pipe_entry_handle_t *entries) {
  return SOFT_CALL((session, device, value_set, direction, pipe, parser, entry, count,
                    soft::list(entries, count)),
                   {
                     const Parsers where{direction, pipe, parser};
                     return with_parsers(session, device, value_set, where,
                                         [&](ValueSet &found) -> bf_status_t {
                                           if (entries == nullptr && count != 0) {
                                             return BF_INVALID_ARGUMENT;
                                           }
                                           return found.next(where, entry, {entries, count});
                                         });
                   });
}

bf_status_t pipe_mgr_pvs_entry_get_count(pipe_session_handle_t session, bf_device_id_t device,
                                         pipe_object_handle_t value_set, uint32_t direction,
                                         uint16_t pipe, uint8_t parser, uint8_t read_from_hardware,
                                         uint32_t *count) {
  return SOFT_CALL(
      (session, device, value_set, direction, pipe, parser, read_from_hardware, count), {
        const Parsers where{direction, pipe, parser};
        return with_parsers(session, device, value_set, where, [&](ValueSet &found) -> bf_status_t {
          if (count == nullptr) return BF_INVALID_ARGUMENT;
          *count = found.count(where);
          return BF_SUCCESS;
        });
      });
}

bf_status_t soft_value_set_match(bf_device_id_t device, pipe_object_handle_t value_set,
                                 uint32_t direction, bf_pipe_id_t pipe, uint8_t parser,
                                 uint32_t value, pipe_entry_handle_t *entry) {
  return soft::with_device(device, [&](soft::Device &found) -> bf_status_t {
    if (pipe >= found.pipes()) return BF_INVALID_PIPE;
    return soft::on_object<ValueSet>(found, value_set, [&](ValueSet &object) -> bf_status_t {
      if (direction > 1 || parser == SOFT_ALL_PARSERS || entry == nullptr) {
        return BF_INVALID_ARGUMENT;
      }
      return object.match({direction, pipe, parser}, value, entry);
    });
  });
}
