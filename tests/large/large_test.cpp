// Round trips through a program of large records: what is written is what every way back reads.
#include <gtest/gtest.h>

#include <cstring>
#include <numeric>

#include "p4_pd_large.h"
#include "soft_placement.h"
#include "soft_sdk.h"

extern "C" {
extern const soft_program_t soft_program_large;
}

namespace {

constexpr bf_device_id_t kDevice = 1;
constexpr p4_pd_device_target_t kTarget = {kDevice, BF_ALL_PIPES};

using Key = p4_pd_large_deep_match_spec_t;
using Data = p4_pd_large_wide_action_spec_t;

// Words that all differ, the first being `first`.
template <class Record>
Record numbered(uint32_t first) {
  std::vector<uint32_t> words(sizeof(Record) / 4);
  std::iota(words.begin(), words.end(), first);
  Record record;
  std::memcpy(&record, words.data(), sizeof record);
  return record;
}

class Large : public testing::Test {
 protected:
  Large() {
    EXPECT_EQ(soft_session_open(&session_), BF_SUCCESS);
    EXPECT_EQ(p4_pd_large_init(), BF_SUCCESS);
    EXPECT_EQ(soft_device_create(kDevice, 1, &soft_program_large, true), BF_SUCCESS);
    auto *words = reinterpret_cast<uint32_t *>(&key_);
    for (size_t i = 0; i < sizeof key_ / 8; ++i) words[2 * i + 1] = ~0u;  // masks
  }
  ~Large() override {
    EXPECT_EQ(soft_device_remove(kDevice), BF_SUCCESS);
    EXPECT_EQ(p4_pd_large_cleanup(), BF_SUCCESS);
    EXPECT_EQ(soft_session_close(session_), BF_SUCCESS);
  }

  void expect_data(const p4_pd_large_action_specs_t &read) const {
    EXPECT_EQ(std::memcmp(&read.spec.wide, &data_, sizeof data_), 0);
  }

  p4_pd_session_handle_t session_ = 0;
  Key key_ = numbered<Key>(0x01020304);
  Data data_ = numbered<Data>(0xa0b0c0d0);
};

TEST_F(Large, Entry) {
  p4_pd_entry_handle_t entry = 0;
  ASSERT_EQ(p4_pd_large_deep_table_add_with_wide(session_, kTarget, &key_, 5, &data_, &entry),
            BF_SUCCESS);
  Key key;
  Data data;
  uint32_t priority = 0;
  bool no_key = true;
  ASSERT_EQ(p4_pd_large_deep_get_entry(session_, kDevice, entry, true, &key, &priority, nullptr,
                                       &data, nullptr, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(std::memcmp(&key, &key_, sizeof key), 0);
  EXPECT_EQ(std::memcmp(&data, &data_, sizeof data), 0);

  pipe_mgr_placement_t *placed = nullptr;
  ASSERT_EQ(soft_placement_of_entry(kDevice, 0x01000001, entry, &placed), BF_SUCCESS);
  p4_pd_large_action_specs_t specs;
  ASSERT_EQ(p4_pd_large_deep_get_entry_from_plcmt_data(placed, &key, &priority, &specs, &no_key),
            BF_SUCCESS);
  EXPECT_EQ(std::memcmp(&key, &key_, sizeof key), 0);
  expect_data(specs);
  EXPECT_EQ(p4_pd_large_deep_plcmt_data_eq_to_hw(session_, kDevice, 0, entry, placed), 1);
  soft_placement_free(placed);

  std::vector<char> value(P4_PD_LARGE_VALUE_MAX);
  const int length = p4_pd_large_deep_value(session_, kDevice, entry, true, value.data());
  EXPECT_EQ(static_cast<size_t>(length), std::strlen(value.data()));
  EXPECT_NE(std::strstr(value.data(), "0xa0b0c1fb"), nullptr) << "the last parameter";
}

TEST_F(Large, MemberOfTheLastProfile) {
  p4_pd_member_handle_t member = 0;
  ASSERT_EQ(p4_pd_large_members49_add_member_with_wide(session_, kTarget, &data_, &member),
            BF_SUCCESS);
  p4_pd_large_action_specs_t specs;
  ASSERT_EQ(p4_pd_large_members49_get_member(session_, kDevice, member, true, &specs), BF_SUCCESS);
  expect_data(specs);
  pipe_mgr_placement_t *placed = nullptr;
  ASSERT_EQ(soft_placement_of_member(kDevice, 0x02000049, member, &placed), BF_SUCCESS);
  ASSERT_EQ(p4_pd_large_members49_get_member_from_plcmt_data(placed, &specs), BF_SUCCESS);
  expect_data(specs);
  soft_placement_free(placed);

  p4_pd_entry_handle_t entry = 0;
  const p4_pd_large_paths_match_spec_t path = {7};
  EXPECT_EQ(p4_pd_large_paths_add_entry(session_, kTarget, &path, member, &entry), BF_SUCCESS);
}

}  // namespace
