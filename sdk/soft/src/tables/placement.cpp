#include "tables/placement.hpp"

#include <cstring>
#include <new>

namespace soft {
namespace {

constexpr uint32_t kMark = 0x706c6364;

// More than any entry needs: what claims to be longer is no placement data, and is not read.
constexpr uint32_t kMostContents = 1u << 20;

// Every step can be undone, so contents that differ in one word only never have the same sum.
uint64_t mixed(uint64_t sum, uint64_t word) {
  sum = (sum ^ word) * 0x9e3779b97f4a7c15u;
  return sum ^ sum >> 32;
}

uint64_t checksum_of(const uint8_t *contents, size_t length) {
  uint64_t sums[2] = {length, 0};  // of every other word, as neither waits for the other
  uint64_t words[2] = {};
  for (; length >= sizeof words; contents += sizeof words, length -= sizeof words) {
    std::memcpy(words, contents, sizeof words);
    for (size_t i = 0; i < 2; ++i) sums[i] = mixed(sums[i], words[i]);
  }
  words[0] = words[1] = 0;
  std::memcpy(words, contents, length);
  return mixed(mixed(sums[0], words[0]), mixed(sums[1], words[1]));
}

pipe_mgr_placement_t *new_object(size_t room) {
  return new (::operator new(sizeof(pipe_mgr_placement) + room))
      pipe_mgr_placement{0, static_cast<uint32_t>(room), 0, 0, 0};
}

}  // namespace

PlacementDraft::PlacementDraft(pipe_mgr_placement_t **placement, uint16_t data_room,
                               uint16_t key_room)
    : placement_(placement), object_(*placement) {
  head_.data_room = data_room;
  head_.key_room = key_room;
  head_.resource_count = PIPE_RESOURCES_PER_ACTION;  // at most
  if (object_ == nullptr || object_->room < head_.length()) object_ = new_object(head_.length());
}

PlacementDraft::~PlacementDraft() {
  if (object_ != *placement_) ::operator delete(object_);
}

void PlacementDraft::complete(const pipe_mgr_match_spec_t &match,
                              const pipe_mgr_action_spec_t &spec, pipe_object_handle_t action) {
  head_.has_key = match.value != nullptr;
  if (head_.has_key == 0) std::memset(value(), 0, 2 * size_t{head_.key_room});
  head_.match = match;
  head_.match.value = head_.match.mask = nullptr;
  head_.spec = spec;
  seal(PlacedKind::kEntry, action);
}

void PlacementDraft::complete(const pipe_mgr_action_data_t &data, pipe_object_handle_t action) {
  head_.spec.data = data;
  seal(PlacedKind::kMember, action);
}

void PlacementDraft::seal(PlacedKind kind, pipe_object_handle_t action) {
  head_.kind = kind;
  head_.action = action;
  head_.spec.data.bytes = nullptr;
  const size_t data_bytes = head_.spec.data.byte_count;
  std::memset(data() + data_bytes, 0, head_.data_room - data_bytes);
  head_.resource_count = head_.spec.resource_count;
  std::memcpy(object_->contents(), &head_, kPlacedHeadBytes);
  std::memcpy(mask() + head_.key_room, head_.spec.resources, head_.resource_bytes());
  object_->mark = kMark;
  object_->length = static_cast<uint32_t>(head_.length());
  object_->checksum = checksum_of(object_->contents(), object_->length);
  if (object_ == *placement_) return;
  ::operator delete(*placement_);
  *placement_ = object_;
}

bf_status_t open_placement(const pipe_mgr_placement_t *placement, PlacedKind kind, Placed *placed) {
  if (placement == nullptr) return BF_INVALID_ARGUMENT;
  if (placement->mark != kMark || placement->length < kPlacedHeadBytes ||
      placement->length > kMostContents ||
      placement->checksum != checksum_of(placement->contents(), placement->length)) {
    return BF_CORRUPT_DATA;
  }
  placed->contents = placement->contents();
  PlacedHead &head = placed->head;
  std::memcpy(&head, placed->contents, kPlacedHeadBytes);
  if (head.kind != kind) return BF_INVALID_ARGUMENT;
  const bool fits = head.resource_count <= PIPE_RESOURCES_PER_ACTION &&
                    head.spec.data.byte_count <= head.data_room &&
                    head.length() == placement->length;
  if (!fits) return BF_CORRUPT_DATA;
  std::memcpy(head.spec.resources, placed->mask() + head.key_room, head.resource_bytes());
  head.spec.resource_count = head.resource_count;
  return BF_SUCCESS;
}

}  // namespace soft
