// Hash calculations: selection, attributes, and the same by name.
#include <cstring>

#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

using Attributes = std::vector<pipe_mgr_hash_attribute_t>;

constexpr uint32_t kUnknown = P4_PD_UNKNOWN_SELECTION;
constexpr uint32_t kNull = P4_PD_NULL_ARGUMENT;

const struct Row {
  const char *hash;
  uint32_t handle;
  uint32_t list;
  uint32_t fields;
} kRows[] = {
    {"hashOuterEthHdr", 0x22000011, 0x21000010, 5},
    {"hashInnerEthHdr", 0x2200000c, 0x2100000b, 5},
    {"hashOuterIpv4Hdr", 0x2200000d, 0x2100000c, 3},
    {"hashInnerIpv4Hdr", 0x2200000a, 0x21000009, 3},
    {"hashOuterIpv6Hdr", 0x2200000e, 0x2100000d, 4},
    {"hashInnerIpv6Hdr", 0x2200000b, 0x2100000a, 4},
    {"hashOuterIpAndL4Hdr", 0x2200000f, 0x2100000e, 3},
    {"hashInnerIpAndL4Hdr", 0x22000010, 0x2100000f, 3},
};
// What the scenarios below use: hashOuterIpv4Hdr.
constexpr uint32_t kHandle = 0x2200000d;
constexpr uint32_t kList = 0x2100000c;

class Hashes : public StatefulTest {
 protected:
  // The device behaves as if no list were configured, or fails to tell.
  static void forget_list(bf_status_t status = BF_SUCCESS) {
    soft::faults::fail_call("pipe_mgr_hash_calc_input_get", 1, status);
  }
};

TEST_F(Hashes, PassOtherSelectionsOnAsNoHandle) {
  EXPECT_EQ(p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_set(session, kDevice, 1),
            uint32_t{BF_INVALID_HANDLE});
  EXPECT_EQ(take_one().scalar("field_list"), 0u);
  EXPECT_EQ(
      p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_algorithm_set(session, kDevice, 0xffffffff),
      uint32_t{BF_INVALID_HANDLE});
  EXPECT_EQ(take_one().scalar("algorithm"), 0u);
  const p4_pd_hash_calc_attr_t attribute = {0, 0, 0};
  EXPECT_EQ(p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_set(
                session, kDevice, 2, 1, &attribute),
            uint32_t{BF_INVALID_HANDLE});
  EXPECT_EQ(take_one().scalar("field_list"), 0u);
}

TEST_F(Hashes, ReportASelectionOnlyWhenItIsTheirOwn) {
  for (const bf_status_t status : {BF_SUCCESS, BF_HARDWARE_FAULT}) {
    uint32_t read = 9;
    forget_list(status);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_get(session, kDevice, &read),
              kUnknown);
    soft::faults::fail_call("pipe_mgr_hash_calc_algorithm_get", 1, status);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_algorithm_get(session, kDevice, &read),
              kUnknown);
    EXPECT_EQ(read, 9u);
  }
}

TEST_F(Hashes, CountTheAttributesOfTheConfiguredList) {
  const auto count_get = [&](uint32_t input, uint32_t *count) {
    return p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_count_get(
        session, kDevice, input, count);
  };
  uint32_t count = 9;
  EXPECT_EQ(count_get(1, &count), kUnknown);
  EXPECT_EQ(take().size(), 1u);
  EXPECT_EQ(count, 9u);

  // Another list than its own is passed on as it was read, whatever the input.
  for (const uint32_t input : {0, 1}) {
    count = 9;
    forget_list();
    EXPECT_EQ(count_get(input, &count), uint32_t{BF_INVALID_HANDLE});
    EXPECT_EQ(count, 0u);
    const std::vector<Call> calls = take();
    ASSERT_EQ(calls.size(), 2u);
    EXPECT_EQ(calls[1].scalar("field_list"), 0u);
  }
  EXPECT_EQ(count_get(0, nullptr), kNull);
  EXPECT_TRUE(take().empty());
}

TEST_F(Hashes, SetAndGetAttributesWordForWord) {
  const auto set = [&](uint32_t count, const p4_pd_hash_calc_attr_t *attributes) {
    return p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_set(
        session, kDevice, 0, count, attributes);
  };
  const uint8_t wide = 0;
  const p4_pd_hash_calc_attr_t given[2] = {{2, 0xfedcba98, reinterpret_cast<uintptr_t>(&wide)},
                                           {0, 1, 0x89abcdef}};
  EXPECT_EQ(set(2, given), BF_SUCCESS);
  const Call call = take_one();
  expect_scalars(call, {{"session", session},
                        {"device", kDevice},
                        {"calculation", kHandle},
                        {"field_list", kList},
                        {"count", 2}});
  ASSERT_EQ(call.get<Attributes>("attributes").size(), 2u);
  EXPECT_EQ(std::memcmp(call.get<Attributes>("attributes").data(), given, sizeof given), 0);

  p4_pd_hash_calc_attr_t read[3] = {{9, 9, 9}, {9, 9, 9}, {9, 9, 9}};
  uint32_t filled = 9;
  const auto get = [&](uint32_t input, uint32_t max_count) {
    return p4_pd_tessel_switch_hash_calc_hashOuterIpv4Hdr_input_field_attribute_get(
        session, kDevice, input, max_count, read, &filled);
  };
  EXPECT_EQ(get(0, 3), BF_SUCCESS);
  EXPECT_EQ(filled, 2u);
  EXPECT_EQ(std::memcmp(read, given, sizeof given), 0);
  EXPECT_EQ(read[2].field, 9u);
  take();

  EXPECT_EQ(get(0, 0), BF_SUCCESS);
  EXPECT_EQ(filled, 0u);
  EXPECT_EQ(take_one().function, "pipe_mgr_hash_calc_input_get");
  filled = 9;
  EXPECT_EQ(get(1, 3), kUnknown);
  EXPECT_EQ(filled, 0u);

  take();
  EXPECT_EQ(set(0, nullptr), BF_SUCCESS);
  const Call cleared = take_one();
  EXPECT_EQ(cleared.scalar("count"), 0u);
  EXPECT_TRUE(cleared.is_null("attributes"));
}

