#include "tesselctl/program/trace.hpp"

#include <fmt/format.h>

#include "tesselctl/program/c_call.hpp"
#include "tesselctl/program/status.hpp"

namespace tesselctl {

namespace {

thread_local Results *listener = nullptr;

}  // namespace

TraceScope::TraceScope(Results *results) : before_(listener) { listener = results; }
TraceScope::~TraceScope() { listener = before_; }

void trace_call(const bindings::Export &target, const uint64_t *words, uint64_t result) {
  if (listener == nullptr) return;
  const bool has_status = std::string_view(target.result) == kStatusType;
  listener->text(c_call(target, words,
                        has_status ? status_name(static_cast<uint32_t>(result)) : std::string()));
}

}  // namespace tesselctl
