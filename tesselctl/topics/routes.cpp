// Bulk loading of route files into the longest-prefix tables, with a check that all is there.
#include <unistd.h>

#include <algorithm>
#include <cstring>
#include <optional>

#include "soft_sdk.h"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/program/status.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/files.hpp"
#include "tesselctl/text/interrupt.hpp"
#include "tesselctl/text/progress.hpp"
#include "tesselctl/text/route_file.hpp"
#include "tesselctl/topics/bulk_load.hpp"

namespace tesselctl {

namespace {

struct RoutesOptions {
  struct File {
    std::string name;  // as it was given
    std::string path;
  };
  std::vector<File> files;
  uint64_t vrf = 0;       // of the fields beside the prefix
  uint16_t nexthop = 1;   // of lines without one
  bool replace = false;   // modify the entries that are there
  bool progress = false;  // show it on standard error
};

constexpr size_t kBatch = 4096;

struct LoadedFile {
  std::string name;
  RouteFile routes;
};

// The table of the program's routes whose prefixes are such addresses, or null.
const bindings::Record *table_for(Notation address) {
  const bindings::Routes &routes = binding().routes;
  for (size_t i = 0; i < routes.table_count; ++i) {
    const bindings::Record *table = find_record(tables(), routes.tables[i]);
    for (const Field &field : table->shown()) {
      if (field.match == Match::lpm && field.notation == address) return table;
    }
  }
  return nullptr;
}

const bindings::Record &route_action() { return action_record(binding().routes.action); }

// Adds and finds the entries of one table. The functions are looked up once; for each route only
// the members of the records change.
class RouteTable {
 public:
  RouteTable(const Device &device, const char *table, const RoutesOptions &options)
      : device_(device),
        info_(resolve_table({table, 0})),
        key_(info_.record->size),
        parameters_(route_action().size),
        nexthop_(route_action().shown().front()),
        add_(device.prepare("table_add", table, route_action().name)),
        find_(device.prepare("match_spec_to_entry_hdl", table)),
        modify_(device.prepare("table_modify", table, route_action().name)),
        replace_(options.replace) {
    for (const Field &field : info_.record->shown()) {
      if (field.match == Match::lpm) {
        address_ = field.parts[0]->offset;
        length_ = field.parts[0][1].offset;
      } else {
        store_value(field, {options.vrf, low_ones(field.width)}, key_.data());
      }
    }
    add_.set("match_spec", key_.data()).set("action_spec", parameters_.data());
    add_.set_if_taken("ttl", uint64_t{0}).set("entry", &entry_);
    find_.set("match_spec", key_.data()).set("entry", &entry_);
    modify_.set("action_spec", parameters_.data());
    if (info_.ages()) set_ttl_.emplace(device.prepare("set_ttl", table)).set("ttl", uint64_t{0});
  }

  // The status; the handle is entry() then. was_there: whether the entry is one that was modified.
  template <class Route>
  uint32_t add(const Route &route, bool &was_there) {
    write_key(route);
    store_value(nexthop_, {route.nexthop, low_ones(nexthop_.width)}, parameters_.data());
    const auto status = static_cast<uint32_t>(add_.run());
    was_there = status == BF_ALREADY_EXISTS;
    return was_there && replace_ ? modify() : status;
  }
  template <class Route>
  uint32_t find(const Route &route) {
    write_key(route);
    return static_cast<uint32_t>(find_.run());
  }
  p4_pd_entry_handle_t entry() const { return entry_; }
  const char *name() const { return info_.name(); }
  uint64_t memory() const { return memory_of(device_.id(), info_.record->number); }

 private:
  // The entry of the key, as add makes it.
  uint32_t modify() {
    uint64_t status = find_.run();
    if (status == BF_SUCCESS) status = modify_.set("entry", uint64_t{entry_}).run();
    if (status == BF_SUCCESS && set_ttl_) status = set_ttl_->set("entry", uint64_t{entry_}).run();
    return static_cast<uint32_t>(status);
  }

  template <class Route>
  void write_key(const Route &route) {
    memcpy(key_.data() + address_, &route.address, sizeof route.address);
    const uint16_t length = route.length;
    memcpy(key_.data() + length_, &length, sizeof length);
  }

