// Events of a device as rows of answers.
#pragma once

#include <functional>

#include "pipe_mgr_types.h"
#include "tesselctl/device/device.hpp"
#include "tesselctl/text/row.hpp"

namespace tesselctl {

// Throws Fault at the word when the entry is gone.
Row expired_row(const Device &device, const ExpiredEntry &expired, Word word);

// A row for each entry of a message, which has that number.
void for_each_message_row(
    uint32_t number, const pipe_mgr_digest_message_t &message,
    const std::function<void(std::string_view digest, const Row &row)> &visit);

}  // namespace tesselctl
