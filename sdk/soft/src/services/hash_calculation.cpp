#include "services/hash_calculation.hpp"

#include <algorithm>

#include "store/crc64.hpp"

namespace soft {
namespace {

const EngineSet hashes{
    EngineOrder::kStateful,
    add_all<HashCalculation, &soft_program_t::hashes, &soft_program_t::hash_count>};

}  // namespace

HashCalculation::HashCalculation(const Device &, const soft_hash_t &description)
    : Engine(description.handle), description_(description) {}

bf_status_t HashCalculation::set_input(pipe_object_handle_t field_list) const {
  return field_list != 0 && field_list == description_.field_list ? BF_SUCCESS : BF_INVALID_HANDLE;
}

bf_status_t HashCalculation::set_algorithm(pipe_object_handle_t algorithm) const {
  return algorithm != 0 && algorithm == description_.algorithm ? BF_SUCCESS : BF_INVALID_HANDLE;
}

void HashCalculation::set_seed(uint64_t seed) {
  const std::lock_guard lock(mutex_);
  seed_ = seed;
}

uint64_t HashCalculation::seed() {
  const std::lock_guard lock(mutex_);
  return seed_;
}

bf_status_t HashCalculation::set_attributes(pipe_object_handle_t field_list,
                                            std::span<const pipe_mgr_hash_attribute_t> attributes) {
  if (field_list != description_.field_list) return BF_INVALID_HANDLE;
  for (const pipe_mgr_hash_attribute_t &attribute : attributes) {
    if (attribute.field >= description_.field_count) return BF_INVALID_ARGUMENT;
  }
  std::vector<pipe_mgr_hash_attribute_t> copy(attributes.begin(), attributes.end());
  const std::lock_guard lock(mutex_);
  attributes_.swap(copy);
  return BF_SUCCESS;
}

bf_status_t HashCalculation::attribute_count(pipe_object_handle_t field_list, uint32_t *count) {
  if (field_list != description_.field_list) return BF_INVALID_HANDLE;
  const std::lock_guard lock(mutex_);
  *count = static_cast<uint32_t>(attributes_.size());
  return BF_SUCCESS;
}

bf_status_t HashCalculation::attributes(pipe_object_handle_t field_list,
                                        std::span<pipe_mgr_hash_attribute_t> attributes,
                                        uint32_t *filled) {
  if (field_list != description_.field_list) return BF_INVALID_HANDLE;
  const std::lock_guard lock(mutex_);
  const size_t count = std::min(attributes.size(), attributes_.size());
  std::copy_n(attributes_.begin(), count, attributes.begin());
  *filled = static_cast<uint32_t>(count);
  return BF_SUCCESS;
}

bf_status_t HashCalculation::calculate(std::span<const uint8_t> stream, std::span<uint8_t> hash) {
  if (hash.empty() || hash.size() > kMostHashBytes) return BF_INVALID_ARGUMENT;
  Crc64 of_stream(~seed());
  of_stream.add(stream.data(), stream.size());
  for (size_t at = 0; at < hash.size(); ++at) {
    Crc64 block = of_stream;
    const auto number = static_cast<uint8_t>(at / 8);
    if (number != 0) block.add(&number, 1);
    hash[at] = static_cast<uint8_t>(~block.value() >> (56 - at % 8 * 8));
  }
  return BF_SUCCESS;
}

uint64_t HashCalculation::held_bytes() const {
  return attributes_.capacity() * sizeof(pipe_mgr_hash_attribute_t);
}

void HashCalculation::take_over(HashCalculation &other) {
  attributes_ = other.attributes_;
  seed_ = other.seed_;
}

}  // namespace soft
