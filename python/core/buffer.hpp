// The bytes of an object that has the buffer protocol.
#pragma once

#include <memory>

#include "python/core/object.hpp"

namespace python {

class Buffer {
 public:
  Buffer() = default;
  Buffer(PyObject *object, int flags) : view_(new Py_buffer{}) {
    check(PyObject_GetBuffer(object, view_.get(), flags));
  }

  const Py_buffer &view() const { return *view_; }
  size_t size() const { return static_cast<size_t>(view_->len); }
  void *data() const { return view_->buf; }

 private:
  struct Release {
    void operator()(Py_buffer *view) const {
      if (may_release()) PyBuffer_Release(view);
      delete view;
    }
  };
  // Where it was filled: its lengths may point into it.
  std::unique_ptr<Py_buffer, Release> view_;
};

}  // namespace python
