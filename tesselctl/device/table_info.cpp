#include "tesselctl/device/table_info.hpp"

#include <fmt/format.h>

#include <algorithm>
#include <stdexcept>

#include "tesselctl/program/value.hpp"

namespace tesselctl {

const std::vector<TableInfo> &all_tables() {
  static const std::vector<TableInfo> all = [] {
    std::vector<TableInfo> found;
    for (const bindings::Record &record : tables()) {
      found.push_back({&record, find_object<soft_table_t>(record.name)});
    }
    return found;
  }();
  return all;
}

TableInfo resolve_table(Word word) {
  static const NameIndex<bindings::Record> by_name(tables());
  return all_tables()[static_cast<size_t>(&by_name.resolve(word, "table") - tables().data())];
}

const soft_profile_t *TableInfo::profile() const {
  if (!indirect()) return nullptr;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (profile.action_data_table == description->action_data_table) return &profile;
  }
  return nullptr;
}

std::vector<uint8_t> packet_key(const TableInfo &table, const uint8_t *record) {
  const soft_table_t &description = *table.description;
  std::vector<uint8_t> key(description.key_bytes);
  for (const soft_key_field_t &place : std::span(description.fields, description.field_count)) {
    const Field &field = find_field(*table.record, {place.name, 0}, table.name());
    const auto bytes = to_bytes(load_value(field, record).value);
    std::copy(bytes.end() - place.bytes, bytes.end(), key.begin() + place.offset);
  }
  return key;
}

TableInfo table_of_handle(uint32_t handle) {
  for (const TableInfo &table : all_tables()) {
    if (table.record->number == handle) return table;
  }
  throw std::logic_error("the program has no table of this handle");
}

const char *match_name(const TableInfo &table) {
  return table.keyed() ? match_name(match_of(*table.record)) : "keyless";
}

std::string key_text(const TableInfo &table, std::string_view separator, size_t most) {
  const std::span<const Field> fields = table.record->shown();
  std::string text;
  for (size_t i = 0; i < fields.size(); ++i) {
    if (i > 0) text += separator;
    if (i == most && fields.size() > most + 1) {
      return text + fmt::format("+{}", fields.size() - most);
    }
    text += fields[i].label;
    if (fields[i].match != Match::exact) text += fields[i].match == Match::lpm ? "/lpm" : "/mask";
  }
  return text;
}

}  // namespace tesselctl
