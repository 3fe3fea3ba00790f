#include "tesselctl/explain/path.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <cctype>

#include "common/nearest.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// ---- Keys ----

void PathKey::set(const Field &field, Number value, const Origin &origin) {
  const Number ones = low_ones(field.width);
  store_value(field, {value & ones, ones}, bytes_.data());
  for (size_t i = 0; i < field.part_count(); ++i) origins_[place_of(field.parts[i])] = origin;
}

const Origin &PathKey::origin_of(const Field &field) const {
  const Origin &upper = origins_[place_of(field.parts[0])];
  const bool is_upper = !field.is_pair() || upper.kind == Origin::nowhere;
  return is_upper ? upper : origins_[place_of(field.parts[1])];
}

std::vector<const Field *> PathKey::unknown_fields(bool ternary) const {
  std::vector<const Field *> unknown;
  for (const Field &field : record_->shown()) {
    if ((field.match == Match::ternary) != ternary) continue;
    if (origin_of(field).kind == Origin::nowhere) unknown.push_back(&field);
  }
  return unknown;
}

std::string labels_of(const std::vector<const Field *> &fields, std::string_view separator) {
  std::string labels;
  for (const Field *field : fields) {
    labels += fmt::format("{}{}", labels.empty() ? "" : separator, field->label);
  }
  return labels;
}

// ---- Words ----

Path::Path(const Context &context, Words words, std::span<const std::string_view> options)
    : context_(context) {
  for (const Word &word : words) take(word, nullptr, word);
  std::stable_partition(pairs_.begin(), pairs_.end(),
                        [](const Pair &pair) { return pair.from != nullptr; });
  for (Pair &pair : std::exchange(pairs_, {})) sort_out(pair, options);
}

const PathFile &Path::file() const {
  if (!file_) file_ = PathFile::of(context_);
  return *file_;
}

template <class Act>
void Path::in_place_of(const NamedPath *from, Act act) const {
  try {
    act();
  } catch (const Fault &fault) {
    if (from == nullptr || fault.column() == 0) throw;
    throw file().placed(fault, *from);
  }
}

void Path::take(Word word, const NamedPath *from, Word typed) {
  if (word.text.find('=') != std::string_view::npos) {
    pairs_.push_back({split_assignment(word), from});
    return;
  }
  if (find_record(tables(), word.text) != nullptr) {
    return stops_.push_back({resolve_table(word), typed});
  }
  common::Nearest near(word.text);
  for (const NamedPath &path : file().paths()) {
    if (from != nullptr && path.line >= from->line) break;
    near.consider(path.name);
    if (path.name != word.text) continue;
    return in_place_of(&path, [&] {
      for (const Word &part : path.words) take(part, &path, typed);
    });
  }
  for (const bindings::Record &table : tables()) near.consider(table.name);
  throw Fault(word,
              from == nullptr ? "no table and no path has this name"
                              : "no table and no path above has this name",
              near.name());
}

// Whether the text can be a name, as no number or address can.
bool is_named(std::string_view text) {
  return !text.empty() &&
         (std::isalpha(static_cast<unsigned char>(text[0])) != 0 || text[0] == '_');
}

void Path::sort_out(Pair &pair, std::span<const std::string_view> options) {
  const Word name = pair.words.name;
  const auto has_it = [&](const Stop &stop) {
    return has_field_named(*stop.table.record, name.text);
  };
  const bool is_option = std::ranges::find(options, name.text) != options.end();
  if (is_option && pair.from == nullptr && std::ranges::none_of(stops_, has_it)) {
    return options_.push_back(pair.words.whole);
  }
  pair.joins = is_named(pair.words.value.text) && has_field(pair.words.value.text);
  in_place_of(pair.from, [&] {
    if (!pair.joins && has_pair(pair))
      throw Fault(name, std::string(name.text) + " is given twice");
  });
  pairs_.push_back(pair);
}

bool Path::has_field(std::string_view name) const {
  return std::ranges::any_of(
      stops_, [&](const Stop &stop) { return find_field(*stop.table.record, name) != nullptr; });
}

// Whether another one of the same place has this name, and gives a value as it does or joins.
bool Path::has_pair(const Pair &like) const {
  return std::ranges::any_of(pairs_, [&](const Pair &pair) {
    return pair.joins == like.joins && pair.from == like.from &&
           same_name(pair.words.name.text, like.words.name.text);
  });
}

// ---- Where values go ----

