// The page of a report: its frame, what stands out, and what differs.
#include <fmt/format.h>

#include <algorithm>
#include <chrono>

#include "tesselctl/program/library.hpp"
#include "tesselctl/report/live_page.hpp"
#include "tesselctl/report/report_parts.hpp"
#include "tesselctl/report/report_style.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

void open_section(Html &html, std::string_view id, std::string_view title) {
  const std::string heading = std::string(id) + "-title";
  html.open("section", {{"id", id}, {"aria-labelledby", heading}});
  html.leaf("h2", title, {{"id", heading}}).line();
}

void write_head(Html &html, std::initializer_list<std::string_view> names) {
  html.open("thead").open("tr");
  for (const std::string_view name : names) {
    const bool number = name.starts_with('>');
    const bool bar = name.starts_with('~');
    const std::string_view shown = number || bar ? name.substr(1) : name;
    if (bar && shown.empty()) {
      html.leaf("td", "", {{"class", "wide"}});
    } else {
      html.leaf("th", shown, {{"scope", "col"}, {"class", number ? "n" : bar ? "wide" : ""}});
    }
  }
  html.close().close();
}

void write_bar(Html &html, uint64_t count, uint64_t whole, bool track, const std::string &label) {
  const double share = whole == 0 ? 0 : static_cast<double>(count) / static_cast<double>(whole);
  // Whatever is there can be seen.
  const double width = count == 0 ? 0 : std::clamp(share * 100, 1.0, 100.0);
  html.open("svg", {{"class", "bar"},
                    {"role", "img"},
                    {"aria-label", label},
                    {"viewBox", "0 0 100 1"},
                    {"preserveAspectRatio", "none"}});
  if (track) html.empty("rect", {{"class", "track"}, {"width", "100"}, {"height", "1"}});
  html.empty("rect", {{"class", track && share >= 0.9 ? "full" : "fill"},
                      {"width", fmt::format("{:.2f}", width)},
                      {"height", "1"}});
  html.close();
}

void write_outcome(Html &html, const std::string &action, const std::string &parameters) {
  html.open("td").name(action);
  if (!parameters.empty()) html.empty("br").leaf("span", parameters, {{"class", "mono soft"}});
  html.close();
}

std::string counted(uint64_t count, std::string_view one, std::string_view plural) {
  return fmt::format("{} {}", grouped(count), count == 1 ? one : plural);
}

std::string percent(uint64_t count, uint64_t whole) {
  if (count == 0 || whole == 0) return "0 %";
  const double share = 100.0 * static_cast<double>(count) / static_cast<double>(whole);
  if (share < 1) return "< 1 %";
  if (count < whole && share > 99) return "> 99 %";
  return fmt::format("{:.0f} %", share);
}

void write_rest(Html &html, uint64_t all, size_t shown) {
  if (all <= shown) return;
  html.leaf("p", fmt::format("and {} more", grouped(all - shown)), {{"class", "soft"}});
}

std::string users_text(const Users &users) {
  if (users.count == 0) return "no entry";
  std::string text;
  for (const std::string &user : users.first) text += (text.empty() ? "" : "; ") + user;
  if (users.count > users.first.size()) {
    text += fmt::format(" and {}",
                        counted(users.count - users.first.size(), "more entry", "more entries"));
  }
  return text;
}

