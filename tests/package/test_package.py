"""Installs the tree into an empty folder, moves it, builds plug-ins against it elsewhere and lets the installed
editor work with them. Usage: test_package.py SOURCE_DIR BUILD_DIR"""

import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

SOURCE, BUILD = (pathlib.Path(argument).resolve() for argument in sys.argv[1:3])
PROJECT = """cmake_minimum_required(VERSION 3.25)
project(Elsewhere LANGUAGES CXX)
find_package(JobEditorVE REQUIRED)
add_subdirectory(minimal)
add_subdirectory(search)
set(CMAKE_AUTOMOC ON)
add_executable(tst_elsewhere tst_elsewhere.cpp)
target_compile_features(tst_elsewhere PRIVATE cxx_std_17)
target_link_libraries(tst_elsewhere PRIVATE JobEditorVE::PluginKit JobEditorVE::TestSupport)
"""


def run(*command, **options):
    environment = dict(os.environ, QT_QPA_PLATFORM="offscreen", QT_LOGGING_RULES="jobeditorve.trace=false")
    result = subprocess.run([str(part) for part in command], stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                            text=True, env=environment, timeout=500, **options)
    return result.returncode, result.stdout


class Package(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.folder = tempfile.TemporaryDirectory(dir=BUILD)
        cls.root = pathlib.Path(cls.folder.name)
        first = cls.root / "first"
        code, text = run("cmake", "--install", BUILD, "--prefix", first)
        assert code == 0, text
        cls.prefix = cls.root / "moved"
        first.rename(cls.prefix)
        cls.work = cls.root / "work"
        for name in ("minimal", "search"):
            shutil.copytree(SOURCE / "plugins" / name, cls.work / name)
        shutil.copy(SOURCE / "tests/package/tst_elsewhere.cpp", cls.work)
        (cls.work / "CMakeLists.txt").write_text(PROJECT)
        cls.steps = [run("cmake", "-S", cls.work, "-B", cls.work / "build", "-G", "Ninja",
                         f"-DCMAKE_PREFIX_PATH={cls.prefix}", "-DCMAKE_CXX_COMPILER_LAUNCHER=ccache"
                         if shutil.which("ccache") else "-DUNUSED=1"),
                     run("cmake", "--build", cls.work / "build", "-j1")]

    @classmethod
    def tearDownClass(cls):
        cls.folder.cleanup()

    def test_plugins_are_built_against_the_package_alone(self):
        for code, text in self.steps:
            self.assertEqual(code, 0, text)
        self.assertNotIn(str(SOURCE / "include"), (self.work / "build" / "build.ninja").read_text())
        self.assertTrue(list((self.work / "build").glob("lib/jobeditorve/plugins-*/libsearch.so")))

    def test_headers_are_complete(self):
        headers = self.prefix / "include" / "jobeditorve"
        for name in ("jedabstractsubsettingfactory.h", "jedvepb_version.h", "kit/kitfactory.h", "jobxml/job.h",
                     "values/values_export.h", "support/tracerecorder.h"):
            self.assertTrue((headers / name).is_file(), name)
        self.assertEqual(list(headers.rglob("*_p.h")), [])

    def test_installed_editor_works_with_a_plugin_built_elsewhere(self):
        for plugin in self.prefix.glob("lib/jobeditorve/plugins-*/*.so"):
            plugin.unlink()
        folder = next((self.work / "build").glob("lib/jobeditorve/plugins-*"))
        scenario = self.prefix / "share/jobeditorve/installation/Scenarios/morning-watch.txt"
        code, text = run(self.prefix / "bin/jobeditor", "--plugin-dir", folder, "--batch", scenario, cwd=self.work)
        self.assertEqual(code, 0, text)
        code, text = run(self.prefix / "bin/jedtool", "job", "check", self.work / "job.xml")
        self.assertEqual(code, 0, text)

    def test_plugins_own_test_runs_on_the_test_support(self):
        library = next((self.work / "build").glob("lib/jobeditorve/plugins-*/libsearch.so"))
        code, text = run(self.work / "build/tst_elsewhere", library, self.prefix / "share/jobeditorve/installation",
                         self.prefix / "lib/jobeditorve/components")
        self.assertEqual(code, 0, text)
        self.assertRegex(text, "Totals: [1-9][0-9]* passed, 0 failed, 0 skipped")

    def test_installed_tool_reads_the_installation_beside_it(self):
        code, text = run(self.prefix / "bin/jedtool", "resources", "check")
        self.assertEqual(code, 0, text)
        shutil.move(self.prefix / "share/jobeditorve/installation/TemplateFolder", self.root / "aside")
        code, text = run(self.prefix / "bin/jedtool", "resources", "check")
        shutil.move(self.root / "aside", self.prefix / "share/jobeditorve/installation/TemplateFolder")
        self.assertNotEqual(code, 0, text)

    def test_nothing_is_left_without_a_plugin(self):
        empty = self.root / "empty"
        empty.mkdir()
        scenario = self.root / "scenario.txt"
        scenario.write_text("new Search\nadd HT720/HF-1\n")
        shutil.rmtree(next(self.prefix.glob("lib/jobeditorve/plugins-*")), ignore_errors=True)
        code, text = run(self.prefix / "bin/jobeditor", "--plugin-dir", empty, "--batch", scenario)
        self.assertEqual(code, 1, text)
        self.assertIn("no plug-in takes a sub-job on HT720/HF-1", text)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
