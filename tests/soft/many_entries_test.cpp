// A table at a size that the model does not reach: handles, walks and memory.
#include <set>

#include "program.hpp"

namespace {

using namespace soft_test;

class ManyEntries : public SoftTest {
 protected:
  uint32_t add(uint32_t number) const {
    uint32_t entry = 0;
    OK(add_host(number, &entry));
    return entry;
  }
  bf_status_t remove(uint32_t entry) const {
    return pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0);
  }
  bf_status_t next(uint32_t after, Words *handles) const {
    const auto room = static_cast<uint32_t>(handles->size());
    const bf_status_t status = pipe_mgr_get_next_entry_handles(session, kHost, kDevice, kAll, after,
                                                               room, handles->data());
    std::erase(*handles, kNone);
    return status;
  }
  uint64_t bytes(uint32_t table = kHost) const {
    uint64_t held = 0;
    OK(soft_memory_bytes(kDevice, table, &held));
    return held;
  }
};

TEST_F(ManyEntries, StaleHandlesStayUnknown) {
  const uint32_t stale = add(1);
  OK(remove(stale));
  for (int i = 1; i < 65536; ++i) {
    const uint32_t handle = add(1);
    ASSERT_TRUE(handle != stale && handle != kNone);
    ASSERT_EQ(remove(stale), BF_OBJECT_NOT_FOUND);
    OK(remove(handle));
  }
  for (const uint32_t never : {kNone, 5000u}) EXPECT_EQ(remove(never), BF_OBJECT_NOT_FOUND);
}

TEST_F(ManyEntries, AWalkHoldsWhileEntriesComeAndGo) {
  Words handles, ahead(9);
  for (uint32_t i = 0; i < 6; ++i) handles.push_back(add(i));
  OK(remove(handles[0]));  // the one we stand on
  OK(remove(handles[1]));  // and the one ahead
  handles.push_back(add(99));
  OK(next(handles[0], &ahead));
  EXPECT_EQ(ahead, Words(handles.begin() + 2, handles.end()));
  EXPECT_EQ(next(0x00001000, &ahead), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(next(handles[3] | 0x04000000, &ahead),  // a generation that was never issued
            BF_OBJECT_NOT_FOUND);
}

TEST_F(ManyEntries, GrowOverManyChunksAndDrain) {
  constexpr uint32_t kMany = 300000;
  Words handles;
  for (uint32_t i = 0; i < kMany; ++i) handles.push_back(add(i));
  ASSERT_EQ(std::set<uint32_t>(handles.begin(), handles.end()).size(), kMany);
  const auto is_left = [](uint32_t i) { return i == 5 || i == 262143; };
  for (uint32_t i = 0; i < kMany; ++i) {
    if (is_left(i)) continue;
    ASSERT_EQ(remove(handles[i]), BF_SUCCESS);
  }
  Words ahead(2);
  OK(next(handles[5], &ahead));
  EXPECT_EQ(ahead, Words{handles[262143]}) << "alone behind many free places";
  for (uint32_t i = 0; i < kMany; ++i) {
    if (!is_left(i)) handles[i] = add(i);
  }
  const uint8_t packet[] = {0x03, 0xe8, 0x00};  // number 251904
  uint32_t hit = 0;
  OK(soft_lookup(kDevice, 0, kHost, packet, 3, &hit, nullptr));
  EXPECT_EQ(hit, handles[251904]);
  EXPECT_LT(bytes(), uint64_t{kMany} * 72) << "slots are used again";
  for (const uint32_t entry : handles) ASSERT_EQ(remove(entry), BF_SUCCESS);
  EXPECT_LT(bytes(), uint64_t{kMany} * 2) << "the generations of the slots";
  for (uint32_t i = 0; i < kMany; ++i) ASSERT_NE(add(i), handles[i]);
}

// Two entries that packets hit alike, the newer one in a slot that was in use before.
TEST_F(ManyEntries, TheOlderOfTwoThatPacketsHitAlikeWins) {
  const auto add_tunnel = [&](uint8_t uncompared, uint32_t number) {
    Bytes value(10);
    value[0] = uncompared;
    value[8] = static_cast<uint8_t>(number >> 8);
    value[9] = static_cast<uint8_t>(number);
    const Key key(80, value, Bytes(10, 255));
    const Action deny;
    uint32_t entry = 0;
    OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kTunnel, &key.spec, kDeny, &deny.spec, 0, 0,
                            &entry));
    return entry;
  };
  Words entries;
  for (uint32_t i = 0; i < 1100; ++i) entries.push_back(add_tunnel(0, i));
  const uint32_t older = entries.back();
  entries.pop_back();
  for (const uint32_t entry : entries)
    OK(pipe_mgr_mat_ent_del(session, kDevice, kTunnel, entry, 0));
  uint32_t first = 0, hit = 0;
  const uint32_t newer = add_tunnel(0x80, 1099);
  OK(pipe_mgr_get_first_entry_handle(session, kTunnel, kDevice, 0, &first));
  ASSERT_EQ(first, newer) << "its slot is the lower one";
  const uint8_t packet[] = {0, 0, 0, 0, 0, 0, 0, 0, 1099 >> 8, 1099 & 255};
  OK(soft_lookup(kDevice, 0, kTunnel, packet, 10, &hit, nullptr));
  EXPECT_EQ(hit, older);
}

// Slots that are used again hold nothing of the entries before: no deadline, no resources.
TEST_F(ManyEntries, NothingIsLeftOfEntriesThatAreGone) {
  std::set<uint32_t> expired, rules, routes;
  const auto note = [](bf_device_id_t, uint32_t, uint32_t entry, void *to) {
    static_cast<std::set<uint32_t> *>(to)->insert(entry);
  };
  OK(pipe_mgr_idle_register_tmo_cb(session, kDevice, kRoute, note, &expired));
  OK(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, {PIPE_IDLE_NOTIFY, 0, 0, 0, 0, 0}));
  uint64_t held = 0;
  for (int round = 0; round < 3; ++round) {
    for (uint32_t i = 0; i < 3000; ++i) {
      const Bytes number = {static_cast<uint8_t>(i >> 8), static_cast<uint8_t>(i)};
      const Key key(16, number, Bytes(2, 255));
      const Key route(40, {1, 1, static_cast<uint8_t>(round), number[0], number[1]}, Bytes(5, 255));
      Action deny;
      deny.resource(kAclCount, i);
      const Action hop(14, number);
      uint32_t entry = 0;
      OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kAcl, &key.spec, kDeny, &deny.spec, 0, 0,
                              &entry));
      rules.insert(entry);
      OK(pipe_mgr_mat_ent_add(session, kDevice, kAll, kRoute, &route.spec, kNextHop, &hop.spec, 500,
                              0, &entry));
      routes.insert(entry);
    }
    for (const uint32_t entry : rules) OK(pipe_mgr_mat_ent_del(session, kDevice, kAcl, entry, 0));
    rules.clear();
    const uint64_t before = std::exchange(held, bytes(kAcl));
    EXPECT_TRUE(round < 2 || held == before) << held - before << " bytes";
    for (auto at = routes.begin(); round < 2 && at != routes.end();) {
      const uint32_t entry = *at++;
      if (entry % 3 == 0) continue;
      OK(pipe_mgr_mat_ent_del(session, kDevice, kRoute, entry, 0));
      routes.erase(entry);
    }
  }
  OK(soft_device_clock_advance(kDevice, 500));
  EXPECT_EQ(expired, routes);
}

}  // namespace
