// What every target is: one function of bytes that others wrote, and what holds for all of them.
#pragma once

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

void try_input(std::string_view input);

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  try_input({reinterpret_cast<const char *>(data), size});
  return 0;
}

// What must hold for every input.
inline void require(bool holds, const char *what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

// A number of so many bytes, at most 8, from the front of the input; zeros stand behind its end.
inline uint64_t take_number(std::string_view &input, size_t size) {
  uint64_t number = 0;
  for (size_t i = 0; i < size && !input.empty(); ++i) {
    number = number << 8 | static_cast<uint8_t>(input[0]);
    input.remove_prefix(1);
  }
  return number;
}
