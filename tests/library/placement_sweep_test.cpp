// Placement data of every table, action and profile: an entry of a virtual device decodes into what
// the widths keep of it, renders as its parts do, equals an entry like it on another device, and
// differs from one with a key field, mask, prefix length, parameter, member or group changed.

#include <algorithm>

#include "oracle.hpp"
#include "placement_fixture.hpp"
#include "text_fixture.hpp"

namespace pd_test {
namespace {

// What an entry is added with.
struct Given {
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

class PlacementSweep : public LibraryTest {
 protected:
  static constexpr p4_pd_device_target_t kOld = {9, kPipe};
  static constexpr p4_pd_device_target_t kNew = kTarget;

  static Given random_given(const pdgen::Table &table, const pdgen::Action *action) {
    Random random = random_for(table.name + (action == nullptr ? "" : action->name) + "placed");
    Given given;
    given.match = random_record(record_of(table), random);
    for (const Member &member : record_of(table).member_list()) {
      if (member.role == bindings::Role::prefix_length) given.match[member.offset] = 16;
      if (member.role == bindings::Role::prefix_length) given.match[member.offset + 1] = 0;
    }
    if (action != nullptr) given.spec = random_record(record_of(*action), random);
    given.meter = random_meter_spec(random);
    given.priority = static_cast<uint32_t>(random());
    return given;
  }

  static uint32_t run(Arguments call, const p4_pd_device_target_t &target, const Given &given) {
    uint32_t entry = 0;
    call.set("target", &target).set("entry", &entry);
    if (call.takes("match_spec")) call.set("match_spec", given.match.data());
    if (call.takes("priority")) call.set("priority", uint64_t{given.priority});
    if (call.takes("action_spec")) call.set("action_spec", given.spec.data());
    if (call.takes("meter_spec")) call.set("meter_spec", &given.meter);
    if (call.takes("ttl")) call.set("ttl", uint64_t{0});
    EXPECT_EQ(call.status(), BF_SUCCESS) << call.exported().name;
    return entry;
  }
  static uint32_t add(const p4_pd_device_target_t &target, const pdgen::Table &table,
                      const pdgen::Action &action, const Given &given) {
    return run(Arguments(*find_export("table_add", table.name, action.name)), target, given);
  }
  static uint32_t set_default(const p4_pd_device_target_t &target, const pdgen::Table &table,
                              const pdgen::Action &action, const Given &given) {
    return run(Arguments(*find_export("set_default_action", table.name, action.name)), target,
               given);
  }
  // family: add_entry or set_default_entry.
  static uint32_t point(std::string family, const p4_pd_device_target_t &target,
                        const pdgen::Table &table, const Given &given, const Pointee &pointee) {
    if (pointee.is_group()) family += "_with_selector";
    Arguments call(*find_export(family, table.name));
    return run(call.set(pointee.kind, uint64_t{pointee.handle}), target, given);
  }
  static void remove(const p4_pd_device_target_t &target, const pdgen::Table &table,
                     uint32_t entry) {
    Arguments del(*find_export("table_delete", table.name));
    EXPECT_EQ(del.set("device", uint64_t{target.device_id}).set("entry", uint64_t{entry}).status(),
              BF_SUCCESS);
  }

  // Twice, by the table's function and by the handle's.
  static bool equals(const pdgen::Table &table, uint32_t entry, const Placement &placed) {
    const uint64_t equal =
        call(*find_export("plcmt_data_eq_to_hw", table.name), uint64_t{session()},
             uint64_t{kDevice}, uint64_t{table.handle}, uint64_t{entry}, placed.object);
    EXPECT_EQ(p4_pd_tessel_switch_plcmt_data_eq_to_hw(session(), kDevice, table.handle, entry,
                                                      placed.object),
              static_cast<int>(equal));
    return equal == 1;
  }

