// A session and what its calls are about: a device and a pipe. Views of a session share its handle.
#pragma once

#include "p4_pd_types.h"
#include "python/core/object.hpp"

namespace python {

class Program;

struct SessionObject {
  PyObject ob_base;
  p4_pd_session_handle_t handle;
  p4_pd_device_target_t target;
  const Program *program;
  bool is_open;
  SessionObject *owner;  // of the handle, held; null for the owner itself
};

void add_session(PyObject *module);

bool is_session(PyObject *object);
// Throws ValueError for a session that is closed or whose device runs another program, TypeError
// for any other object, null too.
const SessionObject &open_session(PyObject *object);

}  // namespace python
