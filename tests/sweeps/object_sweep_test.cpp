// What goes in comes out: every action as entry, default entry and member, and entries that point
// at members and groups, with records whose bits are all random. Read back or decoded from
// placement data it is what the widths keep; its texts are those of its parts; and placement data
// equals an entry like it on another device, but none with another key, action, parameter, member
// or group.
#include <algorithm>

#include "oracle.hpp"
#include "soft_traffic.h"
#include "texts.hpp"

namespace pd_test {
namespace {

// What an entry is made with.
struct Contents {
  Bytes match;
  Bytes spec;
  p4_pd_bytes_meter_spec_t meter;
  uint32_t priority;
};

// A member or a group, under the same handle on both devices.
struct Pointee {
  const char *kind;
  uint32_t handle;

  bool is_group() const { return kind == std::string_view("group"); }
};

constexpr uint32_t kUnset = 0xeeeeeeee;

// What an export that reads an entry reports. Every byte is set beforehand.
struct Read {
  const Export *from;
  Bytes match_spec;
  Bytes action_specs = Bytes(binding().sizes.action_specs, 0xee);
  Bytes action_name = Bytes(binding().sizes.action_name, 0xee);
  uint32_t priority = kUnset, member = kUnset, group = kUnset;
  uint8_t has_member = 0xee, has_group = 0xee, no_key = 0xee;

  Read(const Export &exported, const pdgen::Table *table, const Given &where)
      : from(&exported), match_spec(table == nullptr ? 0 : record_of(*table).size, 0xee) {
    Arguments read(exported);
    read.give(with("read_from_hardware", 0, "match_spec", match_spec.data(), "priority", &priority,
                   "action_specs", action_specs.data(), "action", action_specs.data(),
                   "action_spec", &action_specs[binding().sizes.action_spec], "action_name",
                   action_name.data(), "member", &member, "group", &group, "has_member",
                   &has_member, "has_group", &has_group, "no_key", &no_key))
        .give(where);
    EXPECT_EQ(read.status(), BF_SUCCESS) << exported.name;
  }
  bool reports(std::string_view name) const { return Arguments(*from).takes(name); }
};

class ObjectSweep : public LibraryTest {
 protected:
  static constexpr p4_pd_device_target_t kOld = {9, kPipe};
  static constexpr p4_pd_device_target_t kNew = kTarget;

  static Contents contents_for(const pdgen::Table &table, const pdgen::Action *action) {
    Random random = random_for(table.name + (action == nullptr ? "" : action->name));
    Contents made;
    made.match = random_record(record_of(table), random);
    if (action != nullptr) made.spec = random_record(record_of(*action), random);
    made.meter = random_meter_spec(random);
    made.priority = static_cast<uint32_t>(random());
    return made;
  }

  // By a family that adds an entry or sets the default one.
  static uint32_t add(std::string family, const p4_pd_device_target_t &target,
                      const pdgen::Table &table, const std::string &action, const Contents &given,
                      const Pointee &pointee = {"", 0}) {
    if (pointee.is_group()) family += "_with_selector";
    return make(
        family, table.name, action,
        with("target", &target, "match_spec", given.match.data(), "action_spec", given.spec.data(),
             "meter_spec", &given.meter, "priority", given.priority, pointee.kind, pointee.handle));
  }
  static void remove(const p4_pd_device_target_t &target, const pdgen::Table &table,
                     uint32_t entry) {
    EXPECT_EQ(run("table_delete", table.name, with("device", target.device_id, "entry", entry)),
              BF_SUCCESS);
  }

  // Twice, by the table's function and by the handle's.
  static bool equals(const pdgen::Table &table, uint32_t entry, const Placement &placed) {
    const Given given =
        with("table_handle", table.handle, "entry", entry, "placement", placed.object);
    const auto equal =
        Arguments(*find_export("plcmt_data_eq_to_hw", table.name)).give(given).call();
    EXPECT_EQ(Arguments(*find_export("by_handle_plcmt_data_eq_to_hw")).give(given).call(), equal);
    return equal == 1;
  }

  // ---- What is reported ----

