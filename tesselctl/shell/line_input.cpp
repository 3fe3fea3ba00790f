#include "tesselctl/shell/line_input.hpp"

#include <unistd.h>

#include <cerrno>

#include "tesselctl/text/interrupt.hpp"

namespace tesselctl {

Input read_input_byte(char &byte) {
  while (true) {
    if (!wait_for_input(STDIN_FILENO)) return Input::interrupted;
    const ssize_t count = read(STDIN_FILENO, &byte, 1);
    if (count > 0) return Input::byte;
    if (count == 0 || errno != EINTR) return Input::end;
  }
}

}  // namespace tesselctl
