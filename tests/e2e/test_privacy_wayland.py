# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The same session as on X11 on Wayland, in a process of its own: AT-SPI stays with one bus."""

import os
import unittest

import test_privacy
from desktop import qt_version
from wayland import WaylandDesktop, WaylandProgram


class WaylandSession(test_privacy.Session):
    clipboard_command = ("wl-paste", "--no-newline")


class PrivacyOnWayland(test_privacy.Privacy):
    desktop_type, program_type, session_type = WaylandDesktop, WaylandProgram, WaylandSession
    # Of the drivers that do without a graphics card, the one that keeps a cache of shaders.
    variables = {"GALLIUM_DRIVER": "zink", "LIBGL_ALWAYS_SOFTWARE": "1"}
    # Qt 6.4 starts a graphics driver even though the program draws without one, Qt 6.8 does not.
    libraries = {"libQt6WaylandClient"} | ({"libvulkan_lvp"} if qt_version() < (6, 8) else set())

    def peers(self):
        return {os.environ["WAYLAND_DISPLAY"], *self.buses()}


if __name__ == "__main__":
    unittest.main(verbosity=2)
