// What explain finds in a table, against a search that looks at every entry.
#include <bit>
#include <random>
#include <regex>
#include <set>
#include <tuple>

#include "tesselctl/text/route_file.hpp"
#include "tool_fixture.hpp"

namespace tesselctl {
namespace {

struct Shape {
  TableInfo table;
  const char *outcome;
  std::span<const Field> parts = table.record->shown();
};
struct PlainEntry {
  std::vector<uint64_t> values, masks;
  uint32_t priority = 0;
};

uint64_t ones_of(unsigned width) { return (uint64_t{1} << width) - 1; }

class ExplainTest : public ToolTest {
 protected:
  uint64_t random(uint64_t below) { return engine_() % below; }

  // Few values and many alike, so that there are hits, misses and neighbours.
  uint64_t random_value(unsigned width) {
    const unsigned low = static_cast<unsigned>(random(3)) * (width / 4);
    return (random(4) << low ^ random(3)) & ones_of(width);
  }
  uint64_t random_mask(const Field &part) {
    const uint64_t all = ones_of(part.width);
    if (part.match == Match::lpm)
      return all & ~ones_of(static_cast<unsigned>(random(part.width + 1)));
    return part.match == Match::ternary && random(2) == 0 ? all & (random(256) | random(256) << 4)
                                                          : all;
  }
  void add_entries(const Shape &shape, size_t count) {
    while (entries_.size() < count) {
      PlainEntry entry;
      std::string line = std::string("add ") + shape.table.name();
      for (const Field &part : shape.parts) {
        entry.masks.push_back(random_mask(part));
        entry.values.push_back(random_value(part.width) & entry.masks.back());
        line += fmt::format(" {}={}", part.label, entry.values.back());
        if (part.match == Match::lpm) line += fmt::format("/{}", std::popcount(entry.masks.back()));
        if (part.match == Match::ternary) line += fmt::format("&{}", entry.masks.back());
      }
      if (shape.table.has_priority()) {
        entry.priority = static_cast<uint32_t>(random(50));
        line += fmt::format(" priority={}", entry.priority);
      }
      if (run(line + " as=it " + shape.outcome).empty()) {
        entries_.push_back(entry);
        handles_.push_back(context_.labels["it"]);
      }
    }
  }

  // "hit 7", or "nearest 3 9 1": by the fields that differ, the bits of the address behind what it
  // shares with a prefix, the bits that differ, the priority and the handle.
  std::string searched(const Shape &shape, const std::vector<uint64_t> &key) const {
    using Rank = std::tuple<size_t, size_t, size_t, uint32_t, uint32_t>;
    std::vector<Rank> ranks;
    for (size_t i = 0; i < entries_.size(); ++i) {
      const PlainEntry &entry = entries_[i];
      size_t fields = 0, behind = 0, bits = 0;
      for (size_t j = 0; j < key.size(); ++j) {
        const uint64_t differing = (key[j] ^ entry.values[j]) & entry.masks[j];
        fields += differing != 0;
        bits += static_cast<size_t>(std::popcount(differing));
        if (shape.parts[j].match != Match::lpm) continue;
        // From the first bit on that the prefix does not have or has otherwise.
        uint64_t shared = uint64_t{1} << 31;
        while ((shared & entry.masks[j] & ~differing) != 0) shared >>= 1;
        behind += static_cast<size_t>(std::bit_width(shared));
      }
      ranks.emplace_back(fields, behind, bits, entry.priority, handles_[i]);
    }
    const size_t count = std::min<size_t>(3, ranks.size());
    std::ranges::partial_sort(ranks, ranks.begin() + static_cast<ptrdiff_t>(count));
    if (std::get<0>(ranks[0]) == 0) return fmt::format("hit {}", std::get<4>(ranks[0]));
    std::string nearest = "nearest";
    for (size_t i = 0; i < count; ++i) nearest += fmt::format(" {}", std::get<4>(ranks[i]));
    return nearest;
  }

  std::string explained(const Shape &shape, const std::vector<uint64_t> &key) {
    std::string line = std::string("explain ") + shape.table.name();
    for (size_t i = 0; i < key.size(); ++i)
      line += fmt::format(" {}={}", shape.parts[i].label, key[i]);
    const std::string text = run(line);
    const std::regex found("(hit|nearest) entry=(\\d+)");
    std::string all;
    for (std::sregex_iterator at(text.begin(), text.end(), found), end; at != end; ++at) {
      all += (all.empty() ? at->str(1) + " " : " ") + at->str(2);
    }
    return all;
  }

  std::mt19937 engine_{16};
  std::vector<PlainEntry> entries_;
  std::vector<uint32_t> handles_;
};

Shape routes() { return {resolve_table({"ipv4ShortMaskLpm", 0}), "action=setNextHop nextHop=1"}; }

TEST_F(ExplainTest, FindsWhatAPlainSearchFinds) {
  const Shape shapes[] = {
      routes(),
      {resolve_table({"l2Lookup", 0}), "action=onMiss"},
      {resolve_table({"l2DomainLookup", 0}), "action=setL2DomainTagged l2Aintf=1"},
  };
  for (const Shape &shape : shapes) {
    entries_.clear();
    handles_.clear();
    std::set<std::string> found;
    for (const size_t count : {2u, 60u}) {
      add_entries(shape, count);
      for (int i = 0; i < 200; ++i) {
        std::vector<uint64_t> key;
        for (const Field &part : shape.parts) key.push_back(random_value(part.width));
        found.insert(searched(shape, key));
        ASSERT_EQ(explained(shape, key), searched(shape, key)) << shape.table.name() << " " << i;
      }
    }
    EXPECT_GT(found.size(), 20u) << shape.table.name();
  }
}

// TESSEL_REAL_DATA names a folder with the routes of an Internet router.
TEST_F(ExplainTest, FindsRealRoutes) {
  const char *const folder = std::getenv("TESSEL_REAL_DATA");
  if (folder == nullptr) GTEST_SKIP() << "TESSEL_REAL_DATA is not set, no real routes are read";
  const std::string file = std::string(folder) + "/ipv4_routes.txt.xz";
  ASSERT_NE(run("routes " + file + " vrf=1").find("\n0 errors\n"), std::string::npos);
  const std::string text = read_input(file);
  for (const Ipv4Route &route : parse_routes(lines_of(text), 1, 1, [](const auto &) {}).ipv4) {
    entries_.push_back({{1, route.address}, {0xff, ones_of(32) & ~ones_of(32u - route.length)}});
    handles_.push_back(static_cast<uint32_t>(handles_.size() + 1));
  }
  ASSERT_GT(entries_.size(), 1000000u);
  for (int i = 0; i < 30; ++i) {
    const uint64_t near =
        entries_[static_cast<size_t>(random(entries_.size()))].values[1] + random(300);
    const std::vector<uint64_t> key = {i % 10 == 0 ? 2u : 1u, i % 2 == 0 ? engine_() : near};
    ASSERT_EQ(explained(routes(), key), searched(routes(), key)) << key[1];
  }
}

}  // namespace
}  // namespace tesselctl
