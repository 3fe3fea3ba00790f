// Tables on the page of a report: occupancy, prefix lengths, entries.
#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/report/report_parts.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

uint64_t most_entries(const DeviceReport &device) {
  uint64_t most = 0;
  for (const TableReport &table : device.tables) most = std::max(most, table.entries);
  return most;
}

const TableReport *table_before(const Report &report, std::string_view name) {
  if (!report.before) return nullptr;
  for (const TableReport &table : report.before->tables) {
    if (table.name == name) return &table;
  }
  return nullptr;
}

std::string difference_text(uint64_t before, uint64_t after) {
  if (before == after) return {};
  return after > before ? "+" + grouped(after - before) : "-" + grouped(before - after);
}

void write_occupancy(Html &html, const TableReport &table, uint64_t most) {
  const bool limited = table.capacity != 0;
  const uint64_t whole = limited ? table.capacity : most;
  const std::string against = limited ? grouped(whole) : "the fullest";
  const bool is_fullest = !limited && table.entries == most && most != 0;
  const std::string text =
      is_fullest ? against : fmt::format("{} of {}", percent(table.entries, whole), against);
  write_bar(html, table.entries, whole, limited,
            fmt::format("{}, {}", counted(table.entries, "entry", "entries"), text));
  html.leaf("small", text);
}

void write_table_row(Html &html, const Report &report, const TableReport &table, uint64_t most) {
  html.open("th", {{"scope", "row"}});
  html.open("a", {{"href", "#entries-" + table.name}}).name(table.name).close();
  html.leaf("small", table.match).close();
  html.open("td", {{"class", "n"}}).text(grouped(table.entries));
  if (const TableReport *before = table_before(report, table.name)) {
    const std::string change = difference_text(before->entries, table.entries);
    if (!change.empty()) html.empty("br").leaf("small", change);
  }
  html.close().open("td");
  write_occupancy(html, table, most);
  html.close();
}

// "forward port=12"
void write_default(Html &html, const TableReport &table) {
  if (!table.default_entry) return;
  html.text(table.default_entry->action);
  if (table.default_entry->parameters.empty()) return;
  html.text(" ").leaf("span", table.default_entry->parameters, {{"class", "mono soft"}});
}

// Tables without entries answer with their default action alone.
void write_unused(Html &html, const std::vector<const TableReport *> &unused) {
  if (unused.empty()) return;
  html.open("details");
  html.leaf("summary", counted(unused.size(), "table", "tables") + " without entries");
  write_table(html, {"Table", "Default action"}, unused, [&](const TableReport *table) {
    open_row_name(html, table->name).close().open("td");
    write_default(html, *table);
    html.close();
  });
  html.close().line();
}

bool is_shown(const Report &report, const TableReport &table) {
  const TableReport *before = table_before(report, table.name);
  return table.in_use() || (before != nullptr && before->in_use());
}

}  // namespace

bool is_nearly_full(const TableReport &table) {
  return table.capacity != 0 && table.entries >= table.capacity - table.capacity / 10;
}

void write_tables(Html &html, const Report &report) {
  open_section(html, "tables", "Tables");
  const uint64_t most = most_entries(report.device);
  std::vector<const TableReport *> shown;
  std::vector<const TableReport *> unused;
  for (const TableReport &table : report.device.tables) {
    (is_shown(report, table) ? shown : unused).push_back(&table);
  }
  html.leaf("p",
            "Occupancy is that of the capacity, or against the fullest table where none is set.",
            {{"class", "soft"}});
  write_table(html, {"Table", ">Entries", "~Occupancy"}, shown,
              [&](const TableReport *table) { write_table_row(html, report, *table, most); });
  html.line();
  write_unused(html, unused);
  html.close().line();
}

// ---- Prefix lengths ----

