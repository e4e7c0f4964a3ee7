"""Tests of finding mutants: python3 -B -m unittest discover -s scripts/mutation -p '*_test.py'"""

import tempfile
import unittest
from pathlib import Path

from mutants import find_mutants
from survivors import SurvivorList


class MutantsTest(unittest.TestCase):
    """The mutants of small texts, each given by its changed line."""

    def lines_of(self, text: str) -> list[str]:
        """The changed lines of all mutants of a text."""
        with tempfile.TemporaryDirectory() as name:
            root = Path(name)
            for layer in ("field", "readers", "vif", "testsuite"):
                (root / layer).mkdir()
            (root / "field/Sample.cpp").write_text(text, encoding="utf-8")
            return [mutant.after for mutant in find_mutants(root)]

    def test_comparison_is_negated_and_its_bound_shifted(self) -> None:
        self.assertEqual(self.lines_of("x = a < b;"), ["x = a <= b;", "x = a >= b;"])
        self.assertEqual(self.lines_of("x = a == b;"), ["x = a != b;"])

    def test_logic_is_changed(self) -> None:
        self.assertEqual(self.lines_of("x = !a && b;"), ["x = a && b;", "x = !a || b;"])

    def test_arithmetic_is_changed(self) -> None:
        self.assertEqual(self.lines_of("x = a + b;\nx -= y;\n++x;"), ["x = a - b;", "x += y;", "--x;"])

    def test_constants_are_changed(self) -> None:
        self.assertEqual(self.lines_of("x = 1'000;"), ["x = 1001;"])
        self.assertEqual(self.lines_of("x = 0x0FU;"), ["x = 0x10U;"])
        self.assertEqual(self.lines_of("x = '9';"), ["x = ':';"])
        self.assertEqual(self.lines_of("x = L'\\0';"), ["x = L'~';"])
        self.assertEqual(self.lines_of("x = true;"), ["x = false;"])

    def test_condition_is_negated(self) -> None:
        self.assertEqual(self.lines_of("if (IsEmpty()) x = y;"), ["if (!(IsEmpty())) x = y;"])

    def test_guard_is_removed(self) -> None:
        self.assertEqual(self.lines_of("if (a == b) return;"), ["if (false) return;", "if (a != b) return;"])
        self.assertIn("if (false) vif::ThrowError();", self.lines_of("if (a == b) vif::ThrowError();"))

    def test_condition_on_two_lines_is_one_change(self) -> None:
        self.assertIn("if (!(a && b)) c;", self.lines_of("if (a &&\n    b) c;"))

    def test_condition_after_a_declaration_is_changed(self) -> None:
        self.assertIn("if (int x = f(); !(x)) c;", self.lines_of("if (int x = f(); x) c;"))

    def test_declaration_as_a_condition_stays(self) -> None:
        self.assertEqual(self.lines_of("if (auto x = f()) c;"), [])

    def test_sign_that_is_not_an_operator_stays(self) -> None:
        self.assertEqual(self.lines_of("T& f(T&& a, const T* b, std::array<int, 3> c);"), [])
        self.assertEqual(self.lines_of("bool operator==(T a);"), [])
        self.assertEqual(self.lines_of('text = "1" + name;'), [])

    def test_what_no_program_runs_stays(self) -> None:
        self.assertEqual(self.lines_of("// 1 < 2\n/* 1\n */\nstatic_assert(1 < 2);\n[[aligned(8)]] int x;"), [])
        self.assertEqual(self.lines_of("#ifdef _WIN32\nx = 1;\n#else\nx = 2;\n#endif"), ["x = 3;"])
        self.assertEqual(self.lines_of("#if X < 1\nx = 1;\n#endif"), ["x = 2;"])


class SurvivorListTest(unittest.TestCase):
    """The list of the mutants that are known to survive."""

    def test_entry_without_a_reason_is_rejected(self) -> None:
        with tempfile.TemporaryDirectory() as name:
            path = Path(name) / "list"
            path.write_text("field/Sample.cpp\n- a\n+ b\n", encoding="utf-8")
            self.assertRaises(ValueError, SurvivorList, path)


if __name__ == "__main__":
    unittest.main()
