// What commands that load files of entries report.
#pragma once

#include <string>

#include "tesselctl/text/output.hpp"

namespace tesselctl {

// Counts faults and prints the first ones.
class FaultReport {
 public:
  explicit FaultReport(Output &errors) : errors_(errors) {}
  // Without a column, 0, it is a fault of the whole line.
  void add(const std::string &file, uint64_t line, size_t column, const std::string &message);
  void finish();
  uint64_t count() const { return count_; }

 private:
  Output &errors_;
  uint64_t count_ = 0;
};

struct LoadStep {
  uint64_t count;
  uint64_t total;
  // Of the thread: what else the machine does is none of the library's time.
  double cpu_seconds;
};
// "  added  1,042,325 of 1,042,325 in 0.343 s of CPU time, 3,036,395 a second"
void print_step(Output &out, const char *step, const LoadStep &done);
// "  memory  62,910,776 bytes, 60.4 an entry"
void print_memory(Output &out, uint64_t bytes, uint64_t entries);

// What the device holds for a table.
uint64_t memory_of(uint32_t device, uint32_t table);

}  // namespace tesselctl
