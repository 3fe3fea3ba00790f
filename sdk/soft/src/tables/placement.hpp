// Placement data: entries and members as objects of bytes.
#pragma once

#include <cstddef>

#include "pipe_mgr_types.h"

// A header in front of `length` bytes of contents, all in one block of memory.
struct pipe_mgr_placement {
  uint32_t mark;
  uint32_t room;  // for contents
  uint32_t length;
  uint32_t reserved;
  uint64_t checksum;  // of the contents

  uint8_t *contents() { return reinterpret_cast<uint8_t *>(this + 1); }
  const uint8_t *contents() const { return reinterpret_cast<const uint8_t *>(this + 1); }
};

namespace soft {

enum class PlacedKind : uint32_t { kEntry, kMember };

// The contents begin with this, up to the resources. Data, value, mask and resources follow without
// gaps; the first three take the room that the table needs, also where the action has less data or
// there is no key. The specs hold no pointers.
struct PlacedHead {
  PlacedKind kind;
  uint32_t has_key;
  uint16_t data_room;
  uint16_t key_room;
  pipe_object_handle_t action;
  uint32_t resource_count;
  pipe_mgr_match_spec_t match;
  pipe_mgr_action_spec_t spec;  // of a member the data alone

  size_t length() const;
  size_t resource_bytes() const { return resource_count * sizeof(pipe_mgr_resource_t); }
};

inline constexpr size_t kPlacedHeadBytes =
    offsetof(PlacedHead, spec) + offsetof(pipe_mgr_action_spec_t, resources);

inline size_t PlacedHead::length() const {
  return kPlacedHeadBytes + data_room + 2 * size_t{key_room} + resource_bytes();
}

// Placement data being made, in the object that the caller has from before or in a new one. The
// caller's object and pointer change when it is complete.
class PlacementDraft {
 public:
  // May throw std::bad_alloc.
  PlacementDraft(pipe_mgr_placement_t **placement, uint16_t data_room, uint16_t key_room);
  ~PlacementDraft();
  PlacementDraft(const PlacementDraft &) = delete;
  PlacementDraft &operator=(const PlacementDraft &) = delete;

  // To be filled, by a reader that writes nothing if it fails: they may be those of the caller's
  // object.
  uint8_t *data() { return object_->contents() + kPlacedHeadBytes; }
  uint8_t *value() { return data() + head_.data_room; }
  uint8_t *mask() { return value() + head_.key_room; }

  // What was read into them: an entry, without a key when match.value is null, or a member.
  void complete(const pipe_mgr_match_spec_t &match, const pipe_mgr_action_spec_t &spec,
                pipe_object_handle_t action);
  void complete(const pipe_mgr_action_data_t &data, pipe_object_handle_t action);

 private:
  void seal(PlacedKind kind, pipe_object_handle_t action);

  pipe_mgr_placement_t **placement_;
  pipe_mgr_placement_t *object_;
  PlacedHead head_{};
};

// Placement data to be read.
struct Placed {
  PlacedHead head{};
  const uint8_t *contents = nullptr;

  const uint8_t *data() const { return contents + kPlacedHeadBytes; }
  const uint8_t *value() const { return data() + head.data_room; }
  const uint8_t *mask() const { return value() + head.key_room; }
};

// BF_INVALID_ARGUMENT: null, or of another kind. BF_CORRUPT_DATA: not as a draft left it.
bf_status_t open_placement(const pipe_mgr_placement_t *placement, PlacedKind kind, Placed *placed);

}  // namespace soft