namespace {

// ---- At a glance ----

void write_tile(Html &html, const std::string &number, std::string_view what,
                const std::string &more) {
  html.open("div").leaf("dt", what).leaf("dd", number, {{"class", "big"}}).leaf("dd", more).close();
}

void write_glance(Html &html, const Report &report) {
  const DeviceReport &device = report.device;
  uint64_t used = 0, entries = 0, groups = 0, members = 0, counting = 0, metered = 0;
  for (const TableReport &table : device.tables) {
    used += table.in_use() ? 1 : 0;
    entries += table.entries;
  }
  for (const ProfileReport &profile : device.profiles) {
    groups += profile.groups;
    members += profile.members;
  }
  for (const CounterReport &counter : device.counters) counting += counter.cells;
  for (const MeterReport &meter : device.meters) metered += meter.cells;
  open_section(html, "glance", "At a glance");
  html.open("dl", {{"class", "tiles"}});
  write_tile(html, grouped(entries), entries == 1 ? "entry" : "entries",
             fmt::format("in {} of {} tables", used, device.tables.size()));
  write_tile(html, grouped(groups), groups == 1 ? "group" : "groups",
             counted(members, "member", "members"));
  write_tile(html, grouped(counting), "cells have counted",
             counted(device.counters.size(), "counter", "counters"));
  write_tile(html, grouped(metered), "cells are metered",
             counted(device.meters.size(), "meter", "meters"));
  if (report.before) {
    uint64_t changes = 0;
    for (const ObjectChanges &object : report.changes) {
      changes += object.added + object.changed + object.removed;
    }
    write_tile(html, grouped(changes), changes == 1 ? "difference" : "differences",
               "in " + counted(report.changes.size(), "object", "objects"));
  }
  html.close().close().line();
}

// What somebody who brings up a switch wants to see first.
std::vector<std::string> remarks(const DeviceReport &device) {
  std::vector<std::string> found;
  for (const TableReport &table : device.tables) {
    if (!is_nearly_full(table)) continue;
    found.push_back(fmt::format("{} is {} full: {} of {} entries", table.name,
                                percent(table.entries, table.capacity), grouped(table.entries),
                                grouped(table.capacity)));
  }
  for (const ProfileReport &profile : device.profiles) {
    for (const GroupReport &group : profile.first_remarkable) {
      const std::string name = fmt::format("group #{} of {}", group.number, profile.name);
      const uint64_t idle = group.members - group.active;
      if (group.active == 0) {
        found.push_back(name + " has no active member");
      } else if (idle != 0) {
        found.push_back(fmt::format("{} has {} of {} inactive", name, grouped(idle),
                                    counted(group.members, "member", "members")));
      }
      if (group.users.count == 0) found.push_back(name + " is used by no entry");
    }
    const uint64_t rest = profile.remarkable - profile.first_remarkable.size();
    if (rest != 0) {
      found.push_back(fmt::format("{} of {} like these", counted(rest, "more group", "more groups"),
                                  profile.name));
    }
  }
  return found;
}

void write_remarks(Html &html, const DeviceReport &device) {
  const std::vector<std::string> found = remarks(device);
  if (found.empty()) return;
  html.open("section", {{"class", "alert"}, {"aria-labelledby", "remarks-title"}});
  html.leaf("h2", "Worth a look", {{"id", "remarks-title"}}).open("ul");
  for (const std::string &remark : found) html.leaf("li", remark);
  html.close().close().line();
}

// ---- Frame ----

void write_navigation(Html &html, const Report &report) {
  const DeviceReport &device = report.device;
  html.open("nav", {{"aria-label", "Sections"}});
  const auto link = [&](bool present, const char *target, const char *name) {
    if (present) html.leaf("a", name, {{"href", target}});
  };
  const auto holds_any = [](const auto &rows, auto holds) {
    return std::any_of(rows.begin(), rows.end(), holds);
  };
  link(report.before.has_value(), "#changes", "Differences");
  link(true, "#tables", "Tables");
  link(holds_any(device.tables, [](const auto &table) { return !table.lengths.empty(); }),
       "#lengths", "Prefix lengths");
  link(holds_any(device.profiles, [](const auto &profile) { return profile.members != 0; }),
       "#groups", "Groups");
  link(!device.counters.empty(), "#counters", "Counters");
  link(!device.meters.empty(), "#meters", "Meters");
  link(!device.others.empty(), "#others", "Hashes and registers");
  link(true, "#entries", "Entries");
  link(report.is_live, "/metrics", "Metrics");
  link(report.is_live, "/json/tables", "JSON");
  html.close().line();
}

std::string title_of(const Report &report) {
  if (!report.before) return report.device.source;
  return report.before->source + " → " + report.device.source;
}

void write_header(Html &html, const Report &report) {
  html.open("header").leaf("p", program().name, {{"class", "kicker"}});
  html.leaf("h1", title_of(report));
  std::string text = counted(report.device.pipes, "pipe", "pipes");
  if (report.before) text += fmt::format("; the contents are those of {}", report.device.source);
  html.leaf("p", text, {{"class", "soft"}});
  if (!report.note.empty()) html.leaf("p", report.note);
  html.close().line();
}

void write_page_head(Html &html, const Report &report) {
  html.trusted("<!doctype html>\n").open("html", {{"lang", "en"}}).open("head").line();
  html.empty("meta", {{"charset", "utf-8"}}).line();
  html.empty("meta", {{"name", "viewport"}, {"content", "width=device-width, initial-scale=1"}});
  html.empty("meta", {{"name", "color-scheme"}, {"content", "light dark"}}).line();
  html.leaf("title", fmt::format("{}: {}", program().name, title_of(report))).line();
  if (report.is_live) {
    html.empty("link", {{"rel", "stylesheet"}, {"href", kLiveStylePath}});
    html.leaf("script", "", {{"src", kLiveScriptPath}, {"defer", ""}});
  } else {
    // The browser itself sees to it that the page fetches and runs nothing.
    html.empty("meta", {{"http-equiv", "Content-Security-Policy"},
                        {"content", "default-src 'none'; style-src 'unsafe-inline'"}});
    html.open("style").trusted(kReportStyle).close();
  }
  html.close().line();
}

// What the script of a live page works by, which shows it.
void write_tools(Html &html) {
  html.open("div", {{"id", "tools"}, {"role", "search"}, {"hidden", ""}});
  html.open("label").text("Search ");
  html.empty("input", {{"id", "search"}, {"type", "search"}, {"autocomplete", "off"}});
  html.close().line().open("label").text("Refresh ").open("select", {{"id", "pause"}});
  html.leaf("option", "every second", {{"value", "1"}});
  html.leaf("option", "every 5 seconds", {{"value", "5"}, {"selected", ""}});
  html.leaf("option", "every minute", {{"value", "60"}}).leaf("option", "never", {{"value", "0"}});
  html.close().close().line();
  html.leaf("button", "Mark this moment", {{"id", "mark"}, {"type", "button"}}).line();
  html.open("label").empty("input", {{"id", "only"}, {"type", "checkbox"}, {"disabled", ""}});
  html.text(" Only what changed since").close().line();
  html.open("p", {{"class", "soft"}}).leaf("span", "", {{"id", "clock"}}).text(" ");
  html.leaf("span", "", {{"id", "news"}, {"role", "status"}}).close().close().line();
}

void open_main(Html &html, const Report &report) {
  if (!report.is_live) {
    html.open("main").line();
    return;
  }
  using std::chrono::milliseconds;
  const auto time = std::chrono::floor<milliseconds>(std::chrono::steady_clock::now());
  write_tools(html);
  html.open("main", {{"data-time", std::to_string(time.time_since_epoch().count())}}).line();
}

}  // namespace

