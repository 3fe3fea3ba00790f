// Records that the device lays out in bytes: digest entries and snapshots. Their fields take the
// names and notations of all other records.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "tesselctl/record.hpp"

namespace tesselctl {

struct WireField {
  const char *name;
  uint32_t offset;
  uint32_t bytes;  // at most 16
};

enum class ByteOrder { network, host };

class WireLayout {
 public:
  // A masked layout has fields of which some bits can be given, as VALUE&MASK.
  WireLayout(const char *name, std::vector<WireField> fields, bool masked = false);
  WireLayout(const WireLayout &) = delete;
  WireLayout &operator=(const WireLayout &) = delete;

  const Shape &shape() const { return *shape_; }
  const std::vector<WireField> &fields() const { return fields_; }
  RecordWriter writer(std::string what) const { return {*shape_, std::move(what)}; }

  // The values, or the masks, of a record of the shape at their places among the bytes.
  void pack_values(const uint8_t *record, ByteOrder order, uint8_t *bytes) const {
    pack(record, 0, order, bytes);
  }
  void pack_masks(const uint8_t *record, ByteOrder order, uint8_t *bytes) const {
    pack(record, kSlot, order, bytes);
  }
  // Adds the fields of bytes in network order: all, or those that are not 0.
  void add_to(Row &row, const uint8_t *bytes, bool zeroes_too) const;

 private:
  // A value of the record, and the mask behind it.
  static constexpr size_t kSlot = 16;

  void pack(const uint8_t *record, size_t from, ByteOrder order, uint8_t *bytes) const;

  std::vector<WireField> fields_;
  std::vector<std::string> mask_names_;
  std::vector<bindings::Member> members_;
  bindings::Record record_;
  std::unique_ptr<Shape> shape_;
};

}  // namespace tesselctl
