// Registers: typed values and cells, ranges, failures, and the functions that take a handle.
#include <cstring>

#include "pipe_stful.h"
#include "soft_state.h"
#include "stateful_fixture.hpp"

namespace {

using namespace stateful_test;

using Cells = std::vector<pipe_stful_cell_t>;
using Queries = std::vector<soft::journal::Query>;

class Registers : public StatefulTest {
 protected:
  // What the data plane keeps in a cell: another number in each pipe.
  static void count_in_pipes(uint32_t reg, uint32_t index, std::initializer_list<uint32_t> values) {
    bf_pipe_id_t pipe = 0;
    for (const uint32_t value : values) {
      EXPECT_EQ(soft_register_write(kDevice, pipe++, reg, index, value), BF_SUCCESS);
    }
  }
};

constexpr uint32_t kWide = 0x06000005;  // the one of 32 bits
constexpr uint32_t kBit = 0x06000001;

TEST_F(Registers, ReadOneValueForEachPipe) {
  const uint8_t five = 5;
  const uint8_t zero = 0;
  ASSERT_EQ(p4_pd_tessel_switch_register_write_ingStpCheckData(session, target, 6, &five),
            BF_SUCCESS);
  ASSERT_EQ(p4_pd_tessel_switch_register_write_ingStpCheckData(session, {kDevice, 2}, 6, &zero),
            BF_SUCCESS);
  take();
  uint8_t bits[5] = {9, 9, 9, 9, 9};
  uint32_t count = 99;
  ASSERT_EQ(p4_pd_tessel_switch_register_read_ingStpCheckData(session, target, 6, 0, bits, &count),
            BF_SUCCESS);
  EXPECT_EQ(count, 4u);
  EXPECT_EQ(Bytes(bits, bits + 5), (Bytes{1, 1, 0, 1, 9}));
  const std::vector<Call> calls = take();
  ASSERT_EQ(names(calls),
            (std::vector<std::string>{"pipe_stful_query_get_sizes", "pipe_stful_ent_query"}));
  expect_scalars(calls[0], {{"session", session}, {"device", kDevice}, {"reg", 0x06000007}});
  expect_scalars(calls[1], {{"session", session},
                            {"device", kDevice},
                            {"pipe", BF_ALL_PIPES},
                            {"reg", 0x06000007},
                            {"index", 6},
                            {"read_from_hardware", 0}});
  EXPECT_EQ(calls[1].get<Queries>("query")[0].count, 4u) << "the capacity";

  // One pipe yields one value, and only bit 0 of the flags reaches the device.
  count_in_pipes(kWide, 6, {0x80000001, 2, 0xfffefdfc, 4});
  uint32_t words[2] = {7, 7};
  const auto read_third_pipe = [&](uint32_t flags) {
    EXPECT_EQ(p4_pd_tessel_switch_register_read_flowDigestCountReg(session, {kDevice, 2}, 6, flags,
                                                                   words, &count),
              BF_SUCCESS);
    EXPECT_EQ(count, 1u);
    EXPECT_EQ(words[1], 7u);
    return words[0];
  };
  EXPECT_EQ(read_third_pipe(0xfffffffe), 0u);
  EXPECT_EQ(read_third_pipe(0xffffffff), 0xfffefdfcu);
}

TEST_F(Registers, ReadARangeOrderedByIndexAndThenByPipe) {
  count_in_pipes(kWide, 20, {0x100, 0x101, 0x102, 0x103});
  count_in_pipes(kWide, 21, {0x200, 0x201, 0x202, 0x203});
  count_in_pipes(kWide, 22, {0x300, 0x301, 0x302, 0xffffff03});
  std::vector<uint32_t> words(13, 7);
  uint32_t indexes = 99;
  uint32_t count = 99;
  ASSERT_EQ(p4_pd_tessel_switch_register_range_read_flowDigestCountReg(
                session, target, 20, 3, 1, &indexes, words.data(), &count),
            BF_SUCCESS);
  EXPECT_EQ(indexes, 3u);
  EXPECT_EQ(count, 12u);
  EXPECT_EQ(words, (std::vector<uint32_t>{0x100, 0x101, 0x102, 0x103, 0x200, 0x201, 0x202, 0x203,
                                          0x300, 0x301, 0x302, 0xffffff03, 7}));
  const std::vector<Call> calls = take();
  ASSERT_EQ(names(calls),
            (std::vector<std::string>{"pipe_stful_query_get_sizes", "pipe_stful_ent_query_range"}));
  expect_scalars(calls[1], {{"session", session},
                            {"device", kDevice},
                            {"pipe", BF_ALL_PIPES},
                            {"reg", kWide},
                            {"first", 20},
                            {"count", 3},
                            {"read_from_hardware", 1}});
  for (const soft::journal::Query &query : calls[1].get<Queries>("queries")) {
    EXPECT_EQ(query.count, 4u);
  }

  count_in_pipes(kBit, 20, {1, 0, 0, 1});
  count_in_pipes(kBit, 22, {0, 0, 1, 0});
  Bytes bits(13, 7);
  ASSERT_EQ(p4_pd_tessel_switch_register_range_read_flowStateRegisterFirst(
                session, target, 20, 3, 1, &indexes, bits.data(), &count),
            BF_SUCCESS);
  EXPECT_EQ(count, 12u);
  EXPECT_EQ(bits, (Bytes{1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 1, 0, 7}));
}

TEST_F(Registers, ReportTheIndexesThatThereWere) {
  constexpr uint32_t last = SOFT_REGISTER_CELLS - 1;
  count_in_pipes(kWide, last, {5, 6, 7, 8});
  std::vector<uint32_t> words(12, 9);
  uint32_t indexes = 99;
  uint32_t count = 99;
  const auto read = [&](uint32_t first, uint32_t wanted) {
    return p4_pd_tessel_switch_register_range_read_flowDigestCountReg(
        session, target, first, wanted, 1, &indexes, words.data(), &count);
  };
  leaves_unread_records = true;
  ASSERT_EQ(read(last, 3), BF_SUCCESS);
  leaves_unread_records = false;
  EXPECT_EQ(indexes, 1u);
  EXPECT_EQ(count, 4u);
  EXPECT_EQ(words, (std::vector<uint32_t>{5, 6, 7, 8, 9, 9, 9, 9, 9, 9, 9, 9}));

  // A range of none is asked for like any other and allocates nothing.
  const uint64_t allocations = soft_allocations_made();
  ASSERT_EQ(read(0, 0), BF_SUCCESS);
  EXPECT_EQ(indexes, 0u);
  EXPECT_EQ(count, 0u);
  EXPECT_EQ(soft_allocations_made(), allocations);
  EXPECT_EQ(read(last + 1, 0), uint32_t{BF_INVALID_ARGUMENT});

  // More cells than an address space holds are refused before the device is asked for them.
  take();
  if (sizeof(size_t) == 4) {
    EXPECT_EQ(read(0, 0x40000001), uint32_t{P4_PD_NO_MEMORY});
    EXPECT_EQ(take_one().function, "pipe_stful_query_get_sizes");
  }
}

TEST_F(Registers, StoreValuesInTheirWidth) {
  const uint32_t five = 5;  // read as a byte by the registers of 1 bit
  const auto sent = [&](uint32_t status) {
    EXPECT_EQ(status, uint32_t{BF_SUCCESS});
    const pipe_stful_cell_t cell = take_one().get<Cells>("cell").at(0);
    for (size_t i = 4; i < sizeof cell.bytes; ++i) EXPECT_EQ(cell.bytes[i], 0);
    return cell.word;
  };
  const auto *byte = reinterpret_cast<const uint8_t *>(&five);
  EXPECT_EQ(
      sent(p4_pd_tessel_switch_register_write_flowStateRegisterFirst(session, target, 1, byte)),
      1u);
  EXPECT_EQ(sent(p4_pd_tessel_switch_register_write_all_egrStpCheckData(session, target, byte)),
            1u);
  EXPECT_EQ(sent(p4_pd_tessel_switch_register_write_flowDigestCountReg(session, target, 1, &five)),
            5u);
  EXPECT_EQ(sent(p4_pd_tessel_switch_register_write_all_flowDigestCountReg(session, target, &five)),
            5u);
}

TEST_F(Registers, GoByHandleWithTheDevicesRecords) {
  pipe_stful_cell_t cell = {};
  for (uint8_t i = 0; i < sizeof cell.bytes; ++i) cell.bytes[i] = static_cast<uint8_t>(0xa0 + i);
  EXPECT_EQ(p4_pd_tessel_switch_register_write_indirect(session, target, kWide, 8, &cell),
            BF_SUCCESS);
  const Call written = take_one();
  EXPECT_EQ(std::memcmp(&written.get<Cells>("cell")[0], &cell, sizeof cell), 0);
  pipe_stful_cell_t read = {};
  pipe_stful_query_t query = {1, &read};
  EXPECT_EQ(p4_pd_tessel_switch_register_read_indirect(session, {kDevice, 2}, kWide, 8, 3, &query),
            BF_SUCCESS);
  EXPECT_EQ(read.word, cell.word);
  take();

  // No table of the program has a register, so the device refuses.
  constexpr uint32_t table = 0x01000002;
  EXPECT_NE(p4_pd_tessel_switch_register_write_direct(session, kDevice, table, 5, &cell),
            BF_SUCCESS);
  const auto resources = take_one().get<std::vector<pipe_mgr_resource_t>>("resources");
  ASSERT_EQ(resources.size(), 1u);
  EXPECT_EQ(resources[0].handle, table);
  EXPECT_EQ(resources[0].index, 0u);
  EXPECT_EQ(resources[0].data.cell.word, cell.word);
  EXPECT_EQ(resources[0].tag, uint32_t{PIPE_RESOURCE_ATTACH});
}

}  // namespace
