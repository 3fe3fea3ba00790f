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

TEST_F(Journal, HasNullPointersRoomAndResultsApart) {
  EXPECT_EQ(
      pipe_mgr_mat_ent_add(session, kDevice, 0, kHost, nullptr, kDrop, nullptr, 0, 0, nullptr),
      BF_INVALID_ARGUMENT);
  uint32_t entry = 0, action = 0, next[2];
  OK(add_host(1, &entry));
  Key room(20, {9, 9, 9}, {9, 9, 9});
  Action data(0, Bytes(28));
  OK(pipe_mgr_get_entry(session, kHost, kDevice, entry, &room.spec, &data.spec, &action, true));
  EXPECT_EQ(pipe_mgr_get_next_entry_handles(session, kHost, kDevice, 0, entry, 2, next),
            BF_OBJECT_NOT_FOUND);
  room.value.assign(3, 0xee);  // what was recorded must not follow

  const auto calls = journal::calls();
  ASSERT_EQ(calls.size(), 4u);
  for (const char *name : {"match", "action_spec", "entry"}) EXPECT_TRUE(calls[0].is_null(name));
  EXPECT_TRUE(calls[0].results.empty());
  EXPECT_EQ(calls[1].thread, std::this_thread::get_id());
  EXPECT_THROW(calls[1].argument("entri"), std::out_of_range);
  EXPECT_THROW(calls[1].get<Bytes>("match"), std::logic_error);
  EXPECT_EQ(calls[2].get<journal::MatchSpec>("match").value, Bytes{}) << "room, not contents";
  EXPECT_EQ(calls[2].get<journal::ActionSpec>("action_spec").data.byte_count, 28);
  EXPECT_EQ(calls[2].got<journal::MatchSpec>("match").value, (Bytes{0x00, 0x10, 0x01}));
  EXPECT_EQ(calls[2].got<journal::ActionSpec>("action_spec").data.bytes, (Bytes{0x00, 0x01}));
  EXPECT_TRUE(calls[3].results.empty());
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
  const uint64_t live = soft_allocations_live();
  faults::fail_allocation(2);
  auto *bytes = static_cast<uint8_t *>(bf_sys_calloc(3, 5));
  ASSERT_NE(bytes, nullptr);
  EXPECT_EQ(Bytes(bytes, bytes + 15), Bytes(15));
  EXPECT_EQ(bf_sys_calloc(1, 8), nullptr);
  EXPECT_EQ(soft_allocations_live(), live + 1);
  bf_sys_free(bytes);
  bf_sys_free(nullptr);
  volatile size_t huge = SIZE_MAX / 2;
  EXPECT_EQ(bf_sys_calloc(huge, 4), nullptr);
  EXPECT_TRUE(journal::calls().empty()) << "the allocator is counted, not recorded";
}

}  // namespace
