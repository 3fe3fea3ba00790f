// Devices that are made the same as others.
#include <atomic>
#include <thread>

#include "device_contents.hpp"
#include "p4_pd_ms.h"

namespace {

using namespace soft_test;

class DeviceCopy : public SmallTest {
 protected:
  static constexpr bf_device_id_t kOther = 9;

  // What listeners of a device were told.
  struct Heard {
    int updates = 0;
    std::vector<uint32_t> expired;
    std::vector<pipe_mgr_digest_message_t *> messages;
  };

  void SetUp() override {
    SmallTest::SetUp();
    ASSERT_EQ(soft_device_create(kOther, 2, &small_program(), false), BF_SUCCESS);
  }
  void TearDown() override {
    EXPECT_EQ(soft_device_remove(kOther), BF_SUCCESS);
    SmallTest::TearDown();
  }

  // Digests of the device wait for a millisecond.
  void listen(bf_device_id_t id, Heard *heard) const {
    EXPECT_EQ(pipe_mgr_flow_lrn_set_timeout(session, id, 1000), BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_lrn_digest_notification_register(
                  session, id, kMacDigest,
                  [](pipe_session_handle_t, pipe_mgr_digest_message_t *message,
                     void *cookie) -> bf_status_t {
                    static_cast<Heard *>(cookie)->messages.push_back(message);
                    return BF_SUCCESS;
                  },
                  heard),
              BF_SUCCESS);
    const auto updated = [](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t,
                            void *cookie) { ++static_cast<Heard *>(cookie)->updates; };
    EXPECT_EQ(pipe_register_mat_update_cb(session, id, kHost, updated, heard), BF_SUCCESS);
    EXPECT_EQ(pipe_register_adt_update_cb(session, id, kMembers, updated, heard), BF_SUCCESS);
    EXPECT_EQ(pipe_register_sel_update_cb(
                  session, id, kSelector,
                  [](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t, uint32_t,
                     void *cookie) { ++static_cast<Heard *>(cookie)->updates; },
                  heard),
              BF_SUCCESS);
    EXPECT_EQ(pipe_mgr_idle_register_tmo_cb(
                  session, id, kRoute,
                  [](bf_device_id_t told, uint32_t, uint32_t entry, void *cookie) {
                    static_cast<Heard *>(cookie)->expired.push_back(told << 24 | entry);
                  },
                  heard),
              BF_SUCCESS);
  }

