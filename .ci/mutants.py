#!/usr/bin/env python3
"""Breaks the tables of src/ row by row and looks whether a test misses the row.

    .ci/mutants.py --sample 25           a random choice; --seed repeats it
    .ci/mutants.py --all                 every row
    .ci/mutants.py --list                shows the rows
    --file src/model/constraintrules.cpp only the tables of this file
    --build build/debug                  a configured build, build/release if not given

A row is deleted, or its first cell is changed where the rest doesn't compile without it. Ends with
1 if a row has no witness. The checkout and its build stay as they are: a copy of one file is
changed and compiled in a folder of its own and linked before the libraries, and the programs that
are made so run mounted in place of the real ones.
"""

import argparse
import concurrent.futures
import json
import os
import pathlib
import random
import re
import shlex
import shutil
import subprocess
import sys
import tempfile

# The tests that watch the tables of a file, in the order tried: names as ctest has them, each alone
# or with those of its functions that do, if others take long.
WATCHERS = {
    "aboutdialog.cpp": ["case_about"],
    "adjustmentlayout.cpp": ["case_adjustments"],
    "adjustmentrows.h": ["case_adjustments", "case_languages"],
    "booklettab.cpp": ["case_layout", "case_languages"],
    "colorgroup.cpp": ["case_basic", "case_imaging", "case_languages"],
    "constraintrules.cpp": ["tst_stores"],
    "finishinglayout.cpp": ["case_finishing", "case_languages", "tst_functions TestRotateTitle",
                            "tst_spoken"],
    "finishingtab.cpp": ["case_finishing"],
    "fkplayout.cpp": ["case_policy"],
    "generaltab.cpp": ["case_basic"],
    "imaginglayout.cpp": ["case_imaging", "case_adjustments", "case_languages"],
    "jobtab.cpp": ["case_job", "case_accounts", "case_login"],
    "language.cpp": ["case_languages"],
    "maker.h": ["tst_stores", "case_queues", "tst_functions TestProfileReader",
               "case_profiletree"],
    "monodialog.cpp": ["case_adjustments"],
    "pagesetuptable.cpp": ["tst_functions TestDesktopSettings"],
    "panellook.cpp": ["tst_measure"],
    "passwordcipher.cpp": ["tst_functions TestPasswordCipher"],
    "passwordprompt.cpp": ["case_prompt"],
    "policyreply.cpp": ["tst_functions TestPolicyClient"],
    "printerstatus.cpp": ["tst_functions TestPrinterStatus"],
    "printertab.cpp": ["case_languages"],
    "profilereader.cpp": ["tst_functions TestProfileReader", "case_profiletree"],
    "profilerules.cpp": ["tst_functions TestProfileRules"],
    "publishingrows.h": ["case_publishing", "case_languages"],
    "publishingtab.cpp": ["case_publishing"],
    "publishingtab.h": ["case_publishing"],
    "sheetcontent.cpp": ["case_sketch"],
    "sheetsketch.cpp": ["tst_functions TestSheetSketch", "tst_functions TestSheetSketchBefore",
                        "tst_functions TestSheetKeywords"],
    "sheetwords.cpp": ["case_sketch"],
    "syntheticoptions.cpp": ["tst_stores"],
    "watermarkrecords.cpp": ["tst_functions TestWatermarkRecords", "case_watermark"],
    "watermarkrows.h": ["case_watermark"],
}

# Tables whose rows hold lists: each word, or each text in the inner brackets, counts as a row.
WORD_LISTS = {"priorities"}
TEXT_LISTS = {"statusRows"}

