// Registers: typed values and cells, ranges, failures, and the functions that take a handle.
#include "pipe_stful.h"
#include "soft_state.h"
#include "stateful_fixture.hpp"

namespace {

// While on, a range read leaves the records behind the last cell that it read as they were given.
bool leaves_unread_records = false;

}  // namespace

extern "C" bf_status_t pipe_stful_ent_query_range(pipe_session_handle_t session,
                                                  bf_device_id_t device, bf_pipe_id_t pipe,
                                                  pipe_object_handle_t reg, uint32_t first,
                                                  uint32_t count, pipe_stful_query_t *queries,
                                                  uint32_t *filled, bool read_from_hardware) {
  const uint32_t capacity = count == 0 ? 0 : queries[0].count;
  const bf_status_t status =
      stateful_test::soft_function(pipe_stful_ent_query_range, "pipe_stful_ent_query_range")(
          session, device, pipe, reg, first, count, queries, filled, read_from_hardware);
  for (uint32_t i = *filled; leaves_unread_records && i < count; ++i) queries[i].count = capacity;
  return status;
}

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

const struct Row {
  const char *reg;
  uint32_t handle;
} kRows[] = {
    {"flowStateRegisterFirst", 0x06000001},  {"flowBusyRegisterFirst", 0x06000002},
    {"flowStateRegisterSecond", 0x06000003}, {"flowBusyRegisterSecond", 0x06000004},
    {"flowDigestCountReg", 0x06000005},      {"ingVlanCheckData", 0x06000006},
    {"ingStpCheckData", 0x06000007},         {"egrVlanCheckData", 0x06000008},
    {"egrStpCheckData", 0x06000009},
};
constexpr uint32_t kWide = 0x06000005;  // the one of 32 bits
constexpr uint32_t kBit = 0x06000001;

void noted(bf_device_id_t device, void *cookie) { *static_cast<bf_device_id_t *>(cookie) = device; }

TEST_F(Registers, EachNamesItsHandleAndWritesCellsOfItsWidth) {
  target.pipe_id = 2;
  for (const Row &row : kRows) {
    SCOPED_TRACE(row.reg);
    const uint32_t five = 5;  // read as a byte by the registers of 1 bit
    const auto run = [&](const char *operation, std::vector<uint64_t> words) {
      words.insert(words.begin(), {session, word(&target)});
      EXPECT_EQ(count_exports(operation), std::size(kRows)) << operation;
      EXPECT_EQ(call_export(operation, row.reg, words), uint64_t{BF_SUCCESS}) << operation;
      return take_one();
    };
    const auto expect_cell = [&](const Call &call) {
      ASSERT_EQ(call.get<Cells>("cell").size(), 1u);
      const pipe_stful_cell_t cell = call.get<Cells>("cell")[0];
      EXPECT_EQ(cell.word, row.handle == kWide ? 5u : 1u);
      for (size_t i = 4; i < sizeof cell.bytes; ++i) EXPECT_EQ(cell.bytes[i], 0);
    };
    const Call written = run("register_write", {11, word(&five)});
    EXPECT_EQ(written.function, "pipe_stful_ent_set");
    expect_scalars(written, {{"session", session},
                             {"device", kDevice},
                             {"pipe", 2},
                             {"reg", row.handle},
                             {"index", 11},
                             {"flags", 0}});
    expect_cell(written);

    const Call all = run("register_write_all", {word(&five)});
    EXPECT_EQ(all.function, "pipe_stful_table_reset");
    expect_scalars(all,
                   {{"session", session}, {"device", kDevice}, {"pipe", 2}, {"reg", row.handle}});
    expect_cell(all);

    const Call reset = run("register_reset_all", {});
    EXPECT_EQ(reset.function, "pipe_stful_table_reset");
    EXPECT_EQ(reset.scalar("reg"), row.handle);
    EXPECT_TRUE(reset.is_null("cell"));

    const Call range = run("register_range_reset", {7, 3});
    EXPECT_EQ(range.function, "pipe_stful_table_reset_range");
    expect_scalars(range, {{"session", session},
                           {"device", kDevice},
                           {"pipe", 2},
                           {"reg", row.handle},
                           {"first", 7},
                           {"count", 3}});
    EXPECT_TRUE(range.is_null("cell"));

    bf_device_id_t seen = 99;
    const Call sync = run("register_hw_sync", {reinterpret_cast<uintptr_t>(noted), word(&seen)});
    EXPECT_EQ(sync.function, "pipe_stful_database_sync");
    EXPECT_EQ(sync.scalar("reg"), row.handle);
    EXPECT_EQ(seen, kDevice);
  }
}

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

