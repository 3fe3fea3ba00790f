// What introspection costs: value strings against one snprintf and against hexadecimal output
// written by hand, the longest schema against a copy of its bytes, and dumps of a million routes
// out of the soft SDK, by handle and as the tool does it. Ratios count, all of them from one run.
#include <benchmark/benchmark.h>

#include <cstring>
#include <vector>

#include "by_hand_text.h"
#include "tesselctl/device/entry_texts.hpp"

namespace {

const bool has_used_program = (tesselctl::use_program(bindings::pd_binding), true);

// Every bit set, so that no value is short.
template <class Record>
Record filled() {
  Record record;
  std::memset(&record, 0xff, sizeof record);
  return record;
}

template <class Record, int (*Write)(const Record *, char *)>
void value(benchmark::State &state) {
  const Record record = filled<Record>();
  char buffer[P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX];
  for (auto _ : state) {
    benchmark::DoNotOptimize(&record);
    benchmark::DoNotOptimize(Write(&record, buffer));
    benchmark::ClobberMemory();
  }
}

using CpuEncap = p4_pd_tessel_switch_cpuEncap_match_spec_t;
using TrapToCpu = p4_pd_tessel_switch_trapToCpu_match_spec_t;

BENCHMARK(value<CpuEncap, p4_pd_tessel_switch_cpuEncap_match_spec_value>)
    ->Name("value/cpuEncap/library");
BENCHMARK(value<CpuEncap, by_hand_text_cpuEncap>)->Name("value/cpuEncap/by_hand");
BENCHMARK(value<CpuEncap, printf_cpuEncap>)->Name("value/cpuEncap/snprintf");
BENCHMARK(value<TrapToCpu, p4_pd_tessel_switch_trapToCpu_match_spec_value>)
    ->Name("value/trapToCpu/library");
BENCHMARK(value<TrapToCpu, by_hand_text_trapToCpu>)->Name("value/trapToCpu/by_hand");
BENCHMARK(value<TrapToCpu, printf_trapToCpu>)->Name("value/trapToCpu/snprintf");

void schema(benchmark::State &state) {
  char buffer[P4_PD_TESSEL_SWITCH_SCHEMA_MAX];
  for (auto _ : state) {
    benchmark::DoNotOptimize(p4_pd_tessel_switch_finalDropControl_schema(buffer));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(schema)->Name("schema/finalDropControl/library");

void copy(benchmark::State &state) {
  char text[P4_PD_TESSEL_SWITCH_SCHEMA_MAX];
  char buffer[P4_PD_TESSEL_SWITCH_SCHEMA_MAX];
  p4_pd_tessel_switch_finalDropControl_schema(text);
  size_t size = 3785;
  for (auto _ : state) {
    benchmark::DoNotOptimize(size);
    benchmark::DoNotOptimize(std::memcpy(buffer, text, size));
    benchmark::ClobberMemory();
  }
}
BENCHMARK(copy)->Name("schema/finalDropControl/memcpy");

// A device with a million routes.
class Routes {
 public:
  static constexpr uint32_t count = 1000000;

  Routes() {
    const p4_pd_tessel_switch_setNextHop_action_spec_t action = {17};
    entries_.resize(count);
    for (uint32_t i = 0; i < count; ++i) {
      p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t key = {};
      key.ingIpv4_dip = i << 8;
      key.ingIpv4_dip_prefix_length = 24;
      if (p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
              device_.session(), device_.target(), &key, &action, 0, &entries_[i]) != BF_SUCCESS) {
        entries_.clear();
        break;
      }
    }
  }

  tesselctl::Device &device() { return device_; }
  const std::vector<p4_pd_entry_handle_t> &entries() const { return entries_; }

 private:
  tesselctl::Device device_{{.id = 0, .pipes = 1}};
  std::vector<p4_pd_entry_handle_t> entries_;
};

void dump_by_handle(benchmark::State &state) {
  Routes routes;
  if (routes.entries().size() != Routes::count) {
    state.SkipWithError("a route was refused");
    return;
  }
  char buffer[P4_PD_TESSEL_SWITCH_VALUE_MAX];
  for (auto _ : state) {
    for (const p4_pd_entry_handle_t entry : routes.entries()) {
      if (p4_pd_tessel_switch_ipv4ShortMaskLpm_value(routes.device().session(), 0, entry, false,
                                                     buffer) == 0) {
        state.SkipWithError("a route was not found");
        return;
      }
    }
  }
  state.SetItemsProcessed(state.iterations() * Routes::count);
}
BENCHMARK(dump_by_handle)->Name("dump/by_handle")->Unit(benchmark::kMillisecond);

// As lines of a stream, the handles enumerated.
void dump_by_tool(benchmark::State &state) {
  Routes routes;
  std::FILE *stream = std::fopen("/dev/null", "w");
  if (routes.entries().size() != Routes::count || stream == nullptr) {
    state.SkipWithError("no routes, or nowhere to write them");
    return;
  }
  const tesselctl::Word word{"ipv4ShortMaskLpm", 1};
  const tesselctl::TableInfo table = tesselctl::resolve_table(word);
  {
    tesselctl::Output out(stream, false);
    tesselctl::Context context{.device = routes.device(), .out = out};
    for (auto _ : state) tesselctl::dump_values(context, table, word);
  }
  std::fclose(stream);
  state.SetItemsProcessed(state.iterations() * Routes::count);
}
BENCHMARK(dump_by_tool)->Name("dump/tool")->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
