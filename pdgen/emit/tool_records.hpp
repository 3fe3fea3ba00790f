// Records as tools see them: members by their places, and the fields that people name, with their
// names, notations and the MAC addresses that two of them are halves of.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

struct ToolMember {
  std::string name;
  RecordRole role = RecordRole::kValue;
  std::string offset;  // an expression of C
  unsigned storage = 0;
  unsigned width = 0;
  bool is_bytes = false;  // in network order
};

struct ToolField {
  std::string label;  // short, unique in its record
  std::string name;   // of the member, or what two halves share
  std::string notation;
  Match match = Match::kExact;
  unsigned width = 0;
  std::array<std::uint8_t, 16> key_bits{};
  std::vector<std::size_t> parts;  // members: one, or the upper and the lower half of an address
  std::vector<std::string> cells;  // counters and meters whose cell the value names
};

struct ToolRecord {
  std::string name;
  std::string number;
  std::string size;  // an expression of C
  std::vector<ToolMember> members;
  std::vector<ToolField> fields;  // those that are shown, then the halves that pairs stand for
  std::size_t shown = 0;
};

ToolRecord tool_record(const Program &program, const Table &table);
ToolRecord tool_record(const Program &program, const Action &action);
ToolRecord tool_record(const Program &program, const Digest &digest);
// The trigger record: integers of the host, and their masks behind the record.
ToolRecord trigger_record(const Program &program, const SnapshotLayout &layout);
// Fields of a record of snapshots in network order.
ToolRecord snapshot_record(const Program &program, const std::string &name,
                           const std::vector<SnapshotField> &fields);

}  // namespace pdgen
