// The state that the library keeps of a device.
#include <cjson/cJSON.h>

#include <algorithm>
#include <memory>

#include "soft_sdk.h"
#include "tesselctl/command/output_file.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/text/files.hpp"

namespace tesselctl {

namespace {

struct DeleteJson {
  void operator()(cJSON *item) const { cJSON_Delete(item); }
  void operator()(char *text) const { cJSON_free(text); }
};

void state_log(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  const std::unique_ptr<cJSON, DeleteJson> document(cJSON_CreateObject());
  check(soft_device_log(context.device.id(), document.get()), word);
  const std::unique_ptr<char, DeleteJson> text(cJSON_Print(document.get()));
  if (!text) throw Fault(word, "there is no memory for the text");
  OutputFile file(context, word);
  file.write(text.get());
  file.write("\n");
  file.finish(Row().text("file", word.text), "written");
}

// The document of a file. A fault names the place in the file where it ends to be JSON.
std::unique_ptr<cJSON, DeleteJson> parse_document(Word file, const std::string &text) {
  const char *end = text.c_str();
  std::unique_ptr<cJSON, DeleteJson> document(
      cJSON_ParseWithLengthOpts(text.c_str(), text.size() + 1, &end, 1));
  if (document) return document;
  const std::string_view before(text.data(), static_cast<size_t>(end - text.c_str()));
  const auto line = 1 + std::count(before.begin(), before.end(), '\n');
  const size_t start = before.rfind('\n') + 1;  // 0 in the first line
  throw Fault(
      file, fmt::format("{}:{}:{}: this is not JSON", file.text, line, before.size() - start + 1));
}

void state_restore(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  const std::string text = read_input(context.path(word));
  const auto document = parse_document(word, text);
  check(soft_device_restore(context.device.id(), document.get()), word);
  Row row;
  context.results.done(row.text("file", word.text), "read");
}

constexpr Command kCommands[] = {
    {"state log", "FILE", "writes the member and group state of the library", state_log},
    {"state restore", "FILE", "reads it back", state_restore, Kind::changes},
};

}  // namespace

extern const Topic kStateTopic = {"Time and state", kCommands};

}  // namespace tesselctl
