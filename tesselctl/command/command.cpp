#include "tesselctl/command/command.hpp"

#include "common/nearest.hpp"
#include "tesselctl/program/value.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

std::string Context::path(Word word) const {
  if (directory.empty()) return std::string(word.text);
  std::string path = path_in(directory, std::string(word.text));
  if (word.text == "-" || is_no_regular_file(path)) {
    throw Fault(word, "the server reads and writes regular files only");
  }
  return path;
}

std::string Context::output_path(Word word) const {
  return is_trial || settings.dry_run ? "/dev/null" : path(word);
}

Word need_argument(const Invocation &invocation, size_t at, std::string_view what) {
  if (at < invocation.arguments.size()) return invocation.arguments[at];
  throw Fault(invocation.command, std::string(what) + " is missing");
}

void refuse_arguments_from(const Invocation &invocation, size_t at) {
  if (at < invocation.arguments.size()) {
    throw Fault(invocation.arguments[at], "nothing should stand here");
  }
}

uint32_t parse_handle(const Context &context, Word text, const std::string &what) {
  if (!text.text.starts_with('$')) {
    return static_cast<uint32_t>(parse_limited(text, 0xffffffffu, what));
  }
  const auto found = context.labels.find(text.text.substr(1));
  if (found != context.labels.end()) return found->second;
  std::vector<std::string> names;
  for (const auto &[name, handle] : context.labels) names.push_back("$" + name);
  throw Fault(text, "no handle was remembered under this name", common::nearest(text.text, names));
}

void remember(Context &context, Word name, uint32_t handle) {
  context.labels.insert_or_assign(std::string(name.text), handle);
}

}  // namespace tesselctl
