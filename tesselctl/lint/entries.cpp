#include "tesselctl/lint/entries.hpp"

#include <algorithm>

#include "tesselctl/lint/match_index.hpp"

namespace tesselctl {

std::vector<EntryPair> covered_entries(const TableInfo &table,
                                       std::span<const ItemStore::Item> entries) {
  std::vector<ItemStore::Item> ordered(entries.begin(), entries.end());
  std::ranges::stable_sort(ordered, {}, [&](const ItemStore::Item &entry) {
    return priority_of(table, entry.view().identity);
  });
  MatchIndex before(table, ordered);
  std::vector<EntryPair> covered;
  for (uint32_t entry = 0; entry < ordered.size(); ++entry) {
    uint32_t first = entry;
    before.for_each_covering(entry, [&](uint32_t other) { first = std::min(first, other); });
    if (first != entry) covered.push_back({ordered[entry].view(), ordered[first].view()});
    before.add(entry);
  }
  return covered;
}

std::vector<EntryPair> repeated_parents(const TableInfo &table,
                                        std::span<const ItemStore::Item> entries) {
  MatchIndex prefixes(table, entries);
  for (uint32_t entry = 0; entry < entries.size(); ++entry) prefixes.add(entry);
  std::vector<EntryPair> repeated;
  for (uint32_t entry = 0; entry < entries.size(); ++entry) {
    uint32_t nearest = entry;
    unsigned most = 0;
    prefixes.for_each_covering(entry, [&](uint32_t other) {
      const unsigned bits = prefixes.compared_bits(other) + 1;
      if (other == entry || bits <= most) return;
      most = bits;
      nearest = other;
    });
    const ItemView child = entries[entry].view();
    const ItemView parent = entries[nearest].view();
    if (nearest == entry || !have_same_outcome(child.value, parent.value)) continue;
    repeated.push_back({child, parent});
  }
  return repeated;
}

bool have_same_outcome(std::string_view value, std::string_view other) {
  const EntryHead head = head_of(value);
  const EntryHead other_head = head_of(other);
  return head.outcome == other_head.outcome && head.number == other_head.number &&
         value.substr(sizeof head) == other.substr(sizeof head);
}

}  // namespace tesselctl
