# SPDX-License-Identifier: MIT
"""Small faults that can be planted into a C++ source, found in its text.

The sources are formatted, which tells operators from brackets: a comparison has a space on both sides, a template's
bracket and a reference have not.
"""

import bisect
import dataclasses
import re

TOKEN = re.compile(r"""
    (?P<comment>//[^\n]*|/\*.*?\*/)
  | (?P<directive>(?<![^\n])[ \t]*\#(?:\\\n|[^\n])*)
  | (?P<string>(?:u8|[uUL])?(?:R"(?P<fence>[^()\\\s]{0,16})\(.*?\)(?P=fence)"|"(?:\\.|[^"\\\n])*"))
  | (?P<character>(?:u8|[uUL])?'(?:\\.|[^'\\\n])+')
  | (?P<number>\.?\d(?:[eEpP][+-]|'?[\w.])*)
  | (?P<word>[A-Za-z_]\w*)
  | (?P<operator><=>|<<=|>>=|->\*|\.\.\.|::|->|\+\+|--|&&|\|\||==|!=|<=|>=|<<|>>|[-+*/%&|^]=|[^\s\w])
""", re.VERBOSE | re.DOTALL)

BETWEEN = {  # Operators with a space on both sides, and what becomes of them.
    "<": ("<=", ">="), "<=": ("<", ">"), ">": (">=", "<="), ">=": (">", "<"), "==": ("!=",), "!=": ("==",),
    "&&": ("||",), "||": ("&&",), "+": ("-",), "-": ("+",), "*": ("/",), "/": ("*",), "%": ("/",), "|": ("&",),
    "&": ("|",), "+=": ("-=",), "-=": ("+=",), "*=": ("/=",), "/=": ("*=",), "|=": ("&=",), "&=": ("|=",),
}
WORDS = {"true": "false", "false": "true"}
FUNCTIONS = {"min": "max", "max": "min", "any_of": "all_of", "all_of": "any_of", "none_of": "any_of", "front": "back",
             "back": "front", "floor": "ceil", "ceil": "floor", "lower_bound": "upper_bound",
             "upper_bound": "lower_bound"}
UNTOUCHED = {"assert", "static_assert", "Q_ASSERT", "Q_PROPERTY", "noexcept", "alignas"}  # With what is in brackets.
NO_EXPRESSION = {"return", "using", "typedef", "delete", "throw", "new", "case", "default", "public", "private",
                 "protected", "else", "do", "template", "friend", "if", "for", "while", "switch", "goto", "const",
                 "break", "continue", "requires", "auto", "static_cast"} | UNTOUCHED
ASSIGNMENTS = {"=", "+=", "-=", "*=", "/=", "|=", "&=", "^=", "<<=", ">>="}
OPENING = {"(": ")", "[": "]", "{": "}"}
COMMENT = re.compile(r"\s*//[^\n\"]*$", re.MULTILINE)  # At the end of a line that is to be read.
FLOATING = re.compile(r"(?P<digits>(?:\d[\d']*\.[\d']*|\.\d[\d']*|\d[\d']*(?=[eE]))(?:[eE][+-]?\d+)?)(?P<suffix>\w*)")
INTEGER = re.compile(r"(?P<digits>\d[\d']*)(?P<suffix>[A-Za-z_]\w*|)")


@dataclasses.dataclass(frozen=True)
class Mutation:
    """`text[start:end]` becomes `replacement`; `before` and `after` are the lines of it, to be read, `below` the one above
    them."""
    path: str
    line: int
    start: int
    end: int
    replacement: str
    before: str
    after: str
    below: str

    def isOneOf(self, entries):
        """Whether an entry of a file with such faults means this one. One that says no more than its line means each
        such line of the file."""
        return any(entry["file"] == self.path and entry["line"] == self.before and entry["mutated"] == self.after
                   and entry.get("below", self.below) == self.below for entry in entries)

    def applied(self, text):
        lost = text.count("\n", self.start, self.end) - self.replacement.count("\n")
        return text[:self.start] + self.replacement + "\n" * lost + text[self.end:]


