#include "tesselctl/explain/walk.hpp"

#include "soft_sdk.h"

namespace tesselctl {

std::string_view Visited::action() const {
  if (!of_member.empty()) return of_member;
  if (item.value.empty() || head_of(item.value).outcome != EntryHead::kAction) return {};
  return item.value;
}

namespace {

void follow_outcome(const Device &device, const Stop &stop, uint32_t hash, Visited &visit) {
  const EntryHead head = head_of(visit.item.value);
  const soft_profile_t *profile = stop.table.profile();
  if (profile == nullptr || head.outcome == EntryHead::kNothing) return;
  if (head.outcome == EntryHead::kMember) {
    visit.member = head.number;
  } else {
    const uint64_t status = choose_member(device, profile->name, head.number, hash, visit.member);
    if (status == BF_OBJECT_NOT_FOUND) return;
    check(status, stop.word);
  }
  check(MemberReader(device, profile->name).read(visit.member, visit.of_member), stop.word);
}

void look_up(const Device &device, const Stop &stop, const Packet &packet, Visited &visit) {
  const std::vector<uint8_t> key = packet_key(stop.table, visit.key.data());
  bool is_default = false;
  const bf_status_t status = soft_lookup(
      device.id(), packet.pipe, stop.table.record->number, key.empty() ? nullptr : key.data(),
      static_cast<uint32_t>(key.size()), &visit.entry, &is_default);
  visit.found = Found::nothing;
  if (status == BF_TABLE_MISS) return;
  check(status, stop.word);
  visit.found = is_default ? Found::by_default : Found::hit;
  EntryReader reader(device, stop.table, EntryReader::Resources::settings);
  check(reader.read(visit.entry, visit.item), stop.word);
  follow_outcome(device, stop, packet.hash, visit);
}

}  // namespace

std::vector<Visited> walk(const Device &device, const Path &path, const Packet &packet) {
  std::vector<Visited> visits;
  for (size_t i = 0; i < path.stops().size(); ++i) {
    Visited visit = {.key = PathKey(path.stops()[i].table)};
    path.give(visit.key, i);
    for (size_t from = 0; from < i; ++from) {
      const std::string_view action = visits[from].action();
      if (action.empty()) continue;
      const bindings::Record &record = action_of_number(head_of(action).number);
      path.hand_on(record, parameters_of(action), from, visit.key, i);
    }
    if (visit.key.unknown_fields(false).empty()) look_up(device, path.stops()[i], packet, visit);
    visits.push_back(std::move(visit));
  }
  return visits;
}

}  // namespace tesselctl