TEST_F(Registers, LeaveTheOutputsAloneOnFailure) {
  uint32_t words[8] = {1, 2, 3};
  uint32_t indexes = 98;
  uint32_t count = 99;
  const auto expect_untouched = [&](size_t calls) {
    EXPECT_EQ(take().size(), calls);
    EXPECT_EQ(words[0], 1u);
    EXPECT_EQ(indexes, 98u);
    EXPECT_EQ(count, 99u);
  };
  const auto read = [&] {
    return p4_pd_tessel_switch_register_read_flowDigestCountReg(session, target, 0, 1, words,
                                                                &count);
  };
  const auto read_range = [&] {
    return p4_pd_tessel_switch_register_range_read_flowDigestCountReg(session, target, 0, 2, 1,
                                                                      &indexes, words, &count);
  };
  const uint64_t allocations = soft_allocations_made();
  soft::faults::fail_call("pipe_stful_query_get_sizes", 1, BF_INVALID_SESSION);
  EXPECT_EQ(read(), uint32_t{BF_INVALID_SESSION});
  expect_untouched(1);
  soft::faults::fail_call("pipe_stful_query_get_sizes", 1, BF_INVALID_SESSION);
  EXPECT_EQ(read_range(), uint32_t{BF_INVALID_SESSION});
  expect_untouched(1);
  EXPECT_EQ(soft_allocations_made(), allocations);

  soft::faults::fail_allocation(1);
  EXPECT_EQ(read(), uint32_t{P4_PD_NO_MEMORY});
  expect_untouched(1);
  for (const uint64_t nth : {1, 2}) {
    soft::faults::fail_allocation(nth);
    EXPECT_EQ(read_range(), uint32_t{P4_PD_NO_MEMORY});
    expect_untouched(1);
  }
  soft::faults::fail_call("pipe_stful_ent_query", 1, BF_HARDWARE_FAULT);
  EXPECT_EQ(read(), uint32_t{BF_HARDWARE_FAULT});
  expect_untouched(2);
  soft::faults::fail_call("pipe_stful_ent_query_range", 1, BF_HARDWARE_FAULT);
  EXPECT_EQ(read_range(), uint32_t{BF_HARDWARE_FAULT});
  expect_untouched(2);
}

TEST_F(Registers, RefuseNullPointers) {
  uint8_t bit = 9;
  uint32_t count = 9;
  constexpr uint32_t kNull = P4_PD_NULL_ARGUMENT;
  const p4_pd_device_target_t t = target;
  EXPECT_EQ(p4_pd_tessel_switch_register_read_egrStpCheckData(session, t, 0, 0, nullptr, &count),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_register_read_egrStpCheckData(session, t, 0, 0, &bit, nullptr),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_register_range_read_egrStpCheckData(session, t, 0, 1, 0, nullptr,
                                                                    &bit, &count),
            kNull);
  EXPECT_EQ(p4_pd_tessel_switch_register_write_egrStpCheckData(session, t, 0, nullptr), kNull);
  EXPECT_EQ(p4_pd_tessel_switch_register_write_all_egrStpCheckData(session, t, nullptr), kNull);
  EXPECT_EQ(p4_pd_tessel_switch_register_write_all_indirect(session, t, kBit, nullptr), kNull)
      << "not a reset";
  EXPECT_EQ(p4_pd_tessel_switch_register_write_direct(session, kDevice, 1, 1, nullptr), kNull);
  EXPECT_TRUE(take().empty());
  EXPECT_EQ(bit, 9);
  EXPECT_EQ(count, 9u);
}

