// For tests of texts: records set by the names of their members, buffers that notice a byte too
// many, what is printed to a descriptor, and placement data.
#pragma once

#include <sys/mman.h>
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <sstream>
#include <utility>

#include "soft_placement.h"
#include "support.hpp"

namespace pd_test {

using bindings::Member;
using bindings::Record;

template <class... Argument>
uint64_t call(const Export &function, Argument... arguments) {
  const uint64_t words[] = {word(arguments)..., 0};
  EXPECT_EQ(function.parameter_count, sizeof...(Argument)) << function.name;
  return function.call(words);
}

inline std::string text_at(uint64_t address) {
  return reinterpret_cast<const char *>(static_cast<uintptr_t>(address));
}
inline std::string constant_text(const std::string &family, const std::string &object) {
  return text_at(call(*find_export(family, object)));
}

inline std::span<const Record> tables() { return binding().tables.list(); }
inline std::span<const Record> actions() { return binding().actions.list(); }

// The match spec of a table or the action spec of an action.
class Spec {
 public:
  explicit Spec(const Record &record) : record_(&record), bytes_(record.size + 1) {}
  // "name=number name=value/mask ..."; the 16 bytes of a wide member as 32 digits.
  Spec(const Record &record, std::string_view members) : Spec(record) {
    std::istringstream words{std::string(members)};
    for (std::string text; words >> text;) {
      const std::string name = text.substr(0, text.find('='));
      const std::string value = text.substr(name.size() + 1);
      const size_t slash = value.find('/');
      set(name, value.substr(0, slash));
      if (slash != std::string::npos) set(name + "_mask", value.substr(slash + 1));
    }
  }

  const Member &member(std::string_view name) const { return member_of(*record_, name); }
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
  // All bytes of the record, holes between members too.
  void fill(Random &random) {
    for (uint8_t &byte : bytes_) byte = static_cast<uint8_t>(random());
  }
  const void *data() const { return bytes_.data(); }
  const Record &record() const { return *record_; }

 private:
  void set(const std::string &name, const std::string &number) {
    const Member &named = member(name);
    if (named.storage != 16) {
      return set(named, static_cast<uint32_t>(std::stoul(number, nullptr, 0)));
    }
    for (size_t i = 0; i < 16; ++i) {
      at(named)[i] = static_cast<uint8_t>(std::stoul(number.substr(2 * i, 2), nullptr, 16));
    }
  }

  const Record *record_;
  Bytes bytes_;
};

inline Spec key_spec(std::string_view table, std::string_view members = "") {
  return Spec(record_of(table_named(table)), members);
}
inline Spec action_spec(std::string_view action, std::string_view members = "") {
  return Spec(record_of(action_named(action)), members);
}

// The bits of a member of a match spec that take part in the key, in the order of its bytes.
inline Bytes key_bits(const pdgen::Table &table, const Member &member) {
  const auto index = static_cast<size_t>(&member - record_of(table).members);
  const pdgen::KeyField &field = table.key[table.record[index].key_index];
  const bool is_length = member.role == bindings::Role::prefix_length;
  const pdgen::Bits bits = is_length ? pdgen::Bits{0, 0xffff} : field.key_bits;
  Bytes bytes;  // the least significant first
  for (unsigned i = 0; i < member.storage; ++i) {
    bytes.push_back(static_cast<uint8_t>((i < 8 ? bits.lower : bits.upper) >> i % 8 * 8));
  }
  if (member.storage == 16) std::ranges::reverse(bytes);
  return bytes;
}

// A buffer of exactly size bytes with a guard behind it.
class TextBuffer {
 public:
  explicit TextBuffer(size_t size = binding().sizes.value)
      : bytes_(size + 64, kUntouched), size_(size) {}

  char *data() { return bytes_.data(); }

  // What a function wrote that returned length: nothing may be touched behind its NUL.
  template <class Length>
  std::string text(Length returned) const {
    const auto length = static_cast<size_t>(returned);
    EXPECT_LT(length, size_);
    EXPECT_EQ(std::strlen(bytes_.data()), length);
    EXPECT_EQ(untouched_from(length + 1), bytes_.size()) << bytes_.data();
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

// What a function writes into its buffer, which is size bytes.
inline std::string written(const Export &function, const Given &given, size_t size) {
  TextBuffer buffer(size);
  return buffer.text(
      Arguments(function).give(given).set("buffer", static_cast<void *>(buffer.data())).call());
}

inline std::string value_of(const Spec &spec, bool is_table) {
  return is_table ? written(*find_export("match_spec_value", spec.record().name),
                            with("match_spec", spec.data()), binding().sizes.match_spec_value)
                  : written(*find_export("action_value", spec.record().name),
                            with("action_spec", spec.data()), binding().sizes.action_value);
}

// What body(descriptor) prints.
template <class Body>
std::string printed(Body body) {
  const int file = memfd_create("printed", 0);
  EXPECT_GE(file, 0);
  body(file);
  std::string text(static_cast<size_t>(lseek(file, 0, SEEK_END)), '\0');
  EXPECT_EQ(pread(file, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
  close(file);
  return text;
}

// The lines of a record at an indent of 1.
inline std::string lines_of(const Spec &spec, bool is_table) {
  return printed([&](int file) {
    call(*find_export(is_table ? "match_spec_print" : "action_print", spec.record().name),
         static_cast<uint64_t>(file), uint64_t{1}, spec.data());
  });
}

// Placement data of an entry or a member, released with its scope.
struct Placement {
  pipe_mgr_placement_t *object = nullptr;

  Placement() = default;
  Placement(Placement &&other) noexcept : object(std::exchange(other.object, nullptr)) {}
  Placement(const Placement &) = delete;
  Placement &operator=(const Placement &) = delete;
  ~Placement() { soft_placement_free(object); }

  static Placement of_entry(bf_device_id_t device, uint32_t table, uint32_t entry) {
    Placement placed;
    EXPECT_EQ(soft_placement_of_entry(device, table, entry, &placed.object), BF_SUCCESS);
    return placed;
  }
  static Placement of_member(bf_device_id_t device, uint32_t profile, uint32_t member) {
    Placement placed;
    EXPECT_EQ(soft_placement_of_member(device, profile, member, &placed.object), BF_SUCCESS);
    return placed;
  }
};

}  // namespace pd_test
