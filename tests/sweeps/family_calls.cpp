#include <sstream>

#include "expected_calls.hpp"
#include "family_calls_text.hpp"

namespace pd_test {

namespace {

std::map<std::string, std::string, std::less<>> read_calls() {
  std::map<std::string, std::string, std::less<>> read;
  std::istringstream file(kFamilyCalls);
  for (std::string line; std::getline(file, line);) {
    if (line.empty() || line.starts_with("//")) continue;
    const size_t colon = line.find(": ");
    std::istringstream families(line.substr(0, colon));
    for (std::string family; families >> family;) {
      if (family.ends_with(",")) family.pop_back();
      read[family] = line.substr(colon + 2);
    }
  }
  return read;
}

}  // namespace

std::string calls_of(std::string_view family) {
  static const auto all = read_calls();
  const auto found = all.find(family);
  return found == all.end() ? "" : found->second;
}

bool hands_on(std::string_view family, std::string_view parameter) {
  const std::string calls = calls_of(family);
  const auto has = [&](const std::string &text) { return calls.find(text) != calls.npos; };
  return has("out " + std::string(parameter)) || (parameter == "hash" && has("hash,")) ||
         (parameter == "callback" && has("callback")) ||
         (parameter == "placement" && has("(placement"));
}

}  // namespace pd_test
