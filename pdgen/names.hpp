// Derived names: those of records and their members, of constants and data, and the names that
// tools show. Each formula stands here once; the names of functions stand in the families.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

// "p4_pd_<program>_", the beginning of every C name.
std::string name_prefix(const Program &program);

// <prefix><table>_<field>_width; a validity bit is named by its header.
std::string width_function(const Program &program, const Table &table, const KeyField &field);

// --- Records, enumerations and data ---------------------------------------------------------

std::string match_spec_type(const Program &program, const Table &table);
std::string action_spec_type(const Program &program, const Action &action);
std::string action_specs_type(const Program &program);  // tagged union of the action records
std::string action_names_type(const Program &program);  // the action enumeration
std::string action_constant(const Program &program, const Action &action);
std::string action_name_strings(const Program &program);   // array of the full action names
std::string hash_field_attr_type(const Program &program);  // record of the by-name attributes
std::string snapshot_trigger_type(const Program &program, const SnapshotLayout &layout);
std::string snapshot_capture_type(const Program &program);

// The tag of a struct or enumeration: its type name without the ending.
std::string type_tag(const std::string &type);
// P4_PD_<PROGRAM>_<family>, in capitals: "SCHEMA_MAX". All that the header declares:
std::string size_constant(const Program &program, std::string_view family);
inline constexpr std::string_view kSizeFamilies[] = {
    "ACTION_COUNT",     "ACTION_NAME_MAX", "SCHEMA_MAX", "MATCH_SPEC_VALUE_MAX",
    "ACTION_VALUE_MAX", "VALUE_MAX",       "LABEL_MAX"};

// Members of the records.
std::string param_member(const Param &param);              // action_<param>
std::string mask_member(std::string_view field);           // <field>_mask
std::string prefix_length_member(std::string_view field);  // <field>_prefix_length
std::string_view padding_member();                         // what fills a snapshot record up

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

std::string mask_cli_name(std::string_view cli_name);           // <name>Mask
std::string prefix_length_cli_name(std::string_view cli_name);  // <name>PrefixLength

// A part of a captured field that is too long for a layout: <field>_<number>, numbered from the
// most significant. No whole if the name is none of a part.
struct CapturedPart {
  const SnapshotField *whole = nullptr;
  unsigned number = 0;
};
CapturedPart captured_part(const Snapshots &snapshots, std::string_view name);

// --- All of them ----------------------------------------------------------------------------

// A C name of the program's header and the row that it is made from.
struct DerivedName {
  std::string name;
  std::string origin;  // "table fdb", for messages
  Place place;
};

// The types, enumeration constants and data of the header. Functions are listed by the emitters;
// check_exports (check.hpp) looks for clashes among all of them.
std::vector<DerivedName> declared_names(const Program &program);

}  // namespace pdgen
