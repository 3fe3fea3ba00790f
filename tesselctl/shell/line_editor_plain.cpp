// Lines as the terminal gives them, where no editing library is built in.
#include <cstdio>

#include "tesselctl/shell/line_editor.hpp"
#include "tesselctl/shell/line_input.hpp"

namespace tesselctl {

namespace {

class PlainLines : public LineEditor {
 public:
  explicit PlainLines(LineHost host) : host_(std::move(host)) {}

  LineEnd read(std::string &line) override {
    std::fputs(host_.prompt.c_str(), stdout);
    std::fflush(stdout);
    line.clear();
    while (true) {
      char c = 0;
      const Input input = read_input_byte(c);
      if (input == Input::interrupted) return LineEnd::interrupted;
      if (input == Input::end) return line.empty() ? LineEnd::end_of_input : LineEnd::entered;
      if (c == '\n') return LineEnd::entered;
      line += c;
    }
  }
  void remember(const std::string &) override {}

 private:
  LineHost host_;
};

}  // namespace

std::unique_ptr<LineEditor> make_line_editor(LineHost host) {
  return std::make_unique<PlainLines>(std::move(host));
}
bool has_line_editing() { return false; }

}  // namespace tesselctl
