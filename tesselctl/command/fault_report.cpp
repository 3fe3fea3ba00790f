#include "tesselctl/command/fault_report.hpp"

#include <algorithm>

#include "tesselctl/text/files.hpp"
#include "tesselctl/text/utf8.hpp"

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

void print_fault(const Fault &fault, const SourceLine &from, Output &errors) {
  const std::string text =
      fault_text(fault, from.file.empty() ? "tesselctl" : from.file, from.line);
  std::string_view line;
  for (const LineSource next = lines_of(text); next(line);) {
    errors.line("{}", errors.styled(Style::bad, printable(line)));
  }
  std::string_view source = from.text;
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

void report_fault(const Fault &fault, const SourceLine &source, Results &results, bool json,
                  Output &out, Output &errors) {
  results.fail(fault, source.file, source.line);
  out.flush();
  if (json) return;
  print_fault(fault, source, errors);
  errors.flush();
}

}  // namespace tesselctl
