// Making devices what images say.
#pragma once

#include "tesselctl/image_diff.hpp"

namespace tesselctl {

// Carries out changes that lead from before, which is what the device holds, to after: new members
// and groups first, then removed, changed and new entries, then what nothing refers to any longer.
// Throws Fault at the first change that the device refuses.
void apply_changes(const Device &device, const Image &after, const std::vector<Change> &changes);

// Loads the image into an empty device so that its members and groups have their numbers as
// handles.
void load_by_number(const Device &device, const Image &image);

// Whether the members and groups of the device have the handles 1, 2, 3 and so on.
bool numbers_are_handles(const Device &device);

}  // namespace tesselctl
