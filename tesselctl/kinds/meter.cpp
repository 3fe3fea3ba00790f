// Meters: those of entries and those that are addressed by an index; the latter in images.
#include <fmt/format.h>

#include <optional>

#include "soft_traffic.h"
#include "tesselctl/command/command.hpp"
#include "tesselctl/command/subject.hpp"
#include "tesselctl/device/handles.hpp"
#include "tesselctl/device/meter_spec.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/state/kind.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/text/suggest.hpp"

namespace tesselctl {

namespace {

// The bytes and the packets record have the same members; calls take the address of either.
using MeterSpec = p4_pd_bytes_meter_spec_t;
static_assert(sizeof(MeterSpec) == sizeof(p4_pd_packets_meter_spec_t));

struct Part {
  const char *name;
  uint32_t MeterSpec::*member;
  const char *bytes_unit;
  const char *packets_unit;
};

constexpr Part kParts[] = {
    {"cir", &MeterSpec::committed_rate, "kbit/s", "packets/s"},
    {"cbs", &MeterSpec::committed_burst, "kbit", "packets"},
    {"pir", &MeterSpec::peak_rate, "kbit/s", "packets/s"},
    {"pbs", &MeterSpec::peak_burst, "kbit", "packets"},
};

void add_spec(Row &row, const soft_meter_t &meter, const MeterSpec &spec) {
  const bool packets = meter.unit == PIPE_RATE_PACKETS;
  for (const Part &part : kParts) {
    row.number(part.name, spec.*part.member, packets ? part.packets_unit : part.bytes_unit);
  }
  row.text("type", spec.meter_type == PD_METER_TYPE_COLOR_AWARE ? "aware" : "unaware");
}

// "METER index=N" or "METER entry=HANDLE", and with wants_spec the four numbers and the type.
class MeterLine {
 public:
  MeterLine(const Context &context, const Invocation &invocation, bool wants_spec)
      : word_(need_argument(invocation, 0, "the name of a meter")),
        meter_(resolve_object<soft_meter_t>(word_, "meter")) {
    spec.meter_type = PD_METER_TYPE_COLOR_UNAWARE;
    for (const Word &word : invocation.arguments.subspan(1)) {
      read_word(context, split_assignment(word), wants_spec);
    }
    if (!cell_) throw Fault(word_, std::string(cell_name()) + "= is missing");
    for (size_t i = 0; wants_spec && i < std::size(kParts); ++i) {
      if (!given_[i]) throw Fault(word_, std::string(kParts[i].name) + "= is missing");
    }
  }

  Word word() const { return word_; }
  const soft_meter_t &meter() const { return meter_; }
  Call prepare(const Context &context, std::string_view family) {
    Call call = context.device.prepare(family, meter_.name);
    call.set(cell_name(), uint64_t{*cell_});
    call.set("meter_spec", &spec);
    return call;
  }

  MeterSpec spec = {};

 private:
  // Meters of entries are addressed by the handle of the entry.
  const char *cell_name() const { return meter_.table != 0 ? "entry" : "index"; }

  void read_word(const Context &context, const Assignment &word, bool wants_spec) {
    if (word.name.text == cell_name()) {
      constexpr uint64_t kLast = SOFT_METER_CELLS - 1;
      cell_ = meter_.table != 0 ? parse_handle(context, word.value, cell_name())
                                : static_cast<uint32_t>(parse_limited(word.value, kLast, "index"));
      return;
    }
    for (size_t i = 0; wants_spec && i < std::size(kParts); ++i) {
      if (word.name.text != kParts[i].name) continue;
      if (given_[i]) throw Fault(word.name, std::string(kParts[i].name) + " is given twice");
      spec.*kParts[i].member =
          static_cast<uint32_t>(parse_limited(word.value, 0xffffffffu, kParts[i].name));
      given_[i] = true;
      return;
    }
    if (wants_spec && word.name.text == "type") return read_type(word.value);
    std::vector<std::string_view> names = {cell_name()};
    if (wants_spec) names.insert(names.end(), {"cir", "cbs", "pir", "pbs", "type"});
    throw Fault(word.name, std::string(meter_.name) + " takes no such word",
                nearest(word.name.text, names));
  }

  void read_type(Word text) {
    if (text.text == "aware") {
      spec.meter_type = PD_METER_TYPE_COLOR_AWARE;
    } else if (text.text == "unaware") {
      spec.meter_type = PD_METER_TYPE_COLOR_UNAWARE;
    } else {
      throw Fault(text, "the type is aware or unaware",
                  nearest(text.text, std::vector<std::string_view>{"aware", "unaware"}));
    }
  }

