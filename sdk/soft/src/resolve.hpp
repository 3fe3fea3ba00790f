// From the ids and handles of a call to the object that it concerns. The checks come in the order
// session, device, pipe, object; the first that fails is the status of the call.
#pragma once

#include "device_registry.hpp"
#include "sessions.hpp"

namespace soft {

// body(Device &) under a hold of the device.
template <class Body>
bf_status_t with_device(bf_device_id_t id, Body &&body) {
  const DeviceHold device(id);
  if (!device) return BF_INVALID_DEVICE;
  return body(*device);
}

template <class Body>
bf_status_t with_session(pipe_session_handle_t session, bf_device_id_t id, Body &&body) {
  if (!session_is_open(session)) return BF_INVALID_SESSION;
  return with_device(id, body);
}

// body(T &) with the object of that type; T is Object for any type.
template <class T, class Body>
bf_status_t on_object(Device &device, pipe_object_handle_t handle, Body &&body) {
  Object *object = device.find(handle);
  if constexpr (std::is_same_v<T, Object>) {
    if (object == nullptr) return BF_INVALID_HANDLE;
    return body(*object);
  } else {
    T *typed = object == nullptr ? nullptr : object->as<T>();
    if (typed == nullptr) return BF_INVALID_HANDLE;
    return body(*typed);
  }
}

template <class T, class Body>
bf_status_t with_object(pipe_session_handle_t session, bf_device_id_t id,
                        pipe_object_handle_t handle, Body &&body) {
  return with_session(session, id,
                      [&](Device &device) { return on_object<T>(device, handle, body); });
}

// The same for calls that name a pipe or BF_ALL_PIPES.
template <class T, class Body>
bf_status_t with_piped_object(pipe_session_handle_t session, bf_device_id_t id, bf_pipe_id_t pipe,
                              pipe_object_handle_t handle, Body &&body) {
  return with_session(session, id, [&](Device &device) -> bf_status_t {
    if (!device.has_pipe(pipe)) return BF_INVALID_PIPE;
    return on_object<T>(device, handle, body);
  });
}

}  // namespace soft
