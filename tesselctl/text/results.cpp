#include "tesselctl/text/results.hpp"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <utility>

#include "common/nearest.hpp"
#include "tesselctl/text/number.hpp"
#include "tesselctl/text/utf8.hpp"
#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

// Rows that are looked at before the columns are chosen; a dump of a million rows starts at once.
constexpr size_t kMeasured = 1000;

// Items that stand in a column of their own; the others follow as words.
bool has_column(const Item &item) {
  return item.group != Row::kParameters && item.group != Row::kAbout &&
         item.kind != Item::Kind::list;
}

}  // namespace

bool sorts_before(std::string_view a, std::string_view b) {
  while (!a.empty() && !b.empty()) {
    if (!is_digit(a[0]) || !is_digit(b[0])) {
      if (a[0] != b[0]) return a[0] < b[0];
      a.remove_prefix(1);
      b.remove_prefix(1);
      continue;
    }
    const auto run = [](std::string_view &text) {
      text.remove_prefix(std::min(text.find_first_not_of('0'), text.size()));
      size_t end = 0;
      while (end < text.size() && is_digit(text[end])) ++end;
      const std::string_view digits = text.substr(0, end);
      text.remove_prefix(end);
      return digits;
    };
    const std::string_view left = run(a);
    const std::string_view right = run(b);
    if (left.size() != right.size()) return left.size() < right.size();
    if (left != right) return left < right;
  }
  return a.size() < b.size();
}

std::string json_beginning(std::string_view command) {
  return fmt::format("{{\"version\":{},\"command\":{},\"rows\":[", kJsonVersion,
                     json_string(command));
}

void Results::begin(const Settings &settings, std::string_view command, bool listing) {
  settings_ = settings;
  command_ = command;
  listing_ = listing;
  json_started_ = false;
  count_ = 0;
  amounts_ = {std::chrono::steady_clock::now()};
  summary_.reset();
  names_.clear();
  filter_states_.assign(settings.filters.size(), {});
  sort_was_known_ = false;
  held_.clear();
  columns_.clear();
  key_names_.clear();
}

// Whether the item has what the filter wants; notes what that shows about the filter.
bool Results::passes(size_t filter, const Item &item) {
  FilterState &state = filter_states_[filter];
  state.is_known = true;
  const std::string &pattern = settings_.filters[filter].pattern;
  if (item.of.matches == nullptr) {
    const bool passes = matches_text(nullptr, item.value, {pattern, 0});
    state.is_value = state.is_value || passes;
    if (!state.is_value) state.near = common::nearest(pattern, std::array{state.near, item.value});
    return passes;
  }
  try {
    const bool passes = item.of.matches(item.of.what, item.value, {pattern, 0});
    state.is_value = true;
    return passes;
  } catch (const Fault &fault) {
    if (!state.refusal || state.refusal->suggestion().empty()) state.refusal.emplace(fault);
    return false;
  }
}

void Results::note_names(const Row &row) {
  if (!settings_.sort.empty() && row.find(settings_.sort) != nullptr) sort_was_known_ = true;
  if (!asks_for_names() || names_.size() > 100) return;
  for (const Item &item : row.items()) {
    if (std::find(names_.begin(), names_.end(), item.name) == names_.end()) {
      names_.push_back(item.name);
    }
  }
}

// Every filter must hold.
bool Results::passes(const Row &row) {
  note_names(row);
  bool all = true;
  for (size_t i = 0; i < settings_.filters.size(); ++i) {
    const Item *item = row.find(settings_.filters[i].name);
    all = item != nullptr && passes(i, *item) && all;
  }
  return all;
}

void Results::expect(const Row &row) {
  note_names(row);
  for (size_t i = 0; i < settings_.filters.size(); ++i) {
    for (const Item &item : row.items()) {
      if (goes_by(item, settings_.filters[i].name)) passes(i, item);
    }
  }
}

// Of one number, or of several with commas between them. New cells and tables begin with 0.
std::string Results::rate_of(const std::string &amount, std::string_view now) {
  const auto next = [](std::string_view &list) {
    const std::string_view text = take_until(list, ',');
    uint64_t number = 0;
    std::from_chars(text.data(), text.data() + text.size(), number);
    return number;
  };
  amounts_.values[amount] = now;
  const auto found = amounts_before_.values.find(amount);
  std::string_view before;
  if (found != amounts_before_.values.end()) before = found->second;
  const std::chrono::duration<double> passed = amounts_.when - amounts_before_.when;
  std::string rates;
  while (!now.empty()) {
    const double rate =
        static_cast<double>(static_cast<int64_t>(next(now) - next(before))) / passed.count();
    // In tenths; the sum is no negative zero.
    rates += fmt::format("{}{}", rates.empty() ? "" : ",", std::round(rate * 10) / 10 + 0.0);
  }
  return rates;
}

void Results::row(const Row &row) {
  if (!settings_.delta) return show(row);
  show(row.with_rates(
      [this](const std::string &amount, std::string_view now) { return rate_of(amount, now); }));
}

void Results::show(const Row &row) {
  if (!passes(row)) return;
  ++count_;
  if (settings_.count) return;
  const bool columns = listing_ && !settings_.terse && !settings_.json;
  if (settings_.sort.empty() && (!columns || !columns_.empty())) return print(row);
  held_.push_back(row);
  if (settings_.sort.empty() && held_.size() == kMeasured) print_columns();
}

