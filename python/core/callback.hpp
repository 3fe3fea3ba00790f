// Python functions that the SDK calls.
#pragma once

#include <cstdint>
#include <string_view>

#include "python/core/object.hpp"

namespace python {

// Where a callable stands that a device may call: one for each registration, for good, so that a
// call in progress on another thread never meets one that is gone.
struct CallbackSlot {
  PyObject *callable = nullptr;  // held; null: calls do nothing
};

// The slot of a registration: whose function it is and which device.
CallbackSlot &callback_slot(const void *function, uint32_t device);
// Forgets the callables of a device.
void drop_callbacks(uint32_t device);

// What C calls for a callback of that type, with the slot as its cookie; 0 for an unknown type.
uintptr_t callback_function(std::string_view type);

// Owns or borrows an object of the SDK that Python hands on without looking into it.
struct OpaqueObject {
  PyObject ob_base;
  void *address;
  void (*release)(void *);
};
void add_opaque(PyObject *module);
PyObject *make_opaque(void *address, void (*release)(void *));
// Null for any other object.
OpaqueObject *as_opaque(PyObject *object);

}  // namespace python