  // What a decoder of entries writes. Every byte is set beforehand.
  struct Decoded {
    Bytes match_spec;
    Bytes action_specs = Bytes(sizeof(p4_pd_tessel_switch_action_specs_t), 0xee);
    uint32_t priority = 0xeeeeeeee, member = 0xeeeeeeee, group = 0xeeeeeeee;
    uint8_t has_member = 0xee, has_group = 0xee, no_key = 0xee;
  };
  static Decoded decode(const pdgen::Table &table, const Placement &placed) {
    Decoded out;
    out.match_spec.assign(record_of(table).size, 0xee);
    Arguments decoder(*find_export(
        table.indirect() ? "get_indirect_entry_from_plcmt_data" : "get_entry_from_plcmt_data",
        table.name));
    const auto give = [&](const char *name, void *pointer) {
      if (decoder.takes(name)) decoder.set(name, pointer);
    };
    give("match_spec", out.match_spec.data());
    give("priority", &out.priority);
    give("action_specs", out.action_specs.data());
    give("member", &out.member);
    give("group", &out.group);
    give("has_member", &out.has_member);
    give("has_group", &out.has_group);
    give("no_key", &out.no_key);
    EXPECT_EQ(decoder.set("placement", placed.object).status(), BF_SUCCESS) << table.name;
    return out;
  }

  static void expect_key(const pdgen::Table &table, const Decoded &out, const Given *given) {
    const Bytes untouched(record_of(table).size, 0xee);
    EXPECT_EQ(out.match_spec,
              given == nullptr ? untouched : kept_match_spec(table, given->match.data()));
    const uint32_t priority = given == nullptr ? 0 : given->priority;
    EXPECT_EQ(out.priority, table.has_priority() ? priority : 0xeeeeeeeeu);
    EXPECT_EQ(out.no_key, given == nullptr ? 1 : 0);
  }
  static void expect_action(const Bytes &specs, const pdgen::Action &action,
                            const ActionImage &image) {
    Bytes wanted(specs.size(), 0xee);
    std::copy_n(reinterpret_cast<const uint8_t *>(&action.value), 4, wanted.data());
    if (action.has_params()) std::ranges::copy(kept_action_spec(action, image), &wanted[4]);
    EXPECT_EQ(hex(specs), hex(wanted));
  }

  // The two forms, put together from the forms of the parts.
  static std::string key_value(const pdgen::Table &table, const Decoded &out) {
    if (out.no_key != 0) return "(),";
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_MATCH_SPEC_VALUE_MAX);
    return buffer.text(
        call(*find_export("match_spec_value", table.name), out.match_spec.data(), buffer.data()));
  }
  static std::string action_value(const pdgen::Action &action, const Bytes &specs) {
    TextBuffer buffer(P4_PD_TESSEL_SWITCH_ACTION_VALUE_MAX);
    Arguments value(*find_export("action_value", action.name));
    if (action.has_params()) value.set("action_spec", &specs[4]);
    return buffer.text(value.set("buffer", buffer.data()).call());
  }
  static void expect_value(const pdgen::Table &table, const Placement &placed,
                           const std::string &wanted) {
    TextBuffer own(P4_PD_TESSEL_SWITCH_VALUE_MAX), dispatched(P4_PD_TESSEL_SWITCH_VALUE_MAX);
    EXPECT_EQ(
        own.text(call(*find_export("plcmt_data_value", table.name), placed.object, own.data())),
        wanted);
    EXPECT_EQ(dispatched.text(static_cast<uint64_t>(p4_pd_tessel_switch_plcmt_data_value(
                  table.handle, placed.object, dispatched.data()))),
              wanted);
  }
  static void print_key(int file, const pdgen::Table &table, const Decoded &out) {
    if (!table.keyed()) dprintf(file, "   p4_pd_tessel_switch_%s:\n", table.name.c_str());
    if (out.no_key != 0) return;
    call(*find_export("match_spec_print", table.name), static_cast<uint64_t>(file), uint64_t{3},
         out.match_spec.data());
  }
  static void print_action(int file, const pdgen::Action &action, const Bytes &specs) {
    dprintf(file, "   p4_pd_tessel_switch_%s:\n", action.name.c_str());
    if (!action.has_params()) return;
    call(*find_export("action_print", action.name), static_cast<uint64_t>(file), uint64_t{3},
         &specs[4]);
  }
  template <class Parts>
  static void expect_print(const pdgen::Table &table, const Placement &placed, Parts parts) {
    const std::string wanted = printed(parts);
    EXPECT_EQ(printed([&](int file) {
                EXPECT_EQ(call(*find_export("plcmt_data_print", table.name),
                               static_cast<uint64_t>(file), uint64_t{3}, placed.object),
                          0u);
              }),
              wanted);
    EXPECT_EQ(printed([&](int file) {
                EXPECT_EQ(
                    p4_pd_tessel_switch_plcmt_data_print(file, 3, table.handle, placed.object), 0);
              }),
              wanted);
  }

