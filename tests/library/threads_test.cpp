// Sessions on tables and profiles of their own, at the same time. ThreadSanitizer watches when it
// is on.
#include <thread>

#include "oracle.hpp"

namespace pd_test {
namespace {

class Threads : public LibraryTest {
 protected:
  // Runs work(session, i) for each i below count, all at the same time, in sessions of their own.
  template <class Work>
  static void at_once(size_t count, Work work) {
    std::vector<std::thread> threads;
    for (size_t i = 0; i < count; ++i) {
      threads.emplace_back([&, i] {
        p4_pd_session_handle_t own = 0;
        EXPECT_EQ(soft_session_open(&own), BF_SUCCESS);
        for (int round = 0; round < 300; ++round) work(own, i);
        soft_session_close(own);
      });
    }
    for (std::thread &thread : threads) thread.join();
  }
};

TEST_F(Threads, WorkOnSeparateTables) {
  const char *const names[] = {"ipv4ShortMaskLpm", "cpuEncap",  "nextHop",
                               "l2LookupMiss",     "trapToCpu", "pdpPolicy"};
  program();  // loaded before there are threads, as are the indexes of the exports
  find_export("init");
  at_once(std::size(names), [&](uint64_t own, size_t i) {
    const pdgen::Table &table = table_named(names[i]);
    Random random = random_for(table.name);
    const pdgen::Action &action = *table.pairs.front().action;
    const Bytes match = random_record(record_of(table), random);
    const Bytes spec = random_record(record_of(action), random);
    const uint64_t entry = make("table_add", table.name, action.name,
                                with("session", own, "match_spec", match.data(), "action_spec",
                                     spec.data(), "priority", 3));
    Bytes key(record_of(table).size);
    uint64_t read[16] = {};
    bool no_key = true;
    EXPECT_EQ(run("get_entry", table.name,
                  with("session", own, "entry", entry, "read_from_hardware", 0, "match_spec",
                       key.data(), "priority", read, "action_name", 0, "action_spec", &read[1],
                       "action", 0, "no_key", &no_key)),
              BF_SUCCESS);
    EXPECT_EQ(key, kept_match_spec(table, match.data()));
    EXPECT_EQ(run("table_delete", table.name, with("session", own, "entry", entry)), BF_SUCCESS);
  });
}

// Every profile has a state of its own.
TEST_F(Threads, WorkOnSeparateProfiles) {
  at_once(program().profiles.size(), [&](uint64_t own, size_t i) {
    const pdgen::Profile &profile = program().profiles[i];
    const Bytes spec(64);
    const uint32_t member = make("add_member", profile.name, profile.actions.front().action->name,
                                 with("session", own, "action_spec", spec.data()));
    EXPECT_EQ(run("del_member", profile.name, with("session", own, "member", member)), BF_SUCCESS);
  });
}

}  // namespace
}  // namespace pd_test
