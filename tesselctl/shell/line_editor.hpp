// Where the shell reads its lines.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "tesselctl/completion/completion.hpp"
#include "tesselctl/shell/history.hpp"

namespace tesselctl {

// What a line editor asks of the shell.
struct LineHost {
  std::string prompt;  // without control characters
  bool colour = false;
  std::function<Completion(std::string_view line, size_t cursor)> complete;
};

enum class LineEnd { entered, interrupted, end_of_input };

class LineEditor {
 public:
  virtual ~LineEditor() = default;
  // Reads a line from standard input, without the end of line. interrupted: an interrupt
  // was requested instead.
  virtual LineEnd read(std::string &line) = 0;
  // Puts a line where the arrow keys find it.
  virtual void remember(const std::string &line) = 0;
};

// With line editing where the tool is built with it; otherwise one that reads plain lines.
std::unique_ptr<LineEditor> make_line_editor(LineHost host);
bool has_line_editing();

}  // namespace tesselctl
