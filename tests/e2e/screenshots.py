# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Takes screenshots of the windows in every state, in both colour schemes, at scales 1 and 2.

    screenshots.py FOLDER
"""

import pathlib
import sys

from desktop import Desktop, Program, key
from portal import APPEARANCE, Portal

GROUPS = ("Kleinbuchstaben", "Großbuchstaben", "Zahlen", "Sonderzeichen")


def show_password(program):
    program.find(lambda a: a.name == "Kopieren", "the window")


def show_long_password(program):
    program.set_slider("Länge", 64)


def show_history(program):
    for _ in range(4):
        program.press("Neu erzeugen")


def show_copied(program):
    program.press("Kopieren")
    program.find(lambda a: a.name == "Kopiert", "the confirmation")


def show_passphrase(program):
    program.press("Passphrase")
    program.find(lambda a: a.name == "Trennzeichen", "the passphrase's settings")


def show_long_passphrase(program):
    show_passphrase(program)
    program.set_slider("Wörter", 8)


def show_alert(program):
    for name in GROUPS:
        program.press(name)
    program.find(lambda a: a.name == "Einstellung prüfen", "the alert")


def show_menu(program):
    program.window()
    key("F10")
    program.find(lambda a: a.name == "Morvane beenden", "the menu")


def show_about(program):
    show_menu(program)
    program.press("Über Morvane")
    program.find(lambda a: a.name == "Version 1.1", "the About window")


STATES = {
    "password": show_password,
    "long-password": show_long_password,
    "history": show_history,
    "copied": show_copied,
    "passphrase": show_passphrase,
    "long-passphrase": show_long_passphrase,
    "alert": show_alert,
    "menu": show_menu,
    "about": show_about,
}


def main(folder):
    desktop = Desktop()
    try:
        with Portal() as portal:
            for number, scheme in ((2, "light"), (1, "dark")):
                portal.set(APPEARANCE, "color-scheme", number)
                for scale in (1, 2):
                    for state, show in STATES.items():
                        with Program(
                            desktop, variables={"QT_SCALE_FACTOR": str(scale)}
                        ) as program:
                            show(program)
                            program.save_screenshot(folder / f"{state}-{scheme}-{scale}x.png")
    finally:
        desktop.close()


if __name__ == "__main__":
    main(pathlib.Path(sys.argv[1]))
