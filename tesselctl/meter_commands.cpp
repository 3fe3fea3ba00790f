// Meters: those of entries and those that are addressed by an index.
#include <optional>

#include "tesselctl/command.hpp"
#include "tesselctl/library.hpp"
#include "tesselctl/suggest.hpp"
#include "tesselctl/value.hpp"

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
      cell_ = parse_handle(context, word.value, cell_name());
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
  const bool packets = line.meter().unit == PIPE_RATE_PACKETS;
  for (const Part &part : kParts) {
    row.number(part.name, line.spec.*part.member, packets ? part.packets_unit : part.bytes_unit);
  }
  const bool aware = line.spec.meter_type == PD_METER_TYPE_COLOR_AWARE;
  context.results.row(row.text("type", aware ? "aware" : "unaware"));
}

constexpr Command kCommands[] = {
    {"meter set", "METER index=N|entry=HANDLE cir=N cbs=N pir=N pbs=N [type=unaware|aware]",
     "sets the rates and bursts of a meter cell", set, Kind::changes},
    {"meter get", "METER index=N|entry=HANDLE", "tells the rates and bursts of a meter cell", get},
};

}  // namespace

std::span<const Command> meter_commands() { return kCommands; }

}  // namespace tesselctl
