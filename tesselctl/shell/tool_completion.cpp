#include "tesselctl/shell/tool_completion.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/program/module.hpp"

#include <algorithm>
#include <cstdlib>

namespace tesselctl {

namespace {

// What a shell makes of "~/".
std::string at_home(std::string_view path) {
  const char *home = std::getenv("HOME");
  if (!path.starts_with("~/") || home == nullptr) return std::string(path);
  return home + std::string(path.substr(1));
}

class ToolCompleter {
 public:
  ToolCompleter(const ToolSettings &settings, std::string line, size_t cursor)
      : settings_(settings),
        line_(std::move(line)),
        cursor_(cursor),
        cut_(cut(std::string_view(line_).substr(0, cursor))) {}

  Completion run(const LineCompleter &complete_line) {
    std::string rest = take_own_flags();
    const std::string_view typed = std::string_view(line_).substr(cut_.start, cursor_ - cut_.start);
    offers_.start_at(cut_.start, typed);
    if (open_ == nullptr && is_flag(typed) && typed.find('=') != std::string_view::npos) {
      offers_.start_at(cut_.start + typed.find('=') + 1, typed.substr(typed.find('=') + 1));
      open_ = find_own(typed);
    }
    if (open_ != nullptr) {
      offer_value();
      return offers_.take();
    }
    Completion others = complete_line(settings_, rest, cursor_);
    if (typed.starts_with('-') || !has_command_) offer_words(typed);
    Completion own = offers_.take();
    if (others.candidates.empty() && others.hint.empty()) return own;
    others.candidates.insert(others.candidates.end(), own.candidates.begin(), own.candidates.end());
    return others;
  }

 private:
  static const Flag *find_own(std::string_view word) {
    const Flag *flag = find_flag(word);
    return flag != nullptr && flag->of == FlagOf::tool ? flag : nullptr;
  }

  // The line with blanks for the tool's own options, so that every other word keeps its place.
  std::string take_own_flags() {
    std::string rest = line_;
    const auto blank = [&](Word word) {
      const size_t quotes = word.column >= 2 && rest[word.column - 2] == '"' ? 1 : 0;
      const size_t start = word.column - 1 - quotes;
      const size_t end = word.column - 1 + word.text.size() + quotes;
      std::fill_n(rest.begin() + static_cast<ptrdiff_t>(start), end - start, ' ');
    };
    for (size_t i = 0; i < cut_.words.size(); ++i) {
      const Word word = cut_.words[i];
      const Flag *flag = is_flag(word.text) ? find_flag(word.text) : nullptr;
      has_command_ = has_command_ || !is_flag(word.text);
      if (flag == nullptr) continue;
      const bool has_next = flag->wants_next(word.text);
      const bool is_open = has_next && i + 1 == cut_.words.size();
      if (flag->of == FlagOf::tool) {
        blank(word);
        given_.push_back(flag);
        if (is_open) open_ = flag;
        if (has_next && !is_open) blank(cut_.words[i + 1]);
        if (!is_open) set(*flag, has_next ? cut_.words[i + 1] : word.from(word.text.find('=') + 1));
      }
      if (has_next) ++i;
    }
    return rest;
  }

  void set(const Flag &flag, Word value) {
    const std::string path = at_home(value.text);
    try {
      flag.set(settings_, {path, value.column});
    } catch (const Fault &) {
      // The tool reports it when it is run.
    }
  }

  void offer_value() {
    if (open_->value == "FILE" || open_->value == "PATH")
      return offers_.offer_files({}, cut_.quoted);
    if (open_->name == "--program") {
      if (offers_.typed().find('/') != std::string_view::npos)
        return offers_.offer_files({}, cut_.quoted);
      for (const std::string &name : program_names()) offers_.offer(name, "program");
      return;
    }
    offers_.hint(open_->help);
  }

  // Options, and before a command those that are commands nowhere else.
  void offer_words(std::string_view typed) {
    for (const Flag &flag : all_flags()) {
      const bool own = flag.of == FlagOf::tool || (flag.of == FlagOf::all && !has_command_);
      const bool given = std::find(given_.begin(), given_.end(), &flag) != given_.end();
      if (own && !given && typed.starts_with('-')) offers_.offer(flag.name, flag.help);
    }
    for_each_shown_command([&](const Command &command) {
      if (command.where != Where::command_line || has_command_) return;
      offers_.offer(command.name, command.summary);
    });
  }

  ToolSettings settings_;
  const std::string line_;
  const size_t cursor_;
  const Cut cut_;
  std::vector<const Flag *> given_;
  const Flag *open_ = nullptr;  // the word at the cursor is its value
  bool has_command_ = false;
  Offers offers_;
};

}  // namespace

Completion complete_tool_line(const ToolSettings &settings, std::string line, size_t cursor,
                              const LineCompleter &complete_line) {
  cursor = std::min(cursor, line.size());
  return ToolCompleter(settings, std::move(line), cursor).run(complete_line);
}

}  // namespace tesselctl
