#include "tesselctl/topics/soft_functions.hpp"

#include "tesselctl/text/words.hpp"

namespace tesselctl {

namespace {

// The words of a comment, without its marks.
std::string words_of(std::string_view comment) {
  std::string words;
  while (!comment.empty()) {
    const std::string_view word =
        take_until(comment, comment.find('\n') < comment.find(' ') ? '\n' : ' ');
    if (word.empty() || word == "*" || word == "/*" || word == "*/") continue;
    words += (words.empty() ? "" : " ") + std::string(word);
  }
  return words;
}

// Reads a header as what stands in it: comments, and declarations up to their semicolon.
class Reader {
 public:
  explicit Reader(const SoftHeader &header) : header_(header), rest_(header.text) {}

  void read(std::vector<SoftFunction> &functions) {
    while (!rest_.empty()) {
      if (rest_[0] == '\n') {  // an empty line: a comment is about what follows it at once
        note_.clear();
        rest_.remove_prefix(1);
      } else if (rest_.starts_with("/*")) {
        note_ = words_of(take(rest_.find("*/") + 2));
      } else if (rest_[0] == '#' || rest_[0] == '}' || rest_.starts_with("extern \"C\"")) {
        take(rest_.find('\n'));
      } else {
        declare(std::string(take(end_of_declaration())), functions);
      }
    }
  }

 private:
  // What is before the place, and passes the end of its line.
  std::string_view take(size_t end) {
    const std::string_view text = rest_.substr(0, end);
    const size_t line = rest_.find('\n', end);
    rest_.remove_prefix(line == std::string_view::npos ? rest_.size() : line + 1);
    return text;
  }

  size_t end_of_declaration() const {
    const size_t record = rest_.find('{');
    const size_t end = rest_.find(';');
    return (record < end ? rest_.find(';', rest_.find('}', record)) : end) + 1;
  }

  void declare(std::string text, std::vector<SoftFunction> &functions) {
    const size_t name = text.find("soft_");
    const size_t open = text.find('(');
    if (text.starts_with("typedef")) return records_.push_back(std::move(text));
    if (open >= text.size()) return;
    SoftFunction function = {header_.name, text.substr(name, open - name), text, note_, ""};
    for (const std::string &record : records_) {
      const size_t type = record.rfind(' ') + 1;
      const std::string_view named =
          std::string_view(record).substr(type, record.size() - type - 1);
      if (text.find(named) != std::string::npos) function.records += record + "\n";
    }
    functions.push_back(std::move(function));
  }

  const SoftHeader &header_;
  std::string_view rest_;
  std::string note_;
  std::vector<std::string> records_;
};

}  // namespace

std::vector<SoftFunction> soft_functions() {
  std::vector<SoftFunction> functions;
  for (size_t i = 0; i < kSoftHeaderCount; ++i) Reader(kSoftHeaders[i]).read(functions);
  return functions;
}

}  // namespace tesselctl
