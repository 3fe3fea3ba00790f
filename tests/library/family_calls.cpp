#include <algorithm>
#include <fstream>
#include <sstream>

#include "expected_calls.hpp"

namespace pd_test {

const std::vector<FamilyCalls> &family_calls() {
  static const std::vector<FamilyCalls> rows = [] {
    std::vector<FamilyCalls> read;
    std::ifstream file(PD_CATALOGUE_DIR "/../tests/library/family_calls.txt");
    for (std::string line; std::getline(file, line);) {
      if (line.empty() || line.starts_with("//")) continue;
      const size_t colon = line.find(':');
      std::istringstream families(line.substr(0, colon));
      FamilyCalls row = {"", 0, line.substr(std::min(colon + 2, line.size()))};
      for (std::string comma; families >> row.family >> row.count;
           std::getline(families, comma, ',')) {
        read.push_back(row);
      }
    }
    return read;
  }();
  return rows;
}

const FamilyCalls *calls_of_family(std::string_view family) {
  const auto found = std::ranges::find(family_calls(), family, &FamilyCalls::family);
  return found == family_calls().end() ? nullptr : &*found;
}

bool hands_on(const FamilyCalls &row, std::string_view parameter) {
  const auto has = [&](const std::string &text) { return row.calls.find(text) != row.calls.npos; };
  return has("out " + std::string(parameter)) || (parameter == "hash" && has("hash,")) ||
         (parameter == "callback" && has("callback")) ||
         (parameter == "placement" && has("(placement"));
}

}  // namespace pd_test
