#!/usr/bin/env python3
"""usage: release_test.py SOURCE ABI: hosts of the last release run with this interface, and a change
that would break them is shown with its symbol."""
import pathlib
import shutil
import subprocess
import sys
import tempfile

# A file, what stands there, what comes in its place, and what is to be shown of it.
BREAKS = [
    ("include/p4_pd_tessel_switch.h", "p4_pd_status_t p4_pd_tessel_switch_cleanup(void);", "",
     "[D] 'function p4_pd_status_t p4_pd_tessel_switch_cleanup()'"),
    ("include/p4_pd_tessel_switch.h", "cpuEncap_match_spec_t *match_spec, uint32_t priority",
     "cpuEncap_match_spec_t *match_spec, uint16_t priority",
     "function p4_pd_status_t p4_pd_tessel_switch_cpuEncap_table_add_with_"),
    ("sdk/include/pipe_mgr_types.h", "  uint16_t valid_bit_count;\n  uint16_t byte_count;\n",
     "  uint16_t byte_count;\n  uint16_t valid_bit_count;\n",
     "'uint16_t byte_count' offset changed from "),
    ("include/p4_pd_types.h", "METER_SPEC_MISSING 0x1002u", "METER_SPEC_MISSING 0x1009u",
     "P4_PD_METER_SPEC_MISSING' from value '4098' to '4105'"),
    ("include/p4_pd_types.h", "COLOR_AWARE = 0", "COLOR_AWARE = 7", "AWARE' from value '0' to '7'"),
    ("include/p4_pd_tessel_switch.h", "switch_onMiss = 7", "switch_onMiss = 6",
     "p4_pd_tessel_switch_onMiss' from value '7' to '6'"),
    ("include/p4_pd_types.h", "  uint64_t packets;", "  uint64_t frames;", "p4_pd_counter_values.packets'"),
    ("include/p4_pd_tessel_switch.h", "} p4_pd_tessel_switch_snapshot_egress_trigger_t;", "} egress_trigger_t;",
     "[D] 'p4_pd_tessel_switch_snapshot_egress_trigger_t* type_"),
    ("include/p4_pd_types.h", "inline p4_pd_status_info_t p4_pd_describe_status(",
     "inline p4_pd_status_info_t p4_pd_explain_status(", "p4_pd_describe_status(p4_pd_status_t)'"),
]
# Additions break nobody.
ADDED = ("include/p4_pd_types.h", "#define P4_PD_NO_MEMORY 2u\n",
         "#define P4_PD_NO_MEMORY 2u\n#define P4_PD_ADDED 99u\nint p4_pd_added(void);\n", "")


def replace(folder, file, old, new):
    text = (folder / file).read_text()
    if old not in text:
        sys.exit(f"{file} has no '{old}'")
    (folder / file).write_text(text.replace(old, new, 1))


def compare(source, abi, folder, changes):
    for name in ("include", "sdk/include", "sdk/soft/include"):
        shutil.copytree(source / name, folder / name)
    for file, old, new, _ in changes:
        replace(folder, file, old, new)
    done = subprocess.run([source / "scripts/abi", "--abi", abi, "--source", folder], text=True,
                          stdout=subprocess.PIPE)
    return done.returncode, done.stdout


def main():
    source, abi = pathlib.Path(sys.argv[1]), sys.argv[2]
    with tempfile.TemporaryDirectory() as name:
        code, shown = compare(source, abi, pathlib.Path(name) / "same", [ADDED])
        if code:
            sys.exit(f"This breaks hosts of the last release:\n{shown}")
        code, shown = compare(source, abi, pathlib.Path(name) / "broken", BREAKS)
        missing = [what for *_, what in BREAKS if what not in shown]
        if code != 1 or missing:
            sys.exit(f"exit code {code}, not shown: {missing}\n{shown}")


main()
