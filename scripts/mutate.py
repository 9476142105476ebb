"""Mutation sampling; scripts/mutate.sh is its front door."""

import concurrent.futures
import os
import pathlib
import random
import re
import shutil
import subprocess
import sys
import time

ROOMS = ["level", "files", "play", "editor", "render"]
PROGRAMS = ["level_tests", "files_tests", "play_tests", "editor_tests"]
WORK = pathlib.Path("build/mutate")
WORKERS = os.cpu_count() or 1

# Text of the change by text found. Templates and references have no blanks around them.
OPERATORS = {
    " + ": " - ", " - ": " + ", " * ": " / ", " / ": " * ", " % ": " * ",
    " < ": " <= ", " <= ": " < ", " > ": " >= ", " >= ": " > ",
    " == ": " != ", " != ": " == ", " && ": " || ", " || ": " && ",
    " += ": " -= ", " -= ": " += ", "++": "--", "(-": "(", "!(": "(",
    "true": "false", "false": "true",
}
OPERATOR = re.compile("|".join(
    (rf"\b{key}\b" if key.isalpha() else re.escape(key)) for key in OPERATORS))
NUMBER = re.compile(r"(?<![\w.])(0x[0-9A-Fa-f]+U?|\d+\.\d+F?|\d+)(?![\w.'])")


def other_number(text):
    """A constant that is different enough to matter."""
    if text.startswith("0x"):
        return hex(int(text.rstrip("U"), 16) ^ 0x10) + ("U" if text.endswith("U") else "")
    if "." in text:
        value = float(text.rstrip("F"))
        return repr(value * 2 if value else 1.0) + ("F" if text.endswith("F") else "")
    return str(int(text) + 1)


def changes_of(path):
    """All (line, start, end, new text) of a file."""
    found = []
    for number, line in enumerate(pathlib.Path(path).read_text().split("\n")):
        code = line.split("//")[0]
        if not code.strip() or code.lstrip().startswith(("#", "static_assert", "using ")):
            continue
        strings = [m.span() for m in re.finditer(r'"(?:[^"\\]|\\.)*"', code)]

        def in_string(at):
            return any(first <= at < end for first, end in strings)

        for match in OPERATOR.finditer(code):
            if not in_string(match.start()):
                found.append((number, *match.span(), OPERATORS[match.group()]))
        for match in NUMBER.finditer(code):
            if not in_string(match.start()):
                found.append((number, *match.span(), other_number(match.group())))
    return found


class Tree:
    """A copy of the sources with a build of its own."""

    def __init__(self, index):
        self.root = WORK / f"tree{index}"
        self.root.mkdir(parents=True, exist_ok=True)
        names = subprocess.run(["git", "ls-files", "-co", "--exclude-standard", "-z"],
                               capture_output=True, check=True).stdout.decode().split("\0")
        for name in filter(None, names):
            target = self.root / name
            target.parent.mkdir(parents=True, exist_ok=True)
            if not target.exists() or target.read_bytes() != pathlib.Path(name).read_bytes():
                shutil.copy(name, target)
        subprocess.run(["cmake", "-S", ".", "-B", "build", "-G", "Ninja", "-DBUILD_TESTING=ON",
                        "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=-O1",
                        "-DVORBILAX_WERROR=OFF"], cwd=self.root, check=True,
                       stdout=subprocess.DEVNULL)
        if not self.build() or self.noticed():
            sys.exit("the unchanged tree does not pass")

    def build(self):
        done = subprocess.run(["ninja", "-C", "build", "-j1", *PROGRAMS], cwd=self.root,
                              capture_output=True)
        return done.returncode == 0

    def noticed(self):
        """Whether a test program fails or hangs."""
        for program in PROGRAMS:
            try:
                done = subprocess.run([f"build/bin/{program}", "--gtest_brief=1",
                                       "--gtest_fail_fast"], cwd=self.root, timeout=30,
                                      capture_output=True)
            except subprocess.TimeoutExpired:
                return True
            if done.returncode != 0:
                return True
        return False

    def judge(self, path, change):
        """'caught', 'survived', or 'no program' when it does not compile."""
        number, start, end, new = change
        target = self.root / path
        original = target.read_text()
        lines = original.split("\n")
        lines[number] = lines[number][:start] + new + lines[number][end:]
        target.write_text("\n".join(lines))
        try:
            if not self.build():
                return "no program", lines[number]
            return ("caught" if self.noticed() else "survived"), lines[number]
        finally:
            target.write_text(original)


def work(index, queue, deadline, results):
    tree = Tree(index)
    while queue and time.time() < deadline:
        path, change = queue.pop()
        verdict, line = tree.judge(path, change)
        results.append(verdict)
        if verdict == "survived":
            print(f"{path}:{change[0] + 1}: {line.strip()}", flush=True)


def main():
    if len(sys.argv) < 2:
        sys.exit("usage: scripts/mutate.sh SECONDS [SEED] [FILE...]")
    seed = int(sys.argv[2]) if len(sys.argv) > 2 else 1
    files = sys.argv[3:] or [str(path) for room in ROOMS
                             for path in sorted(pathlib.Path(room).rglob("*.cpp"))]
    queue = [(path, change) for path in files for change in changes_of(path)]
    random.Random(seed).shuffle(queue)
    total = len(queue)
    deadline = time.time() + float(sys.argv[1])
    results = []
    with concurrent.futures.ThreadPoolExecutor(WORKERS) as pool:
        for done in [pool.submit(work, i, queue, deadline, results) for i in range(WORKERS)]:
            done.result()
    caught, survived = results.count("caught"), results.count("survived")
    share = 100 * caught / max(1, caught + survived)
    print(f"seed {seed}: {caught} of {caught + survived} changes caught ({share:.0f} %), "
          f"{results.count('no program')} did not compile, {total - len(results)} not tried")


main()
