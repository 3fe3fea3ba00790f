// Learning digests: when messages are sent, what is in them, and how long they live.
#include "program.hpp"

namespace {

using namespace soft_test;

using Counts = std::pair<uint32_t, uint32_t>;

// What a callback saw, and what it is to do.
struct Ear {
  struct Heard {
    pipe_mgr_digest_message_t *message;
    pipe_mgr_digest_message_t head;
    Bytes entries;
  };
  std::vector<Heard> heard;
  bool acknowledge = false;

  static bf_status_t hear(pipe_session_handle_t session, pipe_mgr_digest_message_t *message,
                          void *cookie) {
    Ear &ear = *static_cast<Ear *>(cookie);
    const size_t bytes = size_t{message->entry_count} * message->entry_size;
    ear.heard.push_back({message, *message, {message->entries, message->entries + bytes}});
    if (ear.acknowledge) {
      OK(pipe_mgr_flow_lrn_notify_ack(session, message->digest, message));
    }
    return 99;
  }
};

class Digests : public SoftTest {
 protected:
  bf_status_t listen(uint32_t digest = kMacDigest) {
    return pipe_mgr_lrn_digest_notification_register(session, kDevice, digest, Ear::hear, &ear);
  }
  bf_status_t stop(uint32_t digest = kMacDigest) {
    return pipe_mgr_lrn_digest_notification_deregister(session, kDevice, digest);
  }
  // How many entries were new.
  uint32_t inject(const Bytes &entries, bf_pipe_id_t pipe = 0, uint32_t digest = kMacDigest) {
    uint32_t learnt = kNowhere;
    const auto bytes = static_cast<uint32_t>(entries.size());
    OK(soft_digest_inject(kDevice, pipe, digest, entries.data(),
                          bytes / (digest == kMacDigest ? 3 : 2), bytes, &learnt));
    return learnt;
  }
  bf_status_t acknowledge(pipe_mgr_digest_message_t *message, uint32_t digest = kMacDigest) {
    return pipe_mgr_flow_lrn_notify_ack(session, digest, message);
  }
  bf_status_t timeout(uint32_t microseconds) {
    return pipe_mgr_flow_lrn_set_timeout(session, kDevice, microseconds);
  }
  static Counts pending(bf_device_id_t device = kDevice) {
    uint32_t collected = kNowhere, unacknowledged = kNowhere;
    OK(soft_digest_pending(device, kMacDigest, &collected, &unacknowledged));
    return {collected, unacknowledged};
  }
  // Entry number n: three bytes.
  static Bytes entry(uint8_t n) { return {0x0a, 0x0b, n}; }

