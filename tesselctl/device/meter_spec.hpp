// The rates and bursts of a meter as scripts, images and answers have them: "CIR,CBS,PIR,PBS",
// rates in kbit/s (or packets/s), bursts in kbit (or packets).
#pragma once

#include <array>
#include <string>

#include "p4_pd_types.h"
#include "soft_program.h"
#include "tesselctl/text/quantity.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// CIR, CBS, PIR, PBS.
using MeterNumbers = std::array<uint32_t, 4>;

MeterNumbers numbers_of(const p4_pd_bytes_meter_spec_t &spec);
p4_pd_bytes_meter_spec_t meter_spec(const MeterNumbers &numbers,
                                    uint32_t type = PD_METER_TYPE_COLOR_UNAWARE);

// The units of rates and of bursts.
using MeterUnits = std::array<const Unit *, 2>;
const MeterUnits &units_of(const soft_meter_t &meter);

// Numbers, or so much of the units where they are known. Throws Fault.
MeterNumbers parse_meter(Word text, const MeterUnits &units = {});
void append_meter(std::string &text, const MeterNumbers &numbers);
void add_meter(Row &row, const MeterNumbers &numbers);

}  // namespace tesselctl
