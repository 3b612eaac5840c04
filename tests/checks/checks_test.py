#!/usr/bin/env python3
"""The checks of the tree are checked themselves: each must find what it is for, and nothing in a clean tree."""

import pathlib
import sys
import tempfile
import unittest

sys.dont_write_bytecode = True
TOP = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(TOP / "scripts" / "checks"), str(TOP / "help")]

import callbacks
import control_ids
import help_file
import help_links
import help_texts
import help_topics
import include_rules
import make_help
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

    def test_only_tests_use_the_librarys_threads(self):
        self.tree(search__a_h="#include <thread>\n", tests__search__a_cpp="#include <thread>\n")
        self.assertEqual(self.found(), ["search/a.h: threads are started with framework/thread.h, not with <thread>"])

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


class Callbacks(CheckCase):
    def found(self):
        return list(callbacks.findings(self.root))

    def test_a_promise_of_no_exception_is_fine(self):
        self.tree(
            framework__a_h="static LRESULT CALLBACK Procedure(HWND window, UINT id) noexcept;\n",
            framework__a_cpp="LRESULT CALLBACK A::Procedure(HWND window, UINT id) noexcept {\n}\n",
            app__main_cpp="int WINAPI wWinMain(HINSTANCE, int show) {\n}\n",
        )
        self.assertEqual(self.found(), [])

    def test_types_of_functions_and_tests_are_left_alone(self):
        self.tree(
            framework__a_cpp="using Read = HRESULT WINAPI(DWORD*);\n",
            tests__a_cpp="BOOL CALLBACK Collect(HWND window, LPARAM) {\n}\n",
        )
        self.assertEqual(self.found(), [])

    def test_a_callback_without_the_promise_is_found(self):
        self.tree(
            app__a_cpp="\nBOOL CALLBACK Collect(HWND window,\n    LPARAM) {\n}\n",
            app__b_h="    static INT_PTR CALLBACK DialogProcedure(HWND window);\n",
            framework__c_cpp="unsigned __stdcall Work(void* work) {\n}\n",
        )
        self.assertEqual(
            [finding.split(":")[0:2] for finding in self.found()],
            [["framework/c.cpp", "1"], ["app/a.cpp", "2"], ["app/b.h", "1"]],
        )


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


class Help(unittest.TestCase):
    """A compiled help as the checks see it: made from its files, without the compiler."""

    HEAD = (
        '<html><head><meta http-equiv="Content-Type" content="text/html; charset=Shift_JIS"><title>題</title>'
        '<link rel="stylesheet" type="text/css" href="style.css"></head><body>'
    )

    def help(self, lists=("index.html", "other.html"), **changes):
        """Two whole pages; a change replaces a page's body, or adds a page."""
        bodies = {"index": '<a href="other.html#Place">外</a><img src="images/a.png" alt="絵">'}
        bodies["other"] = '<h2 id="Place">所</h2>' + '<div id="foot"><a href="index.html">前</a></div>'
        bodies.update(changes)
        files = {f"{name}.html": f"{self.HEAD}{body}</body></html>".encode("cp932") for name, body in bodies.items()}
        entries = "".join(f'<param name="Local" value="{address}">' for address in lists).encode("cp932")
        files |= {"style.css": b"", "images/a.png": b"", "Korvane.hhc": entries, "Korvane.hhk": entries}
        return help_file.HelpFile(files)