namespace {

void write_columns(Html &html, const TableReport &table, uint64_t most, size_t top) {
  const size_t count = table.lengths.size();
  const std::string label =
      fmt::format("{} by prefix length, most of them /{}: {}",
                  counted(table.entries, "entry", "entries"), top, grouped(most));
  html.open("svg", {{"class", "chart"},
                    {"role", "img"},
                    {"aria-label", label},
                    {"viewBox", fmt::format("0 0 {} 100", count)},
                    {"preserveAspectRatio", "none"}});
  for (size_t length = 0; length < count; ++length) {
    const uint64_t entries = table.lengths[length];
    if (entries == 0) continue;
    // Whatever is there can be seen.
    const double height =
        std::max(2.0, 96.0 * static_cast<double>(entries) / static_cast<double>(most));
    html.open("rect", {{"class", "fill"},
                       {"x", fmt::format("{:.2f}", static_cast<double>(length) + 0.1)},
                       {"y", fmt::format("{:.2f}", 100.0 - height)},
                       {"width", "0.8"},
                       {"height", fmt::format("{:.2f}", height)}});
    html.leaf("title", fmt::format("/{}: {}", length, grouped(entries))).close();
  }
  html.close().open("div", {{"class", "axis"}, {"aria-hidden", "true"}});
  const size_t width = count - 1;
  for (size_t tick = 0; tick <= 4; ++tick) {
    const size_t length = width * tick / 4;
    html.leaf("span", fmt::format("/{}", length));
  }
  html.close().line();
}

void write_length_table(Html &html, const TableReport &table, uint64_t most) {
  html.open("details").leaf("summary", "In numbers");
  std::vector<size_t> lengths;
  for (size_t length = 0; length < table.lengths.size(); ++length) {
    if (table.lengths[length] != 0) lengths.push_back(length);
  }
  write_table(html, {"Length", ">Entries", ">Share", "~"}, lengths, [&](size_t length) {
    const uint64_t entries = table.lengths[length];
    const std::string share = percent(entries, table.entries);
    html.leaf("th", fmt::format("/{}", length), {{"scope", "row"}});
    write_number(html, grouped(entries));
    write_number(html, share).open("td");
    write_bar(html, entries, most, false, share);
    html.close();
  });
  html.close();
}

}  // namespace

void write_lengths(Html &html, const DeviceReport &device) {
  bool opened = false;
  for (const TableReport &table : device.tables) {
    if (table.lengths.empty()) continue;
    if (!opened) {
      open_section(html, "lengths", "Prefix lengths");
      html.open("div", {{"class", "cards"}});
      opened = true;
    }
    const auto longest = std::max_element(table.lengths.begin(), table.lengths.end());
    const auto top = static_cast<size_t>(longest - table.lengths.begin());
    html.open("figure", {{"class", "card"}}).open("figcaption");
    html.open("h3").name(table.name).close();
    html.leaf("p",
              fmt::format("{}, {} of them /{}", counted(table.entries, "entry", "entries"),
                          percent(*longest, table.entries), top),
              {{"class", "soft"}});
    html.close();
    write_columns(html, table, *longest, top);
    write_length_table(html, table, *longest);
    html.close().line();
  }
  if (opened) html.close().close().line();
}

// ---- Entries ----

namespace {

void write_actions(Html &html, const TableReport &table) {
  if (table.actions.empty()) return;
  write_table(html, {"Action", ">Entries", "~"}, table.actions, [&](const Tally &action) {
    open_row_name(html, action.name).close();
    write_number(html, grouped(action.count)).open("td");
    write_bar(html, action.count, table.entries, false,
              percent(action.count, table.entries) + " of the entries");
    html.close();
  });
  html.line();
}

void write_first_entries(Html &html, const TableReport &table) {
  if (table.first.empty()) return;
  const bool ordered = !table.first.front().priority.empty();
  const auto write_entry = [&](const EntryText &entry) {
    html.open("td", {{"class", "mono"}}).text(entry.key.empty() ? "any" : entry.key);
    if (!entry.extras.empty()) html.empty("br").leaf("span", entry.extras, {{"class", "soft"}});
    html.close();
    if (ordered) write_number(html, entry.priority);
    write_outcome(html, entry.action, entry.parameters);
  };
  if (ordered) {
    write_table(html, {"Match", ">Priority", "Action"}, table.first, write_entry);
  } else {
    write_table(html, {"Match", "Action"}, table.first, write_entry);
  }
  write_rest(html, table.entries, table.first.size());
}

}  // namespace

void write_entries(Html &html, const DeviceReport &device) {
  open_section(html, "entries", "Entries");
  bool any = false;
  for (const TableReport &table : device.tables) {
    if (!table.in_use()) continue;
    any = true;
    html.open("details").open("summary").name(table.name);
    html.leaf("span", counted(table.entries, "entry", "entries"), {{"class", "n"}}).close();
    // A link to something within opens what is folded.
    html.leaf("p", table.fields.empty() ? "No key" : "Key: " + table.fields,
              {{"class", "soft"}, {"id", "entries-" + table.name}});
    if (table.default_entry) {
      html.open("p").text("Default action: ");
      write_default(html, table);
      html.close();
    }
    write_actions(html, table);
    write_first_entries(html, table);
    html.close().line();
  }
  if (!any) html.leaf("p", "No table holds anything.", {{"class", "soft"}});
  html.close().line();
}

}  // namespace tesselctl
