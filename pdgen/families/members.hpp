// What walks and placeholders read from an object, stated by the member that holds it.
#pragma once

#include <string>
#include <type_traits>
#include <vector>

#include "pdgen/families/scope.hpp"
#include "pdgen/text.hpp"

namespace pdgen {

template <typename Row, typename Member>
Row owner_of(Member Row::*);
template <auto Member>
using OwnerOf = decltype(owner_of(Member));

template <auto Member>
const auto &value_of(const Scope &scope) {
  return scope.get<OwnerOf<Member>>().*Member;
}

inline std::string text_of(const std::string &text) { return text; }
inline std::string text_of(std::size_t number) { return std::to_string(number); }

// As it stands, and a handle in hexadecimal digits.
template <auto Member>
std::string text(const Scope &scope) {
  return text_of(value_of<Member>(scope));
}
template <auto Member>
std::string hex(const Scope &scope) {
  return hex32(value_of<Member>(scope));
}

// One scope for each row, with that row in it.
template <typename Rows>
std::vector<Scope> each_row(const Scope &scope, const Rows &rows) {
  std::vector<Scope> scopes(rows.size(), scope);
  for (std::size_t i = 0; i < rows.size(); ++i) {
    if constexpr (std::is_pointer_v<typename Rows::value_type>) {
      scopes[i].set(*rows[i]);
    } else {
      scopes[i].set(rows[i]);
    }
  }
  return scopes;
}
template <auto Member>
std::vector<Scope> each(const Scope &scope) {
  return each_row(scope, value_of<Member>(scope));
}

}  // namespace pdgen
