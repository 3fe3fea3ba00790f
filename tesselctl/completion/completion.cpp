#include "tesselctl/completion/completion.hpp"
#include "tesselctl/command/topic.hpp"

#include <algorithm>
#include <optional>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/grammar.hpp"
#include "tesselctl/command/watch_line.hpp"
#include "tesselctl/completion/field_offers.hpp"
#include "tesselctl/device/entry_line.hpp"

namespace tesselctl {

namespace {

bool is_blank(char c) { return c == ' ' || c == '\t'; }

}  // namespace

Cut cut(std::string_view before) {
  Cut result;
  size_t at = 0;
  while (at < before.size() && !result.in_comment) {
    if (is_blank(before[at])) {
      ++at;
      continue;
    }
    const bool quoted = before[at] == '"';
    result.in_comment = before[at] == '#';
    const size_t begin = quoted ? at + 1 : at;
    at = begin;
    while (at < before.size() && (quoted ? before[at] != '"' : !is_blank(before[at]))) ++at;
    if (at == before.size()) {
      result.start = begin;
      result.quoted = quoted;
      return result;
    }
    result.words.push_back({before.substr(begin, at - begin), begin + 1});
    if (quoted) ++at;
  }
  result.start = before.size();
  return result;
}

namespace {

class Completer {
 public:
  Completer(const Context &context, std::string_view line, size_t cursor)
      : context_(context), cut_(cut(line.substr(0, cursor))) {
    current_ = line.substr(cut_.start, cursor - cut_.start);
    note_behind(line.substr(cursor));
  }

  Completion run() {
    offers_.start_at(cut_.start, current_);
    if (!cut_.in_comment) complete_line();
    return offers_.take();
  }

 private:
  void note_behind(std::string_view behind) {
    // What is left of the word under the cursor goes with that word.
    while (!behind.empty() && !is_blank(behind.front())) behind.remove_prefix(1);
    const Cut rest = cut(behind);
    for (const Word &word : rest.words) note_given(word);
    if (!rest.in_comment) note_given({behind.substr(rest.start), 0});
  }
  void note_given(Word word) {
    const size_t equals = word.text.find('=');
    if (equals != std::string_view::npos) given_.push_back(word.first(equals).text);
  }
  bool is_given(std::string_view name) const {
    return std::find(given_.begin(), given_.end(), name) != given_.end();
  }

  void complete_line();
  bool set_flags_aside();
  void skip_watch();
  bool choose_command();
  void complete_first();
  void complete_flag();
  void complete_flag_value(const Flag *flag);
  void complete_answer_name(bool with_equals);
  void complete_command_name(Words words);
  void complete_arguments();
  void read_arguments();
  void complete_word();
  void complete_names();
  void offer_name(const Argument &argument);
  // Rather than another one of many tables, as long as no letter of one is there.
  bool wants_fields() const { return command_->offer_fields != nullptr && current_.empty(); }
  void offer_outcome();
  void offer_action_parameters();
  bool is_taken(const Argument &argument) const;
  void complete_value(std::string_view name);
  void complete_handle(std::string_view name);
  void complete_value_of(const Argument &argument);

