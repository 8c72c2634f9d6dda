"""Packs PNG files into one .ico."""

import struct


def ico(bilder):
    """bilder: edge in pixels -> bytes of the PNG file."""
    kopf = struct.pack("<HHH", 0, 1, len(bilder))
    ort = len(kopf) + 16 * len(bilder)
    eintraege = b""
    for kante, inhalt in sorted(bilder.items()):
        eintraege += struct.pack("<BBBBHHII", kante % 256, kante % 256, 0, 0, 1, 32, len(inhalt), ort)
        ort += len(inhalt)
    return kopf + eintraege + b"".join(inhalt for _, inhalt in sorted(bilder.items()))
