// A match spec or action spec that is filled from NAME=VALUE words.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "tesselctl/row.hpp"
#include "tesselctl/shape.hpp"
#include "tesselctl/value.hpp"
#include "tesselctl/words.hpp"

namespace tesselctl {

class RecordWriter {
 public:
  // what names the record in messages: "table l2Lookup".
  RecordWriter(const Shape &shape, std::string what)
      : shape_(&shape),
        what_(std::move(what)),
        bytes_(shape.record().size),
        given_(shape.own_field_count()) {}

  const Shape &shape() const { return *shape_; }
  // Throws Fault: unknown name, value that does not fit, field given before.
  void set(const Assignment &word);
  bool any_given() const;
  // Fills in the ternary fields that were not given, as "any". Throws Fault at the word when
  // another one is missing.
  void finish(Word word);

  const uint8_t *data() const { return bytes_.data(); }

 private:
  const Shape *shape_;
  std::string what_;
  std::vector<uint8_t> bytes_;
  std::vector<bool> given_;  // by own field
};

// Adds every shown field of a record; ternary fields that match anything are left out.
void add_record(Row &row, std::string_view group, const Shape &shape, const uint8_t *record);

}  // namespace tesselctl
