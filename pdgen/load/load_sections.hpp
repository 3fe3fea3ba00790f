// The steps of loading. Each reader turns one file into rows of the program, reports what is wrong
// within a row and asks for the rows that it refers to. When all are read, references find their
// targets, check_program (check.hpp) looks at rules between rows, and derive_facts fills in what
// follows.
#pragma once

#include "pdgen/load/load_row.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

void read_program(RowReader &file);
void read_actions(RowReader &file);
void read_tables(RowReader &file);
void read_profiles(RowReader &file);
void read_stateful(RowReader &file);
void read_hashes(RowReader &file);
void read_digests(RowReader &file);
void read_value_sets(RowReader &file);
void read_fields(RowReader &file);
void read_labels(RowReader &file);
void read_snapshots(RowReader &file);

// The width of a field or parameter has been read: the bytes of its record field, with the optional
// key "storage", and of its slot in key or action data. A width of 0 is one that could not be read.
void read_sizes(RowReader &row, unsigned width, unsigned &storage_bytes, unsigned &bytes);

// The records of the program as tools see them: members by their places, and the fields that people
// name, with their names, notations and the MAC addresses that two of them are halves of.
std::vector<ToolRecords> tool_records(const Program &program);

// Positions, sizes, key order, records and tool names. The program has no fault.
void derive_facts(Program &program);

}  // namespace pdgen
