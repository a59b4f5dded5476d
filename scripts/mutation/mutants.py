"""Plants faults in a copy of the project and runs its tests; see scripts/mutants."""

import argparse
import json
import os
import pathlib
import re
import shutil
import subprocess
import sys
import time

from faults import faults_in

ROOT = pathlib.Path.cwd()
TREE = ROOT / "build/mutants/tree"
BUILD = TREE / "build/release"
MODULES = ("host", "plugin", "qVinputs", "network", "parameters", "fractal", "panel")
# The folders of tests/ that mirror a module, where that is not the one of its name.
MIRRORS = {"plugin": ("plugin", "contract", "qVinputs"), "qVinputs": ("qVinputs", "contract"),
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


def build(targets):
    command = ["ninja", "-C", str(BUILD), "-j", str(os.cpu_count()), *targets]
    return subprocess.run(command, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode == 0


def test_sources(programs):
    """The sources of each program, relative to the copy."""
    queried = output_of("ninja", "-C", str(BUILD), "-t", "query", *(f"tests/{program}" for program in programs))
    sources = {}
    for line in queried.splitlines():
        if heading := re.match(r"tests/(\w+):$", line):
            current = sources.setdefault(heading.group(1), [])
        elif unit := re.match(r"    (tests/\S+)/CMakeFiles/\w+\.dir/(\S+\.cpp)\.o$", line):
            source = f"{unit.group(1)}/{unit.group(2)}".replace("/__/", "/../")
            # Some are made when the tests are built.
            if (TREE / source).is_file():
                current.append(source)
    return sources


class Tests:
    """The tests of the copy."""

    def __init__(self):
        listed = json.loads(output_of("ctest", "--test-dir", str(BUILD), "--show-only=json-v1"))
        self.programs = {}  # None for a test that is no program of its own
        self.long = set()
        for test in listed["tests"]:
            properties = {each["name"]: each["value"] for each in test.get("properties", [])}
            if any(label in SLOW for label in properties.get("LABELS", [])):
                continue
            program = pathlib.Path(test.get("command", [""])[0])
            self.programs[test["name"]] = program.name if program.parent == BUILD / "tests" else None
            if "COST" in properties:
                self.long.add(test["name"])
        self.sources = test_sources(sorted(set(filter(None, self.programs.values()))))

    def sources_of(self, test):
        return self.sources.get(self.programs.get(test), [])

    def is_named_like(self, test, name):
        """Whether one of the test's sources is called after a class: ElfFile, elf_file_test, ElfFile_damage_test."""
        stems = [pathlib.Path(source).stem.removesuffix("_test") for source in self.sources_of(test)]
        return any(stem.replace("_", "").lower() == name.lower() or stem.startswith(name + "_") for stem in stems)

    def mentions(self, test, name):
        return any(re.search(rf"\b{name}\b", (TREE / source).read_text()) for source in self.sources_of(test))

    def mirrors(self, test, file):
        module = file.split("/")[0]
        return any(source.startswith(f"tests/{each}/")
                   for source in self.sources_of(test) for each in MIRRORS.get(module, (module,)))

    def stages_for(self, file):
        """All tests, in the order in which they are likely to find a fault of the file soon."""
        name = pathlib.Path(file).stem
        stages = {"named": [], "mentioning": [], "mirror": [], "others": []}
        for test in self.programs:
            stage = ("named" if self.is_named_like(test, name) else "others" if test in self.long else
                     "mentioning" if self.mentions(test, name) else "mirror" if self.mirrors(test, file) else "others")
            stages[stage].append(test)
        return [stage for stage in stages.values() if stage]

    def targets_of(self, stage):
        """What to build for it; everything if one of the tests is no program of its own."""
        programs = {self.programs[test] for test in stage}
        return ["all"] if None in programs else [f"tests/{program}" for program in sorted(programs)]

    def all(self):
        return list(self.programs)

    def failing(self, names):
        """The first test that fails; None if all pass."""
        if not names:
            return None
        pattern = "^(" + "|".join(map(re.escape, names)) + ")$"
        # What waits for a condition in vain does so for half a minute, in each test.
        run = subprocess.run(["ctest", "--test-dir", str(BUILD), "-R", pattern, "-j", str(os.cpu_count()),
                              "--stop-on-failure", "--timeout", "120"], capture_output=True, text=True,
                             env={**os.environ, "GTEST_FAIL_FAST": "1"})
        if run.returncode == 0:
            return None
        failed = re.search(r"#\d+: (\S+) .*\*\*\*", run.stdout)
        return failed.group(1) if failed else "a test"


def find(fault, tests):
    """What finds the fault, a test or the compiler; None if it survives."""
    target = TREE / fault.file
    sound = target.read_text()
    lines = sound.split("\n")
    lines[fault.line - 1] = fault.new
    try:
        target.write_text("\n".join(lines))
        for stage in tests.stages_for(fault.file):
            if not build(tests.targets_of(stage)):
                return "the compiler"
            if found := tests.failing(stage):
                return found
        return None
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


def faults_of(file):
    path = pathlib.Path(file)
    return faults_in(file, path.read_text()) if path.is_file() else []


def chosen_faults(arguments):
    files = [os.path.relpath(each) for each in arguments.files] or product_sources()
    faults = [fault for file in files for fault in faults_of(file)]
    if arguments.sample:
        return sorted(faults, key=lambda fault: fault.order)[:arguments.sample]
    if arguments.files:
        return faults
    lines = {file: changed_lines(file) for file in files}
    return [fault for fault in faults if fault.line in lines[fault.file]]


def equivalent_faults():
    """The keys of the faults of scripts/mutation/equivalent, which says what its columns are."""
    keys = set()
    for number, line in enumerate(pathlib.Path("scripts/mutation/equivalent").read_text().splitlines(), 1):
        if not line.strip() or line.startswith("#"):
            continue
        file, old, new, reason = (column.strip() for column in (line.split("\t") + 4 * [""])[:4])
        if not reason or (file, old, new) not in {fault.key for fault in faults_of(file)}:
            sys.exit(f"scripts/mutation/equivalent:{number}: no such fault, or no reason")
        keys.add((file, old, new))
    return keys


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
    if not build(["all"]):
        print("scripts/mutants: the copy cannot be built", file=sys.stderr)
        return 2
    tests = Tests()
    if failed := tests.failing(tests.all()):
        print(f"scripts/mutants: {failed} fails without a fault", file=sys.stderr)
        return 2
    survivors = []
    for number, fault in enumerate(faults, 1):
        start = time.monotonic()
        found = find(fault, tests)
        print(f"{number}/{len(faults)} {time.monotonic() - start:.0f} s, {found or 'SURVIVES'}: {fault}", flush=True)
        if found is None:
            survivors.append(fault)
    build(["all"])
    print(f"{len(survivors)} of {len(faults)} survive")
    print(*survivors, sep="\n")
    return 1 if survivors else 0


sys.exit(main())