  static void expect_key(const pdgen::Table &table, const Read &read, const Contents *given) {
    const Bytes untouched(record_of(table).size, 0xee);
    const uint32_t priority = given == nullptr ? 0 : given->priority;
    EXPECT_EQ(hex(read.match_spec),
              hex(given == nullptr ? untouched : kept_match_spec(table, given->match.data())));
    EXPECT_EQ(read.priority, read.reports("priority") ? priority : kUnset);
    EXPECT_EQ(read.no_key, read.reports("no_key") ? (given == nullptr ? 1 : 0) : 0xee);
  }
  static void expect_action(const Read &read, const pdgen::Action &action,
                            const ActionSpec &image) {
    Bytes wanted(read.action_specs.size(), 0xee);
    std::copy_n(reinterpret_cast<const uint8_t *>(&action.value), 4, wanted.data());
    if (action.has_params())
      std::ranges::copy(kept_action_spec(action, image), &wanted[binding().sizes.action_spec]);
    EXPECT_EQ(hex(read.action_specs), hex(wanted));
    if (!read.reports("action_name")) return;
    EXPECT_EQ(reinterpret_cast<const char *>(read.action_name.data()), prefix() + action.name);
  }
  static void expect_pointee(const Read &read, const Pointee &pointee) {
    EXPECT_EQ(read.has_member, pointee.is_group() ? 0 : 1);
    EXPECT_EQ(read.has_group, pointee.is_group() ? 1 : 0);
    EXPECT_EQ(read.member, pointee.is_group() ? kUnset : pointee.handle);
    EXPECT_EQ(read.group, pointee.is_group() ? pointee.handle : kUnset);
  }

  // ---- Texts, put together from those of the parts ----

  struct Texts {
    std::string value;
    std::string lines;
  };
  static std::string lines_of_record(const Export &print, const void *record) {
    return printed(
        [&](int file) { call(print, static_cast<uint64_t>(file), uint64_t{3}, record); });
  }
  static Texts key_texts(const pdgen::Table &table, const Read &read) {
    const std::string title = table.keyed() ? "" : "   " + prefix() + table.name + ":\n";
    if (read.no_key != 0) return {"(),", title};
    const uint8_t *record = read.match_spec.data();
    return {written(*find_export("match_spec_value", table.name), with("match_spec", record),
                    binding().sizes.match_spec_value),
            title + lines_of_record(*find_export("match_spec_print", table.name), record)};
  }
  static Texts action_texts(const pdgen::Action &action, const Read &read) {
    const uint8_t *record = &read.action_specs[binding().sizes.action_spec];
    Texts texts = {written(*find_export("action_value", action.name), with("action_spec", record),
                           binding().sizes.action_value),
                   "   " + prefix() + action.name + ":\n"};
    if (!action.has_params()) return texts;
    texts.lines += lines_of_record(*find_export("action_print", action.name), record);
    return texts;
  }
  // Of an object's function and of the one that takes its handle. family: "plcmt_data".
  static void expect_texts(const std::string &family, const std::string &object, Given given,
                           const Texts &wanted) {
    given.push_back({"indent", 3});
    for (const bool by_handle : {false, true}) {
      const std::string name = (by_handle ? "by_handle_" : "") + family;
      const std::string owner = by_handle ? "" : object;
      EXPECT_EQ(written(*find_export(name + "_value", owner), given, binding().sizes.value),
                wanted.value);
      const std::string lines = printed([&](int file) {
        given.push_back({"descriptor", static_cast<uint64_t>(file)});
        EXPECT_EQ(Arguments(*find_export(name + "_print", owner)).give(given).call(), 0u);
      });
      EXPECT_EQ(lines, wanted.lines);
    }
  }

  // ---- One entry ----

