// From the ids and handles of a call to the object that it concerns, and on to the function of that
// object that does what the call says:
//
//   return on<&Thing::set>(ByHandle{session, device, thing}, list(bytes, length), given(result));
//
// The checks come in the order session, device, pipe, object, arguments; the first that fails is
// the status of the call.
#pragma once

#include <functional>
#include <type_traits>

#include "contract/contract_call.hpp"
#include "contract/sessions.hpp"
#include "device/device_registry.hpp"

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

// ---- What a call names ----

struct ByHandle {
  pipe_session_handle_t session;
  bf_device_id_t device;
  pipe_object_handle_t handle;

  bool has_session() const { return session_is_open(session); }
  bool has_pipe(const Device &) const { return true; }
};
// Session 0 stands for none.
struct MaybeSession : ByHandle {
  bool has_session() const { return session == 0 || session_is_open(session); }
};
// One pipe or BF_ALL_PIPES.
struct InPipes {
  pipe_session_handle_t session;
  bf_device_id_t device;
  bf_pipe_id_t pipe;
  pipe_object_handle_t handle;

  bool has_session() const { return session_is_open(session); }
  bool has_pipe(const Device &found) const { return found.has_pipe(pipe); }
};
// Without a session.
struct Inside {
  bf_device_id_t device;
  pipe_object_handle_t handle;

  bool has_session() const { return true; }
  bool has_pipe(const Device &) const { return true; }
};
struct InPipe {
  bf_device_id_t device;
  bf_pipe_id_t pipe;
  pipe_object_handle_t handle;

  bool has_session() const { return true; }
  bool has_pipe(const Device &found) const { return pipe < found.pipes(); }
};
struct InAnyPipe : InPipe {
  bool has_pipe(const Device &found) const { return found.has_pipe(pipe); }
};

// ---- Arguments that a call must not do without ----

template <class T>
struct Given {
  T *pointer;
  operator T *() const { return pointer; }
};
template <class T>
Given<T> given(T *pointer) {
  return {pointer};
}

template <class T>
bool is_refused(const T &) {
  return false;
}
template <class T>
bool is_refused(const Given<T> &argument) {
  return argument.pointer == nullptr;
}
template <class T>
bool is_refused(const List<T> &argument) {
  return argument.data == nullptr && argument.count != 0;
}

// ---- The adapters ----

// The object that a member function, or a function whose first parameter it is, works on.
template <class T, class F>
std::type_identity<T> target_of(F T::*);
template <class T, class R, class... Rest>
std::type_identity<T> target_of(R (*)(T &, Rest...));
template <auto function>
using Target = typename decltype(target_of(function))::type;

// function(object, arguments...); a function that returns nothing succeeds.
template <auto function, class Place, class... Arguments>
bf_status_t on(const Place &place, const Arguments &...arguments) {
  using T = Target<function>;
  if (!place.has_session()) return BF_INVALID_SESSION;
  return with_device(place.device, [&](Device &device) -> bf_status_t {
    if (!place.has_pipe(device)) return BF_INVALID_PIPE;
    return on_object<T>(device, place.handle, [&](T &object) -> bf_status_t {
      if ((is_refused(arguments) || ...)) return BF_INVALID_ARGUMENT;
      if constexpr (std::is_void_v<std::invoke_result_t<decltype(function), T &, Arguments...>>) {
        std::invoke(function, object, arguments...);
        return BF_SUCCESS;
      } else {
        return std::invoke(function, object, arguments...);
      }
    });
  });
}

// *result = function(object, arguments...)
template <auto function, class T, class Result, class... Arguments>
void store_result(T &object, Result *result, const Arguments &...arguments) {
  *result = std::invoke(function, object, arguments...);
}
template <auto function, class Place, class Result, class... Arguments>
bf_status_t read(const Place &place, Result *result, const Arguments &...arguments) {
  using T = Target<function>;
  return on<&store_result<function, T, Result, Arguments...>>(place, given(result), arguments...);
}

// As on, for functions of the host's control.
template <auto function, class Place, class... Arguments>
bf_status_t control(const Place &place, const Arguments &...arguments) {
  return guarded([&] { return on<function>(place, arguments...); });
}

}  // namespace soft
