// Entries without effect, compared with plain searches: of generated entries, and of the real ACL
// and routes in the folder that TESSEL_REAL_DATA names.
#include "tesselctl/lint/entries.hpp"

#include <bit>
#include <cstdlib>
#include <random>

#include "tesselctl/program/value.hpp"
#include "tesselctl/text/files.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

// Keys of entries, and of the ones that make them needless, by where they stand.
using Found = std::map<const char *, const char *>;
using Items = std::span<const ItemStore::Item>;

Found search(const TableInfo &table, Items items) {
  const bool is_lpm = match_of(*table.record) == Match::lpm;
  Found found;
  for (const auto &[entry, other] : (is_lpm ? repeated_parents : covered_entries)(table, items)) {
    found[entry.identity.data()] = other.identity.data();
  }
  return found;
}

FieldValue value_of(const Field &field, const ItemStore::Item &item) {
  return load_value(field, reinterpret_cast<const uint8_t *>(item.bytes));
}

// Whether the one matches all that the other matches.
bool covers(const TableInfo &table, const ItemStore::Item &one, const ItemStore::Item &other) {
  return std::ranges::all_of(table.record->shown(), [&](const Field &field) {
    const FieldValue wide = value_of(field, one);
    const FieldValue own = value_of(field, other);
    const Number mask = wide.mask & key_bits(field);
    return (mask & ~own.mask).is_zero() && (mask & wide.value) == (mask & own.value);
  });
}

// Looks at all pairs for the first entry before each, or the longest prefix, that covers it; the
// latter comes to nothing with another outcome.
Found plain_search(const TableInfo &table, Items items) {
  const bool is_lpm = match_of(*table.record) == Match::lpm;
  const auto rank = [&](size_t at) {
    const Number mask = value_of(table.record->shown().back(), items[at]).mask;
    const auto length = static_cast<uint32_t>(std::popcount(mask.high) + std::popcount(mask.low));
    return std::pair(is_lpm ? 128 - length : priority_of(table, items[at].view().identity), at);
  };
  Found found;
  for (size_t entry = 0; entry < items.size(); ++entry) {
    size_t best = entry;
    for (size_t other = 0; other < items.size(); ++other) {
      if (other == entry || (!is_lpm && rank(other) > rank(entry))) continue;
      if (best != entry && rank(other) > rank(best)) continue;
      if (covers(table, items[other], items[entry])) best = other;
    }
    const bool is_same = items[entry].view().value == items[best].view().value;
    if (best != entry && (!is_lpm || is_same)) found[items[entry].bytes] = items[best].bytes;
  }
  return found;
}

TEST(Lint, GeneratedEntries) {
  for (const char *name : {"firewallPolicy", "trapToCpu", "ingressPortDropCheck", "mlagUcastPrune",
                           "ipv4ShortMaskLpm", "ipv6ShortMaskLpm"}) {
    const TableInfo table = resolve_table({name, 0});
    const auto fields = table.record->shown();
    std::mt19937 random(1);
    const auto below = [&](size_t limit) { return static_cast<uint32_t>(random() % limit); };
    ItemStore store;
    std::vector<ItemStore::Item> items;
    std::vector<std::string> keys(1, std::string(table.record->size, '\0'));
    while (items.size() < 300) {
      // A field is other than in a key before, so that many overlap.
      std::string key = keys[below(keys.size())];
      const Field &field = fields[below(fields.size())];
      const unsigned width = field.width;
      const Number bits = prefix_mask(std::min(width, 8u), width) | low_ones(1);
      const Number masks[] = {low_ones(width), {}, prefix_mask(below(width + 1), width), bits};
      const size_t kinds = field.match == Match::exact ? 1 : field.match == Match::lpm ? 3 : 4;
      const Number mask = masks[below(kinds)];
      const Number value = bits & mask & Number(~uint64_t{0} << below(64), random());
      store_value(field, {value, mask}, reinterpret_cast<uint8_t *>(key.data()));
      if (std::ranges::find(keys, key) != keys.end()) continue;
      keys.push_back(key);
      if (table.has_priority()) append_bytes(key, below(8));
      std::string head;
      append_bytes(head, EntryHead{.number = below(2)});
      items.push_back(store.add({key, head}));
    }
    const Found found = search(table, items);
    EXPECT_EQ(found, plain_search(table, items)) << name;
    EXPECT_GT(found.size(), 20U) << name;
  }
}

constexpr char kDrop[] = " action=setFirewallPolicyDrop counterIndex=0 log=0 meterDrop=0";

class RealData : public ToolTest {
 protected:
  void add_rules(const std::string &file) {
    FileLines lines(file);
    for (std::string_view line; lines.next(line);) {
      std::vector<Word> words;
      split_words(line, words);
      if (words.empty()) continue;
      const auto word = [&](size_t at) { return words[at].text; };
      const std::string key =
          fmt::format("priority={} sip={} dip={} srcPort={}..{} dstPort={}..{} protocol=0x{}&0x{}",
                      word(1), word(2), word(3), word(4), word(5), word(6), word(7),
                      word(8).substr(0, 2), word(8).substr(3));
      EXPECT_EQ(run("add firewallPolicy " + key + kDrop), "");
    }
  }
};

// All routes go to one next hop, and are sorted: a route's parent is the last one that covers it.
TEST_F(RealData, RulesAndRoutes) {
  const char *const folder = std::getenv("TESSEL_REAL_DATA");
  if (folder == nullptr) GTEST_SKIP() << "TESSEL_REAL_DATA names no folder of ACL and routes";
  add_rules(std::string(folder) + "/acl_rules.txt");
  run("routes " + std::string(folder) + "/ipv4_routes.txt.xz nexthop=1");
  EXPECT_EQ(run("count ipv4ShortMaskLpm firewallPolicy"),
            "ipv4ShortMaskLpm entries=1042325\nfirewallPolicy entries=1301\n");
  const DeviceState state = DeviceState::of_device(device_);
  for (const auto &[place, part] : state.parts()) {
    if (part.kind->keyword != "entry") continue;
    const TableInfo table = resolve_table({part.object, 0});
    const Found found = search(table, part.items);
    if (table.has_priority()) {
      EXPECT_EQ(found.size(), 35U);
      EXPECT_EQ(found, plain_search(table, part.items));
      continue;
    }
    Found parents;
    std::vector<ItemStore::Item> open;
    for (const ItemStore::Item &item : part.items) {
      while (!open.empty() && !covers(table, open.back(), item)) open.pop_back();
      if (!open.empty()) parents[item.bytes] = open.back().bytes;
      open.push_back(item);
    }
    EXPECT_TRUE(found == parents);
  }
}

}  // namespace
}  // namespace tesselctl
