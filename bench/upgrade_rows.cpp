// A switch that is upgraded without loss: a virtual device with a million routes, ten thousand
// members and five hundred groups is replayed onto a new one, which is then verified.
#include <cjson/cJSON.h>

#include <memory>

#include "device_rows.hpp"
#include "p4_pd_tessel_switch.h"
#include "soft_device.hpp"
#include "tesselctl/state/verify.hpp"

namespace bench {

namespace {

constexpr uint32_t routes = 1'000'000;
constexpr uint32_t members = 10'000;
constexpr uint32_t groups = 500;
// Each member is in one group.
constexpr uint64_t items = routes + 2 * members + groups;

// The virtual device, and the one that takes over.
struct Upgrade {
  tesselctl::Device from{{.id = 200, .is_virtual = true}};
  tesselctl::Device to{{.id = 201}};
  std::vector<p4_pd_entry_handle_t> entries;

  void add_routes();
  void fill_profile() const;
  void replay() const {
    expect(p4_pd_tessel_switch_restore_virtual_dev_state(to.session(), to.id(), from.id(), 0xffff,
                                                         0) == 0,
           "replay");
  }
  void verify() const;
  void read_back() const;
  void write_texts() const;
  void save() const;
};

void Upgrade::add_routes() {
  entries.resize(routes);
  for (uint32_t i = 0; i < routes; ++i) {
    const p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match = {1, i << 8, 24};
    const p4_pd_tessel_switch_setNextHop_action_spec_t action = {i & 0x3fff};
    expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_table_add_with_setNextHop(
               from.session(), from.target(), &match, &action, 0, &entries[i]) == 0,
           "add a route");
  }
}

void Upgrade::fill_profile() const {
  std::vector<p4_pd_member_handle_t> handles(members);
  for (uint32_t i = 0; i < members; ++i) {
    const p4_pd_tessel_switch_setEcmpNextHop_action_spec_t action = {i};
    expect(p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_with_setEcmpNextHop(
               from.session(), from.target(), &action, &handles[i]) == 0,
           "add a member");
  }
  for (uint32_t g = 0; g < groups; ++g) {
    p4_pd_group_handle_t group = 0;
    expect(p4_pd_tessel_switch_ecmpMemberActionProfile_create_group(from.session(), from.target(),
                                                                    0, &group) == 0,
           "create a group");
    for (uint32_t i = g; i < members; i += groups) {
      expect(p4_pd_tessel_switch_ecmpMemberActionProfile_add_member_to_group(
                 from.session(), static_cast<uint8_t>(from.id()), group, handles[i]) == 0,
             "add a member to a group");
    }
  }
}

void Upgrade::verify() const {
  const tesselctl::VerifyCounts counts =
      tesselctl::verify(from, to, [](const tesselctl::Finding &) {});
  expect(counts.entries == routes && counts.members == members && counts.groups == groups &&
             counts.memberships == members && counts.differences == 0,
         "verify");
}

void Upgrade::read_back() const {
  for (const p4_pd_entry_handle_t entry : entries) {
    p4_pd_tessel_switch_ipv4ShortMaskLpm_match_spec_t match;
    p4_pd_tessel_switch_setNextHop_action_spec_t action;
    uint32_t value = 0;
    bool no_key = true;
    expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_get_entry(
               from.session(), static_cast<uint8_t>(from.id()), entry, false, &match, nullptr,
               &action, &value, &no_key) == 0,
           "read back");
  }
}

void Upgrade::write_texts() const {
  char buffer[P4_PD_TESSEL_SWITCH_VALUE_MAX];
  for (const p4_pd_entry_handle_t entry : entries) {
    expect(p4_pd_tessel_switch_ipv4ShortMaskLpm_value(
               from.session(), static_cast<uint8_t>(from.id()), entry, false, buffer) != 0,
           "write a text");
  }
}

// The state of the library's profiles, as a host keeps it over a restart.
void Upgrade::save() const {
  cJSON *document = cJSON_CreateObject();
  expect(soft_device_log(from.id(), document) == 0, "log");
  cJSON_Delete(document);
}

enum Stage { empty, full, replayed };

// Something that is done once to an upgrade that has come so far.
Side doing(const char *name, uint64_t operations, Stage stage,
           std::function<void(Upgrade &)> work) {
  return {name,
          [stage, work = std::move(work)] {
            auto upgrade = std::make_shared<Upgrade>();
            if (stage >= full) upgrade->add_routes(), upgrade->fill_profile();
            if (stage >= replayed) upgrade->replay();
            return [upgrade, work](uint64_t) { work(*upgrade); };
          },
          operations};
}

}  // namespace

std::vector<Row> upgrade_rows() {
  const Side adding = doing("adding it", items, empty, [](Upgrade &upgrade) {
    upgrade.add_routes();
    upgrade.fill_profile();
  });
  return {
      {"upgrade",
       "a million routes, 10,000 members in 500 groups",
       doing("replay of a virtual device", items, full, std::mem_fn(&Upgrade::replay)),
       {adding}},
      {"upgrade",
       "the same",
       doing("verify", items, replayed, std::mem_fn(&Upgrade::verify)),
       {adding}},
      {"upgrade",
       "the state of 10,000 members",
       doing("log", members, full, std::mem_fn(&Upgrade::save)),
       {doing("adding them", members, empty, std::mem_fn(&Upgrade::fill_profile))}},
      {"upgrade",
       "a million routes by handle",
       doing("text", routes, full, std::mem_fn(&Upgrade::write_texts)),
       {doing("record", routes, full, std::mem_fn(&Upgrade::read_back))}},
  };
}

}  // namespace bench