void Results::row(const Row &row, const std::string &text) {
  if (settings_.json || settings_.count || asks_for_names()) return this->row(row);
  ++count_;
  out_->line("{}", text);
}

void Results::command(std::string_view line) {
  if (settings_.json || settings_.count) return row(Row().text("command", line));
  out_->write(line);
  out_->write("\n");
}

void Results::done(const Row &row, std::string_view what) {
  Row with_what = row;
  with_what.object("done", what);
  if (settings_.json || settings_.verbose || settings_.dry_run) print(with_what);
}

void Results::text(std::string_view text) {
  if (settings_.json) return print(Row().text("text", text));
  out_->write(text);
  if (!text.ends_with('\n')) out_->write("\n");
}

void Results::start_json() {
  if (json_started_) return;
  out_->write(json_beginning(command_));
  json_started_ = true;
}

void Results::print(const Row &row) {
  if (settings_.json) {
    // Whole or not at all, as an error may follow: there may be no memory.
    const std::string json = (json_started_ ? "," : "") + row.json();
    start_json();
    out_->write(json);
    return;
  }
  const std::string text = columns_.empty() ? row.words() : aligned(columns_, cells(row));
  out_->line("{}", out_->styled(row.style(), text));
}

void Results::choose_columns() {
  for (const Row &row : held_) {
    size_t after = 0;
    for (const Item &item : row.items()) {
      if (!has_column(item)) continue;
      auto found = std::find_if(columns_.begin(), columns_.end(),
                                [&](const TextColumn &column) { return column.name == item.name; });
      if (found == columns_.end()) {
        // Behind the column of the item before it, as the rows have it.
        const auto at = columns_.begin() + static_cast<std::ptrdiff_t>(after);
        found = columns_.insert(at, {item.name, item.kind == Item::Kind::number, item.name.size()});
        if (item.group == Row::kKey) key_names_.insert(item.name);
      }
      found->width = std::max(found->width, item.value.size());
      after = static_cast<size_t>(found - columns_.begin()) + 1;
    }
  }
}

// One text a column, and one for the rest of the row.
std::vector<std::string> Results::cells(const Row &row) const {
  std::vector<std::string> texts;
  for (const TextColumn &column : columns_) {
    texts.emplace_back(key_names_.contains(column.name) ? "*" : "-");
  }
  std::string rest;
  for (const Item &item : row.items()) {
    const auto found =
        std::find_if(columns_.begin(), columns_.end(),
                     [&](const TextColumn &column) { return column.name == item.name; });
    if (has_column(item) && found != columns_.end()) {
      texts[static_cast<size_t>(found - columns_.begin())] = item.value;
    } else {
      rest += (rest.empty() ? "" : " ") + item_words(item);
    }
  }
  texts.push_back(rest);
  return texts;
}

void Results::print_columns() {
  if (held_.empty()) return;
  choose_columns();
  out_->line("{}", out_->styled(Style::heading, aligned_names(columns_)));
  for (const Row &row : held_) print(row);
  held_.clear();
}

void Results::check_names() const {
  const auto unknown = [&](const std::string &name) {
    throw Fault({name, 0}, "no row has a '" + name + "'", common::nearest(name, names_));
  };
  for (size_t i = 0; i < settings_.filters.size(); ++i) {
    const FilterState &state = filter_states_[i];
    const auto &[name, pattern] = settings_.filters[i];
    if (!state.is_known) unknown(name);
    if (state.is_value) continue;
    const Fault why = state.refusal.value_or(Fault({}, "no row can have this", state.near));
    throw Fault(Word{pattern, 0},
                fmt::format("--filter {}: '{}': {}", name, pattern, why.message()),
                why.suggestion());
  }
  if (!settings_.sort.empty() && !sort_was_known_) unknown(settings_.sort);
}

void Results::end() {
  amounts_before_ = std::exchange(amounts_, {});
  check_names();
  if (!settings_.sort.empty()) {
    const auto value = [&](const Row &row) {
      const Item *item = row.find(settings_.sort);
      return item == nullptr ? std::string_view() : std::string_view(item->value);
    };
    std::stable_sort(held_.begin(), held_.end(),
                     [&](const Row &a, const Row &b) { return sorts_before(value(a), value(b)); });
  }
  if (settings_.count && !settings_.json) {
    return out_->line("{}", summary_ ? summary_->text : std::to_string(count_));
  }
  if (!held_.empty() && listing_ && !settings_.terse && !settings_.json) {
    print_columns();
  } else {
    for (const Row &row : held_) print(row);
  }
  held_.clear();
  if (summary_ && !settings_.json) out_->line("{}", summary_->text);
  if (!settings_.json) return;
  Row last;
  if (settings_.count) last.number("count", count_);
  if (summary_) last.append(summary_->row);
  if (!last.items().empty()) print(last);
  start_json();
  out_->write(kJsonEnd);
}

void Results::fail(const Fault &fault, std::string_view file, uint64_t line) {
  held_.clear();
  if (!settings_.json) return;
  start_json();
  Row error;
  if (line != 0) error.text("file", file).number("line", line);
  if (fault.column() != 0) error.number("column", fault.column()).text("token", fault.token());
  error.text("message", fault.message());
  if (!fault.suggestion().empty()) error.text("suggestion", fault.suggestion());
  out_->write("],\"error\":" + error.json() + "}\n");
}

}  // namespace tesselctl
