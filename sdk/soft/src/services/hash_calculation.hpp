// A hash calculation of a device: its input list, algorithm, seed and attributes, and the hash.
//
// The hash. Block 0 is the CRC-64 of the stream: polynomial of ECMA-182 (0x42F0E1EBA9EA3693), not
// reflected, initial register ~seed, result inverted. Block k, 1 to 7, is the same over the stream
// followed by one byte k. The hash is as many leading bytes of block 0, block 1, ... as are asked
// for, each block most significant byte first; a shorter hash is a prefix of a longer one. With
// seed 0 the stream "123456789" has block 0 = 62EC59E3F1A4F00A.
#pragma once

#include <vector>

#include "device/engine.hpp"
#include "pipe_mgr_types.h"

namespace soft {

// A member function with the arguments of a contract function does what that function says. The
// calculation takes the field list and the algorithm that the program declares and no other;
// BF_INVALID_HANDLE otherwise.
class HashCalculation : public Engine<HashCalculation> {
 public:
  static constexpr uint32_t kMostHashBytes = 64;

  HashCalculation(const Device &device, const soft_hash_t &description);

  bf_status_t set_input(pipe_object_handle_t field_list) const;
  pipe_object_handle_t input() const { return description_.field_list; }
  bf_status_t set_algorithm(pipe_object_handle_t algorithm) const;
  pipe_object_handle_t algorithm() const { return description_.algorithm; }

  void set_seed(uint64_t seed);
  uint64_t seed();

  // Replaces the attributes of a list. They are kept word by word: a value word that is an address
  // stays one, and what it points at is the caller's. They take no part in the hash, whose input is
  // a finished stream. BF_INVALID_ARGUMENT: an attribute of a field that the list does not have.
  bf_status_t set_attributes(pipe_object_handle_t field_list,
                             std::span<const pipe_mgr_hash_attribute_t> attributes);
  bf_status_t attribute_count(pipe_object_handle_t field_list, uint32_t *count);
  // Fills as many as there are and fit.
  bf_status_t attributes(pipe_object_handle_t field_list,
                         std::span<pipe_mgr_hash_attribute_t> attributes, uint32_t *filled);

  // Writes hash.size() bytes, 1 to kMostHashBytes; BF_INVALID_ARGUMENT for another number.
  bf_status_t calculate(std::span<const uint8_t> stream, std::span<uint8_t> hash);

  uint64_t held_bytes() const;
  void take_over(HashCalculation &other);

 private:
  const soft_hash_t &description_;
  uint64_t seed_ = 0;
  std::vector<pipe_mgr_hash_attribute_t> attributes_;
};

}  // namespace soft
