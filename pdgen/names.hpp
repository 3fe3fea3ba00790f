// Every derived name: the C names that the library exports, the names of records and their members,
// and the names that tools show. Each formula stands here once; nothing else builds such a name.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

// "p4_pd_<program>_", the beginning of every C name.
std::string name_prefix(const Program &program);

// --- Functions ------------------------------------------------------------------------------
// `operation` is the part of the name that says what the function does.

// <prefix><operation>: "init", "cli_schema".
std::string program_function(const Program &program, std::string_view operation);

// <prefix><table>_<operation>: "get_entry", "table_delete".
std::string table_function(const Program &program, const Table &table, std::string_view operation);

// <prefix><table>_<operation><action><suffix>: "table_modify_with_" … "_by_match_spec".
std::string table_function(const Program &program, const Table &table, std::string_view operation,
                           const Action &action, std::string_view suffix = {});

// <prefix><table>_<field>_width; a validity bit is named by its header.
std::string width_function(const Program &program, const Table &table, const KeyField &field);

// <prefix><action>_<operation>: "schema", "action_specs_are_equal".
std::string action_function(const Program &program, const Action &action,
                            std::string_view operation);

// <prefix><profile>_<operation>, and <prefix><profile>_<operation><action>: "add_member_with_".
std::string profile_function(const Program &program, const Profile &profile,
                             std::string_view operation);
std::string profile_function(const Program &program, const Profile &profile,
                             std::string_view operation, const Action &action);

// <prefix>counter_<operation>_<counter>, and meter_ and register_ likewise.
std::string resource_function(const Program &program, const Resource &resource,
                              std::string_view operation);

// <prefix>hash_calc_<hash>_<operation>: "seed_set".
std::string hash_function(const Program &program, const Hash &hash, std::string_view operation);

// <prefix><hash>_<map>: "p4_field_enum", "cmn_field_enum".
std::string hash_map_function(const Program &program, const Hash &hash, std::string_view map);

// <prefix><digest>_<operation>: "notify_ack".
std::string digest_function(const Program &program, const Digest &digest,
                            std::string_view operation);

// <prefix>pvs_<set>_<operation>: "entry_add".
std::string value_set_function(const Program &program, const ValueSet &set,
                               std::string_view operation);

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
// P4_PD_<PROGRAM>_<family>, in capitals: "SCHEMA_MAX".
std::string size_constant(const Program &program, std::string_view family);
inline constexpr std::string_view kSizeFamilies[] = {"SCHEMA_MAX", "MATCH_SPEC_VALUE_MAX",
                                                     "ACTION_VALUE_MAX", "VALUE_MAX", "LABEL_MAX"};

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

std::string mask_cli_name(std::string_view cli_name);           // <name>Mask
std::string prefix_length_cli_name(std::string_view cli_name);  // <name>PrefixLength

// --- All of them ----------------------------------------------------------------------------

// A C name of the program's header and the row that it is made from.
struct DerivedName {
  std::string name;
  std::string origin;  // "table dmac", for messages
  Place place;
};

// The types, enumeration constants and data of the header. Functions are listed by the emitters;
// check_exports (check.hpp) looks for clashes among all of them.
std::vector<DerivedName> declared_names(const Program &program);

}  // namespace pdgen
