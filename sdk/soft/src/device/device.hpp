// A device: the objects of its program, found by handle. What an object does is up to its engine;
// engines of another kind come in a file of their own:
//
//   class Gauge : public Engine<Gauge> { ... };
//   const EngineSet gauges{EngineOrder::kStateful,
//                          add_all<Gauge, &soft_program_t::gauges, &soft_program_t::gauge_count>};
//
// Locks: a device has none, its set of objects never changes. Every engine locks its own contents.
// An engine that calls another one while it is locked does so in the order of EngineOrder, never
// back. No lock is held while a callback of the host runs.
#pragma once

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <memory>
#include <span>
#include <vector>

#include "bf_types.h"
#include "soft_program.h"

namespace soft {

class Device;

template <class T>
std::span<const T> described(const T *first, uint32_t count) {
  return {first, first == nullptr ? 0 : count};
}

// The one with this handle, or null.
template <class T>
const T *described_as(std::span<const T> all, pipe_object_handle_t handle,
                      uint32_t T::*of = &T::handle) {
  const auto it = std::ranges::find(all, handle, of);
  return it == all.end() ? nullptr : &*it;
}

// Greatest number of bytes that the data of an action of these takes.
inline uint16_t longest_data(std::span<const soft_action_t> actions) {
  uint16_t longest = 0;
  for (const soft_action_t &action : actions) longest = std::max(longest, action.data_bytes);
  return longest;
}

// Handles of objects that a program does not describe, one of each a device at most (the snapshot
// unit, the learning unit).
inline constexpr pipe_object_handle_t kServiceHandles = 0xf0000000u;

// One address per type of object.
template <class T>
inline char object_type = 0;

// The questions that the contract puts to objects of more than one kind. An engine answers those
// that concern it; the others say BF_NOT_SUPPORTED or do nothing.
class Object {
 public:
  virtual ~Object() = default;
  Object(const Object &) = delete;
  Object &operator=(const Object &) = delete;

  pipe_object_handle_t handle() const { return handle_; }
  template <class T>
  T *as() {
    return type_ == &object_type<T> ? static_cast<T *>(this) : nullptr;
  }

  // Entries of a match table, members of an action-data table, groups of a selector: as the
  // functions of the contract with these names.
  virtual bf_status_t entry_count(bf_pipe_id_t, uint32_t *) { return BF_NOT_SUPPORTED; }
  virtual bf_status_t first_entry(bf_pipe_id_t, uint32_t *) { return BF_NOT_SUPPORTED; }
  virtual bf_status_t next_entries(bf_pipe_id_t, uint32_t, uint32_t, uint32_t *) {
    return BF_NOT_SUPPORTED;
  }

  // Of an action-data table or a selector: the greatest number of members or groups, 0 unlimited.
  // Other objects say BF_INVALID_HANDLE.
  virtual bf_status_t set_capacity(uint32_t) { return BF_INVALID_HANDLE; }
  virtual bf_status_t get_capacity(uint32_t *) { return BF_INVALID_HANDLE; }

  // An entry begins or ends to refer to a member (of an action-data table) or group (of a
  // selector). acquire says BF_OBJECT_NOT_FOUND when there is no such member or group; what was
  // acquired is in use until it is released as often.
  virtual bf_status_t acquire(uint32_t) { return BF_NOT_SUPPORTED; }
  virtual void release(uint32_t) {}

  // As soft_next_cell.
  virtual bf_status_t next_cell(uint32_t /*from*/, uint32_t *) { return BF_NOT_SUPPORTED; }

  // The clock of the device shows a later time.
  virtual void clock_advanced(uint64_t /*now_ms*/) {}

  // Bytes held for contents, the object included.
  virtual uint64_t memory_bytes() { return 0; }

  // Takes over the contents of the object with the same handle of another device that has the same
  // program and as many pipes. Listeners stay and hear nothing of it. May throw std::bad_alloc;
  // unless an engine promises more, the object can then only be destroyed.
  virtual void copy_from(Object &other) = 0;