  // It is read from the old device, and its placement data is decoded and returned. expect(read)
  // looks at what it does, texts(read) say what stands for it.
  template <class Expect, class TextsOf>
  static Placement examine(const pdgen::Table &table, uint32_t entry, const Contents *key,
                           Expect expect, TextsOf texts) {
    Placement placed = Placement::of_entry(kOld.device_id, table.handle, entry);
    const char *get = table.indirect() ? "get_indirect_entry" : "get_entry";
    const Given where = with("device", kOld.device_id, "entry", entry);
    const Read read(*find_export(get, table.name), &table, where);
    const Read decoded(*find_export(get + std::string("_from_plcmt_data"), table.name), &table,
                       with("placement", placed.object));
    for (const Read *each : {&read, &decoded}) {
      expect_key(table, *each, key);
      expect(*each);
    }
    const Texts of_key = key_texts(table, decoded);
    const Texts of_rest = texts(decoded);
    const std::string value = "(" + of_key.value + of_rest.value + ")";
    expect_texts("plcmt_data", table.name,
                 with("table_handle", table.handle, "placement", placed.object),
                 {value, of_key.lines + of_rest.lines});
    const int32_t priority =
        table.has_priority() && key != nullptr ? static_cast<int32_t>(key->priority) : 0;
    const std::string whole = "(" + value + ",(" + std::to_string(priority) + ",True))";
    Arguments shown(*find_export("table_value", table.name));
    shown.give(with("read_from_hardware", 0)).give(where);
    TextBuffer buffer;
    EXPECT_EQ(buffer.text(shown.set("buffer", word(buffer.data())).call()), whole);
    return placed;
  }
  static Placement examine_direct(const pdgen::Table &table, const pdgen::Pair &pair,
                                  uint32_t entry, const Contents &given, bool has_key) {
    const ActionSpec image =
        action_image(pair, has_key ? pdgen::Operation::kAdd : pdgen::Operation::kDefault,
                     given.spec.data(), &given.meter);
    return examine(
        table, entry, has_key ? &given : nullptr,
        [&](const Read &read) { expect_action(read, *pair.action, image); },
        [&](const Read &read) { return action_texts(*pair.action, read); });
  }

  // ---- Comparison ----

  // An entry of the new device like the placed one but for its priority, and one with another key.
  // Which bits make a difference is compared with the records (text_walk_test.cpp).
  template <class Add>
  static void compare_entries(const pdgen::Table &table, const Placement &placed,
                              const Contents &given, Add add_to_new) {
    Contents other = given;
    other.priority ^= 1;
    uint32_t entry = add_to_new(other);
    EXPECT_TRUE(equals(table, entry, placed));
    remove(kNew, table, entry);
    EXPECT_FALSE(equals(table, entry, placed)) << "gone";
    for (uint8_t &byte : other.match) byte = static_cast<uint8_t>(~byte);
    entry = add_to_new(other);
    EXPECT_FALSE(equals(table, entry, placed)) << "another key";
    remove(kNew, table, entry);
  }
  // Whether other parameters make another action spec, and those.
  static bool change_action(const pdgen::Pair &pair, pdgen::Operation operation, Contents *given) {
    const auto kept = [&] {
      return kept_action_spec(*pair.action,
                              action_image(pair, operation, given->spec.data(), &given->meter));
    };
    const Bytes before = kept();
    for (const Member &member : record_of(*pair.action).member_list()) {
      given->spec[member.offset] ^= 1;
    }
    return kept() != before;
  }

  // Entries and default entries of the new device that point at each of the pointees.
  static void compare_pointees(const pdgen::Table &table, const Contents &given,
                               const std::vector<Pointee> &pointees, const Pointee &pointee,
                               const Placement &placed, const Placement &defaulted) {
    for (const Pointee &held : pointees) {
      const bool same = &held == &pointee;
      const uint32_t entry = add("add_entry", kNew, table, "", given, held);
      EXPECT_EQ(equals(table, entry, placed), same);
      EXPECT_FALSE(equals(table, entry, defaulted));
      remove(kNew, table, entry);
      const uint32_t other = add("set_default_entry", kNew, table, "", given, held);
      EXPECT_EQ(equals(table, other, defaulted), same);
      EXPECT_FALSE(equals(table, other, placed));
    }
  }

  static uint32_t add_member(const p4_pd_device_target_t &target, const pdgen::Profile &profile,
                             const pdgen::Action &action, const Bytes &spec) {
    return make("add_member", profile.name, action.name,
                with("target", &target, "action_spec", spec.data()));
  }
  // A member and a group with it.
  static std::vector<Pointee> add_pointees(const p4_pd_device_target_t &target,
                                           const pdgen::Profile &profile) {
    const pdgen::Action &action = *profile.actions.front().action;
    const uint32_t member = add_member(target, profile, action, Bytes(record_of(action).size));
    const uint32_t group =
        make("create_group", profile.name, "", with("target", &target, "max_size", 4));
    EXPECT_EQ(run("add_member_to_group", profile.name,
                  with("device", target.device_id, "group", group, "member", member)),
              BF_SUCCESS);
    return {{"member", member}, {"group", group}};
  }

