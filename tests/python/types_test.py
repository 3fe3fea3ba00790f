"""mypy --strict over the packages and their users."""
import os
import pathlib
import re
import subprocess
import sys

FOLDER = pathlib.Path(__file__).parent


def check(folder, *arguments):
    done = subprocess.run([sys.executable, "-m", "mypy", "--strict", "--cache-dir", folder, *arguments],
                          env=dict(os.environ, MYPYPATH=os.environ["PYTHONPATH"]), text=True,
                          stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return done.stdout.splitlines()


def test_types(tmp_path_factory):
    folder = tmp_path_factory.mktemp("cache")
    packages = [word for name in ["pd", *os.environ["PD_PROGRAMS"].split()] for word in ("-p", name)]
    assert "Success: no issues" in check(folder, *packages)[-1]
    page = pathlib.Path(os.environ["ROOT"], "docs/python.md").read_text()
    examples = [folder / f"example_{at}.py" for at in range(page.count("```python\n"))]
    for path, code in zip(examples, re.findall("```python\n(.*?)```", page, re.DOTALL)):
        path.write_text(code)
    assert pathlib.Path(os.environ["PD_EXAMPLE"]).read_text().split("\n", 1)[1] in page
    right = [FOLDER / "right_types.py", os.environ["PD_EXAMPLE"], *examples]
    assert "Success: no issues" in check(folder, *right)[-1]
    said = {}
    for line in check(folder, FOLDER / "wrong_types.py"):
        found = re.match(r".*wrong_types\.py:(\d+): (.*)", line)
        if found:
            said.setdefault(int(found[1]), []).append(found[2])
    lines = (FOLDER / "wrong_types.py").read_text().splitlines()
    wrong = {number: line.split("# says: ")[1] for number, line in enumerate(lines, 1)
             if "# says: " in line}
    for number, pattern in wrong.items():
        assert any(re.search(pattern, one) for one in said.get(number, [])), (number, said)
    assert said.keys() == wrong.keys()
