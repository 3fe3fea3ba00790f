"""Makes the site of the documentation in build/docs/site.

    site.py TOOL
    site.py TOOL DIR     only the pages of functions, as Markdown, into DIR

The pages are those of the project, which are also read where its files are. Two of them get what library
and soft SDK say of their functions, by the tool.
"""
import html.parser
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import urllib.parse

ROOT = pathlib.Path(__file__).resolve().parent.parent
PAGES = ROOT / "build/docs/pages"
SITE = ROOT / "build/docs/site"


def run(*command, **options):
    done = subprocess.run(command, cwd=ROOT, stdout=subprocess.PIPE, text=True, **options)
    if done.returncode:
        sys.exit(f"{done.stdout}site: {command[0]} ended with {done.returncode}")
    return done.stdout


def stage():
    """Puts the pages, and the files that they link to, where mkdocs finds nothing else."""
    shutil.rmtree(PAGES, ignore_errors=True)
    PAGES.mkdir(parents=True)
    for path in [*ROOT.glob("*.md"), ROOT / "examples"]:
        (PAGES / path.name).symlink_to(path)
    (PAGES / "docs").mkdir()
    for path in (ROOT / "docs").iterdir():
        (PAGES / "docs" / path.name).symlink_to(path)


# ---- The functions, by family ----

def answers(tool, commands):
    lines = run(tool, "--json", "run", "-", input="\n".join(commands) + "\n").splitlines()
    return [json.loads(line)["rows"] for line in lines]


def marked(note, statuses):
    """The note with its names as code, and its statuses as links."""
    def mark(found):
        name = found[0]
        return f"[`{name}`](statuses.md)" if name in statuses else f"`{name}`"
    return re.sub(r"[\w*]*_[\w*]*", mark, note)


def shape(function, prefix, kinds):
    name = function["function"][len(prefix):]
    for part in ("action", "object"):
        if part in function:
            kind = kinds.get(function[part], part).upper()
            name = re.sub(rf"(?<![a-zA-Z]){function[part]}(?![a-zA-Z])", kind, name, 1)
    return prefix + name


def statuses():
    text = (ROOT / "docs/statuses.md").read_text()
    return set(re.findall(r"\| `(\w+)` \|", text)) | set(re.findall(r"^\| \S+ `(\w+)`", text, re.M))


def about_all():
    """What the header says of all functions."""
    header = next((ROOT / "include").glob("p4_pd_*_*.h")).read_text()
    note = re.search(r" \* Arguments\n((?: \*   .*\n)+)", header)[1].replace(" *   ", "")
    return f"\n## Arguments\n\n{marked(note, statuses())}"


def c_interface(tool):
    objects, = answers(tool, ["objects"])
    kinds = {row["name"]: row["kind"] for row in reversed(objects)}
    names = [name for name in (ROOT / "abi/exports.txt").read_text().split()
             if name.startswith("p4_pd_") and not name.endswith("_strings")]
    functions = [rows[0] for rows in answers(tool, [f"api {name}" for name in names])]
    prefix = next(f["function"] for f in functions if f["family"] == "init")[:-4]
    order = {row["family"]: place for place, row in enumerate(answers(tool, ["api"])[0])}
    families = {}
    for function in functions:
        families.setdefault(function["family"], []).append(function)
    page, topic = about_all(), ""
    for family in sorted(families, key=order.get):
        of_family = families[family]
        # The one that shows most: each has the parameters that its object wants.
        most = max(of_family, key=lambda f: f["prototype"].count(","))
        if most["topic"] != topic:
            topic = most["topic"]
            page += f"\n## {topic}\n\n{marked(most['note'], statuses())}\n"
        count = f", {len(of_family)} functions" if len(of_family) > 1 else ""
        page += (f"\n#### `{shape(most, prefix, kinds)}`{count} {{: #{family} }}\n\n"
                 f"```c\n{most['prototype']}\n```\n\n```c\n{most['example']}\n```\n")
    return page


def soft_sdk(tool):
    names = [row["function"] for row in answers(tool, ["api soft"])[0]]
    functions = [rows[0] for rows in answers(tool, [f"api {name}" for name in names])]
    page, header = "\n## All functions\n", ""
    for function in functions:
        if function["family"] != header:
            header = function["family"]
            page += f"\n### {header}\n"
        page += (f"\n#### `{function['function']}`\n\n{marked(function['note'], statuses())}\n\n"
                 f"```c\n{function['prototype']}\n```\n")
    return page


def write_functions(tool, folder):
    """The pages with functions, their lists behind them. Only those of the site have names of places."""
    for name, functions in (("c-interface.md", c_interface), ("soft-sdk.md", soft_sdk)):
        listed = functions(tool)
        if folder != PAGES / "docs":
            listed = re.sub(r" \{: #\w+ \}", "", listed)
        (folder / name).unlink(missing_ok=True)
        (folder / name).write_text((ROOT / "docs" / name).read_text() + listed)


# ---- Links ----

class Links(html.parser.HTMLParser):
    def __init__(self, path):
        super().__init__()
        self.links, self.places = [], set()
        self.feed(path.read_text())

    def handle_starttag(self, tag, attributes):
        for name, value in attributes:
            if name in ("id", "name"):
                self.places.add(value)
            if name in ("href", "src") and tag in ("a", "img"):
                self.links.append(value)


def broken_links():
    pages = {path: Links(path) for path in SITE.rglob("*.html") if path.name != "404.html"}
    for path, page in pages.items():
        for link in page.links:
            url = urllib.parse.urlsplit(link)
            if url.scheme or url.netloc:
                continue
            target = (path.parent / urllib.parse.unquote(url.path)).resolve() if url.path else path
            is_place = not url.fragment or target not in pages or url.fragment in pages[target].places
            if not target.is_file() or not is_place:
                yield f"{path.relative_to(SITE)}: {link} leads nowhere"


def main():
    tool = os.path.abspath(sys.argv[1])
    if len(sys.argv) > 2:
        folder = pathlib.Path(sys.argv[2])
        folder.mkdir(parents=True, exist_ok=True)
        return write_functions(tool, folder)
    stage()
    write_functions(tool, PAGES / "docs")
    run("mkdocs", "build", "--clean", "--strict", "--quiet")
    faults = list(broken_links())
    if faults:
        sys.exit("\n".join(faults))
    print(SITE / "index.html")


main()
