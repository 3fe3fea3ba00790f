// Devices of the soft SDK for benchmarks, and their tables in bytes.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "pipe_mgr.h"
#include "soft_sdk.h"

extern "C" const soft_program_t soft_program_tessel_switch;

namespace bench {

class SoftDevice {
 public:
  explicit SoftDevice(const soft_program_t &program = soft_program_tessel_switch);
  ~SoftDevice();
  SoftDevice(const SoftDevice &) = delete;
  SoftDevice &operator=(const SoftDevice &) = delete;

  uint8_t id() const { return id_; }
  pipe_session_handle_t session() const { return session_; }

 private:
  uint8_t id_;
  pipe_session_handle_t session_ = 0;
};

// A key in bytes, of any table that is used here.
struct Key {
  uint8_t bytes[32] = {};
};

// A table without a limit, whose entries all have its first action, with parameters of 0.
class Table {
 public:
  Table(const SoftDevice &device, std::string_view name);

  // Where a field stands.
  const soft_key_field_t &field(std::string_view name) const;
  void add(Key value, Key mask, uint32_t priority);
  // The entry that a packet hits, or 0.
  pipe_entry_handle_t lookup(const Key &key) const;

 private:
  const SoftDevice *device_;
  const soft_table_t *table_;
};

void put(Key &key, const soft_key_field_t &field, uint32_t value);

// A program that differs from ours in one thing: all bits of all keys are compared.
const soft_program_t &with_whole_keys();

// The numbers below a power of two in a mixed order, each once; mask is the greatest.
constexpr uint32_t mixed(uint64_t i, uint32_t mask) {
  return static_cast<uint32_t>(i) * 0x9e3779b1u & mask;
}

}  // namespace bench
