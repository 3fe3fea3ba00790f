#include "pdgen/load/load_row.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <iterator>
#include <utility>

namespace pdgen {

namespace {

// Words of C up to C23, GNU C and C++20, and the macros that compilers define or that come with the
// headers of generated code. The words are separated by blanks.
constexpr std::string_view kTakenWords =
    " alignas alignof and and_eq asm auto bitand bitor bool break case catch char char16_t "
    "char32_t "
    "char8_t class co_await co_return co_yield compl concept const const_cast consteval constexpr "
    "constinit continue decltype default delete do double dynamic_cast else enum explicit export "
    "extern false float for friend goto if inline int long mutable namespace new noexcept not "
    "not_eq nullptr operator or or_eq private protected public register reinterpret_cast requires "
    "restrict return short signed sizeof static static_assert static_cast struct switch template "
    "this thread_local throw true try typedef typeid typename typeof typeof_unqual union unsigned "
    "using virtual void volatile wchar_t while xor xor_eq "
    "i386 linux unix NULL offsetof ";

bool is_capital(char c) { return c >= 'A' && c <= 'Z'; }

// INT8_MAX, UINTPTR_C and the like, and the integer types themselves.
bool belongs_to_stdint(std::string_view text) {
  const bool macro = text.ends_with("_MAX") || text.ends_with("_MIN") || text.ends_with("_C") ||
                     text.ends_with("_WIDTH");
  const bool type = text.ends_with("_t");
  for (const std::string_view stem :
       {"INT", "UINT", "PTRDIFF", "SIG_ATOMIC", "SIZE", "WCHAR", "WINT"}) {
    if (macro && text.starts_with(stem)) return true;
  }
  return type && (text.starts_with("int") || text.starts_with("uint") || text == "size_t");
}

// Names that C or C++ keeps for itself: words, and what starts like a reserved name.
bool is_taken_word(std::string_view text) {
  if (text.starts_with("__") || (text.size() > 1 && text[0] == '_' && is_capital(text[1]))) {
    return true;
  }
  for (const std::string_view ours : {"BF_", "P4_PD_", "PIPE_"}) {
    if (text.starts_with(ours)) return true;
  }
  return belongs_to_stdint(text) ||
         kTakenWords.find(" " + std::string(text) + " ") != std::string_view::npos;
}

}  // namespace

bool is_identifier(std::string_view text) {
  const auto is_letter = [](char c) {
    return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '_';
  };
  const auto is_digit = [](char c) { return c >= '0' && c <= '9'; };
  return !text.empty() && is_letter(text.front()) &&
         std::all_of(text.begin(), text.end(), [&](char c) { return is_letter(c) || is_digit(c); });
}

std::string hex(std::uint32_t value) { return fmt::format("0x{:x}", value); }

std::string place_text(const Place &place) { return fmt::format("{}:{}", place.file, place.line); }

void NameScope::add(const std::string &name, const Place &place, std::string_view key,
                    Diagnostics &diagnostics) {
  if (name.empty()) return;
  const auto [holder, added] = taken_.try_emplace(name, place);
  if (!added) {
    diagnostics.report(place, key,
                       fmt::format("the name {} is taken at {}", name, place_text(holder->second)));
  }
}

void HandleScope::add(std::uint32_t handle, const std::string &owner, const Place &place,
                      std::string_view key, Diagnostics &diagnostics) {
  const auto [holder, added] = taken_.try_emplace(handle, Holder{owner, place});
  if (!added) {
    diagnostics.report(place, key,
                       fmt::format("{} of {} is the handle of {} at {}", hex(handle), owner,
                                   holder->second.owner, place_text(holder->second.place)));
  }
}

std::vector<Handle> HandleScope::all() const {
  std::vector<Handle> handles;
  for (const auto &[handle, holder] : taken_) handles.push_back({handle, holder.owner});
  return handles;
}

RowReader::RowReader(const TomlValue &row, Naming naming, Diagnostics &diagnostics)
    : row_(row), naming_(std::move(naming)), what_(naming_.kind), diagnostics_(diagnostics) {
  if (const TomlMember *member = row_.find(naming_.name_key)) {
    if (const auto *name = std::get_if<std::string>(&member->value.data)) what_ += " " + *name;
  }
  if (!naming_.owner.empty()) what_ += " of " + naming_.owner;
}

const Place &RowReader::place(std::string_view key) const {
  const TomlMember *member = row_.find(key);
  return member == nullptr ? row_.place : member->value.place;
}

std::string RowReader::path(std::string_view key) const {
  return naming_.path.empty() ? std::string(key) : fmt::format("{}.{}", naming_.path, key);
}

void RowReader::report(std::string_view key, std::string message) const {
  diagnostics_.report(place(key), path(key), std::move(message));
}

const TomlValue *RowReader::value(std::string_view key, bool required) {
  known_keys_.emplace_back(key);
  const TomlMember *member = row_.find(key);
  if (member != nullptr) return &member->value;
  if (required) report(key, fmt::format("{} lacks this key", what_));
  return nullptr;
}

void RowReader::report_wrong_type(std::string_view key, const TomlValue &value,
                                  std::string_view wanted) const {
  diagnostics_.report(
      value.place, path(key),
      fmt::format("{} has {} here, which must be {}", what_, value.kind_text(), wanted));
}

template <typename T>
const T *RowReader::typed(std::string_view key, bool required, std::string_view wanted) {
  const TomlValue *found = value(key, required);
  if (found == nullptr) return nullptr;
  const T *data = std::get_if<T>(&found->data);
  if (data == nullptr) report_wrong_type(key, *found, wanted);
  return data;
}

const TomlValue *RowReader::optional_value(std::string_view key) { return value(key, false); }

std::string RowReader::identifier(std::string_view key) {
  const auto *text = typed<std::string>(key, true, "a string");
  if (text == nullptr) return {};
  if (is_identifier(*text) && !is_taken_word(*text)) return *text;
  report(key,
         fmt::format(
             "\"{}\" is no identifier: a letter or '_', then letters, digits and '_'; no word of C "
             "or C++",
             *text));
  return {};
}

std::string RowReader::text(std::string_view key) {
  const auto *text = typed<std::string>(key, true, "a string");
  if (text == nullptr) return {};
  const bool printable =
      std::all_of(text->begin(), text->end(), [](char c) { return c >= ' ' && c <= '~'; });
  if (printable && !text->empty()) return *text;
  report(key, fmt::format("the text of {} must be printable ASCII and not empty", what_));
  return {};
}

std::optional<std::uint32_t> RowReader::number_within(std::string_view key, bool required,
                                                      std::uint32_t least, std::uint32_t most) {
  const auto *number = typed<std::int64_t>(key, required, "a whole number");
  if (number == nullptr) return std::nullopt;
  if (*number >= std::int64_t{least} && *number <= std::int64_t{most}) {
    return static_cast<std::uint32_t>(*number);
  }
  report(key, fmt::format("{} of {} must be from {} to {}", *number, what_, least, most));
  return std::nullopt;
}

std::optional<std::uint32_t> RowReader::number(std::string_view key, std::uint32_t least,
                                               std::uint32_t most) {
  return number_within(key, true, least, most);
}

std::optional<std::uint32_t> RowReader::optional_number(std::string_view key, std::uint32_t least,
                                                        std::uint32_t most) {
  return number_within(key, false, least, most);
}

std::uint32_t RowReader::handle(std::string_view key, HandleKind kind, HandleScope &scope,
                                std::string object) {
  const auto handle = number_within(key, true, 0, 0xffffffff);
  if (!handle) return 0;
  const auto top_byte = static_cast<std::uint32_t>(kind);
  if (kind != HandleKind::kAny && *handle >> 24 != top_byte) {
    report(key, fmt::format("{} of {} must lie in 0x{:02x}000000 to 0x{:02x}ffffff", hex(*handle),
                            what_, top_byte, top_byte));
    return 0;
  }
  if (object.empty()) object = what_;
  scope.add(*handle, object, place(key), path(key), diagnostics_);
  return *handle;
}

bool RowReader::optional_flag(std::string_view key) {
  const bool *flag = typed<bool>(key, false, "true or false");
  return flag != nullptr && *flag;
}

std::optional<std::size_t> RowReader::chosen(std::string_view key, bool required,
                                             const std::vector<std::string_view> &choices) {
  const auto *text = typed<std::string>(key, required, "a string");
  if (text == nullptr) return std::nullopt;
  const auto found = std::find(choices.begin(), choices.end(), *text);
  if (found != choices.end()) return static_cast<std::size_t>(found - choices.begin());
  report(key,
         fmt::format("\"{}\" of {} must be one of {}", *text, what_, fmt::join(choices, ", ")));
  return std::nullopt;
}

std::optional<std::size_t> RowReader::choice(std::string_view key,
                                             const std::vector<std::string_view> &choices) {
  return chosen(key, true, choices);
}

std::optional<std::size_t> RowReader::optional_choice(
    std::string_view key, const std::vector<std::string_view> &choices) {
  return chosen(key, false, choices);
}

std::vector<Word> RowReader::word_list(std::string_view key, bool required) {
  std::vector<Word> words;
  const auto *elements = typed<TomlValue::Array>(key, required, "an array of strings");
  if (elements == nullptr) return words;
  if (required && elements->empty()) report(key, fmt::format("{} names nothing here", what_));
  for (const TomlValue &element : *elements) {
    const auto *text = std::get_if<std::string>(&element.data);
    if (text == nullptr) {
      report_wrong_type(key, element, "a string");
    } else if (!is_identifier(*text)) {
      diagnostics_.report(element.place, path(key),
                          fmt::format("\"{}\" of {} is no identifier", *text, what_));
    } else {
      words.push_back({*text, element.place});
    }
  }
  return words;
}

std::vector<Word> RowReader::identifiers(std::string_view key) { return word_list(key, true); }

std::vector<Word> RowReader::optional_identifiers(std::string_view key) {
  return word_list(key, false);
}

std::vector<const TomlValue *> RowReader::row_list(std::string_view key, bool required) {
  std::vector<const TomlValue *> found;
  const auto *elements = typed<TomlValue::Array>(key, required, "an array of tables");
  if (elements == nullptr) return found;
  if (required && elements->empty()) report(key, fmt::format("{} lists nothing here", what_));
  for (const TomlValue &element : *elements) {
    if (std::holds_alternative<TomlValue::Table>(element.data)) {
      found.push_back(&element);
    } else {
      report_wrong_type(key, element, "a table");
    }
  }
  return found;
}

std::vector<const TomlValue *> RowReader::rows(std::string_view key) { return row_list(key, true); }

std::vector<const TomlValue *> RowReader::optional_rows(std::string_view key) {
  return row_list(key, false);
}

RowReader::~RowReader() {
  const auto *members = std::get_if<TomlValue::Table>(&row_.data);
  if (members == nullptr || ignores_others_) return;
  for (const TomlMember &member : *members) {
    if (std::find(known_keys_.begin(), known_keys_.end(), member.key) == known_keys_.end()) {
      diagnostics_.report(member.key_place, path(member.key),
                          fmt::format("{} has no such key", what_));
    }
  }
}

}  // namespace pdgen
