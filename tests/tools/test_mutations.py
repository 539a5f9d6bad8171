# SPDX-License-Identifier: MIT
"""What can be planted into a piece of C++, and what is left alone."""

import importlib.machinery
import importlib.util
import json
import pathlib

import pytest

import mutations

ROOT = pathlib.Path(__file__).resolve().parents[2]


def load(name):
    loader = importlib.machinery.SourceFileLoader(name, str(ROOT / "tools" / name))
    module = importlib.util.module_from_spec(importlib.util.spec_from_loader(name, loader))
    loader.exec_module(module)
    return module


def becomes(text):
    """Everything that the line can become, inside of a function."""
    found = mutations.mutationsOf("a.cpp", "{\n" + text)
    return {each.applied("{\n" + text).removeprefix("{\n") for each in found}


@pytest.mark.parametrize("text, expected", [
    ("x = a < b;", {"x = a <= b;", "x = a >= b;", ";"}),
    ("return a == b;", {"return a != b;"}),
    ("return a && !b;", {"return a || !b;", "return a && b;"}),
    ("return a + b * c;", {"return a - b * c;", "return a + b / c;"}),
    ("int x = 5;", {"int x = 6;"}),
    ("auto wait = 300ms;", {"auto wait = 330ms;"}),
    ("int most = 0x1F;", {"int most = (0x1F + 1);"}),
    ("float x = 0.5F;", {"float x = 0.55F;"}),
    ("double x = 0.0;", {"double x = 1.0;"}),
    ("double x = 1e4;", {"double x = 11000.0;"}),
    ("return std::min(a, b);", {"return std::max(a, b);"}),
    ("bool isOpen = true;", {"bool isOpen = false;"}),
    ("++count_;", {"--count_;"}),
    ("count_ += size;", {"count_ -= size;", ";"}),
    ('return "words";', {'return "";'}),
    ('return u"words"_s;', {'return u""_s;'}),
    ("return c == '.';", {"return c != '.';", "return c == '?';"}),
    ("row.refresh(now);", {";"}),
    ("Q_EMIT changed();", {";"}),
    ("(*state).apps = {};", set()),
    ("*gain++ = moving.current;", {"*gain-- = moving.current;"}),
])
def test_eachKindOfFault(text, expected):
    assert becomes(text) == expected


@pytest.mark.parametrize("text, expected", [
    ("if (ok) return;", {"if (!(ok)) return;", "if (ok) ;"}),
    ("if (auto it = find(x); it) { stop(); return 1; }",
     {"if (auto it = find(x); !(it)) { stop(); return 1; }", "if (auto it = find(x); it) { ; return 1; }",
      "if (auto it = find(x); it) { stop(); return 2; }"}),
    ("if (auto* app = find()) return;", {"if (auto* app = find()) ;"}),
    ("if constexpr (isLast) step();", {"if constexpr (!(isLast)) step();", "if constexpr (isLast) ;"}),
    ("for (int i = 0; i < n; ++i) sum(i);",
     {"for (int i = 1; i < n; ++i) sum(i);", "for (int i = 0; i <= n; ++i) sum(i);",
      "for (int i = 0; i >= n; ++i) sum(i);", "for (int i = 0; i < n; ++i) ;"}),
    ("case Kind::failed: report(); break;", {"case Kind::failed: ; break;", "case Kind::failed: report(); ;"}),
])
def test_choicesAndWhatHangsOnThem(text, expected):
    assert becomes(text) == expected


@pytest.mark.parametrize("text", [
    "// a < b && true",
    "/* return a == b;\n 5 */",
    '#include "engine/Renderer.h"',
    "#define FAR 5",
    "static_assert(sizeof(int) == 4 && true);",
    "assert(count > 0);",
    '[[deprecated("for 5 reasons")]] void stop();',
    "void stop() noexcept(false);",
    "template <class T> void stop(T&& value, const T& other, T* third);",
    "std::array<float, 10> gains;",
    "std::map<std::string, std::vector<int>> rows;",
    "bool operator==(const Row&) const;",
    "explicit Row(std::string name);",
    "Row();",
    "Row row(name);",
    "using Rows = std::vector<Row>;",
    'extern "C" void stop();',
    "text.reserve(size);",
    "return value;",
    'const auto words = "";',
])
def test_whatIsLeftAlone(text):
    assert becomes(text) == set()


def test_theWordsOfALogLineAreLeftAloneAndTheLineIsNot():
    assert becomes('engineLog_.notice("tap made: " + id);') == {";"}


def test_theContextOfATextThatIsNotCompiledIsLeftAlone():
    assert becomes('return QT_TRANSLATE_NOOP("StatusLine", "Idle");') == {'return QT_TRANSLATE_NOOP("StatusLine", "");'}


def test_theBranchOfAConditionalExpressionIsNoStatement():
    assert becomes("x = a\n    ? b\n    : text(c);") == {";\n\n"}


def test_theLinesBehindAFaultKeepTheirNumbers():
    text = "void f()\n{\n    call(a,\n        b);\n    return;\n}\n"
    (left,) = [each for each in mutations.mutationsOf("a.cpp", text) if each.replacement == ";"]
    assert left.applied(text).splitlines()[4] == "    return;"
    assert (left.line, left.before, left.after) == (3, "call(a, b);", ";")


def test_aFaultInARawStringDoesNotReachBehindIt():
    assert becomes('auto s = R"(a " < b)"; x = 1;') == {'auto s = ""; x = 1;', 'auto s = R"(a " < b)"; x = 2;',
                                                       'auto s = R"(a " < b)"; ;'}


def test_aSeedRepeatsItselfAndTakesOneOfEachLineFirst():
    mutate = load("mutate")
    found = mutations.mutationsOf("a.cpp", "x = {1, 2, 3, 4};\nreturn a == b;\nreturn a && b;\n")
    planned = mutate.shuffled(found, 5)
    assert planned == mutate.shuffled(found, 5)
    assert sorted(each.line for each in planned[:3]) == [1, 2, 3]
    assert len(planned) == len(found)
    assert any(mutate.shuffled(found, seed) != planned for seed in range(10))


def test_everyFaultThatIsCalledEquivalentCanStillBePlanted():
    known = json.loads((ROOT / "tools" / "equivalentMutations.json").read_text(encoding="utf-8"))
    for entry in known:
        assert entry["reason"]
        found = mutations.mutationsOf(entry["file"], (ROOT / entry["file"]).read_text(encoding="utf-8"))
        assert any(each.isOneOf([entry]) for each in found), entry


def test_aFaultThatIsCalledEquivalentMayBeMeantInOnePlaceOnly():
    text = "{\nif (a)\n    return;\nif (b)\n    return;\n}"
    entry = {"file": "a.cpp", "line": "return;", "mutated": ";", "below": "if (b)"}
    assert [each.line for each in mutations.mutationsOf("a.cpp", text) if each.isOneOf([entry])] == [5]
