// The exports of a program by family, object and action.
#pragma once

#include <functional>
#include <string_view>
#include <vector>

#include "bindings/export_table.hpp"

namespace tesselctl {

// Open addressing at half load.
class ExportIndex {
 public:
  explicit ExportIndex(const bindings::Binding &binding) {
    size_t count = 0;
    for (size_t i = 0; i < binding.list_count; ++i) count += binding.lists[i]->count;
    size_t size = 64;
    while (size < 2 * count) size *= 2;
    slots_.resize(size);
    for (size_t i = 0; i < binding.list_count; ++i) {
      const bindings::ExportList &list = *binding.lists[i];
      for (size_t j = 0; j < list.count; ++j) insert(list.rows[j]);
    }
  }

  const bindings::Export *find(std::string_view family, std::string_view object,
                               std::string_view action) const {
    for (size_t at = hash(family, object, action);; ++at) {
      const bindings::Export *row = slots_[at & (slots_.size() - 1)];
      if (row == nullptr) return nullptr;
      if (family == row->family && object == row->object && action == row->action) return row;
    }
  }

 private:
  static size_t hash(std::string_view family, std::string_view object, std::string_view action) {
    const std::hash<std::string_view> of;
    return of(family) * 31 + of(object) * 7 + of(action);
  }
  void insert(const bindings::Export &row) {
    size_t at = hash(row.family, row.object, row.action);
    while (slots_[at & (slots_.size() - 1)] != nullptr) ++at;
    slots_[at & (slots_.size() - 1)] = &row;
  }

  std::vector<const bindings::Export *> slots_;
};

}  // namespace tesselctl
