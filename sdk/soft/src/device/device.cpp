#include "device/device.hpp"

#include <bit>

#include "soft_sdk.h"

namespace soft {
namespace {

// Sorted by order. Constant-initialised, so that sets of any file may link themselves in.
constinit EngineSet *first_set = nullptr;

}  // namespace

EngineSet::EngineSet(EngineOrder order, Create create)
    : order_(order), create_(create), next_(nullptr) {
  EngineSet **link = &first_set;
  while (*link != nullptr && (*link)->order_ <= order) link = &(*link)->next_;
  next_ = *link;
  *link = this;
}

void EngineSet::create_all(Device &device) {
  for (const EngineSet *set = first_set; set != nullptr; set = set->next_) set->create_(device);
}

bool Device::create_objects() {
  EngineSet::create_all(*this);
  return index_objects();
}

bool Device::index_objects() {
  const size_t size = std::bit_ceil(objects_.size() * 2 + 2);
  shift_ = static_cast<uint32_t>(32 - std::countr_zero(size));
  places_.assign(size, {});
  for (const auto &object : objects_) {
    size_t at = place_of(object->handle());
    while (places_[at].object != nullptr) {
      if (places_[at].handle == object->handle()) return false;
      at = (at + 1) % size;
    }
    places_[at] = {object->handle(), object.get()};
  }
  return true;
}

uint64_t Device::now_ms() const {
  return soft_clock_now() + lead_ms_.load(std::memory_order_relaxed);
}

void Device::copy_from(const Device &other) {
  take_time_of(other);
  for (const auto &object : objects_) object->copy_from(*other.find(object->handle()));
}

void Device::inherit(const Device &predecessor) noexcept {
  for (const auto &object : objects_) object->inherit(*predecessor.find(object->handle()));
}

Object *Device::find(pipe_object_handle_t handle) const {
  const size_t last = places_.size() - 1;
  for (size_t at = place_of(handle);; at = (at + 1) & last) {
    const Place &place = places_[at];
    if (place.object == nullptr || place.handle == handle) return place.object;
  }
}

}  // namespace soft
