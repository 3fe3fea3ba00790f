// The command that writes a report.
#include "tesselctl/report/report.hpp"
#include "tesselctl/command/command.hpp"
#include "tesselctl/command/options.hpp"
#include "tesselctl/command/output_file.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/state/changes.hpp"
#include "tesselctl/state/image.hpp"

namespace tesselctl {

namespace {

// What an image holds, by way of a device of its own.
DeviceReport report_of_image(const Context &context, Word file, size_t rows) {
  ImageSource image(context.path(file), file.text);
  const Device device({.id = free_device_id(), .pipes = image.pipes()});
  image.load(device);
  return collect_report(device, std::string(file.text), rows);
}

void note_line(ObjectChanges &object, const Change &change, bool after, size_t rows) {
  const ItemStore::Item *item = after ? change.after : change.before;
  if (item == nullptr || object.first.size() >= rows) return;
  const Row row = change_row("", *change.part, *item);
  std::string text;
  // Sign and object stand elsewhere on the page.
  for (const Item &word : std::span(row.items()).subspan(2)) {
    text += (text.empty() ? "" : " ") + item_words(word);
  }
  object.first.push_back({after ? '+' : '-', text});
}

std::vector<ObjectChanges> changes_of(const Context &context, Words images, size_t rows) {
  const DeviceState before = DeviceState::of_file(context.path(images[0]), images[0].text);
  DeviceState after = DeviceState::of_file(context.path(images[1]), images[1].text);
  after.number_like(before);
  std::vector<ObjectChanges> objects;
  for (const Change &change : changes_between(before, after)) {
    const std::string_view kind = change.part->kind->object.keyword;
    if (objects.empty() || objects.back().name != change.part->object ||
        objects.back().kind != kind) {
      objects.emplace_back();
      objects.back().kind = kind;
      objects.back().name = change.part->object;
    }
    ObjectChanges &object = objects.back();
    ++(change.before == nullptr  ? object.added
       : change.after == nullptr ? object.removed
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
  const auto rows = static_cast<size_t>(options.number_or("rows", kMostReportRows, kReportRows));
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
  OutputFile file(context, page);
  file.write(report_page(report));
  file.finish(Row().text("file", page.text).number("bytes", file.bytes()), "written");
}

constexpr Command kCommands[] = {
    {"report", "FILE [IMAGE [IMAGE]] [rows=N] [note=TEXT]",
     "writes a page about the device, an image, or two and what they differ in", report},
};

}  // namespace

extern const Topic kReportTopic = {"Reports", kCommands};

}  // namespace tesselctl
