"""Runs transcripts: commands, and below each what it prints.

    == a title         starts a folder and a device of its own
    $ a shell command  that prints this, on both streams,
    (exit code 2)      and ends so; without this line with 0
    > a command        of a tool that keeps its device until the next title
    7: 'word': what    a fault of it is its column and its sentence

'...' stands for any text. In a Markdown page the blocks of code with commands are run, in one
folder, and need not print exit codes; "cat FILE" makes a file that is not there. An HTML comment
before a block says otherwise: "not run" skips it, "file NAME" makes it the contents of a file, as
do further lines of the comment, "add NAME" the end of one; "run" and lines are commands of their own.

    transcript.py TOOL [--write] FILE...      --write puts what came in the place of what differs
    transcript.py TOOL --json SCHEMA FILE...  kept tools print JSON, which must say the same
"""
import os
import re
import select
import subprocess
import sys
import tempfile
import time

MARK = "end-of-answer"
LATE = 20  # seconds for what a process in the background prints
JOB_ENDED = r"(?m)^\[\d+\][-+ ] +\S.*\n"  # what bash says of a job, at a time of its own choice


class Process:
    """A shell or a tool that reads commands; a MARK follows the answer to each."""

    def __init__(self, arguments, folder, mark, end):
        self.mark, self.end, self.unread = mark, end, ""
        self.process = subprocess.Popen(arguments, cwd=folder, stdin=subprocess.PIPE,
                                        stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def read_until(self, pattern, seconds):
        deadline = time.monotonic() + seconds
        while not (found := re.search(pattern, self.unread)):
            left = max(0, deadline - time.monotonic())
            some = b""
            if select.select([self.process.stdout], [], [], left)[0]:
                some = os.read(self.process.stdout.fileno(), 65536)
            if not some:
                return None
            self.unread += some.decode("utf-8", "replace")
        text, self.unread = self.unread[:found.start()], self.unread[found.end():]
        return text, found

    def run(self, command):
        self.process.stdin.write(f"{command}\n{self.mark}\n".encode())
        self.process.stdin.flush()
        answer = self.read_until(self.end, 600)
        if answer is None:
            sys.exit(f"no end of: {command}\n{self.unread}")
        return answer

    def close(self):
        self.process.stdin.close()
        self.process.wait()
        self.process.stdout.close()


class Section:
    """A folder, with a shell and a tool that work in it."""

    def __init__(self, tool, shape):
        self.tool, self.shape, self.processes = tool, shape, {}
        self.folder = tempfile.TemporaryDirectory(prefix="transcript.")

    def process(self, prompt):
        if prompt not in self.processes:
            made = (Process(["bash", "--norc"], self.folder.name,
                            f"_s=$?; echo {MARK} $_s; (exit $_s)", MARK + r" (\d+)\n")
                    if prompt == "$" else
                    Process([self.tool, "--json" if self.shape else "--terse", "--pipes", "2",
                             "run", "-k", "-"], self.folder.name, MARK,
                            f'.*"{MARK}".*\n' if self.shape else f".*'{MARK}'.*\n.*\n.*\n"))
            self.processes[prompt] = made
            if prompt == "$":
                made.run("set -m; trap 'kill $(jobs -p) 2>/dev/null; wait' EXIT")  # kill %1
        return self.processes[prompt]

    def run(self, prompt, command, expected):
        process = self.process(prompt)
        text, end = process.run(command)
        if prompt == ">" and self.shape:
            return expected if self.shape.stands_for(text, expected) else text
        if prompt == ">":
            return re.sub(r"(?m)^standard input:\d+(?::(\d+))?: (.*)\n(?:  .*\n  *\^+\n)?",
                          lambda fault: f"{fault[1] or 0}: {fault[2]}\n", text)
        if command.endswith("&"):
            text = re.sub(JOB_ENDED, "", text)
            late = process.read_until(pattern_of(expected.removeprefix(text)), LATE)
            text += late[1][0] if late else process.unread
        text = re.sub(JOB_ENDED, "", text)
        return text + (f"(exit code {end[1]})\n" if end[1] != "0" else "")

    def path(self, name):
        return os.path.join(self.folder.name, name)

    def write(self, name, text, mode="w"):
        os.makedirs(os.path.dirname(self.path(name)), exist_ok=True)
        with open(self.path(name), mode) as file:
            file.write(text)

    def close(self):
        for process in self.processes.values():
            process.close()
        self.folder.cleanup()


def pattern_of(text):
    text = re.sub(r"\d{4}-\d\d-\d\d \d\d:\d\d:\d\d", "A-DATE", text)
    return re.escape(text).replace(r"\.\.\.", r"[\s\S]*?").replace(r"A\-DATE", r"[-\d]+ [:\d]+")


class Transcript:
    def __init__(self, path, *tool):
        self.path, self.tool, self.is_page = path, tool, path.endswith(".md")
        self.section, self.commands, self.faults = Section(*tool), 0, 0

    def run_command(self, line, expected):
        self.commands += 1
        shown = re.match(r"\$ cat (\S+)$", line)
        if self.is_page and shown and not os.path.exists(self.section.path(shown[1])):
            self.section.write(shown[1], expected)
        text = self.section.run(line[0], line[2:], expected)
        if self.is_page and "(exit code" not in expected:
            text = re.sub(r"\(exit code \d+\)\n$", "", text)
        if line[0] == "$" and self.section.shape:
            list(self.section.shape.answers(text))
        if re.fullmatch(pattern_of(expected), text):
            return expected
        self.faults += 1
        print(f"{self.path}: {line}\nexpected:\n{expected}printed:\n{text}")
        if os.environ.get("FAIL_FAST"):
            sys.exit(1)
        return text

    def run_block(self, lines):
        """Runs the commands of the lines; gives the lines with what is printed now."""
        now = ""
        while lines:
            line = lines.pop(0)
            now += line + "\n"
            if line.startswith("=="):
                self.section.close()
                self.section = Section(*self.tool)
            if line[:2] not in ("$ ", "> "):
                continue
            expected = ""
            while lines and not re.match(r"[$>] |==", lines[0]):
                expected += lines.pop(0) + "\n"
            text = expected.rstrip("\n") + "\n" if expected.strip() else ""
            now += self.run_command(line, text) + expected[len(text):]
        return now

    def run_page(self, text):
        """The same for the blocks of code of a page, by the comments before them."""
        for name, block in re.findall(r"(?ms)<!-- file (\S+) -->\n+```.*?\n(.*?)^```$", text):
            self.section.write(name, block)
        now, note = "", ""
        for part in re.split(r"(?ms)(^```.*?^```$|<!--.*?-->)", text):
            if part.startswith("<!--"):
                note, *lines = part[4:-3].strip().split("\n")
                if note == "run":
                    self.run_block(lines)
                elif lines and note.startswith("file "):
                    self.section.write(note[5:], "\n".join(lines) + "\n")
            elif part.startswith("```"):
                head, *lines, tail = part.split("\n")
                if note.startswith("add "):
                    self.section.write(note[4:], "\n".join(lines) + "\n", "a")
                if note != "not run" and any(line.startswith("$ ") for line in lines):
                    part = f"{head}\n{self.run_block(lines)}{tail}"
                note = ""
            now += part
        return now

    def run(self, write):
        text = open(self.path).read()
        now = self.run_page(text) if self.is_page else self.run_block(text.split("\n")[:-1])
        self.section.close()
        if write and now != text:
            open(self.path, "w").write(now)
        print(f"{self.path}: {self.commands} commands, {self.faults} faults")
        return self.faults == 0 and self.commands > 0


def main():
    tool, *paths = sys.argv[1:]
    tool = os.path.abspath(tool)
    write, shape = "--write" in paths, None
    if "--json" in paths:
        import json_shape
        _, schema, *paths = paths
        shape = json_shape.Shape(schema)
    os.environ.update(PATH=os.path.dirname(tool) + ":" + os.environ["PATH"], TERM="dumb")
    good = [Transcript(path, tool, shape).run(write) for path in paths if path != "--write"]
    if shape and shape.unseen(tool):
        sys.exit(f"no JSON of: {shape.unseen(tool)}")
    sys.exit(0 if good and all(good) else 1)


main()
