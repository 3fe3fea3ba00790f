// Meters by name, meters and WRED profiles by handle.
#include "pdgen/api.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

using namespace parameter;

const std::string kStatus = "p4_pd_status_t";
const std::string kGroup = "Meters";

std::string spec_type(MeterUnit unit) {
  return unit == MeterUnit::kBytes ? "p4_pd_bytes_meter_spec_t" : "p4_pd_packets_meter_spec_t";
}

std::string rate_unit(MeterUnit unit) {
  return unit == MeterUnit::kBytes ? "PIPE_RATE_BYTES" : "PIPE_RATE_PACKETS";
}

void add_for_meter(Api &api, const Resource &meter) {
  const Parameter cell = meter.direct() ? entry() : Parameter{"uint32_t", "index"};
  const Parameter spec = {"const " + spec_type(meter.unit) + " *", "meter_spec"};
  const Parameter out_spec = {spec_type(meter.unit) + " *", "meter_spec"};
  const std::string table = meter.direct() ? hex32(meter.table->handle) : "";
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const char *statement) {
    api.add(kGroup,
            {resource_function(api.program(), meter, operation), kStatus, std::move(parameters),
             expand(statement, {hex32(meter.handle), table, rate_unit(meter.unit)}),
             "meter_" + operation, meter.name, ""});
  };
  if (meter.direct()) {
    add("set", {session(), target(), cell, spec},
        "return pd::set_entry_meter($0, $1, $2, session, target, entry, meter_spec)");
    add("read", {session(), target(), cell, out_spec},
        "return pd::read_entry_meter($1, session, target, entry, meter_spec)");
  } else {
    add("set", {session(), target(), cell, spec},
        "return pd::set_meter($0, $2, session, target, index, meter_spec, false)");
    add("read", {session(), target(), cell, out_spec},
        "return pd::read_meter($0, session, target, index, meter_spec)");
  }
  add("bytecount_adjust_set", {session(), target(), {"uint32_t", "adjustment"}},
      "return pd::set_bytecount_adjust($0, session, target, adjustment)");
  add("bytecount_adjust_get", {session(), target(), {"uint32_t *", "adjustment"}},
      "return pd::get_bytecount_adjust($0, session, target, adjustment)");
}

void add_generic(Api &api, MeterUnit unit, const std::string &word) {
  const auto add = [&](const std::string &operation, std::vector<Parameter> parameters,
                       const std::string &statement) {
    api.add(kGroup, {program_function(api.program(), operation), kStatus, std::move(parameters),
                     statement, operation, "", ""});
  };
  const Parameter meter = {"uint32_t", "meter"};
  const Parameter index = {"uint32_t", "index"};
  add(word + "_meter_set",
      {session(),
       target(),
       meter,
       index,
       {"const " + spec_type(unit) + " *", "meter_spec"},
       {"uint8_t", "has_pre_color"}},
      "return pd::set_meter(meter, " + rate_unit(unit) +
          ", session, target, index, meter_spec, has_pre_color != 0)");
  add(word + "_meter_read",
      {session(), target(), meter, index, {spec_type(unit) + " *", "meter_spec"}},
      "return pd::read_meter(meter, session, target, index, meter_spec)");
}

}  // namespace

void add_meter_functions(Api &api) {
  api.add_note("Meters",
               "meter_set_ and meter_read_ name the cell by entry handle for the direct meter of a "
               "table, else by index. No meter of the program has a pre-colour input, so its type "
               "must be PD_METER_TYPE_COLOR_UNAWARE; the functions that take a meter handle accept "
               "a colour-aware type when has_pre_color is not 0. P4_PD_METER_TYPE_REFUSED "
               "otherwise. A read reports the low 32 bits of what the device holds. The byte-count "
               "adjustment is added to the length of every packet that the meter sees.");
  api.begin_unit("meter", {"meter.hpp"});
  for (const Resource &meter : api.program().meters) add_for_meter(api, meter);
  add_generic(api, MeterUnit::kBytes, "bytes");
  add_generic(api, MeterUnit::kPackets, "packets");
  api.add(kGroup, {program_function(api.program(), "wred_set"),
                   kStatus,
                   {session(),
                    target(),
                    {"uint32_t", "wred"},
                    {"uint32_t", "index"},
                    {"const p4_pd_wred_params_t *", "params"}},
                   "return pd::set_wred(session, target, wred, index, params)",
                   "wred_set",
                   "",
                   ""});
}

}  // namespace pdgen
