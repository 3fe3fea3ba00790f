#include "rows.hpp"

#include <benchmark/benchmark.h>
#include <valgrind/callgrind.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>

namespace bench {

namespace {

constexpr uint64_t batch = 128;

std::vector<const Side *> sides_of(const Row &row) {
  std::vector<const Side *> sides = {&row.what};
  for (const Side &side : row.against) sides.push_back(&side);
  return sides;
}

// Seconds an operation, of each repetition, by the name of the side.
class Times : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context & /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run> &runs) override {
    for (const Run &run : runs) {
      if (run.run_type != Run::RT_Iteration) continue;
      times_[run.run_name.function_name].push_back(1 / run.counters.at("items_per_second"));
    }
  }
  const std::vector<double> &sorted(const std::string &name) {
    std::vector<double> &times = times_.at(name);
    std::sort(times.begin(), times.end());
    return times;
  }

 private:
  std::map<std::string, std::vector<double>> times_;
};

// The sides of a row in turns, so that what slows the machine down slows all of them down.
Times measure(const Row &row) {
  std::map<const Side *, Work> kept;
  for (const Side *side : sides_of(row)) {
    benchmark::internal::Benchmark *one =
        benchmark::RegisterBenchmark(side->name.c_str(), [side, &kept](benchmark::State &state) {
          if (side->once != 0 || !kept[side]) kept[side] = side->prepare();
          const uint64_t count = side->once != 0 ? side->once : batch;
          for (auto _ : state) kept[side](count);
          state.SetItemsProcessed(static_cast<int64_t>(state.iterations() * count));
          if (side->once != 0) kept[side] = nullptr;
        });
    if (side->once != 0) one->Iterations(1);
    if (row.is_parallel) one->UseRealTime();
    if (side->once > 1'000'000) one->Repetitions(3);
  }
  Times times;
  benchmark::RunSpecifiedBenchmarks(&times, "all");
  benchmark::ClearRegisteredBenchmarks();
  return times;
}

void print(const Row &row, Times &times, bool is_first) {
  static constexpr const char *kinds[] = {"none", "at most", "at least", "a second"};
  std::printf("%s\n {\"room\": \"%s\", \"name\": \"%s\", \"goal\": \"%s\", \"value\": %g, ",
              is_first ? "" : ",", row.room.c_str(), row.name.c_str(), kinds[row.goal.kind],
              row.goal.value);
  std::printf("\"by\": \"%s\", \"sides\": [", row.by_instructions ? "instructions" : "time");
  const char *separator = "";
  for (const Side *side : sides_of(row)) {
    const std::vector<double> &sorted = times.sorted(side->name);
    std::printf("%s{\"name\": \"%s\", \"ns\": %.4g, \"least\": %.4g, \"most\": %.4g}", separator,
                side->name.c_str(), sorted[sorted.size() / 2] * 1e9, sorted.front() * 1e9,
                sorted.back() * 1e9);
    separator = ", ";
  }
  std::printf("]}");
  std::fflush(stdout);
}

// One run to get warm, one that counts.
void count(const Row &row) {
  for (const Side *side : sides_of(row)) {
    const uint64_t operations = side->once != 0 ? side->once : row.counted;
    const std::string name =
        row.room + "|" + row.name + "|" + side->name + "|" + std::to_string(operations);
    Work work = side->prepare();
    if (side->once == 0) work(operations);
    CALLGRIND_START_INSTRUMENTATION;
    CALLGRIND_ZERO_STATS;
    work(operations);
    CALLGRIND_DUMP_STATS_AT(name.c_str());
    CALLGRIND_STOP_INSTRUMENTATION;
  }
}

}  // namespace

void expect(bool good, const char *what) {
  if (good) return;
  std::fprintf(stderr, "bench: %s: it failed\n", what);
  std::exit(1);
}

int run(const std::vector<Row> &rows, int argc, char **argv) {
  const std::string wanted = argc > 1 ? argv[1] : "";
  std::array<std::string, 4> flags = {"bench", "--benchmark_repetitions=7",
                                      "--benchmark_min_time=0.03",
                                      "--benchmark_enable_random_interleaving=true"};
  std::array<char *, 5> arguments = {};
  for (size_t i = 0; i < flags.size(); ++i) arguments[i] = flags[i].data();
  int argument_count = static_cast<int>(flags.size());
  benchmark::Initialize(&argument_count, arguments.data());
  const bool is_counting = RUNNING_ON_VALGRIND != 0;
  bool is_first = true;
  if (!is_counting) std::printf("[");
  for (const Row &row : rows) {
    if ((row.room + "/" + row.name).find(wanted) == std::string::npos) continue;
    if (is_counting) {
      if (row.counted != 0) count(row);
      continue;
    }
    std::fprintf(stderr, "%s: %s\n", row.room.c_str(), row.name.c_str());
    Times times = measure(row);
    print(row, times, is_first);
    is_first = false;
  }
  if (!is_counting) std::printf("]\n");
  return 0;
}

}  // namespace bench