  const Device &device_;
  TableInfo info_;
  std::vector<uint8_t> key_;
  std::vector<uint8_t> parameters_;
  const Field &nexthop_;
  size_t address_ = 0;  // offsets in the key
  size_t length_ = 0;
  Call add_;
  Call find_;
  Call modify_;
  std::optional<Call> set_ttl_;
  bool replace_;
  p4_pd_entry_handle_t entry_ = 0;
};

// The load of all files of one family.
template <class Route>
class RouteLoad {
 public:
  RouteLoad(const Device &device, const char *table, const RoutesOptions &options,
            std::vector<Route> RouteFile::*routes, const std::vector<LoadedFile> &files,
            FaultReport &faults)
      : table_(device, table, options),
        replace_(options.replace),
        progress_(options.progress),
        routes_(routes),
        files_(files),
        faults_(faults) {
    for (const LoadedFile &file : files) total_ += (file.routes.*routes).size();
  }

  void add_all() {
    handles_.resize(total_);
    const uint64_t before = table_.memory();
    Progress progress(std::string("adding to ") + table_.name(), total_, progress_);
    const StopWatch watch;
    for_each(progress, [&](const LoadedFile &file, const Route &route, size_t at) {
      bool was_there = false;
      const uint32_t status = table_.add(route, was_there);
      if (status == BF_SUCCESS) {
        handles_[at] = table_.entry();
        ++by_length_[route.length];
        ++added_;
        if (was_there) ++modified_;
      } else {
        faults_.add(file.name, route.line, 0, status_text(status));
      }
    });
    add_time_ = watch.cpu_seconds();
    bytes_ = table_.memory() - before;
  }

  void verify_all() {
    Progress progress(std::string("verifying ") + table_.name(), total_, progress_);
    const StopWatch watch;
    for_each(progress, [&](const LoadedFile &file, const Route &route, size_t at) {
      const uint32_t status = table_.find(route);
      if (status == BF_SUCCESS && table_.entry() == handles_[at]) {
        ++found_;
      } else if (status != BF_SUCCESS) {
        faults_.add(file.name, route.line, 0, "not found again: " + status_text(status));
      } else if (handles_[at] != 0) {
        faults_.add(file.name, route.line, 0, "another entry was found for this prefix");
      }
    });
    verify_time_ = watch.cpu_seconds();
  }

  void print(Output &out) const {
    out.line("{}", out.styled(Style::heading, table_.name()));
    print_step(out, replace_ ? "replaced" : "added", {added_, total_, add_time_});
    if (replace_) out.line("  modified  {:>10} of them, added the others", grouped(modified_));
    print_step(out, "verified", {found_, total_, verify_time_});
    print_memory(out, bytes_, added_);
    Listing listing({{"  length"}, {"entries", true}});
    for (size_t length = 0; length < std::size(by_length_); ++length) {
      if (by_length_[length] == 0) continue;
      listing.add({fmt::format("  /{}", length), grouped(by_length_[length])});
    }
    listing.print(out);
  }

 private:
  template <class Visit>
  void for_each(Progress &progress, Visit visit) {
    size_t at = 0;
    for (const LoadedFile &file : files_) {
      for (const Route &route : file.routes.*routes_) {
        visit(file, route, at);
        if (++at % kBatch != 0) continue;
        progress.update(at);
        check_interrupt();
      }
    }
  }

