#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Checks the conventions of CONTRIBUTING.md that clang-format and clang-tidy cannot check.

- An opening namespace is followed by a blank line or another namespace, a closing one is preceded likewise.
- Includes are in groups separated by blank lines: the source's own header, ours, other libraries, the standard library.
- A trailing comment does not break a declaration over two lines.
- An error is returned as `std::unexpected(error)`, with parentheses.
- No call passes a bare `true` or `false` to a function of ours, except as a setter's only argument.
"""

import pathlib
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
INCLUDE = re.compile(r'#(?:include|import) (["<])([^">]+)[">]')
GROUPS = ("own header", "ours", "other libraries", "standard library")
TORN = re.compile(r"^( *)[^\n/]*[\w>*&=]\n\1 +[^\n/;]*; +//", re.M)
COMMENT_OR_TEXT = re.compile(r'//[^\n]*|"(?:[^"\\\n]|\\.)*"')
DECLARED = re.compile(r"\b([a-z]\w*)\((?=[^(){};]*\bbool [a-z]\w*)[^(){};]*\)")
CALLED = re.compile(r"\b([a-z]\w*)\(((?:[^()]|\([^()]*\))*)\)")


def lineOf(text, position):
    return text.count("\n", 0, position) + 1


def namespaces(lines):
    """Namespaces whose braces are not set off by a blank line."""
    for number, line in enumerate(lines, 1):
        after = lines[number] if number < len(lines) else ""
        if re.match(r"(inline )?namespace\b.*\{$", line) and after and not after.startswith("namespace"):
            yield number, "a blank line goes after an opening namespace"
        before = lines[number - 2]
        if line.startswith("}  // namespace") and before and not before.startswith("}  // namespace"):
            yield number, "a blank line goes before a closing namespace"


def groupOf(path, bracket, included):
    if bracket == '"':
        isOwn = not path.endswith(".h") and pathlib.Path(included).stem == pathlib.Path(path).stem
        return 0 if isOwn and path.startswith(f"src/{pathlib.Path(included).parent}/") else 1
    return 3 if re.fullmatch(r"[a-z_0-9]+", included) else 2


def includes(path, lines):
    """Includes out of order, or not separated from the group before them. A conditional block starts over."""
    last, lastLine = None, 0
    for number, line in enumerate(lines, 1):
        if re.match(r"#(if|else|elif|endif)", line):
            last = None
        found = INCLUDE.match(line)
        if not found or found[2].endswith(".moc"):
            continue
        group = groupOf(path, *found.groups())
        if last is not None and group < last:
            yield number, f"{GROUPS[group]} goes before {GROUPS[last]}"
        elif last is not None and group != last and lastLine == number - 1:
            yield number, f"a blank line separates {GROUPS[last]} and {GROUPS[group]}"
        last, lastLine = group, number


def tornDeclarations(text):
    for found in TORN.finditer(text):
        yield lineOf(text, found.start()), "a trailing comment breaks the declaration: move it to the line above"


def unexpected(text):
    for found in re.finditer(r"std::unexpected(<[^<>]*>)?\{", text):
        yield lineOf(text, found.start()), "write std::unexpected(error)"


def bareBools(text, flagged):
    """Calls of the functions `flagged`, which take a bool, with a literal one."""
    for found in CALLED.finditer(text):
        name, arguments = found[1], [argument.strip() for argument in found[2].split(",")]
        isSetter = name.startswith("set") and len(arguments) == 1
        if name in flagged and not isSetter and {"true", "false"} & set(arguments):
            yield lineOf(text, found.start()), f"{name}: an enum rather than a bare bool"


def main():
    listed = subprocess.run(["git", "ls-files", "src", "tests", "benchmarks"], cwd=ROOT, text=True, capture_output=True,
                            check=True).stdout.splitlines()
    texts = {path: (ROOT / path).read_text(encoding="utf-8") for path in listed
             if path.endswith((".h", ".cpp", ".mm")) and (ROOT / path).is_file()}
    code = {path: COMMENT_OR_TEXT.sub(lambda found: '""' if found[0][0] == '"' else "", text)
            for path, text in texts.items()}
    flagged = {found[1] for path in texts if path.startswith("src/") for found in DECLARED.finditer(code[path])}
    failures = []
    for path, text in texts.items():
        lines = text.splitlines()
        found = [*namespaces(lines), *includes(path, lines), *tornDeclarations(text), *unexpected(code[path])]
        if path.startswith("src/"):
            found += bareBools(code[path], flagged)
        failures += [f"{path}:{number}: {why}" for number, why in found]
    print("\n".join(failures))
    return 1 if failures else 0


if __name__ == "__main__":
    sys.exit(main())
