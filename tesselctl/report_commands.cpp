// The command that writes a report.
#include <optional>

#include "tesselctl/command.hpp"
#include "tesselctl/device_copy.hpp"
#include "tesselctl/files.hpp"
#include "tesselctl/image.hpp"
#include "tesselctl/image_diff.hpp"
#include "tesselctl/options.hpp"
#include "tesselctl/report.hpp"

namespace tesselctl {

namespace {

constexpr uint64_t kRows = 20;
constexpr uint64_t kMostRows = 10'000;

// The lines of a file, of which the first may be looked at beforehand.
class ImageLines {
 public:
  explicit ImageLines(const std::string &path) : lines_(path) {}

  // Reads ahead until the image has told its pipes. Throws Fault.
  uint32_t pipes(std::string_view file) {
    ImageFrame frame(0);
    std::string_view line;
    while (frame.pipes() == 0 && lines_.next(line)) {
      try {
        frame.takes(line);
      } catch (const Fault &fault) {
        throw fault_in(file, frame.lines(), fault);
      }
      ahead_.emplace_back(line);
    }
    // What is no image has an own fault when it is loaded.
    return frame.pipes() == 0 ? 1 : frame.pipes();
  }

  bool next(std::string_view &line) {
    if (given_ == ahead_.size()) return lines_.next(line);
    line = ahead_[given_++];
    return true;
  }

 private:
  FileLines lines_;
  std::vector<std::string> ahead_;
  size_t given_ = 0;
};

// What an image holds, by way of a device of its own.
DeviceReport report_of_image(const Context &context, Word file, size_t rows) {
  ImageLines lines(context.path(file));
  const Device device({.id = free_device_id(), .pipes = lines.pipes(file.text)});
  load_image(device, file.text, [&](std::string_view &line) { return lines.next(line); });
  return collect_report(device, std::string(file.text), rows);
}

void note_line(ObjectChanges &object, const Change &change, bool after, size_t rows) {
  const std::string_view line = after ? change.after : change.before;
  if (line.empty() || object.first.size() >= rows) return;
  const Row row = change_row("", change.kind, change.name, line);
  std::string text;
  // Sign and object stand elsewhere on the page.
  for (const Item &item : std::span(row.items()).subspan(2)) {
    text += (text.empty() ? "" : " ") + item_words(item);
  }
  object.first.push_back({after ? '+' : '-', text});
}

std::vector<ObjectChanges> changes_of(const Context &context, Words images, size_t rows) {
  const Image before = Image::of_file(context.path(images[0]), images[0].text);
  Image after = Image::of_file(context.path(images[1]), images[1].text);
  after.number_like(before);
  std::vector<ObjectChanges> objects;
  for (const Change &change : changes_between(before, after)) {
    if (objects.empty() || objects.back().name != change.name ||
        objects.back().kind != change.kind) {
      objects.emplace_back();
      objects.back().kind = change.kind;
      objects.back().name = change.name;
    }
    ObjectChanges &object = objects.back();
    ++(change.before.empty()  ? object.added
       : change.after.empty() ? object.removed
                              : object.changed);
    note_line(object, change, false, rows);
    note_line(object, change, true, rows);
  }
  return objects;
}

// The arguments before the first NAME=VALUE.
size_t file_count(const Invocation &invocation) {
  size_t count = 0;
  for (const Word &word : invocation.arguments) {
    if (word.text.starts_with("rows=") || word.text.starts_with("note=")) break;
    ++count;
  }
  return count;
}

void report(Context &context, const Invocation &invocation) {
  const Word page = need_argument(invocation, 0, "the name of the page");
  const size_t files = file_count(invocation);
  if (files == 0) throw Fault(page, "the name of the page is missing");
  if (files > 3) throw Fault(invocation.arguments[3], "a report is about two images at most");
  const Options options(invocation, files, {"rows", "note"});
  const auto rows = static_cast<size_t>(options.number_or("rows", kMostRows, kRows));
  Report report;
  if (options.has("note")) report.note = options.need("note").text;
  const Words images = invocation.arguments.subspan(1, files - 1);
  if (images.size() == 2) {
    report.before = report_of_image(context, images[0], rows);
    report.changes = changes_of(context, images, rows);
  }
  report.device =
      images.empty()
          ? collect_report(context.device, "device " + std::to_string(context.device.id()), rows)
          : report_of_image(context, images.back(), rows);
  const std::string text = report_page(report);
  write_file(context.path(page), text);
  Row row;
  context.results.done(row.text("file", page.text).number("bytes", text.size()), "written");
}

constexpr Command kCommands[] = {
    {"report", "FILE [IMAGE [IMAGE]] [rows=N] [note=TEXT]",
     "writes a page about the device, an image, or two and what they differ in", report},
};

}  // namespace

std::span<const Command> report_commands() { return kCommands; }

}  // namespace tesselctl
