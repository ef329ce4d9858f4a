# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""A mock of the desktop portal, from which programs read the user's settings."""

import pathlib
import signal
import subprocess

import dbus
from dbusmock import MOCK_IFACE, DBusTestCase

APPEARANCE = "org.freedesktop.appearance"

TEMPLATE = pathlib.Path(__file__).with_name("portal_template.py")


class Portal:
    """The mock as a process on the session bus; the end of a `with` block ends the process."""

    def __enter__(self):
        # Returns once the mock answers.
        self._process, self._mock = DBusTestCase.spawn_server_template(
            str(TEMPLATE), stdout=subprocess.DEVNULL
        )
        return self

    def __exit__(self, *_):
        self._process.kill()
        self._process.wait()

    def stop(self):
        """Stops the process, so that the portal does not answer until its end."""
        self._process.send_signal(signal.SIGSTOP)

    def set(self, namespace, key, number):
        """Changes a setting; returns once the mock has emitted the signal."""
        self._mock.SetSetting(namespace, key, dbus.UInt32(number), dbus_interface=MOCK_IFACE)
