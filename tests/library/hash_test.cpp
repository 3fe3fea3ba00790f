// Hash calculations: selections, attributes, names, and the byte stream that a hash is computed
// over: random ones against a packer that moves one bit at a time.
#include "scene.hpp"
#include "typed.hpp"

namespace pd_test {
namespace {

using Attributes = std::vector<pipe_mgr_hash_attribute_t>;

// hashOuterIpv4Hdr, which has fields 0 to 2.
constexpr const char *kName = "hashOuterIpv4Hdr";

class Hashes : public LibraryTest {
 protected:
  // The device behaves as if no list were configured.
  static void forget_list() {
    soft::faults::fail_call("pipe_mgr_hash_calc_input_get", 1, BF_SUCCESS);
  }
};

TEST_F(Hashes, PassOtherSelectionsOnAsNoHandle) {
  const p4_pd_hash_calc_attr_t attribute = {0, 0, 0};
  for (const auto &[setting, argument] : {std::pair{"input", "field_list"},
                                          {"algorithm", "algorithm"},
                                          {"input_field_attribute", "field_list"}}) {
    const Call call = only_call([&, family = "hash_calc_" + std::string(setting) + "_set"] {
      EXPECT_EQ(
          run(family, kName,
              with("input", 1, "algorithm", 1, "attribute_count", 1, "attributes", &attribute)),
          BF_INVALID_HANDLE);
    });
    EXPECT_EQ(call.scalar(argument), 0u);
  }
}

TEST_F(Hashes, ReportASelectionOnlyWhenItIsTheirOwn) {
  uint32_t read = 9;
  forget_list();
  EXPECT_EQ(PD(hash_calc_hashOuterIpv4Hdr_input_get)(session(), kDevice, &read),
            P4_PD_UNKNOWN_SELECTION);
  soft::faults::fail_call("pipe_mgr_hash_calc_algorithm_get", 1, BF_SUCCESS);
  EXPECT_EQ(PD(hash_calc_hashOuterIpv4Hdr_algorithm_get)(session(), kDevice, &read),
            P4_PD_UNKNOWN_SELECTION);
  EXPECT_EQ(read, 9u);
}

TEST_F(Hashes, CountTheAttributesOfTheConfiguredList) {
  const auto count_get = PD(hash_calc_hashOuterIpv4Hdr_input_field_attribute_count_get);
  uint32_t count = 9;
  only_call([&] { EXPECT_EQ(count_get(session(), kDevice, 1, &count), P4_PD_UNKNOWN_SELECTION); });
  EXPECT_EQ(count, 9u);
  // Another list than its own is passed on as it was read, whatever the input.
  for (const uint32_t input : {0u, 1u}) {
    count = 9;
    forget_list();
    const auto calls = recorded(
        [&] { EXPECT_EQ(count_get(session(), kDevice, input, &count), BF_INVALID_HANDLE); });
    EXPECT_EQ(count, 0u);
    EXPECT_EQ(calls.at(1).scalar("field_list"), 0u);
  }
}

TEST_F(Hashes, GetNoAttributesWithoutRoomOrOfAnotherInput) {
  const auto get = PD(hash_calc_hashOuterIpv4Hdr_input_field_attribute_get);
  p4_pd_hash_calc_attr_t read[1] = {};
  uint32_t filled = 9;
  const Call asked =
      only_call([&] { EXPECT_EQ(get(session(), kDevice, 0, 0, read, &filled), BF_SUCCESS); });
  EXPECT_EQ(asked.function, "pipe_mgr_hash_calc_input_get");
  EXPECT_EQ(filled, 0u);
  filled = 9;
  EXPECT_EQ(get(session(), kDevice, 1, 1, read, &filled), P4_PD_UNKNOWN_SELECTION);
  EXPECT_EQ(filled, 0u);
}

// ---- By name ----

TEST(HashNames, MustBeExact) {
  for (const char *name : {"", "hashOuterIpv4Hdr ", "HashOuterIpv4Hdr", "hashOuterIpv4Hd"}) {
    for (const Export *exported : all_exports()) {
      if (!std::string_view(exported->family).ends_with("_by_name")) continue;
      Scene scene(*exported);
      scene.arguments().set("name", name);
      EXPECT_EQ(scene.play(), P4_PD_UNKNOWN_SELECTION) << exported->name << " " << name;
      EXPECT_TRUE(scene.calls().empty());
      EXPECT_EQ(scene.written_outputs(), "");
    }
  }
}

TEST_F(Hashes, SetAttributesByName) {
  const PD(hash_field_attr_t) given[2] = {{2, 0xfffffffe, 77}, {0, 5, 88}};
  const auto set_by_name = PD(hash_calc_input_field_attribute_set);
  const Call set =
      only_call([&] { EXPECT_EQ(set_by_name(session(), kDevice, kName, 2, given), BF_SUCCESS); });
  const auto sent = set.get<Attributes>("attributes");
  ASSERT_EQ(sent.size(), 2u);
  EXPECT_TRUE(sent[0].field == 2 && sent[0].type == 0 && sent[0].value == 0xfffffffe);
  const PD(hash_field_attr_t) unknown[2] = {{0, 1, 0}, {3, 1, 0}};
  EXPECT_TRUE(recorded([&] {
                EXPECT_EQ(set_by_name(session(), kDevice, kName, 2, unknown),
                          P4_PD_UNKNOWN_SELECTION);
              }).empty());
}

// ---- Streams ----

// A field value: its width, and its bytes with the most significant first, as many as hold it.
struct Field {
  uint32_t width;
  Bytes bytes;
};

constexpr auto kCalculate = PD(hash_calc_hashOuterEthHdr_calculate_hash_value);

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
  const Call call = only_call([&] {
    EXPECT_EQ(kCalculate(session(), kDevice, static_cast<uint32_t>(fields.size()), values.data(),
                         sizes.data(), hash, 8),
              BF_SUCCESS);
  });
  const Bytes stream = call.is_null("stream") ? Bytes() : call.get<Bytes>("stream");
  EXPECT_EQ(call.scalar("stream_length"), stream.size());
  return stream;
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
      if ((byte >> bit % 8 & 1) == 0) continue;
      stream[stream.size() - 1 - from_end / 8] |= static_cast<uint8_t>(1 << from_end % 8);
    }
  }
  return stream;
}

