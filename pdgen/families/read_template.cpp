// Reads text that is written for each object: the outputs, and what families declare.
#include <fmt/format.h>

#include <sstream>

#include "pdgen/families/families.hpp"

namespace pdgen {

namespace {

class TemplateReader {
 public:
  TemplateReader(Place place, Output *output, Diagnostics &diagnostics)
      : place_(std::move(place)), output_(output), diagnostics_(diagnostics) {}

  Block read(const std::string &text) {
    open_.emplace_back();
    open_.back().place = place_;
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
      ++place_.line;
      if (line.starts_with("% ")) {
        read_order(line.substr(2));
      } else if (!line.starts_with("%#")) {
        read_line(line);
      }
    }
    if (open_.size() > 1) diagnostics_.report(place_, "output", "a block has no end");
    while (open_.size() > 1) close();
    return std::move(open_.back());
  }

 private:
  // Orders within a line stand in {% and %}.
  void read_line(std::string_view line) {
    for (std::size_t open = 0; (open = line.find("{% ")) != std::string_view::npos;) {
      add_text(line.substr(0, open));
      const std::size_t close = line.find(" %}", open);
      read_order(std::string(line.substr(open + 3, close - open - 3)));
      line.remove_prefix(std::min(line.size(), close == line.npos ? close : close + 3));
    }
    add_text(std::string(line) + "\n");
  }

  void read_order(std::string order) {
    if (order.starts_with("file ") && output_ != nullptr) {
      open_.front().walk = cut_tail(order, "for each");
      output_->file = {place_, order.substr(5)};
    } else if (order == "end" && open_.size() > 1) {
      close();
    } else if (order == "else" && open_.back().walk.empty() && !open_.back().where.name.empty()) {
      Where where = open_.back().where;
      where.negated = !where.negated;
      close();
      begin(std::move(where));
    } else if (order.starts_with("when ")) {
      begin(where_of(order.substr(5)));
    } else if (order.starts_with("each ")) {
      const std::string separator = cut_tail(order, "with");
      begin(where_of(cut_tail(order, "where")));
      const std::string key = cut_tail(order, "by");
      if (!key.empty()) open_.back().order = {place_, "<" + key + ">"};
      open_.back().walk = order.substr(5);
      if (!separator.empty()) open_.back().separator = separator_of(separator);
    } else {
      diagnostics_.report(place_, "output", "\"{}\" is no file, each, when, else or end of one",
                          order);
    }
  }

  // What stands between the quotation marks; \n is a new line.
  static std::string separator_of(const std::string &quoted) {
    const std::string text = quoted.substr(1, quoted.size() - 2);
    return text.ends_with("\\n") ? text.substr(0, text.size() - 2) + '\n' : text;
  }

  void begin(Where where) {
    open_.emplace_back();
    open_.back().place = place_;
    open_.back().where = std::move(where);
  }

  void add_text(std::string_view text) {
    if (!text.empty()) open_.back().items.emplace_back(StatedText{place_, std::string(text)});
  }

  void close() {
    Block inner = std::move(open_.back());
    open_.pop_back();
    open_.back().items.emplace_back(std::move(inner));
  }

  Place place_;
  Output *output_;
  Diagnostics &diagnostics_;
  std::vector<Block> open_;
};

}  // namespace

Block read_template(const std::string &text, Place place, Output *output,
                    Diagnostics &diagnostics) {
  return TemplateReader(std::move(place), output, diagnostics).read(text);
}

}  // namespace pdgen
