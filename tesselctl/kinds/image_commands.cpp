// Images of the whole device: save and load.
#include "tesselctl/command/output_file.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/state/image_file.hpp"

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

LoadCounts load_file(const Context &context, Word word) {
  return load_image_file(context.device, context.path(word), word.text);
}

// With --atomic a load that fails takes the device back to how it was.
LoadCounts load_atomically(const Context &context, Word word) {
  const std::unique_ptr<Device> before = copy_of(context.device);
  try {
    return load_file(context, word);
  } catch (const std::exception &) {
    copy_back(*before, context.device);
    throw;
  }
}

void load(Context &context, const Invocation &invocation) {
  const Word word = file_word(invocation);
  const LoadCounts counts = context.settings.atomic && !context.settings.dry_run
                                ? load_atomically(context, word)
                                : load_file(context, word);
  Row row;
  row.text("file", word.text).number("entries", counts.entries);
  context.results.done(row.number("members", counts.members).number("groups", counts.groups),
                       "loaded");
}

constexpr Command kCommands[] = {
    {"save", "FILE", "writes everything that the device holds to an image", save},
    {"load", "FILE", "adds everything that an image holds to the device", load, Kind::changes,
     "--atomic"},
};

}  // namespace

extern const Topic kImageTopic = {"Images", kCommands};

}  // namespace tesselctl
