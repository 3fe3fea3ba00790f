#include "tesselctl/script.hpp"

#include <algorithm>

#include "tesselctl/utf8.hpp"

namespace tesselctl {

std::string fault_text(const Fault &fault, std::string_view file, uint64_t line) {
  std::string text(file);
  if (line != 0) text += ":" + std::to_string(line);
  if (line != 0 && fault.column() != 0) text += ":" + std::to_string(fault.column());
  return text + ": " + fault.sentence();
}

namespace {

// What is shown of a line that is longer than a terminal is wide: the part around the column.
constexpr size_t kShown = 200;

}  // namespace

void print_fault(const Fault &fault, std::string_view file, uint64_t line, std::string_view source,
                 Output &errors) {
  errors.line("{}", errors.styled(Style::bad, printable(fault_text(fault, file, line))));
  if (fault.column() == 0 || source.empty()) return;
  size_t at = fault.column() - 1;  // in bytes, of the part that is shown
  if (source.size() > kShown && at > kShown / 2) {
    source.remove_prefix(at - kShown / 2);
    at = kShown / 2;
  }
  source = source.substr(0, kShown);
  const size_t blanks = utf8_count(source.substr(0, at));
  const size_t marks = utf8_count(source.substr(at, fault.token_bytes()));
  errors.line("  {}", printable(source));
  errors.line("  {}{}", std::string(blanks, ' '),
              errors.styled(Style::good, std::string(std::max<size_t>(1, marks), '^')));
}

ScriptResult run_script(Runner &runner, std::string_view file, std::string_view text,
                        const ScriptOptions &options) {
  ScriptResult result;
  while (!text.empty()) {
    const size_t end = text.find('\n');
    const std::string_view line = text.substr(0, end);
    text.remove_prefix(end == std::string_view::npos ? text.size() : end + 1);
    ++result.lines;
    const LineOutcome outcome = runner.run({file, result.lines, line});
    if (outcome == LineOutcome::blank) continue;
    ++result.commands;
    if (outcome == LineOutcome::differs) result.differs = true;
    if (outcome != LineOutcome::fault) continue;
    ++result.faults;
    if (!options.keep_going) break;
  }
  return result;
}

}  // namespace tesselctl
