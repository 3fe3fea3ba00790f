// Entries that the library puts into the soft SDK, looks for and takes out again, against a flat
// hash map with the same records; and how that grows with the table.
#include <absl/container/flat_hash_map.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <memory>

#include "device_rows.hpp"
#include "p4_pd_tessel_switch.h"
#include "soft_device.hpp"

namespace bench {

namespace {

// ---- MAC addresses, in the library and in a map ----

constexpr uint32_t stations = 1u << 20;

using MacKey = p4_pd_tessel_switch_l2Lookup_match_spec_t;
using MacAction = p4_pd_tessel_switch_l2LookupKnownUcast_action_spec_t;

MacKey mac_of(uint64_t i) {
  const uint32_t mac = mixed(i, 0xffffffffu);
  return {mac >> 16, mac & 0xffff, static_cast<uint16_t>(mac & 0xff)};
}

class Macs {
 public:
  explicit Macs(uint64_t count) {
    entries_.resize(stations);
    add(count);
  }

  void add(uint64_t count) {
    for (; count > 0; --count, ++used_) {
      const MacKey key = mac_of(used_);
      const MacAction action = {static_cast<uint32_t>(used_ & 0xfffff)};
      expect(p4_pd_tessel_switch_l2Lookup_table_add_with_l2LookupKnownUcast(
                 device_.session(), target_, &key, &action, &entries_[used_]) == BF_SUCCESS,
             "add a MAC address");
    }
  }

  void find(uint64_t i) const {
    const MacKey key = mac_of(i % used_);
    p4_pd_entry_handle_t entry = 0;
    expect(p4_pd_tessel_switch_l2Lookup_match_spec_to_entry_hdl(device_.session(), target_, &key,
                                                                &entry) == BF_SUCCESS,
           "find a MAC address");
  }

  void remove(uint64_t count) {
    for (uint64_t i = 0; i < count; ++i) {
      expect(p4_pd_tessel_switch_l2Lookup_table_delete(device_.session(), device_.id(),
                                                       entries_[mixed(i, stations - 1)]) == 0,
             "delete a MAC address");
    }
  }

 private:
  SoftDevice device_;
  p4_pd_device_target_t target_ = {device_.id(), BF_ALL_PIPES};
  std::vector<p4_pd_entry_handle_t> entries_;
  uint64_t used_ = 0;
};

// What the table holds of an entry, under the bytes of its key.
class MacMap {
 public:
  explicit MacMap(uint64_t count) { add(count); }

  void add(uint64_t count) {
    for (; count > 0; --count, ++used_) {
      const Record record = {0x200001dc, static_cast<uint32_t>(used_), {0, 1, 2}};
      expect(map_.emplace(bytes_of(used_), record).second, "add to a map");
    }
  }

  void find(uint64_t i) const { expect(map_.contains(bytes_of(i % used_)), "find in a map"); }

  void remove(uint64_t count) {
    for (uint64_t i = 0; i < count; ++i) {
      expect(map_.erase(bytes_of(mixed(i, stations - 1))) == 1, "erase from a map");
    }
  }

 private:
  using Bytes = std::array<uint8_t, 8>;
  struct Record {
    uint32_t action;
    uint32_t entry;
    uint8_t data[3];
  };

  static Bytes bytes_of(uint64_t i) {
    const MacKey mac = mac_of(i);
    const uint64_t number = static_cast<uint64_t>(mac.egrMd_dmacOui) << 40 |
                            static_cast<uint64_t>(mac.egrMd_dmacStation) << 16 |
                            mac.egrMd_egrL2Domain;
    Bytes bytes;
    std::memcpy(bytes.data(), &number, sizeof number);
    return bytes;
  }

  absl::flat_hash_map<Bytes, Record> map_;
  uint64_t used_ = 0;
};

template <class Store>
Side adding(const char *name, uint64_t count) {
  return {name,
          [] {
            return [store = std::make_shared<Store>(0)](uint64_t operations) {
              store->add(operations);
            };
          },
          count};
}

// As entries come, or as no cache knows it.
enum class Order { kept, mixed };

// Those that are there.
template <class Store, Order order = Order::mixed>
Side finding(const char *name, uint32_t count) {
  return {name, [count] {
            return [store = std::make_shared<Store>(count),
                    i = uint64_t{0}](uint64_t operations) mutable {
              for (; operations > 0; --operations, ++i) {
                store->find(order == Order::mixed ? mixed(i, 0xffffffu) : i);
              }
            };
          }};
}

template <class Store>
Side removing(const char *name, uint64_t count) {
  return {name,
          [] {
            return [store = std::make_shared<Store>(stations)](uint64_t operations) {
              store->remove(operations);
            };
          },
          count};
}

// ---- Routes ----

constexpr uint32_t few_routes = 100'000;
constexpr uint32_t many_routes = 10'000'000;

// The routes of VRFs in the order of their addresses, as routers send them: 16 of each 65,536
// addresses, 10 of them of length 24.
p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t route_of(uint64_t i) {
  struct Part {
    uint8_t block;  // of 256 addresses
    uint8_t length;
  };
  static constexpr std::array<Part, 16> parts = {{{0, 19},
                                                  {0, 22},
                                                  {0, 24},
                                                  {1, 24},
                                                  {2, 24},
                                                  {3, 24},
                                                  {4, 23},
                                                  {4, 24},
                                                  {5, 24},
                                                  {8, 22},
                                                  {8, 24},
                                                  {9, 24},
                                                  {10, 24},
                                                  {11, 24},
                                                  {12, 23},
                                                  {16, 21}}};
  const Part part = parts[i % 16];
  const auto address = static_cast<uint32_t>(i / 16 << 16 | part.block << 8);
  return {static_cast<uint8_t>(i >> 20), address, part.length};
}

template <Order order>
class Routes {
 public:
  explicit Routes(uint64_t count) { add(count); }

