"""A session bus of the tests' own, and on it a tray that asks for its icons over the bus."""

import os
import subprocess

HOST = os.environ.get("PLANOVARIUM_TRAY_HOST")


class TrayHost:
    def __init__(self, desktop):
        """Programs that start on the desktop from now on find the bus and the tray."""
        bus = desktop.start(["dbus-daemon", "--session", "--nofork", "--print-address"], stdout=subprocess.PIPE, text=True)
        desktop.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        bus.stdout.close()
        self.host = desktop.start([HOST], stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        if self.host.stdout.readline() != "ready\n":
            raise AssertionError("The tray does not start")

    def ask(self, order):
        self.host.stdin.write(order + "\n")
        self.host.stdin.flush()
        return self.host.stdout.readline().rstrip("\n")

    def has_icon(self):
        return self.ask("icons") != "0"

    def menu(self):
        return self.ask("menu").split("|")

    def choose(self, caption):
        if self.ask(f"choose {caption}") != "done":
            raise AssertionError(f"The menu has no {caption}")

    def double_click(self):
        self.ask("activate")
        self.ask("activate")

    def close(self):
        self.host.stdin.close()
        self.host.stdout.close()
