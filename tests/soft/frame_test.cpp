// Devices, sessions, driver clients and statuses.
#include <cjson/cJSON.h>
#include <set>
#include <string>
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
  EXPECT_EQ(std::pair(ids[0], ids[1]), std::pair(1u, 9u));
  EXPECT_EQ(soft_device_list(ids, 2), 2u);
  EXPECT_EQ(ids[1], 255u);
  OK(soft_device_remove(255));
  EXPECT_EQ(soft_device_remove(255), BF_INVALID_DEVICE);
  OK(soft_device_remove(1));
  EXPECT_EQ(soft_device_list(nullptr, 0), 0u);
}

TEST(Device, RefusesAProgramWithOneHandleForTwoObjects) {
  const soft_table_t twice[] = {small_program().tables[0], small_program().tables[0]};
  soft_program_t broken{};
  broken.tables = twice;
  broken.table_count = 2;
  EXPECT_EQ(soft_device_create(1, 1, &broken, false), BF_INVALID_ARGUMENT);
  EXPECT_FALSE(soft_device_exists(1));
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

std::vector<std::string> told;

bf_status_t first_removed(bf_device_id_t device) {
  told.push_back(soft_device_exists(device) ? "first alive" : "first gone");
  return BF_HARDWARE_FAULT;
}
bf_status_t second_removed(bf_device_id_t device) {
  told.push_back("second " + std::to_string(device));
  return BF_SUCCESS;
}
bf_status_t never_restored(uint8_t, cJSON *) { return BF_HARDWARE_FAULT; }

TEST(Clients, HearOfRemovalByPriority) {
  uint32_t first = 0, second = 0, third = 0;
  OK(soft_device_create(8, 1, &small_program(), false));
  OK(bf_drv_register("second", &second));
  OK(bf_drv_register("first", &first));
  EXPECT_EQ(bf_drv_register("first", &third), BF_ALREADY_EXISTS);
  bf_drv_client_callbacks_t callbacks{};
  EXPECT_EQ(bf_drv_client_register_callbacks(third, &callbacks, 1), BF_OBJECT_NOT_FOUND);
  callbacks.device_remove = second_removed;
  callbacks.device_restore = never_restored;
  OK(bf_drv_client_register_callbacks(second, &callbacks, 2));
  callbacks = {};
  callbacks.device_remove = first_removed;
  OK(bf_drv_client_register_callbacks(first, &callbacks, 1));
  EXPECT_EQ(soft_device_log(8, nullptr), BF_CORRUPT_DATA);
  cJSON *document = cJSON_Parse(R"({"clients":[{"client":"secon","state":{"device":7}},{}]})");
  EXPECT_EQ(soft_device_restore(9, document), BF_INVALID_DEVICE);
  OK(soft_device_restore(8, document)) << "none for it";
  cJSON_Delete(document);

  OK(soft_device_remove(8)) << "their statuses are not looked at";
  EXPECT_EQ(told, (std::vector<std::string>{"first alive", "second 8"}));
  OK(bf_drv_deregister(second));
  OK(bf_drv_deregister(first));
  EXPECT_EQ(bf_drv_deregister(first), BF_OBJECT_NOT_FOUND);
}

}  // namespace
