#include "tesselctl/program/call.hpp"

#include <bit>
#include <stdexcept>
#include <string>

#include "tesselctl/program/library.hpp"
#include "tesselctl/program/trace.hpp"

namespace tesselctl {

const bindings::Export &need_export(std::string_view family, std::string_view object,
                                    std::string_view action) {
  if (const bindings::Export *found = find_export(family, object, action)) return *found;
  throw std::logic_error("the library has no function " + std::string(family) + " of " +
                         std::string(object) + " " + std::string(action));
}

size_t Call::position(std::string_view parameter) const {
  for (size_t i = 0; i < target_->parameter_count; ++i) {
    const char *const name = target_->parameters[i].name;
    // The first letter saves measuring most names.
    if (name[0] == parameter.front() && parameter == name) return i;
  }
  return kNone;
}

uint64_t &Call::word(std::string_view parameter) {
  const size_t at = position(parameter);
  if (at >= kMostParameters) {
    throw std::logic_error(std::string(target_->name) + " has no parameter " +
                           std::string(parameter));
  }
  return word_at(at);
}

uint64_t Call::run() const {
  const auto unset = static_cast<size_t>(std::countr_one(set_));
  if (unset < target_->parameter_count) {
    throw std::logic_error(std::string(target_->name) + ": " + target_->parameters[unset].name +
                           " is not set");
  }
  if (listener_ != nullptr) listener_->before(*this);
  const uint64_t result = target_->call(words_.data());
  trace_call(*target_, words_.data(), result);
  if (listener_ != nullptr) listener_->after(*this, result);
  return result;
}

}  // namespace tesselctl
