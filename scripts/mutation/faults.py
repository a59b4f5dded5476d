"""The faults that can be planted in a line of C++."""

import hashlib
import re
from dataclasses import dataclass

# What is replaced by what. Operators have blanks around them, which brackets of templates have not.
REPLACEMENTS = [
    (r" == ", " != "), (r" != ", " == "), (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "), (r" \+ ", " - "), (r" - ", " + "), (r" \* (?=\w)", " / "),
    (r" \+= ", " -= "), (r" -= ", " += "), (r"\+\+(?=\w)", "--"), (r"--(?=\w)", "++"),
    (r"(?<=[( ])!(?=[\w(])", ""), (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"\bcontinue;", "break;"), (r"\bbreak;", "continue;"),
    (r"\bstd::min\(", "std::max("), (r"\bstd::max\(", "std::min("),
    (r"\bfront\(\)", "back()"), (r"\bback\(\)", "front()"), (r"\bshow\(\)", "hide()"), (r"\bhide\(\)", "show()"),
]
NUMBER = re.compile(r"(?<![\w.\"'])(\d+)(?![\w.\"'])")
# A call whose result is not used, in one line.
STATEMENT = re.compile(r"^\s+(?!return\b|throw\b|delete\b|static_cast)[A-Za-z_][\w:.>\[\]*()-]*(?<!if)(?<!for)(?<!while)\(.*\);$")
ASSIGNMENT = re.compile(r"^\s+[a-z][\w.>\[\]-]*_? [+|-]?= .*;$")
NOTHING = "static_cast<void>(0);"


@dataclass(frozen=True)
class Fault:
    file: str
    line: int  # from 1
    old: str
    new: str

    @property
    def key(self):
        """What stays the same when other lines change."""
        return (self.file, self.old.strip(), self.new.strip())

    @property
    def order(self):
        return hashlib.sha1("\0".join(self.key).encode()).hexdigest()

    def __str__(self):
        return f"{self.file}:{self.line}: {self.old.strip()}  ->  {self.new.strip()}"


def code_of(line):
    """The line with its comment, texts and characters blanked, of the same length."""
    masked = re.sub(r'"(?:\\.|[^"\\])*"|\'(?:\\.|[^\'\\])\'', lambda text: "_" * len(text.group()), line)
    comment = masked.find("//")
    return masked if comment < 0 else masked[:comment] + "_" * (len(masked) - comment)


def is_left_out(code):
    return re.match(r"\s*(#|\[\[maybe_unused\]\]|using\b|namespace\b|static_assert|TALO_|Q_|template\b|friend\b|class\b|struct\b|enum\b)",
                    code) is not None or not code.strip()


def changes_of(line, is_source, is_new_statement):
    code = code_of(line)
    if is_left_out(code):
        return
    for pattern, replacement in REPLACEMENTS:
        for match in re.finditer(pattern, code):
            yield line[:match.start()] + replacement + line[match.end():]
    for match in NUMBER.finditer(code):
        yield line[:match.start()] + str(int(match.group()) + 1) + line[match.end():]
    statement = is_source and is_new_statement and code.count("(") == code.count(")")
    if statement and (STATEMENT.match(code) or ASSIGNMENT.match(code)):
        yield line[:len(line) - len(line.lstrip())] + NOTHING


def faults_in(file, text):
    """All faults of a source, in the order of its lines."""
    faults = []
    lines = text.split("\n")
    previous = ";"
    for number, line in enumerate(lines, 1):
        # Otherwise the line continues the one before.
        is_new = previous.rstrip().endswith((";", "{", "}", ")", ":", "else")) or previous.lstrip().startswith("//")
        for changed in changes_of(line, file.endswith(".cpp"), is_new):
            faults.append(Fault(file, number, line, changed))
        if line.strip():
            previous = line
    return faults