TEST_F(Registers, GoByHandleWithTheDevicesRecords) {
  target.pipe_id = 2;
  pipe_stful_cell_t cell = {};
  for (uint8_t i = 0; i < sizeof cell.bytes; ++i) cell.bytes[i] = static_cast<uint8_t>(0xa0 + i);
  EXPECT_EQ(p4_pd_tessel_switch_register_write_indirect(session, target, kWide, 8, &cell),
            BF_SUCCESS);
  const Call written = take_one();
  EXPECT_EQ(written.function, "pipe_stful_ent_set");
  expect_scalars(written, {{"session", session},
                           {"device", kDevice},
                           {"pipe", 2},
                           {"reg", kWide},
                           {"index", 8},
                           {"flags", 0}});
  EXPECT_EQ(Bytes(written.get<Cells>("cell")[0].bytes, written.get<Cells>("cell")[0].bytes + 16),
            Bytes(cell.bytes, cell.bytes + 16));

  pipe_stful_cell_t read = {};
  pipe_stful_query_t query = {1, &read};
  EXPECT_EQ(p4_pd_tessel_switch_register_read_indirect(session, target, kWide, 8, 3, &query),
            BF_SUCCESS);
  EXPECT_EQ(read.word, cell.word);
  const Call queried = take_one();
  expect_scalars(queried, {{"session", session},
                           {"device", kDevice},
                           {"pipe", 2},
                           {"reg", kWide},
                           {"index", 8},
                           {"read_from_hardware", 1}});

  EXPECT_EQ(p4_pd_tessel_switch_register_write_all_indirect(session, target, kWide, &cell),
            BF_SUCCESS);
  EXPECT_EQ(take_one().get<Cells>("cell")[0].word, cell.word);
  EXPECT_EQ(p4_pd_tessel_switch_register_range_reset_indirect(session, target, kWide, 8, 2),
            BF_SUCCESS);
  expect_scalars(take_one(), {{"session", session},
                              {"device", kDevice},
                              {"pipe", 2},
                              {"reg", kWide},
                              {"first", 8},
                              {"count", 2}});
  EXPECT_EQ(p4_pd_tessel_switch_register_reset_all_indirect(session, target, kWide), BF_SUCCESS);
  EXPECT_TRUE(take_one().is_null("cell"));
  bf_device_id_t seen = 99;
  EXPECT_EQ(p4_pd_tessel_switch_register_hw_sync_indirect(session, target, kWide, noted, &seen),
            BF_SUCCESS);
  EXPECT_EQ(take_one().function, "pipe_stful_database_sync");
  EXPECT_EQ(seen, kDevice);
}

// No table of the program has such a register, so the device refuses; what it was asked counts.
TEST_F(Registers, GoByTableHandleWithoutAPipe) {
  constexpr uint32_t table = 0x01000002;
  target.pipe_id = 2;
  pipe_stful_cell_t cell = {};
  cell.word = 0x12345678;
  pipe_stful_query_t query = {1, &cell};
  EXPECT_NE(p4_pd_tessel_switch_register_read_direct(session, target, table, 5, 2, &query),
            BF_SUCCESS);
  const Call read = take_one();
  EXPECT_EQ(read.function, "pipe_stful_direct_ent_query");
  expect_scalars(read, {{"session", session},
                        {"device", kDevice},
                        {"table", table},
                        {"entry", 5},
                        {"read_from_hardware", 0}});

  EXPECT_NE(p4_pd_tessel_switch_register_write_direct(session, kDevice, table, 5, &cell),
            BF_SUCCESS);
  const Call set = take_one();
  EXPECT_EQ(set.function, "pipe_mgr_mat_ent_set_resource");
  expect_scalars(set, {{"session", session},
                       {"device", kDevice},
                       {"table", table},
                       {"entry", 5},
                       {"count", 1},
                       {"flags", 0}});
  const auto resources = set.get<std::vector<pipe_mgr_resource_t>>("resources");
  ASSERT_EQ(resources.size(), 1u);
  EXPECT_EQ(resources[0].handle, table);
  EXPECT_EQ(resources[0].index, 0u);
  EXPECT_EQ(resources[0].data.cell.word, 0x12345678u);
  EXPECT_EQ(resources[0].tag, uint32_t{PIPE_RESOURCE_ATTACH});

  EXPECT_NE(p4_pd_tessel_switch_register_hw_sync_direct(session, target, table, noted, nullptr),
            BF_SUCCESS);
  const Call sync = take_one();
  EXPECT_EQ(sync.function, "pipe_stful_direct_database_sync");
  expect_scalars(sync, {{"session", session}, {"device", kDevice}, {"pipe", 2}, {"table", table}});
}

}  // namespace