// ---- By name ----

TEST_F(Hashes, FindCalculationsByExactName) {
  for (const Row &row : kRows) {
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_set(session, kDevice, row.hash), BF_SUCCESS);
    expect_scalars(take_one(), {{"session", session},
                                {"device", kDevice},
                                {"calculation", row.handle},
                                {"field_list", row.list}});
  }
  p4_pd_tessel_switch_hash_field_attr_t attribute = {0, 1, 2};
  uint32_t count = 9;
  for (const char *name : {"", "hashOuterIpv4Hdr ", " hashOuterIpv4Hdr", "HashOuterIpv4Hdr",
                           "hashOuterIpv4Hd", "hashOuterIpv4Hdrs"}) {
    SCOPED_TRACE(name);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_set(session, kDevice, name), kUnknown);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_field_attribute_count_get(session, kDevice, name,
                                                                            &count),
              kUnknown);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_field_attribute_set(session, kDevice, name, 1,
                                                                      &attribute),
              kUnknown);
    EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_field_attribute_get(session, kDevice, name, 1,
                                                                      &attribute, &count),
              kUnknown);
  }
  EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_set(session, kDevice, nullptr), kNull);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(count, 9u);
  EXPECT_EQ(attribute.value, 1u);
}

TEST_F(Hashes, SetAndGetAttributesByName) {
  const char *name = "hashOuterIpv4Hdr";
  const p4_pd_tessel_switch_hash_field_attr_t given[2] = {{2, 0xfffffffe, 77}, {0, 5, 88}};
  EXPECT_EQ(
      p4_pd_tessel_switch_hash_calc_input_field_attribute_set(session, kDevice, name, 2, given),
      BF_SUCCESS);
  const Call set = take_one();
  EXPECT_EQ(set.scalar("calculation"), kHandle);
  EXPECT_EQ(set.scalar("field_list"), kList);
  const auto sent = set.get<Attributes>("attributes");
  ASSERT_EQ(sent.size(), 2u);
  EXPECT_EQ(sent[0].field, 2u);
  EXPECT_EQ(sent[0].type, 0u);
  EXPECT_EQ(sent[0].value, 0xfffffffeu);
  EXPECT_EQ(sent[1].field, 0u);
  EXPECT_EQ(sent[1].value, 5u);

  uint32_t count = 9;
  EXPECT_EQ(
      p4_pd_tessel_switch_hash_calc_input_field_attribute_count_get(session, kDevice, name, &count),
      BF_SUCCESS);
  EXPECT_EQ(count, 2u);
  p4_pd_tessel_switch_hash_field_attr_t read[3] = {{9, 9, 9}, {9, 9, 9}, {9, 9, 9}};
  EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_field_attribute_get(session, kDevice, name, 3, read,
                                                                    &count),
            BF_SUCCESS);
  EXPECT_EQ(count, 2u);
  EXPECT_EQ(read[0].field, 2u);
  EXPECT_EQ(read[0].value, 0xfffffffeu);
  EXPECT_EQ(read[0].reserved, 0u);
  EXPECT_EQ(read[1].value, 5u);
  EXPECT_EQ(read[2].field, 9u);
}

TEST_F(Hashes, RefuseAnUnknownFieldWithoutACall) {
  const p4_pd_tessel_switch_hash_field_attr_t bad[2] = {{0, 1, 0}, {3, 1, 0}};
  EXPECT_EQ(p4_pd_tessel_switch_hash_calc_input_field_attribute_set(session, kDevice,
                                                                    "hashOuterIpv4Hdr", 2, bad),
            kUnknown)
      << "the calculation has fields 0 to 2";
  EXPECT_TRUE(take().empty());
}

// Fields go by their own numbers in every calculation.
TEST_F(Hashes, MapTheFieldsThatThereAre) {
  for (const Row &row : kRows) {
    for (uint32_t field = 0; field < row.fields; ++field) {
      EXPECT_EQ(call_export("p4_field_enum", row.hash, {field}), field) << row.hash;
      EXPECT_EQ(call_export("cmn_field_enum", row.hash, {field}), field) << row.hash;
    }
    for (const uint32_t field : {row.fields, 0xffffffffu}) {
      EXPECT_EQ(static_cast<int32_t>(call_export("p4_field_enum", row.hash, {field})), -1);
      EXPECT_EQ(call_export("cmn_field_enum", row.hash, {field}), 0xffffffffu);
    }
  }
}

}  // namespace
