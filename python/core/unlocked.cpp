#include "python/core/unlocked.hpp"

#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

#include "python/core/object.hpp"

namespace python {

namespace {

std::atomic<uint32_t> calls = 0;      // in progress, of all threads
thread_local uint32_t own_calls = 0;  // those of this thread, while a callback runs

std::atomic<bool> is_ending = false;
std::thread::id ending_thread;

std::atomic<uint32_t> entering = 0;  // callbacks that ask for the GIL

// Lets other threads run for a while.
void yield() {
  PyThreadState *state = PyEval_SaveThread();
  std::this_thread::sleep_for(std::chrono::microseconds(50));
  until_end([&] { PyEval_RestoreThread(state); });
}

// No callback asks an interpreter for the GIL that is gone.
PyObject *end(PyObject * /*module*/, PyObject * /*unused*/) {
  ending_thread = std::this_thread::get_id();
  is_ending = true;
  while (entering != 0) yield();
  return none();
}

// A child of a fork has one thread: what another one had locked would stay so. So a fork waits
// until no other thread is within a call, and meanwhile none begins one. Under the GIL.
uint32_t forks = 0;

PyObject *before_fork(PyObject * /*module*/, PyObject * /*unused*/) {
  ++forks;
  while (calls != own_calls) yield();
  return none();
}
PyObject *after_fork(PyObject * /*module*/, PyObject * /*unused*/) {
  --forks;
  return none();
}
PyObject *in_child(PyObject * /*module*/, PyObject * /*unused*/) {
  forks = 0;
  return none();
}

PyMethodDef at_end = {"end", end, METH_NOARGS, nullptr};
PyMethodDef at_fork[] = {{"before", before_fork, METH_NOARGS, nullptr},
                         {"after_in_parent", after_fork, METH_NOARGS, nullptr},
                         {"after_in_child", in_child, METH_NOARGS, nullptr}};

}  // namespace

Unlocked::Unlocked() {
  while (forks != 0 && own_calls == 0) yield();
  ++calls;
  ++own_calls;
  state_ = PyEval_SaveThread();
}

Unlocked::~Unlocked() {
  --own_calls;
  --calls;
  until_end([&] { PyEval_RestoreThread(state_); });
}

bool enter(PyGILState_STATE &state) {
  ++entering;
  const bool is_alive = may_release();
  if (is_alive) until_end([&] { state = PyGILState_Ensure(); });
  --entering;
  return is_alive;
}

void wait_for_end() {
  for (;;) pause();
}

bool may_release() {
  return !is_ending.load(std::memory_order_relaxed) || ending_thread == std::this_thread::get_id();
}

void watch_process() {
  const Ref atexit(PyImport_ImportModule("atexit"));
  const Ref ending(PyCFunction_New(&at_end, nullptr));
  const Ref registered(PyObject_CallMethod(atexit.get(), "register", "O", ending.get()));
  const Ref os(PyImport_ImportModule("os"));
  const Ref hook(PyObject_GetAttrString(os.get(), "register_at_fork"));
  const Ref keywords(PyDict_New());
  for (PyMethodDef &when : at_fork) {
    check(PyDict_SetItemString(keywords.get(), when.ml_name,
                               Ref(PyCFunction_New(&when, nullptr)).get()));
  }
  const Ref nothing(PyTuple_New(0));
  const Ref done(PyObject_Call(hook.get(), nothing.get(), keywords.get()));
}

}  // namespace python
