#include "tesselctl/shell/line_input.hpp"

#include <fcntl.h>
#include <poll.h>
#include <unistd.h>

#include <cerrno>

#include "tesselctl/shell/line_editor.hpp"

namespace tesselctl {

namespace {

// A flag would be missed when the signal comes between the look at it and the wait.
struct Pipe {
  int ends[2] = {-1, -1};
  Pipe() {
    if (pipe2(ends, O_CLOEXEC | O_NONBLOCK) != 0) ends[0] = ends[1] = -1;
  }
};
const Pipe &wake_pipe() {
  static const Pipe pipe;
  return pipe;
}
// For the handler, which makes nothing.
int wake_end = -1;

}  // namespace

void begin_line() {
  wake_end = wake_pipe().ends[1];
  char bytes[64];
  while (read(wake_pipe().ends[0], bytes, sizeof bytes) > 0) {
  }
}

void interrupt_line() noexcept {
  const int before = errno;
  const char byte = 0;
  // A full pipe wakes as well.
  if (write(wake_end, &byte, 1) < 0) errno = before;
}

Input read_input_byte(char &byte) {
  pollfd waits[] = {{STDIN_FILENO, POLLIN, 0}, {wake_pipe().ends[0], POLLIN, 0}};
  while (true) {
    if (poll(waits, 2, -1) < 0 && errno != EINTR) return Input::end;
    if (waits[1].revents != 0) return Input::interrupted;
    if (waits[0].revents == 0) continue;
    const ssize_t count = read(STDIN_FILENO, &byte, 1);
    if (count > 0) return Input::byte;
    if (count == 0 || errno != EINTR) return Input::end;
  }
}

}  // namespace tesselctl
