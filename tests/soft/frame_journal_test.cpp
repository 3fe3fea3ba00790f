// The call journal and the fault plan.
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
  uint32_t entry = 0;
  OK(pipe_mgr_mat_ent_add(session, kDevice, 1, kAcl, &key.spec, kPermit, &permit.spec, 5, 3,
                          &entry));
  key.value.assign(2, 0xee);  // what was recorded must not follow
  permit.bytes.assign(5, 0xee);
  permit.spec.resources[0].index = 1;

  const journal::Call call = journal::calls().at(0);
  EXPECT_EQ(call.function, "pipe_mgr_mat_ent_add");
  EXPECT_EQ(call.number, 1u);
  EXPECT_EQ(call.thread, std::this_thread::get_id());
  EXPECT_EQ(call.status, BF_SUCCESS);
  ASSERT_EQ(call.arguments.size(), 10u);
  const std::pair<const char *, uint64_t> scalars[] = {
      {"pipe", 1}, {"table", kAcl}, {"ttl", 5}, {"action", kPermit}, {"flags", 3}};
  for (const auto &[name, value] : scalars) EXPECT_EQ(call.scalar(name), value) << name;
  const auto &match = call.get<journal::MatchSpec>("match");
  EXPECT_EQ(match.valid_bit_count, 16);
  EXPECT_EQ(match.byte_count, 2);
  EXPECT_EQ(match.value, (Bytes{0x08, 0x00}));
  EXPECT_EQ(match.mask, (Bytes{0xff, 0xf0}));
  EXPECT_EQ(match.priority, 10u);
  const auto &spec = call.get<journal::ActionSpec>("action_spec");
  EXPECT_EQ(spec.type, 1u);
  EXPECT_EQ(spec.data.bytes, (Bytes{0, 0, 0, 0, 7}));
  EXPECT_EQ(spec.resources.at(0).index, 12u);
  EXPECT_TRUE(std::holds_alternative<journal::Output>(call.argument("entry")));
  EXPECT_EQ(call.got<uint64_t>("entry"), entry);
  EXPECT_EQ(call.results.size(), 1u);
  EXPECT_THROW(call.argument("entri"), std::out_of_range);
  EXPECT_THROW(call.get<Bytes>("match"), std::logic_error);
}

TEST_F(Journal, HasNullPointersRoomAndResultsApart) {
  EXPECT_EQ(
      pipe_mgr_mat_ent_add(session, kDevice, 0, kHost, nullptr, kDrop, nullptr, 0, 0, nullptr),
      BF_INVALID_ARGUMENT);
  uint32_t entry = 0, action = 0, filled = 0, next[2];
  OK(add_host(1, &entry));
  Key room(20, {9, 9, 9}, {9, 9, 9});
  Action data(0, Bytes(28));
  OK(pipe_mgr_get_entry(session, kHost, kDevice, entry, &room.spec, &data.spec, &action, true));
  EXPECT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 0, entry, 2, next),
            BF_OBJECT_NOT_FOUND);
  const pipe_stful_cell_t seven{7};
  OK(pipe_stful_ent_set(session, kDevice, kAll, kByteRegister, 5, &seven, 0));
  pipe_stful_cell_t cells[2] = {};
  pipe_stful_query_t query{2, cells};
  OK(pipe_stful_ent_query_range(session, kDevice, kAll, kByteRegister, 5, 1, &query, &filled,
                                true));

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 6u);
  for (const char *name : {"match", "action_spec", "entry"}) EXPECT_TRUE(calls[0].is_null(name));
  EXPECT_EQ(calls[0].status, BF_INVALID_ARGUMENT);
  EXPECT_TRUE(calls[0].results.empty());
  EXPECT_EQ(calls[2].get<journal::MatchSpec>("match").value, Bytes{}) << "room, not contents";
  EXPECT_EQ(calls[2].get<journal::ActionSpec>("action_spec").data.byte_count, 28);
  EXPECT_EQ(calls[2].got<journal::MatchSpec>("match").value, (Bytes{0x00, 0x10, 0x01}));
  EXPECT_EQ(calls[2].got<journal::ActionSpec>("action_spec").data.bytes, (Bytes{0x00, 0x01}));
  EXPECT_TRUE(std::holds_alternative<journal::Output>(calls[3].argument("entries")));
  EXPECT_TRUE(calls[3].results.empty());
  EXPECT_EQ(calls[5].got<std::vector<journal::Query>>("queries").at(0).cells->at(1).bit, 7);
  EXPECT_EQ(journal::calls("pipe_mgr_get_entry").size(), 1u);
}

