// Which entry a packet hits: by the kind of table, its size and the shape of its rules.
#include <memory>

#include "device_rows.hpp"
#include "rules.hpp"
#include "soft_device.hpp"

namespace bench {

namespace {

// A table and the packets that are sent to it, in a mixed order.
class Lookups {
 public:
  explicit Lookups(std::string_view table, const soft_program_t &program)
      : device_(program), table_(device_, table) {}

  Table &table() { return table_; }
  void add_packet(const Key &key) { packets_.push_back(key); }

  void operator()(uint64_t operations) {
    uint64_t hits = 0;
    for (; operations > 0; --operations) {
      hits += table_.lookup(packets_[mixed(next_++, 0xffffffu) % packets_.size()]) != 0;
    }
    expect(hits > 0, "hit entries");
  }

 private:
  SoftDevice device_;
  Table table_;
  std::vector<Key> packets_;
  uint64_t next_ = 0;
};

Side looking_up(std::string name, std::function<void(Lookups &)> fill, const char *table,
                const soft_program_t &program = soft_program_tessel_switch) {
  return {std::move(name), [fill = std::move(fill), table, &program] {
            auto lookups = std::make_shared<Lookups>(table, program);
            fill(*lookups);
            (*lookups)(1);  // the first one makes the index
            return [lookups](uint64_t operations) { (*lookups)(operations); };
          }};
}

// ---- Entries whose masks are all ones ----

// They differ in two fields; the others are 0.
struct Fields {
  const char *first;
  uint32_t first_values;
  const char *second;
};

void fill_whole(Lookups &lookups, const Fields &fields, uint32_t count) {
  Table &table = lookups.table();
  const soft_key_field_t &first = table.field(fields.first);
  const soft_key_field_t &second = table.field(fields.second);
  Key mask;
  for (uint8_t &byte : mask.bytes) byte = 0xff;
  for (uint32_t i = 0; i < count; ++i) {
    Key key;
    put(key, first, i % fields.first_values);
    put(key, second, i / fields.first_values);
    table.add(key, mask, 0);
    lookups.add_packet(key);
  }
}

void add_exact_rows(std::vector<Row> &rows) {
  const auto macs = [](uint32_t count, const char *name) {
    return looking_up(
        name,
        [count](Lookups &lookups) {
          fill_whole(lookups, {"egrMd_dmacOui", 97, "egrMd_dmacStation"}, count);
        },
        "l2Lookup");
  };
  const std::string name = "MAC addresses (exact)";
  rows.push_back({"lookups", name, macs(1000, "1,000 entries"), {macs(100, "100")}});
  rows.push_back({"lookups", name, macs(10'000, "10,000 entries"), {macs(100, "100")}});
  rows.push_back({"lookups", name, macs(100'000, "100,000 entries"), {macs(100, "100")}});
}

// The same entries in two programs: in one of them packets are not compared in all bits.
void add_partial_row(std::vector<Row> &rows, const char *table, const char *name, Fields fields) {
  const auto fill = [fields](Lookups &lookups) { fill_whole(lookups, fields, 50'000); };
  rows.push_back({"lookups",
                  name,
                  looking_up("some bits of a field", fill, table),
                  {looking_up("all bits", fill, table, with_whole_keys())},
                  at_most(2)});
}

// ---- Rules ----

struct FiveTuple {
  explicit FiveTuple(const Table &table)
      : source(table.field("ingIpv4_sip")),
        destination(table.field("ingIpv4_dip")),
        source_port(table.field("ingMd_srcPort")),
        destination_port(table.field("ingMd_dstPort")),
        protocol(table.field("ingMd_protocol")) {}

  Key key(const Rule &rule, uint32_t Masked::*part) const {
    Key key;
    put(key, source, rule.source.*part);
    put(key, destination, rule.destination.*part);
    put(key, source_port, rule.source_port.*part);
    put(key, destination_port, rule.destination_port.*part);
    put(key, protocol, rule.protocol.*part);
    return key;
  }

  soft_key_field_t source, destination, source_port, destination_port, protocol;
};

void fill_rules(Lookups &lookups, Shape shape, uint32_t count) {
  const FiveTuple tuple(lookups.table());
  const std::vector<Rule> rules = make_rules(shape, count);
  for (uint32_t i = 0; i < count; ++i) {
    lookups.table().add(tuple.key(rules[i], &Masked::value), tuple.key(rules[i], &Masked::mask), i);
  }
  for (const Rule &packet : make_packets(rules, 10'000)) {
    lookups.add_packet(tuple.key(packet, &Masked::value));
  }
}

void add_rule_rows(std::vector<Row> &rows, Shape shape, const char *name) {
  const auto rules = [shape](uint32_t count, const char *side) {
    return looking_up(
        side, [shape, count](Lookups &lookups) { fill_rules(lookups, shape, count); },
        "firewallPolicy");
  };
  const Side few = rules(1000, "1,000 rules");
  rows.push_back({"lookups", name, few, {rules(100, "100")}});
  rows.push_back({"lookups", name, rules(10'000, "10,000 rules"), {few}, a_second(1e6)});
  rows.push_back({"lookups", name, rules(100'000, "100,000 rules"), {few}, at_most(3)});
}

}  // namespace

std::vector<Row> lookup_rows() {
  std::vector<Row> rows;
  add_exact_rows(rows);
  add_partial_row(rows, "egressVlanXlate", "50,000 VLANs of ports (exact)",
                  {"eg_intr_md_egress_port", 128, "egrMd_egrL2Domain"});
  add_partial_row(rows, "l2LookupMiss", "50,000 unknown MAC addresses (ternary)",
                  {"ig_intr_md_ingress_port", 128, "egrMd_dmacStation"});
  add_rule_rows(rows, Shape::access, "rules (ternary): access lists");
  add_rule_rows(rows, Shape::firewall, "rules (ternary): hosts and services");
  add_rule_rows(rows, Shape::ranges, "rules (ternary): ranges of ports");
  add_rule_rows(rows, Shape::lengths, "rules (ternary): all lengths of prefixes");
  add_rule_rows(rows, Shape::overlaps, "rules (ternary): short prefixes");
  for (Row &row : rows) row.counted = 20'000;
  return rows;
}

}  // namespace bench
