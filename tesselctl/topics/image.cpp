// Images of the whole device, save and load, and scripts of it.
#include <set>

#include "tesselctl/command/output_file.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/device/table_info.hpp"
#include "tesselctl/state/image_file.hpp"
#include "tesselctl/state/save_point.hpp"
#include "tesselctl/state/script.hpp"

namespace tesselctl {

namespace {

Word file_word(const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  return word;
}

void save(Context &context, const Invocation &invocation) {
  const Word word = file_word(invocation);
  OutputFile file(context, word);
  save_image(context.device, [&](std::string_view text) { file.write(text); });
  file.finish(Row().text("file", word.text).number("bytes", file.bytes()), "saved");
}

void load(Context &context, const Invocation &invocation) {
  const Word word = file_word(invocation);
  const bool is_atomic = context.settings.atomic && !context.settings.dry_run;
  const LoadCounts counts = all_or_nothing(is_atomic, context.device, [&] {
    return load_image_file(context.device, context.path(word), word.text);
  });
  Row row;
  row.text("file", word.text).number("entries", counts.entries);
  context.results.done(row.number("members", counts.members).number("groups", counts.groups),
                       "loaded");
}

// ---- Scripts ----

// The objects that tables consist of and refer to, by name: themselves, the profiles that they are
// bound to, and what the parameters of actions name cells of.
std::set<std::string_view> objects_of(Words tables) {
  std::set<std::string_view> names;
  const auto add_cells = [&](const auto &object) {
    for (const bindings::Record *action : actions_of(object)) {
      for (const Field &field : action->shown())
        names.insert(field.cells.begin(), field.cells.end());
    }
  };
  for (const Word &word : tables) {
    const TableInfo table = resolve_table(word);
    names.insert(table.name());
    add_cells(*table.description);
    if (table.profile() == nullptr) continue;
    names.insert(table.profile()->name);
    add_cells(*table.profile());
  }
  return names;
}

void export_script(Context &context, const Invocation &invocation) {
  const std::set<std::string_view> names = objects_of(invocation.arguments);
  const auto is_wanted = [&](const ObjectKind &, const char *object) {
    return names.empty() || names.contains(object);
  };
  const Device fresh({.id = free_device_id(), .pipes = context.device.pipes()});
  const DeviceState before = DeviceState::of_device(fresh, is_wanted);
  const DeviceState after = DeviceState::of_device(context.device, is_wanted);
  print_script(before, after, changes_between(before, after), context.results);
}

constexpr Command kCommands[] = {
    {"save", "FILE", "writes everything that the device holds to an image", save},
    {"load", "FILE", "adds everything that an image holds to the device", load, Kind::changes,
     "--atomic"},
    {"export", "[TABLE...]",
     "prints a script that makes an empty device hold the same, or what tables have and refer to",
     export_script},
};

}  // namespace

extern const Topic kImageTopic = {"Images", kCommands};

}  // namespace tesselctl
