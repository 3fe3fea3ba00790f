#include "tesselctl/device/meter_spec.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/value.hpp"
#include "tesselctl/text/words.hpp"

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

const MeterUnits &units_of(const soft_meter_t &meter) {
  static constexpr MeterUnits kUnits[] = {{&kKilobitRate, &kKilobits}, {&kPacketRate, &kPackets}};
  return kUnits[meter.unit == PIPE_RATE_PACKETS ? 1 : 0];
}

MeterNumbers parse_meter(Word text, const MeterUnits &units) {
  MeterNumbers numbers = {};
  if (std::ranges::count(text.text, ',') + 1 != static_cast<ptrdiff_t>(numbers.size())) {
    throw Fault(text, "a meter is four numbers: CIR,CBS,PIR,PBS");
  }
  for (size_t i = 0; i < numbers.size(); ++i) {
    const uint64_t number =
        parse_limited(take_until(text, ','), 0xffffffffu, "a number", 0, units[i % 2]);
    numbers[i] = static_cast<uint32_t>(number);
  }
  return numbers;
}

void append_meter(std::string &text, const MeterNumbers &numbers) {
  fmt::format_to(std::back_inserter(text), "meter={}", fmt::join(numbers, ","));
}

void add_meter(Row &row, const MeterNumbers &numbers) {
  row.list("meter", {numbers.begin(), numbers.end()});
}

}  // namespace tesselctl
