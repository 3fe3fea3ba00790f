// Calls on stateful objects without memory: nothing can be seen to have changed. Replaces operator
// new, so this file is a program of its own.
#include "device_contents.hpp"
#include "limited_memory.hpp"
#include "p4_pd_ms.h"

namespace {

using namespace soft_test;

class StateMemory : public SmallTest {};

TEST_F(StateMemory, RegistersStayAsTheyWere) {
  pipe_stful_cell_t cell{};
  cell.word = 7;
  const auto state = [&] {
    Bytes seen;
    for (const uint32_t index : {0u, 1000u, 1023u, 1024u, 5000u}) {
      pipe_stful_cell_t cells[2] = {};
      pipe_stful_query_t query{2, cells};
      EXPECT_EQ(
          pipe_stful_ent_query(session, kDevice, BF_ALL_PIPES, kByteRegister, index, &query, false),
          BF_SUCCESS);
      seen.insert(seen.end(), {cells[0].bit, cells[1].bit});
    }
    return seen;
  };
  const auto reset_range = [&] {
    return pipe_stful_table_reset_range(session, kDevice, BF_ALL_PIPES, kByteRegister, 1000, 4001,
                                        &cell);
  };
  EXPECT_GT(until_success(reset_range, state), 1);
  EXPECT_EQ(state(), (Bytes{0, 0, 7, 7, 7, 7, 7, 7, 7, 7}));
  ASSERT_EQ(soft_register_write(kDevice, BF_ALL_PIPES, kByteRegister, 0x3ffff, 1), BF_SUCCESS);
  EXPECT_GT(until_success(
                [&] {
                  return pipe_stful_database_sync(session, kDevice, BF_ALL_PIPES, kByteRegister,
                                                  nullptr, nullptr);
                },
                state),
            0);
}

TEST_F(StateMemory, AnEntryOfADigestIsLearntOnceItFindsMemory) {
  static int heard = 0;
  ASSERT_EQ(pipe_mgr_lrn_digest_notification_register(
                session, kDevice, kMacDigest,
                [](pipe_session_handle_t, pipe_mgr_digest_message_t *, void *) -> bf_status_t {
                  ++heard;
                  return BF_SUCCESS;
                },
                nullptr),
            BF_SUCCESS);
  const Bytes entry{1, 2, 3};
  uint32_t learnt = 0;
  EXPECT_GT(
      until_success(
          [&] { return soft_digest_inject(kDevice, 0, kMacDigest, entry.data(), 1, 3, &learnt); },
          [&] {
            uint32_t collected = 0;
            EXPECT_EQ(soft_digest_pending(kDevice, kMacDigest, &collected, nullptr), BF_SUCCESS);
            return Bytes{static_cast<uint8_t>(collected), static_cast<uint8_t>(heard)};
          }),
      0);
  EXPECT_EQ(learnt, 1u);
  EXPECT_EQ(heard, 1);
}

TEST_F(StateMemory, SnapshotsAndValueSetsStayAsTheyWere) {
  uint32_t snapshot = 0, entry = 0;
  EXPECT_GT(until_success([&] { return bf_snapshot_create(kDevice, 0, 0, 1, 0, &snapshot); },
                          [&] { return Bytes{static_cast<uint8_t>(snapshot)}; }),
            0);
  const uint8_t record[8] = {9, 8, 7, 6, 5, 4, 3, 2};
  const auto trigger = [&] {
    Bytes held(8);
    soft_snapshot_trigger_get(snapshot, held.data(), held.data() + 4);
    return held;
  };
  EXPECT_EQ(
      until_success([&] { return bf_snapshot_capture_trigger_set(snapshot, record, record + 4); },
                    trigger),
      2);
  EXPECT_EQ(trigger(), Bytes(record, record + 8));
  const auto captured = [&] {
    uint8_t fields[8];
    uint32_t captures = 9;
    bf_snapshot_capture_get(snapshot, 0, fields, nullptr, &captures);
    return Bytes{static_cast<uint8_t>(captures)};
  };
  EXPECT_GT(
      until_success([&] { return soft_snapshot_inject(kDevice, 0, 0, 0, record, 2, 8, nullptr); },
                    captured),
      0);
  EXPECT_EQ(captured(), (Bytes{2}));
  EXPECT_GT(
      until_success(
          [&] { return pipe_mgr_pvs_entry_add(session, kDevice, kPortSet, 0, 0, 0, 1, 1, &entry); },
          [&] {
            uint32_t count = 9;
            EXPECT_EQ(pipe_mgr_pvs_entry_get_count(session, kDevice, kPortSet, 0, 0, 0, 0, &count),
                      BF_SUCCESS);
            return Bytes{static_cast<uint8_t>(count)};
          }),
      0);
  EXPECT_EQ(entry, 1u);
}

// Without memory for all of it a replay leaves objects with the old or the new contents, never
// with something between, and can be repeated.
TEST_F(StateMemory, AReplayCanBeRepeated) {
  constexpr bf_device_id_t kVirtual = 7;
  ASSERT_EQ(soft_device_create(kVirtual, 2, &small_program(), true), BF_SUCCESS);
  uint32_t group = 0, member = 0, entry = 0;
  Action send(9, {0x01, 0x02});
  send.spec.type = 0;
  ASSERT_EQ(pipe_mgr_adt_ent_add(session, kVirtual, BF_ALL_PIPES, 0x02000005, kSend, &send.spec,
                                 &member, 0),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_sel_grp_add(session, kVirtual, BF_ALL_PIPES, 0x03000005, 0, &group, 0),
            BF_SUCCESS);
  ASSERT_EQ(pipe_mgr_sel_grp_mbr_add(session, kVirtual, 0x03000005, group, kSend, member, 0),
            BF_SUCCESS);
  const Action deny;
  for (uint8_t n = 0; n < 3; ++n) {
    const Key key(16, {0x08, n}, {0xff, 0xff}, 5);
    const Key wide(16, {0x08, 0}, {0xff, 0}, n);  // twins
    ASSERT_EQ(pipe_mgr_mat_ent_add(session, kVirtual, BF_ALL_PIPES, kAcl, &key.spec, kDeny,
                                   &deny.spec, 0, 0, &entry),
              BF_SUCCESS);
    ASSERT_EQ(pipe_mgr_mat_ent_add(session, kVirtual, BF_ALL_PIPES, kAcl, &wide.spec, kDeny,
                                   &deny.spec, 0, 0, &entry),
              BF_SUCCESS);
  }
  const auto replay = [&] {
    return pipe_mgr_hitless_ha_restore_virtual_dev_state(
        session, kDevice, kVirtual, BF_ALL_PIPES, 0,
        [](pipe_session_handle_t, uint8_t, uint32_t, uint32_t, uint32_t, uint32_t,
           uint32_t) -> bf_status_t { return BF_SUCCESS; });
  };
  const auto seen = [&] {
    uint32_t entries = 9, hit = 0;
    bool is_default = false;
    EXPECT_EQ(pipe_mgr_get_entry_count(session, kDevice, BF_ALL_PIPES, kAcl, 0, &entries),
              BF_SUCCESS);
    const uint8_t key[] = {0x08, 0x55};
    const bf_status_t status = soft_lookup(kDevice, 0, kAcl, key, 2, &hit, &is_default);
    EXPECT_EQ(status == BF_SUCCESS, entries == 6) << entries;
    return Bytes{};
  };
  EXPECT_GT(until_success(replay, seen), 20);
  uint32_t members = 0;
  EXPECT_EQ(pipe_mgr_get_sel_grp_mbr_count(session, kDevice, 0x03000005, group, &members),
            BF_SUCCESS);
  EXPECT_EQ(members, 1u);
  EXPECT_EQ(soft_device_remove(kVirtual), BF_SUCCESS);
}

TEST_F(StateMemory, ADeviceThatCannotBeCopiedStaysAsItWas) {
  constexpr bf_device_id_t kModel = 7;
  ASSERT_EQ(soft_device_create(kModel, 2, &small_program(), false), BF_SUCCESS);
  const Filled target{session, kDevice}, model{session, kModel};
  p4_pd_ms_state_t *state = p4_pd_ms_init_state();
  ASSERT_EQ(p4_pd_ms_new_mbr(session, state, kModel, 1), BF_SUCCESS);
  ASSERT_EQ(p4_pd_ms_new_mbr(session, state, kDevice, 2), BF_SUCCESS);
  for (const Filled &device : {target, model}) {
    ASSERT_EQ(pipe_mgr_flow_lrn_set_timeout(session, device.device, 1000), BF_SUCCESS);
    ASSERT_EQ(pipe_mgr_lrn_digest_notification_register(
                  session, device.device, kMacDigest,
                  [](pipe_session_handle_t, pipe_mgr_digest_message_t *, void *) -> bf_status_t {
                    return BF_SUCCESS;
                  },
                  nullptr),
              BF_SUCCESS);
  }
  target.add_host(9);
  target.learn({3, 3, 3});
  soft_clock_advance(1);  // a message that is not given back
  model.fill();
  const Contents before = target.read(), wanted = model.read();
  const auto seen = [&] {
    uint32_t held = 9;
    EXPECT_EQ(soft_digest_pending(kDevice, kMacDigest, nullptr, &held), BF_SUCCESS);
    const bool same = target.read() == before;
    return Bytes{same, static_cast<uint8_t>(held),
                 p4_pd_ms_new_mbr(session, state, kDevice, 2) == BF_ALREADY_EXISTS};
  };
  EXPECT_EQ(seen(), (Bytes{true, 1, true}));
  EXPECT_GT(until_success([&] { return soft_device_copy(kModel, kDevice); }, seen), 100);
  EXPECT_EQ(target.read(), wanted);
  EXPECT_EQ(p4_pd_ms_new_mbr(session, state, kDevice, 1), BF_ALREADY_EXISTS);
  EXPECT_EQ(soft_device_remove(kModel), BF_SUCCESS);
  EXPECT_EQ(p4_pd_ms_destroy_state_for_dev(state, kModel), BF_SUCCESS);
  EXPECT_EQ(p4_pd_ms_destroy_state_for_dev(state, kDevice), BF_SUCCESS);
}

}  // namespace
