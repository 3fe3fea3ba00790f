// Placement data: entries and members as objects of bytes.
#pragma once

#include <span>

#include "pipe_mgr_types.h"

// A header in front of `length` bytes of contents, all in one block of memory.
struct pipe_mgr_placement {
  uint32_t mark;
  uint32_t length;
  uint64_t checksum;  // of the contents

  uint8_t *contents() { return reinterpret_cast<uint8_t *>(this + 1); }
  const uint8_t *contents() const { return reinterpret_cast<const uint8_t *>(this + 1); }
};

namespace soft {

// What is placed. value, mask and data lead into the placement data or, before it is made, to the
// caller's bytes.
struct Placed {
  enum class Kind : uint32_t { kEntry, kMember };

  // The part that is copied as it stands; the byte strings follow it in this order.
  struct Fixed {
    Kind kind;
    uint32_t has_key;
    pipe_mgr_match_spec_t match;  // without pointers
    pipe_mgr_action_spec_t spec;  // without pointers
    pipe_object_handle_t action;
  } fixed;
  std::span<const uint8_t> value;
  std::span<const uint8_t> mask;
  std::span<const uint8_t> data;
};

// A new object; the pointers in placed.fixed are dropped. May throw std::bad_alloc.
pipe_mgr_placement_t *make_placement(Placed placed);

// BF_INVALID_ARGUMENT: null, or of another kind. BF_CORRUPT_DATA: not as make_placement left it.
bf_status_t open_placement(const pipe_mgr_placement_t *placement, Placed::Kind kind,
                           Placed *placed);

}  // namespace soft
