// One answer of a command as named values, so that people get words and programs get JSON from the
// same thing. As words:
//
//   fdb entry=4 domain=7 address=00:11:22:33:44:55 action=forward port=12
//
// and as JSON, where the values of a record stand in an object of their own:
//
//   {"table":"fdb","entry":4,"key":{"domain":7,"address":"00:11:22:33:44:55"},
//    "action":"forward","parameters":{"port":12}}
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

// What the values of an item are, so that filters compare values and not how they are written.
struct ValueKind {
  // Throws Fault where written is no such value.
  using Same = bool (*)(const void *what, std::string_view shown, Word written);
  Same same = nullptr;  // null: equal texts
  const void *what = nullptr;
};

struct Item {
  enum class Kind : uint8_t {
    object,  // its value alone is the word: the name of a table, what was done
    text,    // a string in JSON
    number,  // a number in JSON
    list,    // numbers separated by commas; an array in JSON
  };
  Kind kind;
  std::string_view group;  // "key", "parameters" or empty; a constant
  std::string name;
  std::string value;
  std::string_view unit;  // "kbit/s": in words only; a constant
  ValueKind of = {};
};

class Row {
 public:
  static constexpr std::string_view kKey = "key";
  static constexpr std::string_view kParameters = "parameters";

  Row &object(std::string_view name, std::string_view value) {
    return add({Item::Kind::object, {}, std::string(name), std::string(value), {}, {}});
  }
  Row &text(std::string_view name, std::string_view value) {
    return add({Item::Kind::text, {}, std::string(name), std::string(value), {}, {}});
  }
  Row &number(std::string_view name, uint64_t value, std::string_view unit = {}) {
    return add({Item::Kind::number, {}, std::string(name), std::to_string(value), unit, {}});
  }
  Row &list(std::string_view name, const std::vector<uint64_t> &values);
  // A value with a notation of its own; a number in JSON where it is written as one.
  Row &field(std::string_view group, std::string_view name, std::string value, ValueKind of);

  const std::vector<Item> &items() const { return items_; }
  // The item of that name.
  const Item *find(std::string_view name) const;

  std::string words() const;
  std::string json() const;

 private:
  Row &add(Item item) {
    items_.push_back(std::move(item));
    return *this;
  }
  std::vector<Item> items_;
};

// Names as people write them: '_' and upper and lower case make no difference.
bool same_name(std::string_view a, std::string_view b);
// "name=value unit", or the value alone for an object.
std::string item_words(const Item &item);
// The text as a JSON string, in quotes. Bytes that are no UTF-8 become U+FFFD.
std::string json_string(std::string_view text);

}  // namespace tesselctl