# Rows that no test can miss, or whole tables (None), with the reason.
DEAD = {
    ("priorities", "WTyp"): "no printer has an option that is spelled so",
    ("priorities", "cPnch"): "no printer has it, and the panel's own is cHole",
    ("standardTexts", None): "only the catalogues need to know them",
    ("chromaticColors", None): "the import has the same rules",
    **{(table, None): "only the look of a drawing" for table in ("inks", "grays", "bars")},
    ("staplePlaces", None): "the button follows its own option, which is loaded after it",
    ("captionRows", '{"lblPinsPageError", QT_TRANSLATE_NOOP("PublishingTab", "Generic error message")}'):
        "never shows",
    ("bound", '{"cCovTRad", sides[Front]}'): "the other side of the cover tells as much",
    **{("bound", row): "a text field has no binding"
       for row in ('{"cJACLE", accounting->idEdit}', '{"cJULE", login->nameEdit}',
                   '{"cJPLE", login->passwordEdit}', '{"cJELE", email->edit}')},
    ("marks", '{"Pnch", lists[PunchMethod].label}'): "its list names and greys it as well",
    ("marks", '{"Sep", separationGroup}'): "a group's mark never shows",
    ("marks", '{"Rotate", rotateGroup}'): "a group's mark never shows",
    ("markKeywords", '"Lnpr"'): "a group's mark never shows",
    ("markKeywords", '"ColorModel"'): "a group's mark never shows",
    ("masterLimits", "7"): "the pattern takes less",
    ("valueLimits", "6"): "the pattern takes less",
    ("limits", "6"): "the pattern takes less",
    # What no longer matches may still begin a match, so that it can be typed.
    ("masterLimits", r'"-?(([0-9]|[0-9][0-9]|1[0-7][0-9])?)|180|-180"'): "breaks into a wider one",
    ("valueLimits", r'"-?([0-9])?(\\.([0-9]|[0-9][0-9]))?|10|-10"'): "breaks into a wider one",
    ("limits", r'"-?([0-9]|[1-9][0-9]|100)?"'): "breaks into a wider one",
    **{("unfolded", f'{{"{key}", "{value}"}}'): "the lists below the buttons do the same"
       for key, value in (("FldB", "None"), ("FldC", "None"), ("FldD", "None"), ("BFpS", "None"),
                          ("cBiFld", "False"), ("cTriFld", "False"))},
}


def reason_of_death(row):
    return DEAD.get((row.table, row.name)) or DEAD.get((row.table, None))


ROOT = pathlib.Path(__file__).resolve().parent.parent


class Row:
    """A row of a table: its place in the file and the texts that break it, in the order tried."""

    def __init__(self, path, table, name, line, texts):
        self.path, self.table, self.name, self.line, self.texts = path, table, name, line, texts

    def __str__(self):
        return f"{self.path}:{self.line} {self.table} {self.name}"


# Reading the tables

TOKEN = re.compile(r"""//[^\n]*|/\*.*?\*/|R"\((?:.*?)\)"|"(?:\\.|[^"\\\n])*"|'(?:\\.|[^'\\\n])'""",
                   re.DOTALL)
ARRAY = re.compile(r"\bconst(?:expr)?\b[^;{}()=]*?\b(\w+)\s*\[[^\]]*\]\s*=\s*\{")
RECORD = re.compile(r"\bconstexpr\s+[A-Z][\w:]*\s+(\w+)\s*=?\s*\{")


def masked(text):
    """The text with comments blank and literals filled, so that it splits at the right places."""
    def mask(match):
        token = match.group()
        if token[0] == "/":
            return re.sub(r"[^\n]", " ", token)
        return token[0] + "_" * (len(token) - 2) + token[-1]
    return TOKEN.sub(mask, text)


def closing(mask, start):
    """The place of the bracket that closes the one at `start`."""
    depth = 0
    for i in range(start, len(mask)):
        depth += {"{": 1, "(": 1, "[": 1, "}": -1, ")": -1, "]": -1}.get(mask[i], 0)
        if depth == 0:
            return i
    raise ValueError("no end of a table")


def elements(mask, start, end):
    """The parts between commas, as pairs of places; the commas of inner brackets don't count."""
    places, begin, i = [], start, start
    while i <= end:
        if i < end and mask[i] in "{([":
            i = closing(mask, i)
        elif i == end or mask[i] == ",":
            part = mask[begin:i]
            if part.strip():
                places.append((begin + len(part) - len(part.lstrip()),
                               begin + len(part.rstrip())))
            begin = i + 1
        i += 1
    return places


def literals(mask, start, end):
    return [(start + m.start(), start + m.end())
            for m in re.finditer(r'"_*"', mask[start:end])]


def without(text, mask, start, end):
    """The text without a part and the comma behind it, or before it if it is the last one."""
    behind = re.match(r"\s*,", mask[end:])
    if behind:
        return text[:start] + text[end + behind.end():]
    return text[:start].rstrip().removesuffix(",") + text[end:]


def changed(text, mask, start, end):
    """The texts with another value in the first cell that has one."""
    cell = re.compile(r'"_*"|\'_+\'|\b\d[\w.]*').search(mask, start, end)
    if not cell:
        return []
    old = text[cell.start():cell.end()]
    new = {'"': old[:-1] + '~"', "'": "'~'"}.get(old[0], f"{old} + 1")
    return [text[:cell.start()] + new + text[cell.end():]]


