#include "tesselctl/device/meter_spec.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

MeterNumbers numbers_of(const p4_pd_bytes_meter_spec_t &spec) {
  return {spec.committed_rate, spec.committed_burst, spec.peak_rate, spec.peak_burst};
}

p4_pd_bytes_meter_spec_t meter_spec(const MeterNumbers &numbers, uint32_t type) {
  p4_pd_bytes_meter_spec_t spec = {};
  spec.committed_rate = numbers[0];
  spec.committed_burst = numbers[1];
  spec.peak_rate = numbers[2];
  spec.peak_burst = numbers[3];
  spec.meter_type = type;
  return spec;
}

MeterNumbers parse_meter(Word text) {
  const std::vector<uint64_t> list = number_list(text);
  MeterNumbers numbers = {};
  if (list.size() != numbers.size()) {
    throw Fault(text, "a meter is four numbers: CIR,CBS,PIR,PBS");
  }
  std::ranges::transform(list, numbers.begin(),
                         [](uint64_t number) { return static_cast<uint32_t>(number); });
  return numbers;
}

void append_meter(std::string &text, const MeterNumbers &numbers) {
  fmt::format_to(std::back_inserter(text), "meter={}", fmt::join(numbers, ","));
}

void add_meter(Row &row, const MeterNumbers &numbers) {
  row.list("meter", {numbers.begin(), numbers.end()});
}

}  // namespace tesselctl
