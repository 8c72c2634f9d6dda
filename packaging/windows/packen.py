#!/usr/bin/env python3
"""Packs a folder into a zip whose bytes depend on nothing but names, contents and one date.

Usage: packen.py <folder> <zip> <seconds since 1970>
"""

import os
import sys
import time
import zipfile


def eintraege(wurzel):
    for ordner, unterordner, dateien in os.walk(wurzel):
        unterordner.sort()
        darin = os.path.relpath(ordner, wurzel)
        if darin != ".":
            yield ordner, darin.replace(os.sep, "/") + "/"
        for name in sorted(dateien):
            pfad = os.path.join(ordner, name)
            yield pfad, os.path.relpath(pfad, wurzel).replace(os.sep, "/")


def main():
    wurzel, ziel, sekunden = sys.argv[1:]
    datum = time.gmtime(max(int(sekunden), 315532800))[:6]  # the format begins in 1980
    with zipfile.ZipFile(ziel, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as archiv:
        for pfad, name in eintraege(wurzel):
            info = zipfile.ZipInfo(name, datum)
            info.create_system = 0  # no rights of another system
            info.compress_type = zipfile.ZIP_STORED if name.endswith("/") else zipfile.ZIP_DEFLATED
            info.external_attr = 0x10 if name.endswith("/") else 0x20
            inhalt = b""
            if not name.endswith("/"):
                with open(pfad, "rb") as datei:
                    inhalt = datei.read()
            archiv.writestr(info, inhalt, compresslevel=9)


if __name__ == "__main__":
    main()
