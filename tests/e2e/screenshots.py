# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""Takes screenshots of the windows in every state.

Options select the states, the colour schemes, the display scales, the text sizes and the fonts; the
screenshots show all combinations. The default is every state in both colour schemes at the scales 1
and 2.
"""

import argparse
import itertools
import pathlib
import sys
import tempfile

from desktop import Desktop, Program, key, output
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


FONTS = {
    "dejavu": "DejaVu Sans",
    "noto": "Noto Sans",
    "inter": "Inter",
    "cantarell": "Cantarell",
}

SCHEMES = {"light": 2, "dark": 1}
"""The values of the portal's setting color-scheme."""


def font_configuration(file, family, font_folder):
    """Writes a fontconfig configuration in which `family` is the sans-serif font.

    `font_folder` contains fonts that are not installed, or does not exist.
    """
    file.write_text(
        f"""<?xml version="1.0"?>
<!DOCTYPE fontconfig SYSTEM "urn:fontconfig:fonts.dtd">
<fontconfig>
  <include ignore_missing="yes">/etc/fonts/fonts.conf</include>
  <dir>{font_folder}</dir>
  <cachedir>{file.parent}/cache</cachedir>
  <match target="pattern">
    <test name="family"><string>sans-serif</string></test>
    <edit name="family" mode="prepend" binding="strong"><string>{family}</string></edit>
  </match>
</fontconfig>
""",
        encoding="utf-8",
    )
    found = output("env", f"FONTCONFIG_FILE={file}", "fc-match", "--format=%{family}", "sans-serif")
    if family not in found.split(","):
        sys.exit(f"screenshots: the font {family} is missing; fontconfig offers {found}")


def environment(scale, text, configuration):
    """The variables for a display scale, a text size in percent and a fontconfig file."""
    variables = {"FONTCONFIG_FILE": str(configuration), "QT_SCALE_FACTOR": str(scale)}
    if text != 100:
        # The default font has 9 points, which are 12 pixels at 96 DPI. At 100 %, texts have 13
        # pixels. Without the first variable, Qt would scale the window instead of the text.
        variables["QT_ENABLE_HIGHDPI_SCALING"] = "0"
        variables["QT_FONT_DPI"] = str(round(96 * 13 / 12 * text / 100))
    return variables


def arguments():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("folder", type=pathlib.Path)
    parser.add_argument("--states", nargs="+", choices=STATES, default=list(STATES))
    parser.add_argument("--schemes", nargs="+", choices=SCHEMES, default=list(SCHEMES))
    parser.add_argument("--scales", nargs="+", type=float, default=[1, 2], metavar="FACTOR")
    parser.add_argument("--texts", nargs="+", type=int, default=[100], metavar="PERCENT")
    parser.add_argument("--fonts", nargs="+", choices=FONTS, default=["dejavu"])
    parser.add_argument("--font-folder", default="/nonexistent", help="has additional fonts")
    return parser.parse_args()


def main():
    options = arguments()
    desktop = Desktop()
    try:
        with Portal() as portal, tempfile.TemporaryDirectory() as temporary:
            configurations = {}
            for font in options.fonts:
                configurations[font] = pathlib.Path(temporary, f"{font}.conf")
                font_configuration(configurations[font], FONTS[font], options.font_folder)
            # The portal is the same for all programs, so its setting changes in the outermost loop.
            for scheme in options.schemes:
                portal.set(APPEARANCE, "color-scheme", SCHEMES[scheme])
                for font, scale, text, state in itertools.product(
                    options.fonts, options.scales, options.texts, options.states
                ):
                    name = f"{state}-{scheme}-{scale:g}x-{text}-{font}.png"
                    variables = environment(scale, text, configurations[font])
                    with Program(desktop, variables=variables) as program:
                        STATES[state](program)
                        program.save_screenshot(options.folder / name)
    finally:
        desktop.close()


if __name__ == "__main__":
    main()
