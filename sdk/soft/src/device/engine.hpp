// What the engines with one lock around all of their contents have in common.
#pragma once

#include <mutex>

#include "device/device.hpp"

namespace soft {

class LockedObject : public Object {
 protected:
  using Object::Object;

  std::mutex mutex_;
};

// T says, under the lock or under both,
//   uint64_t held_bytes() const    what it holds beside itself
//   void take_over(T &other)       as copy_from
template <class T, class Base = LockedObject>
class Engine : public ObjectOf<T, Base> {
 public:
  uint64_t memory_bytes() override {
    const std::lock_guard lock(this->mutex_);
    return sizeof(T) + self().held_bytes();
  }
  void copy_from(Object &object) override {
    T &other = *object.as<T>();
    const std::scoped_lock lock(this->mutex_, other.mutex_);
    self().take_over(other);
  }

 protected:
  using ObjectOf<T, Base>::ObjectOf;

 private:
  T &self() { return static_cast<T &>(*this); }
};

}  // namespace soft
