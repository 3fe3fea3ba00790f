// What the families can say of a program: the kinds of objects that they walk (scope.cpp), and what
// words in angle brackets and conditions mean for an object (vocabulary.cpp).
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "pdgen/families/api.hpp"
#include "pdgen/families/families.hpp"
#include "pdgen/model.hpp"

namespace pdgen {

// The object that functions belong to, "" for the program.
struct Owner {
  std::string name;
  Place place;
};

// The object of each enclosing "each"; null where there is none.
class Scope {
 public:
  explicit Scope(const Api &api) { set(api), set(api.program); }

  template <typename Row>
  void set(const Row &row) {
    std::get<const Row *>(objects_) = &row;
  }
  template <typename Row>
  const Row *find() const {
    return std::get<const Row *>(objects_);
  }
  template <typename Row>
  const Row &get() const {
    return *find<Row>();
  }

  Owner owner() const;
  // Their group in the header, "" where the families must say it.
  std::string group() const;

 private:
  std::tuple<const Program *, const Table *, const Pair *, const DefaultEntry *, const KeyField *,
             const RecordField *, const ResourceItem *, const Action *, const Param *,
             const Profile *, const ProfileAction *, const Resource *, const Hash *, const Digest *,
             const PacketField *, const ValueSet *, const SnapshotLayout *, const Handle *,
             const Acl *, const Label *, const LabelItem *, const LabelText *, const ToolRecords *,
             const ToolRecord *, const ToolMember *, const ToolField *, const Api *, const Note *,
             const Group *, const Unit *, const ParameterList *, const Parameter *,
             const Function *, const std::string *, const std::size_t *>
      objects_;
};

// "each NAME" within an object of that kind: the objects, and the kinds that come into reach.
struct Walk {
  std::string_view kind;
  std::string_view name;
  std::string_view kinds;  // words
  std::vector<Scope> (*objects)(const Scope &scope);
};

// Null if there is none in reach. Besides what the vocabulary lists, <KIND_count> is how many
// objects "each KIND" has, "any KIND [where CONDITION]" whether there are any, and a condition in
// angle brackets is true or false.
const Walk *find_walk(const Kinds &kinds, std::string_view name);
Kinds kinds_within(Kinds kinds, const Walk &walk);
std::function<std::string(const Scope &)> find_placeholder(const Kinds &kinds,
                                                           std::string_view name);
// Those of the Python package alone (vocabulary_python.cpp).
std::function<std::string(const Scope &)> find_python_placeholder(const Kinds &kinds,
                                                                  std::string_view name);
std::function<bool(const Scope &)> find_condition(const Kinds &kinds, std::string_view name);

}  // namespace pdgen
