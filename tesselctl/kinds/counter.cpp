// Counters that are addressed by an index, in images.
#include <fmt/format.h>

#include "tesselctl/device/handles.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"

namespace tesselctl {

namespace {

struct CounterCell {
  uint32_t index;
  uint32_t pipe;
};

// "cell 3 pipe=0 packets=10 bytes=640": cells that have counted.
class CounterCells : public CellItems<CounterCell, p4_pd_counter_values_t> {
 public:
  explicit CounterCells(const soft_counter_t &counter) : counter_(counter) {}

 protected:
  using Values = p4_pd_counter_values_t;

  void parse_cell(ValueScanner &line, CounterCell &cell, Values &values) const override {
    cell.index = parse_index(line);
    const LineWords words(line, {"pipe", "packets", "bytes"});
    cell.pipe = words.number32("pipe");
    values.packets = words.number("packets", ~uint64_t{0});
    values.bytes = words.number("bytes", ~uint64_t{0});
  }
  void print_cell(std::string &text, const CounterCell &cell, const Values &values) const override {
    fmt::format_to(std::back_inserter(text), "{} pipe={} packets={} bytes={}", cell.index,
                   cell.pipe, values.packets, values.bytes);
  }
  void add_cell(Row &row, const CounterCell &cell, const Values &values) const override {
    row.number("index", cell.index).number("pipe", cell.pipe);
    row.number("packets", values.packets).number("bytes", values.bytes);
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    for_each_cell(from.device, counter_.handle, [&](uint32_t index) {
      for (uint32_t pipe = 0; pipe < from.device.pipes(); ++pipe) {
        Values values = {};
        const p4_pd_device_target_t target = from.device.target_of(pipe);
        Call call = from.device.prepare("counter_read", counter_.name);
        call.set("target", &target).set("index", uint64_t{index}).set("values", &values);
        check(call.set("flags", uint64_t{P4_PD_READ_FROM_HARDWARE}).run(), {});
        if ((values.packets | values.bytes) != 0) visit({index, pipe}, values);
      }
    });
  }
  void write_cell(Target &to, Edit edit, const CounterCell &cell, const Values &values,
                  Word word) const override {
    if (cell.pipe >= to.device.pipes()) throw Fault(word, "the device has no such pipe");
    const Values written = edit == Edit::remove ? Values{} : values;
    const p4_pd_device_target_t target = to.device.target_of(cell.pipe);
    Call call = to.device.prepare("counter_write", counter_.name);
    call.set("target", &target).set("index", uint64_t{cell.index});
    check(call.set("values", &written).run(), word);
  }

 private:
  const soft_counter_t &counter_;
};

constexpr ObjectKind kCounterObjects = {"counter", "counter",
                                        row_name<&program_rows<soft_counter_t>>};

}  // namespace

extern const ItemKind kCounterKind = {kCounterObjects, "cell", kCellSteps, [](const char *name) {
                                        std::unique_ptr<ObjectItems> items;
                                        const auto &counter = need_row<soft_counter_t>(name);
                                        if (counter.table == 0) {
                                          items = std::make_unique<CounterCells>(counter);
                                        }
                                        return items;
                                      }};

}  // namespace tesselctl
