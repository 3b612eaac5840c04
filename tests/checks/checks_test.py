#!/usr/bin/env python3
"""The checks of the tree are checked themselves: each must find what it is for, and nothing in a clean tree."""

import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "scripts" / "checks"))

import control_ids
import include_rules
import no_machine_paths
import system_imports


class CheckCase(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name).resolve()

    def tree(self, **files):
        """Writes files; a name has two underscores for a slash and one for the dot."""
        for name, text in files.items():
            folder, _, suffix = name.replace("__", "/").rpartition("_")
            path = self.root / f"{folder}.{suffix}"
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text, encoding="utf-8")


class IncludeRules(CheckCase):
    def found(self):
        return list(include_rules.findings(self.root))

    def test_a_clean_tree_has_no_findings(self):
        self.tree(
            base__text_h="#include <string>\n",
            settings__logic__keys_h='#include "base/text.h"\n',
            search__logic__history_h='#include "settings/logic/keys.h"\n',
            search__logic__history_cpp='#include "search/logic/history.h"\n#include <vector>\n',
            search__box_h='#include <windows.h>\n#include "search/logic/history.h"\n#include "controls/host.h"\n',
            controls__host_h='#include "base/text.h"\n',
        )
        self.assertEqual(self.found(), [])

    def test_everybody_may_know_the_identifiers_and_they_know_nothing_else(self):
        self.tree(
            base__text_h="",
            res__image_ids_h="",
            res__ids_h='#include "res/image_ids.h"\n#include "base/text.h"\n',
            app__logic__routes_h='#include "res/ids.h"\n',
        )
        self.assertEqual(self.found(), ['res/ids.h: may not include "base/text.h"'])

    def test_decisions_must_not_see_hands(self):
        self.tree(search__box_h="", search__logic__a_h='#include "search/box.h"\n')
        self.assertEqual(self.found(), ['search/logic/a.h: may not include "search/box.h"'])

    def test_decisions_must_not_see_system_headers(self):
        self.tree(search__logic__a_h="#include <windows.h>\n")
        self.assertEqual(len(self.found()), 1)

    def test_decisions_of_one_part_must_not_see_those_of_another(self):
        self.tree(launch__logic__b_h="", search__logic__a_h='#include "launch/logic/b.h"\n')
        self.assertEqual(len(self.found()), 1)

    def test_nothing_but_app_sees_app(self):
        self.tree(app__frame_h="", launch__a_h='#include "app/frame.h"\n', framework__a_h='#include "app/frame.h"\n')
        self.assertEqual(len(self.found()), 2)

    def test_a_part_must_not_see_the_parts_above_it(self):
        self.tree(search__b_h="", controls__a_h='#include "search/b.h"\n')
        self.assertEqual(len(self.found()), 1)

    def test_a_source_includes_its_own_header_first(self):
        self.tree(base__b_h="", base__a_h="", base__a_cpp='#include "base/b.h"\n#include "base/a.h"\n')
        self.assertEqual(self.found(), ["base/a.cpp: its own header base/a.h is not what it includes first"])

    def test_an_include_is_a_path_from_the_top_folder(self):
        self.tree(base__a_h="", base__b_h='#include "a.h"\n')
        self.assertEqual(len(self.found()), 1)

    def test_tests_of_decisions_must_not_see_hands(self):
        self.tree(search__box_h="", tests__search__logic__a_cpp='#include "search/box.h"\n')
        self.assertEqual(len(self.found()), 1)


class ControlIds(CheckCase):
    RESOURCES = (
        "IDD_PAGE DIALOGEX 0, 0, 10, 10\nSTYLE WS_CHILD\nBEGIN\n  LTEXT \"x\", IDC_LABEL, 0, 0, 1, 1\nEND\n"
        "IDD_OTHER DIALOGEX 0, 0, 10, 10\nBEGIN\n  LTEXT \"x\", IDC_ELSEWHERE, 0, 0, 1, 1\nEND\n"
    )

    def found(self):
        return list(control_ids.findings(self.root))

    def test_a_control_of_the_own_template_is_fine(self):
        self.tree(res__a_rc=self.RESOURCES, search__page_h="kTemplate = IDD_PAGE;", search__page_cpp="IDC_LABEL")
        self.assertEqual(self.found(), [])

    def test_a_control_of_another_template_is_found(self):
        self.tree(res__a_rc=self.RESOURCES, search__page_h="kTemplate = IDD_PAGE;", search__page_cpp="IDC_ELSEWHERE")
        self.assertEqual(self.found(), ["search/page.h: IDC_ELSEWHERE is not in IDD_PAGE"])

    def test_a_missing_template_is_found(self):
        self.tree(res__a_rc=self.RESOURCES, search__page_h="kTemplate = IDD_NOWHERE;")
        self.assertEqual(self.found(), ["search/page.h: there is no dialog template IDD_NOWHERE"])


class NoMachinePaths(CheckCase):
    def found(self):
        return list(no_machine_paths.findings(self.root))

    def test_relative_and_system_places_are_fine(self):
        # Put together here, so that this file itself stays clean.
        relative = "tests/{}/x res/{}/y".format("home", "root")
        self.tree(a_txt=f"/usr/src/googletest ./build/x86-debug {relative} C:\\Program Files\\Korvane\n")
        self.assertEqual(self.found(), [])

    def test_the_checkout_is_not_found_inside_a_longer_path(self):
        self.tree(a_txt=f"/usr{self.root}/x\n")
        self.assertEqual(self.found(), [])

    def test_private_folders_are_found(self):
        self.tree(a_txt="/" + "home/someone/x\n", b_txt="C:" + "\\Users\\someone\n", c_txt=f"{self.root}/x\n")
        self.assertEqual(len(self.found()), 3)


class SystemImports(unittest.TestCase):
    def test_system_libraries_are_fine(self):
        self.assertEqual(system_imports.foreign_imports("\tDLL Name: KERNEL32.dll\n\tDLL Name: msvcrt.dll\n"), [])

    def test_a_compiler_library_is_found(self):
        listing = "\tDLL Name: libstdc++-6.dll\n\tDLL Name: USER32.dll\n"
        self.assertEqual(system_imports.foreign_imports(listing), ["libstdc++-6.dll"])

    def test_a_file_without_imports_is_suspicious(self):
        self.assertNotEqual(system_imports.foreign_imports(""), [])


if __name__ == "__main__":
    unittest.main()
