// Deep copies of arguments and results, chosen by type:
//   number                           the number
//   const pointer to a known record  a copy; a text as std::string; null as NullPointer
//   pointer to a known record        Output (or its shape) before the call, a copy after success
//   any other pointer                Opaque
// A record becomes known by an overload of copy() in this file.
#pragma once

#include <algorithm>
#include <concepts>
#include <optional>
#include <span>
#include <type_traits>

#include "bf_drv.h"
#include "bf_snapshot.h"
#include "p4_pd_ms.h"
#include "soft_journal.hpp"

namespace soft {

// An array among the arguments.
template <class T>
struct List {
  T *data;
  size_t count;

  operator std::span<T>() const { return {data, count}; }
};
template <class T>
List<T> list(T *data, size_t count) {
  return {data, count};
}

namespace journal {

// ---- Known records ----

inline std::optional<Bytes> copy_bytes(const uint8_t *bytes, size_t count) {
  if (bytes == nullptr) return std::nullopt;
  return Bytes(bytes, bytes + count);
}

template <std::integral T>
Value copy(const T &number) {
  return static_cast<uint64_t>(number);
}
inline Value copy(const pipe_mgr_match_spec_t &spec) {
  return MatchSpec{spec.scope,
                   spec.valid_bit_count,
                   spec.byte_count,
                   copy_bytes(spec.value, spec.byte_count),
                   copy_bytes(spec.mask, spec.byte_count),
                   spec.priority};
}
inline ActionData copy_data(const pipe_mgr_action_data_t &data) {
  return {data.valid_bit_count, data.byte_count, copy_bytes(data.bytes, data.byte_count)};
}
inline Value copy(const pipe_mgr_action_data_t &data) { return copy_data(data); }
inline Value copy(const pipe_mgr_action_spec_t &spec) {
  const size_t held = std::min<size_t>(spec.resource_count, PIPE_RESOURCES_PER_ACTION);
  return ActionSpec{spec.type,
                    copy_data(spec.data),
                    spec.member,
                    spec.group,
                    {spec.resources, spec.resources + held},
                    spec.resource_count};
}
inline Query copy_query(const pipe_stful_query_t &query) {
  Query copied{query.count, std::nullopt};
  if (query.cells != nullptr) copied.cells.emplace(query.cells, query.cells + query.count);
  return copied;
}
inline Value copy(const pipe_stful_query_t &query) { return std::vector<Query>{copy_query(query)}; }
inline Value copy(const pipe_stful_cell_t &cell) { return std::vector<pipe_stful_cell_t>{cell}; }
inline Value copy(const pipe_mgr_meter_spec_t &spec) { return spec; }
inline Value copy(const pipe_mgr_counter_t &counter) { return counter; }
inline Value copy(const pipe_mgr_idle_params_t &params) { return params; }
inline Value copy(const pipe_mgr_wred_spec_t &spec) { return spec; }
inline Value copy(const pipe_mgr_digest_message_t &message) {
  const size_t bytes = size_t{message.entry_count} * message.entry_size;
  return DigestMessage{message.device,      message.pipe,       message.digest,
                       message.entry_count, message.entry_size, copy_bytes(message.entries, bytes)};
}

template <class T>
concept Known = requires(const T &record) {
  copy(record);
};

// ---- Arrays ----

inline Value copy_list(const uint8_t *data, size_t count) { return Bytes(data, data + count); }
inline Value copy_list(const uint32_t *data, size_t count) { return Words(data, data + count); }
inline Value copy_list(const pipe_stful_query_t *data, size_t count) {
  std::vector<Query> queries;
  for (size_t i = 0; i < count; ++i) queries.push_back(copy_query(data[i]));
  return queries;
}
template <class T>
Value copy_list(const T *data, size_t count) {
  return std::vector<T>(data, data + count);
}

// ---- Shapes: what is worth knowing of a record that is to be filled ----

template <class T>
Value shape(const T &) {
  return Output{};
}
inline ActionData shape_data(const pipe_mgr_action_data_t &data) {
  ActionData shown{data.valid_bit_count, data.byte_count, std::nullopt};
  if (data.bytes != nullptr) shown.bytes.emplace();
  return shown;
}
inline Value shape(const pipe_mgr_match_spec_t &spec) {
  MatchSpec shown{spec.scope,   spec.valid_bit_count, spec.byte_count,
                  std::nullopt, std::nullopt,         spec.priority};
  if (spec.value != nullptr) shown.value.emplace();
  if (spec.mask != nullptr) shown.mask.emplace();
  return shown;
}
inline Value shape(const pipe_mgr_action_data_t &data) { return shape_data(data); }
inline Value shape(const pipe_mgr_action_spec_t &spec) {
  return ActionSpec{spec.type, shape_data(spec.data), spec.member, spec.group, {}, 0};
}
inline Query shape_query(const pipe_stful_query_t &query) {
  Query shown{query.count, std::nullopt};
  if (query.cells != nullptr) shown.cells.emplace();
  return shown;
}
inline Value shape(const pipe_stful_query_t &query) {
  return std::vector<Query>{shape_query(query)};
}

// ---- What the frame calls ----

template <class T>
Value before_call(const T &argument) {
  if constexpr (std::is_pointer_v<T>) {
    using Pointee = std::remove_pointer_t<T>;
    if (argument == nullptr) return NullPointer{};
    if constexpr (std::is_same_v<Pointee, const char>) {
      return std::string(argument);
    } else if constexpr (!Known<std::remove_const_t<Pointee>>) {
      return Opaque{reinterpret_cast<uintptr_t>(argument)};
    } else if constexpr (std::is_const_v<Pointee>) {
      return copy(*argument);
    } else {
      return shape(*argument);
    }
  } else {
    static_assert(Known<T>, "the journal knows no copy of this type");
    return copy(argument);
  }
}
template <class T>
Value before_call(const List<T> &argument) {
  if (argument.data == nullptr) return NullPointer{};
  if constexpr (std::is_const_v<T>) {
    return copy_list(argument.data, argument.count);
  } else if constexpr (std::is_same_v<T, pipe_stful_query_t>) {
    std::vector<Query> shapes;
    for (size_t i = 0; i < argument.count; ++i) shapes.push_back(shape_query(argument.data[i]));
    return shapes;
  } else {
    return Output{};
  }
}

template <class T>
std::optional<Value> after_call(const T &argument) {
  if constexpr (std::is_pointer_v<T>) {
    using Pointee = std::remove_pointer_t<T>;
    if constexpr (!std::is_const_v<Pointee> && Known<Pointee>) {
      if (argument != nullptr) return copy(*argument);
    }
  }
  return std::nullopt;
}
template <class T>
std::optional<Value> after_call(const List<T> &argument) {
  if constexpr (!std::is_const_v<T>) {
    if (argument.data != nullptr) return copy_list(argument.data, argument.count);
  }
  return std::nullopt;
}

}  // namespace journal
}  // namespace soft
