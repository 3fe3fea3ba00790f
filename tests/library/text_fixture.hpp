// For tests of texts: records set by the names of their members, and buffers that notice a byte too
// many.
#pragma once

#include <gtest/gtest.h>

#include <cstdint>
#include <cstring>
#include <initializer_list>
#include <random>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "literal_reader.hpp"
#include "support.hpp"

namespace pd_test {

using bindings::Member;
using bindings::Record;

inline uint64_t word(const void *pointer) { return reinterpret_cast<uintptr_t>(pointer); }
inline uint64_t word(uint64_t number) { return number; }

template <class... Argument>
uint64_t call(const Export &function, Argument... arguments) {
  const uint64_t words[] = {word(arguments)..., 0};
  EXPECT_EQ(function.parameter_count, sizeof...(Argument)) << function.name;
  return function.call(words);
}

inline std::string constant_text(const std::string &family, const std::string &object) {
  return reinterpret_cast<const char *>(static_cast<uintptr_t>(call(*find_export(family, object))));
}

inline std::span<const Record> tables() {
  return {bindings::binding.tables.rows, bindings::binding.tables.count};
}
inline std::span<const Record> actions() {
  return {bindings::binding.actions.rows, bindings::binding.actions.count};
}
inline const Record &record_of(std::span<const Record> records, std::string_view name) {
  for (const Record &record : records) {
    if (record.name == name) return record;
  }
  ADD_FAILURE() << "no record " << name;
  return records.front();
}

// A match spec or action spec.
class Spec {
 public:
  using Values = std::initializer_list<std::pair<std::string_view, uint32_t>>;

  explicit Spec(const Record &record) : record_(record), bytes_(record.size + 1) {}
  Spec(std::string_view table, Values values) : Spec(record_of(tables(), table)) {
    for (const auto &[name, value] : values) set(member(name), value);
  }

  // "name=number name=number ..."; the 16 bytes of a wide member as 32 digits.
  Spec(const Record &record, std::string_view members) : Spec(record) {
    std::istringstream words{std::string(members)};
    for (std::string text; words >> text;) {
      const size_t equals = text.find('=');
      const Member &named = member(std::string_view(text).substr(0, equals));
      const std::string number = text.substr(equals + 1);
      for (size_t i = 0; named.storage == 16 && i < 16; ++i) {
        at(named)[i] = static_cast<uint8_t>(std::stoul(number.substr(2 * i, 2), nullptr, 16));
      }
      if (named.storage != 16) set(named, static_cast<uint32_t>(std::stoul(number, nullptr, 0)));
    }
  }

  const Member &member(std::string_view name) const {
    for (const Member &member : record_.member_list()) {
      if (member.name == name) return member;
    }
    ADD_FAILURE() << record_.name << " has no " << name;
    return record_.members[0];
  }
  uint8_t *at(const Member &member) { return bytes_.data() + member.offset; }
  const uint8_t *at(const Member &member) const { return bytes_.data() + member.offset; }

  // Cut to the storage of the member. Little-endian machines only, as both ABIs are.
  void set(const Member &member, uint32_t value) {
    std::memcpy(at(member), &value, member.storage);
  }
  uint32_t get(const Member &member) const {
    uint32_t value = 0;
    std::memcpy(&value, at(member), member.storage);
    return value;
  }
  Spec &set_bytes(std::string_view name, const std::array<uint8_t, 16> &bytes) {
    std::memcpy(at(member(name)), bytes.data(), 16);
    return *this;
  }
  // All bytes of the record, holes between members too.
  void fill(std::mt19937 &random) {
    for (uint8_t &byte : bytes_) byte = static_cast<uint8_t>(random());
  }
  const void *data() const { return bytes_.data(); }
  const Record &record() const { return record_; }

 private:
  const Record &record_;
  std::vector<uint8_t> bytes_;
};

// A buffer of exactly size bytes with a guard behind it.
class TextBuffer {
 public:
  explicit TextBuffer(size_t size) : bytes_(size + 64, kUntouched), size_(size) {}

  char *data() { return bytes_.data(); }

  // What a function wrote that returned length: nothing may be touched behind its NUL.
  std::string text(uint64_t length) const {
    EXPECT_LT(length, size_);
    EXPECT_EQ(std::strlen(bytes_.data()), length);
    EXPECT_EQ(untouched_from(static_cast<size_t>(length) + 1), bytes_.size()) << bytes_.data();
    return bytes_.data();
  }
  bool is_untouched() const { return untouched_from(0) == bytes_.size(); }

 private:
  static constexpr char kUntouched = 0x5a;

  // size() if every byte from first on is as it was.
  size_t untouched_from(size_t first) const {
    while (first < bytes_.size() && bytes_[first] == kUntouched) ++first;
    return first;
  }

  std::vector<char> bytes_;
  size_t size_;
};

// The key masks of a record's members as its schema tells them.
inline std::vector<Literal> schema_fields(const std::string &table) {
  const auto schema = read_literal(constant_text("match_spec_schema", table));
  EXPECT_TRUE(schema.has_value()) << table;
  return schema ? schema->items : std::vector<Literal>{};
}

}  // namespace pd_test
