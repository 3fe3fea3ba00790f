#include "tesselctl/script.hpp"

#include <algorithm>

namespace tesselctl {

std::string fault_text(const Fault &fault, std::string_view file, uint64_t line) {
  std::string text(file);
  if (line != 0) text += ":" + std::to_string(line);
  if (line != 0 && fault.column() != 0) text += ":" + std::to_string(fault.column());
  return text + ": " + fault.sentence();
}

namespace {

// A terminal would obey control characters of the source.
std::string printable(std::string_view text) {
  std::string copy(text);
  for (char &c : copy) {
    if (static_cast<unsigned char>(c) < ' ' || c == '\x7f') c = c == '\t' ? ' ' : '?';
  }
  return copy;
}

}  // namespace

void print_fault(const Fault &fault, std::string_view file, uint64_t line, std::string_view source,
                 Output &errors) {
  errors.line("{}", errors.styled(Style::bad, printable(fault_text(fault, file, line))));
  if (fault.column() == 0 || source.empty()) return;
  errors.line("  {}", printable(source));
  const std::string space(fault.column() - 1, ' ');
  const std::string mark(std::max<size_t>(1, fault.token().size()), '^');
  errors.line("  {}{}", space, errors.styled(Style::good, mark));
}

ScriptResult run_script(Context &context, std::string_view file, std::string_view text,
                        const ScriptOptions &options, Output &errors) {
  ScriptResult result;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    ++result.lines;
    try {
      if (run_line(context, line)) ++result.commands;
    } catch (const Fault &fault) {
      ++result.commands;
      ++result.faults;
      // What the commands before it printed comes first.
      context.out.flush();
      print_fault(fault, file, result.lines, line, errors);
      if (!options.keep_going) break;
    }
  }
  return result;
}

}  // namespace tesselctl
