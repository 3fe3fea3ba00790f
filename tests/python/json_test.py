#!/usr/bin/env python3
"""Compares what tesselctl --json prints with its documented shape.

usage: json_test.py TESSELCTL SCHEMA DOCUMENT SCRIPT

Checks what SCRIPT, commands of every kind and wrong ones print, and the examples of DOCUMENT.
"""
import json
import os
import re
import subprocess
import sys
import tempfile

TYPES = {"object": dict, "array": list, "string": str}
COMMANDS = """
age enable ipv4ShortMaskLpm sweep=10 ttl=1000
add ipv4ShortMaskLpm vrfId=2 dip=10.0.0.0/8 ttl=1500 action=setEcmp ecmpGroup=1
lookup ipv4ShortMaskLpm vrfId=2 dip=10.1.1.1
traffic firewallPolicy srcSegment=1 dstSegment=2 protocol=6 dstPort=443 packets=3
counter list --filter label=x* --sort packets
find ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 --trace
tables
describe l2LookupMiss
schema cpuEncapFields --raw
dump ipv6ShortMaskLpm
display firewallPolicy
default get ipv4ShortMaskLpm
member show ecmpMemberActionProfile
group show ecmpMemberActionProfile
register range ingVlanCheckData first=0 count=2
register write ingVlanCheckData index=0 value=1 --dry-run
hash get hashOuterIpv4Hdr
valueset show recirc_ports
digest listen macLearningDigest timeout=0
digest inject macLearningDigest smac=00:11:22:33:44:55 ingL2Domain=10
digest show macLearningDigest
digest ack macLearningDigest
snapshot create first=0 last=1 as=s
snapshot inject last=1 outerIpv4Hdr_dip=10.1.2.3
snapshot show snapshot=$s
age advance 2000
help
watch 0.1 count=2 count ipv4ShortMaskLpm
save before.image
modify ipv4ShortMaskLpm vrfId=1 dip=0.0.0.0/0 action=setNextHop nextHop=9
delete ipv6ShortMaskLpm vrfId=1 dip=2001:db8:20::/48
default set egressMcRemap action=setL2DomainReplicated l2Domain=77
default reset l2LookupMiss
age disable ipv4ShortMaskLpm
member modify ecmpMemberActionProfile member=1 action=setEcmpNextHop nextHop=9
member add ecmpMemberActionProfile as=m action=setEcmpNextHop nextHop=5
group join ecmpMemberActionProfile group=1 member=$m
group disable ecmpMemberActionProfile group=1 member=$m
group enable ecmpMemberActionProfile group=1 member=$m
group choose ecmpMemberActionProfile group=1 hash=5
group leave ecmpMemberActionProfile group=1 member=1
fallback set ecmpMemberActionProfile member=$m
meter set pdpMeter index=4 cir=1 cbs=2 pir=3 pbs=4
meter get pdpMeter index=4
wred set handle=0x07000001 index=6 min=1 max=9 probability=0.5 time=2 pipe=1
wred get
counter write pdpClassCount index=5 packets=1 bytes=64
counter read pdpClassCount index=5
counter sync pdpClassCount
register write ingVlanCheckData index=3 value=1
register write flowDigestCountReg value=7
register read ingVlanCheckData index=3
register sync ingVlanCheckData
hash set hashOuterIpv4Hdr seed=7
hash compute hashOuterIpv4Hdr 10.0.0.1/32 10.0.0.2/32 6/8 1/16 2/16
valueset add recirc_ports value=0x40 mask=0xf0 as=v
valueset modify recirc_ports entry=$v value=0x50
valueset delete recirc_ports entry=$v
group add ecmpMemberActionProfile size=1 as=h
group delete ecmpMemberActionProfile group=$h
member add ecmpMemberActionProfile as=n action=setEcmpNextHop nextHop=6
member delete ecmpMemberActionProfile member=$n
save after.image
diff before.image after.image
apply before.image
verify after.image
register reset ingVlanCheckData
fallback reset ecmpMemberActionProfile
digest ignore macLearningDigest
snapshot trigger snapshot=$s outerIpv4Hdr_dip=10.1.2.3
snapshot delete snapshot=$s
state log state.json
state restore state.json
report page.html before.image after.image
show l2LookupMiss
"""
DIFF_ROWS = [
    {"change": "-", "profile": "ecmpMemberActionProfile", "group": "#1", "size": 8,
     "members": [1, 2]},
    {"change": "+", "profile": "ecmpMemberActionProfile", "what": "fallback", "member": "#3"},
    {"change": "+", "counter": "pdpClassCount", "index": 5, "pipe": 0, "packets": 1, "bytes": 64},
    {"change": "+", "meter": "pdpMeter", "index": 4, "cir": 1, "cbs": 2, "pir": 3, "pbs": 4,
     "type": "unaware"},
    {"change": "+", "register": "ingVlanCheckData", "index": 3, "values": [1, 1, 1, 1]},
    {"change": "+", "register": "flowDigestCountReg", "what": "all", "values": [7, 7, 7, 7]},
    {"change": "+", "hash": "hashOuterIpv4Hdr", "seed": "0x7"},
    {"change": "+", "wred": "profiles", "handle": "0x7000001", "index": 6, "pipe": 1, "min": 1,
     "max": 9, "probability": "0.5", "time": "2"},
]
# Each with the members of its error.
FAULTS = {
    "cuont": {"column": 1, "token": "cuont", "message": "no command has this name",
              "suggestion": "count"},
    "show \"\xff\x01 \\x": None,
    "add ipv4ShortMaskLpm vrfId=1 dip=10.1.0.1/16 action=setEcmp ecmpGroup=1": {
        "column": 34, "token": "10.1.0.1/16", "message": "the address has bits behind its prefix",
        "suggestion": "10.1.0.0/16"},
    "tables --sort nosuch": {"message": "no row has a 'nosuch'"},
    "load /nonexistent.image": None,
    "watch delete l2Lookup entry=1": None,
}


