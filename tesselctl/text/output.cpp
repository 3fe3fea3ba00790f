#include "tesselctl/text/output.hpp"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

void Output::write(std::string_view text) {
  text_ += text;
  const bool goes_out = stream_ != nullptr || sink_ != nullptr;
  if (goes_out && !held_ && text_.size() > 1u << 16) flush();
}

bool Output::try_flush() noexcept {
  if (stream_ == nullptr || text_.empty()) return true;
  // Not by the stream's buffer: a signal that comes while a terminal is slow would lose a part.
  bool good = fflush(stream_) == 0;
  for (size_t at = 0; good && at < text_.size();) {
    const ssize_t count = ::write(fileno(stream_), text_.data() + at, text_.size() - at);
    if (count > 0) at += static_cast<size_t>(count);
    good = count > 0 || (count < 0 && errno == EINTR);
  }
  text_.clear();
  return good;
}

void Output::flush() {
  if (held_) return;
  if (sink_ && !text_.empty()) sink_(take());
  if (!try_flush()) throw Fault(fmt::format("cannot write the output: {}", std::strerror(errno)));
}

std::string Output::styled(Style style, std::string_view text) const {
  const char *codes[] = {"", "\033[1m", "\033[32m", "\033[1;31m", "\033[2m", "\033[7m"};
  if (!colour_ || style == Style::plain) return std::string(text);
  return codes[static_cast<int>(style)] + std::string(text) + "\033[0m";
}

Listing::Listing(std::vector<std::string> headings) : headings_(std::move(headings)) {
  for (std::string &heading : headings_) {
    right_.push_back(heading.starts_with('>'));
    if (right_.back()) heading.erase(0, 1);
  }
}

std::string Listing::aligned(const std::vector<std::string> &row,
                             const std::vector<size_t> &widths) const {
  std::string line;
  for (size_t i = 0; i < row.size(); ++i) {
    const std::string padding(widths[i] - row[i].size(), ' ');
    if (i > 0) line += "  ";
    line += right_[i] ? padding + row[i] : row[i] + padding;
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

void Listing::print(Output &out) const {
  std::vector<size_t> widths;
  for (const std::string &heading : headings_) widths.push_back(heading.size());
  for (const auto &row : rows_) {
    for (size_t i = 0; i < row.size(); ++i) widths[i] = std::max(widths[i], row[i].size());
  }
  out.line("{}", out.styled(Style::heading, aligned(headings_, widths)));
  for (const auto &row : rows_) out.line("{}", aligned(row, widths));
}

}  // namespace tesselctl
