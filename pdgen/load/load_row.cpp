#include "pdgen/load/load_row.hpp"

#include <algorithm>
#include <utility>

#include "pdgen/text.hpp"

namespace pdgen {

namespace {

// Words of C up to C23, GNU C and C++20, and macros that compilers define or that come with the
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
    "i386 linux unix offsetof size_t assert errno stdin stdout stderr BUFSIZ EOF INFINITY NAN "
    "NULL ";

// Macros of C and its environment: INT8_MAX, IP_TTL, EIO.
bool is_like_macro(std::string_view text) {
  const auto is_capital = [](char c) { return c >= 'A' && c <= 'Z'; };
  const auto is_small = [](char c) { return c >= 'a' && c <= 'z'; };
  if (!is_capital(text[0]) || std::ranges::any_of(text, is_small)) return false;
  const bool is_error = text[0] == 'E' && text.size() > 2;
  return is_error || text.find('_') != std::string_view::npos;
}

// Names that C or C++ keeps for itself: words, macros, and what starts like a reserved name.
bool is_taken_word(std::string_view text) {
  const bool is_integer = text.starts_with("int") || text.starts_with("uint");
  const bool is_reserved =
      text[0] == '_' && text.size() > 1 && (text[1] == '_' || (text[1] >= 'A' && text[1] <= 'Z'));
  return is_reserved || is_like_macro(text) || (is_integer && text.ends_with("_t")) ||
         kTakenWords.find(" " + std::string(text) + " ") != std::string_view::npos;
}

bool is_identifier(std::string_view text) {
  constexpr std::string_view kDigits = "0123456789";
  return !text.empty() && kDigits.find(text[0]) == kDigits.npos &&
         text.find_first_not_of(kWordCharacters) == text.npos;
}

}  // namespace

std::string hex(std::uint32_t value) { return fmt::format("0x{:x}", value); }

std::string place_text(const Place &place) { return fmt::format("{}:{}", place.file, place.line); }

RowReader::RowReader(const TomlValue &row, Naming naming, NameScope &siblings, Reading &reading)
    : row_(row),
      naming_(std::move(naming)),
      what_(naming_.kind),
      siblings_(siblings),
      reading_(reading) {
  if (const TomlMember *member = row_.find(naming_.name_key)) {
    if (const auto *name = std::get_if<std::string>(&member->value.data)) what_ += " " + *name;
  }
  if (!naming_.owner.empty()) what_ += " of " + naming_.owner;
}

RowReader::~RowReader() {
  const auto *members = std::get_if<TomlValue::Table>(&row_.data);
  if (members == nullptr || ignores_others_) return;
  for (const TomlMember &member : *members) {
    if (std::ranges::find(known_keys_, member.key) != known_keys_.end()) continue;
    report_at(member.key_place, member.key, "{} has no such key", what_);
  }
}

RowReader::Naming RowReader::naming_of(std::string_view key, std::string kind,
                                       std::string name_key) const {
  return {path(key), std::move(kind), std::move(name_key), naming_.path.empty() ? "" : what_};
}

const Place &RowReader::place(std::string_view key) const {
  const TomlMember *member = row_.find(key);
  return member == nullptr ? row_.place : member->value.place;
}

// "table.key.width" of "width"; that of the row for no key.
std::string RowReader::path(std::string_view key) const {
  const char *dot = naming_.path.empty() || key.empty() ? "" : ".";
  return fmt::format("{}{}{}", naming_.path, dot, key);
}

void RowReader::add_to_siblings(const std::string &name, const Place &place) {
  if (name.empty()) return;  // it could not be read
  const auto [first, added] = siblings_.try_emplace(name, place);
  if (added) return;
  report(naming_.name_key, "the name {} is taken at {}", name, place_text(first->second));
}

const TomlValue *RowReader::value(std::string_view key, Need need) {
  known_keys_.emplace_back(key);
  const TomlMember *member = row_.find(key);
  if (member != nullptr) return &member->value;
  if (need == kRequired) report(key, "{} lacks this key", what_);
  return nullptr;
}

template <typename T>
const T *RowReader::typed(std::string_view key, const TomlValue *value, std::string_view wanted) {
  if (value == nullptr) return nullptr;
  const T *data = std::get_if<T>(&value->data);
  if (data != nullptr) return data;
  report_at(value->place, key, "{} has {} here, which must be {}", what_, value->kind_text(),
            wanted);
  return nullptr;
}

bool RowReader::identifier(std::string_view key, std::string &name, Need need) {
  const auto *text = typed<std::string>(key, value(key, need), "a string");
  if (text == nullptr) return false;
  if (is_identifier(*text) && !is_taken_word(*text)) {
    name = *text;
    return true;
  }
  report(key,
         "\"{}\" is no identifier: a letter or '_', then letters, digits and '_'; no word or macro "
         "of C or C++",
         *text);
  return false;
}

void RowReader::text(std::string_view key, std::string &text) {
  const auto *given = typed<std::string>(key, value(key, kRequired), "a string");
  if (given == nullptr) return;
  text = *given;
  const auto is_printable = [](char c) { return c >= ' ' && c <= '~'; };
  if (!text.empty() && std::ranges::all_of(text, is_printable)) return;
  report(key, "the text of {} must be printable ASCII and not empty", what_);
}

bool RowReader::number(std::string_view key, unsigned &number, unsigned least, unsigned most,
                       Need need) {
  const auto *given = typed<std::int64_t>(key, value(key, need), "a whole number");
  if (given == nullptr) return false;
  const bool fits = *given >= std::int64_t{least} && *given <= std::int64_t{most};
  if (fits) number = static_cast<unsigned>(*given);
  if (!fits) report(key, "{} of {} must be from {} to {}", *given, what_, least, most);
  return fits;
}

void RowReader::handle(std::string_view key, std::uint32_t &handle, HandleKind kind,
                       std::string object) {
  if (!number(key, handle)) return;
  const auto top_byte = static_cast<std::uint32_t>(kind);
  if (kind != HandleKind::kAny && handle >> 24 != top_byte) {
    return report(key, "{} of {} must lie in 0x{:02x}000000 to 0x{:02x}ffffff", hex(handle), what_,
                  top_byte, top_byte);
  }
  if (object.empty()) object = what_;
  const auto [holder, added] =
      reading_.handles.try_emplace(handle, Handle{handle, object, place(key)});
  if (added) return;
  report(key, "{} of {} is the handle of {} at {}", hex(handle), object, holder->second.object,
         place_text(holder->second.place));
}

void RowReader::flag(std::string_view key, bool &flag) {
  const bool *given = typed<bool>(key, value(key, kOptional), "true or false");
  if (given != nullptr) flag = *given;
}

std::size_t RowReader::index_of_choice(std::string_view key,
                                       std::span<const std::string_view> choices, Need need) {
  const auto *text = typed<std::string>(key, value(key, need), "a string");
  if (text == nullptr) return choices.size();
  const auto chosen = std::ranges::find(choices, *text);
  if (chosen == choices.end()) {
    report(key, "\"{}\" of {} must be one of {}", *text, what_, fmt::join(choices, ", "));
  }
  return static_cast<std::size_t>(chosen - choices.begin());
}

template <typename T>
std::vector<const TomlValue *> RowReader::elements(std::string_view key, Need need,
                                                   std::string_view verb, std::string_view kind) {
  std::vector<const TomlValue *> found;
  const auto *array =
      typed<TomlValue::Array>(key, value(key, need), fmt::format("an array of {}s", kind));
  if (array == nullptr) return found;
  if (need == kRequired && array->empty()) report(key, "{} {} nothing here", what_, verb);
  for (const TomlValue &element : *array) {
    if (typed<T>(key, &element, fmt::format("a {}", kind)) != nullptr) found.push_back(&element);
  }
  return found;
}

std::vector<RowReader::Word> RowReader::words(std::string_view key, Need need) {
  std::vector<Word> words;
  for (const TomlValue *element : elements<std::string>(key, need, "names", "string")) {
    const auto &text = std::get<std::string>(element->data);
    if (is_identifier(text)) {
      words.emplace_back(text, element->place);
    } else {
      report_at(element->place, key, "\"{}\" of {} is no identifier", text, what_);
    }
  }
  return words;
}

void RowReader::words(std::string_view key, std::vector<std::string> &names) {
  for (auto &[word, at] : words(key, kOptional)) names.push_back(std::move(word));
}

std::vector<const TomlValue *> RowReader::row_values(std::string_view key, Need need) {
  return elements<TomlValue::Table>(key, need, "lists", "table");
}

}  // namespace pdgen
