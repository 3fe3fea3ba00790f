// Where the parts of a match entry lie in its record.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tables/match_table_types.hpp"

namespace soft {

// Byte offsets of one table's records. Every record begins with the header below; what a table
// does not have takes no space, and its offset means nothing. Numbers stand in host order,
// unaligned.
struct RecordLayout {
  static constexpr size_t kAction = 0;  // u32, the word that the store uses in free slots
  static constexpr size_t kState = 4;   // u8, of the store
  static constexpr size_t kPipe = 5;    // u8, 0xff all pipes
  static constexpr size_t kData = 6;    // u16: data length, type in the top three bits

  static constexpr uint32_t kLengthBits = 13;  // of the data word
  static constexpr uint16_t kMostDataBytes = (1u << kLengthBits) - 1;

  RecordLayout(const soft_table_t &table, const EntryLayout &layout);

  uint16_t key_bytes;
  uint16_t data_bytes;
  bool has_mask;  // and priority: lpm and ternary tables
  bool has_age;   // ternary tables and those that compare some bits of their keys: entries may tie
  bool has_reference;
  bool ages;
  bool has_counter;
  bool has_meter;
  uint8_t resources;

  size_t mask;       // u32, id in the mask pool
  size_t priority;   // u32
  size_t value;      // key_bytes
  size_t data;       // data_bytes
  size_t reference;  // u32
  size_t resource;   // u8 count, then EntryResource each
  size_t age;        // u64, counts additions
  size_t ageing;     // ExpiryWheel::kBytes
  size_t counter;    // EntryCounters
  size_t meter;      // pipe_mgr_meter_spec_t
  size_t bytes;      // of the whole record
};

}  // namespace soft