  Device old_device_{9, true};
};

TEST_F(ObjectSweep, EntriesOfEveryAction) {
  size_t pairs = 0;
  for (const pdgen::Table &table : program().tables) {
    std::vector<pdgen::Pair> of_entries;
    std::ranges::copy_if(table.pairs, std::back_inserter(of_entries), &pdgen::Pair::in_entries);
    for (size_t i = 0; i < of_entries.size(); ++i) {
      const pdgen::Pair &pair = of_entries[i];
      SCOPED_TRACE(table.name + " " + pair.action->name);
      Contents given = contents_for(table, &*pair.action);
      const uint32_t old_entry = add("table_add", kOld, table, pair.action->name, given);
      const Placement placed = examine_direct(table, pair, old_entry, given, true);
      remove(kOld, table, old_entry);
      const auto add_to_new = [&](const Contents &one) {
        return add("table_add", kNew, table, pair.action->name, one);
      };
      compare_entries(table, placed, given, add_to_new);
      if (change_action(pair, pdgen::Operation::kAdd, &given)) {
        const uint32_t entry = add_to_new(given);
        EXPECT_FALSE(equals(table, entry, placed)) << "other parameters";
        remove(kNew, table, entry);
      }
      const pdgen::Pair &other = of_entries[(i + 1) % of_entries.size()];
      if (&other != &pair) {
        Contents alike = contents_for(table, &*other.action);
        alike.match = given.match;
        const uint32_t entry = add("table_add", kNew, table, other.action->name, alike);
        EXPECT_FALSE(equals(table, entry, placed)) << other.action->name;
        remove(kNew, table, entry);
      }
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, exports_of("table_add").size());
}

TEST_F(ObjectSweep, DefaultEntriesOfEveryAction) {
  size_t pairs = 0;
  for (const pdgen::Table &table : program().tables) {
    for (const pdgen::Pair &pair : table.pairs) {
      if (!pair.as_default) continue;
      SCOPED_TRACE(table.name + " " + pair.action->name);
      const auto set_default = [&](const p4_pd_device_target_t &target, const Contents &given) {
        return add("set_default_action", target, table, pair.action->name, given);
      };
      Contents given = contents_for(table, &*pair.action);
      const uint32_t old_entry = set_default(kOld, given);
      const Placement placed = examine_direct(table, pair, old_entry, given, false);
      const Given old = with("target", &kOld);
      EXPECT_EQ(make("table_get_default_entry_handle", table.name, "", old), old_entry);
      expect_action(
          Read(*find_export("table_get_default_entry", table.name), &table, old), *pair.action,
          action_image(pair, pdgen::Operation::kDefault, given.spec.data(), &given.meter));
      EXPECT_TRUE(equals(table, set_default(kNew, given), placed));
      if (pair.in_entries) {
        const uint32_t keyed = add("table_add", kNew, table, pair.action->name, given);
        EXPECT_FALSE(equals(table, keyed, placed)) << "an entry with a key";
        EXPECT_FALSE(equals(table, set_default(kNew, given),
                            Placement::of_entry(kDevice, table.handle, keyed)));
        remove(kNew, table, keyed);
      }
      if (change_action(pair, pdgen::Operation::kDefault, &given)) {
        EXPECT_FALSE(equals(table, set_default(kNew, given), placed)) << "other parameters";
      }
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, exports_of("set_default_action").size());
}

// Tables and profiles have the sizes and default entries of the catalogue, and get the latter back.
TEST_F(ObjectSweep, TablesOfAFreshDevice) {
  for (const pdgen::Profile &profile : program().profiles) {
    uint32_t members = 0, groups = 0;
    EXPECT_EQ(soft_profile_capacity_get(kDevice, profile.action_data_handle, &members), BF_SUCCESS);
    EXPECT_EQ(soft_profile_capacity_get(kDevice, profile.selector_handle, &groups), BF_SUCCESS);
    EXPECT_EQ(members, profile.most_members);
    EXPECT_EQ(groups, profile.most_groups);
  }
  for (const pdgen::Table &table : program().tables) {
    SCOPED_TRACE(table.name);
    uint32_t capacity = 0;
    EXPECT_EQ(soft_table_capacity_get(kDevice, table.handle, &capacity), BF_SUCCESS);
    EXPECT_EQ(capacity, table.size);
    const auto &entry = table.default_entry;
    EXPECT_EQ(run("table_get_default_entry_handle", table.name, with("entry", &capacity)),
              entry ? BF_SUCCESS : BF_OBJECT_NOT_FOUND);
    if (!entry) continue;
    const pdgen::Action &action = *entry->pair->action;
    Bytes spec(record_of(action).size);
    for (size_t i = 0; i < action.params.size(); ++i) {
      const Member &member = record_of(action).member_list()[i];
      std::memcpy(&spec[member.offset], &entry->values[i], member.storage);
    }
    ActionSpec image = action_image(*entry->pair, pdgen::Operation::kDefault, spec.data(), nullptr);
    if (entry->cells.empty()) image.resources.clear();
    const Export &get = *find_export("table_get_default_entry", table.name);
    expect_action(Read(get, &table, {}), action, image);
    const Contents other = contents_for(table, &action);
    add("set_default_action", kNew, table, action.name, other);
    EXPECT_EQ(run("table_reset_default_entry", table.name, {}), BF_SUCCESS);
    expect_action(Read(get, &table, {}), action, image);
  }
}

TEST_F(ObjectSweep, EntriesThatPointAtMembersAndGroups) {
  size_t tables = 0;
  for (const bf_device_id_t device : {kOld.device_id, kNew.device_id}) lift_limits(device);
  for (const pdgen::Profile &profile : program().profiles) {
    std::vector<Pointee> pointees;
    for (int round = 0; round < 2; ++round) {
      for (const Pointee &pointee : add_pointees(kOld, profile)) pointees.push_back(pointee);
      add_pointees(kNew, profile);
    }
    for (const pdgen::Table &table : program().tables) {
      if (table.profile.target != &profile) continue;
      SCOPED_TRACE(table.name);
      const Contents given = contents_for(table, nullptr);
      for (const Pointee &pointee : pointees) {
        const auto examined = [&](uint32_t entry, const Contents *key) {
          char text[40];
          std::snprintf(text, sizeof text, "('set%sHdl',(0x%x,))",
                        pointee.is_group() ? "Grp" : "Mbr", pointee.handle);
          return examine(
              table, entry, key, [&](const Read &read) { expect_pointee(read, pointee); },
              [&](const Read &) {
                return Texts{text, ""};
              });
        };
        const uint32_t old_entry = add("add_entry", kOld, table, "", given, pointee);
        const Placement placed = examined(old_entry, &given);
        remove(kOld, table, old_entry);
        const Placement defaulted =
            examined(add("set_default_entry", kOld, table, "", given, pointee), nullptr);
        expect_pointee(Read(*find_export("table_get_default_entry", table.name), &table,
                            with("target", &kOld)),
                       pointee);
        compare_pointees(table, given, pointees, pointee, placed, defaulted);
        compare_entries(table, placed, given, [&](const Contents &one) {
          return add("add_entry", kNew, table, "", one, pointee);
        });
      }
      ++tables;
    }
  }
  EXPECT_EQ(tables, exports_of("add_entry").size());
}

TEST_F(ObjectSweep, MembersOfEveryAction) {
  size_t actions = 0;
  lift_limits(kOld.device_id);
  for (const pdgen::Profile &profile : program().profiles) {
    for (const pdgen::ProfileAction &pair : profile.actions) {
      SCOPED_TRACE(profile.name + " " + pair.action->name);
      Random random = random_for(profile.name + pair.action->name);
      const Bytes spec = random_record(record_of(*pair.action), random);
      const uint32_t member = add_member(kOld, profile, *pair.action, spec);
      const Placement placed =
          Placement::of_member(kOld.device_id, profile.action_data_handle, member);
      const Given given = with("device", kOld.device_id, "member", member, "placement",
                               placed.object, "profile_handle", profile.action_data_handle);
      std::optional<Read> read;
      for (const char *family :
           {"get_member", "get_member_from_plcmt_data", "get_full_member_info_from_plcmt_data"}) {
        read.emplace(*find_export(family, profile.name), nullptr, given);
        expect_action(*read, *pair.action, action_image(*pair.action, spec.data()));
      }
      expect_texts("adt_plcmt_data", profile.name, given, action_texts(*pair.action, *read));
      ++actions;
    }
  }
  EXPECT_EQ(actions, exports_of("add_member").size());
}

}  // namespace
}  // namespace pd_test
