// Hash calculations: configuration, and hashes worked out bit by bit elsewhere.
#include "program.hpp"

namespace {

using namespace soft_test;

class Hashes : public SoftTest {
 protected:
  Bytes hash(const Bytes &stream, uint32_t length, uint32_t calculation = kIpHash) {
    Bytes made(length + 1, 0xa5);
    OK(pipe_mgr_hash_calc_calculate_hash_value(session, kDevice, calculation, stream.data(),
                                               static_cast<uint32_t>(stream.size()), made.data(),
                                               length));
    EXPECT_EQ(made.back(), 0xa5) << "written behind the hash";
    made.pop_back();
    return made;
  }
  void seed(uint64_t value) { OK(pipe_mgr_hash_calc_seed_set(session, kDevice, kIpHash, value)); }
};

const Bytes kDigits{'1', '2', '3', '4', '5', '6', '7', '8', '9'};

TEST_F(Hashes, SeedIsTheInitialValueOfTheOneCalculation) {
  uint64_t read = 1;
  OK(pipe_mgr_hash_calc_seed_get(session, kDevice, kIpHash, &read));
  EXPECT_EQ(read, 0u);
  seed(1);
  EXPECT_EQ(hash(kDigits, 8), (Bytes{0xcd, 0xe9, 0x73, 0x88, 0xa2, 0x2a, 0x2f, 0x03}));
  EXPECT_EQ(hash(kDigits, 2, kEthHash), (Bytes{0x62, 0xec}));
  seed(0xdeadbeef12345678);
  EXPECT_EQ(hash({0x01, 0x42, 0x47, 0xff}, 12),
            (Bytes{0x7e, 0x15, 0xe0, 0xd3, 0x52, 0xb2, 0xea, 0x2c, 0xe3, 0x1a, 0x36, 0x92}));
  OK(pipe_mgr_hash_calc_seed_get(session, kDevice, kIpHash, &read));
  EXPECT_EQ(read, 0xdeadbeef12345678u);
}

TEST_F(Hashes, RefuseLengthsAndForeignParts) {
  uint8_t made[65] = {};
  for (const uint32_t length : {0u, 65u}) {
    EXPECT_EQ(pipe_mgr_hash_calc_calculate_hash_value(session, kDevice, kIpHash, kDigits.data(), 9,
                                                      made, length),
              BF_INVALID_ARGUMENT);
  }
  for (const uint32_t foreign : {0u, kEthFields, kOtherCrc, kIpHash}) {
    EXPECT_EQ(pipe_mgr_hash_calc_input_set(session, kDevice, kIpHash, foreign), BF_INVALID_HANDLE);
    EXPECT_EQ(pipe_mgr_hash_calc_algorithm_set(session, kDevice, kIpHash, foreign),
              BF_INVALID_HANDLE);
  }
}

TEST_F(Hashes, AttributesAreOfTheirOwnFieldsAndTakeNoPartInTheHash) {
  const pipe_mgr_hash_attribute_t list[] = {{2, 7, 0x1234}, {0, 0, 1}, {3, 0, 1}};
  const auto set = [&](uint32_t count, uint32_t fields) {
    return pipe_mgr_hash_calc_input_field_attribute_set(session, kDevice, kIpHash, fields, count,
                                                        list);
  };
  OK(set(2, kIpFields));
  EXPECT_EQ(set(1, kEthFields), BF_INVALID_HANDLE);
  EXPECT_EQ(set(3, kIpFields), BF_INVALID_ARGUMENT) << "it has no field 3";
  EXPECT_EQ(hash(kDigits, 2), (Bytes{0x62, 0xec}));
  pipe_mgr_hash_attribute_t read[2] = {};
  uint32_t filled = kNowhere;
  OK(pipe_mgr_hash_calc_input_field_attribute_get(session, kDevice, kIpHash, kIpFields, 1, read,
                                                  &filled));
  EXPECT_EQ(filled, 1u);
  EXPECT_EQ(read[1].value, 0u) << "beyond the room";
}

}  // namespace
