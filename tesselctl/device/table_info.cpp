#include "tesselctl/device/table_info.hpp"

#include <fmt/format.h>

#include <stdexcept>

namespace tesselctl {

TableInfo resolve_table(Word word) {
  const bindings::Record &record = resolve(word, tables(), "table");
  for (const soft_table_t &description : program_rows<soft_table_t>()) {
    if (description.handle == record.number) return {&record, &description};
  }
  throw Fault(word, "the device knows no such table");
}

const soft_profile_t *TableInfo::profile() const {
  if (!indirect()) return nullptr;
  for (const soft_profile_t &profile : program_rows<soft_profile_t>()) {
    if (profile.action_data_table == description->action_data_table) return &profile;
  }
  return nullptr;
}

TableInfo table_of_handle(uint32_t handle) {
  for (const bindings::Record &record : tables()) {
    if (record.number == handle) return resolve_table({record.name, 0});
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