def rows_of_list(text, mask, table, start, end):
    """The rows of an array between its brackets: name, place and texts."""
    for first, last in elements(mask, start, end):
        strings = literals(mask, first, last)
        if table in WORD_LISTS:
            for begin, stop in strings:
                for word in re.finditer(r"[^ ]+", text[begin + 1:stop - 1]):
                    place = begin + 1 + word.start()
                    rest = text[place + len(word.group()):]
                    yield word.group(), place, [text[:place].rstrip(" ") + rest]
        elif table in TEXT_LISTS:
            for begin, stop in literals(mask, mask.index("{", first + 1), last):
                yield text[begin:stop], begin, [without(text, mask, begin, stop)]
        else:
            name = " ".join(text[first:last].split())
            yield name, first, ([without(text, mask, first, last)] +
                                changed(text, mask, first, last))


def rows_of_file(path):
    text = (ROOT / path).read_text(encoding="utf-8")
    mask = masked(text)
    for match in ARRAY.finditer(mask):
        start, end = match.end(), closing(mask, match.end() - 1)
        # An array that is no constexpr may still be a table of keywords.
        if "constexpr" in match.group() or literals(mask, start, end):
            for name, place, texts in rows_of_list(text, mask, match.group(1), start, end):
                yield Row(path, match.group(1), name, text.count("\n", 0, place) + 1, texts)
    for match in RECORD.finditer(mask):
        start, end = match.end(), closing(mask, match.end() - 1)
        for first, last in elements(mask, start, end):
            texts = changed(text, mask, first, last)
            if texts:
                yield Row(path, match.group(1), text[first:last],
                          text.count("\n", 0, first) + 1, texts)


def all_rows():
    rows = []
    for path in sorted((ROOT / "src").rglob("*")):
        if path.suffix in (".cpp", ".h"):
            rows += rows_of_file(path.relative_to(ROOT))
    return rows


# Compiling and running

class Build:
    """The finished build that the broken files are compiled and linked against."""

    def __init__(self, folder):
        self.folder = folder
        self.commands = {pathlib.Path(entry["file"]): entry["command"]
                         for entry in json.loads((folder / "compile_commands.json").read_text())}
        listed = self.output("ctest", "--test-dir", folder, "--show-only=json-v1")
        self.tests = {test["name"]: test for test in json.loads(listed)["tests"]}
        self.links = {}

    def prepare(self, tests):
        """Brings the programs up to date and finds out how they are linked."""
        subprocess.run(["cmake", "--build", self.folder], check=True, stdout=subprocess.DEVNULL)
        for target in {self.target(test) for test in tests}:
            command = self.output("ninja", "-C", self.folder, "-t", "commands", "-s", target)
            command = command.strip().splitlines()[-1]
            self.links[target] = shlex.split(command.removeprefix(": && ").removesuffix(" && :"))

    @staticmethod
    def output(*command):
        return subprocess.run(command, check=True, capture_output=True, text=True).stdout

    def target(self, test):
        """What a test runs, below the build folder: itself, or the panel if it is a script."""
        if test.startswith("case_"):
            return "src/brixola-press-desk"
        program = pathlib.Path(self.tests[test]["command"][-1])
        return str(program.relative_to(self.folder))

    def sources(self, path):
        """The source files that a change of `path` makes anew."""
        if path.suffix == ".cpp":
            return [ROOT / path]
        name = f'"{path.relative_to("src")}"'
        return [file for file in self.commands
                if file.is_relative_to(ROOT / "src") and name in file.read_text(encoding="utf-8")]

    def compile(self, path, text, place):
        """Compiles a file with another text; the objects, or null if it is no C++ any more."""
        copy = place / path
        copy.parent.mkdir(parents=True, exist_ok=True)
        copy.write_text(text, encoding="utf-8")
        objects = []
        for number, source in enumerate(self.sources(path)):
            command = shlex.split(self.commands[source])
            objects.append(place / f"{number}.o")
            command[command.index("-o") + 1] = str(objects[-1])
            if source == ROOT / path:
                command[command.index("-c") + 1] = str(copy)
            command += ["-iquote", str(place / "src"), "-O0", "-g0", "-w"]
            if not run(command, self.folder):
                return None
        return objects

    def link(self, objects, target, place):
        """The program `target` with these objects, which come before those of the libraries."""
        command = list(self.links[target])
        output = command.index("-o")
        program = place / pathlib.Path(target).name
        command[output + 1] = str(program)
        command[output:output] = [str(each) for each in objects] + ["-Wl,--strip-debug"]
        if shutil.which("ld.gold"):
            command.append("-fuse-ld=gold") # takes a third of the time
        if not run(command, self.folder):
            raise RuntimeError(f"{target} can't be linked")
        return program

    def passes(self, watcher, objects, place):
        name, *functions = watcher.split()
        test = self.tests[name]
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        target = self.target(name)
        command = ["bwrap", "--dev-bind", "/", "/",
                   "--bind", self.link(objects, target, place), self.folder / target]
        return run(command + test["command"] + functions, properties["WORKING_DIRECTORY"],
                   properties["TIMEOUT"], dict(each.split("=", 1) for each in
                                               properties["ENVIRONMENT"]))


