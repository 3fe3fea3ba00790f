#include "pdgen/check/diagnostics.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <tuple>
#include <utility>

namespace pdgen {

void Diagnostics::report(const Place &place, std::string_view key, std::string message) {
  faults_.push_back({place, std::string(key), std::move(message)});
}

std::vector<Fault> Diagnostics::sorted() const {
  std::vector<Fault> faults = faults_;
  std::stable_sort(faults.begin(), faults.end(), [](const Fault &a, const Fault &b) {
    return std::tie(a.place.file, a.place.line) < std::tie(b.place.file, b.place.line);
  });
  return faults;
}

std::string Diagnostics::text() const {
  std::string lines;
  for (const Fault &fault : sorted()) {
    lines += fmt::format("{}:{}: {}: {}\n", fault.place.file, fault.place.line, fault.key,
                         fault.message);
  }
  return lines;
}

}  // namespace pdgen
