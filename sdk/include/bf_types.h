/* Base types of the device SDK: ids, handles and statuses that every other header of the contract
 * uses. The SDK owns the meaning of every value here; callers pass them through. */
#ifndef BF_TYPES_H
#define BF_TYPES_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/* Result of an SDK call: BF_SUCCESS, or one of the codes below. */
typedef uint32_t bf_status_t;

enum {
  BF_SUCCESS = 0,          /* The call did what it says. */
  BF_NOT_READY = 1,        /* The device or service is not in a state to serve the call. */
  BF_NO_MEMORY = 2,        /* Memory for the call could not be allocated. */
  BF_INVALID_ARGUMENT = 3, /* An argument has a value that the call does not take. */
  BF_ALREADY_EXISTS = 4,   /* An object with this key or name exists already. */
  BF_HARDWARE_FAULT = 5,   /* The device did not answer as it should. */
  BF_NO_ACTION_DATA = 6,   /* The entry holds no action data of its own. */
  BF_OBJECT_NOT_FOUND = 7, /* No object has this handle, key or name. */
  BF_TABLE_FULL = 8,       /* The table, profile, group or set has no room left. */
  BF_IN_USE = 9,           /* Other objects still refer to this one. */
  BF_NOT_SUPPORTED = 10,   /* The object exists but does not offer this operation. */
  BF_INVALID_SESSION = 11, /* No session has this handle. */
  BF_INVALID_DEVICE = 12,  /* No device has this id. */
  BF_INVALID_PIPE = 13,    /* The device has no pipe with this id. */
  BF_INVALID_HANDLE = 14,  /* The device's program has no object with this handle. */
  BF_FOREIGN_ACTION = 15,  /* The action does not belong to the table or profile. */
  BF_WRONG_LENGTH = 16,    /* A key, action data or value has another length than declared. */
  BF_END_OF_LIST = 17,     /* There is nothing after the given object. */
  BF_CORRUPT_DATA = 18,    /* Data handed back to the SDK is not what the SDK made. */
  BF_TABLE_MISS = 19       /* The key hits no entry, and there is no default entry. */
};

/* A device, 0 and up; a pipe of a device, 0 and up, or BF_ALL_PIPES. */
typedef uint32_t bf_device_id_t;
typedef uint32_t bf_pipe_id_t;
#define BF_ALL_PIPES 0xffffu

/* Handles that the SDK issues at run time; 0 and 0xffffffff are none. */
typedef uint32_t pipe_session_handle_t;
typedef uint32_t pipe_entry_handle_t;
typedef uint32_t pipe_member_handle_t;
typedef uint32_t pipe_group_handle_t;

/* Handles of the program's objects, fixed when the program is compiled. The top byte names the
 * kind: 0x01 match table, 0x02 action-data table, 0x03 selector, 0x04 counter, 0x05 meter,
 * 0x06 register, 0x20 action function, 0x21 field list or digest, 0x22 hash calculation,
 * 0x23 hash algorithm. */
typedef uint32_t pipe_object_handle_t;

#ifdef __cplusplus
}
#endif

#endif
