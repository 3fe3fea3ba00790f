"""Fails each call about files, and each allocation, of what keeps a device or reads files: what was
answered stays, a file is the old one or the new one, and a failure that is survived leaves nothing.

    fault_test.py TOOL FAIL_CALLS EVERY [SCENE...]    EVERY: 1 for all faults, 7 for each seventh
"""
import contextlib
import errno
import http.client
import os
import re
import shutil
import signal
import subprocess
import sys
import tempfile
from concurrent.futures import ThreadPoolExecutor

TOOL, LIBRARY = map(os.path.abspath, sys.argv[1:3])
EVERY = int(sys.argv[3])
ERRORS = [errno.EIO, errno.ENOSPC, errno.EINTR, errno.EACCES, errno.EMFILE]
HOP = "add nextHop nextHop={} action=setNextHopDetails dmac=1 domain=1"


def environment(kind=0, at=0, **more):
    return dict(os.environ, LD_PRELOAD=LIBRARY, FAULT=str(kind), FAULT_AT=str(at), **more)


def run(folder, words, **options):
    ended = subprocess.run([TOOL, *words.split()], cwd=folder, timeout=300,
                           stdin=subprocess.DEVNULL, capture_output=True, text=True,
                           errors="replace", **options)
    assert ended.returncode in (0, 1, -signal.SIGKILL), ended
    assert ended.returncode != 1 or ended.stderr, ended
    return ended


def hops(folder, where):
    shown = run(folder, where + " --terse show nextHop", check=True).stdout
    return set(map(int, re.findall(r" nextHop=(\d+)", shown)))


class Scene:
    """What is done with a fault in a folder that was prepared, and how it must be then."""
    # Calls without which something cannot be removed: a lock may be somebody else's.
    MAY_STAY = {"unlink", "unlinkat", "remove", "flock", "fstat", "fstatat", "lstat"}

    def prepare(self, folder):
        for number in (1, 2):
            run(folder, "--image x " + HOP.format(number), check=True)

    def check_names(self, folder):
        assert set(os.listdir(folder)) <= self.NAMES, os.listdir(folder)


class Image(Scene):
    NAMES = {"x"}

    def act(self, folder, env, **options):
        return run(folder, "--image x " + HOP.format(3), env=env, **options)

    def check(self, folder, ended):
        kept = hops(folder, "--image x")
        assert kept == {1, 2, 3} or (kept == {1, 2} and ended.returncode != 0), kept
        run(folder, "--image x " + HOP.format(4), check=True)


class State(Scene):
    """A document of the state in the place of another one."""
    NAMES = {"x", "y"}

    def prepare(self, folder):
        super().prepare(folder)
        run(folder, "state log y", check=True)

    def act(self, folder, env, **options):
        return run(folder, "--image x state log y", env=env, **options)

    def check(self, folder, ended):
        run(folder, "state restore y", check=True)
        assert self.act(folder, None).returncode == 0


class Readers(State):
    """A script that reads what there is to read."""
    NAMES = {"x", "y", "rules", "script"}

    def prepare(self, folder):
        super().prepare(folder)
        with open(os.path.join(folder, "rules"), "w") as rules:
            rules.write("@10.0.0.0/8 0.0.0.0/0 0 : 65535 80 : 80 0x06/0xFF\n" * 9)
        with open(os.path.join(folder, "script"), "w") as script:
            script.write("load x\nstate restore y\ndiff x\napply x\nacl --atomic rules "
                         "action=setFirewallPolicyDrop counterIndex=3 log=1 meterDrop=0\ncount\n")

    def act(self, folder, env, **options):
        return run(folder, "--terse run script", env=env, **options)

    def check(self, folder, ended):
        is_whole = re.search("firewallPolicy +(entries=)?9", ended.stdout)
        assert is_whole or ended.returncode != 0, ended


class Server:
    def __init__(self, folder, env=None, words="--journal j --sync always", **options):
        self.process = subprocess.Popen(
            [TOOL, "serve", "--socket", "s", *words.split()], cwd=folder,
            env=env, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, **options)
        self.line = self.process.stdout.readline()  # it is served, or ended

    def counts(self):
        """Whether a request over HTTP is answered; a fault is whole JSON, too."""
        try:
            client = http.client.HTTPConnection(re.search("http://(.*)/", self.line)[1], timeout=60)
            client.request("GET", "/json/count")
            answer = client.getresponse()
            text = answer.read().decode()
        except (OSError, http.client.HTTPException, TypeError):
            return False
        assert answer.status == 500 or re.fullmatch(r'\{.*[^,]\].*\}\n', text), text
        return answer.status == 200

    def end(self):
        self.process.terminate()
        try:
            errors = self.process.communicate(timeout=60)[1]
        finally:
            self.process.kill()
        ended = subprocess.CompletedProcess([], self.process.returncode, "", errors)
        assert ended.returncode in (0, -signal.SIGKILL) or ended.returncode == 1 and errors, ended
        return ended


