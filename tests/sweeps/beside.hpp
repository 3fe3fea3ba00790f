// A device beside the model: random calls of the library, and what else happens to a device, are
// made on both, and both must answer alike. A run is about a few tables of the program and what
// belongs to them. Its seed gives them, and keys and actions to choose from; step by step it gives
// the same calls, whichever steps were made before.
#pragma once

#include "model.hpp"
#include "read.hpp"
#include "texts.hpp"

namespace pd_test {

// Random numbers of which one is worth little: a step needs a few, and a generator of its own.
class Dice {
 public:
  explicit Dice(uint64_t seed) : state_(seed) {}
  uint32_t operator()() {
    uint64_t mixed = state_ += 0x9e3779b97f4a7c15;
    mixed = (mixed ^ mixed >> 30) * 0xbf58476d1ce4e5b9;
    mixed = (mixed ^ mixed >> 27) * 0x94d049bb133111eb;
    return static_cast<uint32_t>(mixed >> 32);
  }
  uint32_t below(uint32_t bound) { return (*this)() % bound; }
  bool one_in(uint32_t n) { return below(n) == 0; }
  template <class List>
  auto &of(List &list) {
    return list[below(static_cast<uint32_t>(list.size()))];
  }

 private:
  uint64_t state_;
};

class Beside {
 public:
  // trace: prints each call.
  Beside(uint64_t seed, bool trace);
  Beside(const Beside &) = delete;
  Beside &operator=(const Beside &) = delete;
  ~Beside();

  void step(uint32_t number);
  // What the device holds with what the model does.
  void compare();

 private:
  // What listeners hear.
  struct Update {
    uint32_t object, update, handle, member;
    bool operator==(const Update &) const = default;
  };
  // An action of a table, with a record for it.
  struct Deed {
    const pdgen::Pair *pair;
    Bytes record;
    ActionSpec images[pdgen::kOperationCount];
  };
  // What a run begins with, so that there is each once: an action of a table or of a profile, or
  // the scope of a table's entries.
  struct Turn {
    ModelTable *table;
    const Deed *deed;
    ModelProfile *profile;
    const pdgen::ProfileAction *member;
  };
  static constexpr size_t kTables = 5;

  void choose_tables();
  void choose_keys(const pdgen::Table &table);
  void choose_deeds(const pdgen::Table &table);
  void create(bf_device_id_t id, bool as_virtual);
  void listen(bf_device_id_t id);
  void take(const Turn &turn);

  // ---- Entries ----
  void add_entry();
  void change_entry();
  void add_to(ModelTable &table, const Deed *deed = nullptr);
  void remove_entry();
  void remove(ModelTable &table, ModelEntry *found, const ModelEntry &key, bool by_key);
  void find_entry();
  void change_default();
  void set_default(ModelTable &table, uint32_t pipe, const Deed *deed = nullptr);
  void change_property();
  void set_property(ModelTable &table, uint32_t property);

  // ---- Texts and placement data ----
  void examine_entry();
  void examine(ModelTable &table, uint32_t handle, const ModelEntry *entry);
  void examine_member(const ModelProfile &profile, uint32_t member);
  void expect_equals(ModelTable &table, uint32_t handle, const ModelEntry *entry,
                     const Placement &placed, const ModelEntry &of);

  // ---- Traffic, direct counters and meters, ageing ----
  void send_traffic();
  void change_counter();
  void change_meter();
  void switch_ageing();
  void change_age();
  void change_ttl(ModelTable &table, uint32_t entry);
  void advance_clock();

  // ---- Profiles ----
  void change_member();
  void add_member(ModelProfile &profile, const pdgen::ProfileAction &pair);
  Bytes member_record(const pdgen::ProfileAction &pair);
  void keep_member(ModelProfile &profile, uint32_t member, const pdgen::ProfileAction &pair,
                   const Bytes &record);
  void remove_member(ModelProfile &profile, uint32_t member);
  void change_group();
  void change_membership();
  void join(ModelProfile &profile, uint32_t group, uint32_t member);
  void set_state(const ModelProfile &profile, uint32_t group, uint32_t member, bool *active);
  void change_fallback();
  void change_limit();

  // ---- Counters, meters and registers with cells of their own ----
  void change_counter_cell();
  void change_meter_cell();
  void change_register();
  void read_register(const pdgen::Resource &reg, uint32_t index, uint32_t named);
  template <class Change>
  void each_cell(const pdgen::Resource &reg, uint32_t named, Change change);

  // ---- Value sets and hash calculations ----
  void change_value();
  p4_pd_status_t call_for(const ModelSet &set, std::string_view family, const ModelValue &value,
                          uint64_t entry);
  void change_known_value(ModelSet &set, ModelValue value);
  void match_value(const ModelSet &set, const ModelValue &value);
  void compare_values(const ModelSet &set, const p4_pd_parser_target_t &at);
  void change_seed();

