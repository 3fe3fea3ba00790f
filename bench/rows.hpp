// The rows of the table of performance, in one shape: something that the product does, what it is
// compared with, and the goal. scripts/bench runs them and prints the table.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace bench {

// Does so many operations.
using Work = std::function<void(uint64_t count)>;

// The work has what it needs, and takes it with it when it goes.
struct Side {
  std::string name;
  std::function<Work()> prepare;
  // Operations of a work that cannot go on for ever, such as adding: each run is prepared anew.
  // 0: any number, on one preparation.
  uint64_t once = 0;
};

struct Goal {
  enum Kind { none, at_most, at_least, rate } kind = none;
  double value = 0;
};
// The cost of what, in that of the other one.
constexpr Goal at_most(double times) { return {Goal::at_most, times}; }
// How much faster it is than the other one.
constexpr Goal at_least(double times) { return {Goal::at_least, times}; }
constexpr Goal a_second(double operations) { return {Goal::rate, operations}; }

struct Row {
  std::string room;
  std::string name;
  Side what;
  std::vector<Side> against;  // the cheapest of them counts; may be none
  Goal goal = {};
  // Instructions decide, where they are what there is to win; otherwise time.
  bool by_instructions = false;
  bool is_parallel = false;  // in time of the clock, where others are in that of the processor
  // Operations that callgrind counts, of works that can do any number; 0: the row is not counted.
  uint64_t counted = 128;
};

// Ends the program: a benchmark whose operations fail has no figures.
void expect(bool good, const char *what);

// Measures the rows whose room and name contain the first argument, all without one, and prints
// them as JSON. Under callgrind it counts instead, and dumps the counts of each side.
int run(const std::vector<Row> &rows, int argc, char **argv);

}  // namespace bench
