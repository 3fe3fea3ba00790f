// What the parameters of C functions take from Python, and how outputs are read.
#pragma once

#include <deque>
#include <vector>

#include "python/core/buffer.hpp"
#include "python/core/callback.hpp"
#include "python/core/program.hpp"
#include "python/core/structure.hpp"

namespace python {

enum class ParameterKind : uint8_t {
  integer,
  flag,
  structure,
  text,
  callback,
  opaque,
  input,
  output
};

// How the bytes behind an output are read.
enum class Reading : uint8_t { none, integer, flag, text, bytes, record, action, structure };

struct ParameterInfo {
  const bindings::Parameter *parameter;
  ParameterKind kind = ParameterKind::integer;
  Reading reading = Reading::none;
  size_t size = 4;  // bytes of the integer, or of one element
  bool is_signed = false;
  int count = -1;    // the parameter that says how many elements there are
  size_t least = 1;  // elements, or elements for each that is counted
  const Structure *structure = nullptr;
  const bindings::Record *record = nullptr;

  bool is_array() const { return count >= 0 || least > 1; }
};

std::vector<ParameterInfo> parameters_of(const Program *program, const bindings::Export &target);

// An output that Python reads after the call.
struct OutputObject {
  PyObject ob_base;
  PyObject *value;  // null before a call
};
void add_output(PyObject *module);
OutputObject *as_output(PyObject *object);

// The arguments of one call, as words and what these point at.
class Arguments {
 public:
  Arguments(Program *program, const bindings::Export &target,
            const std::vector<ParameterInfo> &parameters)
      : program_(program), target_(target), parameters_(parameters) {}
  Arguments(const Arguments &) = delete;
  Arguments &operator=(const Arguments &) = delete;

  // Throws TypeError and ValueError.
  void read(PyObject *tuple);
  const uint64_t *words() const { return words_; }
  // Hands callables to their slots and outputs to Python.
  void finish(bool is_good);
  void prepare();

 private:
  static constexpr size_t kMost = 16;

  uint64_t integer(const ParameterInfo &info, PyObject *object);
  uint64_t integer_of_session(const ParameterInfo &info, PyObject *object);
  uint64_t pointer(const ParameterInfo &info, PyObject *object);
  uint64_t pointer_to_copies(const ParameterInfo &info, PyObject *object, size_t wanted);
  uint64_t callback(const ParameterInfo &info, PyObject *object);
  size_t bytes_of(const ParameterInfo &info) const;
  uint8_t *room(size_t bytes);
  PyObject *read_output(const ParameterInfo &info, const uint8_t *bytes, size_t size);
  std::string name_of(const ParameterInfo &info) const {
    return std::string(target_.name) + ": " + info.parameter->name;
  }

  struct Pending {
    const ParameterInfo *info;
    OutputObject *output;
    uint8_t *bytes;
    size_t size;
  };

  Program *program_;
  const bindings::Export &target_;
  const std::vector<ParameterInfo> &parameters_;
  uint64_t words_[kMost] = {};
  std::deque<std::vector<uint64_t>> rooms_;
  std::vector<Buffer> buffers_;
  std::vector<Pending> outputs_;
  PyObject *callable_ = nullptr;  // of the callback, borrowed
  CallbackSlot *slot_ = nullptr;  // where it goes
  Ref before_;                    // what stood there
};

}  // namespace python
