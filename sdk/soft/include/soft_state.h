/* What the data plane does to registers and parser value sets, and their limits. Every function may
 * be called from any thread and writes its out-parameters on success only. BF_INVALID_DEVICE,
 * BF_INVALID_PIPE and BF_INVALID_HANDLE mean what they say throughout. */
#ifndef SOFT_STATE_H
#define SOFT_STATE_H

#include "bf_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* ---- Registers ----
 * A register has cells 0 to SOFT_REGISTER_CELLS - 1 in every pipe, all zero at first. They take
 * memory only where they are written. A call of the contract that names a cell behind the last one
 * is refused with BF_INVALID_ARGUMENT, with one exception: a range read that begins within the
 * register reads up to its end and says how many cells it read. */
#define SOFT_REGISTER_CELLS 0x400000u

/* Which cell is as most are? This one where twice its number is the same in the hardware of all
 * pipes, otherwise the last one. */
#define SOFT_REGISTER_USUAL (SOFT_REGISTER_CELLS / 3)

/* Writes a cell as an action of the data plane does, in one pipe or in all: the hardware changes,
 * and the software copy follows when the cell is read from the hardware or the register is
 * synchronised. The cell keeps the low bits of value, as many as it is wide.
 * BF_INVALID_ARGUMENT: the index is out of range. */
bf_status_t soft_register_write(bf_device_id_t device, bf_pipe_id_t pipe, pipe_object_handle_t reg,
                                uint32_t index, uint32_t value);

/* ---- Parser value sets ----
 * Parsers are numbered 0 to 254 within a direction and pipe. BF_ALL_PIPES and SOFT_ALL_PARSERS name
 * all of them: an entry added so is in each of those parsers, and a call that looks for entries
 * finds the ones that are in at least one of the parsers that it names. */
#define SOFT_ALL_PARSERS 0xffu

/* Which entry does a value match in one parser? The entry whose value agrees with it in the bits of
 * its mask; the oldest one where several do. direction is 0 ingress, 1 egress.
 * BF_OBJECT_NOT_FOUND: none. BF_INVALID_ARGUMENT: another direction, or all parsers.
 * BF_INVALID_PIPE also for all pipes. */
bf_status_t soft_value_set_match(bf_device_id_t device, pipe_object_handle_t value_set,
                                 uint32_t direction, bf_pipe_id_t pipe, uint8_t parser,
                                 uint32_t value, pipe_entry_handle_t *entry);

#ifdef __cplusplus
}
#endif

#endif