def run(command, folder, timeout=None, environment=None):
    """Whether a command ends in time, and with 0."""
    try:
        return subprocess.run(command, cwd=folder, timeout=timeout, stdin=subprocess.DEVNULL,
                              stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, check=False,
                              env=dict(os.environ, **(environment or {}))).returncode == 0
    except subprocess.TimeoutExpired:
        return False


def works_unbroken(build, place, watcher, path):
    """Whether a watcher passes with a file as it stands: else it would miss every row."""
    place /= watcher.replace(" ", "-")
    objects = build.compile(path, (ROOT / path).read_text(encoding="utf-8"), place)
    return objects is not None and build.passes(watcher, objects, place)


def witness(build, place, row):
    """The watcher that misses the row; null if none does, "" if the row can't be broken."""
    with tempfile.TemporaryDirectory(dir=place) as folder:
        place = pathlib.Path(folder)
        for text in row.texts:
            objects = build.compile(row.path, text, place)
            if objects:
                break
        else:
            return ""
        for watcher in WATCHERS[row.path.name]:
            if not build.passes(watcher, objects, place):
                return watcher
    return None


def try_rows(build, rows, jobs):
    """Prints what is wrong with each row; how many that are."""
    watchers = {watcher: row.path for row in rows for watcher in WATCHERS[row.path.name]}
    build.prepare(sorted({watcher.split()[0] for watcher in watchers}))
    faults = 0
    with tempfile.TemporaryDirectory(dir=build.folder, prefix="mutants-") as folder, \
         concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        place = pathlib.Path(folder)
        works = pool.map(lambda item: works_unbroken(build, place, *item), watchers.items())
        failing = [watcher for watcher, passed in zip(watchers, works) if not passed]
        if failing:
            sys.exit("fails without any change: " + ", ".join(failing))
        for row, found in zip(rows, pool.map(lambda row: witness(build, place, row), rows)):
            fault = verdict(row, found)
            if fault:
                faults += 1
                print(fault, flush=True)
    return faults


def check_tables(rows, build, file):
    """Stops at a table without watchers, and at names that nothing has any more."""
    files = {row.path.name for row in rows}
    names = {(row.table, row.name) for row in rows}
    tables = {row.table for row in rows}
    unwatched = sorted({f"{row.path} {row.table}" for row in rows
                        if row.path.name not in WATCHERS and file in (None, row.path.name)})
    faults = [f"no test watches {each}: name one in {sys.argv[0]}" for each in unwatched]
    faults += [f"{file} has no table any more" for file in WATCHERS if file not in files]
    faults += [f"no test {watcher}" for watchers in WATCHERS.values()
               for watcher in watchers if watcher.split()[0] not in build.tests]
    faults += [f"no table {table} any more" for table in WORD_LISTS | TEXT_LISTS
               if table not in tables]
    faults += [f"{table} has no row {name} any more" for table, name in DEAD
               if (table, name) not in names and (name is not None or table not in tables)]
    if faults:
        sys.exit("\n".join(faults))


def verdict(row, found):
    """What is wrong with a row, or null."""
    reason = reason_of_death(row)
    if found == "":
        return f"can't be broken: {row}"
    if found is None and not reason:
        return f"no test misses {row}"
    if found and reason:
        return f"{found} misses what is called dead: {row}"
    return None


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    which = parser.add_mutually_exclusive_group(required=True)
    which.add_argument("--all", action="store_true")
    which.add_argument("--sample", type=int, metavar="N")
    which.add_argument("--list", action="store_true")
    parser.add_argument("--seed", type=int, default=random.randrange(1 << 32))
    parser.add_argument("--file", type=lambda name: pathlib.Path(name).name)
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/release")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    arguments = parser.parse_args()

    build = Build(arguments.build.resolve())
    rows = all_rows()
    check_tables(rows, build, arguments.file)
    if arguments.file:
        rows = [row for row in rows if row.path.name == arguments.file]
    if arguments.list:
        print(*rows, sep="\n")
        return 0
    if arguments.sample is not None and arguments.sample < len(rows):
        print(f"seed {arguments.seed}", flush=True)
        rows = random.Random(arguments.seed).sample(rows, arguments.sample)

    faults = try_rows(build, rows, arguments.jobs)
    print(f"{len(rows)} rows, {faults} without a witness")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
