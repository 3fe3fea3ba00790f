// Calls that run without the GIL, and Python that runs within them; how both end with the
// interpreter, and what a fork waits for.
#pragma once

#define PY_SSIZE_T_CLEAN
#define Py_LIMITED_API 0x030b0000
#include <Python.h>

#include <exception>

namespace python {

// Without the GIL: while it lives, other threads of the interpreter run. Begins with the GIL.
class Unlocked {
 public:
  Unlocked();
  ~Unlocked();
  Unlocked(const Unlocked &) = delete;
  Unlocked &operator=(const Unlocked &) = delete;

 private:
  PyThreadState *state_;
};

// Python ends a thread that comes back while the interpreter ends by unwinding it, over frames that
// nothing may unwind: instead it waits here until the process ends.
[[noreturn]] void wait_for_end();

// Runs what may come back to Python.
template <class Body>
auto until_end(Body body) {
  try {
    return body();
  } catch (...) {
    // Unwinding is no exception of C++.
    if (std::current_exception() == nullptr) wait_for_end();
    throw;
  }
}

// Takes the GIL for a callback; false once the interpreter ends.
bool enter(PyGILState_STATE &state);

// Whether this thread may give back what it holds of Python: at the end of the interpreter others
// than the one that ends it may be without the GIL.
bool may_release();

// Has the end of the interpreter noticed, and forks wait for calls in progress.
void watch_process();

}  // namespace python