  // Goes on with a copy of the device, or with one that its state was replayed to.
  void move();
  // Leaves no bits that texts do not show.
  static void cut_key(const pdgen::Table &table, uint8_t *record);
  // An image of the device makes another one that has the same image.
  void save_and_load();

  // ---- Calls ----
  // Of the device; what is given stands before that.
  uint64_t call(std::string_view family, std::string_view object, std::string_view action,
                Given given, uint32_t pipe = kAll);
  p4_pd_status_t status_of(std::string_view family, std::string_view object, Given given,
                           uint32_t pipe = kAll) {
    return static_cast<p4_pd_status_t>(call(family, object, "", std::move(given), pipe));
  }
  // What is no call of the library, for the trace.
  void note(const std::string &text) const;

  bool no_profile() const { return model.profiles.empty(); }
  ModelEntry random_key(const ModelTable &table);
  Bytes random_packet(const ModelTable &table);
  // Without a pair where the operation takes none of the table's, unless that is bound to a
  // profile.
  Wanted random_action(const ModelTable &table, pdgen::Operation operation,
                       const Deed *deed = nullptr);
  Wanted random_reference(const ModelTable &table);
  static bool is_sent(const pdgen::Pair &pair, pdgen::Operation operation) {
    return operation == pdgen::Operation::kDefault ? pair.as_default : pair.in_entries;
  }
  bool has_actions(const ModelTable &table, pdgen::Operation operation);
  // The call for it: family_add for an entry with an action of its own.
  static Given given(const Wanted &wanted);
  uint64_t call_for(const ModelTable &table, const Wanted &wanted, std::string_view direct,
                    std::string indirect, Given others, uint32_t pipe = kAll);
  // One that is there, or now and then one that is gone.
  uint32_t any_entry(const ModelTable &table);
  // The same, or a default entry.
  std::pair<uint32_t, ModelEntry *> any_of_all(ModelTable &table);
  template <class Held>
  uint32_t any_of(const std::map<uint32_t, Held> &held) {
    if (held.empty() || dice.one_in(20)) return dice.of(gone);
    return std::next(held.begin(), dice.below(static_cast<uint32_t>(held.size())))->first;
  }
  // A table that may have such a resource, or ages its entries; null without any.
  template <class Fits>
  ModelTable *any_table(Fits fits) {
    std::vector<ModelTable *> fitting;
    for (ModelTable &table : model.tables) {
      if (fits(table)) fitting.push_back(&table);
    }
    return fitting.empty() ? nullptr : dice.of(fitting);
  }

  void expect_update(p4_pd_status_t status, const Update &update);
  void learn_default(ModelTable &table, uint32_t pipe);
  void compare_tables();
  void compare_defaults(ModelTable &table, uint32_t pipe);
  void compare_entry(const ModelTable &table, const ModelEntry &entry);
  void compare_read(const ModelTable &table, const ModelEntry &entry, const Read &read);
  void compare_stateful(const ModelTable &table, const ModelEntry &entry);
  void compare_properties(const ModelTable &table);
  static void compare_member(const ModelMember &member, const Read &read);
  void compare_members(const ModelProfile &profile);
  void compare_groups(const ModelProfile &profile);
  void compare_group(const ModelProfile &profile, uint32_t group, const ModelGroup &held);
  void compare_slots(const ModelProfile &profile);
  void compare_register(const pdgen::Resource &reg);
  void compare_cells();
  static constexpr uint32_t kNone = 0xffffffff;  // behind the last handle
  // Every handle of a list, in steps of some length. what: "entry", "member", "group".
  Words walk(const std::string &object, const std::string &what, uint32_t pipe,
             const std::string &of = "", const Given &where = {});

  Random random;  // of the choice in the beginning
  const uint64_t seed;
  bool trace;
  Dice dice{0};  // of the step
  ModelDevice model;
  std::map<const pdgen::Table *, std::vector<Key>> keys;
  std::map<const pdgen::Table *, std::vector<Deed>> deeds;
  std::vector<Turn> turns;
  std::vector<const pdgen::Resource *> counters, meters, registers;  // with cells of their own
  bool shows_all;       // as images can say it: no bits beyond widths, no entries of pipes
  uint32_t first_cell;  // of three in registers that calls meet in, also across pages
  bf_device_id_t device = 20, other = 21;
  bool is_virtual = true;
  p4_pd_device_target_t target{};
  std::vector<Update> heard;
  int owner_heard = 0;                                 // of the selectors
  std::vector<std::pair<uint32_t, uint32_t>> expired;  // tables and entries
  Words gone{0, 0xfffffff};
  uint64_t allocations_before;
};

}  // namespace pd_test
