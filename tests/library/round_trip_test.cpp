// What goes in comes out: every (table, action) pair as entry and as default entry, and every
// action of a profile as member, group and entry, with records whose bits are all random. What
// comes out is compared with what the widths keep.
#include <algorithm>

#include "oracle.hpp"
#include "text_fixture.hpp"

namespace pd_test {
namespace {

class RoundTrip : public LibraryTest {
 protected:
  // What get_entry of a table reports. Every byte is set beforehand.
  struct ReadEntry {
    Bytes match_spec;
    Bytes action_spec = Bytes(sizeof(p4_pd_tessel_switch_action_specs_t), 0xee);
    uint32_t priority = 0xeeeeeeee;
    uint32_t action = 0xeeeeeeee;
    std::string action_name = std::string(61, '?');
    uint8_t no_key = 0xee;
    uint8_t has_member = 0xee;
    uint8_t has_group = 0xee;
    uint32_t member = 0xeeeeeeee;
    uint32_t group = 0xeeeeeeee;
  };

  static ReadEntry read_entry(const pdgen::Table &table, uint32_t entry) {
    ReadEntry read;
    read.match_spec.assign(record_of(table).size, 0xee);
    const char *family = table.indirect() ? "get_indirect_entry" : "get_entry";
    Arguments get(*find_export(family, table.name));
    get.set("entry", uint64_t{entry}).set("read_from_hardware", uint64_t{0});
    const auto give = [&](const char *name, void *out) {
      if (get.takes(name)) get.set(name, out);
    };
    give("match_spec", read.match_spec.data());
    give("priority", &read.priority);
    give("action_name", read.action_name.data());
    give("action_spec", read.action_spec.data());
    give("action", &read.action);
    give("no_key", &read.no_key);
    give("has_member", &read.has_member);
    give("has_group", &read.has_group);
    give("member", &read.member);
    give("group", &read.group);
    EXPECT_EQ(get.status(), BF_SUCCESS) << table.name;
    return read;
  }

  static uint32_t entry_count(const pdgen::Table &table) {
    uint32_t count = 0xeeeeeeee;
    Arguments get(*find_export("get_entry_count", table.name));
    EXPECT_EQ(get.set("count", &count).status(), BF_SUCCESS);
    return count;
  }

  static void expect_action(const pdgen::Action &action, const ActionImage &image, uint32_t value,
                            const uint8_t *read) {
    EXPECT_EQ(value, action.value);
    Bytes wanted = kept_action_spec(action, image);
    if (!action.has_params()) wanted.assign(4, 0xee);  // left as it was
    EXPECT_EQ(hex(Bytes(read, read + wanted.size())), hex(wanted)) << action.name;
  }
};

// ---- Entries ----

class EntryRoundTrip : public RoundTrip {
 protected:
  void run(const pdgen::Table &table, const pdgen::Pair &pair) {
    Random random = random_for(table.name + pair.action->name);
    const Bytes match = random_record(record_of(table), random);
    const Bytes spec = random_record(record_of(*pair.action), random);
    const auto meter = random_meter_spec(random);
    const auto priority = static_cast<uint32_t>(random());
    uint32_t entry = 0;
    Arguments add(*find_export("table_add", table.name, pair.action->name));
    add.set("match_spec", match.data()).set("entry", &entry);
    if (add.takes("priority")) add.set("priority", uint64_t{priority});
    if (add.takes("action_spec")) add.set("action_spec", spec.data());
    if (add.takes("meter_spec")) add.set("meter_spec", &meter);
    if (add.takes("ttl")) add.set("ttl", uint64_t{1000});
    ASSERT_EQ(add.status(), BF_SUCCESS);
    EXPECT_EQ(entry_count(table), 1u);

    const ReadEntry read = read_entry(table, entry);
    EXPECT_EQ(hex(read.match_spec), hex(kept_match_spec(table, match.data())));
    EXPECT_EQ(read.priority, table.has_priority() ? priority : 0xeeeeeeeeu);
    EXPECT_EQ(read.no_key, 0);
    EXPECT_EQ(read.action_name.c_str(), "p4_pd_tessel_switch_" + pair.action->name);
    expect_action(*pair.action, action_image(pair, pdgen::Operation::kAdd, spec.data(), &meter),
                  read.action, read.action_spec.data());

    expect_value(table, *pair.action, entry, read);

    Arguments del(*find_export("table_delete", table.name));
    EXPECT_EQ(del.set("entry", uint64_t{entry}).status(), BF_SUCCESS);
    EXPECT_EQ(entry_count(table), 0u);
    EXPECT_EQ(del.status(), BF_OBJECT_NOT_FOUND);
  }

