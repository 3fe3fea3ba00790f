// What the targets share.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "tesselctl/device/device.hpp"
#include "tesselctl/program/library.hpp"

inline const bool has_used_program = (tesselctl::use_program(bindings::pd_binding), true);
// Keeps the library started: every input has devices of its own, as a first one would be.
inline const tesselctl::LibraryUse library_use;

inline std::string_view text_of(const uint8_t *data, size_t size) {
  return {reinterpret_cast<const char *>(data), size};
}

// What must hold for every input.
inline void require(bool holds, const char *what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}