  const Context &context_;
  const Cut cut_;
  std::string_view current_;
  Offers offers_;
  std::vector<std::string_view> given_;  // names of NAME=VALUE words
  std::vector<Word> words_;              // before the cursor, without "--" words
  std::vector<const Flag *> flags_;      // that are given
  const Flag *open_flag_ = nullptr;      // it wants a value, and the current word is that
  bool watched_ = false;                 // the command stands behind watch
  const Command *command_ = nullptr;
  std::vector<Argument> grammar_;
  Words arguments_;   // behind the command
  size_t alone_ = 0;  // words among them that are no NAME=VALUE
  Subject subject_;
  std::string_view action_;  // that action= chose
};

// Sets the "--" words aside, which may stand anywhere.
bool Completer::set_flags_aside() {
  for (size_t i = 0; i < cut_.words.size(); ++i) {
    const Word word = cut_.words[i];
    if (!is_flag(word.text)) {
      words_.push_back(word);
      continue;
    }
    const Flag *flag = find_flag(word.text);
    if (flag == nullptr) continue;
    flags_.push_back(flag);
    if (flag->wants_next(word.text) && ++i == cut_.words.size()) open_flag_ = flag;
  }
  return open_flag_ == nullptr;
}

// What watch repeats is completed as a command of its own.
void Completer::skip_watch() {
  if (words_.empty() || words_[0].text != "watch") return;
  watched_ = true;
  const auto first = words_.begin() + static_cast<ptrdiff_t>(words_of_watch(words_));
  const bool counts = (first - 1)->text.starts_with("count=");
  words_.erase(words_.begin(), first);
  if (words_.empty() && !counts) offers_.offer("count=", "the number of rounds; may be left out");
}

void Completer::complete_line() {
  const bool flags_are_whole = set_flags_aside();
  skip_watch();
  if (choose_command()) read_arguments();
  if (!flags_are_whole) return complete_flag_value(open_flag_);
  if (current_.starts_with('-') && command_ != nullptr) return complete_flag();
  if (words_.empty()) return complete_first();
  if (command_ == nullptr) return complete_command_name(words_);
  complete_arguments();
  if (current_.empty() && arguments_.empty()) complete_command_name(words_);
}

bool Completer::choose_command() {
  if (words_.empty()) return false;
  Invocation invocation;
  try {
    command_ = &find_command(words_, invocation);
  } catch (const Fault &) {
    return false;
  }
  grammar_ = grammar_of(command_->arguments);
  arguments_ = invocation.arguments;
  return true;
}

void Completer::complete_first() {
  std::vector<std::string_view> seen;
  for_each_shown_command([&](const Command &command) {
    if (watched_ && !can_be_watched(command)) return;
    // Behind "help" all are right.
    if (command.where == Where::command_line && command_ == nullptr) return;
    const std::string_view first = command.first_word();
    if (std::find(seen.begin(), seen.end(), first) != seen.end()) return;
    seen.push_back(first);
    std::string help;
    for_each_shown_command([&](const Command &other) {
      if (other.first_word() != first || other.second_word().empty()) return;
      help += (help.empty() ? "" : ", ") + std::string(other.second_word());
    });
    offers_.offer(first, command.name == first ? command.summary : help);
  });
}

void Completer::complete_command_name(Words words) {
  if (words.empty()) return complete_first();
  if (words.size() != 1) return;
  for_each_shown_command([&](const Command &command) {
    if (command.first_word() != words[0].text || command.second_word().empty()) return;
    offers_.offer(command.second_word(), command.summary);
  });
}

// ---- Words that begin with "--" ----

void Completer::complete_flag() {
  if (const size_t equals = current_.find('='); equals != std::string_view::npos) {
    offers_.start_at(cut_.start + equals + 1, current_.substr(equals + 1));
    return complete_flag_value(find_flag(current_));
  }
  for (const Flag &flag : all_flags()) {
    const bool again = flag.name == "--filter";
    const bool given = std::find(flags_.begin(), flags_.end(), &flag) != flags_.end();
    if (takes_flag(*command_, flag) && (again || !given)) offers_.offer(flag.name, flag.help);
  }
}

void Completer::complete_flag_value(const Flag *flag) {
  if (command_ == nullptr || flag == nullptr || !takes_flag(*command_, *flag)) return;
  if (!flag->value.empty()) complete_answer_name(flag->value != "NAME");
}

// The names of what the command answers; behind one the values, where they are words.
void Completer::complete_answer_name(bool with_equals) {
  std::string_view value = offers_.typed();
  const std::string_view name = take_until(value, '=');
  if (name.size() != offers_.typed().size()) {
    if (name != "action" || subject_.actions().empty())
      return offers_.hint(meaning_of_value("NAME=PATTERN"));
    offers_.start_at(cut_.start + current_.size() - value.size(), value);
    return offer_actions(offers_, subject_, command_->name);
  }
  if (!subject_.table) return offers_.hint("a name of the answer");
  offer_answer_names(offers_, subject_, with_equals ? "=" : "");
}

// ---- Arguments ----

void Completer::complete_arguments() {
  const size_t equals = current_.find('=');
  if (equals == std::string_view::npos || cut_.quoted) return complete_word();
  offers_.start_at(cut_.start + equals + 1, current_.substr(equals + 1));
  complete_value(current_.substr(0, equals));
}

void Completer::read_arguments() {
  for (const Word &word : arguments_) {
    const size_t equals = word.text.find('=');
    if (equals == std::string_view::npos) {
      add_subject(subject_, grammar_, alone_++, word);
      continue;
    }
    note_given(word);
    if (word.text.starts_with("action=")) action_ = word.text.substr(7);
  }
}

// A word without '=' so far: one that stands alone, or the name of one with '='.
void Completer::complete_word() {
  size_t at = 0;
  for (const Argument &argument : grammar_) {
    if (!argument.stands_alone() || argument.value == "OUTCOME") continue;
    const bool passed = at++ < alone_;
    if (passed && (!argument.repeated || wants_fields())) continue;
    complete_value_of(argument);
    if (!argument.optional && !passed) return;
    break;
  }
  complete_names();
}

void Completer::complete_names() {
  const size_t before = offers_.count();
  offer_action_parameters();
  // Behind an action that is written out in the grammar, nothing but parameters may stand.
  const bool has_outcome = std::any_of(grammar_.begin(), grammar_.end(),
                                       [](const Argument &it) { return it.value == "OUTCOME"; });
  if (!action_.empty() && !has_outcome) return;
  for (const Argument &argument : grammar_) {
    if (argument.value == "OUTCOME") {
      offer_outcome();
    } else if (!argument.stands_alone()) {
      offer_name(argument);
    }
  }
  if (offers_.count() == before && current_.empty() && !offers_.has_hint()) {
    offers_.hint("the end of the command, or --json, --terse and other options");
  }
}

// Whether another argument of the choice is given, or this one.
bool Completer::is_taken(const Argument &argument) const {
  const auto is_key = [&](const Argument &one) {
    if (one.name != "FIELD" || !subject_.table) return false;
    return std::any_of(given_.begin(), given_.end(), [&](std::string_view name) {
      return subject_.field_of(name, grammar_) != nullptr;
    });
  };
  if (argument.name != "FIELD" && is_given(argument.name)) return true;
  return std::any_of(grammar_.begin(), grammar_.end(), [&](const Argument &other) {
    if (other.choice != argument.choice || other.name == argument.name) return false;
    return is_given(other.name) || is_key(other);
  });
}

void Completer::offer_name(const Argument &argument) {
  if (argument.name == "PARAM" || is_taken(argument)) return;
  if (argument.name == "FIELD" && command_->offer_fields != nullptr) {
    return command_->offer_fields(offers_, context_, arguments_, {});
  }
  if (argument.name == "FIELD") return offer_fields(offers_, subject_, grammar_, given_);
  if (!subject_.takes(argument.name)) return;
  std::string help(meaning_of_name(argument.name));
  if (help.empty()) help = meaning_of_value(argument.value);
  if (help.empty()) help = argument.value;
  if (argument.optional) help += "; may be left out";
  offers_.offer(std::string(argument.name) + "=", help);
}

void Completer::offer_outcome() {
  if (!subject_.table || is_given("action") || is_given("member") || is_given("group")) return;
  if (!subject_.table->indirect()) return offers_.offer("action=", meaning_of_name("action"));
  offers_.offer("member=", meaning_of_name("member"));
  if (subject_.handles.contains("group")) {
    offers_.offer("group=", meaning_of_name("group"));
  }
}

void Completer::offer_action_parameters() {
  if (const bindings::Record *action = subject_.action_of(action_)) {
    offer_parameters(offers_, *action, given_);
  }
}

void Completer::complete_value(std::string_view name) {
  if (const bindings::Record *action = subject_.action_of(action_)) {
    if (const Field *field = find_field(*action, name)) {
      return offer_values(offers_, *field, false);
    }
  }
  if (name == "action") return offer_actions(offers_, subject_, command_->name);
  for (const Argument &argument : grammar_) {
    if (argument.name == name && subject_.takes(name)) return complete_value_of(argument);
    if (argument.value == "OUTCOME" && (name == "member" || name == "group")) {
      return complete_value_of({.name = name, .value = "HANDLE"});
    }
  }
  if (command_->offer_fields != nullptr) {
    return command_->offer_fields(offers_, context_, arguments_, name);
  }
  if (const Field *field = subject_.field_of(name, grammar_)) {
    offer_values(offers_, *field, true);
  }
}

void Completer::complete_handle(std::string_view name) {
  for (const auto &[label, handle] : context_.labels) {
    offers_.offer("$" + label, "remembered: " + std::to_string(handle));
  }
  if (offers_.typed().starts_with('$')) return;
  const size_t before = offers_.count();
  try {
    const auto found = subject_.handles.find(name);
    if (found != subject_.handles.end()) found->second(offers_, context_.device);
  } catch (const Fault &) {
    // The device does not say; what was offered before stays.
  }
  if (offers_.count() == before) offers_.hint(meaning_of_value("HANDLE"));
}

void Completer::complete_value_of(const Argument &argument) {
  for (const std::string_view value : alternatives_of(argument.value)) {
    if (!is_placeholder(value)) {
      if (value != "-") offers_.offer(value, {});
    } else if (value == "HANDLE") {
      complete_handle(argument.name);
    } else if (value == "COMMAND") {
      complete_command_name(arguments_);
    } else if (is_file_placeholder(value)) {
      offers_.offer_files(context_.directory, cut_.quoted);
    } else if (const ObjectWord *word = find_object_word(value)) {
      word->offer(offers_, context_, *command_, arguments_);
    } else {
      const std::string_view of_name = meaning_of_name(argument.name);
      const std::string_view meaning = of_name.empty() ? meaning_of_value(value) : of_name;
      offers_.hint(meaning.empty() ? value : meaning);
    }
  }
}

}  // namespace

Completion complete(const Context &context, std::string_view line, size_t cursor) {
  try {
    return Completer(context, line, std::min(cursor, line.size())).run();
  } catch (const Fault &) {
    return {};
  }
}

}  // namespace tesselctl
