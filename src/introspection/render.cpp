#include "render.hpp"

#include "placement.hpp"

namespace pd {

namespace {

// Placement data of an entry, decoded.
struct PlacedEntry {
  alignas(4) uint8_t match_spec[limits::match_spec];
  alignas(4) uint8_t action_specs[action_specs_union_offset + limits::action_spec];
  EntryFacts facts;

  p4_pd_status_t decode(const Table &table, const pipe_mgr_placement_t *placement) {
    if (table.profile >= 0) {
      return decode_placed_indirect_entry(table, placement,
                                          {.match_spec = match_spec,
                                           .priority = &facts.priority,
                                           .has_member = &facts.has_member,
                                           .has_group = &facts.has_group,
                                           .group = &facts.group,
                                           .member = &facts.member,
                                           .no_key = &facts.no_key});
    }
    const p4_pd_status_t status = decode_placed_entry(table, placement,
                                                      {.match_spec = match_spec,
                                                       .priority = &facts.priority,
                                                       .action_specs = action_specs,
                                                       .no_key = &facts.no_key});
    if (status == BF_SUCCESS) facts.action = load<4>(action_specs);
    return status;
  }

  const uint8_t *action_spec() const { return action_specs + action_specs_union_offset; }
};

// The decoders let no action pass that the table or profile does not have.
const RecordText *find_action_text(const Pair *pairs, unsigned count, const RecordText *texts,
                                   uint32_t action) {
  for (unsigned i = 0; i < count; ++i) {
    if (pairs[i].action->value == action) return texts + i;
  }
  return nullptr;
}

int print_record_text(int descriptor, int indent, const RecordText &text, const void *record) {
  if (text.lines == nullptr) return 0;
  return print_record(descriptor, indent, {text.lines, text.has_header}, text.members, text.count,
                      record);
}

void print_action(int descriptor, int indent, const RecordText &text, uint32_t action,
                  const void *action_spec) {
  print_text_line(descriptor, indent, program.action_names[action], ":");
  print_record_text(descriptor, indent, text, action_spec);
}

int print_failure(int descriptor, const char *name, const char *tail, p4_pd_status_t status) {
  print_text_line(descriptor, 0, "cannot decode plcmt_data for ", name, tail);
  return static_cast<int>(status);
}

bool actions_are_equal(const RenderedTable &table, const PlacedEntry &placed,
                       const EntryFacts &held, const void *held_action_spec) {
  if (placed.facts.action != held.action) return false;
  const RecordText *text =
      find_action_text(table.table->pairs, table.table->pair_count, table.actions, held.action);
  if (text == nullptr) return false;
  return text->count == 0 || members_are_equal(text->members, text->count, text->wide_masks,
                                               placed.action_spec(), held_action_spec);
}

bool pointees_are_equal(const EntryFacts &placed, const EntryFacts &held) {
  if (placed.has_member) return held.has_member && held.member == placed.member;
  if (placed.has_group) return held.has_group && held.group == placed.group;
  return !held.has_member && !held.has_group;
}

bool keys_are_equal(const RenderedTable &table, const PlacedEntry &placed, const EntryFacts &held,
                    const void *held_match_spec) {
  if (table.table->kind == Kind::keyless) return true;
  if (placed.facts.no_key || held.no_key) return placed.facts.no_key == held.no_key;
  return members_are_equal(table.key.members, table.key.count, table.key.wide_masks,
                           placed.match_spec, held_match_spec);
}

}  // namespace

int print_placement(const RenderedTable &table, int descriptor, int indent,
                    const pipe_mgr_placement_t *placement) {
  PlacedEntry placed;
  const p4_pd_status_t status = placed.decode(*table.table, placement);
  if (status != BF_SUCCESS) return print_failure(descriptor, table.full_name, "", status);
  if (table.table->kind == Kind::keyless) {
    print_text_line(descriptor, indent, table.full_name, ":");
  } else if (!placed.facts.no_key) {
    print_record_text(descriptor, indent, table.key, placed.match_spec);
  }
  if (table.table->profile >= 0) return 0;
  const RecordText *text = find_action_text(table.table->pairs, table.table->pair_count,
                                            table.actions, placed.facts.action);
  if (text != nullptr) {
    print_action(descriptor, indent, *text, placed.facts.action, placed.action_spec());
  }
  return 0;
}

int print_member_placement(const RenderedProfile &profile, int descriptor, int indent,
                           const pipe_mgr_placement_t *placement) {
  PlacedEntry placed;
  const p4_pd_status_t status =
      decode_placed_member(*profile.profile, placement, placed.action_specs);
  if (status != BF_SUCCESS) {
    return print_failure(descriptor, profile.full_name, "_adt_plcmt_data_print", status);
  }
  const uint32_t action = load<4>(placed.action_specs);
  const RecordText *text = find_action_text(profile.profile->pairs, profile.profile->pair_count,
                                            profile.actions, action);
  if (text != nullptr) print_action(descriptor, indent, *text, action, placed.action_spec());
  return 0;
}

int placement_value(const RenderedTable &table, const pipe_mgr_placement_t *placement,
                    char *buffer) {
  if (buffer == nullptr) return 0;
  PlacedEntry placed;
  if (placed.decode(*table.table, placement) != BF_SUCCESS) return 0;
  const bool indirect = table.table->profile >= 0;
  const RecordText *text = find_action_text(table.table->pairs, table.table->pair_count,
                                            table.actions, placed.facts.action);
  if (!indirect && text == nullptr) return 0;
  char *out = put_text(buffer, "(");
  out = placed.facts.no_key ? put_text(out, "(),") : table.key.value(placed.match_spec, out);
  out = indirect ? put_pointee(placed.facts, out) : text->value(placed.action_spec(), out);
  return finish_text(buffer, put_text(out, ")"));
}

int member_placement_value(const RenderedProfile &profile, const pipe_mgr_placement_t *placement,
                           char *buffer) {
  if (buffer == nullptr) return 0;
  PlacedEntry placed;
  if (decode_placed_member(*profile.profile, placement, placed.action_specs) != BF_SUCCESS) {
    return 0;
  }
  const RecordText *text = find_action_text(profile.profile->pairs, profile.profile->pair_count,
                                            profile.actions, load<4>(placed.action_specs));
  if (text == nullptr) return 0;
  return finish_text(buffer, text->value(placed.action_spec(), buffer));
}

int placement_equals_hardware(const RenderedTable &table, p4_pd_session_handle_t session,
                              uint8_t device, uint32_t, p4_pd_entry_handle_t entry,
                              const pipe_mgr_placement_t *placement) {
  PlacedEntry placed;
  if (placed.decode(*table.table, placement) != BF_SUCCESS) return 0;
  alignas(4) uint8_t match_spec[limits::match_spec];
  alignas(4) uint8_t action_spec[limits::action_spec];
  EntryFacts held;
  if (read_entry(*table.table, {session, device, entry, true}, match_spec, action_spec, held) !=
      BF_SUCCESS) {
    return 0;
  }
  if (!keys_are_equal(table, placed, held, match_spec)) return 0;
  if (table.table->profile >= 0) return pointees_are_equal(placed.facts, held);
  return actions_are_equal(table, placed, held, action_spec);
}

}  // namespace pd
