// Ties texts to the vocabulary: whatever they name must be known there.
#include <algorithm>
#include <sstream>

#include "pdgen/families/scope.hpp"

namespace pdgen {

StatedText Binder::text(const Kinds &kinds, std::string_view text, const Place &place,
                        std::string_view key) const {
  StatedText bound;
  std::size_t done = 0;
  for (std::size_t open = text.find('<'); open != text.npos; open = text.find('<', open + 1)) {
    const std::size_t end =
        std::min(text.find_first_not_of(kWordCharacters, open + 1), text.size());
    const bool included = text.substr(0, open).ends_with("#include ");
    if (included || end == text.size() || text[end] != '>' || end == open + 1) continue;
    const std::string_view name = text.substr(open + 1, end - open - 1);
    const std::string before(text.substr(done, open - done));
    const bool begins_comment = before == "// " || before == " * " || before == "# ";
    bound.pieces.push_back({before, find_placeholder(kinds, name), begins_comment});
    done = end + 1;
    if (bound.pieces.back().placeholder || kinds.empty()) continue;
    diagnostics_.report(place, key, "<{}> is no placeholder of {}", name, kinds.back());
  }
  if (done < text.size()) bound.pieces.push_back({std::string(text.substr(done)), nullptr});
  return bound;
}

Where Binder::where(const Kinds &kinds, std::string_view condition, const Place &place) const {
  if (condition.empty()) return nullptr;
  const bool negated = condition.starts_with("not ");
  if (negated) condition.remove_prefix(4);
  const Where holds = find_condition(kinds, condition);
  if (!holds && !kinds.empty()) {
    diagnostics_.report(place, "where", "{} is no condition of {}", condition, kinds.back());
  }
  if (!negated) return holds;
  return [holds](const Scope &scope) { return !holds(scope); };
}

const Walk *Binder::walk(Kinds &kinds, std::string_view name, const Place &place) const {
  const Walk *walk = find_walk(kinds, name);
  if (walk == nullptr) diagnostics_.report(place, "each", "there is no \"each {}\" here", name);
  kinds = walk == nullptr ? Kinds{} : kinds_within(kinds, *walk);
  return walk;
}

namespace {

class TemplateReader {
 public:
  TemplateReader(Place place, Kinds kinds, Output *output, const Binder &binder,
                 Diagnostics &diagnostics)
      : place_(std::move(place)), output_(output), binder_(binder), diagnostics_(diagnostics) {
    open_.push_back({{}, std::move(kinds), ""});
  }

  Block read(const std::string &text) {
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
    return std::move(open_.back().block);
  }

 private:
  struct Open {
    Block block;
    Kinds kinds;
    std::string condition;  // of "when"
  };

  // Orders within a line stand in {% and %}.
  void read_line(std::string_view line) {
    for (std::size_t open = 0; (open = line.find("{% ")) != std::string_view::npos;) {
      add_text(line.substr(0, open));
      const std::size_t close = line.find(" %}", open);
      if (close == line.npos) {
        return diagnostics_.report(place_, "output", "\"{}\" has no %}}", line.substr(open));
      }
      read_order(std::string(line.substr(open + 3, close - open - 3)));
      line.remove_prefix(close + 3);
    }
    add_text(std::string(line) + "\n");
  }

  void read_order(std::string order) {
    if (order.starts_with("file ") && output_ != nullptr) {
      read_file(order.substr(5));
    } else if (order == "end" && open_.size() > 1) {
      close();
    } else if (order == "else" && !open_.back().condition.empty()) {
      const std::string condition = "not " + open_.back().condition;
      close();
      begin(condition);
    } else if (order.starts_with("when ")) {
      begin(order.substr(5));
      open_.back().condition = order.substr(5);
    } else if (order.starts_with("each ")) {
      read_each(order.substr(5));
    } else {
      diagnostics_.report(place_, "output", "\"{}\" is no file, each, when, else or end of one",
                          order);
    }
  }

  void read_file(std::string name) {
    auto &[block, kinds, condition] = open_.front();
    const std::string walk = cut_tail(name, "for each");
    if (!walk.empty()) block.objects = binder_.walk(kinds, walk, place_);
    if (name.starts_with("--")) output_->file_option = name;
    output_->file = binder_.text(kinds, name, place_, "file");
  }

  void read_each(std::string head) {
    const std::string separator = cut_tail(head, "with");
    const std::string condition = cut_tail(head, "where");
    const std::string key = cut_tail(head, "by");
    begin("");
    auto &[block, kinds, unused] = open_.back();
    block.objects = binder_.walk(kinds, head, place_);
    block.where = binder_.where(kinds, condition, place_);
    if (!key.empty()) block.order = binder_.text(kinds, "<" + key + ">", place_, "each");
    if (separator.empty()) return;
    if (separator.size() < 2 || separator[0] != '"' || separator.back() != '"') {
      return diagnostics_.report(place_, "each", "{} must stand in quotation marks", separator);
    }
    block.separator = separator.substr(1, separator.size() - 2);
    if (block.separator.ends_with("\\n"))
      block.separator.replace(block.separator.size() - 2, 2, "\n");
  }

  void begin(const std::string &condition) {
    const Kinds kinds = open_.back().kinds;
    open_.push_back({{}, kinds, ""});
    open_.back().block.where = binder_.where(kinds, condition, place_);
  }

  void add_text(std::string_view text) {
    if (text.empty()) return;
    auto &[block, kinds, condition] = open_.back();
    block.items.emplace_back(binder_.text(kinds, text, place_, output_ ? "output" : "declare"));
  }

  void close() {
    Block inner = std::move(open_.back().block);
    open_.pop_back();
    open_.back().block.items.emplace_back(std::move(inner));
  }

  Place place_;
  Output *output_;
  const Binder &binder_;
  Diagnostics &diagnostics_;
  std::vector<Open> open_;
};

}  // namespace

Block Binder::block(const std::string &text, Place place, const Kinds &kinds,
                    Output *output) const {
  return TemplateReader(std::move(place), kinds, output, *this, diagnostics_).read(text);
}

}  // namespace pdgen
