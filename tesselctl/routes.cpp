#include "tesselctl/routes.hpp"

#include <cstring>

#include "soft_sdk.h"
#include "tesselctl/entry_line.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/interrupt.hpp"
#include "tesselctl/progress.hpp"
#include "tesselctl/route_file.hpp"
#include "tesselctl/status.hpp"

namespace tesselctl {

namespace {

constexpr const char *kAction = "setNextHop";
constexpr const char *kNexthop = "nextHop";
// Faults beyond these are counted and not printed.
constexpr uint64_t kFaultsShown = 10;
constexpr size_t kBatch = 4096;

struct LoadedFile {
  std::string name;
  RouteFile routes;
};

class FaultReport {
 public:
  explicit FaultReport(Output &errors) : errors_(errors) {}
  void add(const std::string &file, uint64_t line, size_t column, const std::string &message) {
    if (++count_ > kFaultsShown) return;
    const std::string place = column == 0 ? "" : ":" + std::to_string(column);
    errors_.line("{}:{}{}: {}", file, line, place, message);
  }
  void finish() {
    if (count_ > kFaultsShown) errors_.line("and {} more of them", grouped(count_ - kFaultsShown));
    errors_.flush();
  }
  uint64_t count() const { return count_; }

 private:
  Output &errors_;
  uint64_t count_ = 0;
};

// Adds and finds the entries of one table. The functions are looked up once; for each route only
// the members of the records change.
class RouteTable {
 public:
  RouteTable(const Device &device, const char *table, uint8_t vrf)
      : device_(device),
        info_(resolve_table({table, 0})),
        key_(info_.record->size),
        parameters_(action_shape(kAction).record().size),
        nexthop_(action_shape(kAction).find({kNexthop, 0}, kAction)),
        add_(device.prepare("table_add", table, kAction)),
        find_(device.prepare("match_spec_to_entry_hdl", table)) {
    for (const Field &field : info_.shape().fields()) {
      if (field.match == Match::lpm) {
        address_ = field.parts[0];
      } else {
        store_value(field, {vrf, low_ones(field.width)}, key_.data());
      }
    }
    add_.set("match_spec", key_.data()).set("action_spec", parameters_.data());
    add_.set("ttl", uint64_t{0}).set("entry", &entry_);
    find_.set("match_spec", key_.data()).set("entry", &entry_);
  }

  // The status; the handle is entry() then.
  template <class Route>
  uint32_t add(const Route &route) {
    write_key(route);
    store_value(nexthop_, {route.nexthop, low_ones(nexthop_.width)}, parameters_.data());
    return static_cast<uint32_t>(add_.run());
  }
  template <class Route>
  uint32_t find(const Route &route) {
    write_key(route);
    return static_cast<uint32_t>(find_.run());
  }
  p4_pd_entry_handle_t entry() const { return entry_; }
  const char *name() const { return info_.name(); }
  uint64_t memory() const {
    uint64_t bytes = 0;
    soft_memory_bytes(device_.id(), info_.record->number, &bytes);
    return bytes;
  }

 private:
  template <class Route>
  void write_key(const Route &route) {
    memcpy(key_.data() + address_.value->offset, &route.address, sizeof route.address);
    const uint16_t length = route.length;
    memcpy(key_.data() + address_.companion->offset, &length, sizeof length);
  }

  const Device &device_;
  TableInfo info_;
  std::vector<uint8_t> key_;
  std::vector<uint8_t> parameters_;
  const Field &nexthop_;
  Part address_;
  Call add_;
  Call find_;
  p4_pd_entry_handle_t entry_ = 0;
};

// The load of all files of one family.
template <class Route>
class RouteLoad {
 public:
  RouteLoad(const Device &device, const char *table, const RoutesOptions &options,
            std::vector<Route> RouteFile::*routes, const std::vector<LoadedFile> &files,
            FaultReport &faults)
      : table_(device, table, options.vrf),
        progress_(options.progress),
        routes_(routes),
        files_(files),
        faults_(faults) {
    for (const LoadedFile &file : files) total_ += (file.routes.*routes).size();
  }

