#include "tesselctl/http/json_answer.hpp"

#include <algorithm>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/grammar.hpp"
#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/completion/completion.hpp"
#include "tesselctl/completion/offers.hpp"

namespace tesselctl {

namespace {

constexpr size_t kMostAnswer = size_t{16} << 20;

bool takes_file(const Command &command) {
  return std::ranges::any_of(grammar_of(command.arguments), [](const Argument &argument) {
    return std::ranges::any_of(alternatives_of(argument.value), is_file_placeholder);
  });
}

bool only_asks(const Command &command) {
  const bool asks = command.kind == Kind::asks || command.kind == Kind::lists;
  return asks && command.where == Where::device && !command.hidden && !takes_file(command);
}

HttpAnswer fault_answer(int status, const Fault &fault, std::string_view line) {
  Output out;
  Results results(out);
  results.begin({.json = true}, line, false);
  results.fail(fault, {}, 0);
  return {status, "application/json", out.take()};
}

// The command of the line; null where another fault comes before. Throws Fault when there is none.
const Command *command_of(const std::string &line) {
  std::vector<Word> words;
  Settings settings;
  try {
    split_words(line, words);
    take_flags(words, settings);
  } catch (const Fault &) {
    return nullptr;
  }
  Invocation invocation;
  if (words.empty()) throw Fault("a command is missing");
  return &find_command(words, invocation);
}

HttpAnswer run(Device &device, Journal *journal, const std::string &line) {
  HttpAnswer answer = {200, "application/json", {}};
  bool is_whole = true;
  Output out([&](std::string_view piece) {
    is_whole = is_whole && answer.body.size() + piece.size() <= kMostAnswer;
    if (!is_whole) {
      throw Fault("the answer is longer than 16 MiB; --filter and --count make it shorter");
    }
    answer.body += piece;
  });
  Output errors;
  try {
    LocalRunner runner(device, out, errors, {.json = true});
    runner.context().journal = journal;
    if (runner.run({{}, 0, line}) == LineOutcome::fault) answer.status = 400;
    out.flush();
    return answer;
  } catch (const Fault &fault) {
    return fault_answer(400, fault, line);
  }
}

}  // namespace

std::string line_of(std::string_view path, std::string_view query) {
  std::string line;
  const auto add = [&](const std::string &word) {
    line += (line.empty() ? "" : " ") + written({word, 0});
  };
  while (!path.empty()) {
    const std::string_view word = take_until(path, '/');
    if (!word.empty()) add(decode_line(word));
  }
  while (!query.empty()) {
    std::string word(take_until(query, '&'));
    std::ranges::replace(word, '+', ' ');
    add(decode_line(word));
  }
  return line;
}

HttpAnswer json_answer(Device &device, Journal *journal, const std::string &line) {
  try {
    const Command *command = command_of(line);
    if (command == nullptr || only_asks(*command)) return run(device, journal, line);
  } catch (const Fault &fault) {
    return fault_answer(404, fault, line);
  }
  const Fault refused("HTTP runs commands that only ask the device, without files");
  return fault_answer(403, refused, line);
}

}  // namespace tesselctl