TEST_F(Hashes, StreamsAgreeWithAPackerOfSingleBits) {
  Random random(20240607);
  for (int round = 0; round < 2000; ++round) {
    std::vector<Field> fields(static_cast<size_t>(random() % 7));
    for (Field &field : fields) {
      field.width = static_cast<uint32_t>(random() % 4 == 0 ? random() % 201 : random() % 41);
      field.bytes.resize((field.width + 7) / 8);
      for (uint8_t &byte : field.bytes) byte = static_cast<uint8_t>(random());
    }
    ASSERT_EQ(stream_of(fields), pack_bit_by_bit(fields)) << "round " << round;
  }
}

TEST_F(Hashes, StreamsAreRefusedWithoutACall) {
  const p4_pd_hash_calc_attr_t values[2] = {{0, 0, 1}, {1, 0, 0}};
  const uint32_t sizes[2] = {8, 33};
  uint8_t hash[2] = {0xa5, 0xa5};
  const auto calculate = [&](uint32_t count, const auto *some, const uint32_t *widths) {
    return kCalculate(session(), kDevice, count, some, widths, hash, 2);
  };
  // Sizes whose sum in bits wraps 32 bits round to something small, and one too long to name.
  const p4_pd_hash_calc_attr_t wide = {0, 0, reinterpret_cast<uintptr_t>(hash)};
  const std::vector<p4_pd_hash_calc_attr_t> many(9, wide);
  const std::vector<uint32_t> huge(9, 0xfffffff8);
  const auto calls = recorded([&] {
    EXPECT_EQ(calculate(1, values, nullptr), P4_PD_NULL_ARGUMENT);
    EXPECT_EQ(calculate(2, values, sizes), P4_PD_NULL_ARGUMENT) << "a wide value without bytes";
    soft::faults::fail_allocation(1);
    EXPECT_EQ(calculate(2, many.data(), huge.data()), P4_PD_NO_MEMORY);
    const uint64_t allocations = soft_allocations_made();
    EXPECT_EQ(calculate(9, many.data(), huge.data()), P4_PD_NO_MEMORY);
    EXPECT_EQ(soft_allocations_made(), allocations);
  });
  EXPECT_TRUE(calls.empty());
  EXPECT_EQ(hash[0], 0xa5);
}

}  // namespace
}  // namespace pd_test
