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

#include <concepts>
#include <cstdint>
#include <functional>
#include <limits>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/output.hpp"

namespace tesselctl {

// What the values of an item are, so that filters compare values and not how they are written.
struct ValueKind {
  // Whether a shown value is the wanted one, or has its pattern. Throws Fault where no such value
  // is.
  using Matches = bool (*)(const void *what, std::string_view shown, Word wanted);
  Matches matches = nullptr;  // null: a name, of which there are those that rows have and no more
  const void *what = nullptr;
  std::string_view field = {};  // its name in the record, which the item goes by too
};

// Whether a text is a pattern, in which '*' stands for any characters.
inline bool is_pattern(std::string_view text) { return text.find('*') != std::string_view::npos; }
// Upper and lower case make no difference.
bool matches_pattern(std::string_view text, std::string_view pattern);
// Of values that are shown in those characters, lower case and digits first; unless ':' is one of
// them, a value begins with a digit. Throws Fault when none can have the pattern.
bool matches_pattern(std::string_view shown, Word pattern, std::string_view characters);

// Kinds of values; the number is at most *what.
bool matches_text(const void *, std::string_view shown, Word wanted);
bool matches_number(const void *most, std::string_view shown, Word wanted);
bool matches_numbered(const void *, std::string_view shown, Word wanted);  // "#1"
bool matches_real(const void *, std::string_view shown, Word wanted);
bool matches_numbers(const void *, std::string_view shown, Word wanted);
template <std::unsigned_integral T>
inline constexpr uint64_t kMost = std::numeric_limits<T>::max();

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
  bool is_amount = false;        // it grows and shrinks, as no key, handle or setting does
  std::string_view before = {};  // a word in front of it, in words only; a constant
};

class Row {
 public:
  static constexpr std::string_view kKey = "key";
  static constexpr std::string_view kParameters = "parameters";
  static constexpr std::string_view kRates = "rates";
  static constexpr std::string_view kAbout = "about";

  Row &object(std::string_view name, std::string_view value) {
    return add({Item::Kind::object, {}, std::string(name), std::string(value), {}, {}});
  }
  Row &text(std::string_view name, std::string_view value) {
    return add({Item::Kind::text, {}, std::string(name), std::string(value), {}, {matches_text}});
  }
  // A text that is one of a few.
  Row &choice(std::string_view name, std::string_view value) {
    return add({Item::Kind::text, {}, std::string(name), std::string(value), {}, {}});
  }
  template <std::unsigned_integral T>
  Row &number(std::string_view name, T value, std::string_view unit = {}) {
    const ValueKind of = {matches_number, &kMost<T>};
    return add({Item::Kind::number, {}, std::string(name), std::to_string(value), unit, of});
  }
  // A string in JSON.
  template <std::unsigned_integral T>
  Row &hexadecimal(std::string_view name, T value) {
    return hexadecimal(name, value, {matches_number, &kMost<T>});
  }
  Row &real(std::string_view name, float value);
  Row &list(std::string_view name, const std::vector<uint64_t> &values);
  template <std::unsigned_integral T>
  Row &amount(std::string_view name, T value) {
    number(name, value);
    items_.back().is_amount = true;
    return *this;
  }
  Row &amounts(std::string_view name, const std::vector<uint64_t> &values) {
    list(name, values);
    items_.back().is_amount = true;
    return *this;
  }
  // The row with its amounts as what they grow by a second. An amount goes by its name and the
  // values before it.
  using RateOf = std::function<std::string(const std::string &amount, std::string_view now)>;
  Row with_rates(const RateOf &rate_of) const;
  // A value with a notation of its own; a number in JSON where it is written as one.
  Row &field(std::string_view group, std::string_view name, std::string value, ValueKind of);
  // Of a field that matches anything: found, but neither printed nor one of the items.
  Row &anything(std::string_view name, ValueKind of);

  Row &append(const Row &other) {
    items_.insert(items_.end(), other.items_.begin(), other.items_.end());
    return *this;
  }

  // How its words look on a terminal.
  Row &in_style(Style style) {
    style_ = style;
    return *this;
  }
  Style style() const { return style_; }

  // What the row is about beside its own: in an object of that name, or behind it as a word.
  Row &append(std::string_view name, const Row &other);

  const std::vector<Item> &items() const { return items_; }
  // Gives the item of that name another text.
  void change(std::string_view name, std::string value);
  // The item of that name, or else of the field of that name.
  const Item *find(std::string_view name) const;

  std::string words() const;
  std::string json() const;

 private:
  Row &hexadecimal(std::string_view name, uint64_t value, ValueKind of);
  Row &add(Item item) {
    items_.push_back(std::move(item));
    return *this;
  }
  std::vector<Item> items_;
  std::vector<Item> unshown_;
  Style style_ = Style::plain;
};

// Names as people write them: '_' and upper and lower case make no difference.
bool same_name(std::string_view a, std::string_view b);
inline bool goes_by(const Item &item, std::string_view name) {
  return same_name(item.name, name) || (!item.of.field.empty() && same_name(item.of.field, name));
}
// "name=value unit", or the value alone for an object.
std::string item_words(const Item &item);
// The text as a JSON string, in quotes. Bytes that are no UTF-8 become U+FFFD.
std::string json_string(std::string_view text);

}  // namespace tesselctl
