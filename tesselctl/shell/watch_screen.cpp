#include "tesselctl/shell/watch_screen.hpp"

#include <algorithm>

#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

// From the cursor: up so many lines, to the first column.
std::string up(size_t lines) { return lines == 0 ? "\r" : fmt::format("\033[{}A\r", lines); }
constexpr std::string_view kNoWrap = "\033[?7l";
constexpr std::string_view kWrap = "\033[?7h";
constexpr std::string_view kClearLine = "\033[K";
constexpr std::string_view kClearBelow = "\033[J";

std::vector<std::string_view> words_of_line(std::string_view line) {
  std::vector<std::string_view> words;
  size_t at = 0;
  while ((at = line.find_first_not_of(' ', at)) != line.npos) {
    const size_t end = std::min(line.find(' ', at), line.size());
    words.push_back(line.substr(at, end - at));
    at = end;
  }
  return words;
}

size_t equal_words_in_front(const std::vector<std::string_view> &a,
                            const std::vector<std::string_view> &b) {
  const size_t size = std::min(a.size(), b.size());
  return static_cast<size_t>(
      std::mismatch(a.begin(), a.begin() + static_cast<std::ptrdiff_t>(size), b.begin()).first -
      a.begin());
}

}  // namespace

// The line that this one was is the one that begins most like it.
std::string WatchScreen::marked(const std::string &line) const {
  const bool known = std::find(before_.begin(), before_.end(), line) != before_.end();
  const bool plain = is_first_ || known || line.find('\033') != line.npos;
  if (!out_->colour()) return (plain ? "  " : "* ") + line;
  if (plain) return line;
  const std::vector<std::string_view> words = words_of_line(line);
  std::vector<std::string_view> was;
  size_t best = 0;
  for (const std::string &other : before_) {
    const std::vector<std::string_view> candidate = words_of_line(other);
    const size_t equal = equal_words_in_front(words, candidate);
    if (equal <= best) continue;
    best = equal;
    was = candidate;
  }
  std::string text;
  size_t at = 0;
  for (size_t i = 0; i < words.size(); ++i) {
    const size_t start = static_cast<size_t>(words[i].data() - line.data());
    text += line.substr(at, start - at);
    text += i < was.size() && was[i] == words[i] ? std::string(words[i])
                                                 : out_->styled(Style::changed, words[i]);
    at = start + words[i].size();
  }
  return text + line.substr(at);
}

void WatchScreen::draw(std::string_view head, std::string_view text, size_t rows) {
  std::vector<std::string> lines;
  std::string_view next;
  for (const LineSource source = lines_of(text); source(next);) lines.emplace_back(next);
  // The head, the cursor's line below, and one for what did not fit.
  const size_t room = std::max<size_t>(rows, 4) - 2;
  std::string rest;
  if (lines.size() > room) {
    rest = fmt::format("({} more lines)", lines.size() - (room - 1));
    lines.resize(room - 1);
  }
  std::string frame = up(drawn_) + std::string(kNoWrap);
  const auto add = [&](std::string_view line) { frame += fmt::format("{}{}\n", line, kClearLine); };
  add(out_->styled(Style::faint, head));
  for (const std::string &line : lines) add(marked(line));
  if (!rest.empty()) add(rest);
  out_->write(frame + std::string(kClearBelow) + std::string(kWrap));
  out_->flush();
  drawn_ = 1 + lines.size() + (rest.empty() ? 0 : 1);
  before_ = std::move(lines);
  is_first_ = false;
}

}  // namespace tesselctl
