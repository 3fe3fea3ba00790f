// Where results go: a stream of the process, or a text that a caller takes.
#pragma once

#include <fmt/format.h>

#include <cstdio>
#include <functional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace tesselctl {

enum class Style { plain, heading, good, bad, faint, changed, removed };

class Output {
 public:
  // Collects everything until take.
  Output() = default;
  // Writes to the stream, which stays the caller's. What was not flushed when it is destroyed is
  // written then, and nobody hears of an error.
  Output(std::FILE *stream, bool colour) : stream_(stream), colour_(colour) {}
  // Gives it to the sink in pieces of at most 64 KiB; the sink throws Fault when it cannot take
  // more, and bad_alloc when it took nothing of a piece, which stays then. What was not flushed
  // when it is destroyed is lost.
  explicit Output(std::function<void(std::string_view)> sink) : sink_(std::move(sink)) {}
  ~Output() { try_flush(); }
  Output(const Output &) = delete;
  Output &operator=(const Output &) = delete;

  // Throws bad_alloc when nothing of it was kept, and as flush does.
  void write(std::string_view text);
  template <class... Arguments>
  void line(fmt::format_string<Arguments...> format, Arguments &&...arguments) {
    write(fmt::format(format, std::forward<Arguments>(arguments)...) + "\n");
  }
  // The text in colour where the output has any.
  std::string styled(Style style, std::string_view text) const;
  bool colour() const { return colour_; }
  bool is_stream() const { return stream_ != nullptr; }
  void set_colour(bool colour) { colour_ = colour; }

  // Throws Fault when not everything could be written, bad_alloc when the rest stays.
  void flush();
  // Bytes that were not flushed.
  size_t waiting() const { return text_.size(); }
  std::string take() { return std::move(text_); }

  // While it lives, nothing goes out; take gives what was written.
  class Hold {
   public:
    explicit Hold(Output &out) : out_(&out) { out_->held_ = true; }
    ~Hold() { out_->held_ = false; }
    Hold(const Hold &) = delete;
    Hold &operator=(const Hold &) = delete;

   private:
    Output *out_;
  };

  // While it lives, the sink gets what was to go to the stream. What was not flushed when it is
  // destroyed goes to the stream.
  class Detour {
   public:
    Detour(Output &out, std::function<void(std::string_view)> sink) : out_(&out) {
      out_->sink_ = std::move(sink);
    }
    ~Detour() { out_->sink_ = nullptr; }
    Detour(const Detour &) = delete;
    Detour &operator=(const Detour &) = delete;

   private:
    Output *out_;
  };

 private:
  void give_to_sink();
  bool try_flush() noexcept;

  std::FILE *stream_ = nullptr;
  std::function<void(std::string_view)> sink_;
  bool colour_ = false;
  bool held_ = false;
  std::string text_;
};

// A column of texts that line up; numbers stand to the right.
struct TextColumn {
  std::string name;
  bool is_number = false;
  size_t width = 0;
};
// A text for each column, and maybe one behind them.
std::string aligned(std::span<const TextColumn> columns, const std::vector<std::string> &texts);
// The names of the columns, as a heading.
std::string aligned_names(std::span<const TextColumn> columns);

// Rows in columns that are as wide as the widest text.
class Listing {
 public:
  explicit Listing(std::vector<TextColumn> columns);
  void add(std::vector<std::string> row);
  void print(Output &out) const;

 private:
  std::vector<TextColumn> columns_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace tesselctl
