// The events of a served device as they happen.
#include "tesselctl/command/event_source.hpp"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/topic.hpp"

namespace tesselctl {

namespace {

// Of a kind of items, or a digest.
void check_object(Word word) {
  std::vector<std::string_view> names = names_of_objects();
  for (const soft_digest_t &digest : program_rows<soft_digest_t>()) names.push_back(digest.name);
  if (std::ranges::find(names, word.text) == names.end()) throw_unknown(word, "object", names);
}

void monitor(Context &context, const Invocation &invocation) {
  size_t objects = 0;
  const Words words = invocation.arguments;
  while (objects < words.size() && words[objects].text.find('=') == std::string_view::npos) {
    check_object(words[objects++]);
  }
  const Options options(invocation, objects, {"count"});
  WantedEvents wanted = {.json = context.settings.json};
  for (const Word &word : words.first(objects)) wanted.objects.emplace(word.text);
  if (options.has("count")) wanted.count = options.number("count", 1000000000, 1);
  if (context.events == nullptr) {
    throw Fault(
        invocation.command,
        "this wants a line of its own at a server: 'tesselctl --socket PATH serve', and then "
        "'tesselctl --socket PATH monitor'");
  }
  context.events->send_events(std::move(wanted));
}

constexpr Command kCommands[] = {
    {.name = "monitor",
     .arguments = "[OBJECT|DIGEST...] [count=N]",
     .summary = "prints the changes of a served device as they happen, expiries and messages too",
     .run = monitor,
     .where = Where::server},
};

}  // namespace

extern const Topic kMonitorTopic = {"Scripts, servers and repetition", kCommands};

}  // namespace tesselctl
