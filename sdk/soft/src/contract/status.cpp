#include <array>

#include "soft_sdk.h"

namespace {

struct StatusText {
  const char *name;
  const char *text;
};

constexpr std::array<StatusText, 20> kStatuses{{
    {"BF_SUCCESS", "The call did what it says."},
    {"BF_NOT_READY", "The device or service is not in a state to serve the call."},
    {"BF_NO_MEMORY", "Memory for the call could not be allocated."},
    {"BF_INVALID_ARGUMENT", "An argument has a value that the call does not take."},
    {"BF_ALREADY_EXISTS", "An object with this key or name exists already."},
    {"BF_HARDWARE_FAULT", "The device did not answer as it should."},
    {"BF_NO_ACTION_DATA", "The entry holds no action data of its own."},
    {"BF_OBJECT_NOT_FOUND", "No object has this handle, key or name."},
    {"BF_TABLE_FULL", "The table, profile, group or set has no room left."},
    {"BF_IN_USE", "Other objects still refer to this one."},
    {"BF_NOT_SUPPORTED", "The object exists but does not offer this operation."},
    {"BF_INVALID_SESSION", "No session has this handle."},
    {"BF_INVALID_DEVICE", "No device has this id."},
    {"BF_INVALID_PIPE", "The device has no pipe with this id."},
    {"BF_INVALID_HANDLE", "The device's program has no object with this handle."},
    {"BF_FOREIGN_ACTION", "The action does not belong to the table or profile."},
    {"BF_WRONG_LENGTH", "A key, action data or value has another length than declared."},
    {"BF_END_OF_LIST", "There is nothing after the given object."},
    {"BF_CORRUPT_DATA", "Data handed back to the SDK is not what the SDK made."},
    {"BF_TABLE_MISS", "The key hits no entry, and there is no default entry."},
}};
static_assert(kStatuses.size() == BF_TABLE_MISS + 1);

constexpr StatusText kUnknown{"unknown status", "The SDK has no status with this code."};

const StatusText &text_of(bf_status_t status) {
  return status < kStatuses.size() ? kStatuses[status] : kUnknown;
}

}  // namespace

const char *soft_status_name(bf_status_t status) { return text_of(status).name; }
const char *soft_status_text(bf_status_t status) { return text_of(status).text; }
