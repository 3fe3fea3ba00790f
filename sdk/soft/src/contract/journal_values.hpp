// Deep copies of arguments and results, chosen by type:
//   number                           the number
//   const pointer to a known record  a copy; a text as std::string; null as NullPointer
//   pointer to a known record        Output (or all but its contents) before the call, a copy after
//                                    success
//   any other pointer                Opaque
// A record becomes known by an overload of copy() or seen() in this file.
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

// Records that lead to more: with the contents, or without them, which is what is worth knowing of
// one that is to be filled.
inline MatchSpec seen(const pipe_mgr_match_spec_t &spec, bool contents) {
  const size_t bytes = contents ? spec.byte_count : 0;
  return {spec.scope,
          spec.valid_bit_count,
          spec.byte_count,
          copy_bytes(spec.value, bytes),
          copy_bytes(spec.mask, bytes),
          spec.priority};
}
inline ActionData seen(const pipe_mgr_action_data_t &data, bool contents) {
  return {data.valid_bit_count, data.byte_count,
          copy_bytes(data.bytes, contents ? data.byte_count : 0)};
}
inline ActionSpec seen(const pipe_mgr_action_spec_t &spec, bool contents) {
  const uint32_t count = contents ? spec.resource_count : 0;
  const size_t held = std::min<size_t>(count, PIPE_RESOURCES_PER_ACTION);
  return {spec.type,
          seen(spec.data, contents),
          spec.member,
          spec.group,
          {spec.resources, spec.resources + held},
          count};
}
inline std::vector<Query> seen(std::span<const pipe_stful_query_t> queries, bool contents) {
  std::vector<Query> list;
  for (const auto &[count, cells] : queries) {
    Query &query = list.emplace_back(Query{count, std::nullopt});
    if (cells != nullptr) query.cells.emplace(cells, cells + (contents ? count : 0));
  }
  return list;
}
inline std::vector<Query> seen(const pipe_stful_query_t &query, bool contents) {
  return seen({&query, 1}, contents);
}

template <class T>
concept Leading = requires(const T &record) {
  seen(record, true);
};
template <Leading T>
Value copy(const T &record) {
  return seen(record, true);
}
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
  return seen({data, count}, true);
}
template <class T>
Value copy_list(const T *data, size_t count) {
  return std::vector<T>(data, data + count);
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
    } else if constexpr (Leading<Pointee>) {
      return seen(*argument, false);
    } else {
      return Output{};
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
    return seen({argument.data, argument.count}, false);
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