  Filled on(bf_device_id_t id) const { return {session, id}; }
};

TEST_F(DeviceCopy, IsTheSameInEverythingAndLivesOnByItself) {
  Heard heard;
  listen(kDevice, &heard);
  const Contents empty = on(kOther).read();
  on(kDevice).fill();
  const Contents full = on(kDevice).read();
  for (const auto &[kind, words] : full) {
    if (kind == "entries " + std::to_string(kEncap)) continue;
    EXPECT_NE(words, empty.at(kind)) << kind << " is not filled or not read";
  }

  ASSERT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  EXPECT_EQ(on(kOther).read(), full);
  const Words disturbed = on(kDevice).disturb();
  // 1 packet of 64 bytes on top of what the entry began with, 3 + 1 of the counter's; the tokens of
  // the committed buckets were spent before the copy; register cells 0, 1000, 1099, 2000.
  EXPECT_EQ(disturbed, (Words{2, 164, 4, 364, SOFT_COLOR_YELLOW, SOFT_COLOR_YELLOW,  //
                              0, 0, 1, 0, 1, 0, 0, 0xff}));
  EXPECT_EQ(on(kDevice).read().at("register " + std::to_string(kByteRegister)).back(), 0xffu);
  EXPECT_EQ(on(kOther).read(), full) << "a change of one device is seen in the other";

  ASSERT_EQ(soft_device_copy(kOther, kDevice), BF_SUCCESS);
  EXPECT_EQ(on(kDevice).read(), full);
  EXPECT_EQ(on(kOther).disturb(), disturbed);
  EXPECT_EQ(on(kDevice).disturb(), disturbed);
  ASSERT_EQ(soft_device_remove(kOther), BF_SUCCESS);
  ASSERT_EQ(soft_device_create(kOther, 2, &small_program(), true), BF_SUCCESS);
  ASSERT_EQ(soft_device_copy(kOther, kDevice), BF_SUCCESS);
  EXPECT_EQ(on(kDevice).read(), empty) << "what was there before is gone";
}

TEST_F(DeviceCopy, GoesOnWithTheHandlesOfItsModel) {
  Heard heard;
  listen(kDevice, &heard);
  on(kDevice).fill();
  on(kOther).add_host(9);  // other handles are taken before the copy
  EXPECT_EQ(bf_snapshot_delete(on(kDevice).add_snapshot()), BF_SUCCESS);
  ASSERT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  const auto next = [](const Filled &device) {
    return Words{device.add_host(7), device.add_member(7), device.add_group(), device.add_value(9)};
  };
  const Words mine = next(on(kDevice));
  EXPECT_EQ(mine, (Words{4, 4, 3, 3}));
  EXPECT_EQ(next(on(kOther)), mine);
  EXPECT_EQ(on(kDevice).add_snapshot(), 0x0400000du);
  EXPECT_EQ(on(kOther).add_snapshot(), 0x0900000du);
  EXPECT_EQ(bf_snapshot_delete(0x09000005), BF_SUCCESS) << "the copy of 0x04000005";

  // References count in the copy as in its model.
  EXPECT_EQ(pipe_mgr_sel_grp_del(session, kOther, kSelector, 1, 0), BF_IN_USE);
  EXPECT_EQ(pipe_mgr_adt_ent_del(session, kOther, kMembers, 3, 0), BF_IN_USE);
  EXPECT_EQ(pipe_mgr_mat_ent_del(session, kOther, kLag, 1, 0), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_sel_grp_del(session, kOther, kSelector, 1, 0), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_adt_ent_del(session, kOther, kMembers, 1, 0), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_sel_fallback_mbr_reset(session, kOther, BF_ALL_PIPES, kSelector, 0),
            BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_adt_ent_del(session, kOther, kMembers, 3, 0), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_sel_grp_del(session, kDevice, kSelector, 1, 0), BF_IN_USE);
}

TEST_F(DeviceCopy, LeavesListenersWhereTheyAre) {
  Heard here, there;
  listen(kDevice, &here);
  listen(kOther, &there);
  on(kDevice).fill();
  const int updates = here.updates;
  ASSERT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  EXPECT_EQ(here.updates, updates);
  EXPECT_EQ(there.updates, 0);
  on(kOther).add_host(7);
  on(kOther).add_member(7);
  on(kOther).add_group();
  EXPECT_EQ(there.updates, 3);
  EXPECT_EQ(here.updates, updates);
  soft_clock_advance(210);  // entries of 100, 200 and 300 ms; the last one is marked idle
  EXPECT_EQ(there.expired, (std::vector<uint32_t>{0x09000001, 0x09000002}));
  EXPECT_EQ(here.expired, (std::vector<uint32_t>{0x04000001, 0x04000002}));
  ASSERT_EQ(there.messages.size(), 1u);
  EXPECT_EQ(there.messages[0]->device, kOther);
  EXPECT_EQ(Bytes(there.messages[0]->entries, there.messages[0]->entries + 3), (Bytes{1, 2, 3}));
}

// As a host that tries something and takes it back sees it.
TEST_F(DeviceCopy, KeepsMessagesThatAListenerHolds) {
  Heard heard;
  listen(kDevice, &heard);
  on(kDevice).learn({1, 1, 1});
  soft_clock_advance(1);
  on(kDevice).learn({2, 2, 2});
  ASSERT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  uint32_t collected = 9, held = 9, learnt = 9;
  EXPECT_EQ(soft_digest_pending(kOther, kMacDigest, &collected, &held), BF_SUCCESS);
  EXPECT_EQ(collected, 1u);
  EXPECT_EQ(held, 0u);
  soft_clock_advance(1);  // the copy has no listener: its message waits
  ASSERT_EQ(heard.messages.size(), 2u);

  ASSERT_EQ(soft_device_copy(kOther, kDevice), BF_SUCCESS);
  EXPECT_EQ(soft_digest_pending(kDevice, kMacDigest, &collected, &held), BF_SUCCESS);
  EXPECT_EQ(collected, 1u);
  EXPECT_EQ(held, 2u);
  EXPECT_EQ(heard.messages[0]->entries[0], 1);
  EXPECT_EQ(pipe_mgr_flow_lrn_notify_ack(session, kMacDigest, heard.messages[0]), BF_SUCCESS);
  EXPECT_EQ(pipe_mgr_flow_lrn_notify_ack(session, kMacDigest, heard.messages[1]), BF_SUCCESS);
  const uint8_t entries[] = {1, 1, 1, 2, 2, 2};
  EXPECT_EQ(soft_digest_inject(kDevice, 1, kMacDigest, entries, 2, 6, &learnt), BF_SUCCESS);
  EXPECT_EQ(learnt, 1u) << "one of them waits";
  ASSERT_EQ(heard.messages.size(), 3u) << "the injection is an occasion to send";
  EXPECT_EQ(heard.messages[2]->device, kDevice);
  EXPECT_EQ(heard.messages[2]->entries[0], 2);
}

TEST_F(DeviceCopy, TakesMemberSelectorStatesAlong) {
  p4_pd_ms_state_t *state = p4_pd_ms_init_state();
  p4_pd_ms_state_t *second = p4_pd_ms_init_state();
  ASSERT_EQ(p4_pd_ms_new_mbr(session, state, kDevice, 7), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_set_mbr_act(state, kDevice, 7, kSend), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_new_mbr(session, state, kOther, 8), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_new_mbr(session, second, kOther, 8), BF_SUCCESS);
  ASSERT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_del_mbr(session, state, kDevice, 7), BF_SUCCESS);
  uint32_t action = 0;
  EXPECT_EQ(p4_pd_ms_get_mbr_act(state, kOther, 7, &action), BF_SUCCESS);
  EXPECT_EQ(action, kSend);
  EXPECT_EQ(p4_pd_ms_del_mbr(session, state, kOther, 8), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(p4_pd_ms_del_mbr(session, second, kOther, 8), BF_OBJECT_NOT_FOUND);
  for (const uint8_t id : {uint8_t{kDevice}, uint8_t{kOther}}) {
    EXPECT_EQ(p4_pd_ms_destroy_state_for_dev(state, id), BF_SUCCESS);
    EXPECT_EQ(p4_pd_ms_destroy_state_for_dev(second, id), BF_SUCCESS);
  }
}

TEST_F(DeviceCopy, RefusesDevicesThatCannotBeTheSame) {
  on(kDevice).add_host(1);
  on(kOther).add_host(2);
  const Contents before = on(kOther).read();
  constexpr bf_device_id_t kNarrow = 10, kForeign = 11;
  ASSERT_EQ(soft_device_create(kNarrow, 1, &small_program(), false), BF_SUCCESS);
  ASSERT_EQ(soft_device_create(kForeign, 2, &program(), false), BF_SUCCESS);
  EXPECT_EQ(soft_device_copy(kNarrow, kOther), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_device_copy(kForeign, kOther), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_device_copy(kOther, kOther), BF_INVALID_ARGUMENT);
  for (const bf_device_id_t unknown : {bf_device_id_t{12}, bf_device_id_t{256}}) {
    EXPECT_EQ(soft_device_copy(unknown, kOther), BF_INVALID_DEVICE);
    EXPECT_EQ(soft_device_copy(kOther, unknown), BF_INVALID_DEVICE);
    EXPECT_EQ(soft_device_copy(unknown, unknown), BF_INVALID_DEVICE);
  }
  static bf_status_t inside;
  ASSERT_EQ(pipe_register_mat_update_cb(
                session, kDevice, kHost,
                [](pipe_session_handle_t, bf_device_id_t, uint32_t, uint32_t, uint32_t, void *) {
                  inside = soft_device_copy(kDevice, kOther);
                },
                nullptr),
            BF_SUCCESS);
  on(kDevice).add_host(3);
  EXPECT_EQ(inside, BF_IN_USE);
  EXPECT_EQ(on(kOther).read(), before);
  EXPECT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS) << "a refused copy leaves no lock";
  EXPECT_EQ(soft_device_remove(kNarrow), BF_SUCCESS);
  EXPECT_EQ(soft_device_remove(kForeign), BF_SUCCESS);
}

TEST_F(DeviceCopy, ReadersMeetTheOldOrTheNewContents) {
  for (const bf_device_id_t id : {kDevice, kOther}) on(id).add_host(1);
  on(kDevice).add_host(2);
  std::atomic<bool> done{false};
  std::atomic<int> wrong{0};
  std::thread reader([&] {
    const uint8_t key[] = {0x00, 0x10, 1};
    while (!done.load()) {
      uint32_t entry = 0;
      bool is_default = true;
      if (soft_lookup(kOther, 0, kHost, key, 3, &entry, &is_default) != BF_SUCCESS || entry != 1) {
        ++wrong;
      }
    }
  });
  for (int i = 0; i < 20; ++i) EXPECT_EQ(soft_device_copy(kDevice, kOther), BF_SUCCESS);
  done.store(true);
  reader.join();
  EXPECT_EQ(wrong.load(), 0);
  EXPECT_EQ(on(kOther).handles(kHost), (Words{1, 2}));
}

}  // namespace
