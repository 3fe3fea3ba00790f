// What the pipeline manager must be given for a typed record, and what comes back of it, worked out
// bit by bit from the catalogue. It shares nothing with the library's codec: no offsets, no byte
// swaps, no masks in words, only strings of bits put one behind the other.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "support.hpp"

namespace pd_test {

using soft::journal::ActionSpec;
using soft::journal::MatchSpec;

// The key of a match spec record. The priority counts in ternary tables.
MatchSpec key_image(const pdgen::Table &table, const uint8_t *record, uint32_t priority);

// The match spec record that read-back makes of that key.
Bytes kept_match_spec(const pdgen::Table &table, const uint8_t *record);

// The action data of a record, without resources; type 0.
ActionSpec action_image(const pdgen::Action &action, const uint8_t *record);

// A meter spec of the caller, unaware of colours, with rates in the meter's unit.
pipe_mgr_meter_spec_t meter_image(const p4_pd_bytes_meter_spec_t &spec, const pdgen::Resource &of);

// What an operation of a pair sends; meter is the caller's spec, or null.
ActionSpec action_image(const pdgen::Pair &pair, pdgen::Operation operation, const uint8_t *record,
                        const p4_pd_bytes_meter_spec_t *meter);

// The action spec record that read-back makes of the data and of the resources attached.
Bytes kept_action_spec(const pdgen::Action &action, const ActionSpec &image);

}  // namespace pd_test
