// Devices, sessions, driver clients and statuses.
#include <cjson/cJSON.h>
#include <gtest/gtest.h>

#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

#include "bf_sys.h"
#include "program.hpp"

namespace {

using namespace soft_test;

TEST(Status, EveryCodeHasANameAndOneSentence) {
  std::set<std::string> names, texts;
  for (bf_status_t status = BF_SUCCESS; status <= BF_TABLE_MISS; ++status) {
    names.insert(soft_status_name(status));
    const std::string text = soft_status_text(status);
    EXPECT_EQ(text.find('.'), text.size() - 1) << text;
    texts.insert(text);
  }
  EXPECT_EQ(names.size(), 20u);
  EXPECT_EQ(texts.size(), 20u);
  EXPECT_STREQ(soft_status_name(8), "BF_TABLE_FULL");
  EXPECT_STREQ(soft_status_name(18), "BF_CORRUPT_DATA");
  EXPECT_STREQ(soft_status_text(11), "No session has this handle.");
  EXPECT_STREQ(soft_status_name(20), "unknown status");
  EXPECT_STREQ(soft_status_text(0xffffffff), "The SDK has no status with this code.");
}

const uint64_t clock_at_start = soft_clock_now();

TEST(Clock, StartsAtZeroAndStandsStill) {
  EXPECT_EQ(clock_at_start, 0u);
  const uint64_t now = soft_clock_now();
  soft_clock_advance(7);
  EXPECT_EQ(soft_clock_now(), now + 7);
}

TEST(Device, LivesUnderItsIdUntilItIsRemoved) {
  EXPECT_EQ(soft_device_create(256, 1, &small_program(), false), BF_INVALID_DEVICE);
  EXPECT_EQ(soft_device_create(1, 0, &small_program(), false), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_device_create(1, 9, &small_program(), false), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_device_create(1, 1, nullptr, false), BF_INVALID_ARGUMENT);
  EXPECT_FALSE(soft_device_exists(1));

  OK(soft_device_create(255, 8, &small_program(), true));
  OK(soft_device_create(1, 1, &small_program(), false));
  EXPECT_EQ(soft_device_create(1, 1, &small_program(), false), BF_ALREADY_EXISTS);
  bf_device_id_t ids[2] = {9, 9};
  EXPECT_EQ(soft_device_list(ids, 1), 2u);
  EXPECT_EQ(ids[0], 1u);
  EXPECT_EQ(ids[1], 9u);
  EXPECT_EQ(soft_device_list(ids, 2), 2u);
  EXPECT_EQ(ids[1], 255u);

  OK(soft_device_remove(255));
  EXPECT_EQ(soft_device_remove(255), BF_INVALID_DEVICE);
  OK(soft_device_remove(1));
  EXPECT_EQ(soft_device_list(nullptr, 0), 0u);
}

TEST(Device, RefusesAProgramWithOneHandleForTwoObjects) {
  soft_table_t twice[2] = {small_program().tables[0], small_program().tables[0]};
  soft_program_t broken{};
  broken.tables = twice;
  broken.table_count = 2;
  EXPECT_EQ(soft_device_create(1, 1, &broken, false), BF_INVALID_ARGUMENT);
  EXPECT_FALSE(soft_device_exists(1));
  twice[1].handle = 0x010000ff;
  OK(soft_device_create(1, 1, &broken, false));
  OK(soft_device_remove(1));
}

TEST(Session, HandlesRunOutAndComeBack) {
  std::vector<pipe_session_handle_t> open;
  pipe_session_handle_t session = 0;
  while (soft_session_open(&session) == BF_SUCCESS) open.push_back(session);
  EXPECT_EQ(open.size(), 1024u);
  EXPECT_EQ(std::set(open.begin(), open.end()).size(), 1024u);
  OK(soft_session_close(open[500]));
  OK(soft_session_open(&session));
  EXPECT_NE(session, open[500]) << "a closed handle stays closed";
  open[500] = session;
  for (pipe_session_handle_t one : open) OK(soft_session_close(one));
}

TEST(Allocator, CountsBlocksAndZeroesThem) {
  const uint64_t live = soft_allocations_live();
  const uint64_t made = soft_allocations_made();
  auto *bytes = static_cast<uint8_t *>(bf_sys_calloc(3, 5));
  ASSERT_NE(bytes, nullptr);
  for (int i = 0; i < 15; ++i) EXPECT_EQ(bytes[i], 0);
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
}

// ---- Driver clients ----

std::vector<std::string> told;

bf_status_t first_removed(bf_device_id_t device) {
  told.push_back("first " + std::to_string(device) +
                 (soft_device_exists(device) ? " alive" : " gone"));
  return BF_HARDWARE_FAULT;
}
bf_status_t second_removed(bf_device_id_t device) {
  told.push_back("second " + std::to_string(device));
  return BF_SUCCESS;
}
bf_status_t second_log(uint8_t device, cJSON *document) {
  cJSON_AddNumberToObject(document, "device", device);
  return BF_SUCCESS;
}
bf_status_t second_restore(uint8_t device, cJSON *document) {
  const cJSON *saved = cJSON_GetObjectItem(document, "device");
  told.push_back("restore " + std::to_string(device) + " from " + std::to_string(saved->valueint));
  return BF_SUCCESS;
}

class Clients : public testing::Test {
 protected:
  void SetUp() override {
    told.clear();
    OK(bf_drv_register("second", &second));
    OK(bf_drv_register("first", &first));
    bf_drv_client_callbacks_t callbacks{};
    callbacks.device_remove = second_removed;
    callbacks.device_log = second_log;
    callbacks.device_restore = second_restore;
    OK(bf_drv_client_register_callbacks(second, &callbacks, 2));
    callbacks = {};
    callbacks.device_remove = first_removed;
    OK(bf_drv_client_register_callbacks(first, &callbacks, 1));
    OK(soft_device_create(7, 1, &small_program(), false));
    OK(soft_device_create(8, 1, &small_program(), false));
  }
  void TearDown() override {
    for (bf_device_id_t device : {7u, 8u}) {
      if (soft_device_exists(device)) {
        OK(soft_device_remove(device));
      }
    }
    bf_drv_deregister(first);
    bf_drv_deregister(second);
  }