  // The value of an entry is made of the values of its parts.
  static void expect_value(const pdgen::Table &table, const pdgen::Action &action, uint32_t entry,
                           const ReadEntry &read) {
    const auto text = [](Arguments call, const char *record, const Bytes &bytes) {
      TextBuffer buffer(P4_PD_TESSEL_SWITCH_VALUE_MAX);
      if (call.takes(record)) call.set(record, bytes.data());
      return buffer.text(call.set("buffer", buffer.data()).call());
    };
    Arguments whole(*find_export("table_value", table.name));
    whole.set("entry", uint64_t{entry}).set("read_from_hardware", uint64_t{0});
    const std::string priority =
        std::to_string(table.has_priority() ? static_cast<int32_t>(read.priority) : 0);
    const std::string key = text(Arguments(*find_export("match_spec_value", table.name)),
                                 "match_spec", read.match_spec);
    const std::string value =
        text(Arguments(*find_export("action_value", action.name)), "action_spec", read.action_spec);
    EXPECT_EQ(text(whole, "", {}), "((" + key + value + "),(" + priority + ",True))");
  }
};

TEST_F(EntryRoundTrip, KeepsWhatTheWidthsKeep) {
  size_t pairs = 0;
  for (const pdgen::Table &table : program().tables) {
    if (!table.keyed()) continue;
    for (const pdgen::Pair &pair : table.pairs) {
      SCOPED_TRACE(table.name + " " + pair.action->name);
      run(table, pair);
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, 221u);
}

// ---- Default entries ----

class DefaultRoundTrip : public RoundTrip {
 protected:
  struct Given {
    Bytes spec;
    p4_pd_bytes_meter_spec_t meter;
    uint32_t entry = 0;
  };

  Given set_default(const pdgen::Table &table, const pdgen::Pair &pair) {
    Random random = random_for(table.name + pair.action->name + "default");
    Given given{random_record(record_of(*pair.action), random), random_meter_spec(random)};
    Arguments set(*find_export("set_default_action", table.name, pair.action->name));
    if (set.takes("action_spec")) set.set("action_spec", given.spec.data());
    if (set.takes("meter_spec")) set.set("meter_spec", &given.meter);
    EXPECT_EQ(set.set("entry", &given.entry).status(), BF_SUCCESS);
    return given;
  }

  void run(const pdgen::Table &table, const pdgen::Pair &pair) {
    const Given given = set_default(table, pair);
    const ActionImage image =
        action_image(pair, pdgen::Operation::kDefault, given.spec.data(), &given.meter);
    uint32_t handle = 0;
    Arguments get_handle(*find_export("table_get_default_entry_handle", table.name));
    EXPECT_EQ(get_handle.set("entry", &handle).status(), BF_SUCCESS);
    EXPECT_EQ(handle, given.entry);

    Bytes specs(sizeof(p4_pd_tessel_switch_action_specs_t), 0xee);
    Arguments get(*find_export("table_get_default_entry", table.name));
    get.set("read_from_hardware", uint64_t{0}).set("action_specs", specs.data());
    ASSERT_EQ(get.status(), BF_SUCCESS);
    uint32_t value = 0;
    std::copy_n(specs.data(), sizeof value, reinterpret_cast<uint8_t *>(&value));
    expect_action(*pair.action, image, value, specs.data() + 4);

    // By its handle it reads as an entry without a key.
    const ReadEntry read = read_entry(table, handle);
    expect_action(*pair.action, image, read.action, read.action_spec.data());
    EXPECT_EQ(read.no_key, table.keyed() ? 1 : 0xee);
    EXPECT_EQ(read.match_spec, Bytes(record_of(table).size, 0xee));
    EXPECT_EQ(entry_count(table), 0u);
  }
};

TEST_F(DefaultRoundTrip, KeepsWhatTheWidthsKeep) {
  size_t pairs = 0;
  for (const pdgen::Table &table : program().tables) {
    for (const pdgen::Pair &pair : table.pairs) {
      if (!pair.as_default) continue;
      SCOPED_TRACE(table.name + " " + pair.action->name);
      run(table, pair);
      ++pairs;
    }
  }
  EXPECT_EQ(pairs, 179u);
}

// ---- Profiles ----

class ProfileRoundTrip : public RoundTrip {
 protected:
  uint32_t call_for_handle(const char *family, const pdgen::Profile &profile, const char *out,
                           uint64_t max_size = 4) {
    uint32_t handle = 0;
    Arguments call(*find_export(family, profile.name));
    if (call.takes("max_size")) call.set("max_size", max_size);
    EXPECT_EQ(call.set(out, &handle).status(), BF_SUCCESS) << call.exported().name;
    return handle;
  }
  static p4_pd_status_t call_on(const char *family, const std::string &object, const char *name,
                                uint32_t handle) {
    return Arguments(*find_export(family, object)).set(name, uint64_t{handle}).status();
  }

  uint32_t add_entry(const pdgen::Table &table, const char *family, const char *name,
                     uint32_t handle, const Bytes &match) {
    uint32_t entry = 0;
    Arguments add(*find_export(family, table.name));
    add.set("match_spec", match.data()).set("entry", &entry).set(name, uint64_t{handle});
    if (add.takes("priority")) add.set("priority", uint64_t{7});
    EXPECT_EQ(add.status(), BF_SUCCESS);
    return entry;
  }

  void check_entry(const pdgen::Table &table, bool by_group, uint32_t handle, Random &random) {
    const Bytes match = random_record(record_of(table), random);
    const char *family = by_group ? "add_entry_with_selector" : "add_entry";
    const char *name = by_group ? "group" : "member";
    const uint32_t entry = add_entry(table, family, name, handle, match);
    const ReadEntry read = read_entry(table, entry);
    EXPECT_EQ(hex(read.match_spec), hex(kept_match_spec(table, match.data())));
    EXPECT_EQ(read.priority, table.has_priority() ? 7u : 0xeeeeeeeeu);
    EXPECT_EQ(read.no_key, 0);
    EXPECT_EQ(read.has_member, by_group ? 0 : 1);
    EXPECT_EQ(read.has_group, by_group ? 1 : 0);
    EXPECT_EQ(read.member, by_group ? 0xeeeeeeeeu : handle);
    EXPECT_EQ(read.group, by_group ? handle : 0xeeeeeeeeu);
    // Nothing that an entry uses can be taken away.
    const std::string &profile = table.profile->name;
    EXPECT_EQ(call_on(by_group ? "del_group" : "del_member", profile, name, handle), BF_IN_USE);
    EXPECT_EQ(call_on("table_delete", table.name, "entry", entry), BF_SUCCESS);
    EXPECT_EQ(entry_count(table), 0u);
  }

  void run(const pdgen::Profile &profile, const pdgen::ProfileAction &pair) {
    Random random = random_for(profile.name + pair.action->name);
    const Bytes spec = random_record(record_of(*pair.action), random);
    uint32_t member = 0;
    Arguments add(*find_export("add_member", profile.name, pair.action->name));
    if (add.takes("action_spec")) add.set("action_spec", spec.data());
    ASSERT_EQ(add.set("member", &member).status(), BF_SUCCESS);

    Bytes specs(sizeof(p4_pd_tessel_switch_action_specs_t), 0xee);
    Arguments get(*find_export("get_member", profile.name));
    get.set("member", uint64_t{member}).set("read_from_hardware", uint64_t{0});
    ASSERT_EQ(get.set("action_specs", specs.data()).status(), BF_SUCCESS);
    uint32_t value = 0;
    std::copy_n(specs.data(), sizeof value, reinterpret_cast<uint8_t *>(&value));
    expect_action(*pair.action, action_image(*pair.action, spec.data()), value, specs.data() + 4);

    const uint32_t group = call_for_handle("create_group", profile, "group");
    Arguments join(*find_export("add_member_to_group", profile.name));
    join.set("group", uint64_t{group}).set("member", uint64_t{member});
    ASSERT_EQ(join.status(), BF_SUCCESS);
    for (const pdgen::Table *table : profile.tables) {
      check_entry(*table, false, member, random);
      check_entry(*table, true, group, random);
    }
    EXPECT_EQ(call_on("del_group", profile.name, "group", group), BF_SUCCESS);
    EXPECT_EQ(call_on("del_member", profile.name, "member", member), BF_SUCCESS);
    EXPECT_EQ(call_for_handle("get_act_prof_entry_count", profile, "count"), 0u);
    EXPECT_EQ(call_for_handle("get_selector_group_count", profile, "count"), 0u);
  }
};

TEST_F(ProfileRoundTrip, KeepsWhatTheWidthsKeep) {
  size_t actions = 0;
  for (const pdgen::Profile &profile : program().profiles) {
    for (const pdgen::ProfileAction &pair : profile.actions) {
      SCOPED_TRACE(profile.name + " " + pair.action->name);
      run(profile, pair);
      ++actions;
    }
  }
  EXPECT_EQ(actions, 8u);
}

}  // namespace
}  // namespace pd_test
