#include "python/core/callback.hpp"

#include <map>
#include <utility>

#include "p4_pd_types.h"

namespace python {

namespace {

std::map<std::pair<uint32_t, const void *>, CallbackSlot> &slots() {
  static auto &all = *new std::map<std::pair<uint32_t, const void *>, CallbackSlot>;
  return all;
}

PyTypeObject *opaque_type = nullptr;

void deallocate_opaque(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  const auto *opaque = reinterpret_cast<OpaqueObject *>(self);
  if (opaque->release != nullptr) opaque->release(opaque->address);
  PyObject_Free(self);
  Py_DECREF(type);
}

// An interruption is that of the call, whose caller sees it next; other exceptions go to
// sys.unraisablehook.
void report(PyObject *callable) {
  if (PyErr_ExceptionMatches(PyExc_KeyboardInterrupt) == 0) return PyErr_WriteUnraisable(callable);
  PyErr_Clear();
  PyErr_SetInterrupt();
}

// Calls the callable of the slot with what make builds.
template <class Make>
void call(void *cookie, Make make) {
  until_end([&] {
    PyGILState_STATE state;
    if (!enter(state)) return;
    PyObject *callable = static_cast<CallbackSlot *>(cookie)->callable;
    if (callable != nullptr) {
      Py_INCREF(callable);
      PyObject *arguments = make();
      PyObject *result = arguments == nullptr ? nullptr : PyObject_CallObject(callable, arguments);
      if (result == nullptr) report(callable);
      Py_XDECREF(result);
      Py_XDECREF(arguments);
      Py_DECREF(callable);
    }
    PyGILState_Release(state);
  });
}

// Entries of tables, and members.
void on_update(pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t object,
               uint32_t update, uint32_t handle, void *cookie) {
  call(cookie, [&] { return Py_BuildValue("(IIIII)", session, device, object, update, handle); });
}
void on_selection(pipe_session_handle_t session, bf_device_id_t device,
                  pipe_object_handle_t selector, uint32_t update, pipe_group_handle_t group,
                  pipe_member_handle_t member, void *cookie) {
  call(cookie,
       [&] { return Py_BuildValue("(IIIIII)", session, device, selector, update, group, member); });
}
void on_idle(bf_device_id_t device, pipe_object_handle_t table, pipe_entry_handle_t entry,
             void *cookie) {
  call(cookie, [&] { return Py_BuildValue("(III)", device, table, entry); });
}
void on_synchronised(bf_device_id_t device, void *cookie) {
  call(cookie, [&] { return Py_BuildValue("(I)", device); });
}
bf_status_t on_digest(pipe_session_handle_t session, pipe_mgr_digest_message_t *message,
                      void *cookie) {
  call(cookie, [&]() -> PyObject * {
    PyObject *opaque = guarded([&] { return make_opaque(message, nullptr); });
    if (opaque == nullptr) return nullptr;
    const auto *entries = reinterpret_cast<const char *>(message->entries);
    const auto bytes = static_cast<Py_ssize_t>(message->entry_count) * message->entry_size;
    return Py_BuildValue("(INIIIy#)", session, opaque, message->device, message->pipe,
                         message->entry_size, entries, bytes);
  });
  return BF_SUCCESS;
}

template <class Function>
uintptr_t address(Function *function) {
  return reinterpret_cast<uintptr_t>(function);
}

}  // namespace

CallbackSlot &callback_slot(const void *function, uint32_t device) {
  return slots()[{device, function}];
}

void drop_callbacks(uint32_t device) {
  for (auto &slot : slots()) {
    if (slot.first.first == device) Py_CLEAR(slot.second.callable);
  }
}

uintptr_t callback_function(std::string_view type) {
  if (type == "pipe_mgr_mat_update_cb_t" || type == "pipe_mgr_adt_update_cb_t") {
    return address(on_update);
  }
  if (type == "pipe_mgr_sel_update_cb_t") return address(on_selection);
  if (type == "pipe_mgr_idle_cb_t") return address(on_idle);
  if (type == "pipe_mgr_sync_cb_t") return address(on_synchronised);
  if (type == "pipe_mgr_digest_cb_t") return address(on_digest);
  return 0;
}

void add_opaque(PyObject *module) {
  PyType_Slot type_slots[] = {{Py_tp_dealloc, reinterpret_cast<void *>(deallocate_opaque)},
                              doc_slot("An object of the SDK that is handed on as it is."),
                              {0, nullptr}};
  opaque_type = make_type("pd.Opaque", sizeof(OpaqueObject), type_slots,
                          Py_TPFLAGS_DEFAULT | Py_TPFLAGS_DISALLOW_INSTANTIATION);
  check(PyModule_AddObjectRef(module, "Opaque", reinterpret_cast<PyObject *>(opaque_type)));
}

PyObject *make_opaque(void *address, void (*release)(void *)) {
  auto *opaque = allocate<OpaqueObject>(opaque_type);
  opaque->address = address;
  opaque->release = release;
  return reinterpret_cast<PyObject *>(opaque);
}

OpaqueObject *as_opaque(PyObject *object) {
  return Py_TYPE(object) == opaque_type ? reinterpret_cast<OpaqueObject *>(object) : nullptr;
}

}  // namespace python
