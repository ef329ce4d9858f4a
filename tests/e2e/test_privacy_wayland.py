# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The test of test_privacy.py on Wayland.

The test has its own file, because AT-SPI connects a process to the first accessibility bus only.
"""

import os
import unittest

import test_privacy
from desktop import qt_version
from wayland import WaylandDesktop, WaylandProgram


class WaylandSession(test_privacy.Session):
    clipboard_command = ("wl-paste", "--no-newline")


class PrivacyOnWayland(test_privacy.Privacy):
    desktop_type, program_type, session_type = WaylandDesktop, WaylandProgram, WaylandSession
    # Among the drivers that need no graphics card, only zink writes a shader cache.
    variables = {"GALLIUM_DRIVER": "zink", "LIBGL_ALWAYS_SOFTWARE": "1"}
    # Qt 6.4 loads a graphics driver although the program draws in software, Qt 6.8 does not.
    libraries = {"libQt6WaylandClient"} | ({"libvulkan_lvp"} if qt_version() < (6, 8) else set())

    def peers(self):
        return {os.environ["WAYLAND_DISPLAY"], *self.buses()}


if __name__ == "__main__":
    unittest.main(verbosity=2)
