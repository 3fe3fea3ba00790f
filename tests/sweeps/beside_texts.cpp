// What the library makes of entries and members: texts, and whether placement data is that of an
// entry.
#include <fmt/format.h>

#include "beside.hpp"

namespace pd_test {

namespace {

struct Texts {
  std::string value, lines;
};

std::string lines_of_record(const Export &print, const void *record) {
  return printed([&](int file) { call(print, static_cast<uint64_t>(file), uint64_t{3}, record); });
}

Texts key_texts(const pdgen::Table &table, const Read &read) {
  const std::string title = table.keyed() ? "" : "   " + prefix() + table.name + ":\n";
  if (read.no_key != 0) return {"(),", title};
  const uint8_t *record = read.match_spec.data();
  return {written(*find_export("match_spec_value", table.name), with("match_spec", record),
                  binding().sizes.match_spec_value),
          title + lines_of_record(*find_export("match_spec_print", table.name), record)};
}

Texts action_texts(const pdgen::Action &action, const Read &read) {
  const uint8_t *record = &read.action_specs[binding().sizes.action_spec];
  Texts texts = {written(*find_export("action_value", action.name), with("action_spec", record),
                         binding().sizes.action_value),
                 "   " + prefix() + action.name + ":\n"};
  if (!action.has_params()) return texts;
  texts.lines += lines_of_record(*find_export("action_print", action.name), record);
  return texts;
}

Texts reference_texts(const ModelEntry &entry) {
  const char *kind = entry.type == PIPE_ACTION_GROUP ? "Grp" : "Mbr";
  return {fmt::format("('set{}Hdl',({:#x},))", kind, entry.reference), ""};
}

// Of an object's function and of the one that takes its handle. family: "plcmt_data".
void expect_texts(const std::string &family, const std::string &object, Given given,
                  const Texts &wanted) {
  given.push_back({"indent", 3});
  for (const bool by_handle : {false, true}) {
    const std::string name = (by_handle ? "by_handle_" : "") + family;
    const std::string owner = by_handle ? "" : object;
    ASSERT_EQ(written(*find_export(name + "_value", owner), given, binding().sizes.value),
              wanted.value);
    const std::string lines = printed([&](int file) {
      given.push_back({"descriptor", static_cast<uint64_t>(file)});
      EXPECT_EQ(Arguments(*find_export(name + "_print", owner)).give(given).call(), 0u);
    });
    ASSERT_EQ(lines, wanted.lines);
  }
}

}  // namespace

void Beside::examine_entry() {
  ModelTable &table = dice.of(model.tables);
  const auto [handle, entry] = any_of_all(table);
  examine(table, handle, entry);
}

// entry: null where there is none. Texts are put together from those of the parts.
void Beside::examine(ModelTable &table, uint32_t handle, const ModelEntry *entry) {
  if (const ModelEntry *standing = table.default_in(0)) {
    const Placement placed = Placement::of_entry(device, table.row->handle, standing->handle);
    expect_equals(table, handle, entry, placed, *standing);
  }
  if (!table.entries.empty()) {
    const ModelEntry &one = dice.of(table.entries);
    const Placement placed = Placement::of_entry(device, table.row->handle, one.handle);
    expect_equals(table, handle, entry, placed, one);
  }
  if (entry == nullptr) return;
  const pdgen::Table &row = *table.row;
  const Placement placed = Placement::of_entry(device, row.handle, handle);
  const Given given = with("table_handle", row.handle, "placement", placed.object);
  const std::string get = row.indirect() ? "get_indirect_entry" : "get_entry";
  const Read decoded(*find_export(get + "_from_plcmt_data", row.name), &row, given);
  compare_read(table, *entry, decoded);
  const Texts key = key_texts(row, decoded);
  const Texts rest =
      row.indirect() ? reference_texts(*entry) : action_texts(*entry->action, decoded);
  const std::string value = "(" + key.value + rest.value + ")";
  expect_texts("plcmt_data", row.name, given, {value, key.lines + rest.lines});
  const auto priority =
      static_cast<int32_t>(row.has_priority() && entry->key != nullptr ? entry->priority : 0);
  for (const char *family : {"table_value", "by_handle_entry_value"}) {
    const std::string &object = family[0] == 't' ? row.name : std::string();
    TextBuffer buffer;
    const uint64_t length = call(family, object, "",
                                 with("table_handle", row.handle, "entry", handle,
                                      "read_from_hardware", 0, "buffer", buffer.data()));
    ASSERT_EQ(buffer.text(length), fmt::format("({},({},True))", value, priority));
  }
}

// Whether what a handle names is like the placement data of another entry.
void Beside::expect_equals(ModelTable &table, uint32_t handle, const ModelEntry *entry,
                           const Placement &placed, const ModelEntry &of) {
  const uint64_t expected = entry != nullptr && table.alike(*entry, of) ? 1 : 0;
  const Given given =
      with("table_handle", table.row->handle, "entry", handle, "placement", placed.object);
  ASSERT_EQ(call("plcmt_data_eq_to_hw", table.row->name, "", given), expected);
  ASSERT_EQ(call("by_handle_plcmt_data_eq_to_hw", "", "", given), expected);
}

void Beside::examine_member(const ModelProfile &profile, uint32_t member) {
  const pdgen::Profile &row = *profile.row;
  const ModelMember &held = profile.members.at(member);
  const Placement placed = Placement::of_member(device, row.action_data_handle, member);
  const Given given = with("placement", placed.object, "profile_handle", row.action_data_handle);
  for (const char *family :
       {"get_member_from_plcmt_data", "get_full_member_info_from_plcmt_data"}) {
    const Read read(*find_export(family, row.name), nullptr, given);
    compare_member(held, read);
    expect_texts("adt_plcmt_data", row.name, given, action_texts(*held.pair->action, read));
  }
}

}  // namespace pd_test
