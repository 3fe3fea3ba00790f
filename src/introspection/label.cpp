#include "label.hpp"

#include "address.hpp"
#include "by_handle.hpp"
#include "text_out.hpp"

namespace pd {

namespace {

uint32_t value_of(const LabelField &field, const uint8_t *record) {
  return load(record + field.value, field.storage) & field.key_bits;
}

// As the entry holds it, bits beyond the key's included.
uint32_t mask_of(const LabelField &field, const uint8_t *record) {
  return load(record + field.mask, field.storage);
}

char *put_flag(const LabelItem &item, const uint8_t *record, char *out) {
  if ((mask_of(item.field, record) & item.bits) == 0) return out;
  const bool set = (value_of(item.field, record) & item.bits) != 0;
  return put_text(out, item.text + (set ? 1 : 0));
}

char *put_plain(const LabelItem &item, uint32_t value, char *out) {
  return put_text(put_hex(put_text(out, item.text), value, item.digits), " ");
}

char *put_number(const LabelItem &item, const uint8_t *record, char *out) {
  const uint32_t mask = mask_of(item.field, record);
  const uint32_t value = value_of(item.field, record);
  if (mask == 0) return out;
  for (unsigned i = 0; i < item.text_count && (mask & item.bits) != 0; ++i) {
    if ((value & mask) == item.texts[i].value) return put_text(out, item.texts[i].text);
  }
  if (mask == item.field.key_bits) return put_plain(item, value, out);
  out = put_text(put_hex(put_text(out, item.masked), mask), " 0x");
  return put_text(put_hex(out, value, item.digits), " ");
}

char *put_item(const LabelItem &item, const uint8_t *record, char *out) {
  const LabelField &field = item.field;
  switch (item.kind) {
    case LabelKind::flag:
      return put_flag(item, record, out);
    case LabelKind::number:
      return put_number(item, record, out);
    case LabelKind::exact:
      return put_plain(item, value_of(field, record), out);
    case LabelKind::mac:
      return out + print_mac_ternary(out, item.text, value_of(field, record),
                                     mask_of(field, record), value_of(item.lower, record),
                                     mask_of(item.lower, record));
    case LabelKind::v4addr:
      return out +
             print_v4addr_ternary(out, item.text, value_of(field, record), mask_of(field, record));
    case LabelKind::v6addr:
      return out + print_v6addr_ternary(out, item.text, record + field.value, record + field.mask);
  }
  return out;
}

}  // namespace

int write_label(const LabelItem *items, unsigned count, const void *match_spec, char *buffer) {
  if (match_spec == nullptr || buffer == nullptr) return 0;
  char *out = buffer;
  for (unsigned i = 0; i < count; ++i) {
    out = put_item(items[i], static_cast<const uint8_t *>(match_spec), out);
  }
  return finish_text(buffer, out);
}

int write_entry_label(const Table &table, const LabelItem *items, unsigned count,
                      const EntryAddress &address, void *match_spec, void *action_spec,
                      char *buffer) {
  if (buffer == nullptr) return 0;
  EntryFacts facts;
  if (read_entry(table, address, match_spec, action_spec, facts) != BF_SUCCESS) return 0;
  return write_label(items, facts.no_key ? 0 : count, match_spec, buffer);
}

int write_label_of(const HandleLabel *rows, size_t count, p4_pd_session_handle_t session,
                   uint8_t device, uint32_t table, p4_pd_entry_handle_t entry, char *buffer) {
  const HandleLabel *row = find_by_handle(rows, count, table);
  return row == nullptr ? 0 : row->write(session, device, entry, buffer);
}

}  // namespace pd
