// A picture of a device: what a person wants to see of it at a glance, collected through the
// library and written as one page of HTML. Members and groups go by the numbers that images give
// them, so that equal devices have equal pages whatever their handles.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/device/device.hpp"

namespace tesselctl {

// How often something of a name occurs.
struct Tally {
  std::string name;
  uint64_t count;
};

// An entry or a member in words: key "domain=1 address=10.0.0.0/8", extras "ttl=1000".
struct EntryText {
  std::string key;
  std::string priority;  // empty without one
  std::string action;    // or "group #1", "member #1"
  std::string parameters;
  std::string extras;
};

struct TableReport {
  std::string name;
  std::string match;  // "exact", "lpm", "ternary", "keyless"
  std::string fields;
  uint64_t entries = 0;
  uint64_t capacity = 0;  // 0 unlimited
  std::optional<EntryText> default_entry;
  std::vector<Tally> actions;     // most frequent first
  std::vector<uint64_t> lengths;  // entries by prefix length, 0 to the width; of lpm tables alone
  std::vector<EntryText> first;   // of the entries

  bool in_use() const { return entries != 0 || capacity != 0; }
};

// The entries that name a member or group: how many, and the first of them.
struct Users {
  uint64_t count = 0;
  std::vector<std::string> first;
};

struct MemberReport {
  uint32_t number = 0;
  std::string action;
  std::string parameters;
  bool active = true;
  Users users;
};

struct GroupReport {
  uint32_t number = 0;
  uint64_t size = 0;  // most members, 0 unlimited
  uint64_t members = 0;
  uint64_t active = 0;
  std::vector<MemberReport> first;  // of the members
  Users users;

  bool is_remarkable() const { return active == 0 || active != members || users.count == 0; }
};

struct ProfileReport {
  std::string name;
  std::string tables;  // whose entries name its members and groups
  uint64_t members = 0;
  uint64_t groups = 0;
  uint64_t loose = 0;     // members of no group
  uint32_t fallback = 0;  // number of the member that stands in for empty groups; 0 for none
  std::vector<GroupReport> first_groups;
  // Groups that nobody uses or that have members which are not active, without their members.
  uint64_t remarkable = 0;
  std::vector<GroupReport> first_remarkable;
  std::vector<MemberReport> first_loose;
};

struct CounterCell {
  std::string label;
  uint64_t packets = 0;
  uint64_t bytes = 0;
};

struct CounterReport {
  std::string name;
  std::string table;   // whose entries it counts; empty for one with cells of its own
  uint64_t cells = 0;  // that have counted
  uint64_t packets = 0;
  uint64_t bytes = 0;
  std::vector<CounterCell> top;  // most packets first
};

struct MeterCell {
  std::string label;
  uint32_t rates[2];   // committed, peak
  uint32_t bursts[2];  // committed, peak
};

struct MeterReport {
  std::string name;
  std::string table;
  bool counts_packets = false;  // rates in packets/s, else in kbit/s
  uint64_t cells = 0;           // that were set
  std::vector<MeterCell> first;
};

// What else was changed: a hash, a register, a value set.
struct OtherReport {
  std::string kind;
  std::string name;
  std::string text;
};

struct DeviceReport {
  std::string source;  // "device 0", or the name of an image
  uint32_t pipes = 0;
  std::vector<TableReport> tables;  // all of the program
  std::vector<ProfileReport> profiles;
  std::vector<CounterReport> counters;
  std::vector<MeterReport> meters;
  std::vector<OtherReport> others;
};

// What an object holds in one image and not in the other; a line of the form "- key=1 action=x".
struct ObjectChanges {
  std::string kind;  // "table"
  std::string name;
  uint64_t added = 0;
  uint64_t changed = 0;
  uint64_t removed = 0;
  struct Line {
    char sign;
    std::string text;
  };
  std::vector<Line> first;
};

// How many entries, groups, members and cells of an object a page shows, unless it is asked for
// others, and at most.
inline constexpr uint64_t kReportRows = 20;
inline constexpr uint64_t kMostReportRows = 10'000;

struct Report {
  std::string note;  // what the person who asked wants to have on the page
  DeviceReport device;
  // Of two images: the one before, and what leads from it to the other.
  std::optional<DeviceReport> before;
  std::vector<ObjectChanges> changes;
  // Of a server, which keeps it up to date.
  bool is_live = false;
};

// Reads the device. limit is the greatest number of entries, groups, members and cells that are
// kept of each object. Throws Fault.
DeviceReport collect_report(const Device &device, std::string source, size_t limit);

// The page: complete, and without anything from elsewhere; without scripts unless it is live.
std::string report_page(const Report &report);

}  // namespace tesselctl