TEST_F(Journal, TakesArraysTextsAndRecordsByValue) {
  pipe_mgr_resource_t resources[2] = {};
  resources[1].handle = kHostCount;
  EXPECT_EQ(pipe_mgr_mat_ent_set_resource(session, kDevice, kHost, 1, resources, 2, 0),
            BF_OBJECT_NOT_FOUND);
  uint32_t client = 0, snapshot = 0;
  OK(bf_drv_register("a client", &client));
  OK(bf_drv_deregister(client));
  OK(pipe_mgr_idle_tmo_enable(session, kDevice, kRoute, {PIPE_IDLE_NOTIFY, 10, 0, 0, 300, 0}));
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, nullptr, &client));
  OK(bf_snapshot_create(kDevice, 0, 0, 0, 0, &snapshot));
  const Bytes value{0x12, 0x34, 0, 1}, mask{0xff, 0xff, 0, 0};
  OK(bf_snapshot_capture_trigger_set(snapshot, value.data(), mask.data()));

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 7u);
  EXPECT_EQ(calls[0].get<std::vector<pipe_mgr_resource_t>>("resources").at(1).handle, kHostCount);
  EXPECT_EQ(calls[1].get<std::string>("client_name"), "a client");
  EXPECT_EQ(calls[1].got<uint64_t>("client"), client);
  EXPECT_EQ(calls[3].get<pipe_mgr_idle_params_t>("params").default_ttl_ms, 300u);
  EXPECT_TRUE(calls[4].is_null("callback"));
  EXPECT_EQ(calls[4].get<journal::Opaque>("cookie").address, reinterpret_cast<uintptr_t>(&client));
  EXPECT_EQ(calls[6].get<Bytes>("value"), value);
  EXPECT_EQ(calls[6].get<Bytes>("mask"), mask);
}

void stop_listening(pipe_session_handle_t session, bf_device_id_t device, pipe_object_handle_t,
                    uint32_t, pipe_entry_handle_t, void *restarts) {
  if (restarts != nullptr) journal::start();
  pipe_register_mat_update_cb(session, device, kHost, nullptr, nullptr);
}

TEST_F(Journal, ListsACallBeforeThoseFromItsCallback) {
  uint32_t entry = 0;
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, stop_listening, nullptr));
  OK(add_host(1, &entry));
  ASSERT_EQ(journal::calls().size(), 3u);
  EXPECT_EQ(journal::calls()[1].function, "pipe_mgr_mat_ent_add");
  EXPECT_EQ(journal::calls()[2].number, 3u);
  journal::stop();
  OK(add_host(2, &entry));
  EXPECT_EQ(journal::calls().size(), 3u) << "stopped, but kept";
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, stop_listening, &entry));
  journal::start();  // so that both calls have number 1
  OK(add_host(3, &entry));
  ASSERT_EQ(journal::calls().size(), 1u);
  EXPECT_EQ(journal::calls()[0].function, "pipe_register_mat_update_cb");
  EXPECT_TRUE(journal::calls()[0].results.empty()) << "not those of the call before";
}

// ---- Faults ----

TEST_F(Journal, AFaultStandsInForACallOnce) {
  faults::fail_call("pipe_mgr_mat_ent_add", 2, BF_HARDWARE_FAULT);
  uint32_t entry = 0;
  OK(add_host(1, &entry));
  entry = kNowhere;
  EXPECT_EQ(add_host(2, &entry), BF_HARDWARE_FAULT);
  EXPECT_EQ(entry, kNowhere);
  EXPECT_EQ(count(kHost), 1u) << "not performed";
  EXPECT_EQ(faults::pending(), 0u);
  OK(add_host(2, &entry)) << "strikes once";
  const auto adds = journal::calls("pipe_mgr_mat_ent_add");
  ASSERT_EQ(adds.size(), 3u);
  EXPECT_FALSE(adds[1].performed);
  EXPECT_TRUE(adds[1].finished);
  EXPECT_EQ(adds[1].status, BF_HARDWARE_FAULT);

  journal::stop();
  faults::fail_any_call(3, BF_NOT_READY);
  faults::fail_call("pipe_mgr_mat_ent_del", 1, BF_IN_USE);
  OK(add_host(3, &entry));
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_IN_USE);
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0), BF_NOT_READY);
  faults::fail_any_call(1, BF_NOT_READY);
  EXPECT_EQ(faults::pending(), 1u);
  faults::clear();
  OK(pipe_mgr_mat_ent_del(session, kDevice, kHost, entry, 0));
}

TEST_F(Journal, BlocksAreZeroedCountedAndFailAsPlanned) {
  const uint64_t live = soft_allocations_live(), made = soft_allocations_made();
  faults::fail_allocation(2);
  auto *bytes = static_cast<uint8_t *>(bf_sys_calloc(3, 5));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(Bytes(bytes, bytes + 15), Bytes(15));
  EXPECT_EQ(bf_sys_calloc(1, 8), nullptr);
  void *nothing = bf_sys_calloc(0, 8);
  EXPECT_NE(nothing, nullptr);
  EXPECT_EQ(soft_allocations_live(), live + 2);
  bf_sys_free(bytes);
  bf_sys_free(nothing);
  bf_sys_free(nullptr);
  EXPECT_EQ(soft_allocations_live(), live);
  EXPECT_EQ(soft_allocations_made(), made + 2);
  volatile size_t huge = SIZE_MAX / 2;
  EXPECT_EQ(bf_sys_calloc(huge, 4), nullptr);
  EXPECT_TRUE(journal::calls().empty()) << "the allocator is counted, not recorded";
}

}  // namespace
