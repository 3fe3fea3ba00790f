#include "value.hpp"

namespace pd {

namespace {

// Null for an action that the table does not have.
ValueWriter find_writer(const EntryTexts &texts, uint32_t action) {
  for (unsigned i = 0; i < texts.table->pair_count; ++i) {
    if (texts.table->pairs[i].action->value == action) return texts.actions[i];
  }
  return nullptr;
}

}  // namespace

char *put_pointee(const EntryFacts &facts, char *out) {
  if (!facts.has_member && !facts.has_group) return out;
  out = put_text(out, facts.has_member ? "('setMbrHdl',(0x" : "('setGrpHdl',(0x");
  return put_text(put_hex(out, facts.has_member ? facts.member : facts.group), ",))");
}

int write_entry_value(const EntryTexts &texts, const EntryAddress &address, void *match_spec,
                      void *action_spec, char *buffer) {
  if (buffer == nullptr) return 0;
  EntryFacts facts;
  if (read_entry(*texts.table, address, match_spec, action_spec, facts) != BF_SUCCESS) return 0;
  const bool indirect = texts.table->profile >= 0;
  const ValueWriter action = indirect ? nullptr : find_writer(texts, facts.action);
  if (!indirect && action == nullptr) return 0;

  char *out = put_text(buffer, "((");
  out = facts.no_key ? put_text(out, "(),") : texts.key(match_spec, out);
  out = indirect ? put_pointee(facts, out) : action(action_spec, out);
  out = put_text(out, "),(");
  out = put_signed_decimal(out, facts.priority);
  return finish_text(buffer, put_text(out, ",True))"));
}

}  // namespace pd
