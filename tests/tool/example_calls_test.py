"""Runs the example of every function, behind the calls that it names, each on a fresh soft device.
Each function that the soft SDK has beside the contract is explained.

usage: example_calls_test.py TOOL SOURCE LIBRARY PROGRAM SOFT_SDK COMPILER [FLAG...]
"""
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile

# Start and stop, and registers that belong to entries: the soft SDK has none.
NOT_RUN = ("init", "cleanup", "register_read_direct", "register_write_direct",
           "register_hw_sync_direct")
HANDLES = "entry|member|group|snapshot"
NO_NEXT = re.compile("get_next_|hdl_next")
NONE_EVER = re.compile("get_first_|get_default_")  # in a table without a key, or a default
ZERO = re.compile("plcmt_data_print$|_enum$|enum_to_string$|^supports_|cleanup$")  # is a result like others

def explained(tool, names):
    lines = subprocess.run([tool, "--json", "run", "-"], text=True, check=True, stdout=subprocess.PIPE,
                           input="".join(f"api {name}\n" for name in names)).stdout.splitlines()
    return {row["function"]: row for line in lines for row in json.loads(line)["rows"]}


def check_control(tool, library):
    names = set(re.findall(r" T (soft_\w+)", subprocess.run(
        ["nm", "-D", library], text=True, check=True, stdout=subprocess.PIPE).stdout))
    rows = explained(tool, sorted(names))
    assert set(explained(tool, ["soft"])) == set(rows) == names
    assert all(row["note"] and name in row["prototype"] for name, row in rows.items()), rows


def examples(tool, source):
    names = [name for name in (source / "abi/exports.txt").read_text().split()
             if name.startswith("p4_pd_") and not name.endswith("_strings")]
    rows = explained(tool, names)
    assert set(rows) == set(names)
    return rows


def calls_before(rows, name):
    """In their order, each once; with what placement data and messages are made from."""
    calls = []
    for first in re.findall(r"/\* after (\w+) \*/", rows[name]["example"]):
        calls += [one for one in calls_before(rows, first) + [first] if one not in calls]
    return calls


def run_of(rows, name):
    before = calls_before(rows, name)
    lines = ["first();"] + [f"run_{first}();" for first in before]
    if before and "placement" in rows[name]["example"]:
        thing = "member" if "member" in rows[before[-1]]["family"] else "entry"
        owner = "p4_pd_tessel_switch_" + rows[before[-1]]["object"]
        lines.append(f"place(made_{thing}, soft_placement_of_{thing}, "
                     f"{owner}_get_{'adt' if thing == 'member' else 'mat'}_table_handle);")
    if before and "message" in rows[name]["example"]:
        lines.append(f"learn(\"{rows[before[0]]['object']}\");")
    if "snapshot_capture_data_get" in name:
        lines.append("capture();")
    family = rows[name]["family"]
    is_missing = NO_NEXT.search(family) or (not before and NONE_EVER.search(family))
    lines.append(f"check(run_{name}, \"{name}\", {int(bool(is_missing))}, "
                 f"{int(bool(ZERO.search(family)))});")
    return " ".join(lines)


def program(rows):
    parts = []
    for name, row in rows.items():
        # The number of a handle is the one that the device chose.
        block = re.sub(f"({HANDLES}) = 1;", r"\1 = made_\1;", row["example"])[:-1]
        for made in re.findall(rf"({HANDLES}) = \{{0\}};", block):
            block += f"  made_{made} = {made};\n"
        result = "  outcome = (long)result;\n" if " result =" in block else ""
        parts.append(f"static void run_{name}(void) {block}{result}}}")
    parts.append("static void run_all(void) {")
    parts += [run_of(rows, name) for name, row in rows.items() if row["family"] not in NOT_RUN]
    return "\n".join(parts + ["}\n"])


def main():
    tool, source, *libraries, compiler = sys.argv[1:6] + [sys.argv[6:]]
    source = pathlib.Path(source)
    check_control(tool, libraries[-1])
    rows = examples(tool, source)
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "examples")
        path.with_suffix(".inc").write_text(program(rows))
        folders = [f"-I{source}/{name}" for name in ("include", "sdk/include", "sdk/soft/include")]
        subprocess.run([*compiler, "-std=c99", "-Wall", "-Werror", "-Wno-unused", *folders,
                        f"-I{folder}", source / "tests/tool/example_calls.c", "-o", path, *libraries,
                        *(f"-Wl,-rpath,{os.path.dirname(library)}" for library in libraries)],
                       check=True)
        done = subprocess.run([path], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True)
    if done.returncode or done.stderr:
        sys.exit(f"{done.stderr}exit code {done.returncode}")


main()
