// Registers against a naive one with random calls, and what that cannot see.
#include "program.hpp"

namespace {

using namespace soft_test;

// Of one pipe.
struct Instance {
  Words hardware = Words(SOFT_REGISTER_CELLS), software = hardware;
};

class Registers : public SoftTest, public testing::WithParamInterface<std::pair<uint32_t, int>> {
 protected:
  static constexpr uint32_t kLast = SOFT_REGISTER_CELLS - 1;

  static pipe_stful_cell_t cell(uint32_t value) {
    pipe_stful_cell_t made{};
    made.word = value;
    return made;
  }
  uint32_t kept(uint32_t value) const {
    return static_cast<uint32_t>(value & ((uint64_t{1} << GetParam().second) - 1));
  }
  // Runs change(instance) on those that a pipe names.
  template <class Change>
  void each(uint32_t pipe, Change change) {
    for (uint32_t i = 0; i < 2; ++i) {
      if (pipe == kAll || pipe == i) change(instances[i]);
    }
  }
  // Cells near the borders of pages, so that calls meet.
  uint32_t any_index() {
    static const Words near{0, 1022, 1024, 2048, 4096, kLast - 1};
    return std::min(kLast, random.of(near) + random.below(3));
  }

  void write(uint32_t pipe) {
    const uint32_t index = any_index(), value = random();
    const pipe_stful_cell_t made = cell(value);
    const bool by_packet = random.one_in(2);
    OK(by_packet ? soft_register_write(kDevice, pipe, reg, index, value)
                 : pipe_stful_ent_set(session, kDevice, pipe, reg, index, &made, 0));
    each(pipe, [&](Instance &instance) {
      instance.hardware[index] = kept(value);
      if (!by_packet) instance.software[index] = kept(value);
    });
  }
  void reset(uint32_t pipe) {
    const uint32_t value = random.one_in(2) ? 0 : random();
    const pipe_stful_cell_t made = cell(value), *given = value == 0 ? nullptr : &made;
    if (random.one_in(10)) {
      OK(pipe_stful_table_reset(session, kDevice, pipe, reg, given));
      each(pipe,
           [&](Instance &i) { i.hardware = i.software = Words(SOFT_REGISTER_CELLS, kept(value)); });
      return;
    }
    const uint32_t first = any_index(), last = std::min(kLast, first + random.below(3000));
    OK(pipe_stful_table_reset_range(session, kDevice, pipe, reg, first, last - first + 1, given));
    each(pipe, [&](Instance &instance) {
      for (uint32_t i = first; i <= last; ++i) {
        instance.hardware[i] = instance.software[i] = kept(value);
      }
    });
  }
  void synchronise(uint32_t pipe) {
    OK(pipe_stful_database_sync(session, kDevice, pipe, reg, nullptr, nullptr));
    each(pipe, [](Instance &instance) { instance.software = instance.hardware; });
  }
  // By index and then by pipe, up to the end of the register.
  void read(uint32_t pipe) {
    const uint32_t first = any_index(), count = 1 + random.below(4);
    const bool hardware = random.one_in(2);
    std::vector<pipe_stful_cell_t> cells(2 * count, cell(kNowhere));
    std::vector<pipe_stful_query_t> queries;
    for (uint32_t i = 0; i < count; ++i) queries.push_back({2, &cells[2 * i]});
    uint32_t filled = 1;
    if (count == 1) {
      OK(pipe_stful_ent_query(session, kDevice, pipe, reg, first, queries.data(), hardware));
    } else {
      OK(pipe_stful_ent_query_range(session, kDevice, pipe, reg, first, count, queries.data(),
                                    &filled, hardware));
      ASSERT_EQ(filled, std::min(count, kLast - first + 1));
    }
    for (uint32_t i = 0; i < count; ++i) {
      Words expected;
      each(pipe, [&](Instance &instance) {
        if (i >= filled) return;
        if (hardware) instance.software[first + i] = instance.hardware[first + i];
        expected.push_back(instance.software[first + i]);
      });
      ASSERT_EQ(queries[i].count, expected.size());
      for (size_t at = 0; at < expected.size(); ++at) {
        ASSERT_EQ(queries[i].cells[at].word, expected[at]);
      }
      expected.resize(2, kNowhere);
      ASSERT_EQ(queries[i].cells[1].word, expected[1]) << "nothing more is written";
    }
  }
  // The next cell whose hardware differs from the last one.
  void find() {
    const uint32_t from = any_index();
    uint32_t found = kLast, expected = kLast;
    const bf_status_t status = soft_next_cell(kDevice, reg, from, &found);
    for (const Instance &instance : instances) {
      const uint32_t *const cells = instance.hardware.data();
      uint32_t index = from;
      while (index < kLast && cells[index] == cells[kLast]) ++index;
      expected = std::min(expected, index);
    }
    ASSERT_EQ(found, expected);
    ASSERT_EQ(status, expected == kLast ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  }

  const uint32_t reg = GetParam().first;
  Random random{reg};
  Instance instances[2];
};

TEST_P(Registers, AgreeAfterRandomCalls) {
  for (int step = 0; step < 1500 && !HasFailure(); ++step) {
    SCOPED_TRACE(step);
    const uint32_t pipe = random.one_in(3) ? kAll : random.below(2);
    const uint32_t what = random.below(20);
    if (what < 8) {
      write(pipe);
    } else if (what == 8) {
      reset(pipe);
    } else if (what == 9) {
      synchronise(pipe);
    } else {
      read(pipe);
    }
    if (what > 17) find();
  }
}

INSTANTIATE_TEST_SUITE_P(Widths, Registers,
                         testing::Values(std::pair(kBitRegister, 1), std::pair(kByteRegister, 8),
                                         std::pair(kHalfRegister, 16),
                                         std::pair(kWordRegister, 32)));

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
