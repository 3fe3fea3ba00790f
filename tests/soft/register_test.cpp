// Registers: cells per pipe, widths, the two copies, ranges and resets.
#include "small_program.hpp"
#include "soft_journal.hpp"

namespace {

using namespace soft_test;

using Words = std::vector<uint32_t>;

class Registers : public SmallTest {
 protected:
  static pipe_stful_cell_t cell(uint32_t value) {
    pipe_stful_cell_t made{};
    made.word = value;
    return made;
  }
  bf_status_t set(uint32_t reg, uint32_t index, uint32_t value, bf_pipe_id_t pipe = BF_ALL_PIPES) {
    const pipe_stful_cell_t made = cell(value);
    return pipe_stful_ent_set(session, kDevice, pipe, reg, index, &made, 0);
  }
  // The instances of a cell as words.
  Words get(uint32_t reg, uint32_t index, bool hardware, bf_pipe_id_t pipe = BF_ALL_PIPES) {
    std::vector<pipe_stful_cell_t> cells(2, cell(kNowhere));
    pipe_stful_query_t query{2, cells.data()};
    EXPECT_EQ(pipe_stful_ent_query(session, kDevice, pipe, reg, index, &query, hardware),
              BF_SUCCESS);
    Words words;
    for (uint32_t i = 0; i < query.count; ++i) words.push_back(cells[i].word);
    return words;
  }
};

TEST_F(Registers, HaveOneInstanceOfEachCellPerPipe) {
  uint32_t instances = 0;
  ASSERT_EQ(pipe_stful_query_get_sizes(session, kDevice, kWordRegister, &instances), BF_SUCCESS);
  EXPECT_EQ(instances, 2u);
  EXPECT_EQ(get(kWordRegister, 7, false), (Words{0, 0}));

  EXPECT_EQ(set(kWordRegister, 7, 0x01020304), BF_SUCCESS);
  EXPECT_EQ(set(kWordRegister, 7, 0xfffffffe, 1), BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 7, false), (Words{0x01020304, 0xfffffffe}));
  EXPECT_EQ(get(kWordRegister, 7, false, 1), (Words{0xfffffffe}));
  EXPECT_EQ(get(kWordRegister, 6, true), (Words{0, 0}));
  EXPECT_EQ(get(kWordRegister, 8, true), (Words{0, 0}));
}

TEST_F(Registers, KeepAsManyBitsAsACellIsWide) {
  for (const uint32_t reg : {kBitRegister, kByteRegister, kHalfRegister, kWordRegister}) {
    EXPECT_EQ(set(reg, 0, 0x89abcdef), BF_SUCCESS);
    EXPECT_EQ(set(reg, 1, 0xfffffff8), BF_SUCCESS);
    EXPECT_EQ(soft_register_write(kDevice, 0, reg, 2, 0x89abcdef), BF_SUCCESS);
  }
  EXPECT_EQ(get(kBitRegister, 0, false), (Words{1, 1}));
  EXPECT_EQ(get(kBitRegister, 1, false), (Words{0, 0}));
  EXPECT_EQ(get(kBitRegister, 2, true), (Words{1, 0}));
  EXPECT_EQ(get(kByteRegister, 0, false), (Words{0xef, 0xef}));
  EXPECT_EQ(get(kByteRegister, 2, true), (Words{0xef, 0}));
  EXPECT_EQ(get(kHalfRegister, 0, false), (Words{0xcdef, 0xcdef}));
  EXPECT_EQ(get(kHalfRegister, 2, true), (Words{0xcdef, 0}));
  EXPECT_EQ(get(kWordRegister, 0, false), (Words{0x89abcdef, 0x89abcdef}));
}

TEST_F(Registers, SoftwareCopyFollowsTheDataPlaneOnlyWhenItIsBroughtUpToDate) {
  EXPECT_EQ(set(kWordRegister, 1, 10), BF_SUCCESS);
  EXPECT_EQ(soft_register_write(kDevice, 1, kWordRegister, 1, 11), BF_SUCCESS);
  EXPECT_EQ(soft_register_write(kDevice, BF_ALL_PIPES, kWordRegister, 5000, 12), BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 1, false), (Words{10, 10}));
  EXPECT_EQ(get(kWordRegister, 1, true, 0), (Words{10}));
  EXPECT_EQ(get(kWordRegister, 1, false), (Words{10, 10})) << "pipe 1 was not read";
  EXPECT_EQ(get(kWordRegister, 1, true), (Words{10, 11}));
  EXPECT_EQ(get(kWordRegister, 1, false), (Words{10, 11}));
  EXPECT_EQ(get(kWordRegister, 5000, false), (Words{0, 0}));

  int calls = 0;
  const auto count = [](bf_device_id_t device, void *cookie) {
    EXPECT_EQ(device, kDevice);
    ++*static_cast<int *>(cookie);
  };
  EXPECT_EQ(pipe_stful_database_sync(session, kDevice, 0, kWordRegister, count, &calls),
            BF_SUCCESS);
  EXPECT_EQ(calls, 1);
  EXPECT_EQ(get(kWordRegister, 5000, false), (Words{12, 0}));
  EXPECT_EQ(
      pipe_stful_database_sync(session, kDevice, BF_ALL_PIPES, kWordRegister, nullptr, nullptr),
      BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 5000, false), (Words{12, 12}));

  EXPECT_EQ(set(kWordRegister, 5000, 13), BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 5000, true), (Words{13, 13})) << "a write goes to both copies";
}

