// Ageing of entries on the virtual clock.
#include "entries_program.hpp"

namespace {

using namespace soft_test;

struct Expired {
  uint32_t device, table, entry;
  bool operator==(const Expired &) const = default;
};
void note_expiry(bf_device_id_t device, pipe_object_handle_t table, pipe_entry_handle_t entry,
                 void *data) {
  static_cast<std::vector<Expired> *>(data)->push_back({device, table, entry});
}

class Ageing : public EntriesTest {
 protected:
  void enable(const pipe_mgr_idle_params_t &params) {
    ASSERT_EQ(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, params), BF_SUCCESS);
    ASSERT_EQ(pipe_mgr_idle_register_tmo_cb(session, kDevice, kRoute, note_expiry, &heard),
              BF_SUCCESS);
  }
  // The route to 10.0.0.<last>/32.
  bf_status_t add_route(uint8_t last, uint32_t ttl, uint32_t *entry) {
    const Key key(40, {0, 10, 0, 0, last}, {0xff, 0xff, 0xff, 0xff, 0xff}, 0);
    const Action hop(14, {0x00, 0x01});
    return add(kRoute, key, kNextHop, hop, entry, ttl);
  }
  uint32_t state(uint32_t entry) {
    uint32_t hit_state = 99;
    EXPECT_EQ(pipe_mgr_idle_time_get_hit_state(session, kDevice, kRoute, entry, &hit_state),
              BF_SUCCESS);
    return hit_state;
  }
  uint32_t ttl(uint32_t entry) {
    uint32_t milliseconds = 99;
    EXPECT_EQ(pipe_mgr_mat_ent_get_idle_ttl(session, kDevice, kRoute, entry, &milliseconds),
              BF_SUCCESS);
    return milliseconds;
  }
  Expired expired(uint32_t entry) { return {kDevice, kRoute, entry}; }

  std::vector<Expired> heard;
};

