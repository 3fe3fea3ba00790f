// One answer of a command as named values, so that people get words and programs get JSON from the
// same thing. As words:
//
//   l2Lookup entry=4 l2Domain=7 dmac=00:11:22:33:44:55 action=forward port=12
//
// and as JSON, where the values of a record stand in an object of their own:
//
//   {"table":"l2Lookup","entry":4,"key":{"l2Domain":7,"dmac":"00:11:22:33:44:55"},
//    "action":"forward","parameters":{"port":12}}
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tesselctl {

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
};

class Row {
 public:
  static constexpr std::string_view kKey = "key";
  static constexpr std::string_view kParameters = "parameters";

  Row &object(std::string_view name, std::string_view value) {
    return add({Item::Kind::object, {}, std::string(name), std::string(value), {}});
  }
  Row &text(std::string_view name, std::string_view value) {
    return add({Item::Kind::text, {}, std::string(name), std::string(value), {}});
  }
  Row &number(std::string_view name, uint64_t value, std::string_view unit = {}) {
    return add({Item::Kind::number, {}, std::string(name), std::to_string(value), unit});
  }
  Row &list(std::string_view name, const std::vector<uint64_t> &values);
  Row &field(std::string_view group, std::string_view name, std::string value, bool is_number) {
    return add({is_number ? Item::Kind::number : Item::Kind::text,
                group,
                std::string(name),
                std::move(value),
                {}});
  }

  const std::vector<Item> &items() const { return items_; }
  // The item of that name as people write it: '_' and upper and lower case make no difference.
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

// "name=value unit", or the value alone for an object.
std::string item_words(const Item &item);
// The text as a JSON string, in quotes. Bytes that are no UTF-8 become U+FFFD.
std::string json_string(std::string_view text);

}  // namespace tesselctl
