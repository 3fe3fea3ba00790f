#include "read_entry.hpp"

namespace pd {

p4_pd_status_t read_entry(const Table &table, const EntryAddress &address, void *match_spec,
                          void *action_spec, EntryFacts &facts) {
  if (table.profile >= 0) {
    return get_indirect_entry(table, address.session, address.device, address.entry,
                              address.read_from_hardware,
                              {.match_spec = match_spec,
                               .priority = &facts.priority,
                               .has_member = &facts.has_member,
                               .has_group = &facts.has_group,
                               .group = &facts.group,
                               .member = &facts.member,
                               .no_key = &facts.no_key});
  }
  return get_entry(table, address.session, address.device, address.entry,
                   address.read_from_hardware,
                   {.match_spec = match_spec,
                    .priority = &facts.priority,
                    .action_spec = action_spec,
                    .action = &facts.action,
                    .no_key = &facts.no_key});
}

}  // namespace pd
