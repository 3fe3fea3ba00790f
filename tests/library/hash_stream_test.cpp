// The byte stream that a hash is computed over: streams worked out by hand, and random ones against
// a packer that moves one bit at a time.
#include <random>

#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

// A field value: its width, and its bytes with the most significant first, as many as hold it.
struct Field {
  uint32_t width;
  Bytes bytes;
};

class HashStreams : public StatefulTest {
 protected:
  uint32_t calculate(uint32_t count, const p4_pd_hash_calc_attr_t *values, const uint32_t *sizes,
                     uint8_t *hash, uint32_t length) {
    return p4_pd_tessel_switch_hash_calc_hashOuterEthHdr_calculate_hash_value(
        session, kDevice, count, values, sizes, hash, length);
  }

  // What reaches the device for these fields.
  Bytes stream_of(const std::vector<Field> &fields) {
    std::vector<p4_pd_hash_calc_attr_t> values;
    std::vector<uint32_t> sizes;
    for (const Field &field : fields) {
      uintptr_t value = 0;
      for (const uint8_t byte : field.bytes) value = value << 8 | byte;
      if (field.width > 32) value = reinterpret_cast<uintptr_t>(field.bytes.data());
      // Neither the number nor the type of a field says where it lands.
      values.push_back({static_cast<uint32_t>(99 - values.size()), 0xffffffff, value});
      sizes.push_back(field.width);
    }
    uint8_t hash[8];
    EXPECT_EQ(calculate(static_cast<uint32_t>(fields.size()), values.data(), sizes.data(), hash, 8),
              BF_SUCCESS);
    const Call call = take_one();
    if (call.is_null("stream")) {
      EXPECT_EQ(call.scalar("stream_length"), 0u);
      return {};
    }
    EXPECT_EQ(call.scalar("stream_length"), call.get<Bytes>("stream").size());
    return call.get<Bytes>("stream");
  }
};

TEST_F(HashStreams, PutFieldsEndToEnd) {
  EXPECT_EQ(stream_of({{4, {0x0a}}, {12, {0x01, 0x23}}, {9, {0x01, 0xff}}}),
            (Bytes{0x01, 0x42, 0x47, 0xff}));
  EXPECT_EQ(stream_of({{48, {0x00, 0xde, 0xad, 0xbe, 0xef, 0x01}}, {16, {0x08, 0x00}}}),
            (Bytes{0x00, 0xde, 0xad, 0xbe, 0xef, 0x01, 0x08, 0x00}));
  // 1 | 0010000 | 11: 10 bits behind 6 of padding.
  EXPECT_EQ(stream_of({{1, {0x01}}, {7, {0x10}}, {2, {0x03}}}), (Bytes{0x02, 0x43}));
}

TEST_F(HashStreams, HoldOneFieldOfAnyWidth) {
  EXPECT_EQ(stream_of({{1, {0x01}}}), (Bytes{0x01}));
  EXPECT_EQ(stream_of({{7, {0x7f}}}), (Bytes{0x7f}));
  EXPECT_EQ(stream_of({{8, {0x81}}}), (Bytes{0x81}));
  EXPECT_EQ(stream_of({{31, {0x7e, 0xdc, 0xba, 0x98}}}), (Bytes{0x7e, 0xdc, 0xba, 0x98}));
  EXPECT_EQ(stream_of({{32, {0xfe, 0xdc, 0xba, 0x98}}}), (Bytes{0xfe, 0xdc, 0xba, 0x98}));
  EXPECT_EQ(stream_of({{33, {0x01, 0x02, 0x03, 0x04, 0x05}}}),
            (Bytes{0x01, 0x02, 0x03, 0x04, 0x05}));
  EXPECT_EQ(stream_of({{64, {1, 2, 3, 4, 5, 6, 7, 0x80}}}), (Bytes{1, 2, 3, 4, 5, 6, 7, 0x80}));
  const Bytes address = {0x20, 0x01, 0x0d, 0xb8, 0, 0, 0, 0, 0, 0, 0, 0, 0xff, 0xee, 0xdd, 0xcc};
  EXPECT_EQ(stream_of({{128, address}}), address);
  // 33 bits, one of them in a byte of its own, behind a bit: 1 | 1 00000002.
  EXPECT_EQ(stream_of({{1, {0x01}}, {33, {0x01, 0x00, 0x00, 0x00, 0x02}}}),
            (Bytes{0x03, 0x00, 0x00, 0x00, 0x02}));
}

TEST_F(HashStreams, MayBeEmptyAndHoldEmptyFields) {
  EXPECT_EQ(stream_of({}), Bytes{});
  EXPECT_EQ(stream_of({{0, {0xff}}}), Bytes{});
  EXPECT_EQ(stream_of({{4, {0x0a}}, {0, {0xff}}, {4, {0x05}}}), (Bytes{0xa5}));
  uint8_t hash[8];
  EXPECT_EQ(calculate(0, nullptr, nullptr, hash, 8), BF_SUCCESS);
}

