// One call of an exported function, its arguments given by parameter name.
#pragma once

#include <array>
#include <cstdint>
#include <string_view>

#include "bindings/export_table.hpp"

namespace tesselctl {

// The export of that family, object and action, of which the caller knows that it exists: throws
// std::logic_error otherwise.
const bindings::Export &need_export(std::string_view family, std::string_view object,
                                    std::string_view action = {});

class Call;

// Hears of the calls on a device.
class CallListener {
 public:
  virtual ~CallListener() = default;
  virtual void before(const Call &call) = 0;
  virtual void after(const Call &call, uint64_t result) = 0;
};

class Call {
 public:
  // The listener, null for none, outlives the call.
  explicit Call(const bindings::Export &target, CallListener *listener = nullptr)
      : target_(&target), listener_(listener) {}

  const bindings::Export &target() const { return *target_; }
  // In the order of the parameters.
  const uint64_t *words() const { return words_.data(); }
  bool takes(std::string_view parameter) const { return position(parameter) != kNone; }

  // An integer, or the address of an object: for a pointer, or for a record that is passed by
  // value, which must live until run. Throws std::logic_error when there is no such parameter.
  Call &set(std::string_view parameter, uint64_t value) {
    word(parameter) = value;
    return *this;
  }
  Call &set(std::string_view parameter, const void *object) {
    return set(parameter, address(object));
  }
  // Where the value of a parameter stands, which is to be set before each of many runs.
  uint64_t &word(std::string_view parameter);
  Call &set_if_taken(std::string_view parameter, uint64_t value) {
    if (const size_t at = position(parameter); at < kMostParameters) word_at(at) = value;
    return *this;
  }
  Call &set_if_taken(std::string_view parameter, const void *object) {
    return set_if_taken(parameter, address(object));
  }

  // The result of the function. Throws std::logic_error when a parameter was not set.
  uint64_t run() const;

 private:
  static constexpr size_t kNone = ~size_t{0};
  static constexpr size_t kMostParameters = 16;
  static uint64_t address(const void *object) {
    return static_cast<uint64_t>(reinterpret_cast<uintptr_t>(object));
  }
  // kNone when there is no such parameter.
  size_t position(std::string_view parameter) const;
  uint64_t &word_at(size_t position) {
    set_ |= 1u << position;
    return words_[position];
  }

  const bindings::Export *target_;
  CallListener *listener_;
  std::array<uint64_t, kMostParameters> words_{};
  uint32_t set_ = 0;  // a bit for each parameter
};

}  // namespace tesselctl
