"""The lines that --json prints: their documented shape, and the text that they stand for."""
import json
import re
import subprocess

import jsonschema

# Commands that print nothing, or go on.
NOT_ASKED = {"run", "serve", "shell", "quit", "exit"}


def once(pairs):
    members = dict(pairs)
    assert len(members) == len(pairs), f"two members of one name: {pairs}"
    return members


def words_of_row(row):
    for name, value in row.items():
        if isinstance(value, dict):
            yield from words_of_row(value)
        elif isinstance(value, list):
            yield f"{name}={','.join(map(str, value))}"
        else:
            is_text = isinstance(value, str) and name not in ("probability", "time")
            assert not is_text or not value.isdigit(), f"{name} is a number: {row}"
            yield from f"{name}={value}".split()


def fault_text(message, file, line, column=0, token=None, suggestion=None):
    word = "" if token is None else f"'{token}': "
    return f"{column}: {word}{message}" + (f"; did you mean '{suggestion}'?" if suggestion else "")


class Shape:
    def __init__(self, path):
        with open(path) as schema:
            self.validator = jsonschema.Draft202012Validator(json.load(schema))
        self.validator.check_schema(self.validator.schema)
        self.commands = set()

    def answers(self, text):
        for line in re.findall(r'(?m)^\{"version".*', text):
            answer = json.loads(line, object_pairs_hook=once)
            self.validator.validate(answer)
            self.commands.add(answer["command"] + " ")
            yield answer

    def stands_for(self, lines, text):
        """Whether the lines have the faults of the text to the letter, and its NAME=VALUE words."""
        answers = list(self.answers(lines))
        words = {word for answer in answers for row in answer["rows"] for word in words_of_row(row)}
        faults = {fault_text(**answer["error"]) for answer in answers if "error" in answer}
        wanted = {line for line in re.findall(r"(?m)^\d+: .*", text) if "..." not in line}
        text = re.sub(r"(?m)^\d+: .*", "", text)
        pairs = {word for word in text.split() if "=" in word}
        return bool(answers) and wanted <= faults and pairs <= words

    def unseen(self, tool):
        """The commands of the tool that printed nothing of this."""
        (listed,) = self.answers(subprocess.check_output([tool, "--json", "help"], text=True))
        names = {row["command"] for row in listed["rows"]} - NOT_ASKED
        seen = {name for name in names for one in self.commands if one.startswith(name + " ")}
        return names - seen