  void check_direct(const pdgen::Table &table, const pdgen::Pair &pair, const Placement &placed,
                    const Given &given, bool has_key) {
    const Decoded out = decode(table, placed);
    expect_key(table, out, has_key ? &given : nullptr);
    const auto operation = has_key ? pdgen::Operation::kAdd : pdgen::Operation::kDefault;
    expect_action(out.action_specs, *pair.action,
                  action_image(pair, operation, given.spec.data(), &given.meter));
    expect_value(table, placed,
                 "(" + key_value(table, out) + action_value(*pair.action, out.action_specs) + ")");
    expect_print(table, placed, [&](int file) {
      print_key(file, table, out);
      print_action(file, *pair.action, out.action_specs);
    });
  }

  // Runs judge(changed, differs) for each member of the key with a bit of it flipped that counts in
  // comparisons. It makes a difference unless it is a bit of a value that its mask leaves out.
  // Returns how many do.
  template <class Judge>
  static size_t flip_key(const pdgen::Table &table, const Given &given, Judge judge) {
    const Record &record = record_of(table);
    const std::vector<Literal> schema = schema_fields(table.name);
    const Bytes kept = kept_match_spec(table, given.match.data());
    size_t differences = 0;
    for (size_t i = 0; i < record.member_count; ++i) {
      const Member &member = record.members[i];
      SCOPED_TRACE(member.name);
      Given changed = given;
      if (member.storage == 16) {
        const auto counts = schema[i][3].bytes();
        const auto byte = std::ranges::find_if(counts, [](uint8_t bits) { return bits != 0; });
        changed.match[member.offset + static_cast<size_t>(byte - counts.begin())] ^= *byte;
      } else {
        uint32_t value = 0;
        std::memcpy(&value, &changed.match[member.offset], member.storage);
        const auto counts = static_cast<uint32_t>(schema[i][3].number());
        value ^= counts & (0u - counts);
        std::memcpy(&changed.match[member.offset], &value, member.storage);
      }
      const bool differs = kept_match_spec(table, changed.match.data()) != kept;
      judge(changed, differs);
      differences += differs ? 1 : 0;
    }
    return differences;
  }

  // The same for each parameter that the action data or the resources of the pair carry.
  template <class Judge>
  static size_t flip_action(const pdgen::Pair &pair, pdgen::Operation operation, const Given &given,
                            Judge judge) {
    const auto kept = [&](const Given &one) {
      return kept_action_spec(*pair.action,
                              action_image(pair, operation, one.spec.data(), &one.meter));
    };
    size_t flips = 0;
    for (const Member &member : record_of(*pair.action).member_list()) {
      SCOPED_TRACE(member.name);
      Given changed = given;
      changed.spec[member.offset] ^= 1;
      if (kept(changed) == kept(given)) continue;
      judge(changed);
      ++flips;
    }
    return flips;
  }

  // An entry of the new device like the placed one but for its priority, and entries with one thing
  // changed.
  template <class Add>
  size_t compare_entries(const pdgen::Table &table, const Placement &placed, const Given &given,
                         Add add_to_new) {
    Given same = given;
    same.priority ^= 1;
    uint32_t entry = add_to_new(same);
    EXPECT_TRUE(equals(table, entry, placed));
    remove(kNew, table, entry);
    EXPECT_FALSE(equals(table, entry, placed)) << "gone";
    return flip_key(table, given, [&](const Given &changed, bool differs) {
      entry = add_to_new(changed);
      EXPECT_EQ(equals(table, entry, placed), !differs);
      remove(kNew, table, entry);
    });
  }

  uint32_t add_member(const p4_pd_device_target_t &target, const pdgen::Profile &profile,
                      const pdgen::Action &action, const Bytes &spec) {
    uint32_t member = 0;
    Arguments add(*find_export("add_member", profile.name, action.name));
    if (add.takes("action_spec")) add.set("action_spec", spec.data());
    EXPECT_EQ(add.set("target", &target).set("member", &member).status(), BF_SUCCESS);
    return member;
  }
  // A member and a group with it.
  std::vector<Pointee> add_pointees(const p4_pd_device_target_t &target,
                                    const pdgen::Profile &profile) {
    const pdgen::Action &action = *profile.actions.front().action;
    const uint32_t member = add_member(target, profile, action, Bytes(64));
    uint32_t group = 0;
    Arguments create(*find_export("create_group", profile.name));
    create.set("target", &target).set("max_size", uint64_t{4}).set("group", &group);
    EXPECT_EQ(create.status(), BF_SUCCESS);
    Arguments join(*find_export("add_member_to_group", profile.name));
    join.set("device", uint64_t{target.device_id}).set("group", uint64_t{group});
    EXPECT_EQ(join.set("member", uint64_t{member}).status(), BF_SUCCESS);
    return {{"member", member}, {"group", group}};
  }

