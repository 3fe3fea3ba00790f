// Registers where random calls of a library do not come.
#include "program.hpp"

namespace {

using namespace soft_test;

using Register = SoftTest;

TEST_F(Register, RefusesCellsBehindItsEnd) {
  const pipe_stful_cell_t one{1};
  pipe_stful_cell_t room[2] = {};
  pipe_stful_query_t query{1, room}, none{2, nullptr};
  constexpr uint32_t r = kWordRegister, end = SOFT_REGISTER_CELLS;
  uint32_t filled = 0;
  struct Case {
    uint32_t pipe, index;
    pipe_stful_query_t *into;
  };
  // The first has room for one pipe of two.
  for (const auto &[pipe, index, into] :
       {Case{kAll, 0, &query}, Case{0, 0, &none}, Case{0, end, &query}}) {
    EXPECT_EQ(pipe_stful_ent_query(session, kDevice, pipe, r, index, into, true),
              BF_INVALID_ARGUMENT);
    EXPECT_EQ(pipe_stful_ent_query_range(session, kDevice, pipe, r, index, 1, into, &filled, false),
              BF_INVALID_ARGUMENT);
  }
  EXPECT_EQ(pipe_stful_ent_set(session, kDevice, 0, r, end, &one, 0), BF_INVALID_ARGUMENT);
  EXPECT_EQ(soft_register_write(kDevice, 0, r, end, 1), BF_INVALID_ARGUMENT);
  // Also a range whose end does not fit a word.
  for (const uint32_t count : {3u, 0xffffffffu}) {
    EXPECT_EQ(pipe_stful_table_reset_range(session, kDevice, 0, r, end - 2, count, &one),
              BF_INVALID_ARGUMENT);
  }
  EXPECT_EQ(soft_next_cell(kDevice, r, 0, &filled), BF_OBJECT_NOT_FOUND) << "nothing is set";
}

TEST_F(Register, TakesMemoryOnlyWhereCellsDiffer) {
  const auto bytes = [&] {
    uint64_t held = 0;
    OK(soft_memory_bytes(kDevice, kWordRegister, &held));
    return held;
  };
  const uint64_t empty = bytes();
  EXPECT_LT(empty, 4096u);
  const pipe_stful_cell_t one{1};
  OK(pipe_stful_ent_set(session, kDevice, 0, kWordRegister, 3, &one, 0));
  EXPECT_GE(bytes(), empty + 2 * 4 * 1024) << "a page in hardware and one in software";
  EXPECT_LT(bytes(), empty + 2 * 4 * 1024 + 256);
  OK(pipe_stful_table_reset_range(session, kDevice, kAll, kWordRegister, 0, SOFT_REGISTER_CELLS,
                                  nullptr));
  EXPECT_LT(bytes(), empty + 4 * 4096 * 2 * sizeof(void *) + 4096) << "pages of equal cells";
  OK(pipe_stful_table_reset(session, kDevice, kAll, kWordRegister, nullptr));
  EXPECT_EQ(bytes(), empty);
}

}  // namespace
