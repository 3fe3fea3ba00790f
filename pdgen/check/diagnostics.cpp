#include "pdgen/check/diagnostics.hpp"

#include <algorithm>
#include <tuple>

namespace pdgen {

std::vector<Fault> Diagnostics::sorted() const {
  std::vector<Fault> faults = faults_;
  std::ranges::stable_sort(faults, [](const Fault &a, const Fault &b) {
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