TEST_F(Ageing, ReportsAnEntryOnceItWasIdleForItsTime) {
  enable({PIPE_IDLE_NOTIFY, 0, 0, 0, 301, 0});
  uint32_t a = 0, b = 0, c = 0, hit = 0;
  ASSERT_EQ(add_route(1, 200, &a), BF_SUCCESS);
  ASSERT_EQ(add_route(2, 100, &b), BF_SUCCESS);
  ASSERT_EQ(add_route(3, 0, &c), BF_SUCCESS);
  EXPECT_EQ(ttl(c), 301u) << "the default of the table";
  soft_clock_advance(99);
  EXPECT_TRUE(heard.empty());
  const uint8_t to_a[] = {0, 10, 0, 0, 1};
  ASSERT_EQ(soft_lookup(kDevice, 0, kRoute, to_a, 5, &hit, nullptr), BF_SUCCESS);
  soft_clock_advance(1);
  EXPECT_EQ(heard, (std::vector<Expired>{expired(b)}));
  EXPECT_EQ(state(b), uint32_t{PIPE_ENTRY_IDLE});
  EXPECT_EQ(state(a), uint32_t{PIPE_ENTRY_ACTIVE});
  // Traffic makes a young again; the lookup above did not.
  ASSERT_EQ(soft_packet(kDevice, 0, kRoute, to_a, 5, 64, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(hit, a);
  soft_clock_advance(199);
  EXPECT_EQ(heard.size(), 1u);
  soft_clock_advance(1000);
  EXPECT_EQ(heard, (std::vector<Expired>{expired(b), expired(a), expired(c)})) << "oldest first";
  EXPECT_EQ(count(kRoute), 3u) << "expired entries stay";
  soft_clock_advance(1000);
  EXPECT_EQ(heard.size(), 3u) << "reported once";
  ASSERT_EQ(soft_packet(kDevice, 0, kRoute, to_a, 5, 64, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(state(a), uint32_t{PIPE_ENTRY_ACTIVE});
  soft_clock_advance(200);
  EXPECT_EQ(heard.back(), expired(a)) << "and again after a hit";
  EXPECT_EQ(heard.size(), 4u);
}

TEST_F(Ageing, LooksAtEntriesAtItsSweepsOnly) {
  enable({PIPE_IDLE_NOTIFY, 1000, 0, 0, 0, 0});
  uint32_t entry = 0, forever = 0;
  ASSERT_EQ(add_route(1, 100, &entry), BF_SUCCESS);
  ASSERT_EQ(add_route(2, 0, &forever), BF_SUCCESS);
  soft_clock_advance(999);
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(state(entry), uint32_t{PIPE_ENTRY_ACTIVE});
  soft_clock_advance(1);
  EXPECT_EQ(heard, (std::vector<Expired>{expired(entry)}));
  soft_clock_advance(1000000);
  EXPECT_EQ(heard.size(), 1u) << "no time to live, no end";
}

TEST_F(Ageing, HoldsTimesToLiveWithinTheLimits) {
  uint32_t young = 0, old = 0, none = 0;
  ASSERT_EQ(add_route(1, 10, &young), BF_SUCCESS);
  ASSERT_EQ(add_route(2, 5000, &old), BF_SUCCESS);
  ASSERT_EQ(add_route(3, 0, &none), BF_SUCCESS);
  soft_clock_advance(400);
  enable({PIPE_IDLE_NOTIFY, 0, 1000, 100, 500, 0});
  EXPECT_EQ(ttl(young), 100u);
  EXPECT_EQ(ttl(old), 1000u);
  EXPECT_EQ(ttl(none), 500u);
  uint32_t entry = 0xabcd;
  EXPECT_EQ(add_route(4, 1001, &entry), BF_INVALID_ARGUMENT);
  EXPECT_EQ(add_route(4, 99, &entry), BF_INVALID_ARGUMENT);
  EXPECT_EQ(entry, 0xabcdu);
  EXPECT_EQ(pipe_mgr_mat_ent_set_idle_ttl(session, kDevice, kRoute, old, 2000, 0),
            BF_INVALID_ARGUMENT);
  soft_clock_advance(99);
  EXPECT_TRUE(heard.empty()) << "the time starts when ageing does";
  soft_clock_advance(1);
  EXPECT_EQ(heard, (std::vector<Expired>{expired(young)}));
}

TEST_F(Ageing, TtlAndHitStateAreTheClients) {
  enable({PIPE_IDLE_NOTIFY, 0, 0, 0, 0, 0});
  uint32_t a = 0, b = 0;
  ASSERT_EQ(add_route(1, 100, &a), BF_SUCCESS);
  ASSERT_EQ(add_route(2, 100, &b), BF_SUCCESS);
  soft_clock_advance(60);
  ASSERT_EQ(pipe_mgr_mat_ent_set_idle_ttl(session, kDevice, kRoute, a, 7, 1), BF_SUCCESS);
  EXPECT_EQ(ttl(a), 100u) << "a restart only";
  ASSERT_EQ(pipe_mgr_idle_time_update_hit_state(session, kDevice, kRoute, b, PIPE_ENTRY_IDLE),
            BF_SUCCESS);
  EXPECT_EQ(state(b), uint32_t{PIPE_ENTRY_IDLE});
  soft_clock_advance(60);
  EXPECT_TRUE(heard.empty()) << "b was known to be idle";
  soft_clock_advance(40);
  EXPECT_EQ(heard, (std::vector<Expired>{expired(a)}));
  ASSERT_EQ(pipe_mgr_idle_time_update_hit_state(session, kDevice, kRoute, b, PIPE_ENTRY_ACTIVE),
            BF_SUCCESS);
  EXPECT_EQ(state(b), uint32_t{PIPE_ENTRY_ACTIVE});
  ASSERT_EQ(pipe_mgr_mat_ent_set_idle_ttl(session, kDevice, kRoute, b, 30, 0), BF_SUCCESS);
  soft_clock_advance(30);
  EXPECT_EQ(heard.back(), expired(b));
  EXPECT_EQ(pipe_mgr_idle_time_update_hit_state(session, kDevice, kRoute, b, 2),
            BF_INVALID_ARGUMENT);
  ASSERT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kRoute, b, 0), BF_SUCCESS);
  uint32_t out = 0;
  EXPECT_EQ(pipe_mgr_idle_time_get_hit_state(session, kDevice, kRoute, b, &out),
            BF_OBJECT_NOT_FOUND);
}

TEST_F(Ageing, InPollModeTheClientClearsAndTrafficSets) {
  enable({PIPE_IDLE_POLL, 7, 7, 7, 7, 7});
  uint32_t entry = 0, hit = 0;
  ASSERT_EQ(add_route(1, 100, &entry), BF_SUCCESS);
  soft_clock_advance(100000);
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(state(entry), uint32_t{PIPE_ENTRY_ACTIVE});
  ASSERT_EQ(pipe_mgr_idle_time_update_hit_state(session, kDevice, kRoute, entry, PIPE_ENTRY_IDLE),
            BF_SUCCESS);
  EXPECT_EQ(state(entry), uint32_t{PIPE_ENTRY_IDLE});
  const uint8_t packet[] = {0, 10, 0, 0, 1};
  ASSERT_EQ(soft_packet(kDevice, 1, kRoute, packet, 5, 64, &hit, nullptr), BF_SUCCESS);
  EXPECT_EQ(state(entry), uint32_t{PIPE_ENTRY_ACTIVE});
  pipe_mgr_idle_params_t params{};
  ASSERT_EQ(pipe_mgr_idle_params_get(session, kDevice, kRoute, &params), BF_SUCCESS);
  EXPECT_EQ(params.mode, uint32_t{PIPE_IDLE_POLL});
  EXPECT_EQ(params.reserved, 7u);
}

TEST_F(Ageing, BelongsToTablesThatAgeAndAreSwitchedOn) {
  pipe_mgr_idle_params_t params{};
  EXPECT_EQ(pipe_mgr_idle_tmo_enable(session, kDevice, kHost, params), BF_NOT_SUPPORTED);
  EXPECT_EQ(pipe_mgr_idle_params_get(session, kDevice, kRoute, &params), BF_NOT_READY);
  EXPECT_EQ(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, {2, 0, 0, 0, 0, 0}),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, {1, 0, 100, 200, 0, 0}),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, {1, 0, 100, 50, 101, 0}),
            BF_INVALID_ARGUMENT);
  enable({PIPE_IDLE_NOTIFY, 0, 0, 0, 0, 0});
  uint32_t entry = 0, out = 0;
  ASSERT_EQ(add_route(1, 100, &entry), BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_idle_tmo_disable(session, kDevice, kRoute), BF_SUCCESS);
  soft_clock_advance(500);
  EXPECT_TRUE(heard.empty());
  EXPECT_EQ(pipe_mgr_idle_time_get_hit_state(session, kDevice, kRoute, entry, &out), BF_NOT_READY);
  EXPECT_EQ(ttl(entry), 100u);
}