  uint32_t first = 0;
  uint32_t second = 0;
};

TEST_F(Clients, AreKeptUnderNameAndHandle) {
  uint32_t again = 0;
  EXPECT_EQ(bf_drv_register("first", &again), BF_ALREADY_EXISTS);
  EXPECT_EQ(again, 0u);
  EXPECT_EQ(soft_client_count(), 2u);
  uint32_t handle = 0, priority = 0;
  bf_drv_client_callbacks_t callbacks{};
  OK(soft_client_get("second", &handle, &priority, &callbacks));
  EXPECT_EQ(handle, second);
  EXPECT_EQ(priority, 2u);
  EXPECT_EQ(callbacks.device_log, second_log);
  EXPECT_EQ(callbacks.reserved_after[22], nullptr);
  EXPECT_EQ(soft_client_get("third", &handle, nullptr, nullptr), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(bf_drv_client_register_callbacks(0xffff, &callbacks, 1), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(bf_drv_client_register_callbacks(first, nullptr, 1), BF_INVALID_ARGUMENT);
  OK(bf_drv_deregister(first));
  EXPECT_EQ(bf_drv_deregister(first), BF_OBJECT_NOT_FOUND);
}

TEST_F(Clients, HearOfRemovalByPriorityWhileTheDeviceLives) {
  OK(soft_device_remove(7)) << "their statuses are not looked at";
  EXPECT_EQ(told, (std::vector<std::string>{"first 7 alive", "second 7"}));
  EXPECT_FALSE(soft_device_exists(7));
  OK(bf_drv_deregister(second));
  told.clear();
  OK(soft_device_remove(8));
  EXPECT_EQ(told, (std::vector<std::string>{"first 8 alive"}));
}

TEST_F(Clients, LogAndRestoreTheirState) {
  cJSON *document = cJSON_CreateObject();
  EXPECT_EQ(soft_device_log(9, document), BF_INVALID_DEVICE);
  OK(soft_device_log(7, document));
  char *text = cJSON_PrintUnformatted(document);
  EXPECT_STREQ(text, R"({"clients":[{"client":"second","state":{"device":7}}]})");
  cJSON_free(text);
  OK(soft_device_restore(8, document));
  EXPECT_EQ(told, (std::vector<std::string>{"restore 8 from 7"}));
  cJSON_Delete(document);

  cJSON *foreign = cJSON_Parse(R"({"clients":[{"client":"secon","state":{"device":7}},{}]})");
  OK(soft_device_restore(8, foreign)) << "no state for it: nothing to do";
  EXPECT_EQ(told.size(), 1u);
  cJSON_Delete(foreign);
  cJSON *shapeless = cJSON_Parse(R"({"clients":7})");
  EXPECT_EQ(soft_device_restore(8, shapeless), BF_CORRUPT_DATA);
  cJSON_Delete(shapeless);
}

// ---- Threads ----

bf_status_t remove_status = 0;
void remove_own_device(pipe_session_handle_t, bf_device_id_t device, pipe_object_handle_t, uint32_t,
                       pipe_entry_handle_t, void *) {
  remove_status = soft_device_remove(device);
}

TEST(Removal, IsRefusedFromInsideACallback) {
  pipe_session_handle_t session = 0;
  OK(soft_session_open(&session));
  OK(soft_device_create(4, 1, &small_program(), false));
  OK(pipe_register_mat_update_cb(session, 4, kHost, remove_own_device, nullptr));
  OK(pipe_mgr_mat_tbl_default_entry_reset(session, 4, 0, kHost, 0));
  EXPECT_EQ(remove_status, BF_IN_USE);
  OK(soft_device_remove(4));
  soft_session_close(session);
}

// Calls on a device that comes and goes find it or do not; nothing else.
TEST(Removal, WaitsForCallsInProgress) {
  pipe_session_handle_t session = 0;
  OK(soft_session_open(&session));
  std::atomic<bool> stop{false};
  std::atomic<uint32_t> served{0}, missed{0}, other{0};
  std::vector<std::thread> callers;
  for (int i = 0; i < 3; ++i) {
    callers.emplace_back([&] {
      while (!stop) {
        pipe_entry_handle_t entry = 0;
        const bf_status_t status =
            pipe_mgr_table_get_default_entry_handle(session, 5, 0, kHost, &entry);
        ++(status == BF_SUCCESS ? served : status == BF_INVALID_DEVICE ? missed : other);
      }
    });
  }
  uint32_t rounds = 0;
  while (rounds < 100 || served < 10 || missed < 10) {
    OK(soft_device_create(5, 1, &small_program(), false));
    std::this_thread::yield();
    OK(soft_device_remove(5));
    std::this_thread::yield();
    ++rounds;
  }
  stop = true;
  for (std::thread &caller : callers) caller.join();
  EXPECT_EQ(other, 0u);
  soft_session_close(session);
}

}  // namespace
