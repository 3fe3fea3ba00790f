// Lines as the terminal gives them, where no editing library is built in.
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <cstdio>

#include "tesselctl/line_editor.hpp"

namespace tesselctl {

namespace {

std::atomic<bool> interrupted = false;

class PlainLines : public LineEditor {
 public:
  explicit PlainLines(LineHost host) : host_(std::move(host)) {}

  LineEnd read(std::string &line) override {
    interrupted = false;
    std::fputs(host_.prompt.c_str(), stdout);
    std::fflush(stdout);
    line.clear();
    while (true) {
      char c = 0;
      const ssize_t count = ::read(STDIN_FILENO, &c, 1);
      if (count < 0 && errno == EINTR && !interrupted) continue;
      if (count < 0 && errno == EINTR) return LineEnd::interrupted;
      if (count <= 0) return line.empty() ? LineEnd::end_of_input : LineEnd::entered;
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
void interrupt_line() noexcept { interrupted = true; }

}  // namespace tesselctl