class Journal(Scene):
    """Changes of a served device, and a new file of its journal when the server ends."""
    MAY_STAY = Scene.MAY_STAY | {"openat", "open", "malloc"}  # of and for the names in the folder
    MAY_STAY |= {"fsync"}  # what a loss of power needs

    def prepare(self, folder):
        for number in (1, 2):
            server = Server(folder)
            run(folder, "--socket s " + HOP.format(number), check=True)
            assert server.end().returncode == 0

    def act(self, folder, env, **options):
        server = Server(folder, env, **options)
        answers = {number: run(folder, "--socket s " + HOP.format(number)) for number in (3, 4)}
        ended = server.end()
        ended.answers = answers
        return ended

    def check(self, folder, ended):
        is_on_disk = "may not be on the disk yet" not in ended.stderr
        assert is_on_disk or os.path.exists(folder + "/j.2.image"), os.listdir(folder)
        server = Server(folder)
        kept = hops(folder, "--socket s")
        changes = int(run(folder, "--socket s history --count", check=True).stdout)
        again = server.end()
        assert again.returncode == 0, again
        assert "no new file" not in again.stderr, again
        assert {1, 2} <= kept <= {1, 2, 3, 4} and changes == len(kept), (kept, changes)
        for number, answer in ended.answers.items():
            assert number in kept or answer.returncode != 0, f"{number} was answered: {kept}"
            assert number not in kept or "taken back" not in answer.stderr, f"{number}: {answer}"

    def check_names(self, folder):
        names = " ".join(sorted(os.listdir(folder)))
        assert re.fullmatch(r"j( j\.\d)*( j\.\d+\.image)( j\.\d)*", names), names


class Clients(Scene):
    """A monitor, which reads of all changes, or that it missed some, and requests over HTTP, of which
    one may get no answer."""
    NAMES = set()

    def prepare(self, folder):
        pass

    def act(self, folder, env, **options):
        server = Server(folder, env, "--http :0", **options)
        if not server.line:
            return server.end()
        monitor = subprocess.Popen([TOOL, "--socket", "s", "--json", "monitor"], cwd=folder, text=True,
                                   stdout=subprocess.PIPE, stderr=subprocess.DEVNULL)
        monitor.stdout.readline()  # it is answered, or ended
        done = [run(folder, "--socket s " + HOP.format(number)).returncode for number in (1, 2)]
        answers = [server.counts() for _ in range(2)]
        monitor.send_signal(signal.SIGINT)
        heard = monitor.communicate(timeout=300)[0]
        ended = server.end()
        assert ended.returncode != 0 or any(answers), "no request was answered"
        missed = sum(map(int, re.findall('"changes":(.)', heard)))
        is_whole = heard.count('"command":"add') + missed >= done.count(0)
        assert is_whole or monitor.returncode != 0, heard
        return ended

    def check(self, folder, ended):
        if os.listdir(folder):
            assert Server(folder, words="").end().returncode == 0


@contextlib.contextmanager
def copy_of(base):
    with tempfile.TemporaryDirectory(prefix="fault.") as parent:
        yield shutil.copytree(base, parent + "/f")


def listed(scene, base, kind):
    """What the library of faults says of a run without one."""
    reading, writing = os.pipe()
    with copy_of(base) as folder:
        ended = scene.act(folder, environment(kind, FAULT_LIST=str(writing)), pass_fds=[writing])
    assert ended.returncode == 0, ended
    os.close(writing)
    with os.fdopen(reading) as names:
        return names.read().split()


def faults_of(scene, base):
    """All faults of its calls, and the allocations that may fail, which are many."""
    for at, name in enumerate(listed(scene, base, 0), 1):
        kinds = ["kill", *ERRORS]
        if name in ("write", "open", "openat", "link"):
            kinds += ["full"]
        if name == "write":
            kinds += ["half"]
        yield from ((kind, at, name) for kind in kinds)
    allocations = int(listed(scene, base, "memory")[-1])
    yield from (("memory", at, "malloc") for at in range(1, allocations + 1, 1 if EVERY == 1 else 17))


def fail(scene, base, fault):
    kind, at, name = fault
    with copy_of(base) as folder:
        try:
            ended = scene.act(folder, environment(kind, at))
            assert (ended.returncode == -signal.SIGKILL) == (kind == "kill"), ended
            if kind != "kill" and name not in scene.MAY_STAY:
                scene.check_names(folder)
            scene.check(folder, ended)
            scene.check_names(folder)
            return 0
        except (AssertionError, subprocess.SubprocessError) as error:
            print(f"{type(scene).__name__}: {name}, call {at}, {kind}: {error!r}", flush=True)
            return 1


def main():
    wrong = 0
    signal.signal(signal.SIGINT, signal.default_int_handler)  # which a monitor would ignore, too
    for scene in (Image(), State(), Readers(), Journal(), Clients()):
        if len(sys.argv) > 4 and type(scene).__name__ not in sys.argv[4:]:
            continue
        with tempfile.TemporaryDirectory(prefix="fault.") as base:
            scene.prepare(base)
            faults = list(faults_of(scene, base))
            some = faults[::EVERY]
            with ThreadPoolExecutor(os.cpu_count()) as pool:
                wrong += sum(pool.map(lambda fault: fail(scene, base, fault), some))
            print(f"{type(scene).__name__}: {len(some)} of {len(faults)} faults", flush=True)
    return wrong != 0


sys.exit(main())
