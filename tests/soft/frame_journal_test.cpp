// The call journal and the fault plan.
#include <gtest/gtest.h>

#include <thread>

#include "bf_sys.h"
#include "program.hpp"
#include "soft_journal.hpp"

namespace {

using namespace soft_test;
namespace journal = soft::journal;
namespace faults = soft::faults;

class Journal : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    journal::start();
  }
  void TearDown() override {
    journal::stop();
    journal::clear();
    faults::clear();
    SoftTest::TearDown();
  }
};

TEST_F(Journal, CopiesEveryArgumentOfAnAdd) {
  Key key(16, {0x08, 0x00}, {0xff, 0xf0}, 10);
  Action permit(35, {0, 0, 0, 0, 7});
  permit.resource(kAclCount, 12, PIPE_RESOURCE_ATTACH);
  auto &meter = permit.resource(kAclMeter, 0, PIPE_RESOURCE_ATTACH);
  meter.data.meter.committed_rate = {PIPE_RATE_BYTES, 640};
  uint32_t entry = 0;
  OK(pipe_mgr_mat_ent_add(session, kDevice, 1, kAcl, &key.spec, kPermit, &permit.spec, 5, 0,
                          &entry));
  key.value.assign(2, 0xee);  // what was recorded must not follow
  key.mask.assign(2, 0xee);
  permit.bytes.assign(5, 0xee);
  permit.spec.resources[1].data.meter.committed_rate.value = 1;

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 1u);
  const journal::Call &call = calls[0];
  EXPECT_EQ(call.function, "pipe_mgr_mat_ent_add");
  EXPECT_EQ(call.number, 1u);
  EXPECT_EQ(call.thread, std::this_thread::get_id());
  EXPECT_TRUE(call.finished);
  EXPECT_TRUE(call.performed);
  OK(call.status);
  ASSERT_EQ(call.arguments.size(), 10u);
  EXPECT_EQ(call.scalar("session"), session);
  EXPECT_EQ(call.scalar("device"), kDevice);
  EXPECT_EQ(call.scalar("pipe"), 1u);
  EXPECT_EQ(call.scalar("table"), kAcl);
  EXPECT_EQ(call.scalar("action"), kPermit);
  EXPECT_EQ(call.scalar("ttl"), 5u);
  EXPECT_EQ(call.scalar("flags"), 0u);
  const auto &match = call.get<journal::MatchSpec>("match");
  EXPECT_EQ(match.valid_bit_count, 16);
  EXPECT_EQ(match.byte_count, 2);
  EXPECT_EQ(match.value, (Bytes{0x08, 0x00}));
  EXPECT_EQ(match.mask, (Bytes{0xff, 0xf0}));
  EXPECT_EQ(match.priority, 10u);
  const auto &spec = call.get<journal::ActionSpec>("action_spec");
  EXPECT_EQ(spec.type, 1u);
  EXPECT_EQ(spec.data.valid_bit_count, 35);
  EXPECT_EQ(spec.data.bytes, (Bytes{0, 0, 0, 0, 7}));
  ASSERT_EQ(spec.resources.size(), 2u);
  EXPECT_EQ(spec.resources[0].handle, kAclCount);
  EXPECT_EQ(spec.resources[0].index, 12u);
  EXPECT_EQ(spec.resources[1].data.meter.committed_rate.value, 640u);
  EXPECT_TRUE(std::holds_alternative<journal::Output>(call.argument("entry")));
  EXPECT_EQ(call.got<uint64_t>("entry"), entry);
  EXPECT_EQ(call.results.size(), 1u);
  EXPECT_THROW(call.argument("entri"), std::out_of_range);
  EXPECT_THROW(call.get<Bytes>("match"), std::logic_error);
}

TEST_F(Journal, TellsNullPointersBuffersAndResultsApart) {
  EXPECT_EQ(
      pipe_mgr_mat_ent_add(session, kDevice, 0, kHost, nullptr, kDrop, nullptr, 0, 0, nullptr),
      BF_INVALID_ARGUMENT);
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  Key room(20, {9, 9, 9}, {9, 9, 9});
  Action data(0, Bytes(28));
  uint32_t action = 0;
  OK(pipe_mgr_get_entry(session, kHost, kDevice, entry, &room.spec, &data.spec, &action, true));
  uint32_t next[2] = {};
  EXPECT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 0, entry, 2, next),
            BF_OBJECT_NOT_FOUND);

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 4u);
  for (const char *name : {"match", "action_spec", "entry"}) {
    EXPECT_TRUE(calls[0].is_null(name)) << name;
  }
  EXPECT_EQ(calls[0].status, BF_INVALID_ARGUMENT);
  EXPECT_TRUE(calls[0].results.empty());

  const auto &asked = calls[2].get<journal::MatchSpec>("match");
  EXPECT_EQ(asked.byte_count, 3);
  EXPECT_EQ(asked.value, Bytes{}) << "room, not contents";
  EXPECT_EQ(calls[2].get<journal::ActionSpec>("action_spec").data.byte_count, 28);
  EXPECT_EQ(calls[2].scalar("read_from_hardware"), 1u);
  EXPECT_EQ(calls[2].got<journal::MatchSpec>("match").value, (Bytes{0x00, 0x10, 0x01}));
  EXPECT_EQ(calls[2].got<journal::ActionSpec>("action_spec").data.bytes, (Bytes{0x00, 0x01}));
  EXPECT_EQ(calls[2].got<uint64_t>("action"), kForward);

  EXPECT_EQ(calls[3].scalar("count"), 2u);
  EXPECT_TRUE(std::holds_alternative<journal::Output>(calls[3].argument("entries")));
  EXPECT_TRUE(calls[3].results.empty());
  EXPECT_EQ(journal::calls("pipe_mgr_get_entry").size(), 1u);
}

