// Devices, sessions, driver clients and statuses.
#include <cjson/cJSON.h>
#include <atomic>
#include <set>
#include <string>
#include <thread>
#include <vector>

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

// ---- Driver clients ----

using Texts = std::vector<std::string>;
Texts told;

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

class Clients : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    told.clear();
    bf_drv_client_callbacks_t callbacks{};
    callbacks.device_remove = second_removed;
    callbacks.device_log = second_log;
    callbacks.device_restore = second_restore;
    OK(bf_drv_register("second", &second));
    OK(bf_drv_register("first", &first));
    OK(bf_drv_client_register_callbacks(second, &callbacks, 2));
    callbacks = {};
    callbacks.device_remove = first_removed;
    OK(bf_drv_client_register_callbacks(first, &callbacks, 1));
    OK(soft_device_create(8, 1, &small_program(), false));
  }
  void TearDown() override {
    OK(bf_drv_deregister(second));
    OK(soft_device_remove(8));
    SoftTest::TearDown();
    OK(bf_drv_deregister(first));
    EXPECT_EQ(bf_drv_deregister(first), BF_OBJECT_NOT_FOUND);
    EXPECT_EQ(told, (Texts{"first 8 alive", "first 4 alive"}));
  }

  uint32_t first = 0, second = 0;
};

TEST_F(Clients, AreKeptUnderNameAndHandle) {
  uint32_t handle = 0, priority = 0;
  EXPECT_EQ(bf_drv_register("first", &handle), BF_ALREADY_EXISTS);
  EXPECT_EQ(handle, 0u);
  EXPECT_EQ(soft_client_count(), 2u);
  bf_drv_client_callbacks_t callbacks{};
  OK(soft_client_get("second", &handle, &priority, &callbacks));
  EXPECT_EQ(handle, second);
  EXPECT_EQ(priority, 2u);
  EXPECT_EQ(callbacks.device_log, second_log);
  EXPECT_EQ(soft_client_get("third", nullptr, nullptr, nullptr), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(bf_drv_client_register_callbacks(0xffff, &callbacks, 1), BF_OBJECT_NOT_FOUND);
}

TEST_F(Clients, HearOfRemovalByPriorityWhileTheDeviceLives) {
  OK(soft_device_create(7, 1, &small_program(), false));
  OK(soft_device_remove(7)) << "their statuses are not looked at";
  EXPECT_EQ(told, (Texts{"first 7 alive", "second 7"}));
  told.clear();
}

TEST_F(Clients, LogAndRestoreTheirState) {
  cJSON *document = cJSON_CreateObject();
  EXPECT_EQ(soft_device_log(9, document), BF_INVALID_DEVICE);
  EXPECT_EQ(soft_device_log(8, nullptr), BF_CORRUPT_DATA);
  OK(soft_device_log(kDevice, document));
  char *text = cJSON_PrintUnformatted(document);
  EXPECT_STREQ(text, R"({"clients":[{"client":"second","state":{"device":4}}]})");
  cJSON_free(text);
  OK(soft_device_restore(8, document));
  EXPECT_EQ(soft_device_restore(9, document), BF_INVALID_DEVICE);
  EXPECT_EQ(told, (Texts{"restore 8 from 4"}));
  told.clear();
  cJSON_Delete(document);

  cJSON *foreign = cJSON_Parse(R"({"clients":[{"client":"secon","state":{"device":7}},{}]})");
  OK(soft_device_restore(8, foreign)) << "no state for it: nothing to do";
  cJSON_Delete(foreign);
  cJSON *shapeless = cJSON_Parse(R"({"clients":7})");
  EXPECT_EQ(soft_device_restore(8, shapeless), BF_CORRUPT_DATA);
  cJSON_Delete(shapeless);
}

// ---- Threads ----

TEST_F(SoftTest, RemovalIsRefusedFromInsideACallback) {
  static bf_status_t inside;
  const auto hear = [](pipe_session_handle_t, bf_device_id_t device, pipe_object_handle_t, uint32_t,
                       pipe_entry_handle_t, void *) { inside = soft_device_remove(device); };
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, hear, nullptr));
  OK(pipe_mgr_mat_tbl_default_entry_reset(session, kDevice, 0, kHost, 0));
  EXPECT_EQ(inside, BF_IN_USE);
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
  for (uint32_t rounds = 0; rounds < 100 || served < 10 || missed < 10; ++rounds) {
    OK(soft_device_create(5, 1, &small_program(), false));
    std::this_thread::yield();
    OK(soft_device_remove(5));
    std::this_thread::yield();
  }
  stop = true;
  for (std::thread &caller : callers) caller.join();
  EXPECT_EQ(other, 0u);
  OK(soft_session_close(session));
}

}  // namespace
