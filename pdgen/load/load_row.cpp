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
    if (const auto *name = std::get_if<std::string>(&member->value.data))
      what_ += (name->empty() ? "" : " ") + *name;
  }
  if (!naming_.owner.empty()) what_ += " of " + naming_.owner;
}

RowReader::~RowReader() {
  const bool has_slip = report_unknown_keys();
  if (!missing_.empty()) {
    report_at(row_.place, missing_[0], "{} lacks {}", what_, fmt::join(missing_, ", "));
  }
  if (has_slip) return;
  for (Fault &fault : faults_) reading_.diagnostics.report(std::move(fault));
}

// Whether one is another key, misspelt, which then is not missing. The others are one fault, such
// as those of a row whose header is missing.
bool RowReader::report_unknown_keys() {
  const auto *members = std::get_if<TomlValue::Table>(&row_.data);
  if (members == nullptr || ignores_others_) return false;
  std::vector<std::string> known = known_keys_;
  std::erase_if(known, [&](const std::string &key) { return has(key); });
  bool has_slip = false;
  const TomlMember *first = nullptr;
  std::vector<std::string> others;
  for (const TomlMember &member : *members) {
    if (std::ranges::find(known_keys_, member.key) != known_keys_.end()) continue;
    reading_.incomplete.insert(missing_kinds_.begin(), missing_kinds_.end());
    const std::string near = common::nearest(member.key, known);
    if (near.empty()) {
      others.push_back(member.key);
      if (first == nullptr || member.key_place.line < first->key_place.line) first = &member;
      continue;
    }
    has_slip = true;
    std::erase(missing_, near);
    const auto shown = [&](const std::string &key) {
      return fmt::format(fmt::runtime(member.value.has_headers ? "[[{}]]" : "{}"), key);
    };
    report_at(member.key_place, member.key, "{} has no {}; did you mean {}?", what_,
              shown(member.key), shown(near));
  }
  if (first != nullptr) {
    report_at(first->key_place, first->key, "{} has no {}; it may have {}", what_,
              fmt::join(others, ", "),
              known_keys_.empty() ? "nothing" : fmt::to_string(fmt::join(known_keys_, ", ")));
  }
  return has_slip;
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

bool RowReader::add_to_siblings(const std::string &name, const Place &place) {
  const auto [first, added] = siblings_.try_emplace(name, place);
  if (added && !name.empty()) return true;
  reading_.incomplete.insert(naming_.kind);
  if (name.empty()) return false;  // it could not be read
  is_doubled_ = true;
  report(naming_.name_key, "the name {} is taken at {}", name, place_text(first->second));
  return false;
}

const TomlValue *RowReader::value(std::string_view key, Need need) {
  known_keys_.emplace_back(key);
  const TomlMember *member = row_.find(key);
  if (member != nullptr) return &member->value;
  if (need == kRequired) missing_.emplace_back(key);
  return nullptr;
}

bool RowReader::string(std::string_view key, std::string &string, Need need) {
  const auto *text = typed<std::string>(key, value(key, need), "a string");
  if (text != nullptr) string = *text;
  if (text != nullptr && text->empty()) report(key, "{} has an empty string here", what_);
  return !string.empty();
}

bool RowReader::identifier(std::string_view key, std::string &name, Need need) {
  std::string text;
  if (!string(key, text, need)) return false;
  if (is_identifier(text) && !is_taken_word(text)) {
    name = text;
    return true;
  }
  report(key,
         "\"{}\" is no identifier: a letter or '_', then letters, digits and '_'; no word or macro "
         "of C or C++",
         text);
  return false;
}

void RowReader::text(std::string_view key, std::string &text) {
  if (!string(key, text, kRequired)) return;
  const auto is_printable = [](char c) { return c >= ' ' && c <= '~'; };
  if (std::ranges::all_of(text, is_printable)) return;
  report(key, "the text of {} must be printable ASCII", what_);
}

bool RowReader::number(std::string_view key, unsigned &number, unsigned least, unsigned most,
                       Need need, std::string_view notation) {
  const auto *given = typed<std::int64_t>(key, value(key, need), "a whole number");
  if (given == nullptr) return false;
  const bool fits = *given >= std::int64_t{least} && *given <= std::int64_t{most};
  const auto shown = [=](std::int64_t value) { return fmt::format(fmt::runtime(notation), value); };
  if (fits) number = static_cast<unsigned>(*given);
  if (!fits) {
    report_at(place(key), key, "{} of {} must be from {} to {}", shown(*given), what_, shown(least),
              shown(most));
  }
  return fits;
}

bool RowReader::number_of(std::string_view key, unsigned &number,
                          std::initializer_list<unsigned> choices, Need need) {
  unsigned given = 0;
  if (!this->number(key, given, 0, kAnyNumber, need)) return false;
  const bool fits = std::ranges::find(choices, given) != choices.end();
  if (fits) number = given;
  if (!fits)
    report_at(place(key), key, "{} of {} must be one of {}", given, what_,
              fmt::join(choices, ", "));
  return fits;
}

void RowReader::handle(std::string_view key, std::uint32_t &handle, HandleKind kind,
                       std::string object) {
  const auto least = static_cast<std::uint32_t>(kind) << 24;
  const std::uint32_t most = kind == HandleKind::kAny ? kAnyNumber : least | 0xffffff;
  if (!number(key, handle, least, most, kRequired, kHandle)) return;
  if (object.empty()) object = what_;
  const auto [holder, added] =
      reading_.handles.try_emplace(handle, Handle{handle, object, place(key)});
  if (added || is_doubled_) return;
  report(key, "{} of {} is the handle of {} at {}", hex32(handle), object, holder->second.object,
         place_text(holder->second.place));
}

void RowReader::flag(std::string_view key, bool &flag) {
  const bool *given = typed<bool>(key, value(key, kOptional), "true or false");
  if (given != nullptr) flag = *given;
}

std::size_t RowReader::index_of_choice(std::string_view key,
                                       std::span<const std::string_view> choices, Need need) {
  std::string text;
  if (!string(key, text, need)) return choices.size();
  const auto chosen = std::ranges::find(choices, text);
  if (chosen == choices.end()) {
    report_at(place(key), key, "\"{}\" of {} must be one of {}", text, what_,
              fmt::join(choices, ", "));
  }
  return static_cast<std::size_t>(chosen - choices.begin());
}

template <typename T>
std::vector<const TomlValue *> RowReader::elements(std::string_view key, Need need,
                                                   std::string_view verb, std::string_view kind) {
  std::vector<const TomlValue *> found;
  const bool has_headers = naming_.path.empty() && std::is_same_v<T, TomlValue::Table>;
  const auto *array = typed<TomlValue::Array>(
      key, value(key, need),
      fmt::format("an array of {}s{}", kind, has_headers ? fmt::format(" ([[{}]])", key) : ""));
  if (array == nullptr) return found;
  const bool may_be_empty = need == kOptional && std::is_same_v<T, TomlValue::Table>;
  if (array->empty() && !may_be_empty) report(key, "{} {} nothing here", what_, verb);
  for (const TomlValue &element : *array) {
    if (typed<T>(key, &element, fmt::format("a {}", kind)) != nullptr) found.push_back(&element);
  }
  return found;
}

std::vector<RowReader::Word> RowReader::words(std::string_view key, Need need) {
  std::vector<Word> words;
  for (const TomlValue *element : elements<std::string>(key, need, "names", "string")) {
    const auto &word = std::get<std::string>(element->data);
    if (std::ranges::find(words, word, &Word::first) != words.end()) {
      report_at(element->place, key, "{} stands twice in {}", word, what_);
    } else {
      words.emplace_back(word, element->place);
    }
  }
  return words;
}

void RowReader::names(std::string_view key, std::vector<std::string> &names,
                      std::string_view wanted, const Candidates &rows, Fits fits, Need need) {
  const std::vector<Word> given = words(key, need);
  for (const auto &[word, place] : given) names.push_back(word);
  for (std::size_t i = 0; i < given.size(); ++i) {
    reading_.references.push_back(
        {{given[i].second, path(key), what_}, names[i], wanted, rows, [](const void *) {}, fits});
  }
}

std::vector<const TomlValue *> RowReader::row_values(std::string_view key, const std::string &kind,
                                                     Need need) {
  std::vector<const TomlValue *> rows = elements<TomlValue::Table>(key, need, "lists", "table");
  if (rows.empty() || naming_.path.empty()) missing_kinds_.push_back(kind);
  if (spoilt_.contains(key) || (rows.empty() && need == kRequired))
    reading_.incomplete.insert(kind);
  return rows;
}

// --- References -----------------------------------------------------------------------------

namespace {

// A name that nothing has, or those that a row gives of the rows of a table that lacks them.
struct Unknown {
  const Reference *first = nullptr;
  std::size_t count = 0;
};

bool is_of_one(const Reference &reference) {
  return reference.wanted.find(" of the ") != std::string_view::npos;
}

// The row that was probably meant, rather one that nothing names.
std::optional<Candidate> meant(const Reference &reference, const std::set<const void *> &named) {
  std::vector<Candidate> rows = reference.candidates();
  std::stable_partition(rows.begin(), rows.end(),
                        [&](const Candidate &candidate) { return !named.contains(candidate.row); });
  const std::string near = common::nearest(reference.name, projected(rows, &Candidate::name));
  const auto row = std::ranges::find(rows, near, &Candidate::name);
  return near.empty() ? std::nullopt : std::optional(*row);
}

// Where rows of optional files stand.
std::string home_of(std::string_view wanted) {
  const bool is_profile = wanted == "profile";
  if (!is_profile && !wanted.starts_with("counter")) return "";
  return fmt::format(", which {}.toml lists", is_profile ? "profiles" : "stateful");
}

// Several rows are right, and the row that they mean is misspelt, if nothing names that one.
void report_unknown(const Unknown &unknown, const std::set<const void *> &named,
                    Diagnostics &diagnostics) {
  const auto &[fault, name, wanted, candidates, found, fits] = *unknown.first;
  const auto near = meant(*unknown.first, named);
  const std::string more = unknown.count == 1 ? "" : fmt::format(" and {} more", unknown.count - 1);
  if (candidates().empty()) {
    return diagnostics.report(fault.place, fault.key,
                              "{} names {}{}, but the catalogue has no {}{}", fault.message, name,
                              more, wanted, is_of_one(*unknown.first) ? "" : home_of(wanted));
  }
  if (unknown.count == 1 || is_of_one(*unknown.first)) {
    diagnostics.report(fault.place, fault.key, "{} names {}{}, which is no {}{}", fault.message,
                       name, more, wanted,
                       near ? fmt::format("; did you mean {}?", near->name) : "");
  } else if (near && !named.contains(near->row)) {
    diagnostics.report(near->place, "name", "nothing names {}, but {}{} name {}: is it this one?",
                       near->name, fault.message, more, name);
  } else {
    diagnostics.report(fault.place, fault.key, "{}{} name {}, which is no {}{}", fault.message,
                       more, name, wanted,
                       near ? fmt::format("; did you mean {}?", near->name) : "");
  }
}

}  // namespace

std::string of_the(std::string_view wanted) { return fmt::format("of the {}", wanted); }

void resolve_references(Reading &reading) {
  std::map<std::string, Unknown> unknown;
  std::set<const void *> named;
  for (const Reference &reference : reading.references) {
    const std::vector<Candidate> rows = reference.candidates();
    const auto row = std::ranges::find_if(rows, [&](const Candidate &candidate) {
      return reference.fits(candidate.name, reference.name);
    });
    if (row != rows.end()) {
      reference.found(row->row);
      named.insert(row->row);
      continue;
    }
    const bool may_be_unread =
        std::ranges::any_of(reading.incomplete, [&](const std::string &kind) {
          return reference.wanted.find(kind) != std::string_view::npos;
        });
    // Nor is anything known of what an unknown row has.
    reading.incomplete.insert(of_the(reference.wanted));
    if (may_be_unread) continue;
    const std::string name(reference.name);
    const bool is_own = is_of_one(reference) && !unknown.contains(name);
    Unknown &slip = unknown[rows.empty() ? std::string(reference.wanted)
                            : is_own     ? reference.fault.message
                                         : name];
    if (slip.count++ == 0) slip.first = &reference;
  }
  for (const auto &[name, slip] : unknown) report_unknown(slip, named, reading.diagnostics);
}

}  // namespace pdgen