  RouteTable table_;
  bool replace_;
  bool progress_;
  std::vector<Route> RouteFile::*routes_;
  const std::vector<LoadedFile> &files_;
  FaultReport &faults_;
  std::vector<p4_pd_entry_handle_t> handles_;
  size_t total_ = 0;
  uint64_t added_ = 0;
  uint64_t modified_ = 0;  // of them
  uint64_t found_ = 0;
  uint64_t bytes_ = 0;
  uint64_t by_length_[129] = {};
  double add_time_ = 0;  // seconds
  double verify_time_ = 0;
};

template <class Route>
void load(const Device &device, Notation address, std::vector<Route> RouteFile::*routes,
          const RoutesOptions &options, const std::vector<LoadedFile> &files, FaultReport &faults,
          Output &out) {
  const auto has_any = [&](const LoadedFile &file) { return !(file.routes.*routes).empty(); };
  const auto first = std::find_if(files.begin(), files.end(), has_any);
  if (first == files.end()) return;
  const bindings::Record *table = table_for(address);
  if (table == nullptr) {
    return faults.add(first->name, (first->routes.*routes).front().line, 0,
                      "the program has no table for such routes");
  }
  RouteLoad<Route> load(device, table->name, options, routes, files, faults);
  load.add_all();
  load.verify_all();
  load.print(out);
}

// The greatest values that the program's route tables take.
struct RouteLimits {
  uint64_t vrf = 0;
  uint16_t nexthop = 0;
};

// Throws Fault when it has none.
RouteLimits route_limits() {
  RouteLimits limits;
  limits.nexthop = static_cast<uint16_t>(
      std::min<uint64_t>(0xffff, low_ones(route_action().shown().front().width).low));
  limits.vrf = ~uint64_t{0};
  for (const Notation address : {Notation::ipv4, Notation::ipv6}) {
    const bindings::Record *table = table_for(address);
    if (table == nullptr) continue;
    for (const Field &field : table->shown()) {
      if (field.match != Match::lpm) limits.vrf = std::min(limits.vrf, low_ones(field.width).low);
    }
  }
  return limits;
}

// Adds every route of the files, finds each again by its prefix, and prints counts, rates, memory
// and the entries of each prefix length. Faults of lines and of entries go to errors. Returns
// whether all went well. Throws Fault when a file cannot be read.
bool load_routes(const Device &device, const RoutesOptions &options, Output &out, Output &errors) {
  // Each kind has lines of its own to show, so that neither hides the other.
  FaultReport parse_faults(errors);
  FaultReport faults(errors);
  const uint16_t limit = route_limits().nexthop;
  std::vector<LoadedFile> files;
  for (const RoutesOptions::File &file : options.files) {
    const std::string &name = file.name;
    const Clock::time_point start = Clock::now();
    FileLines lines(file.path);
    files.push_back(
        {name, parse_routes(lines.source(), options.nexthop, limit, [&](const RouteFault &fault) {
           parse_faults.add(name, fault.line, fault.column, fault.message);
         })});
    const RouteFile &routes = files.back().routes;
    out.line("{}: {} IPv4 and {} IPv6 prefixes, read in {:.3f} s", name,
             grouped(routes.ipv4.size()), grouped(routes.ipv6.size()), seconds_since(start));
  }
  parse_faults.finish();
  out.flush();
  load(device, Notation::ipv4, &RouteFile::ipv4, options, files, faults, out);
  load(device, Notation::ipv6, &RouteFile::ipv6, options, files, faults, out);
  const uint64_t count = parse_faults.count() + faults.count();
  out.line("{} error{}", grouped(count), count == 1 ? "" : "s");
  out.flush();
  faults.finish();
  return count == 0;
}

void routes(Context &context, const Invocation &invocation) {
  RoutesOptions options;
  size_t files = 0;
  for (const Word &word : invocation.arguments) {
    if (word.text.find('=') != std::string_view::npos) break;
    options.files.push_back({std::string(word.text), context.path(word)});
    ++files;
  }
  need_argument(invocation, 0, "the name of a file");
  if (files == 0) throw Fault(invocation.arguments[0], "the name of a file should stand here");
  const Options words(invocation, files, {"vrf", "nexthop"});
  const RouteLimits limits = route_limits();
  options.vrf = words.number_or("vrf", limits.vrf, 0);
  options.nexthop = static_cast<uint16_t>(words.number_or("nexthop", limits.nexthop, 1));
  options.replace = context.settings.replace;
  options.progress = context.out.is_stream() && isatty(STDERR_FILENO) != 0;
  Output report;
  Output errors;
  const bool good = load_routes(context.device, options, report, errors);
  context.results.text(report.take());
  const std::string faults = errors.take();
  if (!good) throw Fault("not every route could be loaded:\n" + faults);
}

constexpr Command kCommands[] = {
    {"routes", "FILE... [vrf=N] [nexthop=N]",
     "loads files of lines 'prefix[ nexthop]', plain or .xz, and finds every route again", routes,
     Kind::changes, "--replace"},
};

// A process without a program lists all commands.
bool has_routes() { return !has_program() || binding().routes.action != nullptr; }

}  // namespace

extern const Topic kRoutesTopic = {
    .title = "Routes", .commands = kCommands, .is_there = has_routes};

}  // namespace tesselctl