TEST_F(Journal, TakesArraysTextsAndRecordsByValue) {
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  pipe_mgr_resource_t resources[2] = {};
  resources[1].handle = 0x04000001;
  EXPECT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kHost, entry, resources, 2, 0),
            BF_INVALID_HANDLE);
  uint32_t client = 0;
  OK(bf_drv_register("a client", &client));
  OK(bf_drv_deregister(client));
  const pipe_mgr_idle_params_t params{PIPE_IDLE_NOTIFY, 10, 0, 0, 300, 0};
  OK(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, params));
  int cookie = 0;
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, nullptr, &cookie));

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 6u);
  const auto &list = calls[1].get<std::vector<pipe_mgr_resource_t>>("resources");
  ASSERT_EQ(list.size(), 2u);
  EXPECT_EQ(list[1].handle, 0x04000001u);
  EXPECT_EQ(calls[2].get<std::string>("client_name"), "a client");
  EXPECT_EQ(calls[2].got<uint64_t>("client"), client);
  EXPECT_EQ(calls[4].get<pipe_mgr_idle_params_t>("params").default_ttl_ms, 300u);
  EXPECT_TRUE(calls[5].is_null("callback"));
  EXPECT_EQ(calls[5].get<journal::Opaque>("cookie").address, reinterpret_cast<uintptr_t>(&cookie));
}

void add_another(pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t,
                 uint32_t, pipe_entry_handle_t, void *) {
  pipe_register_mat_update_cb(session, device, kHost, nullptr, nullptr);
}

TEST_F(Journal, ListsACallBeforeTheCallsFromItsCallback) {
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, add_another, nullptr));
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 3u);
  EXPECT_EQ(calls[1].function, "pipe_mgr_mat_ent_add");
  EXPECT_EQ(calls[2].function, "pipe_register_mat_update_cb");
  EXPECT_EQ(calls[2].number, 3u);

  journal::stop();
  OK(add_host(2, &entry));
  EXPECT_EQ(journal::calls().size(), 3u) << "stopped, but kept";
  journal::start();
  EXPECT_TRUE(journal::calls().empty());
}

void restart_journal(pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t,
                     uint32_t, pipe_entry_handle_t, void *) {
  journal::start();
  pipe_register_mat_update_cb(session, device, 0, nullptr, nullptr);
}

TEST_F(Journal, ForgetsACallThatWasInProgressWhenItStartedAnew) {
  uint32_t entry = 0;
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, restart_journal, nullptr));
  journal::start();  // so that both calls have number 1
  OK(add_host(1, &entry));
  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].function, "pipe_register_mat_update_cb");
  EXPECT_EQ(calls[0].status, BF_INVALID_HANDLE) << "not that of the call before";
  EXPECT_TRUE(calls[0].results.empty());
}

// ---- Faults ----

TEST_F(Journal, StandsInForTheNthCallOfAFunction) {
  faults::fail_call("pipe_mgr_mat_ent_add", 2, BF_HARDWARE_FAULT);
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  EXPECT_EQ(count(kHost), 1u);
  entry = 0xabcd;
  EXPECT_EQ(add_host(2, &entry), BF_HARDWARE_FAULT);
  EXPECT_EQ(entry, 0xabcdu);
  EXPECT_EQ(count(kHost), 1u) << "not performed";
  EXPECT_EQ(faults::pending(), 0u);
  OK(add_host(2, &entry)) << "strikes once";
  const auto adds = journal::calls("pipe_mgr_mat_ent_add");
  ASSERT_EQ(adds.size(), 3u);
  EXPECT_FALSE(adds[1].performed);
  EXPECT_TRUE(adds[1].finished);
  EXPECT_EQ(adds[1].status, BF_HARDWARE_FAULT);
  EXPECT_EQ(adds[1].get<journal::MatchSpec>("match").value, (Bytes{0x00, 0x10, 0x02}));
}

TEST_F(Journal, FaultsWorkWithoutTheJournalAndOnAnyFunction) {
  journal::stop();
  faults::fail_any_call(3, BF_NOT_READY);
  faults::fail_call("pipe_mgr_mat_ent_del", 1, BF_IN_USE);
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_IN_USE);
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_NOT_READY);
  OK(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0));
  faults::fail_any_call(1, BF_NOT_READY);
  EXPECT_EQ(faults::pending(), 1u);
  faults::clear();
  EXPECT_EQ(count(kHost), 0u);
}

TEST_F(Journal, TheNthAllocationFails) {
  const uint64_t live = soft_allocations_live();
  faults::fail_allocation(2);
  void *first = bf_sys_calloc(1, 8);
  EXPECT_NE(first, nullptr);
  EXPECT_EQ(bf_sys_calloc(1, 8), nullptr);
  void *third = bf_sys_calloc(1, 8);
  EXPECT_NE(third, nullptr);
  EXPECT_EQ(soft_allocations_live(), live + 2);
  bf_sys_free(first);
  bf_sys_free(third);
  EXPECT_TRUE(journal::calls().empty()) << "the allocator is counted, not recorded";
}

}  // namespace
