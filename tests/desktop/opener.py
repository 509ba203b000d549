"""A program in the place of the one by which a desktop opens addresses: it notes what it is asked for."""

from desktop import wait_until


class Opener:
    def __init__(self, planner):
        """The planner, which is still to start, finds it first."""
        programs = planner.drive / "programs"
        programs.mkdir()
        self.notes = planner.drive / "opened"
        program = programs / "xdg-open"
        program.write_text(f'#!/bin/sh\nprintf "%s %s\\n" "$$" "$1" >>"{self.notes}"\n')
        program.chmod(0o755)
        planner.environment["PATH"] = f"{programs}:{planner.environment['PATH']}"

    def _lines(self):
        text = self.notes.read_text() if self.notes.exists() else ""
        return [line.split(" ", 1) for line in text.split("\n")[:-1]]

    def opened(self):
        """The addresses, in their order."""
        return [address for _, address in self._lines()]

    def processes(self):
        """The numbers of the processes that opened them."""
        return [int(number) for number, _ in self._lines()]

    def wait_for(self, *addresses):
        wait_until(lambda: self.opened() == [*addresses], "the addresses are opened")
