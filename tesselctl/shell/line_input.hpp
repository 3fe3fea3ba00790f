// Standard input byte by byte, for line editors: a wait that an interrupt surely ends.
#pragma once

namespace tesselctl {

enum class Input { byte, interrupted, end };

// Waits for a byte, or for interrupt_line. Interrupts from before begin_line do not count.
Input read_input_byte(char &byte);
void begin_line();

}  // namespace tesselctl
