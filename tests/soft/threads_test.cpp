// Every call of calls.hpp from several threads at once while devices come and go. What a missing
// lock does is seen under ThreadSanitizer: each call is made many times in a row by one thread, so
// that nothing but its own lock orders it with what the others do.
#include <atomic>
#include <barrier>
#include <set>
#include <thread>

#include "calls.hpp"
#include "soft_journal.hpp"

namespace {

using namespace soft_test;

constexpr bf_device_id_t kDevice = 4;

template <class Body>
Call simple(Body body) {
  return {Call::kChange, "", [=](Hand &) {
            body();
            return bf_status_t{BF_SUCCESS};
          }};
}

Calls journal_calls() {
  return {
      simple([] { soft::journal::start(); }),
      simple([] { soft::journal::calls("bf_drv_register"); }),
      simple([] { soft::faults::fail_call("p4_pd_ms_new_mbr", 1, BF_NO_MEMORY); }),
      simple([] { soft::faults::pending(); }),
      simple([] { soft::faults::clear(); }),
      simple([] { soft::journal::clear(); }),
      simple([] { soft::journal::stop(); }),
  };
}

// What may come of a call when another thread was quicker.
bool is_expected(bf_status_t status) {
  static const std::set<bf_status_t> never = {BF_HARDWARE_FAULT, BF_INVALID_PIPE, BF_FOREIGN_ACTION,
                                              BF_WRONG_LENGTH};
  return !never.contains(status) && status <= BF_TABLE_MISS;
}

void make(const Call &call, Hand &hand, uint32_t *succeeded) {
  hand.begin();
  const bf_status_t status = call.make(hand);
  EXPECT_TRUE(is_expected(status)) << call.text << ": " << status;
  if (status == BF_SUCCESS) ++*succeeded;
  std::this_thread::yield();
}

TEST(Threads, DoEverythingAtOnce) {
  constexpr size_t kThreads = 3, kRounds = 3;
  std::vector<Calls> lists = all_calls();
  for (const Call &call : journal_calls()) lists.back().push_back(call);
  for (Calls &calls : lists) {
    for (const uint32_t handle : {kHost, kAclCount, kPoliceMeter, kWordRegister, kIpHash,
                                  kMacDigest, kPortSet, kMembers, kSelector, 0u}) {
      calls.push_back(simple([=] {
        uint64_t bytes = 0;
        soft_memory_bytes(kDevice, handle, &bytes);
      }));
    }
  }
  OK(soft_device_create(kDevice, 2, &small_program(), false));
  std::barrier together(kThreads);
  std::atomic<uint32_t> succeeded{0};
  // One thread makes one call over and over while the others make all calls of the list.
  const auto work = [&](size_t thread) {
    Hand hand;
    hand.steady = false;
    uint32_t mine = 0;
    OK(soft_session_open(&hand.session));
    for (const Calls &calls : lists) {
      hand.last = 0;
      for (size_t one = 0; one < calls.size(); ++one) {
        together.arrive_and_wait();
        for (size_t at = 0; at < kRounds * calls.size(); ++at) {
          make(calls[thread == 0 ? one : (at + one + thread) % calls.size()], hand, &mine);
        }
        if (thread != 1 || one != calls.size() / 2) continue;
        OK(soft_device_remove(kDevice));
        OK(soft_device_create(kDevice, 2, &small_program(), false));
      }
    }
    succeeded += mine;
    soft_placement_free(hand.placed);
    OK(soft_session_close(hand.session));
  };
  std::vector<std::thread> threads;
  for (size_t thread = 0; thread < kThreads; ++thread) threads.emplace_back(work, thread);
  for (std::thread &thread : threads) thread.join();
  soft::journal::stop();
  soft::faults::clear();
  EXPECT_GT(succeeded, 5000u);
  OK(soft_device_remove(kDevice));
  soft_device_remove(kOther);
  soft_device_remove(kVirtual);
}

}  // namespace