@dataclasses.dataclass
class Token:
    kind: str
    text: str
    start: int
    end: int
    isApart: bool  # A space on both sides.
    partner: int = -1  # Of a bracket: the index of the other one.


def tokensOf(text):
    """Everything that is neither space, comment nor directive, brackets joined."""
    tokens, waiting = [], []
    for found in TOKEN.finditer(text):
        kind = found.lastgroup if found.lastgroup != "fence" else "string"
        if kind in ("comment", "directive"):
            continue
        start, end = found.span()
        isApart = text[start - 1:start].isspace() and text[end:end + 1].isspace()
        token = Token(kind, found.group(), start, end, isApart)
        if token.text in OPENING:
            waiting.append(len(tokens))
        elif waiting and kind == "operator" and OPENING[tokens[waiting[-1]].text] == token.text:
            token.partner = waiting.pop()
            tokens[token.partner].partner = len(tokens)
        tokens.append(token)
    return tokens


class Source:
    """The tokens of one file, and what is known of their places."""

    def __init__(self, path, text):
        self.path = path
        self.text = text
        self.tokens = tokensOf(text)
        self.lines = [0] + [found.end() for found in re.finditer("\n", text)]
        self.untouched = set()
        self.logged = set()
        self.headers = set()  # Closing brackets of `if (...)` and its kin.
        self.loops = set()
        for index, token in enumerate(self.tokens):
            self._look(index, token)

    def _look(self, index, token):
        following = self.at(index + 1)
        inside = range(index, following.partner + 1) if following.text == "(" else ()
        if token.text in UNTOUCHED:
            self.untouched.update(inside)
        elif token.text == "[" and following.text == "[":
            self.untouched.update(range(index, token.partner + 1))
        elif token.text == "operator":
            self.untouched.update((index, index + 1, index + 2))
        elif token.text == "extern":
            self.untouched.add(index + 1)
        elif token.text == "QT_TRANSLATE_NOOP":
            self.untouched.add(index + 2)  # The context is for tools and not compiled.
        elif token.text in ("notice", "error", "warning") and "log" in self.at(index - 2).text.lower():
            self.logged.update(inside)
        elif token.text in ("if", "for", "while", "switch"):
            opening = index + 2 if following.text == "constexpr" else index + 1
            if self.at(opening).text == "(":
                self.headers.add(self.tokens[opening].partner)
                if token.text == "for":
                    self.loops.update(range(opening, self.tokens[opening].partner))

    def at(self, index):
        return self.tokens[index] if 0 <= index < len(self.tokens) else Token("end", "", 0, 0, False)

    def mutation(self, start, end, replacement):
        line = bisect.bisect_right(self.lines, start)
        first = self.lines[line - 1]
        last = self.text.find("\n", end)
        last = len(self.text) if last < 0 else last
        before, after, below = (" ".join(COMMENT.sub("", part).split()) for part in (
            self.text[first:last], self.text[first:start] + replacement + self.text[end:last],
            self.text[:first].rstrip().rpartition("\n")[2]))
        return Mutation(self.path, line, start, end, replacement, before, after, below)

    def isStatementStart(self, index):
        before = self.at(index - 1)
        isLabelled = before.text == ":" and not before.isApart
        return before.text in (";", "{", "}", "else") or isLabelled or index - 1 in self.headers

    def endOfStatement(self, index):
        """The index of the semicolon that ends the statement; none where a block or a list ends before."""
        while index < len(self.tokens):
            token = self.tokens[index]
            if token.text == ";":
                return index
            if token.text in OPENING:
                index = token.partner
                if index < 0:
                    return None
            elif token.text in OPENING.values():
                return None
            index += 1
        return None


def mutationsOf(path, text):
    """All faults that can be planted into the source, in the order of their places."""
    source = Source(path, text)
    found = []
    for index, token in enumerate(source.tokens):
        if index in source.untouched:
            continue
        for start, end, replacement in faultsAt(source, index, token):
            found.append(source.mutation(start, end, replacement))
    return found