  void add(uint64_t count) {
    const p4_pd_tessel_switch_setNextHop_action_spec_t action = {17};
    for (; count > 0; --count, ++used_) {
      const auto key = route(used_);
      p4_pd_entry_handle_t entry = 0;
      expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
                 device_.session(), target_, &key, &action, 0, &entry) == BF_SUCCESS,
             "add a route");
    }
  }

  void find(uint64_t i) const {
    const auto key = route(i % used_);
    p4_pd_entry_handle_t entry = 0;
    expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_to_entry_hdl(device_.session(), target_,
                                                                        &key, &entry) == BF_SUCCESS,
           "find a route");
  }

  // The address of a route, with other bits behind its prefix.
  void look_up(uint64_t i) const {
    const auto one = route(i % used_);
    const uint32_t wild = 0xffffffffu >> one.ingIpv4_dip_prefix_length;
    Key key;
    put(key, vrf_, one.l3Info_vrfId);
    put(key, address_, one.ingIpv4_dip | (static_cast<uint32_t>(i) & wild));
    expect(table_.lookup(key) != 0, "look a route up");
  }

 private:
  static auto route(uint64_t i) {
    return route_of(order == Order::mixed ? mixed(i, 0xffffffu) : i);
  }

  SoftDevice device_;
  p4_pd_device_target_t target_ = {device_.id(), BF_ALL_PIPES};
  Table table_{device_, "ipv4ShortMaskLpm"};
  soft_key_field_t vrf_ = table_.field("l3Info_vrfId");
  soft_key_field_t address_ = table_.field("ingIpv4_dip");
  uint64_t used_ = 0;
};

// As many lookups, the routes in an order that no cache knows.
Side looking_up(const char *name, uint32_t count) {
  return {name, [count] {
            return [routes = std::make_shared<Routes<Order::kept>>(count),
                    i = uint64_t{0}](uint64_t operations) mutable {
              for (; operations > 0; --operations) routes->look_up(mixed(i++, 0xffffffu));
            };
          }};
}

}  // namespace

std::vector<Row> entry_rows() {
  std::vector<Row> rows = {
      {"entries",
       "add 1,000,000 MAC addresses",
       adding<Macs>("library and soft SDK", stations),
       {adding<MacMap>("flat hash map", stations)},
       at_most(1.5)},
      {"entries",
       "find among 1,000,000 MAC addresses",
       finding<Macs>("library and soft SDK", stations),
       {finding<MacMap>("flat hash map", stations)}},
      {"entries",
       "delete of 1,000,000 MAC addresses",
       removing<Macs>("library and soft SDK", stations / 2),
       {removing<MacMap>("flat hash map", stations / 2)}},
      {"entries",
       "add routes in the order of their addresses",
       adding<Routes<Order::kept>>("10 million", many_routes),
       {adding<Routes<Order::kept>>("100 thousand", few_routes)},
       at_most(1.6)},
      {"entries",
       "add routes in a mixed order",
       adding<Routes<Order::mixed>>("10 million", many_routes),
       {adding<Routes<Order::mixed>>("100 thousand", few_routes)},
       at_most(1.6)},
      {"entries",
       "find routes in the order of their addresses",
       finding<Routes<Order::kept>, Order::kept>("among 10 million", many_routes),
       {finding<Routes<Order::kept>, Order::kept>("among 100 thousand", few_routes)},
       at_most(1.5)},
      {"entries",
       "find routes in a mixed order",
       finding<Routes<Order::mixed>>("among 10 million", many_routes),
       {finding<Routes<Order::mixed>>("among 100 thousand", few_routes)},
       at_most(1.5)},
      {"lookups",
       "routes (lpm)",
       looking_up("10 million", many_routes),
       {looking_up("100 thousand", few_routes)}},
  };
  for (Row &row : rows) row.counted = 20'000;
  return rows;
}

}  // namespace bench
