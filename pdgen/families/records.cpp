// The members of the public records as C text.
#include <fmt/format.h>

#include "pdgen/families/scope.hpp"
#include "pdgen/names.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

namespace {

std::string member(const std::string &name, unsigned storage, const std::string &remark) {
  if (storage == 16) return fmt::format("  uint8_t {}[16]; /* {} */", name, remark);
  return fmt::format("  uint{}_t {}; /* {} */", 8 * storage, name, remark);
}

std::string key_bits(const KeyField &field) {
  if (!field.partial) return "";
  if (!field.wide()) return fmt::format(", key bits {:#x}", field.key_bits);
  return fmt::format(", key bits 0x{:02x}", fmt::join(field.wide_key_bits, ""));
}

std::string param_remark(const Param &param) {
  std::string remark = bit_count(param.width);
  if (param.is_index()) {
    std::vector<std::string> names;
    for (const Ref<Resource> &resource : param.index_of) names.push_back(resource.name);
    remark += ", cell of " + join(names, " and ");
  }
  if (param.hint == Hint::kMac) remark += ", half of a MAC address";
  if (param.hint == Hint::kV4Addr) remark += ", IPv4 address";
  return remark;
}

void add_padding(std::vector<std::string> &members, const Snapshots &snapshots, unsigned used) {
  if (used == snapshots.record_bytes) return;
  members.push_back(
      fmt::format("  uint8_t {}[{}];", padding_member(), snapshots.record_bytes - used));
}

}  // namespace

std::string bit_count(unsigned width) {
  return fmt::format("{} bit{}", width, width == 1 ? "" : "s");
}

std::string match_spec_members(const Table &table) {
  std::vector<std::string> members;
  for (const RecordField &field : table.record) {
    const KeyField &key = table.key[field.key_index];
    std::string remark = bit_count(key.width) + key_bits(key);
    if (field.role == RecordRole::kMask) remark = "set bits take part";
    if (field.role == RecordRole::kPrefixLength) remark = fmt::format("0 to {}", key.width);
    members.push_back(member(field.name, field.storage_bytes, remark));
  }
  return join(members, "\n");
}

std::string action_spec_members(const Action &action) {
  std::vector<std::string> members;
  for (const Param &param : action.params) {
    members.push_back(member(param_member(param), param.storage_bytes, param_remark(param)));
  }
  return join(members, "\n");
}

std::string trigger_members(const Snapshots &snapshots, const SnapshotLayout &layout) {
  std::vector<std::string> members;
  for (const SnapshotField &field : layout.fields) {
    members.push_back(fmt::format("  uint{}_t {};", 8 * field.bytes, field.name));
  }
  add_padding(members, snapshots, layout.used_bytes);
  return join(members, "\n");
}

std::string capture_members(const Snapshots &snapshots) {
  std::vector<std::string> members;
  unsigned used = 0;
  for (const SnapshotField &field : snapshots.capture) {
    members.push_back(field.bytes == 1 ? fmt::format("  uint8_t {};", field.name)
                                       : fmt::format("  uint8_t {}[{}];", field.name, field.bytes));
    used += field.bytes;
  }
  add_padding(members, snapshots, used);
  return join(members, "\n");
}

}  // namespace pdgen
