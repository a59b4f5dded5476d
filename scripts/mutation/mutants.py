"""Plants faults in a copy of the project and runs its tests; see scripts/mutants."""

import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys

from faults import faults_in

ROOT = pathlib.Path.cwd()
TREE = ROOT / "build/mutants/tree"
BUILD = TREE / "build/release"
MODULES = ("host", "plugin", "qVinputs", "network", "parameters", "fractal", "panel")
# The folders of tests/ that come first for a module.
FIRST = {"plugin": ("plugin", "contract", "qVinputs"), "qVinputs": ("qVinputs", "contract"),
         "parameters": ("parameters", "panel")}
SLOW = ("display", "install")


def output_of(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def product_sources():
    patterns = [f"{module}/*.{suffix}" for module in MODULES for suffix in ("cpp", "hpp")]
    return output_of("scripts/sources", *patterns).split()


def copy_tree():
    """Makes the copy equal to the project; files that are equal keep their times."""
    wanted = set(output_of("scripts/sources", "*").splitlines())
    for name in wanted:
        source, target = ROOT / name, TREE / name
        if not target.exists() or target.read_bytes() != source.read_bytes():
            target.parent.mkdir(parents=True, exist_ok=True)
            shutil.copy(source, target)
    for target in TREE.rglob("*"):
        name = target.relative_to(TREE)
        if target.is_file() and name.parts[0] != "build" and str(name) not in wanted:
            target.unlink()


def configure():
    # As ./test does, so that the compiler's cache serves the copy, too.
    subprocess.run(["cmake", "--preset", "release", "-DTALO_BUILD_TESTS=ON"], cwd=TREE, check=True,
                   stdout=subprocess.DEVNULL)


def build(targets=()):
    command = ["ninja", "-C", str(BUILD), "-j", str(os.cpu_count()), *targets]
    return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


class Tests:
    """The tests of the copy, by the folder of tests/ that declares them."""

    def __init__(self):
        listed = json.loads(output_of("ctest", "--test-dir", str(BUILD), "--show-only=json-v1"))
        graph = listed["backtraceGraph"]
        self.folders = {}
        self.programs = {}
        for test in listed["tests"]:
            properties = {each["name"]: each["value"] for each in test.get("properties", [])}
            if any(label in SLOW for label in properties.get("LABELS", [])):
                continue
            node = test["backtrace"]
            while graph["nodes"][node].get("parent") is not None:
                node = graph["nodes"][node]["parent"]
            file = pathlib.Path(graph["files"][graph["nodes"][node]["file"]])
            self.folders[test["name"]] = file.parent.name
            program = pathlib.Path(test.get("command", [""])[0])
            if program.parent == BUILD / "tests":
                self.programs[test["name"]] = program.name

    def first_for(self, file):
        module = file.split("/")[0]
        folders = FIRST.get(module, (module,))
        return [name for name in self.folders if self.folders[name] in folders]

    def all(self):
        return list(self.folders)

    def failing(self, names):
        """The first test that fails; None if all pass."""
        if not names:
            return None
        pattern = "^(" + "|".join(map(re.escape, names)) + ")$"
        run = subprocess.run(["ctest", "--test-dir", str(BUILD), "-R", pattern, "-j", str(os.cpu_count()),
                              "--stop-on-failure", "--timeout", "120"], capture_output=True, text=True)
        if run.returncode == 0:
            return None
        failed = re.search(r"#\d+: (\S+) \.*\*\*\*", run.stdout)
        return failed.group(1) if failed else "a test"


def find(fault, tests):
    """What finds the fault, a test or the compiler; None if it survives."""
    target = TREE / fault.file
    sound = target.read_text()
    lines = sound.split("\n")
    lines[fault.line - 1] = fault.new
    try:
        target.write_text("\n".join(lines))
        first = tests.first_for(fault.file)
        programs = sorted({tests.programs[name] for name in first if name in tests.programs})
        if not build(programs):
            return "the compiler"
        if found := tests.failing(first):
            return found
        return tests.failing([name for name in tests.all() if name not in first]) if build() else "the compiler"
    finally:
        target.write_text(sound)


def changed_lines(file):
    """The numbers of the lines that differ from main."""
    base = output_of("git", "merge-base", "HEAD", "main").strip()
    lines = set()
    for start, count in re.findall(r"^@@ \S+ \+(\d+)(?:,(\d+))? @@", output_of("git", "diff", "-U0", base, "--", file),
                                   re.MULTILINE):
        lines.update(range(int(start), int(start) + int(count or 1)))
    return lines


def chosen_faults(arguments):
    files = [os.path.relpath(each) for each in arguments.files] or product_sources()
    faults = [fault for file in files for fault in faults_in(file, pathlib.Path(file).read_text())]
    if arguments.sample:
        return sorted(faults, key=lambda fault: fault.order)[:arguments.sample]
    if arguments.files:
        return faults
    lines = {file: changed_lines(file) for file in files}
    return [fault for fault in faults if fault.line in lines[fault.file]]


def equivalent_faults():
    """The faults of scripts/mutation/equivalent: file, old line, new line and reason, with tabulators between them."""
    rows = (line.split("\t") for line in pathlib.Path("scripts/mutation/equivalent").read_text().splitlines())
    return {tuple(row[:3]) for row in rows if len(row) == 4}


def main():
    parser = argparse.ArgumentParser(prog="scripts/mutants")
    parser.add_argument("--list", action="store_true")
    parser.add_argument("--sample", nargs="?", type=int, const=60)
    parser.add_argument("files", nargs="*")
    arguments = parser.parse_args()
    known = equivalent_faults()
    faults = [fault for fault in chosen_faults(arguments) if fault.key not in known]
    if arguments.list:
        print(*faults, sep="\n")
        return 0
    TREE.mkdir(parents=True, exist_ok=True)
    copy_tree()
    configure()
    if not build():
        print("scripts/mutants: the copy cannot be built", file=sys.stderr)
        return 2
    tests = Tests()
    if failed := tests.failing(tests.all()):
        print(f"scripts/mutants: {failed} fails without a fault", file=sys.stderr)
        return 2
    survivors = []
    for number, fault in enumerate(faults, 1):
        found = find(fault, tests)
        print(f"{number}/{len(faults)} {found or 'SURVIVES'}: {fault}", flush=True)
        if found is None:
            survivors.append(fault)
    build()
    print(f"{len(survivors)} of {len(faults)} survive")
    print(*survivors, sep="\n")
    return 1 if survivors else 0


sys.exit(main())
