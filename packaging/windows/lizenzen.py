#!/usr/bin/env python3
"""Collects what the licences of the toolkit's parts ask to be handed on with a program that holds them.

Usage: lizenzen.py <source of the toolkit> <folder>

The folder gets the toolkit's own licence and one file with the notices and licences of all foreign parts that
are linked on Windows, as the toolkit's source lists them beside each part.
"""

import glob
import json
import os
import shutil
import sys

# Parts of other systems, of what is switched off, and of what only builds or tests.
FREMD = {
    "VulkanMemoryAllocator", "android-native-style", "android-gradle-wrapper", "forkfd", "libpsl", "psl",
    "vera_font", "dejayvu", "xcb-xinput", "qeventdispatcher_cf", "libdbus-1-headers", "vulkan-xml-spec",
    "cocoa-platform-plugin", "valgrind", "cycle", "linuxperf", "opengl-headers", "opengl-es2-headers", "pixman",
}
EIGENE = ("LGPL-3.0-only.txt", "GPL-3.0-only.txt")
# Where Debian keeps the notices of the compiler's libraries for Windows that are linked as well.
LAUFZEIT = (
    ("mingw-w64 (Laufzeitbibliothek)", "/usr/share/doc/mingw-w64-common/copyright"),
    ("GCC (libgcc, libstdc++; mit der GCC Runtime Library Exception)",
     "/usr/share/doc/gcc-mingw-w64-base/copyright"),
)
STRICH = "=" * 78


def teile(quelle):
    for datei in sorted(glob.glob(os.path.join(quelle, "src/**/qt_attribution.json"), recursive=True)):
        with open(datei, encoding="utf-8") as f:
            inhalt = json.load(f, strict=False)
        for teil in inhalt if isinstance(inhalt, list) else [inhalt]:
            if teil["Id"] not in FREMD:
                yield os.path.dirname(datei), teil


def lizenztexte(ordner, teil):
    namen = teil.get("LicenseFiles") or [teil["LicenseFile"]] if teil.get("LicenseFile") or teil.get("LicenseFiles") else []
    for name in namen:
        with open(os.path.join(ordner, name), encoding="utf-8", errors="replace") as f:
            yield f.read()


def eintrag(ordner, teil):
    rechte = teil.get("Copyright", "")
    zeilen = [STRICH, teil["Name"] + (" " + teil["Version"] if teil.get("Version") else ""),
              teil.get("Homepage", ""), teil.get("License", ""),
              "\n".join(rechte) if isinstance(rechte, list) else rechte, STRICH, ""]
    return "\n".join(zeilen) + "\n" + "\n\n".join(lizenztexte(ordner, teil)) + "\n\n"


def main():
    quelle, ziel = sys.argv[1:]
    os.makedirs(ziel, exist_ok=True)
    for name in EIGENE:
        shutil.copyfile(os.path.join(quelle, "LICENSES", name), os.path.join(ziel, name))
    stuecke = [eintrag(ordner, teil) for ordner, teil in teile(quelle)]
    for name, datei in LAUFZEIT:
        with open(datei, encoding="utf-8", errors="replace") as f:
            stuecke.append(f"{STRICH}\n{name}\n{STRICH}\n\n{f.read()}\n\n")
    with open(os.path.join(ziel, "Teile.txt"), "w", encoding="utf-8") as f:
        f.write("".join(stuecke))


if __name__ == "__main__":
    main()
