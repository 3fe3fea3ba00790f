// Parser value sets and seeds of hash calculations beside those of the model.
#include <fmt/format.h>

#include "beside.hpp"
#include "soft_contents.h"
#include "soft_state.h"

namespace pd_test {

bool ModelValue::is_in(const p4_pd_parser_target_t &at) const {
  const auto agree = [](uint32_t mine, uint32_t theirs, uint32_t all) {
    return mine == theirs || mine == all || theirs == all;
  };
  return where.direction == at.direction && agree(where.pipe_id, at.pipe_id, kAll) &&
         agree(where.parser_id, at.parser_id, SOFT_ALL_PARSERS);
}

// Parser 2 stands for all that no entry names.
bool ModelSet::is_full(const ModelValue &value) const {
  for (uint16_t at = 0; capacity != 0 && at < 6; ++at) {
    const p4_pd_parser_target_t parser{0, value.where.direction, static_cast<uint16_t>(at % 2),
                                       static_cast<uint8_t>(at / 2)};
    const auto held =
        std::ranges::count_if(entries, [&](auto &item) { return item.second.is_in(parser); });
    if (value.is_in(parser) && static_cast<uint32_t>(held) >= capacity) return true;
  }
  return false;
}

uint32_t ModelSet::find(const ModelValue &value, uint32_t but) const {
  for (const auto &[handle, entry] : entries) {
    const bool same = entry.mask == value.mask && ((entry.value ^ value.value) & value.mask) == 0;
    if (handle != but && same && entry.is_in(value.where)) return handle;
  }
  return 0;
}

// entry: handed in, or where one is written to.
p4_pd_status_t Beside::call_for(const ModelSet &set, std::string_view family,
                                const ModelValue &value, uint64_t entry) {
  return status_of(family, set.row->name,
                   with("target", &value.where, "value", value.value, "mask", value.mask,
                        "property", PIPE_PVS_CAPACITY, "argument", 0, "entry", entry));
}

void Beside::change_value() {
  if (model.sets.empty()) return;
  ModelSet &set = dice.of(model.sets);
  const auto place = [&](uint32_t all) { return dice.one_in(3) ? all : dice.below(2); };
  static constexpr uint32_t kMasks[] = {0xffff, 0xff00, 0xf0f};
  const ModelValue value{
      {static_cast<uint32_t>(device), dice.below(2), static_cast<uint16_t>(place(kAll)),
       static_cast<uint8_t>(place(SOFT_ALL_PARSERS))},
      dice() & 0x303,
      kMasks[dice.below(3)]};
  const uint32_t what = dice.below(8);
  if (what > 4) return change_known_value(set, value);
  if (what == 4) return match_value(set, value);
  p4_pd_status_t expected = set.is_full(value) ? BF_TABLE_FULL : BF_SUCCESS;
  if (set.find(value) != 0) expected = BF_ALREADY_EXISTS;
  uint32_t entry = 0;
  ASSERT_EQ(call_for(set, "pvs_entry_add", value, word(&entry)), expected);
  if (expected != BF_SUCCESS) return;
  ASSERT_EQ(entry, ++set.last);
  set.entries[entry] = value;
}

void Beside::change_known_value(ModelSet &set, ModelValue value) {
  const uint32_t entry = any_of(set.entries);
  const auto found = set.entries.find(entry);
  p4_pd_status_t expected = found == set.entries.end() ? BF_OBJECT_NOT_FOUND : BF_SUCCESS;
  if (dice.one_in(9)) {
    value.value = set.capacity = dice.one_in(3) ? 0 : dice.below(6);
    ASSERT_EQ(call_for(set, "pvs_set_property", value, 0), BF_SUCCESS);
  } else if (dice.one_in(2)) {
    ASSERT_EQ(call_for(set, "pvs_entry_delete", value, entry), expected);
    set.entries.erase(entry);
  } else {
    if (expected == BF_SUCCESS) value.where = found->second.where;
    if (expected == BF_SUCCESS && set.find(value, entry) != 0) expected = BF_ALREADY_EXISTS;
    ASSERT_EQ(call_for(set, "pvs_entry_modify", value, entry), expected);
    if (expected == BF_SUCCESS) found->second = value;
  }
}

// By a call, and by a packet in one parser.
void Beside::match_value(const ModelSet &set, const ModelValue &value) {
  uint32_t entry = 0, hit = 0, expected = set.find(value);
  ASSERT_EQ(call_for(set, "pvs_entry_handle_get", value, word(&entry)),
            expected == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(entry, expected);
  const p4_pd_parser_target_t at{0, value.where.direction, static_cast<uint16_t>(dice.below(2)),
                                 static_cast<uint8_t>(dice.below(3))};
  expected = 0;
  for (const auto &[handle, held] : set.entries) {
    const bool hits = held.is_in(at) && ((held.value ^ value.value) & held.mask) == 0;
    if (hits && expected == 0) expected = handle;
  }
  note(fmt::format("soft_value_set_match({}, {:#x}, {}, {}, {}, {:#x}, &entry)", device,
                   set.row->handle, at.direction, at.pipe_id, at.parser_id, value.value));
  ASSERT_EQ(soft_value_set_match(device, set.row->handle, at.direction, at.pipe_id, at.parser_id,
                                 value.value, &hit),
            expected == 0 ? BF_OBJECT_NOT_FOUND : BF_SUCCESS);
  ASSERT_EQ(hit, expected);
}

void Beside::compare_values(const ModelSet &set, const p4_pd_parser_target_t &at) {
  Words expected;
  for (const auto &[handle, held] : set.entries) {
    uint32_t value = 0, mask = 0;
    soft_parsers_t parsers{};
    ASSERT_EQ(status_of("pvs_entry_get", set.row->name,
                        with("entry", handle, "value", &value, "mask", &mask)),
              BF_SUCCESS);
    ASSERT_EQ((Words{value, mask}), (Words{held.value, held.mask}));
    ASSERT_EQ(soft_value_set_parsers(device, set.row->handle, handle, &parsers), BF_SUCCESS);
    ASSERT_EQ((Words{parsers.direction, parsers.pipe, parsers.parser}),
              (Words{held.where.direction, held.where.pipe_id, held.where.parser_id}));
    if (held.is_in(at)) expected.push_back(handle);
  }
  uint32_t count = 99;
  for (const uint32_t property : {uint32_t{PIPE_PVS_CAPACITY}, PIPE_PVS_CAPACITY + 1u}) {
    const bool known = property == PIPE_PVS_CAPACITY;
    ASSERT_EQ(status_of("pvs_get_property", set.row->name,
                        with("property", property, "value", &count, "argument", 0)),
              known ? BF_SUCCESS : BF_INVALID_ARGUMENT);
    ASSERT_EQ(count, known ? set.capacity : 0xffffffff);
  }
  ASSERT_EQ(status_of("pvs_entry_get_count", set.row->name,
                      with("target", &at, "read_from_hardware", 0, "count", &count)),
            BF_SUCCESS);
  ASSERT_EQ(count, expected.size());
  ASSERT_EQ(walk(set.row->name, "entry", kAll, "pvs_entry_", with("target", &at)), expected);
}

void Beside::change_seed() {
  if (program().hashes.empty()) return;
  const pdgen::Hash &hash = dice.of(program().hashes);
  uint64_t read = 1;
  ASSERT_EQ(status_of("hash_calc_seed_get", hash.name, with("seed", &read)), BF_SUCCESS);
  ASSERT_EQ(read, model.seeds[hash.handle]);
  const uint64_t written = uint64_t{dice()} << 32 | dice();
  ASSERT_EQ(status_of("hash_calc_seed_set", hash.name, with("seed", written)), BF_SUCCESS);
  model.seeds[hash.handle] = written;
}

}  // namespace pd_test
