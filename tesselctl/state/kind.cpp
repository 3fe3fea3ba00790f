#include "tesselctl/state/kind.hpp"

#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/program/value.hpp"
#include "tesselctl/state/line_words.hpp"
#include "tesselctl/state/script.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

void Renumbering::replace(Numbered of, std::span<char> bytes, size_t at) const {
  if (of != what) return;
  const auto found = numbers.find(read_bytes<uint32_t>({bytes.data(), bytes.size()}, at));
  if (found != numbers.end()) memcpy(bytes.data() + at, &found->second, sizeof(uint32_t));
}

std::vector<std::string_view> names_of_objects() {
  std::vector<std::string_view> names;
  for (const ItemKind *kind : kinds()) {
    for (size_t i = 0; const char *name = kind->object.name(i); ++i) names.emplace_back(name);
  }
  return names;
}

std::span<const ItemKind *const> kinds_of_same_objects(size_t at) {
  const auto all = kinds().subspan(at);
  const auto end = std::find_if(all.begin(), all.end(), [&](const ItemKind *kind) {
    return &kind->object != &all.front()->object;
  });
  return all.first(static_cast<size_t>(end - all.begin()));
}

// ---- Items that are numbers ----

namespace {

using Column = NumberItems::Column;
using Notation = NumberItems::Notation;
using Numbers = NumberItems::Numbers;

std::string text_of(const Column &column, std::span<const uint64_t> numbers) {
  std::string text;
  for (const uint64_t number : numbers) {
    text += text.empty() ? "" : ",";
    switch (column.notation) {
      case Notation::decimal:
        text += decimal(number);
        break;
      case Notation::hexadecimal:
        text += hexadecimal(number);
        break;
      case Notation::real:
        text += fmt::format("{}", NumberItems::real_of(number));
    }
  }
  return text;
}

// A number without its name. Throws Fault.
uint64_t parse_nameless(ValueScanner &line, const Column &column) {
  const Word word = line.here();
  if (column.notation == Notation::decimal) return parse_counted(line, column.least);
  const uint64_t number = line.hexadecimal();
  if (number <= column.limit) return number;
  throw Fault(word, fmt::format("{} is at most {:#x}", column.name, column.limit));
}

void append_list(Numbers &numbers, const Column &column, Word word) {
  const std::vector<uint64_t> list = number_list(word, column.limit);
  if (column.count != 0 && list.size() != column.count) {
    throw Fault(word, fmt::format("{} is {} numbers", column.name, column.count));
  }
  numbers.insert(numbers.end(), list.begin(), list.end());
}

// Visits the columns with their numbers.
template <class Visit>
void for_each_column(const NumberItems::Layout &layout, const Numbers &numbers, Visit visit) {
  auto rest = std::span(numbers);
  for (const Column &column : layout.columns) {
    const size_t count = column.count == 0 ? rest.size() : column.count;
    visit(column, rest.first(count));
    rest = rest.subspan(count);
  }
}

// Makes the numbers behind those of the identity what they are in a new device.
void clear_values(const NumberItems::Layout &layout, Numbers &numbers) {
  auto values = std::span(numbers).subspan(layout.identity);
  for (const Column &column : std::span(layout.columns).subspan(layout.identity)) {
    const size_t count = column.count == 0 ? values.size() : column.count;
    std::ranges::fill(values.first(count), column.otherwise);
    values = values.subspan(count);
  }
}

}  // namespace

void NumberItems::parse(ValueScanner &line, ItemBytes &item) {
  Numbers numbers;
  const auto columns = std::span(layout_.columns);
  for (const Column &column : columns.first(layout_.nameless)) {
    if (&column != columns.data()) line.expect(" ");
    if (column.count != 1) {
      append_list(numbers, column, line.word());
      return store(numbers, item);
    }
    numbers.push_back(parse_nameless(line, column));
  }
  const auto named = columns.subspan(layout_.nameless);
  std::vector<std::string_view> names;
  for (const Column &column : named) names.push_back(column.name);
  const LineWords words(line, names);
  for (const Column &column : named) {
    if (column.notation == Notation::real) {
      numbers.push_back(bits_of(parse_real(words.need(column.name), column.name)));
    } else if (column.count == 1) {
      numbers.push_back(words.number(column.name, column.limit, column.otherwise));
    } else {
      append_list(numbers, column, words.need(column.name));
    }
  }
  store(numbers, item);
}

void NumberItems::print(std::string &text, const ItemView &item) const {
  size_t at = 0;
  for_each_column(layout_, unpacked(item), [&](const Column &column, auto numbers) {
    if (at > 0) text += ' ';
    if (at++ >= layout_.nameless) text += std::string(column.name) + "=";
    text += text_of(column, numbers);
  });
}

void NumberItems::add_numbers(Row &row, const Numbers &all) const {
  if (!layout_.what.empty()) row.object("what", layout_.what);
  for_each_column(layout_, all, [&](const Column &column, auto numbers) {
    if (column.notation == Notation::real) {
      row.real(column.name, real_of(numbers.front()));
    } else if (column.notation == Notation::hexadecimal && column.limit > 0xffffffffu) {
      row.hexadecimal(column.name, numbers.front());
    } else if (column.notation == Notation::hexadecimal) {
      row.hexadecimal(column.name, static_cast<uint32_t>(numbers.front()));
    } else if (column.count == 1 && column.limit <= 0xffffffffu) {
      row.number(column.name, static_cast<uint32_t>(numbers.front()));
    } else if (column.count == 1) {
      row.number(column.name, numbers.front());
    } else {
      row.list(column.name, {numbers.begin(), numbers.end()});
    }
  });
}

void NumberItems::add_samples_to(Row &row, Naming) const {
  size_t count = 0;
  for (const Column &column : layout_.columns) count += column.count;
  // Numbers that stand for words are 0 and 1.
  for (const uint64_t number : {0u, 1u}) add_numbers(row, Numbers(count, number));
}

void NumberItems::print_commands(Script &script, const ItemEdit &edit) const {
  Numbers numbers = unpacked(edit.item);
  const bool removes = edit.edit == Edit::remove;
  if (removes) clear_values(layout_, numbers);
  script.begin(edit);
  // What is one of its kind goes by its object alone.
  if (!removes || edit.kind.verbs.removes.empty() || layout_.identity != 0) {
    Row row;
    add_numbers(row, numbers);
    script.words(row, profile());
  }
  script.end();
}

void NumberItems::read(Source &from, const ItemVisitor &visit) {
  ItemBytes item;
  read_numbers(from, [&](const Numbers &numbers) {
    store(numbers, item);
    visit(item.view());
  });
}

Numbers NumberItems::unpacked(const ItemView &item) {
  Numbers numbers((item.identity.size() + item.value.size()) / sizeof(uint64_t));
  char *bytes = reinterpret_cast<char *>(numbers.data());
  item.value.copy(bytes + item.identity.copy(bytes, item.identity.size()), item.value.size());
  return numbers;
}

void NumberItems::store(const Numbers &numbers, ItemBytes &item) const {
  const auto *bytes = reinterpret_cast<const char *>(numbers.data());
  const size_t identity = layout_.identity * sizeof(uint64_t);
  item.identity.assign(bytes, identity);
  item.value.assign(bytes + identity, numbers.size() * sizeof(uint64_t) - identity);
}

}  // namespace tesselctl