  Ear ear;
};

TEST_F(Digests, AnEntryIsLearntAnewOnlyAfterItsMessageWasAcknowledged) {
  OK(listen());
  EXPECT_EQ(inject({0x0a, 0x0b, 1, 0x0a, 0x0b, 4}, 1), 2u);
  ASSERT_EQ(ear.heard.size(), 1u) << "without a timeout a message comes with the call";
  const pipe_mgr_digest_message_t &head = ear.heard[0].head;
  EXPECT_EQ((Words{head.device, head.pipe, head.digest, head.entry_count, head.entry_size}),
            (Words{kDevice, 1, kMacDigest, 2, 3}));
  EXPECT_EQ(ear.heard[0].entries, (Bytes{0x0a, 0x0b, 1, 0x0a, 0x0b, 4}));
  EXPECT_EQ(inject({0x0a, 0x0b, 1, 0x0a, 0x0b, 2, 0x0a, 0x0b, 2}), 1u) << "known from pipe 1";
  ASSERT_EQ(ear.heard.size(), 2u);
  EXPECT_EQ(ear.heard[1].entries, entry(2));
  OK(acknowledge(ear.heard[0].message));
  EXPECT_EQ(inject(entry(2)), 0u);
  EXPECT_EQ(inject(entry(1)), 1u);
  EXPECT_EQ(pending(), Counts(0, 2));
  ear.acknowledge = true;  // from the callback
  EXPECT_EQ(inject(entry(3)), 1u);
  EXPECT_EQ(inject(entry(3)), 1u);
  EXPECT_EQ(pending(), Counts(0, 2));
}

TEST_F(Digests, MessagesStayUntilTheyAreAcknowledged) {
  constexpr bf_device_id_t kOther = 200;
  OK(soft_device_create(kOther, 1, &small_program(), true));
  OK(pipe_mgr_lrn_digest_notification_register(session, kOther, kMacDigest, Ear::hear, &ear));
  const Bytes other = entry(9);
  OK(soft_digest_inject(kOther, 0, kMacDigest, other.data(), 1, 3, nullptr));
  OK(listen());
  EXPECT_EQ(inject(entry(1)), 1u);
  OK(stop());
  EXPECT_EQ(pending(), Counts(0, 1));
  pipe_mgr_digest_message_t *const message = ear.heard[1].message;
  EXPECT_EQ(Bytes(message->entries, message->entries + 3), entry(1));
  EXPECT_EQ(acknowledge(nullptr), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(acknowledge(&ear.heard[1].head), BF_OBJECT_NOT_FOUND) << "a copy is no message";
  EXPECT_EQ(acknowledge(message, kFlowDigest), BF_OBJECT_NOT_FOUND);
  for (const Ear::Heard &heard : ear.heard) OK(acknowledge(heard.message));
  EXPECT_EQ(acknowledge(message), BF_OBJECT_NOT_FOUND);
  OK(soft_device_remove(kOther));
}

// As a host that tries something and takes it back sees it.
TEST_F(Digests, StayWithTheListenerOfACopy) {
  constexpr bf_device_id_t kOther = 9;
  OK(soft_device_create(kOther, 2, &small_program(), false));
  OK(timeout(1000));
  OK(listen());
  inject(entry(1));
  soft_clock_advance(1);
  inject({0x0a, 0x0b, 2, 0x0a, 0x0b, 3});
  OK(soft_device_copy(kDevice, kOther));
  EXPECT_EQ(pending(kOther), Counts(2, 0));
  soft_clock_advance(1);
  ASSERT_EQ(ear.heard.size(), 2u) << "the copy has no listener: its message waits";
  OK(soft_device_copy(kOther, kDevice));
  EXPECT_EQ(pending(), Counts(2, 2));
  for (uint8_t i = 0; i < 2; ++i) {
    EXPECT_EQ(ear.heard[i].message->entries[2], i + 1);
    OK(acknowledge(ear.heard[i].message));
  }
  EXPECT_EQ(inject({0x0a, 0x0b, 1, 0x0a, 0x0b, 2, 0x0a, 0x0b, 3}, 1), 1u) << "two of them wait";
  ASSERT_EQ(ear.heard.size(), 3u) << "the injection is an occasion to send";
  EXPECT_EQ(ear.heard[2].entries, (Bytes{0x0a, 0x0b, 2, 0x0a, 0x0b, 3}));
  OK(pipe_mgr_lrn_digest_notification_register(session, kOther, kMacDigest, Ear::hear, &ear));
  soft_clock_advance(1);
  ASSERT_EQ(ear.heard.size(), 5u) << "one from each device";
  EXPECT_EQ(ear.heard[4].head.device, kOther);
  OK(soft_device_remove(kOther));
}

TEST_F(Digests, AreCollectedPerPipeUntilTheTimeoutOfTheFirstEntry) {
  OK(listen());
  OK(timeout(2500));
  EXPECT_EQ(inject(entry(1), 0), 1u);
  soft_clock_advance(1);
  EXPECT_EQ(inject(entry(2), 1), 1u);
  EXPECT_EQ(inject(entry(3), 0), 1u);
  EXPECT_EQ(inject(entry(1), 1), 0u) << "collected already";
  EXPECT_EQ(pending(), Counts(3, 0));
  soft_clock_advance(1);
  EXPECT_TRUE(ear.heard.empty()) << "2 ms after the first entry of pipe 0";
  soft_clock_advance(1);
  ASSERT_EQ(ear.heard.size(), 1u);
  EXPECT_EQ(ear.heard[0].entries, (Bytes{0x0a, 0x0b, 1, 0x0a, 0x0b, 3}));
  soft_clock_advance(1);
  ASSERT_EQ(ear.heard.size(), 2u);
  EXPECT_EQ(ear.heard[1].head.pipe, 1u);
  EXPECT_EQ(ear.heard[1].entries, entry(2));

  EXPECT_EQ(inject(entry(4)), 1u);
  OK(timeout(1000));
  EXPECT_EQ(ear.heard.size(), 2u);
  OK(timeout(0));
  EXPECT_EQ(ear.heard.size(), 3u) << "a shorter timeout holds for what is collected";
}

TEST_F(Digests, AFullBatchDoesNotWait) {
  OK(listen());
  OK(timeout(1000000));
  Bytes many;
  for (uint8_t n = 0; n < 2 * SOFT_DIGEST_BATCH + 1; ++n) {
    many.insert(many.end(), {0x0a, 0x0b, n});
  }
  EXPECT_EQ(inject(many), 129u);
  ASSERT_EQ(ear.heard.size(), 2u);
  EXPECT_EQ(ear.heard[0].head.entry_count, 64u);
  EXPECT_EQ(ear.heard[1].entries, Bytes(many.begin() + 64 * 3, many.begin() + 128 * 3));
  EXPECT_EQ(pending(), Counts(1, 2));
}

TEST_F(Digests, NeedACallbackAndHaveOneAtATime) {
  const Bytes one = entry(1);
  EXPECT_EQ(soft_digest_inject(kDevice, 0, kMacDigest, one.data(), 1, 3, nullptr), BF_NOT_READY);
  EXPECT_EQ(stop(), BF_OBJECT_NOT_FOUND);
  OK(listen());
  EXPECT_EQ(listen(), BF_ALREADY_EXISTS);
  OK(listen(kFlowDigest)) << "one of each digest";

  // What nobody has seen goes with the callback, and may come again for the next one.
  OK(timeout(5000));
  EXPECT_EQ(inject(entry(1)), 1u);
  EXPECT_EQ(inject({7, 7}, 0, kFlowDigest), 1u);
  OK(stop());
  EXPECT_EQ(pending(), Counts(0, 0));
  OK(listen());
  EXPECT_EQ(inject(entry(1)), 1u);
  soft_clock_advance(5);
  EXPECT_EQ(ear.heard.size(), 2u);
}

TEST_F(Digests, RefuseBytesThatAreNoEntries) {
  OK(listen());
  const Bytes bytes(7);
  const auto status = [&](uint32_t count, uint32_t length, bf_pipe_id_t pipe) {
    return soft_digest_inject(kDevice, pipe, kMacDigest, bytes.data(), count, length, nullptr);
  };
  EXPECT_EQ(status(2, 7, 0), BF_WRONG_LENGTH);
  EXPECT_EQ(status(0x55555556, 2, 0), BF_WRONG_LENGTH) << "a length that wraps";
  OK(status(0, 0, 0));
  EXPECT_TRUE(ear.heard.empty());
}

}  // namespace
