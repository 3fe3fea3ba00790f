#include "python/core/session.hpp"

#include <fmt/format.h>

#include "python/core/program.hpp"
#include "python/core/status.hpp"
#include "python/core/structure.hpp"
#include "soft_sdk.h"

namespace python {

namespace {

PyTypeObject *session_type = nullptr;

SessionObject *cast(PyObject *object) { return reinterpret_cast<SessionObject *>(object); }
const SessionObject &owner_of(const SessionObject &session) {
  return session.owner == nullptr ? session : *session.owner;
}

// Device and pipe from the arguments (device=0, pipe=BF_ALL_PIPES).
p4_pd_device_target_t read_target(PyObject *arguments, PyObject *keywords,
                                  p4_pd_device_target_t usual) {
  static const char *kNames[] = {"device", "pipe", nullptr};
  PyObject *device = nullptr;
  PyObject *pipe = nullptr;
  if (PyArg_ParseTupleAndKeywords(arguments, keywords, "|OO", const_cast<char **>(kNames), &device,
                                  &pipe) == 0) {
    throw Raised{};
  }
  if (device != nullptr) usual.device_id = static_cast<uint32_t>(unsigned_of(device, 1, "device"));
  if (pipe == Py_None) usual.pipe_id = BF_ALL_PIPES;
  if (pipe != nullptr && pipe != Py_None) {
    usual.pipe_id = static_cast<uint16_t>(unsigned_of(pipe, 2, "pipe"));
  }
  return usual;
}

int open(PyObject *self, PyObject *arguments, PyObject *keywords) {
  return guarded(
      [&] {
        SessionObject &session = *cast(self);
        if (session.program != nullptr) raise(PyExc_TypeError, "a session is opened once");
        const p4_pd_device_target_t target = read_target(arguments, keywords, {0, BF_ALL_PIPES});
        const Program &program = program_of(Ref(PyObject_GetAttrString(self, "_program")).get());
        check_device(program, target.device_id);
        check_status(soft_session_open(&session.handle), "a new session");
        session.target = target;
        session.program = &program;
        session.is_open = true;
        return 0;
      },
      -1);
}

void close(SessionObject &session) {
  if (session.owner != nullptr || !session.is_open) return;
  session.is_open = false;
  const Unlocked unlocked;
  soft_session_close(session.handle);
}

void deallocate(PyObject *self) {
  PyTypeObject *type = Py_TYPE(self);
  close(*cast(self));
  Py_XDECREF(reinterpret_cast<PyObject *>(cast(self)->owner));
  // Classes of Python have a free function of their own.
  reinterpret_cast<freefunc>(PyType_GetSlot(type, Py_tp_free))(self);
  Py_DECREF(type);
}

PyObject *close_session(PyObject *self, PyObject * /*unused*/) {
  if (cast(self)->owner == nullptr) {
    close(*cast(self));
  } else {
    close(*cast(self)->owner);
  }
  return none();
}

PyObject *on(PyObject *self, PyObject *arguments, PyObject *keywords) {
  return guarded([&] {
    const SessionObject &session = open_session(self);
    const p4_pd_device_target_t target = read_target(arguments, keywords, session.target);
    Ref made(PyType_GenericAlloc(Py_TYPE(self), 0));
    SessionObject &view = *cast(made.get());
    check_device(*session.program, target.device_id);
    view.handle = session.handle;
    view.target = target;
    view.program = session.program;
    view.owner = cast(
        Py_NewRef(session.owner == nullptr ? self : reinterpret_cast<PyObject *>(session.owner)));
    return made.release();
  });
}

PyObject *get_handle(PyObject *self, void * /*unused*/) {
  return guarded([&] { return checked(PyLong_FromUnsignedLong(open_session(self).handle)); });
}
PyObject *get_device(PyObject *self, void * /*unused*/) {
  return PyLong_FromUnsignedLong(cast(self)->target.device_id);
}
PyObject *get_pipe(PyObject *self, void * /*unused*/) {
  return PyLong_FromUnsignedLong(cast(self)->target.pipe_id);
}
PyObject *get_closed(PyObject *self, void * /*unused*/) {
  return PyBool_FromLong(owner_of(*cast(self)).is_open ? 0 : 1);
}

PyMethodDef methods[] = {
    {"close", close_session, METH_NOARGS,
     PD_DOC("close($self, /)", "Closes the session; closing it again does nothing.")},
    {"_on", method(on), METH_VARARGS | METH_KEYWORDS,
     PD_DOC("_on($self, device, pipe)", "The same session for another device or pipe.")},
    {nullptr, nullptr, 0, nullptr}};
PyGetSetDef members[] = {
    {"handle", get_handle, nullptr, "The number of the session for raw calls.", nullptr},
    {"device_id", get_device, nullptr, "The device that calls are about.", nullptr},
    {"pipe", get_pipe, nullptr, "The pipe that calls are about; 0xffff: all.", nullptr},
    {"closed", get_closed, nullptr, "Whether the session is closed.", nullptr},
    {nullptr, nullptr, nullptr, nullptr, nullptr}};

}  // namespace

void add_session(PyObject *module) {
  PyType_Slot slots[] = {{Py_tp_init, reinterpret_cast<void *>(open)},
                         {Py_tp_dealloc, reinterpret_cast<void *>(deallocate)},
                         {Py_tp_methods, methods},
                         {Py_tp_getset, members},
                         {0, nullptr}};
  session_type = make_type("pd.SessionBase", sizeof(SessionObject), slots,
                           Py_TPFLAGS_DEFAULT | Py_TPFLAGS_BASETYPE);
  check(PyModule_AddObjectRef(module, "SessionBase", reinterpret_cast<PyObject *>(session_type)));
}

bool is_session(PyObject *object) { return PyObject_TypeCheck(object, session_type) != 0; }

const SessionObject &open_session(PyObject *object) {
  if (object == nullptr || !is_session(object)) {
    raise(PyExc_TypeError,
          "a session is a Session, not " + (object == nullptr ? "none" : type_name(object)));
  }
  const SessionObject &session = *cast(object);
  if (!owner_of(session).is_open) raise(PyExc_ValueError, "the session is closed");
  check_device(*session.program, session.target.device_id);
  return session;
}

}  // namespace python
