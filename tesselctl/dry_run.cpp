#include "tesselctl/dry_run.hpp"

#include "tesselctl/device_copy.hpp"

namespace tesselctl {

void run_on_copy(Context &context, const Command &command, const Invocation &invocation) {
  const std::unique_ptr<Device> copy = copy_of(context.device);
  Context trial = {.device = *copy,
                   .out = context.out,
                   .defaults = context.defaults,
                   .settings = context.settings,
                   .labels = context.labels,
                   .directory = context.directory};
  trial.results = context.results;
  try {
    command.run(trial, invocation);
  } catch (...) {
    context.results = trial.results;
    throw;
  }
  context.results = trial.results;
}

}  // namespace tesselctl