class HelpLinks(Help):
    def found(self, *arguments, **changes):
        return list(help_links.findings(self.help(*arguments, **changes)))

    def test_a_whole_help_has_no_findings(self):
        self.assertEqual(self.found(), [])

    def test_a_link_to_a_page_that_is_missing_is_found(self):
        self.assertIn("other.html: there is no page gone.html", self.found(other='<a href="gone.html">無</a>'))

    def test_a_link_to_a_place_that_is_missing_is_found(self):
        self.assertEqual(self.found(other=""), ["index.html: there is no Place in other.html"])

    def test_a_missing_image_is_found(self):
        found = self.found(other='<h2 id="Place">所</h2><img src="images/gone.png" alt="絵">')
        self.assertEqual(found, ["other.html: there is no image images/gone.png"])

    def test_an_image_on_no_page_is_found(self):
        found = self.found(index='<a href="other.html">外</a>', other="")
        self.assertEqual(found, ["images/a.png: is on no page"])

    def test_an_image_without_a_text_in_its_place_is_found(self):
        self.assertEqual(len(self.found(other='<h2 id="Place">所</h2><img src="images/a.png">')), 1)

    def test_a_page_outside_contents_and_index_is_found(self):
        found = self.found(["index.html"])
        self.assertEqual(found, ["other.html: is not in the contents", "other.html: is not in the index"])

    def test_an_entry_that_leads_nowhere_is_found_in_contents_and_index(self):
        self.assertEqual(len(self.found(["index.html", "other.html", "gone.html"])), 2)

    def test_a_page_that_only_its_neighbours_lead_to_is_found(self):
        foot = '<img src="images/a.png" alt="絵"><div id="foot"><a href="other.html">次</a></div>'
        self.assertEqual(self.found(index=foot), ["other.html: cannot be reached from index.html"])

    def test_two_places_whose_names_differ_in_case_only_are_found(self):
        found = self.found(other='<h2 id="Place">所</h2><h2 id="place">所</h2>')
        self.assertEqual(found, ["other.html: has two places named place"])

    def test_a_page_without_head_is_found(self):
        self.HEAD = "<html><body>"
        self.assertEqual(len(self.found()), 6)

    def test_an_unclosed_element_is_found(self):
        self.assertNotEqual(self.found(other='<h2 id="Place">所</h2><ul><li>一'), [])

    def test_a_page_in_another_encoding_is_found(self):
        self.assertEqual(len(help_file.HelpFile({"a.html": "日本語の文".encode("utf-8")}).faults), 1)


class HelpTopics(Help):
    def found(self, *topics):
        lines = (f'inline constexpr std::wstring_view kTopic{at} = L"{topic}";' for at, topic in enumerate(topics))
        return list(help_topics.findings("\n".join(lines), self.help()))

    def test_pages_and_places_that_are_there_are_fine(self):
        self.assertEqual(self.found("index.html", "other.html#Place"), [])

    def test_a_missing_page_and_a_missing_place_are_found(self):
        self.assertEqual(len(self.found("gone.html", "other.html#Gone", "other.html#place")), 3)

    def test_a_header_without_topics_is_suspicious(self):
        self.assertEqual(len(self.found()), 1)


class HelpTexts(Help):
    SCRIPT = (
        'BEGIN\n    MENUITEM "メモ帳(&M)\\tCtrl+Shift+A", ID_A\n    MENUITEM "[&0] 設定...", ID_B\nEND\n'
        '    IDS_ASK   "[%s] を消去します。\\nよろしいですか？"\n    IDS_PATH_KEY "NobodyReadsThis"\n    IDS_AND "(&) は除きます。"\n'
        '    LTEXT "種類(&E):", IDC_A, 0, 0, 1, 1\n'
        'BEGIN\n    "A",     ID_A, VIRTKEY, CONTROL, SHIFT\n    VK_LWIN, ID_B, VIRTKEY, CONTROL, ALT\nEND\n'
    )
    PAGES = {
        "index": "メモ帳 設定 種類 [<i>検索ボックス</i>] を消去します。<br>よろしいですか？ (&amp;) は除きます。",
        "keyboard": "<kbd>Ctrl+Shift+A</kbd><kbd>Ctrl+Alt+Win</kbd>",
        "placeholders": "&lt;%Search%&gt;",
    }

    def found(self, **changes):
        scripts = {"res/a.rc": self.SCRIPT}
        return list(help_texts.findings(scripts, ["<%Search%>"], self.help(**self.PAGES | changes)))

    def test_a_help_that_tells_everything_has_no_findings(self):
        self.assertEqual(self.found(), [])

    def test_a_key_that_is_not_told_is_found(self):
        found = self.found(keyboard="<kbd>Ctrl+Shift+A</kbd>Ctrl+Alt+Win")
        self.assertEqual(found, ["keyboard.html: does not tell of Ctrl+Alt+Win"])

    def test_a_placeholder_that_is_not_told_is_found(self):
        self.assertEqual(len(self.found(placeholders="&lt;%search%&gt;")), 1)

    def test_a_menu_text_a_dialog_text_and_a_message_that_are_not_told_are_found(self):
        self.assertEqual(len(self.found(index="")), 5)

    def test_a_message_in_other_words_is_found(self):
        self.assertEqual(len(self.found(index=self.PAGES["index"].replace("消去します", "消します"))), 1)

    def test_a_tree_without_texts_is_suspicious(self):
        self.assertEqual(len(list(help_texts.findings({}, [], self.help()))), 1)


