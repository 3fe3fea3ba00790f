#include "placement.hpp"

#include <algorithm>
#include <cstring>
#include <new>

#include "crc64.hpp"

namespace soft {
namespace {

constexpr uint32_t kMark = 0x706c6364;

// More than any entry needs: what claims to be longer is no placement data, and is not read.
constexpr uint32_t kMostContents = 1u << 20;

uint64_t checksum_of(const uint8_t *contents, size_t length) {
  Crc64 crc(~uint64_t{0});
  crc.add(contents, length);
  return crc.value();
}

size_t length_of(const Placed &placed) {
  return sizeof(Placed::Fixed) + placed.value.size() + placed.mask.size() + placed.data.size();
}

}  // namespace

pipe_mgr_placement_t *make_placement(Placed placed) {
  placed.fixed.match.value = nullptr;
  placed.fixed.match.mask = nullptr;
  placed.fixed.spec.data.bytes = nullptr;
  const size_t length = length_of(placed);
  auto *placement = new (::operator new(sizeof(pipe_mgr_placement) + length))
      pipe_mgr_placement{kMark, static_cast<uint32_t>(length), 0};
  uint8_t *at = placement->contents();
  std::memcpy(at, &placed.fixed, sizeof(placed.fixed));
  at += sizeof(placed.fixed);
  for (const auto &bytes : {placed.value, placed.mask, placed.data}) {
    at = std::copy(bytes.begin(), bytes.end(), at);
  }
  placement->checksum = checksum_of(placement->contents(), length);
  return placement;
}

bf_status_t open_placement(const pipe_mgr_placement_t *placement, Placed::Kind kind,
                           Placed *placed) {
  if (placement == nullptr) return BF_INVALID_ARGUMENT;
  if (placement->mark != kMark || placement->length < sizeof(Placed::Fixed) ||
      placement->length > kMostContents ||
      placement->checksum != checksum_of(placement->contents(), placement->length)) {
    return BF_CORRUPT_DATA;
  }
  std::memcpy(&placed->fixed, placement->contents(), sizeof(placed->fixed));
  if (placed->fixed.kind != kind) return BF_INVALID_ARGUMENT;
  const uint8_t *at = placement->contents() + sizeof(placed->fixed);
  const size_t key_bytes = placed->fixed.has_key != 0 ? placed->fixed.match.byte_count : 0;
  placed->value = {at, key_bytes};
  placed->mask = {at + key_bytes, key_bytes};
  placed->data = {at + 2 * key_bytes, placed->fixed.spec.data.byte_count};
  return length_of(*placed) == placement->length ? BF_SUCCESS : BF_CORRUPT_DATA;
}

}  // namespace soft
