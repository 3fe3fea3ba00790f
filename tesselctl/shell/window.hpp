// The window of a terminal.
#pragma once

#include <sys/ioctl.h>

#include <cstddef>

namespace tesselctl {

struct Window {
  size_t rows = 24;
  size_t columns = 80;
};

// As it is now; of a terminal that does not say, the usual one.
inline Window window_of(int terminal) {
  Window window;
  winsize size = {};
  if (ioctl(terminal, TIOCGWINSZ, &size) != 0) return window;
  if (size.ws_row != 0) window.rows = size.ws_row;
  if (size.ws_col != 0) window.columns = size.ws_col;
  return window;
}

}  // namespace tesselctl