TEST_F(Registers, ResetSetsEveryCellOrARangeOfThem) {
  const pipe_stful_cell_t seven = cell(7);
  EXPECT_EQ(set(kWordRegister, 3000, 1), BF_SUCCESS);
  EXPECT_EQ(soft_register_write(kDevice, 0, kWordRegister, 4000, 2), BF_SUCCESS);
  EXPECT_EQ(pipe_stful_table_reset(session, kDevice, 0, kWordRegister, &seven), BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 3000, false), (Words{7, 1}));
  EXPECT_EQ(get(kWordRegister, 4000, true), (Words{7, 0}));
  EXPECT_EQ(get(kWordRegister, SOFT_REGISTER_CELLS - 1, true), (Words{7, 0}));

  // From within one page of cells over whole ones into another.
  const pipe_stful_cell_t nine = cell(9);
  EXPECT_EQ(pipe_stful_table_reset_range(session, kDevice, BF_ALL_PIPES, kWordRegister, 1000, 3001,
                                         &nine),
            BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 999, true), (Words{7, 0}));
  for (const uint32_t index : {1000u, 1023u, 1024u, 2047u, 2048u, 3000u, 4000u}) {
    EXPECT_EQ(get(kWordRegister, index, false), (Words{9, 9})) << index;
    EXPECT_EQ(get(kWordRegister, index, true), (Words{9, 9})) << index;
  }
  EXPECT_EQ(get(kWordRegister, 4001, true), (Words{7, 0}));
  // One cell of a page that was set as a whole.
  EXPECT_EQ(set(kWordRegister, 2048, 1, 0), BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 2047, true), (Words{9, 9}));
  EXPECT_EQ(get(kWordRegister, 2048, true), (Words{1, 9}));
  EXPECT_EQ(get(kWordRegister, 2049, true), (Words{9, 9}));

  EXPECT_EQ(pipe_stful_table_reset_range(session, kDevice, 0, kWordRegister, 2048, 1, nullptr),
            BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 2048, false), (Words{0, 9}));
  EXPECT_EQ(pipe_stful_table_reset(session, kDevice, BF_ALL_PIPES, kWordRegister, nullptr),
            BF_SUCCESS);
  EXPECT_EQ(get(kWordRegister, 1000, true), (Words{0, 0}));
}

TEST_F(Registers, RangeReadGoesByIndexThenPipeAndEndsWithTheRegister) {
  for (uint32_t index = 0; index < 3; ++index) {
    EXPECT_EQ(set(kHalfRegister, SOFT_REGISTER_CELLS - 3 + index, 0x10 + index, 0), BF_SUCCESS);
    EXPECT_EQ(set(kHalfRegister, SOFT_REGISTER_CELLS - 3 + index, 0x20 + index, 1), BF_SUCCESS);
  }
  EXPECT_EQ(soft_register_write(kDevice, 0, kHalfRegister, SOFT_REGISTER_CELLS - 1, 0x99),
            BF_SUCCESS);
  std::vector<pipe_stful_cell_t> cells(8, cell(kNowhere));
  pipe_stful_query_t queries[4];
  const auto read = [&](uint32_t first, uint32_t count, bool hardware) {
    for (size_t i = 0; i < 4; ++i) queries[i] = {2, &cells[2 * i]};
    uint32_t filled = kNowhere;
    EXPECT_EQ(pipe_stful_ent_query_range(session, kDevice, BF_ALL_PIPES, kHalfRegister, first,
                                         count, queries, &filled, hardware),
              BF_SUCCESS);
    Words words;
    for (const pipe_stful_cell_t &made : cells) words.push_back(made.word);
    words.push_back(filled);
    return words;
  };
  EXPECT_EQ(read(SOFT_REGISTER_CELLS - 3, 4, false),
            (Words{0x10, 0x20, 0x11, 0x21, 0x12, 0x22, kNowhere, kNowhere, 3}));
  EXPECT_EQ(queries[2].count, 2u);
  EXPECT_EQ(queries[3].count, 0u);
  EXPECT_EQ(read(SOFT_REGISTER_CELLS - 1, 2, true)[0], 0x99u);
  EXPECT_EQ(read(0, 0, true)[8], 0u);
}

