// One line of a script, shell or command line: its command found, its options checked, run.
#pragma once

#include "tesselctl/command/command.hpp"
#include "tesselctl/state/image_file.hpp"

namespace tesselctl {

// Runs one line; one without words does nothing and is none, which the answer says. With --dry-run
// it answers and fails as it would on the device, on a copy of it. Throws Fault, behind which
// context.results waits for fail.
bool run_line(Context &context, std::string_view line);

// What a command of those words, options among them, does with an image: one that is not understood
// reads, at most. run and serve may change it, and so may a shell or script, for which there are no
// words. Needs no device.
ImageUse image_use(std::vector<Word> words);

}  // namespace tesselctl