def faultsAt(source, index, token):
    for replacement in replacements(source, index, token):
        yield token.start, token.end, replacement
    if token.text == "if":
        yield from negations(source, index)
    if source.isStatementStart(index):
        yield from removals(source, index, token)


def replacements(source, index, token):
    """What the token by itself can become."""
    following, before = source.at(index + 1), source.at(index - 1)
    if token.kind == "number":
        inBrackets = before.text == "<" and not before.isApart or following.text == ">" and not following.isApart
        return () if inBrackets else anotherNumber(token.text)
    if token.kind == "string":
        isEmpty = token.text.endswith('""')
        return () if isEmpty or index in source.logged else (token.text[:token.text.index('"')].rstrip("R") + '""',)
    if token.kind == "character":
        return (token.text[:token.text.index("'")] + ("'?'" if not token.text.endswith("'?'") else "'!'"),)
    if token.kind == "word":
        if token.text in WORDS:
            return (WORDS[token.text],)
        return (FUNCTIONS[token.text],) if token.text in FUNCTIONS and following.text in ("(", "{", "<") else ()
    if token.text in ("++", "--"):
        return () if index in source.loops else ("--" if token.text == "++" else "++",)
    if token.text == "!":
        return ("",)
    if not token.isApart or "string" in (following.kind, before.kind) and token.text == "+":
        return ()
    return BETWEEN.get(token.text, ())


def anotherNumber(text):
    """A number near to this one: the next, or a tenth more where one would not be noticed."""
    if text[:1] == "0" and text[1:2].isalnum():  # Hexadecimal, binary or octal.
        return (f"({text} + 1)",)
    if broken := FLOATING.fullmatch(text):
        value = float(broken["digits"].replace("'", ""))
        return (f"{value * 1.1 if value else 1.0!r}{broken['suffix']}",)
    if whole := INTEGER.fullmatch(text):
        value = int(whole["digits"].replace("'", ""))
        return (f"{value + max(1, value // 10)}{whole['suffix']}",)
    return ()


def negations(source, index):
    """The condition of an `if`, turned into its opposite."""
    opening = index + 2 if source.at(index + 1).text == "constexpr" else index + 1
    if source.at(opening).text != "(":
        return
    closing = source.tokens[opening].partner
    start = opening
    inner = opening + 1
    while inner < closing:
        token = source.tokens[inner]
        if token.text == ";":
            start = inner
        inner = token.partner + 1 if token.text in OPENING else inner + 1
    condition = source.tokens[start + 1:closing]
    if not condition or any(token.text == "=" for token in condition) or condition[0].text == "!":
        return
    first, last = condition[0].start, condition[-1].end
    yield first, last, "!(" + source.text[first:last] + ")"


def removals(source, index, token):
    """The statement that begins here, left out: a jump out of a choice, a call or an assignment."""
    end = source.endOfStatement(index)
    if end is None:
        return
    isChoice = index - 1 in source.headers or (source.at(index - 1).text == "{" and index - 2 in source.headers)
    if token.text == "break" or token.text in ("return", "continue") and isChoice:
        yield token.start, source.tokens[end].end, ";"
    elif isCallOrAssignment(source, index, end):
        yield token.start, source.tokens[end].end, ";"


def isCallOrAssignment(source, index, end):
    """Whether the statement does something and declares nothing."""
    if source.at(index).text == "Q_EMIT":
        index += 1
    if source.at(index).text == "*":
        index += 1
    first = source.at(index)
    if any(token.text == "reserve" for token in source.tokens[index:index + 3]):
        return False
    # A type's name with brackets is the declaration of its constructor.
    if first.kind != "word" or first.text in NO_EXPRESSION or first.text[0].isupper() and source.at(index + 1).text == "(":
        return False
    previous = "operator"
    while index < end:
        token = source.tokens[index]
        if token.text in ASSIGNMENTS and token.isApart:
            return True
        isName = token.kind == "word"
        if isName and previous == "word" or not isName and token.text not in (".", "->", "::", "(", "[", ")", "]"):
            return False
        previous = token.kind
        index = token.partner if token.text in ("(", "[") else index
        index += 1
    return source.tokens[end - 1].text == ")"
