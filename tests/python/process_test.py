"""What befalls a whole process: odd arguments, its end, forks and interruptions."""
import os
import pathlib
import signal
import subprocess
import sys

import pytest

FOLDER = pathlib.Path(__file__).parent


def run(script, *arguments):
    return subprocess.run([sys.executable, *script, *arguments], text=True, timeout=120,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE)


def test_odd_arguments_do_no_harm(package, tmp_path):
    current = tmp_path / "current"
    done = run((FOLDER / "odd_arguments.py",), package.program.name, current)
    assert done.returncode == 0, current.read_text() + done.stderr
    assert int(done.stdout) > 2 * len(package.program.functions())


BUSY = """
import os, threading, time
import tessel_switch as ts
from tessel_switch.actions import setNextHop
device = ts.Device()
session = device.session()
session.tables.ipv4ShortMaskLpm.on_update(lambda update, entry: [n for n in range(50)])
def work(vrf):
    routes = session.tables.ipv4ShortMaskLpm
    while True:
        routes.add_rows(setNextHop, ((n << 16, sum(range(50))) for n in range(500)),
                        columns=("dip", "nextHop"), vrfId=vrf)
        for entry in [routes.find(vrfId=vrf, dip=n << 16) for n in range(500)]:
            routes.delete(entry)
for vrf in range(4):
    threading.Thread(target=work, args=(vrf,), daemon=True).start()
time.sleep(0.05)
"""


def test_process_ends_while_threads_call():
    for _ in range(10):
        done = run(("-c", BUSY))
        assert done.returncode == 0 and done.stderr == "", done.stderr


def test_forks_wait_for_calls():
    """The child of a fork finds no lock taken by a thread that it does not have."""
    done = run(("-c", BUSY + """
for _ in range(100):
    child = os.fork()
    if child == 0:
        len(session.tables.ipv4ShortMaskLpm)
        session.tables.ipv4ShortMaskLpm.add(setNextHop(nextHop=1), vrfId=9, dip=0)
        os._exit(0)
    os.waitpid(child, 0)
print("done")
"""))
    assert (done.returncode, done.stdout) == (0, "done\n"), done.stderr


def test_callbacks_are_interrupted(session):
    from tessel_switch.actions import setNextHop
    routes = session.tables.ipv4ShortMaskLpm
    routes.on_update(lambda update, entry: os.kill(os.getpid(), signal.SIGINT))
    with pytest.raises(KeyboardInterrupt):
        routes.add(setNextHop(nextHop=1), vrfId=0, dip=0)
        len(routes)