  // Takes over what the host has left with the object that this one is to replace: listeners, and
  // messages that were sent and not given back.
  virtual void inherit(Object & /*predecessor*/) noexcept {}

 protected:
  Object(pipe_object_handle_t handle, const void *type) : handle_(handle), type_(type) {}

  // What the clock of the device shows.
  uint64_t now_ms() const;

 private:
  friend class Device;

  pipe_object_handle_t handle_;
  const void *type_;
  const Device *device_ = nullptr;
};

template <class T, class Base = Object>
class ObjectOf : public Base {
 protected:
  template <class... Arguments>
  explicit ObjectOf(pipe_object_handle_t handle, Arguments... arguments)
      : Base(handle, &object_type<T>, arguments...) {}
};

class Device {
 public:
  // Objects come in with create_objects; a device without them is of no use.
  Device(bf_device_id_t id, uint32_t pipes, const soft_program_t &program, bool is_virtual)
      : id_(id), pipes_(pipes), program_(program), is_virtual_(is_virtual) {}

  bf_device_id_t id() const { return id_; }
  uint32_t pipes() const { return pipes_; }
  bool is_virtual() const { return is_virtual_; }
  const soft_program_t &program() const { return program_; }

  bool has_pipe(bf_pipe_id_t pipe) const { return pipe < pipes_ || pipe == BF_ALL_PIPES; }

  // The object with this handle, or null; find<T> also when it is of another type.
  Object *find(pipe_object_handle_t handle) const;
  template <class T>
  T *find(pipe_object_handle_t handle) const {
    Object *object = find(handle);
    return object == nullptr ? nullptr : object->as<T>();
  }
  std::span<const std::unique_ptr<Object>> objects() const { return objects_; }

  // For engine sets, while the device is created.
  void add(std::unique_ptr<Object> object) {
    object->device_ = this;
    objects_.push_back(std::move(object));
  }

  // Runs all engine sets. False when two objects have the same handle.
  bool create_objects();

  // The clock of the process, and how far that of the device was advanced beyond it.
  uint64_t now_ms() const;
  void advance(uint64_t milliseconds) {
    lead_ms_.fetch_add(milliseconds, std::memory_order_relaxed);
  }
  void take_time_of(const Device &other) {
    lead_ms_ = other.lead_ms_.load(std::memory_order_relaxed);
  }
  void announce_time() const {
    for (const auto &object : objects_) object->clock_advanced(now_ms());
  }

  // As the functions of Object, for all objects; a copy has the clock of the other.
  void copy_from(const Device &other);
  void inherit(const Device &predecessor) noexcept;

 private:
  struct Place {
    pipe_object_handle_t handle = 0;
    Object *object = nullptr;
  };
  size_t place_of(pipe_object_handle_t handle) const { return (handle * 0x9e3779b1u) >> shift_; }
  bool index_objects();

  bf_device_id_t id_;
  uint32_t pipes_;
  const soft_program_t &program_;
  bool is_virtual_;
  std::vector<std::unique_ptr<Object>> objects_;
  std::vector<Place> places_;  // open addressing, at most half full
  uint32_t shift_ = 31;
  std::atomic<uint64_t> lead_ms_{0};
};

inline uint64_t Object::now_ms() const { return device_->now_ms(); }

// In which engines are created and in which they may call one another under lock.
enum class EngineOrder { kTables, kSelectors, kProfiles, kStateful, kServices };

// Adds the objects of one kind to every device that is created. Objects of static storage only.
class EngineSet {
 public:
  using Create = void (*)(Device &device);
  EngineSet(EngineOrder order, Create create);
  EngineSet(const EngineSet &) = delete;
  EngineSet &operator=(const EngineSet &) = delete;

 private:
  friend class Device;
  static void create_all(Device &device);

  EngineOrder order_;
  Create create_;
  EngineSet *next_;
};

// A T for everything that the program has in a list.
template <class T, auto list, auto count>
void add_all(Device &device) {
  const soft_program_t &program = device.program();
  for (const auto &description : described(program.*list, program.*count)) {
    device.add(std::make_unique<T>(device, description));
  }
}

}  // namespace soft
