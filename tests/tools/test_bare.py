"""What `./test bare` makes of a machine: programs of this folder's making stand for the one that makes a Debian root
and for the one that runs commands inside, so that each end is there at once."""

import os
import shutil
import signal
import subprocess
import tempfile
import unittest
from pathlib import Path

SOURCES = Path(__file__).resolve().parents[2]
LIMIT = 60
NOBODY = 65534
PICTURES = ("Calendar", "Homework", "Events", "Tasks")

# The root to be made is the last argument but one.
MAKES_A_ROOT = 'root=${@: -2:1}; mkdir -p "$root"/{dev/pts,dev/shm,etc/apt/apt.conf.d,etc/apt/trusted.gpg.d,home,proc}'
# The root is the first argument, the command line the last.
TAKES_PICTURES = ('case ${@: -1} in *./run) cd "$1/home/planovarium"; mkdir pictures.local; for mode in '
                  + " ".join(PICTURES) + "; do printf '\\211PNG' >pictures.local/$mode.png; done;; esac")


@unittest.skipUnless(os.getuid() == 0, "a bare root needs root rights")
class BareMachine(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="planovarium-bare-test-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.folder.chmod(0o755)
        self.roots = self.folder / "roots"
        self.roots.mkdir()
        self.programs = self.folder / "programs"
        self.programs.mkdir()
        self.environment = dict(os.environ, TMPDIR=str(self.roots), PATH=f"{self.programs}:{os.environ['PATH']}")
        self.program("debootstrap", MAKES_A_ROOT)

    def program(self, name, text):
        path = self.programs / name
        path.write_text("#!/bin/bash\n" + text + "\n")
        path.chmod(0o755)

    def start(self, parts=("bare",), **options):
        return subprocess.Popen([SOURCES / "test", *parts], env=self.environment, stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, **options)

    def expect(self, closing_line, succeeds, **options):
        tried = self.start(**options)
        output = tried.communicate(timeout=LIMIT)[0]
        self.assertEqual(output.splitlines()[-1], closing_line, output)
        self.assertEqual(tried.returncode == 0, succeeds, output)
        self.assertEqual(list(self.roots.iterdir()), [])

    def test_on_which_the_commands_succeed_is_passed(self):
        self.program("chroot", TAKES_PICTURES)
        self.expect("1 passed, 0 failed", True)

    def test_on_which_the_rules_were_tried_is_counted_with_them_and_they_are_not_tried_again(self):
        self.program("chroot", TAKES_PICTURES + "\ncase ${@: -1} in *'./test logic') "
                     "echo '100% tests passed, 0 tests failed out of 7';; esac")
        self.program("ctest", "echo '0% tests passed, 1 tests failed out of 1'; exit 8")
        self.program("cmake", "exit 0")
        self.expect("8 passed, 0 failed", True, parts=("bare", "logic"))
        self.program("debootstrap", "exit 1")
        self.expect("0 passed, 1 failed, 1 skipped (bare: debootstrap made no root)", False, parts=("bare", "logic"))

    def test_on_which_a_command_fails_is_failed(self):
        for command in ("./run", "./test logic", "cmake --build"):
            with self.subTest(command):
                self.program("chroot", f'{TAKES_PICTURES}\ncase ${{@: -1}} in *"{command}"*) exit 77;; esac')
                self.expect("0 passed, 1 failed", False)

    def test_with_a_picture_too_few_is_failed(self):
        for mode in PICTURES:
            with self.subTest(mode):
                self.program("chroot", f'{TAKES_PICTURES}\nrm -f "pictures.local/{mode}.png"')
                self.expect("0 passed, 1 failed", False)

    def test_without_root_rights_is_skipped(self):
        self.program("sudo", "exit 1")
        self.roots.chmod(0o777)
        self.environment["HOME"] = str(self.roots)
        self.expect("0 passed, 0 failed, 1 skipped (bare: no root rights)", True, user=NOBODY, group=NOBODY)

    def test_without_debootstrap_is_skipped(self):
        self.program("dpkg-query", "exit 1")
        self.program("apt-get", "exit 100")
        self.expect("0 passed, 0 failed, 1 skipped (bare: debootstrap cannot be installed)", True)

    def test_without_mounts_is_skipped(self):
        self.program("mount", "exit 32")
        self.expect("0 passed, 0 failed, 1 skipped (bare: no mounts may be made)", True)

    def test_where_debootstrap_fails_is_skipped(self):
        self.program("debootstrap", "exit 1")
        self.expect("0 passed, 0 failed, 1 skipped (bare: debootstrap made no root)", True)

    def test_that_is_left_in_the_middle_ends_with_all_that_runs_there(self):
        """Also by the signal that no script can answer; then only its folder stays."""
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGKILL):
            with self.subTest(number):
                alive = self.folder / "alive"
                alive.unlink(missing_ok=True)
                os.mkfifo(alive)
                self.program("chroot", f"exec sleep 600 >{alive}")
                tried = self.start()
                with alive.open("rb") as inside:  # opens as the command inside does, and ends with it
                    runner = Path(f"/proc/{tried.pid}/task/{tried.pid}/children").read_text(encoding="ascii")
                    os.kill(int(runner.split()[0]), number)
                    self.assertEqual(inside.read(), b"")
                tried.communicate(timeout=LIMIT)
                self.assertNotEqual(tried.returncode, 0)
                left = list(self.roots.iterdir())
                self.assertEqual(bool(left), number == signal.SIGKILL)
                for folder in left:
                    self.assertFalse(any(os.path.ismount(path) for path in folder.rglob("*")))
                    shutil.rmtree(folder)


if __name__ == "__main__":
    unittest.main()
