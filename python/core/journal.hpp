// The calls that the soft SDK has recorded.
#pragma once

#include "python/core/object.hpp"

namespace python {

void add_journal(PyObject *module);

}  // namespace python
