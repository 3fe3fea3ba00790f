// The storage of match tables at a size that calls do not reach: handles, walks and memory.
#include "tables/match_table.hpp"

#include <memory_resource>
#include <set>

#include "program.hpp"
#include "store/counting_resource.hpp"

namespace soft {
namespace {

using soft_test::Bytes;
using soft_test::Words;

soft_table_t table_of(soft_match_kind match, uint16_t key_bytes) {
  soft_table_t table{};
  table.match = match;
  table.key_bytes = key_bytes;
  return table;
}

Bytes bytes_of(uint32_t number) {
  return {static_cast<uint8_t>(number >> 16), static_cast<uint8_t>(number >> 8),
          static_cast<uint8_t>(number)};
}

uint32_t add(MatchTable &table, const Bytes &value, const Bytes &mask = {}, uint32_t priority = 0) {
  uint32_t handle = 0;
  const EntryKey key{value.data(), mask.data(), priority};
  OK(table.add(key, {}, 7, 0, &handle));
  return handle;
}

bf_status_t next(const MatchTable &table, uint32_t previous, uint32_t *handle) {
  return table.next_in(BF_ALL_PIPES, previous, {handle, 1});
}

Words walk(const MatchTable &table) {
  Words handles;
  uint32_t handle;
  bf_status_t status = table.first_in(BF_ALL_PIPES, &handle);
  for (; status == BF_SUCCESS; status = next(table, handle, &handle)) handles.push_back(handle);
  EXPECT_EQ(status, BF_OBJECT_NOT_FOUND);
  return handles;
}

TEST(MatchTableHandles, StaleHandlesStayUnknown) {
  MatchTable table(table_of(SOFT_EXACT, 1), EntryLayout{});
  const uint32_t stale = add(table, {1});
  table.erase(stale);
  for (int i = 1; i < 65536; ++i) {
    const uint32_t handle = add(table, {1});
    ASSERT_NE(handle, stale);
    ASSERT_NE(handle, 0xffffffff);
    ASSERT_FALSE(table.contains(stale));
    table.erase(handle);
  }
  for (const uint32_t never : {0u, 0xffffffffu, 5000u}) EXPECT_FALSE(table.contains(never));
}

TEST(MatchTableHandles, WalkHoldsWhileEntriesComeAndGo) {
  MatchTable table(table_of(SOFT_EXACT, 1), EntryLayout{});
  Words handles;
  for (uint8_t i = 0; i < 6; ++i) handles.push_back(add(table, {i}));
  uint32_t at;
  ASSERT_EQ(table.first_in(BF_ALL_PIPES, &at), 0u);
  EXPECT_EQ(at, handles[0]);
  table.erase(handles[0]);  // the one we stand on
  table.erase(handles[1]);  // and the one ahead
  ASSERT_EQ(next(table, at, &at), 0u);
  EXPECT_EQ(at, handles[2]);
  const uint32_t added = add(table, {99});
  EXPECT_EQ(walk(table), (Words{handles[2], handles[3], handles[4], handles[5], added}));
  EXPECT_EQ(next(table, added, &at), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(next(table, 0x00001000, &at), BF_OBJECT_NOT_FOUND);
  EXPECT_EQ(next(table, handles[3] | 0x04000000, &at),  // a generation that was never issued
            BF_OBJECT_NOT_FOUND);
}

TEST(MatchTableHandles, GrowsOverManyChunksAndDrains) {
  MatchTable table(table_of(SOFT_EXACT, 3), EntryLayout{});
  Words handles;
  for (uint32_t i = 0; i < 300000; ++i) handles.push_back(add(table, bytes_of(i)));
  ASSERT_EQ(std::set<uint32_t>(handles.begin(), handles.end()).size(), 300000u);
  for (uint32_t i = 0; i < 300000; ++i) ASSERT_EQ(table.lookup(bytes_of(i).data()), handles[i]);
  for (uint32_t i = 0; i < 300000; ++i) {  // 262,143 is alone behind many free places
    if (i == 262143 || i == 5) continue;
    ASSERT_EQ(table.erase(handles[i]), 0u);
  }
  EXPECT_EQ(walk(table), (Words{handles[5], handles[262143]}));
  for (uint32_t i = 0; i < 299998; ++i) ASSERT_NE(add(table, bytes_of(0x800000 + i)), 0u);
  EXPECT_EQ(walk(table).size(), 300000u);
  // 12 bytes of record; an index cell of 8 bytes at a load of 11/32 to 11/16; bits of the walk.
  EXPECT_LT(table.memory_bytes(), 300000u * (12 + 24 + 1));
  uint32_t handle;
  while (table.first_in(BF_ALL_PIPES, &handle) == BF_SUCCESS) ASSERT_EQ(table.erase(handle), 0u);
  EXPECT_LT(table.memory_bytes(), 2 * 300000u) << "the generations of the slots";
}

TEST(MatchTableMemory, IsCountedExactlyAndGivenBack) {
  CountingResource memory(std::pmr::new_delete_resource());
  {
    EntryLayout layout;
    layout.ages = true;
    MatchTable table(table_of(SOFT_TERNARY, 2), layout, &memory);
    EXPECT_EQ(memory.bytes(), 0u);
    for (uint32_t i = 0; i < 20000; ++i)
      add(table, {static_cast<uint8_t>(i), static_cast<uint8_t>(i >> 8)},
          {0xff, static_cast<uint8_t>(i >> 4)}, i);
    EXPECT_EQ(table.memory_bytes(), sizeof(table) + memory.bytes());
    for (const uint32_t handle : walk(table)) table.erase(handle);
    EXPECT_LT(memory.bytes(), 20000u) << "an emptied table";
  }
  EXPECT_EQ(memory.bytes(), 0u);
}

}  // namespace
}  // namespace soft
