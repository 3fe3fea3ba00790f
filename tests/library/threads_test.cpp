// Sessions on tables of their own, at the same time. ThreadSanitizer watches when it is on.
#include <barrier>
#include <thread>

#include "oracle.hpp"

namespace pd_test {
namespace {

class Threads : public LibraryTest {
 protected:
  // Adds, reads back and deletes on one table. Returns how many entries came back as they should.
  static size_t work_on(const pdgen::Table &table, size_t rounds) {
    p4_pd_session_handle_t own = 0;
    if (soft_session_open(&own) != BF_SUCCESS) return 0;
    Random random = random_for(table.name);
    size_t good = 0;
    for (size_t round = 0; round < rounds; ++round) {
      if (comes_back(table, own, random)) ++good;
    }
    soft_session_close(own);
    return good;
  }

 private:
  // The entry stays for a while: a key of few bits is added once more only after it is gone.
  static bool comes_back(const pdgen::Table &table, p4_pd_session_handle_t own, Random &random) {
    const pdgen::Pair &pair = table.pairs[static_cast<size_t>(random() % table.pairs.size())];
    const Bytes match = random_record(record_of(table), random);
    const Bytes spec = random_record(record_of(*pair.action), random);
    const auto meter = random_meter_spec(random);
    uint32_t entry = 0;
    Arguments add(*find_export("table_add", table.name, pair.action->name));
    add.set("session", uint64_t{own}).set("match_spec", match.data()).set("entry", &entry);
    if (add.takes("priority")) add.set("priority", uint64_t{3});
    if (add.takes("action_spec")) add.set("action_spec", spec.data());
    if (add.takes("meter_spec")) add.set("meter_spec", &meter);
    if (add.takes("ttl")) add.set("ttl", uint64_t{0});
    if (add.status() != BF_SUCCESS) return false;
    const bool same = reads_as(table, pair, own, entry, match);
    Arguments del(*find_export("table_delete", table.name));
    del.set("session", uint64_t{own}).set("entry", uint64_t{entry});
    return del.status() == BF_SUCCESS && same;
  }

  static bool reads_as(const pdgen::Table &table, const pdgen::Pair &pair,
                       p4_pd_session_handle_t own, uint32_t entry, const Bytes &match) {
    Bytes key(record_of(table).size);
    uint64_t spec[16] = {};
    uint32_t priority = 0;
    uint32_t action = 0;
    bool no_key = true;
    Arguments get(*find_export("get_entry", table.name));
    get.set("session", uint64_t{own}).set("entry", uint64_t{entry});
    get.set("read_from_hardware", uint64_t{0}).set("match_spec", key.data());
    if (get.takes("priority")) get.set("priority", &priority);
    get.set("action_name", nullptr).set("action_spec", spec).set("action", &action);
    if (get.set("no_key", &no_key).status() != BF_SUCCESS) return false;
    return !no_key && action == pair.action->value && key == kept_match_spec(table, match.data());
  }
};

TEST_F(Threads, WorkOnSeparateTables) {
  const char *const tables[] = {"ipv4ShortMaskLpm", "cpuEncap",  "nextHop",
                                "l2LookupMiss",     "trapToCpu", "pdpPolicy"};
  constexpr size_t kRounds = 300;
  std::vector<size_t> good(std::size(tables));
  std::vector<std::thread> threads;
  std::barrier start(static_cast<std::ptrdiff_t>(std::size(tables)));
  for (size_t i = 0; i < std::size(tables); ++i) {
    threads.emplace_back([&, i] {
      const pdgen::Table &table = table_named(tables[i]);
      start.arrive_and_wait();
      good[i] = work_on(table, kRounds);
    });
  }
  for (std::thread &thread : threads) thread.join();
  for (size_t i = 0; i < std::size(tables); ++i) {
    EXPECT_EQ(good[i], kRounds) << tables[i];
    uint32_t count = kPipes;
    EXPECT_EQ(Arguments(*find_export("get_entry_count", tables[i])).set("count", &count).status(),
              BF_SUCCESS);
    EXPECT_EQ(count, 0u);
  }
}

// Every profile has a state of its own, so profiles may be worked on at the same time too.
TEST_F(Threads, WorkOnSeparateProfiles) {
  std::vector<size_t> good(program().profiles.size());
  std::vector<std::thread> threads;
  for (size_t i = 0; i < good.size(); ++i) {
    threads.emplace_back([&, i] {
      const pdgen::Profile &profile = program().profiles[i];
      const pdgen::Action &action = *profile.actions.front().action;
      const Bytes spec(record_of(action).size);
      for (size_t round = 0; round < 200; ++round) {
        uint32_t member = 0;
        Arguments add(*find_export("add_member", profile.name, action.name));
        add.set("action_spec", spec.data()).set("member", &member);
        Arguments del(*find_export("del_member", profile.name));
        if (add.status() != BF_SUCCESS) break;
        if (del.set("member", uint64_t{member}).status() == BF_SUCCESS) ++good[i];
      }
    });
  }
  for (std::thread &thread : threads) thread.join();
  for (const size_t rounds : good) EXPECT_EQ(rounds, 200u);
}

}  // namespace
}  // namespace pd_test
