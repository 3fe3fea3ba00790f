// The outputs of the generator: one function each, from the program and its interface to the text
// of a file. Nothing here decides what a function does; that is stated in the families.
#pragma once

#include <filesystem>
#include <string>

#include "pdgen/families/api.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

// Checked in: the public header, the list of exported names, and all handles with their objects.
std::string emit_header(const Api &api);
std::string emit_exports(const Api &api);
std::string emit_handles(const Program &program);

// Built: the program record. What is a row for each object alone is an output of the families.
std::string emit_program_data(const Api &api);
// How large records, keys and action data get, for the buffers of the core.
std::string emit_limits(const Program &program);
// What callers address by name, for the functions that look it up.
std::string emit_object_names(const Program &program);
// One unit of wrappers.
std::string emit_wrappers(const Api &api, const Unit &unit);
// Linker version script: the exports, and nothing else, are visible.
std::string emit_version_script(const Api &api, unsigned soname_version);
// A C file that holds sizes and offsets of every public record to what the rules of C give.
std::string emit_layout_test(const Program &program);
// What introspection works from: members of records, texts, schemas and labels.
std::string emit_records(const Program &program);
std::string emit_texts(const Program &program);
std::string emit_schemas(const Program &program);
std::string emit_labels(const Program &program);
// Every export and record by name, for tools and tests that work through data.
std::string emit_export_table(const Api &api, const Unit &unit);
std::string emit_export_index(const Api &api);

// The public header's file name.
inline std::string header_name(const Program &program) { return "p4_pd_" + program.name + ".h"; }

// "Made by pdgen from the catalogue of ..., do not edit", as a comment in the given style.
std::string origin(const Program &program, const std::string &line_prefix);

// The C declaration of a function, without its semicolon.
std::string declaration(const Function &function);

}  // namespace pdgen
