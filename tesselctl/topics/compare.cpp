// Images and devices against one another: diff, apply and verify.
#include <fmt/format.h>

#include <algorithm>

#include "soft_sdk.h"
#include "tesselctl/command/command.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/device/read_back.hpp"
#include "tesselctl/state/save_point.hpp"
#include "tesselctl/state/script.hpp"
#include "tesselctl/state/verify.hpp"

namespace tesselctl {

namespace {

DeviceState state_of(const Context &context, Word word) {
  return DeviceState::of_file(context.path(word), word.text);
}

// One or two files; without the second the device stands in for it.
void diff(Context &context, const Invocation &invocation) {
  const Word first = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 2);
  if (context.settings.script && context.results.asks_for_names()) {
    throw Fault(invocation.command,
                "a script is whole, so --script goes without --filter and --sort");
  }
  expect_changes(context.results);
  const DeviceState before = state_of(context, first);
  DeviceState after = invocation.arguments.size() > 1 ? state_of(context, invocation.arguments[1])
                                                      : DeviceState::of_device(context.device);
  after.number_like(before);
  const std::vector<Change> changes = changes_between(before, after);
  if (context.settings.script) {
    print_script(before, after, changes, context.results);
  } else {
    print_changes(context.results, context.settings.count, changes);
  }
  context.differs = !changes.empty();
}

void apply(Context &context, const Invocation &invocation) {
  const Word word = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 1);
  DeviceState after = state_of(context, word);
  const DeviceState before = DeviceState::of_device(context.device);
  after.number_like(before);
  const std::vector<Change> changes = changes_between(before, after);
  all_or_nothing(context.settings.atomic, context.device, [&] {
    Numbering numbering = Numbering::of_device(context.device);
    Target to = {context.device, numbering};
    apply_changes(to, changes);
  });
  print_changes(context.results, context.settings.count, changes);
}

DeviceOptions options_for_image(const Device &like, bool is_virtual) {
  return {.id = free_device_id(), .pipes = like.pipes(), .is_virtual = is_virtual};
}

Row finding_row(const Finding &finding) {
  Row row;
  row.object("difference", difference_text(finding.difference)).object("object", finding.object);
  if (finding.what == Compared::member) {
    add_number(row, "member", std::max(finding.old_handle, finding.new_handle), Naming::numbers);
  }
  if (!finding.old_text.empty()) row.text("old", finding.old_text);
  if (!finding.new_text.empty()) row.text("new", finding.new_text);
  return row;
}

// The image goes into a virtual device, whose placement data are compared with the new device. Both
// sides need the same handles for the same members; where those of the device do not count from 1,
// a copy that is numbered so stands in for it.
void verify_image(Context &context, const Invocation &invocation) {
  const Word first = need_argument(invocation, 0, "the name of an image");
  refuse_arguments_from(invocation, 2);
  const bool live =
      invocation.arguments.size() == 1 && Numbering::of_device(context.device).is_identity();
  const auto is_profile = [](const ObjectKind &kind, const char *) {
    return &kind == &kObjectKind<soft_profile_t>;
  };
  DeviceState before = state_of(context, first);
  const DeviceState after = live ? DeviceState::of_device(context.device, is_profile)
                            : invocation.arguments.size() > 1
                                ? state_of(context, invocation.arguments[1])
                                : DeviceState::of_device(context.device);
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
     Kind::asks, "--count --filter --sort --script"},
    {"apply", "FILE", "makes the device what an image says, by the smallest change", apply,
     Kind::changes, "--atomic --count"},
    {"verify", "FILE [FILE]",
     "compares the placement data of an image with the device, or with another image",
     verify_image},
};

}  // namespace

extern const Topic kCompareTopic = {"Comparing", kCommands};

}  // namespace tesselctl