class MakeHelp(CheckCase):
    COMPILER = "#!/bin/sh\nprintf %s '{content}' >Korvane.chm\nexit {status}\n"

    def make(self, compiler_status=0, content="chm", contents="first\n書\n    second\n", **pages):
        pages = {"first": '<title>一</title>\n<a href="second.html#B"></a>\n', **pages}
        pages = {"second": '<title>二</title>\n<h2 id="B">い</h2>\n<!-- index: 語|ご -->\n', **pages}
        self.tree(contents_txt=contents, style_css="", commands_ini="")
        (self.root / "images").mkdir(exist_ok=True)
        (self.root / "pages").mkdir(exist_ok=True)
        for name, text in pages.items():
            (self.root / "pages" / f"{name}.html").write_text(text, encoding="utf-8")
        compiler = self.root / "chmcmd"
        compiler.write_text(self.COMPILER.format(content=content, status=compiler_status), encoding="ascii")
        compiler.chmod(0o755)
        self.target = self.root / "out" / "Korvane.chm"
        make_help.make(compiler, self.root, self.root / "commands.ini", self.root / "made", self.target)

    def made(self, name):
        return (self.root / "made" / name).read_bytes().decode("cp932")

    def test_a_compiled_file_is_moved_to_its_place(self):
        self.make()
        self.assertEqual(self.target.read_text(), "chm")

    def test_a_compiler_that_fails_leaves_nothing(self):
        self.make()
        with self.assertRaisesRegex(make_help.SourceError, "217"):
            self.make(compiler_status=217, content="")
        self.assertEqual([*self.root.rglob("*.chm")], [])

    def test_an_empty_file_is_a_failure_too(self):
        with self.assertRaises(make_help.SourceError):
            self.make(content="")
        self.assertEqual([*self.root.rglob("*.chm")], [])

    def test_an_empty_link_takes_the_text_that_it_leads_to(self):
        self.make()
        self.assertIn('<a href="second.html#B">い</a>', self.made("first.html"))

    def test_a_keyword_leads_to_the_heading_that_it_stands_below(self):
        self.make()
        self.assertIn('value="語"', self.made("Korvane.hhk"))
        self.assertIn('value="second.html#B"', self.made("Korvane.hhk"))

    def test_what_cannot_become_a_help_is_told(self):
        broken = {
            "leads to nowhere": {"first": '<title>一</title>\n<a href="gone.html"></a>'},
            "not begin with its title": {"first": "一"},
            "does not name third": {"third": "<title>三</title>"},
            "has no reading": {"second": '<title>二</title>\n<h2 id="B">い</h2>\n<!-- index: 語 -->\n'},
            "U\\+2014": {"first": "<title>一\u2014</title>"},
        }
        for message, pages in broken.items():
            with self.subTest(message), self.assertRaisesRegex(make_help.SourceError, message):
                self.make(**pages)
            for page in self.root.glob("pages/*"):
                page.unlink()

    def test_the_index_is_in_the_order_of_the_readings(self):
        words = ["バー", "終了|しゅうりょう", "アイテム", "grep", "はじめ"]
        keys = [make_help.sort_key(word.partition("|")[2] or word) for word in words]
        self.assertEqual([word for _, word in sorted(zip(keys, words))], ["grep", "アイテム", words[1], "バー", "はじめ"])


if __name__ == "__main__":
    unittest.main()
