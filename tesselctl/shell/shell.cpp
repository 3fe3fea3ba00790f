#include "tesselctl/shell/shell.hpp"

#include <algorithm>

#include "tesselctl/completion/completion.hpp"
#include "tesselctl/shell/history.hpp"
#include "tesselctl/shell/line_editor.hpp"

namespace tesselctl {

namespace {

constexpr std::string_view kPrompt = "tesselctl> ";
constexpr std::string_view kEndings[] = {"exit", "quit"};

bool ends_shell(std::string_view line) {
  return std::find(std::begin(kEndings), std::end(kEndings), line) != std::end(kEndings);
}

Completion complete_for_shell(Runner &runner, std::string_view line, size_t cursor) {
  clear_interrupt();
  Completion completion = read_completion(runner.ask(completion_request(line, cursor)));
  const std::string_view typed = line.substr(0, cursor);
  if (completion.start == typed.find_first_not_of(" \t") || trimmed(typed).empty()) {
    for (const std::string_view word : kEndings) {
      if (word.starts_with(trimmed(typed))) {
        completion.start = cursor - trimmed(typed).size();
        completion.candidates.push_back({std::string(word), "leaves the shell"});
      }
    }
  }
  return completion;
}

}  // namespace

void run_shell(Runner &runner, Output &out, const ShellOptions &options) {
  const SignalScope scope({SIGINT, SIGTERM, SIGHUP}, take_signal);
  const History history(options.history);
  const std::unique_ptr<LineEditor> editor =
      make_line_editor({.prompt = std::string(kPrompt),
                        .colour = out.colour(),
                        .complete = [&](std::string_view line, size_t cursor) {
                          return complete_for_shell(runner, line, cursor);
                        }});
  std::string last;
  for (const std::string &line : history.load()) editor->remember(last = line);
  std::string line;
  while (!end_requested()) {
    clear_interrupt();
    const LineEnd end = editor->read(line);
    if (end != LineEnd::entered) {
      out.write("\n");
      out.flush();
      if (end == LineEnd::interrupted) continue;
      return;
    }
    const std::string_view command = trimmed(line);
    if (command.empty()) continue;
    if (command != last) {
      last = command;
      editor->remember(last);
      history.add(last);
    }
    if (ends_shell(command)) return;
    runner.run({{}, 0, command});
    out.flush();
  }
}

}  // namespace tesselctl