// Each expiry callback removes the whole table: nothing that is gone may be reported.
struct Clearer {
  uint32_t session;
  std::vector<uint32_t> entries;
  uint32_t calls = 0;
};
void clear_all(bf_device_id_t device, pipe_object_handle_t table, pipe_entry_handle_t, void *data) {
  auto *clearer = static_cast<Clearer *>(data);
  ++clearer->calls;
  for (uint32_t entry : clearer->entries) {
    pipe_mgr_mat_ent_del(clearer->session, device, table, entry, 0);
  }
}

TEST_F(Ageing, DoesNotReportWhatAnEarlierCallbackRemoved) {
  enable({PIPE_IDLE_NOTIFY, 0, 0, 0, 0, 0});
  Clearer clearer{session, {}};
  for (uint32_t i = 0; i < 3; ++i) {
    uint32_t entry = 0;
    ASSERT_EQ(add_route(static_cast<uint8_t>(i), 100, &entry), BF_SUCCESS);
    clearer.entries.push_back(entry);
  }
  ASSERT_EQ(pipe_mgr_idle_register_tmo_cb(session, kDevice, kRoute, clear_all, &clearer),
            BF_SUCCESS);
  soft_clock_advance(100);
  EXPECT_EQ(clearer.calls, 1u);
  EXPECT_EQ(count(kRoute), 0u);
}

// More expire at once than the table hands out under one lock.
TEST_F(Ageing, ReportsEveryEntryOfAMassExpiry) {
  enable({PIPE_IDLE_NOTIFY, 0, 0, 0, 0, 0});
  constexpr uint32_t kMany = 1000;
  const Action hop(14, {0x00, 0x01});
  for (uint32_t i = 0; i < kMany; ++i) {
    const Key key(40, {1, 10, 0, static_cast<uint8_t>(i >> 8), static_cast<uint8_t>(i)},
                  {0xff, 0xff, 0xff, 0xff, 0xff}, 0);
    uint32_t entry = 0;
    ASSERT_EQ(add(kRoute, key, kNextHop, hop, &entry, 50), BF_SUCCESS);
  }
  soft_clock_advance(50);
  EXPECT_EQ(heard.size(), kMany);
}

}  // namespace
