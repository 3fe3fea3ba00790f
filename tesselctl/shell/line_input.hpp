// Standard input byte by byte, for line editors: a wait that an interrupt ends.
#pragma once

namespace tesselctl {

enum class Input { byte, interrupted, end };

Input read_input_byte(char &byte);

}  // namespace tesselctl
