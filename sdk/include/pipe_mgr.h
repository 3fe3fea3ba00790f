/* The pipeline manager: tables, profiles, counters, meters, registers, hash calculations, digests,
 * value sets and placement data of the devices. Every call names a session and a device where it
 * needs them and returns a status; out-parameters are written on success only. Any number of
 * threads may call at once. A null pointer that is not allowed is refused. */
#ifndef PIPE_MGR_H
#define PIPE_MGR_H

#include "pipe_mgr_hash.h"
#include "pipe_mgr_learn.h"
#include "pipe_mgr_match.h"
#include "pipe_mgr_placement.h"
#include "pipe_mgr_profile.h"
#include "pipe_mgr_pvs.h"
#include "pipe_mgr_stats.h"
#include "pipe_stful.h"

#endif
