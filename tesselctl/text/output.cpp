#include "tesselctl/text/output.hpp"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <new>

#include "tesselctl/text/fault.hpp"

namespace tesselctl {

namespace {

constexpr size_t kMostAtOnce = size_t{1} << 16;

}  // namespace

void Output::write(std::string_view text) {
  text_ += text;
  const bool goes_out = stream_ != nullptr || sink_ != nullptr;
  if (!goes_out || held_ || text_.size() <= kMostAtOnce) return;
  try {
    flush();
  } catch (const std::bad_alloc &) {
    // It goes out with what comes.
  }
}

void Output::give_to_sink() {
  std::string text = take();
  size_t given = 0;
  try {
    for (; given < text.size(); given += kMostAtOnce) {
      sink_(std::string_view(text).substr(given, kMostAtOnce));
    }
  } catch (const std::bad_alloc &) {
    text.erase(0, given);
    text_ = std::move(text);
    throw;
  }
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
  if (sink_) give_to_sink();
  if (!try_flush()) throw Fault(fmt::format("cannot write the output: {}", std::strerror(errno)));
}

std::string Output::styled(Style style, std::string_view text) const {
  const char *codes[] = {"", "\033[1m", "\033[32m", "\033[1;31m", "\033[2m", "\033[7m", "\033[31m"};
  if (!colour_ || style == Style::plain) return std::string(text);
  return codes[static_cast<int>(style)] + std::string(text) + "\033[0m";
}

std::string aligned(std::span<const TextColumn> columns, const std::vector<std::string> &texts) {
  std::string line;
  for (size_t i = 0; i < texts.size(); ++i) {
    if (i > 0) line += "  ";
    const size_t width = i < columns.size() ? columns[i].width : 0;
    const std::string padding(width - std::min(width, texts[i].size()), ' ');
    line += i < columns.size() && columns[i].is_number ? padding + texts[i] : texts[i] + padding;
  }
  line.erase(line.find_last_not_of(' ') + 1);
  return line;
}

std::string aligned_names(std::span<const TextColumn> columns) {
  std::vector<std::string> names;
  for (const TextColumn &column : columns) names.push_back(column.name);
  return aligned(columns, names);
}

Listing::Listing(std::vector<TextColumn> columns) : columns_(std::move(columns)) {
  for (TextColumn &column : columns_) column.width = column.name.size();
}

void Listing::add(std::vector<std::string> row) {
  for (size_t i = 0; i < row.size(); ++i) {
    columns_[i].width = std::max(columns_[i].width, row[i].size());
  }
  rows_.push_back(std::move(row));
}

void Listing::print(Output &out) const {
  out.line("{}", out.styled(Style::heading, aligned_names(columns_)));
  for (const auto &row : rows_) out.line("{}", aligned(columns_, row));
}

}  // namespace tesselctl