  Device old_device_{9, true};
};

TEST_F(PlacementSweep, EntriesOfEveryAction) {
  size_t pairs = 0, key_flips = 0, action_flips = 0;
  for (const pdgen::Table &table : program().tables) {
    if (!table.keyed() || table.indirect()) continue;
    for (size_t i = 0; i < table.pairs.size(); ++i) {
      const pdgen::Pair &pair = table.pairs[i];
      if (!pair.in_entries) continue;
      SCOPED_TRACE(table.name + " " + pair.action->name);
      const Given given = random_given(table, &*pair.action);
      const uint32_t old_entry = add(kOld, table, *pair.action, given);
      const Placement placed = Placement::of_entry(kOld.device_id, table.handle, old_entry);
      remove(kOld, table, old_entry);
      check_direct(table, pair, placed, given, true);
      const auto add_to_new = [&](const Given &one) { return add(kNew, table, *pair.action, one); };
      key_flips += compare_entries(table, placed, given, add_to_new);
      action_flips += flip_action(pair, pdgen::Operation::kAdd, given, [&](const Given &changed) {
        const uint32_t entry = add_to_new(changed);
        EXPECT_FALSE(equals(table, entry, placed));
        remove(kNew, table, entry);
      });
      const pdgen::Pair &other = table.pairs[(i + 1) % table.pairs.size()];
      if (&other != &pair && other.in_entries) {
        Given alike = random_given(table, &*other.action);
        alike.match = given.match;
        const uint32_t entry = add(kNew, table, *other.action, alike);
        EXPECT_FALSE(equals(table, entry, placed)) << other.action->name;
        remove(kNew, table, entry);
      }
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, 221u);
  EXPECT_GT(key_flips, 1500u);
  EXPECT_GT(action_flips, 150u);
}

TEST_F(PlacementSweep, DefaultEntriesOfEveryAction) {
  size_t pairs = 0, flips = 0;
  for (const pdgen::Table &table : program().tables) {
    for (const pdgen::Pair &pair : table.pairs) {
      if (!pair.as_default) continue;
      SCOPED_TRACE(table.name + " " + pair.action->name);
      const Given given = random_given(table, &*pair.action);
      const uint32_t old_entry = set_default(kOld, table, *pair.action, given);
      const Placement placed = Placement::of_entry(kOld.device_id, table.handle, old_entry);
      check_direct(table, pair, placed, given, false);
      const uint32_t entry = set_default(kNew, table, *pair.action, given);
      EXPECT_TRUE(equals(table, entry, placed));
      flips += flip_action(pair, pdgen::Operation::kDefault, given, [&](const Given &changed) {
        EXPECT_FALSE(equals(table, set_default(kNew, table, *pair.action, changed), placed));
      });
      if (table.keyed() && pair.in_entries) {
        const uint32_t keyed = add(kNew, table, *pair.action, given);
        EXPECT_FALSE(equals(table, keyed, placed)) << "an entry with a key";
        EXPECT_FALSE(equals(table, set_default(kNew, table, *pair.action, given),
                            Placement::of_entry(kDevice, table.handle, keyed)));
        remove(kNew, table, keyed);
      }
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, 179u);
  EXPECT_GT(flips, 100u);
}

TEST_F(PlacementSweep, EntriesThatPointAtMembersAndGroups) {
  size_t tables = 0;
  for (const pdgen::Profile &profile : program().profiles) {
    std::vector<Pointee> pointees;
    for (int round = 0; round < 2; ++round) {
      for (const Pointee &pointee : add_pointees(kOld, profile)) pointees.push_back(pointee);
      add_pointees(kNew, profile);
    }
    for (const pdgen::Table *table : profile.tables) {
      SCOPED_TRACE(table->name);
      const Given given = random_given(*table, nullptr);
      for (const Pointee &pointee : pointees) {
        const uint32_t old_entry = point("add_entry", kOld, *table, given, pointee);
        const Placement placed = Placement::of_entry(kOld.device_id, table->handle, old_entry);
        remove(kOld, *table, old_entry);
        const uint32_t old_default = point("set_default_entry", kOld, *table, given, pointee);
        const Placement defaulted = Placement::of_entry(kOld.device_id, table->handle, old_default);
        for (const Placement *each : {&placed, &defaulted}) {
          const Decoded out = decode(*table, *each);
          expect_key(*table, out, each == &placed ? &given : nullptr);
          EXPECT_EQ(out.has_member, pointee.is_group() ? 0 : 1);
          EXPECT_EQ(out.has_group, pointee.is_group() ? 1 : 0);
          EXPECT_EQ(out.member, pointee.is_group() ? 0xeeeeeeeeu : pointee.handle);
          EXPECT_EQ(out.group, pointee.is_group() ? pointee.handle : 0xeeeeeeeeu);
          char points[40];
          std::snprintf(points, sizeof points, "('set%sHdl',(0x%x,)))",
                        pointee.is_group() ? "Grp" : "Mbr", pointee.handle);
          expect_value(*table, *each, "(" + key_value(*table, out) + points);
          expect_print(*table, *each, [&](int file) { print_key(file, *table, out); });
        }
        for (const Pointee &held : pointees) {
          const bool same = &held == &pointee;
          const uint32_t entry = point("add_entry", kNew, *table, given, held);
          EXPECT_EQ(equals(*table, entry, placed), same);
          EXPECT_FALSE(equals(*table, entry, defaulted));
          remove(kNew, *table, entry);
          const uint32_t other = point("set_default_entry", kNew, *table, given, held);
          EXPECT_EQ(equals(*table, other, defaulted), same);
          EXPECT_FALSE(equals(*table, other, placed));
        }
        compare_entries(*table, placed, given, [&](const Given &one) {
          return point("add_entry", kNew, *table, one, pointee);
        });
      }
      ++tables;
    }
  }
  EXPECT_EQ(tables, 4u);
}

TEST_F(PlacementSweep, MembersOfEveryAction) {
  size_t actions = 0;
  for (const pdgen::Profile &profile : program().profiles) {
    for (const pdgen::ProfileAction &pair : profile.actions) {
      SCOPED_TRACE(profile.name + " " + pair.action->name);
      Random random = random_for(profile.name + pair.action->name + "placed");
      const Bytes spec = random_record(record_of(*pair.action), random);
      const uint32_t member = add_member(kOld, profile, *pair.action, spec);
      const Placement placed =
          Placement::of_member(kOld.device_id, profile.action_data_handle, member);
      Bytes specs(sizeof(p4_pd_tessel_switch_action_specs_t), 0xee), full = specs;
      Arguments get(*find_export("get_member_from_plcmt_data", profile.name));
      get.set("placement", placed.object).set("action_specs", specs.data());
      EXPECT_EQ(get.status(), BF_SUCCESS);
      expect_action(specs, *pair.action, action_image(*pair.action, spec.data()));
      Arguments get_full(*find_export("get_full_member_info_from_plcmt_data", profile.name));
      get_full.set("device", uint64_t{kOld.device_id}).set("member", uint64_t{member});
      get_full.set("placement", placed.object).set("action_specs", full.data());
      EXPECT_EQ(get_full.status(), BF_SUCCESS);
      EXPECT_EQ(full, specs);

      const std::string value = action_value(*pair.action, specs);
      TextBuffer own(P4_PD_TESSEL_SWITCH_VALUE_MAX), dispatched(P4_PD_TESSEL_SWITCH_VALUE_MAX);
      EXPECT_EQ(own.text(call(*find_export("adt_plcmt_data_value", profile.name), placed.object,
                              own.data())),
                value);
      EXPECT_EQ(dispatched.text(static_cast<uint64_t>(p4_pd_tessel_switch_adt_plcmt_data_value(
                    profile.action_data_handle, placed.object, dispatched.data()))),
                value);
      const std::string lines = printed([&](int file) { print_action(file, *pair.action, specs); });
      EXPECT_EQ(printed([&](int file) {
                  EXPECT_EQ(call(*find_export("adt_plcmt_data_print", profile.name),
                                 static_cast<uint64_t>(file), uint64_t{3}, placed.object),
                            0u);
                }),
                lines);
      EXPECT_EQ(printed([&](int file) {
                  EXPECT_EQ(p4_pd_tessel_switch_adt_plcmt_data_print(
                                file, 3, profile.action_data_handle, placed.object),
                            0);
                }),
                lines);
      ++actions;
    }
  }
  EXPECT_EQ(actions, 8u);
}

}  // namespace
}  // namespace pd_test
