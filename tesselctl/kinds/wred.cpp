// WRED profiles, which go by the handle of a table, an index and a pipe.
#include "soft_traffic.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/program/value.hpp"

namespace tesselctl {

namespace {

using Params = p4_pd_wred_params_t;

// The program has no WRED tables. The soft SDK takes these handles for some, as soft_traffic.h
// says.
constexpr uint64_t kFirstHandle = 0x07000001;
constexpr uint64_t kLastHandle = 0x07ffffff;

void check_handle(uint64_t handle, Word word) {
  if (handle >= kFirstHandle && handle <= kLastHandle) return;
  throw Fault(word, fmt::format("the handle of a WRED table is {:#010x} to {:#010x}", kFirstHandle,
                                kLastHandle));
}

void write_cell(const Device &device, const p4_pd_device_target_t &target, uint64_t handle,
                uint64_t index, const Params &params, Word word) {
  check_handle(handle, word);
  Call call = device.prepare("wred_set", "");
  call.set("target", &target).set("wred", handle).set("index", index).set("params", &params);
  check(call.run(), word);
}

// "cell 0x7000001 index=6 pipe=1 min=100 max=900 probability=0.25 time=12.5": those that were set.
class WredCells : public NumberItems {
 public:
  WredCells()
      : NumberItems({.columns = {{.name = "handle", .notation = Notation::hexadecimal},
                                 {.name = "index"},
                                 {.name = "pipe"},
                                 {.name = "min"},
                                 {.name = "max"},
                                 {.name = "probability", .notation = Notation::real},
                                 {.name = "time", .notation = Notation::real}},
                     .identity = 3,
                     .nameless = 1}) {}

  void read_numbers(Source &from, const NumbersVisitor &visit) const override {
    const uint32_t id = from.device.id();
    for (uint32_t pipe = 0; pipe < from.device.pipes(); ++pipe) {
      uint32_t handle = 0;
      uint32_t index = 0;
      for (; soft_next_wred_cell(id, pipe, &handle, &index) == BF_SUCCESS; ++index) {
        Params params = {};
        check(soft_wred_get(id, pipe, handle, index, &params), {});
        const uint64_t probability = bits_of(params.max_probability);
        const uint64_t time = bits_of(params.time_constant_ns);
        const uint32_t min = params.min_threshold_cells;
        const uint32_t max = params.max_threshold_cells;
        // One of zeros is as one that was never set.
        if ((min | max | probability | time) == 0) continue;
        visit({handle, index, pipe, min, max, probability, time});
      }
    }
  }

 protected:
  void write_numbers(Target &to, Edit edit, const Numbers &cell, Word word) const override {
    if (cell[2] >= to.device.pipes()) throw Fault(word, "the device has no such pipe");
    const Params params = {real_of(cell[6]), static_cast<uint32_t>(cell[3]),
                           static_cast<uint32_t>(cell[4]), real_of(cell[5])};
    write_cell(to.device, to.device.target_of(static_cast<uint32_t>(cell[2])), cell[0], cell[1],
               edit == Edit::remove ? Params{} : params, word);
  }
};

// ---- Commands ----

void set(Context &context, const Invocation &invocation) {
  const Options options(invocation, 0,
                        {"handle", "index", "min", "max", "probability", "time", "pipe"});
  p4_pd_device_target_t target = context.device.target();
  target.pipe_id = static_cast<uint16_t>(pipe_of(context, options, BF_ALL_PIPES));
  const uint64_t handle = options.number("handle", 0xffffffffu);
  Params params = {};
  params.min_threshold_cells = static_cast<uint32_t>(options.number("min", 0xffffffffu));
  params.max_threshold_cells = static_cast<uint32_t>(options.number("max", 0xffffffffu));
  params.max_probability = parse_real(options.need("probability"), "probability", 1);
  params.time_constant_ns = parse_real(options.need("time"), "time", kNanoseconds);
  write_cell(context.device, target, handle, options.number("index", SOFT_WRED_CELLS - 1), params,
             options.need("handle"));
  context.results.done(Row().text("handle", fmt::format("{:#x}", handle)), "set");
}

// Those that were set, of all handles, indexes and pipes or the given ones.
void get(Context &context, const Invocation &invocation) {
  const Options options(invocation, 0, {"handle", "index", "pipe"});
  constexpr uint64_t kAny = ~uint64_t{0};
  const uint64_t wanted[] = {options.number_or("handle", 0xffffffffu, kAny),
                             options.number_or("index", SOFT_WRED_CELLS - 1, kAny),
                             options.number_or("pipe", context.device.pipes() - 1, kAny)};
  if (wanted[0] != kAny) check_handle(wanted[0], options.need("handle"));
  WredCells cells;
  Row sample;
  cells.add_samples_to(sample, Naming::handles);
  context.results.expect(sample);
  Numbering none;
  Source from = {context.device, none};
  cells.read(from, [&](const ItemView &item) {
    for (size_t i = 0; i < std::size(wanted); ++i) {
      const auto number = read_bytes<uint64_t>(item.identity, i * sizeof(uint64_t));
      if (wanted[i] != kAny && wanted[i] != number) return;
    }
    Row row;
    cells.add_to(row, item, Naming::handles);
    context.results.row(row);
  });
}

constexpr Command kCommands[] = {
    {"wred set", "handle=N index=N min=CELLS max=CELLS probability=P time=NS [pipe=N]",
     "sets a WRED profile; without pipe= in all pipes", set, Kind::changes},
    {"wred get", "[handle=N] [index=N] [pipe=N]", "prints the WRED profiles that were set", get,
     Kind::lists},
};

constexpr ObjectKind kWredObjects = {
    "wred", "WRED table", [](size_t at) { return at == 0 ? "profiles" : nullptr; }, false};

constexpr ItemKind kKinds[] = {
    {kWredObjects,
     "cell",
     80,
     kCellSteps,
     {"wred set"},
     [](const char *) -> std::unique_ptr<ObjectItems> { return std::make_unique<WredCells>(); }}};

}  // namespace

extern const Topic kWredTopic = {"Meters", kCommands, {}, kKinds};

}  // namespace tesselctl
