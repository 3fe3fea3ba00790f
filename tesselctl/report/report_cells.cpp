// Counters, meters and the rest on the page of a report.
#include <fmt/format.h>

#include <algorithm>

#include "tesselctl/report/report_parts.hpp"
#include "tesselctl/text/number.hpp"

namespace tesselctl {

namespace {

// "of fdb, 3 cells"
std::string cells_text(const std::string &table, uint64_t cells, std::string_view what) {
  const std::string text = counted(cells, "cell", "cells") + " " + std::string(what);
  return table.empty() ? text : fmt::format("{}, {}", table, text);
}

void write_counter(Html &html, const CounterReport &counter) {
  html.open("div", {{"class", "part"}}).open("h3").name(counter.name).close();
  html.leaf("p",
            fmt::format("{}: {}, {}",
                        cells_text(counter.table, counter.cells,
                                   counter.cells == 1 ? "has counted" : "have counted"),
                        counted(counter.packets, "packet", "packets"),
                        counted(counter.bytes, "byte", "bytes")),
            {{"class", "soft"}});
  write_table(html, {"Cell", ">Packets", ">Bytes", "~"}, counter.top, [&](const CounterCell &cell) {
    open_row_name(html, cell.label).close();
    write_number(html, grouped(cell.packets));
    write_number(html, grouped(cell.bytes)).open("td");
    write_bar(html, cell.packets, counter.top.front().packets, false,
              percent(cell.packets, counter.packets) + " of the packets");
    html.close();
  });
  write_rest(html, counter.cells, counter.top.size());
  html.close().line();
}

std::string rate_text(const MeterReport &meter, uint32_t rate, uint32_t burst) {
  const char *unit = meter.counts_packets ? "packets" : "kbit";
  return fmt::format("{} {}/s, burst {} {}", grouped(rate), unit, grouped(burst), unit);
}

void write_meter(Html &html, const MeterReport &meter) {
  html.open("div", {{"class", "part"}}).open("h3").name(meter.name).close();
  html.leaf("p", cells_text(meter.table, meter.cells, meter.cells == 1 ? "is set" : "are set"),
            {{"class", "soft"}});
  write_table(html, {"Cell", "Committed", "Peak"}, meter.first, [&](const MeterCell &cell) {
    html.leaf("th", cell.label, {{"scope", "row"}});
    for (size_t i = 0; i < 2; ++i) {
      html.leaf("td", rate_text(meter, cell.rates[i], cell.bursts[i]));
    }
  });
  write_rest(html, meter.cells, meter.first.size());
  html.close().line();
}

}  // namespace

void write_counters(Html &html, const DeviceReport &device) {
  if (device.counters.empty()) return;
  open_section(html, "counters", "Counters");
  for (const CounterReport &counter : device.counters) write_counter(html, counter);
  html.close().line();
}

void write_meters(Html &html, const DeviceReport &device) {
  if (device.meters.empty()) return;
  open_section(html, "meters", "Meters");
  for (const MeterReport &meter : device.meters) write_meter(html, meter);
  html.close().line();
}

void write_others(Html &html, const DeviceReport &device) {
  if (device.others.empty()) return;
  open_section(html, "others", "Hashes, registers and value sets");
  write_table(html, {"Object", "Holds"}, device.others, [&](const OtherReport &other) {
    open_row_name(html, other.name).empty("br").leaf("small", other.kind).close();
    html.leaf("td", other.text, {{"class", "mono"}});
  });
  html.close().line();
}

}  // namespace tesselctl