  uint64_t total() const { return total_; }

  void add_all() {
    handles_.resize(total_);
    const uint64_t before = table_.memory();
    Progress progress(std::string("adding to ") + table_.name(), total_, progress_);
    const StopWatch watch;
    for_each(progress, [&](const LoadedFile &file, const Route &route, size_t at) {
      const uint32_t status = table_.add(route);
      if (status == BF_SUCCESS) {
        handles_[at] = table_.entry();
        ++by_length_[route.length];
        ++added_;
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
    print_step(out, "added", added_, add_time_);
    print_step(out, "verified", found_, verify_time_);
    const double each = added_ == 0 ? 0 : static_cast<double>(bytes_) / static_cast<double>(added_);
    out.line("  memory    {:>10} bytes, {:.1f} an entry", grouped(bytes_), each);
    Listing listing({"  length", ">entries"});
    for (size_t length = 0; length < std::size(by_length_); ++length) {
      if (by_length_[length] == 0) continue;
      listing.add({fmt::format("  /{}", length), grouped(by_length_[length])});
    }
    listing.print(out);
  }

 private:
  // Of the thread: what else the machine does is none of the library's time.
  void print_step(Output &out, const char *step, uint64_t count, double cpu_seconds) const {
    const double rate = cpu_seconds > 0 ? static_cast<double>(count) / cpu_seconds : 0;
    out.line("  {:<9} {:>10} of {} in {:.3f} s of CPU time, {} a second", step, grouped(count),
             grouped(total_), cpu_seconds, grouped(static_cast<uint64_t>(rate)));
  }

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
  bool progress_;
  std::vector<Route> RouteFile::*routes_;
  const std::vector<LoadedFile> &files_;
  FaultReport &faults_;
  std::vector<p4_pd_entry_handle_t> handles_;
  size_t total_ = 0;
  uint64_t added_ = 0;
  uint64_t found_ = 0;
  uint64_t bytes_ = 0;
  uint64_t by_length_[129] = {};
  double add_time_ = 0;  // seconds
  double verify_time_ = 0;
};

template <class Route>
void load(RouteLoad<Route> load, Output &out) {
  if (load.total() == 0) return;
  load.add_all();
  load.verify_all();
  load.print(out);
}

}  // namespace

bool load_routes(const Device &device, const RoutesOptions &options, Output &out, Output &errors) {
  // Each kind has lines of its own to show, so that neither hides the other.
  FaultReport parse_faults(errors);
  FaultReport faults(errors);
  const Field &nexthop = action_shape(kAction).find({kNexthop, 0}, kAction);
  const auto limit = static_cast<uint16_t>(low_ones(nexthop.width).low);
  std::vector<LoadedFile> files;
  for (const std::string &name : options.files) {
    const Clock::time_point start = Clock::now();
    files.push_back({name, parse_routes(read_input(name), options.nexthop, limit)});
    const RouteFile &routes = files.back().routes;
    out.line("{}: {} IPv4 and {} IPv6 prefixes, read in {:.3f} s", name,
             grouped(routes.ipv4.size()), grouped(routes.ipv6.size()), seconds_since(start));
    for (const RouteFault &fault : routes.faults) {
      parse_faults.add(name, fault.line, fault.column, fault.message);
    }
  }
  parse_faults.finish();
  out.flush();
  load(RouteLoad<Ipv4Route>(device, "ipv4ShortMaskLpm", options, &RouteFile::ipv4, files, faults),
       out);
  load(RouteLoad<Ipv6Route>(device, "ipv6ShortMaskLpm", options, &RouteFile::ipv6, files, faults),
       out);
  const uint64_t count = parse_faults.count() + faults.count();
  out.line("{} error{}", grouped(count), count == 1 ? "" : "s");
  out.flush();
  faults.finish();
  return count == 0;
}

}  // namespace tesselctl