// The fields of the key that the path joins with a value of that label or name.
template <class Visit>
void Path::for_each_joined(std::string_view label, std::string_view name,
                           const bindings::Record &record, Visit visit) const {
  for (const Pair &pair : pairs_) {
    const std::string_view joined = pair.words.name.text;
    if (!pair.joins || (!same_name(joined, label) && !same_name(joined, name))) continue;
    if (const Field *field = find_field(record, pair.words.value.text)) visit(*field);
  }
}

// The one value that a packet has in a field.
Number packet_value(const Field &field, Word text) {
  if (text.text == "*" || text.text.find_first_of("/&") != std::string_view::npos) {
    throw Fault(text, fmt::format("a packet has one value of {}", field.label));
  }
  Field one = field;
  one.match = Match::exact;
  return parse_value(one, text).value;
}

void Path::give(PathKey &key, size_t stop) const {
  const bindings::Record &record = *stops_[stop].table.record;
  for (const Pair &pair : pairs_) {
    const std::string_view name = pair.words.name.text;
    const auto set = [&](const Field &field) {
      key.set(field, packet_value(field, pair.words.value), {Origin::given, 0, nullptr});
    };
    if (pair.joins) continue;
    in_place_of(pair.from, [&] {
      if (const Field *field = find_field(record, name)) set(*field);
      for_each_joined(name, name, record, set);
    });
  }
}

void Path::hand_on(const bindings::Record &action, const uint8_t *parameters, size_t from,
                   PathKey &key, size_t stop) const {
  const bindings::Record &record = *stops_[stop].table.record;
  const auto set = [&](const Field &field, const Field &parameter) {
    key.set(field, load_value(parameter, parameters).value, {Origin::action, from, &parameter});
  };
  for (const Field &parameter : action.shown()) {
    for (const Field &field : record.field_list()) {
      const bool is_its = field.label == parameter.label || field.name == parameter.joined_field;
      if (is_its) set(field, parameter);
    }
  }
  // What the path says comes last, and so goes before.
  for (const Field &parameter : action.shown()) {
    for_each_joined(parameter.label, parameter.name, record,
                    [&](const Field &field) { set(field, parameter); });
  }
}

// All actions of the first stops.
template <class Visit>
void Path::for_each_action(size_t stops, Visit visit) const {
  for (size_t i = 0; i < stops; ++i) {
    const soft_profile_t *profile = stops_[i].table.profile();
    for (const bindings::Record *action :
         profile != nullptr ? actions_of(*profile) : actions_of(*stops_[i].table.description)) {
      visit(i, *action);
    }
  }
}

PathKey Path::fullest_key(size_t stop) const {
  PathKey key(stops_[stop].table);
  give(key, stop);
  for_each_action(stop, [&](size_t from, const bindings::Record &action) {
    hand_on(action, std::vector<uint8_t>(action.size).data(), from, key, stop);
  });
  return key;
}

// ---- Faults ----

void Path::check(Word command) const {
  if (stops_.empty()) throw Fault(command, "the name of a table or path is missing");
  for (const Pair &pair : pairs_) in_place_of(pair.from, [&] { check_pair(pair); });
  for (size_t i = 0; i < stops_.size(); ++i) check_fields(i);
}

void Path::check_pair(const Pair &pair) const {
  const Word name = pair.words.name;
  // A value may go into a key by a join alone, and a join be of such a value.
  if (std::ranges::any_of(pairs_, [&](const Pair &other) {
        return other.joins != pair.joins && same_name(other.words.name.text, name.text);
      })) {
    return;
  }
  common::Nearest near(name.text);
  bool is_known = !pair.joins && has_field(name.text);
  if (pair.joins) {
    for_each_action(stops_.size(), [&](size_t, const bindings::Record &action) {
      for (const Field &parameter : action.shown()) near.consider(parameter.label);
      is_known = is_known || find_field(action, name.text) != nullptr;
    });
  } else {
    for (const Stop &stop : stops_) {
      for (const Field &field : stop.table.record->field_list()) near.consider(field.label);
    }
  }
  if (is_known) return;
  throw Fault(name,
              pair.joins ? "no action on the path has a parameter of this name"
                         : "no table on the path has a field of this name",
              near.name());
}

void Path::check_fields(size_t stop) const {
  const auto unknown = fullest_key(stop).unknown_fields(false);
  if (unknown.empty()) return;
  const auto &[table, word] = stops_[stop];
  const std::string_view first = unknown.front()->label;
  std::string text =
      fmt::format("{} also needs {}: give {}=VALUE", table.name(), labels_of(unknown, ", "), first);
  if (stop != 0) {
    text += fmt::format(", or PARAMETER={} if an action before sets it under that name", first);
  }
  throw Fault(word, text);
}

}  // namespace tesselctl
