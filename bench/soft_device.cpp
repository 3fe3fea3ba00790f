#include "soft_device.hpp"

#include <algorithm>
#include <atomic>
#include <cstring>

#include "rows.hpp"

namespace bench {

namespace {

std::atomic<uint8_t> next_id = 0;

const soft_table_t &table_of(std::string_view name) {
  const soft_program_t &program = soft_program_tessel_switch;
  const soft_table_t *end = program.tables + program.table_count;
  const soft_table_t *found =
      std::find_if(program.tables, end, [&](const soft_table_t &one) { return one.name == name; });
  expect(found != end, "table by name");
  return *found;
}

}  // namespace

SoftDevice::SoftDevice(const soft_program_t &program) : id_(next_id++) {
  expect(soft_device_create(id_, 1, &program, false) == BF_SUCCESS &&
             soft_session_open(&session_) == BF_SUCCESS,
         "make a device");
}

SoftDevice::~SoftDevice() {
  soft_session_close(session_);
  soft_device_remove(id_);
}

Table::Table(const SoftDevice &device, std::string_view name)
    : device_(&device), table_(&table_of(name)) {
  soft_table_capacity_set(device.id(), table_->handle, 0);
}

const soft_key_field_t &Table::field(std::string_view name) const {
  const soft_key_field_t *end = table_->fields + table_->field_count;
  const soft_key_field_t *found = std::find_if(
      table_->fields, end, [&](const soft_key_field_t &one) { return one.name == name; });
  expect(found != end, "field by name");
  return *found;
}

void Table::add(Key value, Key mask, uint32_t priority) {
  uint8_t data[64] = {};
  const soft_action_t &first = table_->actions[0];
  pipe_mgr_match_spec_t match = {};
  match.valid_bit_count = table_->key_bits;
  match.byte_count = table_->key_bytes;
  match.value = value.bytes;
  match.mask = mask.bytes;
  match.priority = priority;
  pipe_mgr_action_spec_t action = {};
  action.type = PIPE_ACTION_DATA;
  action.data = {first.data_bits, first.data_bytes, data};
  pipe_entry_handle_t entry = 0;
  expect(pipe_mgr_mat_ent_add(device_->session(), device_->id(), BF_ALL_PIPES, table_->handle,
                              &match, first.handle, &action, 0, 0, &entry) == BF_SUCCESS,
         "add an entry");
}

pipe_entry_handle_t Table::lookup(const Key &key) const {
  pipe_entry_handle_t entry = 0;
  bool is_default = false;
  const bf_status_t status = soft_lookup(device_->id(), 0, table_->handle, key.bytes,
                                         table_->key_bytes, &entry, &is_default);
  return status == BF_SUCCESS && !is_default ? entry : 0;
}

void put(Key &key, const soft_key_field_t &field, uint32_t value) {
  for (unsigned i = 0; i < field.bytes; ++i) {
    key.bytes[field.offset + field.bytes - 1 - i] = static_cast<uint8_t>(value >> 8 * i);
  }
}

const soft_program_t &with_whole_keys() {
  static const std::vector<soft_table_t> tables = [] {
    const soft_program_t &own = soft_program_tessel_switch;
    std::vector<soft_table_t> all(own.tables, own.tables + own.table_count);
    for (soft_table_t &table : all) table.compared = nullptr;
    return all;
  }();
  static const soft_program_t program = [] {
    soft_program_t whole = soft_program_tessel_switch;
    whole.tables = tables.data();
    return whole;
  }();
  return program;
}

}  // namespace bench