def wrong_with(value, schema, root, at="line"):
    """What does not hold, empty for nothing. Knows the words that the schema uses, no others."""
    def parts():
        for word, want in schema.items():
            if word in ("$schema", "$id", "$defs", "title", "description", "additionalProperties"):
                continue
            if word == "$ref":
                yield wrong_with(value, root["$defs"][want.split("/")[-1]], root, at)
            elif word == "anyOf":
                each = [wrong_with(value, one, root, at) for one in want]
                yield "" if "" in each else f"{at}: none of: {each}"
            elif word == "type":
                good = (type(value) is int) if want == "integer" else isinstance(value, TYPES[want])
                yield "" if good else f"{at}: no {want}"
            elif word == "const":
                yield "" if type(value) is type(want) and value == want else f"{at}: not {want}"
            elif word == "minimum":
                yield "" if value >= want else f"{at}: below {want}"
            elif word == "minLength" or word == "minProperties":
                yield "" if len(value) >= want else f"{at}: too short"
            elif word == "items":
                yield from (wrong_with(one, want, root, f"{at}[{i}]") for i, one in enumerate(value))
            elif word == "required":
                yield from (f"{at}: lacks {name}" for name in want if name not in value)
            elif word == "dependentRequired":
                yield from (f"{at}: {name} without {other}" for name, others in want.items()
                            for other in others if name in value and other not in value)
            elif word == "properties":
                others = schema.get("additionalProperties", True)
                for name, one in value.items():
                    if name in want:
                        yield wrong_with(one, want[name], root, f"{at}.{name}")
                    elif isinstance(others, dict):
                        yield wrong_with(one, others, root, f"{at}.{name}")
                    elif not others:
                        yield f"{at}: has {name}"
            else:
                raise ValueError(f"the schema uses {word}")
        if "properties" not in schema and isinstance(schema.get("additionalProperties"), dict):
            for name, one in value.items():
                yield wrong_with(one, schema["additionalProperties"], root, f"{at}.{name}")
    return next((part for part in parts() if part), "")


