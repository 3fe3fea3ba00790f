// What keeps the page of a served device up to date.
#pragma once

#include <string_view>

namespace tesselctl {

// Where a server has the style sheet and the script.
inline constexpr std::string_view kLiveStylePath = "/page.css";
inline constexpr std::string_view kLiveScriptPath = "/page.js";

extern const std::string_view kLiveScript;

}  // namespace tesselctl
