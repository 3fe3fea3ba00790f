// Value strings: the numbers of a record or an entry as a literal. The text between the digits is a
// constant that is copied whole; the digits are written over it, unrolled per record.
#pragma once

#include <initializer_list>
#include <utility>

#include "read_entry.hpp"
#include "shapes.hpp"
#include "text_out.hpp"

namespace pd {

// Writes the value of a record with its NUL and returns the place of the NUL.
using ValueWriter = char *(*)(const void *record, char *out);

namespace detail {

template <RecordMember M>
PD_INLINE void put_member(const uint8_t *record, char *out) {
  if constexpr (M.storage == 16) {
    put_wide_digits(out, record + M.offset);
  } else {
    put_digits<M.digits>(out, load<M.storage>(record + M.offset) & M.mask);
  }
}

template <class T, size_t... I>
inline void put_members([[maybe_unused]] const uint8_t *record, [[maybe_unused]] char *out,
                        std::index_sequence<I...>) {
  PD_FOR_EACH(put_member<T::Shape::members[I]>(record, out + T::digits_at[I]));
}

}  // namespace detail

// T is the text of a table or of an action.
template <class T>
char *write_value(const void *record, char *out) {
  copy_text(out, T::value);
  detail::put_members<T>(static_cast<const uint8_t *>(record), out,
                         std::make_index_sequence<T::Shape::count>{});
  return out + sizeof T::value - 1;
}

// The actions of a table, in the order of its pairs.
template <class... Text>
struct ActionTexts {
  static constexpr ValueWriter writers[] = {write_value<Text>..., nullptr};
  static constexpr size_t largest_record = [] {
    size_t largest = 0;
    for (const size_t size : {Text::Shape::size..., size_t{0}}) {
      largest = size > largest ? size : largest;
    }
    return largest;
  }();
};

// Length of the value of a match spec or an action spec; 0 and nothing written for a null pointer.
template <class T>
inline int record_value(const void *record, char *buffer) {
  if (buffer == nullptr) return 0;
  if (T::Shape::count != 0 && record == nullptr) return 0;
  write_value<T>(record, buffer);
  return static_cast<int>(sizeof T::value - 1);
}

// Appends the member or group that an entry points at, nothing when it points at neither, and
// returns the end.
char *put_pointee(const EntryFacts &facts, char *out);

// How the entries of a table are written.
struct EntryTexts {
  const Table *table;
  ValueWriter key;  // null for a table without a key
  const ValueWriter *actions;
};

// Reads the entry into the two records and writes its value. 0 and nothing written when the
// read-back fails.
int write_entry_value(const EntryTexts &texts, const EntryAddress &address, void *match_spec,
                      void *action_spec, char *buffer);

template <class T>
inline constexpr ValueWriter key_writer = [] {
  if constexpr (T::Layout::table.kind == Kind::keyless) {
    return ValueWriter{nullptr};
  } else {
    return ValueWriter{write_value<T>};
  }
}();

template <class T>
int entry_value(const EntryAddress &address, char *buffer) {
  static constexpr EntryTexts texts = {&T::Layout::table, key_writer<T>, T::Actions::writers};
  EntryRecords<T> records;
  return write_entry_value(texts, address, records.match_spec, records.action_spec, buffer);
}

}  // namespace pd
