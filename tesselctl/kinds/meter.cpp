// Meters: those of entries and those that are addressed by an index; the latter in images.
#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/meter_spec.hpp"

namespace tesselctl {

namespace {

// The bytes and the packets record have the same members; calls take the address of either.
static_assert(sizeof(p4_pd_bytes_meter_spec_t) == sizeof(p4_pd_packets_meter_spec_t));

using MeterLine = ObjectLine<soft_meter_t>;

constexpr std::string_view kNames[] = {"cir", "cbs", "pir", "pbs"};

void add_spec(Row &row, const soft_meter_t &meter, const p4_pd_bytes_meter_spec_t &spec) {
  const auto &units = units_of(meter);
  const MeterNumbers numbers = numbers_of(spec);
  for (size_t i = 0; i < numbers.size(); ++i) {
    row.number(kNames[i], numbers[i], units[i % 2]->name);
  }
  row.choice("type", spec.meter_type == PD_METER_TYPE_COLOR_AWARE ? "aware" : "unaware");
}

// ---- Items ----

// "cell 3 meter=1000,128,2000,256 type=0": cells that were set.
class MeterCells : public NumberItems {
 public:
  static bool exist(const soft_meter_t &meter) { return meter.table == 0; }
  explicit MeterCells(const soft_meter_t &meter)
      : NumberItems({.columns = {{.name = "index"},
                                 {.name = "meter", .count = 4},
                                 {.name = "type", .otherwise = PD_METER_TYPE_COLOR_UNAWARE}},
                     .identity = 1,
                     .nameless = 1}),
        meter_(meter) {}

 protected:
  void add_numbers(Row &row, const Numbers &cell) const override {
    add_spec(row.number("index", cell[0]), meter_, spec_of(cell));
  }
  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    for_each_cell(
        from.device, meter_.handle,
        [&](uint32_t index) {
          p4_pd_bytes_meter_spec_t spec = {};
          Call call = from.device.prepare("meter_read", meter_.name);
          check(call.set("index", uint64_t{index}).set("meter_spec", &spec).run(), {});
          const MeterNumbers numbers = numbers_of(spec);
          // One of zeros is as one that was never set.
          if (numbers == MeterNumbers{}) return;
          visit({index, numbers[0], numbers[1], numbers[2], numbers[3], spec.meter_type});
        },
        from.only);
  }
  void write_numbers(Target &to, Edit edit, const Numbers &cell, Word word) const override {
    const p4_pd_bytes_meter_spec_t spec = edit == Edit::remove ? meter_spec({}) : spec_of(cell);
    Call call = to.device.prepare("meter_set", meter_.name);
    check(call.set("index", cell[0]).set("meter_spec", &spec).run(), word);
  }

 private:
  static p4_pd_bytes_meter_spec_t spec_of(const Numbers &cell) {
    MeterNumbers numbers = {};
    std::transform(cell.begin() + 1, cell.begin() + 5, numbers.begin(),
                   [](uint64_t number) { return static_cast<uint32_t>(number); });
    return meter_spec(numbers, static_cast<uint32_t>(cell[5]));
  }

  const soft_meter_t &meter_;
};

// ---- Commands ----

void run_on_cell(const MeterLine &line, std::string_view family, p4_pd_bytes_meter_spec_t &spec) {
  Call call = line.call(family);
  line.run(call.set(line.cell_name(), uint64_t{line.cell(SOFT_METER_CELLS - 1)})
               .set("meter_spec", &spec));
}

void set(Context &context, const Invocation &invocation) {
  const MeterLine line(context, invocation, {"index", "cir", "cbs", "pir", "pbs", "type"});
  MeterNumbers numbers = {};
  for (size_t i = 0; i < numbers.size(); ++i) {
    const Unit &unit = *units_of(line.object)[i % 2];
    numbers[i] = static_cast<uint32_t>(line.options.quantity(kNames[i], unit));
  }
  const bool is_aware = line.options.choice_or("type", {"unaware", "aware"}, 0) != 0;
  p4_pd_bytes_meter_spec_t spec =
      meter_spec(numbers, is_aware ? PD_METER_TYPE_COLOR_AWARE : PD_METER_TYPE_COLOR_UNAWARE);
  run_on_cell(line, "meter_set", spec);
  line.done("set");
}

void get(Context &context, const Invocation &invocation) {
  const MeterLine line(context, invocation, {"index"});
  p4_pd_bytes_meter_spec_t spec = {};
  run_on_cell(line, "meter_read", spec);
  Row row = line.row();
  add_spec(row, line.object, spec);
  context.results.row(row);
}

constexpr ObjectWord kWords[] = {
    {"METER", offer_objects<soft_meter_t, cells_help>, choose_object<soft_meter_t, choose_cells>}};

constexpr Command kCommands[] = {
    {"meter set", "METER index=N|entry=HANDLE cir=N cbs=N pir=N pbs=N [type=unaware|aware]",
     "sets the rates and bursts of a meter cell", set, Kind::changes},
    {"meter get", "METER index=N|entry=HANDLE", "prints the rates and bursts of a meter cell", get},
};

constexpr ItemKind kKinds[] = {{kObjectKind<soft_meter_t>,
                                "cell",
                                40,
                                kCellSteps,
                                {"meter set"},
                                open_items<MeterCells, soft_meter_t>}};

}  // namespace

extern const Topic kMeterTopic = {"Meters", kCommands, kWords, kKinds};

}  // namespace tesselctl
