// Images and devices against one another: diff, apply and verify.
#include "soft_sdk.h"
#include "tesselctl/command.hpp"
#include "tesselctl/device_copy.hpp"
#include "tesselctl/image_apply.hpp"
#include "tesselctl/verify.hpp"

namespace tesselctl {

namespace {

Image image_of(const Context &context, Word word) {
  return Image::of_file(context.path(word), word.text);
}

// One or two files; without the second the device stands in for it.
struct Sides {
  Image before;
  Image after;
};

Sides read_sides(const Context &context, const Invocation &invocation) {
  const Word first = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 2);
  Image before = image_of(context, first);
  Image after = invocation.arguments.size() > 1 ? image_of(context, invocation.arguments[1])
                                                : Image::of_device(context.device);
  after.number_like(before);
  return {std::move(before), std::move(after)};
}

void tell(Context &context, const std::vector<Change> &changes) {
  for (const Change &change : changes) {
    for (const bool after : {false, true}) {
      const std::string_view line = after ? change.after : change.before;
      if (line.empty()) continue;
      context.results.row(change_row(after ? "+" : "-", change.kind, change.name, line));
    }
  }
}

void diff(Context &context, const Invocation &invocation) {
  const Sides sides = read_sides(context, invocation);
  const std::vector<Change> changes = changes_between(sides.before, sides.after);
  tell(context, changes);
  context.differs = !changes.empty();
}

void apply(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 1);
  const Image before = Image::of_device(context.device);
  Image after = image_of(context, word);
  after.number_like(before);
  const std::vector<Change> changes = changes_between(before, after);
  const std::unique_ptr<Device> kept = context.settings.atomic ? copy_of(context.device) : nullptr;
  try {
    apply_changes(context.device, after, changes);
  } catch (const Fault &) {
    if (kept) copy_back(*kept, context.device);
    throw;
  }
  tell(context, changes);
}

DeviceOptions options_for_image(const Device &like, bool is_virtual) {
  return {.id = free_device_id(), .pipes = like.pipes(), .is_virtual = is_virtual};
}

Row finding_row(const Finding &finding) {
  Row row;
  row.object("difference", difference_text(finding.difference)).object("object", finding.object);
  if (!finding.old_text.empty()) row.text("old", finding.old_text);
  if (!finding.new_text.empty()) row.text("new", finding.new_text);
  return row;
}

// The image goes into a virtual device, whose placement data are held against the new device. Both
// sides need the same handles for the same members; where those of the device do not count from 1,
// a copy that is numbered so stands in for it.
void verify_image(Context &context, const Invocation &invocation) {
  const Word first = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 2);
  const bool live = invocation.arguments.size() == 1 && numbers_are_handles(context.device);
  Image before = image_of(context, first);
  Image after = live                              ? Image::of_profiles(context.device)
                : invocation.arguments.size() > 1 ? image_of(context, invocation.arguments[1])
                                                  : Image::of_device(context.device);
  before.number_like(after);
  const Device old_device(options_for_image(context.device, true));
  load_by_number(old_device, before);
  std::unique_ptr<Device> other;
  if (!live) {
    other = std::make_unique<Device>(options_for_image(context.device, false));
    load_by_number(*other, after);
  }
  const VerifyCounts counts =
      verify(old_device, live ? context.device : *other,
             [&](const Finding &finding) { context.results.row(finding_row(finding)); });
  context.differs = counts.differences != 0;
  Row row;
  row.object("result", counts.differences == 0 ? "equal" : "different");
  row.number("compared", counts.compared()).number("differences", counts.differences);
  context.results.row(row);
}

constexpr Command kCommands[] = {
    {"diff", "FILE [FILE]", "compares an image with another one, or with the device", diff,
     Kind::asks, "--count --filter --sort"},
    {"apply", "FILE", "makes the device what an image says, by the smallest change", apply,
     Kind::changes, "--atomic"},
    {"verify", "FILE [FILE]",
     "holds the placement data of an image against the device, or against another image",
     verify_image},
};

}  // namespace

std::span<const Command> compare_commands() { return kCommands; }

}  // namespace tesselctl
