#include "python/core/value.hpp"

#include <fmt/format.h>

#include <map>
#include <optional>

#include "python/core/buffer.hpp"

namespace python {

namespace {

using tesselctl::Fault;
using tesselctl::Field;
using tesselctl::FieldValue;
using tesselctl::Match;
using tesselctl::Notation;
using tesselctl::Number;
using tesselctl::Word;

bool is_address(const Field &field) {
  return field.notation == Notation::ipv4 || field.notation == Notation::ipv6 ||
         field.notation == Notation::mac;
}

Number number_of_int(const Field &field, PyObject *object) {
  const unsigned long long value = PyLong_AsUnsignedLongLong(object);
  if (!PyErr_Occurred() && (field.width >= 64 || value >> field.width == 0)) return value;
  PyErr_Clear();
  // Long or wrong: by its digits, which the fault shows.
  const Ref digits(PyNumber_ToBase(object, field.width > 64 ? 16 : 10));
  const std::string_view shown = text_of(digits.get());
  if (shown.starts_with('-')) throw Fault(Word{shown, 1}, "a value is 0 or more");
  if (field.width < 64 && shown.size() > 20) {
    throw Fault(Word{shown, 1}, fmt::format("this is more than {} bits", field.width));
  }
  return tesselctl::parse_single(field, {shown, 1});
}

Number number_of_bytes(const Field &field, PyObject *object) {
  const Buffer bytes(object, PyBUF_SIMPLE);
  const size_t wanted = (field.width + 7) / 8;
  if (bytes.size() != wanted) {
    throw Fault(fmt::format("{} bytes; {} has {}", bytes.size(), field.label, wanted));
  }
  const Number number = tesselctl::from_bytes(static_cast<const uint8_t *>(bytes.data()), wanted);
  if (!number.fits(field.width)) {
    throw Fault(fmt::format("the bytes are more than the {} bits of {}", field.width, field.label));
  }
  return number;
}

// The text of an object of the module ipaddress; nothing for any other.
Ref address_text(PyObject *object) {
  const Ref module = [&] {
    PyObject *found =
        PyObject_GetAttrString(reinterpret_cast<PyObject *>(Py_TYPE(object)), "__module__");
    return Ref(found);
  }();
  if (!PyUnicode_Check(module.get()) || text_of(module.get()) != "ipaddress") return {};
  return Ref(PyObject_Str(object));
}

Number masked_part(const Field &field, PyObject *object) {
  if (PyLong_Check(object)) return number_of_int(field, object);
  return to_number(field, object);
}

FieldValue value_of_pair(const Field &field, PyObject *pair) {
  if (PyTuple_Size(pair) != 2) {
    raise(PyExc_TypeError,
          fmt::format("{}: a tuple is a value and its mask or prefix length", field.label));
  }
  if (field.match == Match::exact) {
    throw Fault(fmt::format("{} is matched exactly, so it takes one value", field.label));
  }
  FieldValue value;
  value.value = masked_part(field, PyTuple_GetItem(pair, 0));
  PyObject *second = PyTuple_GetItem(pair, 1);
  if (field.match == Match::lpm) {
    Field length = field;
    length.label = "the prefix length";
    length.width = 16;
    const Number bits = masked_part(length, second);
    if (bits > Number(field.width)) {
      throw Fault(fmt::format("a prefix of {} has at most {} bits", field.label, field.width));
    }
    value.mask = tesselctl::prefix_mask(static_cast<unsigned>(bits.low), field.width);
  } else {
    value.mask = masked_part(field, second);
  }
  if ((value.value & ~value.mask).is_zero()) return value;
  throw Fault("the value has bits that its mask or prefix leaves out");
}

FieldValue whole(const Field &field, Number value) {
  return {value, field.match == Match::ternary ? tesselctl::key_bits(field)
                                               : tesselctl::low_ones(field.width)};
}

// What a class of the module ipaddress is: the module is there when there are objects of it.
bool is_instance(PyObject *object, const char *class_name) {
  static std::map<const char *, PyObject *> classes;
  PyObject *&found = classes[class_name];
  if (found == nullptr) {
    PyObject *module = PyImport_GetModule(Ref(text("ipaddress")).get());
    if (module == nullptr) {
      PyErr_Clear();
      return false;
    }
    found = PyObject_GetAttrString(module, class_name);
    Py_DECREF(module);
  }
  return reinterpret_cast<PyObject *>(Py_TYPE(object)) == found;
}

// The value of an address or a network of the field's kind without its text, which takes long to
// make; nothing where it needs the text.
std::optional<FieldValue> value_of_address(const Field &field, PyObject *object) {
  const bool is_six = field.notation == Notation::ipv6;
  if (!is_six && field.notation != Notation::ipv4) return {};
  const bool is_network =
      field.match != Match::exact && is_instance(object, is_six ? "IPv6Network" : "IPv4Network");
  if (!is_network && !is_instance(object, is_six ? "IPv6Address" : "IPv4Address")) return {};
  static PyObject *const network_address = PyUnicode_InternFromString("network_address");
  static PyObject *const ip = PyUnicode_InternFromString("_ip");
  static PyObject *const prefix_length = PyUnicode_InternFromString("_prefixlen");
  const Ref address(is_network ? PyObject_GetAttr(object, network_address) : Py_NewRef(object));
  FieldValue value =
      whole(field, number_of_int(field, Ref(PyObject_GetAttr(address.get(), ip)).get()));
  if (is_network) {
    const Ref length(PyObject_GetAttr(object, prefix_length));
    value.mask = tesselctl::prefix_mask(static_cast<unsigned>(PyLong_AsUnsignedLong(length.get())),
                                        field.width);
  }
  return value;
}

}  // namespace

Number to_number(const Field &field, PyObject *object) {
  if (PyLong_Check(object)) return number_of_int(field, object);
  if (PyUnicode_Check(object)) return tesselctl::parse_single(field, {text_of(object), 1});
  if (PyBytes_Check(object)) return number_of_bytes(field, object);
  if (PyIndex_Check(object)) return number_of_int(field, Ref(PyNumber_Index(object)).get());
  if (const Ref address = address_text(object)) {
    return tesselctl::parse_single(field, {text_of(address.get()), 1});
  }
  raise(PyExc_TypeError, fmt::format("{}: a value is an int, str, bytes or an address, not {}",
                                     std::string(field.label), type_name(object)));
}

FieldValue to_single(const Field &field, PyObject *object) {
  return whole(field, to_number(field, object));
}

FieldValue to_value(const Field &field, PyObject *object) {
  if (PyUnicode_Check(object)) return tesselctl::parse_value(field, {text_of(object), 1});
  if (PyLong_Check(object)) return whole(field, number_of_int(field, object));
  if (PyTuple_Check(object)) return value_of_pair(field, object);
  if (!PyBytes_Check(object) && !PyIndex_Check(object)) {
    if (const std::optional<FieldValue> value = value_of_address(field, object)) return *value;
    if (const Ref address = address_text(object)) {
      return tesselctl::parse_value(field, {text_of(address.get()), 1});
    }
  }
  return to_single(field, object);
}

PyObject *from_number(Number number) {
  if (number.high == 0) return checked(PyLong_FromUnsignedLongLong(number.low));
  return checked(PyLong_FromString(tesselctl::hexadecimal(number).c_str(), nullptr, 0));
}

PyObject *from_value(const Field &field, const FieldValue &value) {
  const bool is_whole = field.match == Match::exact ||
                        (field.match == Match::ternary && value.mask == tesselctl::key_bits(field));
  if (is_whole && !is_address(field)) return from_number(value.value);
  return text(tesselctl::format_value(field, value));
}

}  // namespace python
