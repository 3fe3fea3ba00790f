// Labels of counted entries: short words that say which traffic an entry counts, made of the items
// that the catalogue lists for its table.
#pragma once

#include "read_entry.hpp"
#include "shapes.hpp"

namespace pd {

// Writes the label with its NUL and returns its length; 0 and nothing written for a null pointer.
int write_label(const LabelItem *items, unsigned count, const void *match_spec, char *buffer);

// The label of the entry that was read; an entry without a key has an empty one. 0 and nothing
// written when the read-back fails.
int write_entry_label(const Table &table, const LabelItem *items, unsigned count,
                      const EntryAddress &address, void *match_spec, void *action_spec,
                      char *buffer);

// L is the label of a table.
template <class L>
int entry_label(p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
                char *buffer) {
  using T = typename L::Text;
  EntryRecords<T> records;
  return write_entry_label(T::Layout::table, L::items, L::count, {session, device, entry, true},
                           records.match_spec, records.action_spec, buffer);
}

// A table whose entries have labels.
struct HandleLabel {
  uint32_t handle;
  int (*write)(p4_pd_session_handle_t session, uint8_t device, p4_pd_entry_handle_t entry,
               char *buffer);
};

// Rows ascend by handle. 0 and nothing written for a handle that none has.
int write_label_of(const HandleLabel *rows, size_t count, p4_pd_session_handle_t session,
                   uint8_t device, uint32_t table, p4_pd_entry_handle_t entry, char *buffer);

}  // namespace pd
