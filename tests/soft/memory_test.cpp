// The calls of calls.hpp without memory: each says so and changes nothing. Replaces operator new,
// so this file is a program of its own.
#include <algorithm>
#include <cstddef>
#include <new>

#include "calls.hpp"

namespace {

thread_local int allocations_left = -1;  // -1: as many as wanted

// Out of line, so that the compiler does not look for pairs of new and delete in them.
[[gnu::noinline]] void *take_memory(size_t bytes, size_t alignment) noexcept {
  if (allocations_left == 0) return nullptr;
  if (allocations_left > 0) --allocations_left;
  return std::aligned_alloc(alignment, (bytes / alignment + 1) * alignment);
}
[[gnu::noinline]] void give_back(void *memory) noexcept { std::free(memory); }

void *take_or_throw(size_t bytes, size_t alignment = alignof(std::max_align_t)) {
  void *memory = take_memory(bytes, std::max(alignment, alignof(std::max_align_t)));
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

// All forms but those of arrays, which go together.
void *operator new(size_t bytes) { return take_or_throw(bytes); }
void *operator new(size_t bytes, std::align_val_t alignment) {
  return take_or_throw(bytes, static_cast<size_t>(alignment));
}
void *operator new(size_t bytes, const std::nothrow_t &) noexcept {
  return take_memory(bytes, alignof(std::max_align_t));
}
void operator delete(void *memory) noexcept { give_back(memory); }
void operator delete(void *memory, size_t) noexcept { give_back(memory); }
void operator delete(void *memory, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void *memory, size_t, std::align_val_t) noexcept { give_back(memory); }
void operator delete(void *memory, const std::nothrow_t &) noexcept { give_back(memory); }

namespace {

using namespace soft_test;

// Allocation n of the call fails, n = 1, 2, 3 ... until the call gets through. Returns how often it
// failed; state() must stay the same until then.
template <class Make, class State>
int until_success(Make make, bf_status_t success, State state) {
  const auto before = state();
  for (int failures = 0; failures < 5000; ++failures) {
    allocations_left = failures;
    const bf_status_t status = make();
    allocations_left = -1;
    if (status == success) return failures;
    EXPECT_EQ(status, BF_NO_MEMORY);
    EXPECT_TRUE(state() == before) << "allocation " << failures + 1;
  }
  ADD_FAILURE() << "the call never succeeds";
  return -1;
}

using Memory = SoftTest;

TEST_F(Memory, CallsChangeNothingWithoutIt) {
  int failures = 0;
  for (const Calls &list : all_calls()) {
    Hand hand;
    hand.session = session;
    for (const Call &call : list) {
      SCOPED_TRACE(call.text);
      const auto make = [&] {
        hand.begin();
        return call.make(hand);
      };
      failures += until_success(make, call.expected(), [&] { return contents(list, hand); });
    }
  }
  EXPECT_GT(failures, 100);
}

// Additions to a table that grows: masks, twins, chunks, segments and directory.
TEST_F(Memory, AdditionsChangeNothingWithoutIt) {
  const Action deny;
  int failures = 0;
  for (uint32_t i = 0; i < 12000 && !HasFailure(); ++i) {
    const auto mask = static_cast<uint8_t>(i % 3 == 0 ? i >> 4 : 0xff);
    const Key key(16, {static_cast<uint8_t>(i % 97), static_cast<uint8_t>(i % 89)}, {0xff, mask},
                  i);
    uint32_t entry = kNowhere;
    const auto add = [&] {
      return pipe_mgr_mat_ent_add(session, kDevice, kAll, kAcl, &key.spec, kDeny, &deny.spec, 0, 0,
                                  &entry);
    };
    const auto state = [&] {
      uint32_t found = kNowhere, hit = 0;
      EXPECT_EQ(pipe_mgr_match_spec_to_ent_hdl(session, kDevice, kAll, kAcl, &key.spec, &found),
                BF_OBJECT_NOT_FOUND);
      soft_lookup(kDevice, 0, kAcl, key.value.data(), 2, &hit, nullptr);
      return Words{count(kAcl), hit, entry};
    };
    failures += until_success(add, BF_SUCCESS, state);
  }
  EXPECT_GT(failures, 60);
}

TEST_F(Memory, ADeviceThatCannotBeCopiedStaysAsItWas) {
  OK(soft_device_create(kOther, 2, &small_program(), false));
  const Filled model(session, kDevice);
  uint32_t entry = 0;
  OK(add_host(9, &entry, kOther));
  p4_pd_ms_state_t *state = p4_pd_ms_init_state(), *second = p4_pd_ms_init_state();
  OK(p4_pd_ms_new_mbr(session, second, kOther, 8));
  OK(p4_pd_ms_new_mbr(session, state, kDevice, 1));
  OK(p4_pd_ms_new_mbr(session, state, kOther, 2));
  const auto copy = [] { return soft_device_copy(kDevice, kOther); };
  const auto held = [&] {
    EXPECT_EQ(p4_pd_ms_new_mbr(session, state, kOther, 2), BF_ALREADY_EXISTS);
    return model.on(kOther).contents();
  };
  EXPECT_GT(until_success(copy, BF_SUCCESS, held), 100);
  EXPECT_TRUE(model.on(kOther).contents() == model.contents());
  OK(p4_pd_ms_del_mbr(session, state, kDevice, 1));
  OK(p4_pd_ms_del_mbr(session, state, kOther, 1)) << "a copy of its own";
  EXPECT_EQ(p4_pd_ms_del_mbr(session, second, kOther, 8), BF_OBJECT_NOT_FOUND);
  for (const uint8_t device : {uint8_t{kDevice}, uint8_t{kOther}}) {
    OK(p4_pd_ms_destroy_state_for_dev(state, device));
  }
  OK(soft_device_remove(kOther));
}

// A replay leaves each object with the old or the new contents and can be repeated.
TEST_F(Memory, AReplayCanBeRepeated) {
  OK(soft_device_create(kVirtual, 2, &small_program(), true));
  const Filled model(session, kVirtual);
  const auto replay = [&] {
    return pipe_mgr_hitless_ha_restore_virtual_dev_state(
        session, kDevice, kVirtual, kAll, 0,
        [](pipe_session_handle_t, uint8_t, uint32_t, uint32_t, uint32_t, uint32_t,
           uint32_t) -> bf_status_t { return BF_SUCCESS; });
  };
  const Filled target = model.on(kDevice);
  EXPECT_GT(until_success(replay, BF_SUCCESS, [] { return 0; }), 20);
  for (size_t list = 0; list < 4; ++list) {  // tables and profiles
    EXPECT_TRUE(contents(target.lists[list], target.hands[list]) ==
                contents(model.lists[list], model.hands[list]));
  }
  OK(soft_device_remove(kVirtual));
}

TEST_F(Memory, AMemberSelectorStateNeedsSome) {
  allocations_left = 0;
  EXPECT_EQ(p4_pd_ms_init_state(), nullptr);
  allocations_left = -1;
}

}  // namespace