// Bits beyond a value's width must not reach the field in front of it nor the padding.
TEST_F(HashStreams, DropTheBitsBeyondAWidth) {
  EXPECT_EQ(stream_of({{4, {0x00}}, {4, {0xf5}}}), (Bytes{0x05}));
  EXPECT_EQ(stream_of({{3, {0xff}}}), (Bytes{0x07}));
  EXPECT_EQ(stream_of({{33, {0xff, 0, 0, 0, 0}}}), (Bytes{0x01, 0, 0, 0, 0}));
}

// Writes bit by bit, from the last bit of the last field to the first of the first.
Bytes pack_bit_by_bit(const std::vector<Field> &fields) {
  size_t total = 0;
  for (const Field &field : fields) total += field.width;
  Bytes stream((total + 7) / 8);
  size_t from_end = 0;
  for (size_t i = fields.size(); i-- > 0;) {
    for (uint32_t bit = 0; bit < fields[i].width; ++bit, ++from_end) {
      const uint8_t byte = fields[i].bytes[fields[i].bytes.size() - 1 - bit / 8];
      if ((byte >> bit % 8 & 1) != 0) {
        stream[stream.size() - 1 - from_end / 8] |= static_cast<uint8_t>(1 << from_end % 8);
      }
    }
  }
  return stream;
}

TEST_F(HashStreams, AgreeWithAPackerOfSingleBits) {
  std::mt19937 random(20240607);
  const auto up_to = [&](uint32_t most) {
    return std::uniform_int_distribution<uint32_t>(0, most)(random);
  };
  for (int round = 0; round < 2000; ++round) {
    std::vector<Field> fields(up_to(6));
    for (Field &field : fields) {
      field.width = up_to(3) == 0 ? up_to(200) : up_to(40);
      field.bytes.resize((field.width + 7) / 8);
      for (uint8_t &byte : field.bytes) byte = static_cast<uint8_t>(random());
    }
    ASSERT_EQ(stream_of(fields), pack_bit_by_bit(fields)) << "round " << round;
  }
}

TEST_F(HashStreams, AreRefusedWithoutACall) {
  constexpr uint32_t kNull = P4_PD_NULL_ARGUMENT;
  const p4_pd_hash_calc_attr_t values[2] = {{0, 0, 1}, {1, 0, 0}};
  const uint32_t sizes[2] = {8, 33};
  uint8_t hash[2] = {0xa5, 0xa5};
  EXPECT_EQ(calculate(1, nullptr, sizes, hash, 2), kNull);
  EXPECT_EQ(calculate(1, values, nullptr, hash, 2), kNull);
  EXPECT_EQ(calculate(1, values, sizes, nullptr, 2), kNull);
  EXPECT_EQ(calculate(2, values, sizes, hash, 2), kNull) << "a wide value without bytes";
  soft::faults::fail_allocation(1);
  EXPECT_EQ(calculate(1, values, sizes, hash, 2), uint32_t{P4_PD_NO_MEMORY});

  // Sizes whose sum in bits wraps 32 bits round to something small, and one too long to name.
  const uint8_t byte = 0;
  const p4_pd_hash_calc_attr_t wide = {0, 0, reinterpret_cast<uintptr_t>(&byte)};
  const std::vector<p4_pd_hash_calc_attr_t> many(9, wide);
  const std::vector<uint32_t> huge(9, 0xfffffff8);
  soft::faults::fail_allocation(1);
  EXPECT_EQ(calculate(2, many.data(), huge.data(), hash, 2), uint32_t{P4_PD_NO_MEMORY});
  const uint64_t allocations = soft_allocations_made();
  EXPECT_EQ(calculate(9, many.data(), huge.data(), hash, 2), uint32_t{P4_PD_NO_MEMORY});
  EXPECT_EQ(soft_allocations_made(), allocations);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(hash[0], 0xa5);
}

// The device's answer comes through unchanged: 1 to 8 bytes of the CRC of the stream.
TEST_F(HashStreams, LeadToTheHashOfTheDevice) {
  const p4_pd_hash_calc_attr_t values[3] = {{0, 0, 0x0a}, {1, 0, 0x123}, {2, 0, 0x1ff}};
  const uint32_t sizes[3] = {4, 12, 9};
  Bytes hash(4, 0xa5);
  EXPECT_EQ(calculate(3, values, sizes, hash.data(), 3), BF_SUCCESS);
  EXPECT_EQ(hash, (Bytes{0x51, 0xd2, 0xc6, 0xa5}));
  EXPECT_EQ(calculate(3, values, sizes, hash.data(), 0), uint32_t{BF_INVALID_ARGUMENT});
}

}  // namespace