TEST_F(Registers, RefusedCallsWriteNothing) {
  const pipe_stful_cell_t one = cell(1);
  pipe_stful_cell_t room[2] = {cell(kNowhere), cell(kNowhere)};
  pipe_stful_query_t query{1, room};
  const auto get_status = [&](bf_pipe_id_t pipe, uint32_t index) {
    return pipe_stful_ent_query(session, kDevice, pipe, kWordRegister, index, &query, true);
  };
  EXPECT_EQ(get_status(BF_ALL_PIPES, 0), BF_INVALID_ARGUMENT) << "room for one pipe of two";
  EXPECT_EQ(get_status(0, SOFT_REGISTER_CELLS), BF_INVALID_ARGUMENT);
  EXPECT_EQ(get_status(2, 0), BF_INVALID_PIPE);
  EXPECT_EQ(room[0].word, kNowhere);
  EXPECT_EQ(query.count, 1u);

  EXPECT_EQ(set(kWordRegister, SOFT_REGISTER_CELLS, 1), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_register_write(kDevice, 0, kWordRegister, SOFT_REGISTER_CELLS, 1),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(pipe_stful_ent_set(session, kDevice, 0, kWordRegister, 0, nullptr, 0),
            BF_INVALID_ARGUMENT);
  // A range that leaves the register, also one whose end does not fit a word.
  for (const uint32_t count : {3u, 0xffffffffu}) {
    EXPECT_EQ(pipe_stful_table_reset_range(session, kDevice, 0, kWordRegister,
                                           SOFT_REGISTER_CELLS - 2, count, &one),
              BF_INVALID_ARGUMENT);
  }
  EXPECT_EQ(get(kWordRegister, SOFT_REGISTER_CELLS - 1, true), (Words{0, 0}));
  uint32_t filled = kNowhere;
  EXPECT_EQ(pipe_stful_ent_query_range(session, kDevice, 0, kWordRegister, SOFT_REGISTER_CELLS, 1,
                                       &query, &filled, false),
            BF_INVALID_ARGUMENT);
  EXPECT_EQ(filled, kNowhere);

  EXPECT_EQ(set(kHost, 0, 1), BF_INVALID_HANDLE);
  EXPECT_EQ(pipe_stful_table_reset(session + 1, kDevice, 0, kWordRegister, &one),
            BF_INVALID_SESSION);
}

TEST_F(Registers, DirectCallsAreNotSupportedByAnyTable) {
  pipe_stful_query_t query{0, nullptr};
  for (uint32_t table = kHost; table <= kLag; ++table) {
    EXPECT_EQ(pipe_stful_direct_ent_query(session, kDevice, table, 1, &query, false),
              BF_NOT_SUPPORTED);
    EXPECT_EQ(
        pipe_stful_direct_database_sync(session, kDevice, BF_ALL_PIPES, table, nullptr, nullptr),
        BF_NOT_SUPPORTED);
  }
  EXPECT_EQ(pipe_stful_direct_ent_query(session, kDevice, kWordRegister, 1, &query, false),
            BF_INVALID_HANDLE);
}

TEST_F(Registers, TakeMemoryOnlyWhereCellsDiffer) {
  const auto bytes = [&] {
    uint64_t held = 0;
    EXPECT_EQ(soft_memory_bytes(kDevice, kWordRegister, &held), BF_SUCCESS);
    return held;
  };
  const uint64_t empty = bytes();
  EXPECT_LT(empty, 4096u);
  EXPECT_EQ(set(kWordRegister, 3, 1, 0), BF_SUCCESS);
  EXPECT_GE(bytes(), empty + 2 * 4 * 1024) << "a page in hardware and one in software";
  EXPECT_LT(bytes(), empty + 2 * 4 * 1024 + 256);
  EXPECT_EQ(pipe_stful_table_reset_range(session, kDevice, BF_ALL_PIPES, kWordRegister, 0,
                                         SOFT_REGISTER_CELLS, nullptr),
            BF_SUCCESS);
  EXPECT_LT(bytes(), empty + 4 * 4096 * 2 * sizeof(void *) + 4096) << "pages of equal cells";
  EXPECT_EQ(pipe_stful_table_reset(session, kDevice, BF_ALL_PIPES, kWordRegister, nullptr),
            BF_SUCCESS);
  EXPECT_EQ(bytes(), empty);
}

TEST_F(Registers, JournalShowsWhatARangeReadFilled) {
  EXPECT_EQ(set(kWordRegister, 5, 0x55), BF_SUCCESS);
  soft::journal::start();
  pipe_stful_cell_t cells[2] = {};
  pipe_stful_query_t query{2, cells};
  uint32_t filled = 0;
  EXPECT_EQ(pipe_stful_ent_query_range(session, kDevice, BF_ALL_PIPES, kWordRegister, 5, 1, &query,
                                       &filled, true),
            BF_SUCCESS);
  soft::journal::stop();
  const auto calls = soft::journal::calls("pipe_stful_ent_query_range");
  soft::journal::clear();
  ASSERT_EQ(calls.size(), 1u);
  EXPECT_EQ(calls[0].scalar("reg"), kWordRegister);
  EXPECT_EQ(calls[0].scalar("read_from_hardware"), 1u);
  const auto &queries = calls[0].got<std::vector<soft::journal::Query>>("queries");
  ASSERT_EQ(queries.size(), 1u);
  ASSERT_TRUE(queries[0].cells.has_value());
  EXPECT_EQ(queries[0].cells->at(1).word, 0x55u);
}

}  // namespace
