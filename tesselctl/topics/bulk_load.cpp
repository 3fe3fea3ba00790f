#include "tesselctl/topics/bulk_load.hpp"

#include <fmt/format.h>

#include "soft_sdk.h"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

// Faults beyond these are counted and not printed.
constexpr uint64_t kFaultsShown = 10;

}  // namespace

void FaultReport::add(const std::string &file, uint64_t line, size_t column,
                      const std::string &message) {
  if (++count_ > kFaultsShown) return;
  const std::string place = column == 0 ? "" : ":" + std::to_string(column);
  errors_.line("{}:{}{}: {}", file, line, place, message);
}

void FaultReport::finish() {
  if (count_ > kFaultsShown) errors_.line("and {} more of them", grouped(count_ - kFaultsShown));
  errors_.flush();
}

void print_step(Output &out, const char *step, const LoadStep &done) {
  const auto &[count, total, seconds] = done;
  const double rate = seconds > 0 ? static_cast<double>(count) / seconds : 0;
  out.line("  {:<9} {:>10} of {} in {:.3f} s of CPU time, {} a second", step, grouped(count),
           grouped(total), seconds, grouped(static_cast<uint64_t>(rate)));
}

void print_memory(Output &out, uint64_t bytes, uint64_t entries) {
  const double each = entries == 0 ? 0 : static_cast<double>(bytes) / static_cast<double>(entries);
  out.line("  memory    {:>10} bytes, {:.1f} an entry", grouped(bytes), each);
}

uint64_t memory_of(uint32_t device, uint32_t table) {
  uint64_t bytes = 0;
  soft_memory_bytes(device, table, &bytes);
  return bytes;
}

}  // namespace tesselctl
