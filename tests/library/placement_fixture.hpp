// Placement data of a device's entries and members, and texts as printed to a descriptor.
#pragma once

#include <gtest/gtest.h>
#include <sys/mman.h>
#include <unistd.h>

#include <string>
#include <utility>

#include "soft_placement.h"
#include "support.hpp"

namespace pd_test {

// Released with its scope.
struct Placement {
  pipe_mgr_placement_t *object = nullptr;

  Placement() = default;
  Placement(Placement &&other) noexcept : object(std::exchange(other.object, nullptr)) {}
  Placement(const Placement &) = delete;
  Placement &operator=(const Placement &) = delete;
  ~Placement() { soft_placement_free(object); }

  static Placement of_entry(bf_device_id_t device, uint32_t table, uint32_t entry) {
    Placement placed;
    EXPECT_EQ(soft_placement_of_entry(device, table, entry, &placed.object), BF_SUCCESS);
    return placed;
  }
  static Placement of_member(bf_device_id_t device, uint32_t profile, uint32_t member) {
    Placement placed;
    EXPECT_EQ(soft_placement_of_member(device, profile, member, &placed.object), BF_SUCCESS);
    return placed;
  }
};

// What body(descriptor) prints.
template <class Body>
std::string printed(Body body) {
  const int file = memfd_create("printed", 0);
  EXPECT_GE(file, 0);
  body(file);
  std::string text(static_cast<size_t>(lseek(file, 0, SEEK_END)), '\0');
  EXPECT_EQ(pread(file, text.data(), text.size(), 0), static_cast<ssize_t>(text.size()));
  close(file);
  return text;
}

}  // namespace pd_test
