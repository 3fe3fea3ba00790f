// Numbers with a unit behind them: "10M", "1.5k", "64Ki", "30s", "10Mbit/s".
#pragma once

#include <cstdint>
#include <string_view>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

// What a number counts. Plain numbers are so many of it.
struct Unit {
  std::string_view name;
  std::string_view tail = {};  // what may stand behind a factor: the "bit/s" of "kbit/s"
  uint64_t one = 1;            // of what the factors multiply: 1,000 bits in a kbit
  bool is_time = false;        // factors are ns, us, ms, s, min and h; else k, M, G, Ki, Mi and Gi
};

inline constexpr Unit kKilobitRate = {"kbit/s", "bit/s", 1000};
inline constexpr Unit kKilobits = {"kbit", "bit", 1000};
inline constexpr Unit kPacketRate = {"packets/s", "packets/s"};
inline constexpr Unit kPackets = {"packets", "packets"};
inline constexpr Unit kBytes = {"bytes", "bytes"};
inline constexpr Unit kNanoseconds = {.name = "nanoseconds", .is_time = true};
inline constexpr Unit kMicroseconds = {.name = "microseconds", .one = 1'000, .is_time = true};
inline constexpr Unit kMilliseconds = {.name = "milliseconds", .one = 1'000'000, .is_time = true};

// How many of the unit the text is. Throws Fault for another unit, and for what is no whole number
// of it; what says whose it is in the message.
uint64_t parse_quantity(Word text, const Unit &unit, std::string_view what);

}  // namespace tesselctl
