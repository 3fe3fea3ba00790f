// Derived names: those of records and their members, and the names that tools show. All other names
// stand in the families and outputs.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

// "p4_pd_<program>_", the beginning of every C name.
std::string name_prefix(const Program &program);

// The types of records.
std::string match_spec_type(const Program &program, const Table &table);
std::string action_spec_type(const Program &program, const Action &action);

// Members of records.
std::string param_member(const Param &param);             // action_<param>
std::string companion_member(const KeyField &field);      // <field>_mask, <field>_prefix_length
inline constexpr std::string_view kPadding = "reserved";  // what fills a snapshot record up

// --- Names that tools show ------------------------------------------------------------------

// <header> of a validity bit <header>_valid (an element of a header stack keeps its index:
// "vlan_0_" of "vlan_0__valid"); empty if `field` is not so named.
std::string validity_header(std::string_view field);

// The tool name of each field of one table's key, in the order of `key`. A validity bit is
// <header>Valid. Any other field drops its instance (one of `instance_prefixes`, else what stands
// up to the first '_', with the index of a stack element) and joins the other words in camelCase;
// fields that come to the same name take all their words.
std::vector<std::string> cli_names(const std::vector<KeyField> &key,
                                   const std::vector<std::string> &instance_prefixes);

// Of any record's member by its own name: short, and with all its words for where others of its
// record have the same short one.
std::string short_name(std::string_view member, const std::vector<std::string> &instance_prefixes);
std::string long_name(std::string_view member);

// The hint that a field has by its name or width, null if there is none.
const FieldHint *hint_of(std::string_view field, unsigned width, const FieldFacts &facts);

// A part of a captured field that is too long for a layout: <field>_<number>, numbered from the
// most significant. No whole if the name is none of a part.
struct CapturedPart {
  const PacketField *whole = nullptr;
  unsigned number = 0;
};
CapturedPart captured_part(const Snapshots &snapshots, std::string_view name);

}  // namespace pdgen