void write_changes(Html &html, const Report &report) {
  constexpr size_t kUnfoldedLines = 12;
  if (!report.before) return;
  open_section(html, "changes", "Differences");
  html.leaf("p",
            report.changes.empty() ? "The images hold the same."
                                   : fmt::format("Members and groups go by their numbers in {}.",
                                                 report.before->source),
            {{"class", "soft"}});
  for (const ObjectChanges &object : report.changes) {
    const bool few = object.first.size() <= kUnfoldedLines;
    if (few) {
      html.open("details", {{"open", ""}});
    } else {
      html.open("details");
    }
    html.open("summary").name(object.name);
    html.text(" ").leaf("small", object.kind);
    html.leaf("span",
              fmt::format("{} added, {} changed, {} removed", grouped(object.added),
                          grouped(object.changed), grouped(object.removed)),
              {{"class", "n"}});
    html.close().open("ul", {{"class", "lines mono"}}).line();
    for (const ObjectChanges::Line &line : object.first) {
      html.open("li", {{"class", line.sign == '+' ? "on" : "off"}});
      html.leaf("b", std::string(1, line.sign)).text(line.text).close().line();
    }
    html.close();
    write_rest(html, object.added + object.removed + 2 * object.changed, object.first.size());
    html.close().line();
  }
  html.close().line();
}

std::string report_page(const Report &report) {
  Html html;
  write_page_head(html, report);
  html.open("body").line();
  write_header(html, report);
  write_navigation(html, report);
  open_main(html, report);
  write_glance(html, report);
  write_remarks(html, report.device);
  write_changes(html, report);
  write_tables(html, report);
  write_lengths(html, report.device);
  write_profiles(html, report.device);
  write_counters(html, report.device);
  write_meters(html, report.device);
  write_others(html, report.device);
  write_entries(html, report.device);
  return html.take() + "\n";
}

}  // namespace tesselctl
