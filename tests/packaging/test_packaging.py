# SPDX-FileCopyrightText: 2026 Morvane-Projekt
# SPDX-License-Identifier: MIT

"""The installed files, the metadata, and the permissions of the Flatpak and of the macOS bundle."""

import configparser
import os
import pathlib
import plistlib
import re
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree

import yaml

SOURCES = pathlib.Path(os.environ["MORVANE_SOURCES"])
BUILD = pathlib.Path(os.environ["MORVANE_BUILD"])
VERSION = os.environ["MORVANE_VERSION"]
PACKAGING = SOURCES / "packaging"
ID = "de.morvane.Morvane"
ICONS = (
    f"share/icons/hicolor/scalable/apps/{ID}.svg",
    f"share/icons/hicolor/symbolic/apps/{ID}-symbolic.svg",
)


class Installation(unittest.TestCase):
    """`cmake --install` into an empty folder."""

    @classmethod
    def setUpClass(cls):
        folder = cls.enterClassContext(tempfile.TemporaryDirectory(prefix="morvane-install-"))
        subprocess.run(
            [os.environ["CMAKE"], "--install", BUILD, "--prefix", "/usr"],
            env={**os.environ, "DESTDIR": folder},
            stdout=subprocess.DEVNULL,
            check=True,
        )
        cls.usr = pathlib.Path(folder) / "usr"

    def test_installs_exactly_these_files(self):
        installed = {
            str(file.relative_to(self.usr)) for file in self.usr.rglob("*") if file.is_file()
        }
        self.assertEqual(
            installed,
            {
                "bin/morvane",
                "share/applications/de.morvane.Morvane.desktop",
                "share/doc/morvane/CHANGELOG.md",
                "share/doc/morvane/LICENSE",
                "share/doc/morvane/README.md",
                *ICONS,
                "share/man/de/man1/morvane.1",
                "share/man/man1/morvane.1",
                "share/metainfo/de.morvane.Morvane.metainfo.xml",
            },
        )

    def test_only_the_program_is_executable(self):
        for file in self.usr.rglob("*"):
            if file.is_file():
                expected = 0o755 if file.parent.name == "bin" else 0o644
                self.assertEqual(file.stat().st_mode & 0o777, expected, file)

    def test_the_icons_are_square_drawings_without_external_references(self):
        for name in ICONS:
            with self.subTest(name):
                icon = xml.etree.ElementTree.parse(self.usr / name).getroot()
                self.assertEqual(icon.tag, "{http://www.w3.org/2000/svg}svg")
                left, top, width, height = map(float, icon.get("viewBox").split())
                self.assertEqual((left, top), (0, 0))
                self.assertGreater(width, 0)
                self.assertEqual(width, height)
                paths = list(icon.iter("{http://www.w3.org/2000/svg}path"))
                self.assertGreater(len(paths), 0)
                values = [value for element in icon.iter() for value in element.attrib.values()]
                self.assertEqual([v for v in values if re.search(r"url\((?!#)|://", v)], [])

    def test_the_manual_pages_have_no_warnings(self):
        for page in ("share/man/man1/morvane.1", "share/man/de/man1/morvane.1"):
            with self.subTest(page):
                result = subprocess.run(
                    ["man", "--warnings", "-E", "UTF-8", "-l", "-Tutf8", "-Z", self.usr / page],
                    env={"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "MANROFFSEQ": ""},
                    stdout=subprocess.DEVNULL,
                    stderr=subprocess.PIPE,
                    text=True,
                    check=True,
                )
                self.assertEqual(result.stderr, "")

    def test_the_manual_pages_name_this_version(self):
        for page in ("share/man/man1/morvane.1", "share/man/de/man1/morvane.1"):
            text = (self.usr / page).read_text(encoding="utf-8")
            self.assertIn(f'"Morvane {VERSION}"', text)


class Metadata(unittest.TestCase):
    def setUp(self):
        file = BUILD / f"packaging/{ID}.metainfo.xml"
        self.metainfo = xml.etree.ElementTree.parse(file).getroot()
        parser = configparser.ConfigParser(interpolation=None)
        parser.optionxform = str
        parser.read(PACKAGING / f"{ID}.desktop", encoding="utf-8")
        self.entry = parser["Desktop Entry"]

    def test_the_desktop_entry_matches_the_metainfo(self):
        self.assertEqual(self.metainfo.findtext("id"), ID)
        self.assertEqual(self.metainfo.findtext("launchable"), f"{ID}.desktop")
        self.assertEqual(self.entry["Icon"], ID)
        self.assertEqual(self.entry["Exec"], self.metainfo.findtext("provides/binary"))

    def test_the_desktop_entry_and_the_metainfo_have_the_same_summaries(self):
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        summaries = {s.get(language): s.text for s in self.metainfo.findall("summary")}
        self.assertEqual(
            summaries, {None: self.entry["Comment"], "de": self.entry["Comment[de]"]}
        )

    def test_every_text_of_the_metainfo_has_a_german_translation(self):
        language = "{http://www.w3.org/XML/1998/namespace}lang"
        for name in ("summary", "p", "li", "caption", "keyword"):
            texts = [element.get(language) for element in self.metainfo.iter(name)]
            self.assertGreater(len(texts), 0, name)
            self.assertEqual(texts.count(None), texts.count("de"), name)

    def test_the_newest_release_is_this_version_in_every_file(self):
        newest = self.metainfo.find("releases/release")
        self.assertEqual(newest.get("version"), VERSION)
        changes = (SOURCES / "CHANGELOG.md").read_text(encoding="utf-8")
        released = re.search(r"^## \[([0-9.]+)\] - (\S+)$", changes, re.MULTILINE)
        self.assertEqual(released.groups(), (VERSION, newest.get("date")))
        debian = (SOURCES / "debian/changelog").read_text(encoding="utf-8")
        self.assertTrue(debian.startswith(f"morvane ({VERSION}) "), debian)


class Debian(unittest.TestCase):
    def test_the_qml_modules_listed_for_debian_12_are_the_build_dependencies(self):
        control = (SOURCES / "debian/control").read_text(encoding="utf-8")
        # The pattern excludes lines with a build profile, which are dependencies of the tests.
        expected = re.findall(r"^ +(qml6-module-[\w-]+),$", control, re.MULTILINE)
        rules = (SOURCES / "debian/rules").read_text(encoding="utf-8")
        listed = re.findall(r"qml6-module-[\w-]+", rules)
        self.assertGreater(len(listed), 0)
        self.assertEqual(listed, expected)


class Flatpak(unittest.TestCase):
    def setUp(self):
        text = (PACKAGING / f"flatpak/{ID}.yml").read_text(encoding="utf-8")
        self.manifest = yaml.safe_load(text)

    def test_names_this_program(self):
        self.assertEqual(self.manifest["id"], ID)
        self.assertEqual(self.manifest["command"], "morvane")
        self.assertEqual(self.manifest["runtime"], "org.kde.Platform")
        self.assertEqual(self.manifest["sdk"], "org.kde.Sdk")

    def test_permits_the_display_only(self):
        self.assertEqual(
            set(self.manifest["finish-args"]),
            # X11 clients need --share=ipc to share memory with the X server.
            {"--socket=wayland", "--socket=fallback-x11", "--share=ipc"},
        )

    def test_builds_these_sources_without_the_tests(self):
        (module,) = self.manifest["modules"]
        self.assertEqual(module["buildsystem"], "cmake-ninja")
        self.assertIn("-DBUILD_TESTING=OFF", module["config-opts"])
        (source,) = module["sources"]
        folder = (PACKAGING / "flatpak" / source["path"]).resolve()
        self.assertEqual(folder, SOURCES.resolve())


class MacBundle(unittest.TestCase):
    def test_the_sandbox_is_the_only_entitlement(self):
        entitlements = plistlib.loads((PACKAGING / "macos/Morvane.entitlements").read_bytes())
        self.assertEqual(entitlements, {"com.apple.security.app-sandbox": True})

    def test_the_bundle_names_this_program_and_version(self):
        text = (PACKAGING / "macos/Info.plist.in").read_text(encoding="utf-8")
        values = {
            "MACOSX_BUNDLE_EXECUTABLE_NAME": "Morvane",
            "MACOSX_BUNDLE_ICON_FILE": "Morvane.icns",
            "MACOSX_BUNDLE_BUNDLE_VERSION": VERSION,
            "MACOSX_BUNDLE_GUI_IDENTIFIER": ID,
            "MACOSX_BUNDLE_SHORT_VERSION_STRING": VERSION,
        }
        expanded = re.sub(r"\$\{(\w+)\}", lambda match: values[match[1]], text)
        bundle = plistlib.loads(expanded.encode())
        self.assertEqual(bundle["CFBundleIdentifier"], ID)
        self.assertEqual(bundle["CFBundlePackageType"], "APPL")
        self.assertEqual(bundle["CFBundleShortVersionString"], VERSION)
        self.assertEqual(bundle["CFBundleExecutable"], "Morvane")
        self.assertEqual(bundle["CFBundleDevelopmentRegion"], "de")
        self.assertEqual(bundle["NSHumanReadableCopyright"], "© 2026 Morvane-Projekt")


if __name__ == "__main__":
    unittest.main(verbosity=2)
