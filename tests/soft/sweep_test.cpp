// Every call of calls.hpp, made wrong in one way after the other and then right.
#include <algorithm>
#include <map>
#include <set>

#include "calls.hpp"
#include "soft_journal.hpp"

namespace {

using namespace soft_test;
namespace journal = soft::journal;

class Sweep : public SoftTest {
 protected:
  // A call with something wrong is refused, writes nothing and changes nothing.
  void refuse(uint32_t wrong, bf_status_t expected) {
    ++refused[expected];
    hand.begin();
    const Hand before = hand;
    const auto held = [&] { return call->kind == Call::kRead ? "" : contents(*calls, before); };
    const std::string contents_before = held();
    hand.wrong = wrong;
    EXPECT_EQ(call->make(hand), expected) << call->text << ", wrong: " << wrong;
    hand.wrong = 0;
    EXPECT_EQ(hand.last, before.last) << call->text;
    EXPECT_EQ(hand.member, before.member) << call->text;
    EXPECT_EQ(hand.placed, before.placed) << call->text;
    EXPECT_TRUE(hand.room.contents() == before.room.contents()) << call->text;
    EXPECT_TRUE(held() == contents_before) << call->text;
  }

  // Objects of the program and others.
  Words handles_for(uint32_t right) const {
    Words handles{0, 0x7f000001, 0x07000000};
    const std::string text = call->text;
    for (const char *any : {"_entry_count(", "_entry_handle", "next_cell", "profile_capacity"}) {
      if (text.find(any) != std::string::npos) return handles;
    }
    for (const uint32_t handle : {kHost, kMembers, kSelector, kAclCount, kPoliceMeter,
                                  kWordRegister, kMacDigest, kIpHash, kPortSet, kWred}) {
      if (handle >> 24 != right >> 24) handles.push_back(handle);
    }
    return handles;
  }

  // rightly is how the call was made when nothing was wrong.
  void refuse_all(const Hand &rightly) {
    uint32_t rest = rightly.asked & ~uint32_t{Hand::kPointer};
    hand.wrong_handle = kNone;
    for (const auto &[what, status] : {std::pair{Hand::kSession, BF_INVALID_SESSION},
                                       {Hand::kDeviceId, BF_INVALID_DEVICE},
                                       {Hand::kPipe, BF_INVALID_PIPE}}) {
      if ((rest & what) == 0) continue;
      refuse(what, status);
      refuse(rest, status);  // the first that is wrong is the answer
      rest &= ~uint32_t{what};
    }
    if (rest != 0) {
      for (const uint32_t handle : handles_for(rightly.right_handle)) {
        hand.wrong_handle = handle;
        refuse(Hand::kHandle, BF_INVALID_HANDLE);
      }
    }
    if (call->kind == Call::kUnsupported) return;
    for (hand.wrong_pointer = 0; hand.wrong_pointer < rightly.pointers; ++hand.wrong_pointer) {
      refuse(Hand::kPointer, BF_INVALID_ARGUMENT);
    }
  }

  // Makes every call rightly; before(hand) comes before the hand makes its next call.
  template <class Before>
  void make_all(const Calls &list, Before before) {
    hand = {};
    hand.session = session;
    for (size_t at = 0; at < list.size(); ++at) {
      call = &list[at];
      before(at);
      hand.begin();
      EXPECT_EQ(call->make(hand), call->expected()) << call->text;
    }
  }

  Hand hand;
  std::map<bf_status_t, int> refused;
  const Calls *calls = nullptr;
  const Call *call = nullptr;
};

TEST_F(Sweep, RefusedCallsChangeNothing) {
  for (const Calls &list : all_calls()) {
    calls = &list;
    std::vector<Hand> rightly;
    make_all(list, [&](size_t at) {
      if (at != 0) rightly.push_back(hand);
    });
    rightly.push_back(hand);
    OK(soft_device_remove(kDevice));
    OK(soft_device_create(kDevice, 2, &small_program(), false));
    make_all(list, [&](size_t at) { refuse_all(rightly[at]); });
  }
  // That all of it was tried.
  EXPECT_GT(refused[BF_INVALID_SESSION], 300);
  EXPECT_GT(refused[BF_INVALID_DEVICE], 400);
  EXPECT_GT(refused[BF_INVALID_PIPE], 200);
  EXPECT_GT(refused[BF_INVALID_HANDLE], 2000);
  EXPECT_GT(refused[BF_INVALID_ARGUMENT], 200);
}

TEST_F(Sweep, JournalKeepsEveryFunctionOfTheContract) {
  std::set<std::string> functions;
  for (const Calls &list : all_calls()) {
    journal::start();
    make_all(list, [](size_t) {});
    journal::stop();
    for (const journal::Call &made : journal::calls()) {
      functions.insert(made.function);
      EXPECT_TRUE(made.finished && made.performed) << made.function;
    }
  }
  journal::clear();
  EXPECT_EQ(functions.size(), 124u) << "all but the allocator and the start of member selectors";
}

}  // namespace
