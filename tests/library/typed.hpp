// For scenarios that call the library as its users do: typed functions, short names.
#pragma once

#include <algorithm>
#include <climits>
#include <cstdio>
#include <cstring>

#include "pipe_mgr.h"
#include "support.hpp"

// A function or type of the program.
#define PD(name) p4_pd_tessel_switch_##name

namespace pd_test {

// A number that no field of a record or status of a call has by chance.
inline constexpr uint32_t kUnwritten = 0xeeeeeeee;

inline std::string data_of(const soft::journal::ActionSpec &spec) {
  return hex(spec.data.bytes.value_or(Bytes{0xde, 0xad}));
}

// "handle:index:tag" of each resource.
inline std::string resources_of(const soft::journal::ActionSpec &spec) {
  std::string text;
  for (const pipe_mgr_resource_t &resource : spec.resources) {
    char part[40];
    std::snprintf(part, sizeof part, "%s%08x:%x:%u", text.empty() ? "" : " ", resource.handle,
                  resource.index, resource.tag);
    text += part;
  }
  return text;
}

}  // namespace pd_test
