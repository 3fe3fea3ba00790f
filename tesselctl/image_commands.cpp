// Images of the whole device: save and load.
#include "tesselctl/command.hpp"
#include "tesselctl/device_copy.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/image.hpp"

namespace tesselctl {

namespace {

Word file_word(const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of a file");
  refuse_arguments_from(invocation, 1);
  return word;
}

void save(Context &context, const Invocation &invocation) {
  const Word word = file_word(invocation);
  FileWriter file{std::string(word.text)};
  uint64_t bytes = 0;
  save_image(context.device, [&](std::string_view text) {
    file.write(text);
    bytes += text.size();
  });
  file.commit();
  Row row;
  context.results.done(row.text("file", word.text).number("bytes", bytes), "saved");
}

LoadCounts load_file(const Device &device, Word word) {
  FileLines lines{std::string(word.text)};
  return load_image(device, word.text, [&](std::string_view &line) { return lines.next(line); });
}

// With --atomic a load that fails takes the device back to how it was.
LoadCounts load_atomically(const Device &device, Word word) {
  const std::unique_ptr<Device> before = copy_of(device);
  try {
    return load_file(device, word);
  } catch (const std::exception &) {
    copy_back(*before, device);
    throw;
  }
}

void load(Context &context, const Invocation &invocation) {
  const Word word = file_word(invocation);
  const LoadCounts counts = context.settings.atomic && !context.settings.dry_run
                                ? load_atomically(context.device, word)
                                : load_file(context.device, word);
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

std::span<const Command> image_commands() { return kCommands; }

}  // namespace tesselctl
