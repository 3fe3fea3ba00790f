// The parts of the page of a report; each writes sections, or nothing where there is nothing to
// show.
#pragma once

#include "tesselctl/report/report.hpp"
#include "tesselctl/text/html.hpp"

namespace tesselctl {

void write_tables(Html &html, const Report &report);
void write_lengths(Html &html, const DeviceReport &device);
void write_entries(Html &html, const DeviceReport &device);
void write_profiles(Html &html, const DeviceReport &device);
void write_counters(Html &html, const DeviceReport &device);
void write_meters(Html &html, const DeviceReport &device);
void write_others(Html &html, const DeviceReport &device);
void write_changes(Html &html, const Report &report);

// ---- What several parts are made of ----

// Opens a section with its heading.
void open_section(Html &html, std::string_view id, std::string_view title);
// The first row of a table; a name that begins with '>' stands over numbers, one with '~' over
// bars.
void write_head(Html &html, std::initializer_list<std::string_view> names);
// A table with a head and a row for each of those; write puts the cells into a row.
template <class Rows, class Write>
void write_table(Html &html, std::initializer_list<std::string_view> names, const Rows &rows,
                 Write write) {
  html.open("table");
  write_head(html, names);
  html.open("tbody").line();
  for (const auto &row : rows) {
    html.open("tr");
    write(row);
    html.close().line();
  }
  html.close().close();
}
// Cells of such rows: the name that heads one, opened for more to stand below it, and a number.
inline Html &open_row_name(Html &html, std::string_view name) {
  return html.open("th", {{"scope", "row"}}).name(name);
}
inline Html &write_number(Html &html, const std::string &number) {
  return html.leaf("td", number, {{"class", "n"}});
}
// What an entry or member does: an action and its parameters below it.
void write_outcome(Html &html, const std::string &action, const std::string &parameters);
// A bar of count against whole. With a track it shows what is left of a capacity. label says the
// same in words.
void write_bar(Html &html, uint64_t count, uint64_t whole, bool track, const std::string &label);
// "1 entry", "1,234 entries"; plural stands for all but one.
std::string counted(uint64_t count, std::string_view one, std::string_view plural);
// "25 %"; "< 1 %" for little, and never 100 % for less than all.
std::string percent(uint64_t count, uint64_t whole);
// "and 12 more", where shown are not all.
void write_rest(Html &html, uint64_t all, size_t shown);
// "fdb domain=7 and 2 more entries"; "no entry".
std::string users_text(const Users &users);
// A table that is nearly full.
bool is_nearly_full(const TableReport &table);

}  // namespace tesselctl