def once(pairs):
    members = dict(pairs)
    assert len(members) == len(pairs), f"two members of one name: {pairs}"
    return members


def check_checker(schema):
    good = {"version": 1, "command": "x", "rows": [{"key": {"a": 1}, "values": [1]}],
            "error": {"message": "m"}}
    assert wrong_with(good, schema, schema) == ""
    for change in ({"version": 2}, {"version": True}, {"more": 1}, {"rows": {}}, {"rows": [{}]},
                   {"rows": [{"entry": "1"}]}, {"rows": [{"entry": -1}]}, {"rows": [{"x": None}]},
                   {"rows": [{"key": {"a": []}}]}, {"error": {}}, {"error": {"message": ""}},
                   {"error": {"message": "m", "column": 1}}, {"error": {"message": "m", "x": 1}}):
        assert wrong_with({**good, **change}, schema, schema), change
    assert wrong_with({"version": 1, "rows": []}, schema, schema)


def main():
    tool, schema_file, document, script = (os.path.abspath(path) for path in sys.argv[1:])
    with open(schema_file) as file:
        schema = json.load(file)
    check_checker(schema)

    def lines_of(words, text):
        run = subprocess.run([tool, "--json", *words], input=text.encode("latin-1"),
                             capture_output=True)
        assert run.stderr in (b"", b"new image leaf.image\n"), run.stderr
        lines = [json.loads(line, object_pairs_hook=once) for line in run.stdout.splitlines()]
        for line in lines:
            wrong = wrong_with(line, schema, schema)
            assert not wrong, f"{wrong}: {line}"
        return run.returncode, lines

    with tempfile.TemporaryDirectory() as folder:
        os.chdir(folder)
        code, lines = lines_of(["--image", "leaf.image", "run", script], "")
        assert code == 0 and len(lines) == 60 and all("error" not in line for line in lines)
        code, lines = lines_of(["--image", "leaf.image", "run", "-"], COMMANDS)
        assert code == 2, [line for line in lines if "error" in line]  # for the diff
        assert len(lines) == 1 + len(COMMANDS.strip().splitlines())
        rows = [row for line in lines for row in line["rows"] if "change" in row]
        assert all(row in rows for row in DIFF_ROWS), [row for row in DIFF_ROWS if row not in rows]
        all_lines = lines
        code, lines = lines_of(["run", "-k", "-"], "".join(line + "\n" for line in FAULTS))
        assert code == 1 and len(lines) == len(FAULTS)
        for number, (line, want) in enumerate(zip(lines, FAULTS.values()), 1):
            assert line["error"]["line"] == number and line["error"]["file"] == "standard input"
            rest = {**line["error"], "file": None, "line": None}
            assert want is None or rest == {**want, "file": None, "line": None}, rest
        check_every_command(all_lines + lines)
        check_examples(document, schema)


# Commands that answer nothing unless something is wrong, or that the rest of the tests run.
UNSEEN = {"run", "serve", "shell", "routes", "quit", "exit"}


def check_every_command(lines):
    """Every command that help lists was run."""
    (listed,) = [line["rows"] for line in lines if line["command"] == "help"]
    names = {row["command"] for row in listed}
    seen = {name for name in names for line in lines if f"{line['command']} ".startswith(f"{name} ")}
    assert names - seen <= UNSEEN, names - seen


def check_examples(document, schema):
    with open(document) as file:
        examples = re.findall(r"^\{.*\}$", file.read(), re.M)
    assert len(examples) >= 5, "the document has lost its examples"
    for line in examples:
        wrong = wrong_with(json.loads(line, object_pairs_hook=once), schema, schema)
        assert not wrong, f"{wrong}: {line}"


main()
