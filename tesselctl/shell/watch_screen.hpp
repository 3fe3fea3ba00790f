// Rounds of text on a terminal, each in the place of the one before.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tesselctl/text/output.hpp"

namespace tesselctl {

class WatchScreen {
 public:
  explicit WatchScreen(Output &out) : out_(&out) {}
  // Draws the head and below it the lines of the text that rows leave room for. The words that the
  // round before did not have are marked: in colour, and without colours by a '*' before the line.
  void draw(std::string_view head, std::string_view text, size_t rows);

 private:
  std::string marked(const std::string &line) const;

  Output *out_;
  size_t drawn_ = 0;  // lines above the cursor
  bool is_first_ = true;
  std::vector<std::string> before_;
};

}  // namespace tesselctl
