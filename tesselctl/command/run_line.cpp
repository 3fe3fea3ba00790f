#include "tesselctl/command/run_line.hpp"

#include <algorithm>
#include <new>

#include "tesselctl/command/flags.hpp"
#include "tesselctl/command/topic.hpp"
#include "tesselctl/command/watch_line.hpp"
#include "tesselctl/device/device_copy.hpp"
#include "tesselctl/program/trace.hpp"

namespace tesselctl {

namespace {

void run_traced(Context &context, const Command &command, const Invocation &invocation) {
  const TraceScope trace(context.settings.trace ? &context.results : nullptr);
  command.run(context, invocation);
}

// Runs the command on a copy of the device, which is gone afterwards.
void run_on_copy(Context &context, const Command &command, const Invocation &invocation) {
  const std::unique_ptr<Device> copy = copy_of(context.device);
  Context trial = {.device = *copy,
                   .out = context.out,
                   .defaults = context.defaults,
                   .settings = context.settings,
                   .labels = context.labels,
                   .directory = context.directory,
                   .journal = context.journal,
                   .is_trial = true};
  trial.results = context.results;
  try {
    run_traced(trial, command, invocation);
  } catch (...) {
    context.results = trial.results;
    throw;
  }
  context.results = trial.results;
}

void run_command(Context &context, const Command &command, const Invocation &invocation) {
  try {
    if (context.settings.dry_run) {
      run_on_copy(context, command, invocation);
    } else {
      run_traced(context, command, invocation);
    }
    context.results.end();
  } catch (const std::bad_alloc &) {
    throw Fault(invocation.command, "there is no memory for this");
  }
}

}  // namespace

bool run_line(Context &context, std::string_view line) {
  context.settings = context.defaults;
  context.differs = false;
  context.results.begin(context.settings, trimmed(line), false);
  std::vector<Word> words;
  split_words(line, words);
  const TakenFlags flags = take_flags(words, context.settings);
  // "add --help" is "help add".
  if (context.settings.help) words.insert(words.begin(), {"help", 0});
  if (words.empty()) {
    if (!flags.words.empty()) throw Fault(flags.words[0], "there is no command on this line");
    return false;
  }
  Invocation invocation;
  const Command &command = find_command(words, invocation);
  context.results.begin(context.settings, trimmed(line), command.kind == Kind::lists);
  if (!context.settings.help) flags.check(command);
  const bool changes = command.kind == Kind::changes && !context.settings.dry_run;
  if (changes) context.changed = std::max(context.changed, Changed::perhaps);
  run_command(context, command, invocation);
  if (changes) context.changed = Changed::yes;
  return true;
}

ImageUse image_use(std::vector<Word> words) {
  Settings settings;
  try {
    take_flags(words, settings);
    if (words.empty()) return ImageUse::changes;
    if (settings.help) return ImageUse::reads;
    Invocation invocation;
    const Command *command = &find_command(words, invocation);
    if (command->name == "watch") command = &find_watched(words);
    const bool changes = command->kind == Kind::changes || command->where == Where::command_line;
    if (!changes) return ImageUse::reads;
    return settings.dry_run ? ImageUse::tries : ImageUse::changes;
  } catch (const Fault &) {
    return ImageUse::reads;
  }
}

}  // namespace tesselctl
