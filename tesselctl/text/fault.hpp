// What is wrong with a command, and where: the one error type of the tool. Messages are plain
// sentences without a full stop, so that places and suggestions can be put around them.
#pragma once

#include <cstddef>
#include <exception>
#include <string>
#include <string_view>

namespace tesselctl {

// A word of a command line. The text belongs to the line; the column counts from 1.
struct Word {
  std::string_view text;
  size_t column = 0;

  // The part behind the first n characters, at its own column.
  Word from(size_t n) const { return {text.substr(n), column + n}; }
  Word first(size_t n) const { return {text.substr(0, n), column}; }
};

class Fault : public std::exception {
 public:
  // A fault of the whole command or of the surroundings.
  explicit Fault(std::string message) : message_(std::move(message)) {}
  // A fault at a word; suggestion is a word that would do, or empty.
  Fault(Word word, std::string message, std::string suggestion = {})
      : token_(word.text.substr(0, kShownToken)),
        token_bytes_(word.text.size()),
        column_(word.column),
        message_(std::move(message)),
        suggestion_(std::move(suggestion)) {
    if (token_.size() < token_bytes_) token_ += "...";
  }

  // The same fault, of which more is known.
  Fault with(const std::string &more) const {
    Fault fault = *this;
    fault.message_ += more;
    return fault;
  }

  const char *what() const noexcept override { return message_.c_str(); }
  const std::string &message() const { return message_; }
  // The word, or the beginning of a long one with "..." behind it.
  const std::string &token() const { return token_; }
  size_t token_bytes() const { return token_bytes_; }
  size_t column() const { return column_; }
  const std::string &suggestion() const { return suggestion_; }

  // "'token': message; did you mean 'suggestion'?"
  std::string sentence() const {
    std::string text;
    if (column_ != 0) text += "'" + token_ + "': ";
    text += message_;
    if (!suggestion_.empty()) text += "; did you mean '" + suggestion_ + "'?";
    return text;
  }

 private:
  static constexpr size_t kShownToken = 60;

  std::string token_;
  size_t token_bytes_ = 0;
  size_t column_ = 0;
  std::string message_;
  std::string suggestion_;
};

}  // namespace tesselctl
