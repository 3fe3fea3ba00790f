// Events of a device as rows of answers.
#pragma once

#include "pipe_mgr_types.h"
#include "soft_program.h"
#include "tesselctl/device/device.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// Throws Fault at the word when the entry is gone.
Row expired_row(const Device &device, const ExpiredEntry &expired, Word word);

// That a message is of.
const soft_digest_t &digest_of(const pipe_mgr_digest_message_t &message);
// Of an entry of a message, which has that number.
Row message_entry_row(const soft_digest_t &digest, uint32_t number,
                      const pipe_mgr_digest_message_t &message, uint32_t entry);

}  // namespace tesselctl
