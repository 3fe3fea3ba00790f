#include "register.hpp"

#include "codec/bytes.hpp"
#include "pipe_mgr_match.h"
#include "scratch.hpp"

namespace pd {

namespace {

unsigned storage_of(const Register &reg) { return reg.width <= 8 ? 1 : reg.width / 8u; }

uint32_t value_of(const Register &reg, const pipe_stful_cell_t &cell) {
  return reg.width <= 8 ? cell.bit : cell.word;
}

pipe_stful_cell_t cell_of(const Register &reg, const void *typed_value) {
  const uint32_t value = load(static_cast<const uint8_t *>(typed_value), storage_of(reg));
  pipe_stful_cell_t cell = {};
  if (reg.width == 1) {
    cell.bit = value != 0;
  } else if (reg.width <= 8) {
    cell.bit = static_cast<uint8_t>(value);
  } else {
    cell.word = value;
  }
  return cell;
}

// Appends the cells of a query, which has room for that many, to the first used values, and returns
// how many are used then.
uint32_t append(const Register &reg, const pipe_stful_query_t &query, uint32_t room, void *values,
                uint32_t used) {
  const unsigned storage = storage_of(reg);
  const uint32_t count = held(query.count, room);
  auto *bytes = static_cast<uint8_t *>(values);
  for (uint32_t i = 0; i < count; ++i) {
    store(bytes + size_t{used + i} * storage, storage, value_of(reg, query.cells[i]));
  }
  return used + count;
}

bool from_hardware(uint32_t flags) { return (flags & P4_PD_READ_FROM_HARDWARE) != 0; }

}  // namespace

p4_pd_status_t read_register(const Register &reg, p4_pd_session_handle_t session,
                             p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                             void *values, uint32_t *value_count) {
  if (values == nullptr || value_count == nullptr) return P4_PD_NULL_ARGUMENT;
  uint32_t instances = 0;
  p4_pd_status_t status =
      pipe_stful_query_get_sizes(session, target.device_id, reg.handle, &instances);
  if (status != BF_SUCCESS) return status;
  const Scratch<pipe_stful_cell_t> cells(instances);
  if (!cells.ok()) return P4_PD_NO_MEMORY;
  pipe_stful_query_t query = {instances, cells.items()};
  status = pipe_stful_ent_query(session, target.device_id, target.pipe_id, reg.handle, index,
                                &query, from_hardware(flags));
  if (status == BF_SUCCESS) *value_count = append(reg, query, instances, values, 0);
  return status;
}

p4_pd_status_t read_register_range(const Register &reg, p4_pd_session_handle_t session,
                                   p4_pd_device_target_t target, uint32_t first,
                                   uint32_t index_count, uint32_t flags, uint32_t *indexes_read,
                                   void *values, uint32_t *value_count) {
  if (indexes_read == nullptr || values == nullptr || value_count == nullptr) {
    return P4_PD_NULL_ARGUMENT;
  }
  uint32_t instances = 0;
  p4_pd_status_t status =
      pipe_stful_query_get_sizes(session, target.device_id, reg.handle, &instances);
  if (status != BF_SUCCESS) return status;
  const Scratch<pipe_stful_query_t> queries(index_count);
  const Scratch<pipe_stful_cell_t> cells(uint64_t{index_count} * instances);
  if (!queries.ok() || !cells.ok()) return P4_PD_NO_MEMORY;
  for (uint32_t i = 0; i < index_count; ++i) {
    queries.items()[i] = {instances, cells.items() + size_t{i} * instances};
  }
  uint32_t read = 0;
  status = pipe_stful_ent_query_range(session, target.device_id, target.pipe_id, reg.handle, first,
                                      index_count, queries.items(), &read, from_hardware(flags));
  if (status != BF_SUCCESS) return status;
  read = held(read, index_count);
  uint32_t used = 0;
  for (uint32_t i = 0; i < read; ++i) {
    used = append(reg, queries.items()[i], instances, values, used);
  }
  *indexes_read = read;
  *value_count = used;
  return BF_SUCCESS;
}

p4_pd_status_t write_register(const Register &reg, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t index, const void *value) {
  if (value == nullptr) return P4_PD_NULL_ARGUMENT;
  const pipe_stful_cell_t cell = cell_of(reg, value);
  return set_register_cell(reg.handle, session, target, index, &cell);
}

p4_pd_status_t write_all_cells(const Register &reg, p4_pd_session_handle_t session,
                               p4_pd_device_target_t target, const void *value) {
  if (value == nullptr) return P4_PD_NULL_ARGUMENT;
  const pipe_stful_cell_t cell = cell_of(reg, value);
  return set_all_register_cells(reg.handle, session, target, &cell);
}

p4_pd_status_t query_register(uint32_t reg, p4_pd_session_handle_t session,
                              p4_pd_device_target_t target, uint32_t index, uint32_t flags,
                              pipe_stful_query_t *query) {
  if (query == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_stful_ent_query(session, target.device_id, target.pipe_id, reg, index, query,
                              from_hardware(flags));
}

p4_pd_status_t set_register_cell(uint32_t reg, p4_pd_session_handle_t session,
                                 p4_pd_device_target_t target, uint32_t index,
                                 const pipe_stful_cell_t *cell) {
  if (cell == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_stful_ent_set(session, target.device_id, target.pipe_id, reg, index, cell, 0);
}

// Without a cell the pipeline manager would reset the register.
p4_pd_status_t set_all_register_cells(uint32_t reg, p4_pd_session_handle_t session,
                                      p4_pd_device_target_t target, const pipe_stful_cell_t *cell) {
  if (cell == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_stful_table_reset(session, target.device_id, target.pipe_id, reg, cell);
}

p4_pd_status_t query_entry_register(uint32_t table, p4_pd_session_handle_t session,
                                    p4_pd_device_target_t target, p4_pd_entry_handle_t entry,
                                    uint32_t flags, pipe_stful_query_t *query) {
  if (query == nullptr) return P4_PD_NULL_ARGUMENT;
  return pipe_stful_direct_ent_query(session, target.device_id, table, entry, query,
                                     from_hardware(flags));
}

p4_pd_status_t set_entry_register(uint32_t table, p4_pd_session_handle_t session, uint8_t device,
                                  p4_pd_entry_handle_t entry, const pipe_stful_cell_t *cell) {
  if (cell == nullptr) return P4_PD_NULL_ARGUMENT;
  pipe_mgr_resource_t resource;
  clear(resource);
  resource.handle = table;
  resource.data.cell = *cell;
  resource.tag = PIPE_RESOURCE_ATTACH;
  return pipe_mgr_mat_ent_set_resource(session, device, table, entry, &resource, 1, 0);
}

}  // namespace pd
