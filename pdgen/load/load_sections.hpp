// The steps of loading. Each reader turns one file into rows of the program and reports what is
// wrong within a row; references are still names. Then resolve_references ties the rows together,
// check_program (check.hpp) looks at rules between rows, and derive_facts fills in what follows.
#pragma once

#include "pdgen/check/diagnostics.hpp"
#include "pdgen/load/load_row.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// What the readers share.
struct LoadContext {
  Program &program;
  Diagnostics &diagnostics;
  HandleScope handles;
};

void read_program(RowReader &file, LoadContext &context);
void read_actions(RowReader &file, LoadContext &context);
void read_tables(RowReader &file, LoadContext &context);
void read_profiles(RowReader &file, LoadContext &context);
void read_stateful(RowReader &file, LoadContext &context);
void read_hashes(RowReader &file, LoadContext &context);
void read_digests(RowReader &file, LoadContext &context);
void read_value_sets(RowReader &file, LoadContext &context);
void read_fields(RowReader &file, LoadContext &context);
void read_labels(RowReader &file, LoadContext &context);
void read_snapshots(RowReader &file, LoadContext &context);

// Bytes of the record field and of the slot in key or action data. `storage` is the optional key of
// that name; a width of 0 is one that could not be read.
unsigned read_storage_bytes(RowReader &row, unsigned width);
inline unsigned whole_bytes(unsigned bits) { return (bits + 7) / 8; }

// The target of each reference; a name without a row is a fault. Fields, parameters and resource
// items of pairs come out of this step too.
void resolve_references(Program &program, Diagnostics &diagnostics);

// The records of the program as tools see them: members by their places, and the fields that people
// name, with their names, notations and the MAC addresses that two of them are halves of.
std::vector<ToolRecords> tool_records(const Program &program);

// Positions, sizes, key order, records and tool names. The program has no fault.
void derive_facts(Program &program);

}  // namespace pdgen
