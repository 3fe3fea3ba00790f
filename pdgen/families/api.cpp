#include "pdgen/families/api.hpp"

#include "pdgen/text.hpp"

namespace pdgen {

std::string declaration(const Function &function, std::size_t width) {
  const auto typed = [](const std::string &type, const std::string &name) {
    return type + (type.back() == '*' ? "" : " ") + name;
  };
  std::vector<std::string> parameters;
  for (const Parameter &parameter : function.parameters) {
    parameters.push_back(typed(parameter.type, parameter.name) + ",");
  }
  if (parameters.empty()) parameters.push_back("void,");
  parameters.back().back() = ')';
  const std::string head = typed(function.result, function.name) + "(";
  return head + fill(parameters, width, "    ", head.size());
}

}  // namespace pdgen
