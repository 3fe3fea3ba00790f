// The functions of the soft SDK's control interface, as its headers explain them.
#pragma once

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace tesselctl {

struct SoftHeader {
  std::string_view name;  // "soft_traffic.h"
  std::string_view text;
};
extern const SoftHeader kSoftHeaders[];
extern const size_t kSoftHeaderCount;

struct SoftFunction {
  std::string_view header;
  std::string name;
  std::string prototype;  // in lines
  std::string note;       // of all that stand below one comment
  std::string records;    // declarations of the parameters' types that the header has
};

// In the order of the headers.
std::vector<SoftFunction> soft_functions();

}  // namespace tesselctl
