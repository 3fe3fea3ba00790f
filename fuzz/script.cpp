// Any text as a script: every line answers or is a fault, and its JSON is JSON.
#include "fuzz/target.hpp"

#include <cjson/cJSON.h>

#include <string>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/grammar.hpp"
#include "tesselctl/command/local_runner.hpp"
#include "tesselctl/command/script.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/completion/offers.hpp"
#include "tesselctl/text/files.hpp"

using namespace tesselctl;

namespace {

// Whether the line runs a command that reads or writes files, which the fuzzer must not choose.
bool uses_files(std::string_view line) {
  try {
    std::vector<Word> words;
    Settings settings;
    split_words(line, words);
    take_flags(words, settings);
    if (words.empty()) return false;
    Invocation invocation;
    for (const Argument &argument : grammar_of(find_command(words, invocation).arguments)) {
      for (const std::string_view value : alternatives_of(argument.value)) {
        if (is_file_placeholder(value)) return true;
      }
    }
  } catch (const Fault &) {
    // The runner finds the same fault before it runs anything.
  }
  return false;
}

void require_json_lines(std::string_view text) {
  while (!text.empty()) {
    const size_t end = text.find('\n');
    require(end != text.npos, "an answer in JSON ends its line");
    cJSON *json = cJSON_ParseWithLength(text.data(), end);
    require(cJSON_IsObject(json), "an answer in JSON is an object");
    cJSON_Delete(json);
    text.remove_prefix(end + 1);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *data, size_t size) {
  static const Settings kSettings[] = {
      {}, {.verbose = true, .trace = true}, {.terse = true}, {.json = true}};
  const Settings &settings = kSettings[size % std::size(kSettings)];
  Device device(DeviceOptions{.id = 0, .pipes = 2});
  Output out;
  Output errors;
  LocalRunner runner(device, out, errors, settings);
  const LineSource lines = lines_of(text_of(data, size));
  const auto next = [&](std::string_view &line) {
    bool is_there = lines(line);
    while (is_there && uses_files(line)) is_there = lines(line);
    return is_there;
  };
  run_script(runner, "input", next, {.keep_going = true});
  if (settings.json) require_json_lines(out.take());
  return 0;
}
