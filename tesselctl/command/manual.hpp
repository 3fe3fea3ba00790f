// The manual page, whose lists of options and commands come from the registry.
#pragma once

#include <string>
#include <string_view>

namespace tesselctl {

// The page of a template: lines "@options@", "@command options@" and "@commands@" stand for those
// lists, in the language of man pages.
std::string manual_page(std::string_view text);

}  // namespace tesselctl