  Word word_;
  const soft_meter_t &meter_;
  std::optional<uint32_t> cell_;
  bool given_[std::size(kParts)] = {};
};

void set(Context &context, const Invocation &invocation) {
  MeterLine line(context, invocation, true);
  check(line.prepare(context, "meter_set").run(), line.word());
  Row row;
  context.results.done(row.object("meter", line.meter().name), "set");
}

void get(Context &context, const Invocation &invocation) {
  MeterLine line(context, invocation, false);
  check(line.prepare(context, "meter_read").run(), line.word());
  Row row;
  row.object("meter", line.meter().name);
  add_spec(row, line.meter(), line.spec);
  context.results.row(row);
}

void offer_meters(Offers &offers, const Command &, Words) {
  offer_objects<soft_meter_t>(offers,
                              [](const soft_meter_t &row) { return cells_help(row.table); });
}

void choose(Subject &subject, std::string_view name) {
  const auto *meter = find_object<soft_meter_t>(name);
  choose_cells(subject, meter != nullptr ? meter->table : 0);
}

constexpr ObjectWord kWords[] = {{"METER", offer_meters, choose}};

constexpr Command kCommands[] = {
    {"meter set", "METER index=N|entry=HANDLE cir=N cbs=N pir=N pbs=N [type=unaware|aware]",
     "sets the rates and bursts of a meter cell", set, Kind::changes},
    {"meter get", "METER index=N|entry=HANDLE", "prints the rates and bursts of a meter cell", get},
};

// ---- In images ----

struct MeterCell {
  MeterNumbers numbers;
  uint32_t type;
};

// "cell 3 meter=1000,128,2000,256 type=0": cells that were set.
class MeterCells : public CellItems<uint32_t, MeterCell> {
 public:
  explicit MeterCells(const soft_meter_t &meter) : meter_(meter) {}

 protected:
  void parse_cell(ValueScanner &line, uint32_t &index, MeterCell &cell) const override {
    index = parse_index(line);
    const LineWords words(line, {"meter", "type"});
    cell.numbers = parse_meter(words.need("meter"));
    cell.type = words.number32("type", PD_METER_TYPE_COLOR_UNAWARE);
  }
  void print_cell(std::string &text, const uint32_t &index, const MeterCell &cell) const override {
    text += std::to_string(index) + " ";
    append_meter(text, cell.numbers);
    text += " type=" + std::to_string(cell.type);
  }
  void add_cell(Row &row, const uint32_t &index, const MeterCell &cell) const override {
    add_spec(row.number("index", index), meter_, meter_spec(cell.numbers, cell.type));
  }
  void read_cells(Source &from, const CellVisitor &visit) const override {
    for_each_cell(from.device, meter_.handle, [&](uint32_t index) {
      p4_pd_bytes_meter_spec_t spec = {};
      Call call = from.device.prepare("meter_read", meter_.name);
      check(call.set("index", uint64_t{index}).set("meter_spec", &spec).run(), {});
      // One of zeros is as one that was never set.
      if (numbers_of(spec) != MeterNumbers{}) visit(index, {numbers_of(spec), spec.meter_type});
    });
  }
  void write_cell(Target &to, Edit edit, const uint32_t &index, const MeterCell &cell,
                  Word word) const override {
    const p4_pd_bytes_meter_spec_t spec =
        edit == Edit::remove ? meter_spec({}) : meter_spec(cell.numbers, cell.type);
    Call call = to.device.prepare("meter_set", meter_.name);
    check(call.set("index", uint64_t{index}).set("meter_spec", &spec).run(), word);
  }

 private:
  const soft_meter_t &meter_;
};

constexpr ObjectKind kMeterObjects = {"meter", "meter", row_name<&program_rows<soft_meter_t>>};

}  // namespace

extern const ItemKind kMeterKind = {kMeterObjects, "cell", kCellSteps, [](const char *name) {
                                      std::unique_ptr<ObjectItems> items;
                                      const auto &meter = need_row<soft_meter_t>(name);
                                      if (meter.table == 0)
                                        items = std::make_unique<MeterCells>(meter);
                                      return items;
                                    }};

std::span<const Command> meter_commands() { return kCommands; }
std::span<const ObjectWord> meter_words() { return kWords; }

}  // namespace tesselctl
