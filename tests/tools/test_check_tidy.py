"""Which sources `./test changed` hands to clang-tidy, in a repository of this test's own."""

import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

TOOL = Path(__file__).resolve().parents[2] / "tools" / "check-tidy"
LONG_TEXT = "".join(f"int number{i};\n" for i in range(40))


class ChangedSources(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="planovarium-tidy-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        programs = self.folder / "programs"
        for name, text in (("cmake", "exit 0"), ("clang-tidy", f'printf "%s\\n" "$@" >>{self.folder}/read; exit 0')):
            programs.mkdir(exist_ok=True)
            (programs / name).write_text("#!/bin/bash\n" + text + "\n")
            (programs / name).chmod(0o755)
        self.environment = dict(os.environ, PATH=f"{programs}:{os.environ['PATH']}", GIT_CONFIG_GLOBAL="/dev/null",
                                GIT_AUTHOR_NAME="A", GIT_AUTHOR_EMAIL="a@b", GIT_COMMITTER_NAME="A",
                                GIT_COMMITTER_EMAIL="a@b")
        self.clone = self.folder / "clone"
        (self.clone / "tools").mkdir(parents=True)
        (self.clone / "src").mkdir()
        shutil.copy(TOOL, self.clone / "tools")
        self.git("init", "--quiet")

    def git(self, *words):
        subprocess.run(["git", *words], cwd=self.clone, env=self.environment, check=True)

    def commit(self, **texts):
        for name, text in texts.items():
            path = self.clone / "src" / name.replace("_", ".")
            path.unlink() if text is None else path.write_text(text)
        self.git("add", "--all")
        self.git("commit", "--quiet", "--message", "a step")

    def read(self):
        """The sources that are read, and the tool's end."""
        noted = self.folder / "read"
        noted.unlink(missing_ok=True)
        ended = subprocess.run(["tools/check-tidy", "changed"], cwd=self.clone, env=self.environment,
                               capture_output=True, text=True, timeout=60)
        words = noted.read_text().split() if noted.exists() else []
        return sorted(word for word in words if word.startswith("src/")), ended.returncode

    def test_are_those_of_the_last_commit_but_for_what_has_moved_or_gone(self):
        self.commit(Old_cpp="int a;", Moves_cpp=LONG_TEXT, MovesAndChanges_cpp=LONG_TEXT + "int a;", Goes_cpp="int b;",
                    Stays_cpp="int c;")
        self.commit(Old_cpp="int d;", New_cpp="int e;", Header_h="int f;", Moves_cpp=None, Moved_cpp=LONG_TEXT,
                    MovesAndChanges_cpp=None, Changed_cpp=LONG_TEXT + "int g;", Goes_cpp=None)
        self.assertEqual(self.read(), (["src/Changed.cpp", "src/New.cpp", "src/Old.cpp"], 0))

    def test_are_thirty_at_most(self):
        self.commit(First_cpp="int a;")
        self.commit(**{f"File{i}_cpp": f"int a{i};" for i in range(31)})
        self.assertEqual(len(self.read()[0]), 30)

    def test_are_none_where_nothing_is_known_before(self):
        self.commit(First_cpp="int a;")
        self.assertEqual(self.read(), ([], 0))

    def test_that_have_a_fault_fail(self):
        self.commit(First_cpp="int a;")
        self.commit(First_cpp="int b;")
        (self.folder / "programs" / "clang-tidy").write_text("#!/bin/bash\nexit 1\n")
        self.assertNotEqual(self.read()[1], 0)


if __name__ == "__main__":
    unittest.main()
