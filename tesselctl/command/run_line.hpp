// One line of a script, shell or command line: its command found, its options checked, run.
#pragma once

#include "tesselctl/command/command.hpp"

namespace tesselctl {

// Runs one line; one without words does nothing and is none, which the answer says. With --dry-run
// it answers and fails as it would on the device, on a copy of it. Throws Fault, behind which
// context.results waits for fail.
bool run_line(Context &context, std::string_view line);

// Whether a command of those words, options among them, may change what an image holds: with
// --dry-run and in a command that is not understood nothing does. run and serve may, and so may a
// shell or script, for which there are no words. Needs no device.
bool may_change_device(std::vector<Word> words);

}  // namespace tesselctl
