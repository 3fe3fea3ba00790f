// What commands answer, in the form that was asked for.
#pragma once

#include <chrono>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "tesselctl/text/fault.hpp"
#include "tesselctl/text/output.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// How commands answer and work; the words that begin with "--" on a command line.
struct Settings {
  struct Filter {
    std::string name;
    std::string pattern;  // '*' stands for any characters
    bool operator==(const Filter &) const = default;
  };
  bool verbose = false;
  bool json = false;
  bool terse = false;  // one row a line instead of columns
  bool trace = false;
  bool dry_run = false;
  bool count = false;
  bool raw = false;
  bool openmetrics = false;
  bool script = false;
  bool atomic = false;
  bool replace = false;
  bool delta = false;       // amounts as what they grow by a second
  bool keep_going = false;  // of a script: behind a line with a fault
  bool help = false;
  uint64_t from = 1;  // the line of a script that is run first
  std::vector<Filter> filters = {};
  std::string sort = {};
  std::string paths = {};  // the file of named paths; empty for none

  bool operator==(const Settings &) const = default;
};

// The version of the JSON that commands print; docs/json.md and docs/tesselctl.schema.json
// describe it.
inline constexpr int kJsonVersion = 1;
// What stands before the rows of an answer, and behind them.
std::string json_beginning(std::string_view command);
inline constexpr std::string_view kJsonEnd = "]}\n";

// Between begin and end or fail lies one command. In JSON it becomes one line:
//   {"version":1,"command":"count fdb","rows":[...]}
//   {"version":1,"command":"cuont","rows":[],"error":{"message":...}}
class Results {
 public:
  explicit Results(Output &out) : out_(&out) {}

  // listing: the command answers with any number of rows, which stand in columns.
  void begin(const Settings &settings, std::string_view command, bool listing);
  // Before there are rows.
  void add_filter(Settings::Filter filter) {
    settings_.filters.push_back(std::move(filter));
    filter_states_.emplace_back();
  }
  void row(const Row &row);
  // Rows for people to read as they stand: the text is what it says in words, the row in JSON.
  void row(const Row &row, const std::string &text);
  // A line of a script. In JSON a row with a "command".
  void command(std::string_view line);
  // Of a change: printed with --verbose, --json and --dry-run.
  void done(const Row &row, std::string_view what);
  // A text that is no row. In JSON a row with a "text".
  void text(std::string_view text);
  // Behind all rows, and in place of their number: the text for people, the row in JSON.
  void summary(const Row &row, const std::string &text) { summary_ = {row, text}; }
  // How many rows the filters let pass so far.
  uint64_t passed() const { return count_; }
  // An item that rows may have, with a value of its kind: what filters and sort may name even where
  // no row has it.
  void expect(const Row &row);
  // Whether anything does.
  bool asks_for_names() const { return !settings_.filters.empty() || !settings_.sort.empty(); }
  // Throws Fault when a filter or sort names what no row has, and when a filter's value is none of
  // what it names.
  void end();
  void fail(const Fault &fault, std::string_view file, uint64_t line);

 private:
  void show(const Row &row);
  std::string rate_of(const std::string &amount, std::string_view now);
  bool passes(const Row &row);
  bool passes(size_t filter, const Item &item);
  void note_names(const Row &row);
  void print(const Row &row);
  void print_columns();
  void choose_columns();
  std::vector<std::string> cells(const Row &row) const;
  void start_json();
  void check_names() const;

  Output *out_;
  Settings settings_;
  std::string command_;
  bool listing_ = false;
  bool json_started_ = false;
  uint64_t count_ = 0;
  // The amounts of a command, and when it had them.
  struct Amounts {
    std::chrono::steady_clock::time_point when = {};
    std::unordered_map<std::string, std::string> values = {};
  };
  Amounts amounts_;  // only for what they grow by
  Amounts amounts_before_;
  struct Summary {
    Row row;
    std::string text;
  };
  std::optional<Summary> summary_;
  std::vector<std::string> names_;  // of the rows seen, for the fault of a wrong name
  // What is known of a filter: whether rows have its name, and its value is one of theirs.
  struct FilterState {
    bool is_known = false;
    bool is_value = false;
    std::optional<Fault> refusal = {};
    std::string near = {};  // among the names that rows have
  };
  std::vector<FilterState> filter_states_;  // by filter
  bool sort_was_known_ = false;
  std::vector<Row> held_;  // to be sorted, or to measure the columns
  std::vector<TextColumn> columns_;
  std::set<std::string> key_names_;  // of columns whose absent value matches anything
};

// As people sort: runs of digits count as numbers.
bool sorts_before(std::string_view a, std::string_view b);

}  // namespace tesselctl
