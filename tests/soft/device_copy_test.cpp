// Devices that are made the same as others, and their removal.
#include <atomic>
#include <chrono>
#include <thread>

#include "calls.hpp"

namespace {

using namespace soft_test;

class DeviceCopy : public SoftTest {
 protected:
  void SetUp() override {
    SoftTest::SetUp();
    OK(soft_device_create(kOther, 2, &small_program(), false));
  }
  void TearDown() override {
    OK(soft_device_remove(kOther));
    SoftTest::TearDown();
  }
};

TEST_F(DeviceCopy, IsTheSameInEverythingAndLivesOnByItself) {
  uint32_t entry = 0, snapshot = 0;
  Filled model(session, kDevice);
  OK(add_host(9, &entry, kOther));  // gives way
  OK(soft_device_copy(kDevice, kOther));
  Filled copy = model.on(kOther);
  const std::string full = model.contents();
  EXPECT_TRUE(copy.contents() == full);
  // What is added and removed now has the same handles in both, and is not seen in the other.
  model.end();
  EXPECT_FALSE(model.contents() == full);
  EXPECT_TRUE(copy.contents() == full);
  copy.end();
  EXPECT_TRUE(copy.contents() == model.contents());
  OK(bf_snapshot_create(kDevice, 0, 0, 0, 0, &entry));
  OK(bf_snapshot_create(kOther, 0, 0, 0, 0, &snapshot));
  EXPECT_EQ(snapshot - entry, (kOther - kDevice) << 24);
  EXPECT_EQ(entry & 0xff000003, kDevice << 24 | 1) << "of ingress";
}

TEST_F(DeviceCopy, RefusesDevicesThatCannotBeTheSame) {
  uint32_t entry = 0;
  constexpr bf_device_id_t kUnlike = 10;
  EXPECT_EQ(soft_device_copy(kOther, kOther), BF_INVALID_ARGUMENT);
  for (const auto &[pipes, program] : {std::pair{1u, &small_program()}, {2u, &other_program}}) {
    OK(soft_device_create(kUnlike, pipes, program, false));
    EXPECT_EQ(soft_device_copy(kUnlike, kOther), BF_INVALID_ARGUMENT);
    OK(soft_device_remove(kUnlike));
  }
  for (const bf_device_id_t unknown : {bf_device_id_t{12}, bf_device_id_t{256}}) {
    EXPECT_EQ(soft_device_copy(unknown, kOther), BF_INVALID_DEVICE);
    EXPECT_EQ(soft_device_copy(kOther, unknown), BF_INVALID_DEVICE);
  }
  static Words inside;
  const auto hear = [](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t,
                       void *) {
    inside = {soft_device_copy(kDevice, kOther), soft_device_remove(kDevice)};
  };
  OK(pipe_register_mat_update_cb(session, kDevice, kHost, hear, nullptr));
  OK(add_host(3, &entry));
  EXPECT_EQ(inside, (Words{BF_IN_USE, BF_IN_USE}));
  OK(soft_device_copy(kDevice, kOther)) << "a refused copy leaves no lock";
}

std::atomic<bool> entered{false}, left{false};

TEST_F(SoftTest, RemovalWaitsForCallsInProgress) {
  OK(soft_device_create(kOther, 1, &small_program(), false));
  const auto hear = [](pipe_session_handle_t, bf_device_id_t device, uint32_t, uint32_t, uint32_t,
                       void *) {
    entered = true;
    while (soft_device_exists(device)) std::this_thread::yield();
    std::this_thread::sleep_for(std::chrono::milliseconds(1));
    left = true;
  };
  OK(pipe_register_mat_update_cb(session, kOther, kHost, hear, nullptr));
  std::thread caller(
      [this] { OK(pipe_mgr_mat_tbl_default_entry_reset(session, kOther, 0, kHost, 0)); });
  while (!entered) std::this_thread::yield();
  OK(soft_device_remove(kOther));
  EXPECT_TRUE(left);
  caller.join();
}

}  // namespace
