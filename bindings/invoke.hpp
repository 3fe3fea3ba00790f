// Calls a function with its arguments taken from words. Only the generated call table includes it.
#pragma once

#include <cstdint>
#include <type_traits>
#include <utility>

#include "bindings/export_table.hpp"

namespace bindings {

template <class T>
T from_word(uint64_t word) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<T>(static_cast<uintptr_t>(word));
  } else if constexpr (std::is_class_v<T>) {
    return *reinterpret_cast<const T *>(static_cast<uintptr_t>(word));
  } else {
    return static_cast<T>(word);
  }
}

template <class T>
uint64_t to_word(T value) {
  if constexpr (std::is_pointer_v<T>) {
    return reinterpret_cast<uintptr_t>(value);
  } else {
    return static_cast<uint64_t>(value);
  }
}

template <class Result, class... Arguments, size_t... I>
uint64_t invoke_with(Result (*function)(Arguments...), [[maybe_unused]] const uint64_t *words,
                     std::index_sequence<I...>) {
  if constexpr (std::is_void_v<Result>) {
    function(from_word<Arguments>(words[I])...);
    return 0;
  } else {
    return to_word(function(from_word<Arguments>(words[I])...));
  }
}

template <class Result, class... Arguments>
uint64_t invoke_as(Result (*function)(Arguments...), const uint64_t *words) {
  return invoke_with(function, words, std::index_sequence_for<Arguments...>{});
}

template <auto Function>
uint64_t invoke(const uint64_t *words) {
  return invoke_as(Function, words);
}

}  // namespace bindings
