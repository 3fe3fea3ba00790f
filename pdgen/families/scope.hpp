// What the families can say of a program: the kinds of objects that they walk, and what words in
// angle brackets and conditions mean for an object (vocabulary.cpp).
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "pdgen/model.hpp"

namespace pdgen {

// The object of each enclosing "each"; null where there is none.
struct Scope {
  const Program *program = nullptr;
  const Table *table = nullptr;
  const Pair *pair = nullptr;
  const KeyField *field = nullptr;
  const Action *action = nullptr;
  const Profile *profile = nullptr;
  const Resource *resource = nullptr;
  const Hash *hash = nullptr;
  const Digest *digest = nullptr;
  const ValueSet *value_set = nullptr;
  const SnapshotLayout *layout = nullptr;
  const Param *param = nullptr;
  const ProfileAction *member = nullptr;
  const DigestField *digest_field = nullptr;
  const SnapshotField *packet_field = nullptr;

  // The object that its functions belong to, "" for the program.
  std::string object() const;
  // Their group in the header, "" where the families must say it.
  std::string group() const;
};

// The kinds that are in reach, outermost first. A name is looked up from the last one on.
using Kinds = std::vector<std::string_view>;

struct Placeholder {
  std::string_view kind;
  std::string_view name;
  std::string (*text)(const Scope &scope);
};

struct Condition {
  std::string_view kind;
  std::string_view name;
  bool (*holds)(const Scope &scope);
};

// "each NAME" within an object of that kind: the objects, and the kinds that come into reach.
struct Walk {
  std::string_view kind;
  std::string_view name;
  Kinds kinds;
  std::vector<Scope> (*objects)(const Scope &scope);
};

// Null if there is none in reach.
const Placeholder *find_placeholder(const Kinds &kinds, std::string_view name);
const Condition *find_condition(const Kinds &kinds, std::string_view name);
const Walk *find_walk(const Kinds &kinds, std::string_view name);

std::string bit_count(unsigned width);  // "1 bit", "9 bits"

// The members of C records, one a line.
std::string match_spec_members(const Table &table);
std::string action_spec_members(const Action &action);
std::string trigger_members(const Snapshots &snapshots, const SnapshotLayout &layout);
std::string capture_members(const Snapshots &snapshots);

// Rows and arrays of descriptors that are more than a row for each object.
std::size_t resource_count(const Pair &pair);
std::string resource_rows(const Pair &pair);
std::string compared_bytes(const Table &table);
std::string trigger_layouts(const Program &program);
// Where a field of a packet lies in a capture.
std::string captured_at(const Snapshots &snapshots, const SnapshotField &field);

}  // namespace pdgen
