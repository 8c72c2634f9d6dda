#!/usr/bin/env python3
"""Makes the twelve sounds in data/SOUND from tones and noise: short, soft, all about equally loud, and byte for
byte the same at every run. The files are committed; run this only after a sound was changed here.

Usage: klaenge.py [folder]     (default: data/SOUND of this checkout)"""

import math
import random
import struct
import sys
from pathlib import Path

RATE = 22050  # samples a second, one channel, 16 bits
LAUTHEIT = 0.13  # loudest fifth of a second of every sound, as a part of full scale
SPITZE = 0.70  # no sample goes beyond
EINBLENDEN, AUSBLENDEN = 0.004, 0.030  # seconds, so that nothing clicks

ORDNER = Path(__file__).resolve().parents[2] / "data" / "SOUND"


def ton(nummer):
    """Frequency of a key of the piano, 69 being the a of the tuning fork."""
    return 440.0 * 2.0 ** ((nummer - 69) / 12.0)


def stille(dauer):
    return [0.0] * round(dauer * RATE)


def glocke(nummer, dauer, teile=((1, 1.0, 1.0), (2, 0.35, 1.8), (3, 0.12, 2.6)), halb=0.16):
    """A struck tone that dies away; teile: (multiple of the tone, strength, how much faster it dies away)."""
    werte = []
    for i in range(round(dauer * RATE)):
        t = i / RATE
        klang = sum(staerke * math.sin(2 * math.pi * ton(nummer) * viel * t) * 0.5 ** (t * schneller / halb)
                    for viel, staerke, schneller in teile)
        werte.append(klang * min(1.0, t / 0.004, (dauer - t) / 0.1))
    return werte


def blech(nummer, dauer, staerke=1.0):
    """A brass tone: the upper partials come a little later than the low ones, with a slight vibrato."""
    werte, phase = [], 0.0
    for i in range(round(dauer * RATE)):
        t = i / RATE
        phase += 2 * math.pi * ton(nummer) * (1 + 0.004 * math.sin(2 * math.pi * 5.5 * t) * min(1, t / 0.25)) / RATE
        an = min(1.0, t / 0.035) * (0.75 + 0.25 * math.exp(-t / 0.12)) * min(1.0, (dauer - t) / 0.06)
        glanz = 0.42 + 0.30 * an
        werte.append(staerke * an * sum(math.sin(viel * phase) * glanz ** (viel - 1) for viel in range(1, 9)))
    return werte


def pfiff(von, nach, dauer):
    """A whistled tone that slides, with a breath of air in it."""
    zufall, werte, phase, luft = random.Random(von * 100 + nach), [], 0.0, 0.0
    for i in range(round(dauer * RATE)):
        teil = i / (dauer * RATE)
        phase += 2 * math.pi * ton(von + (nach - von) * teil * teil * (3 - 2 * teil)) / RATE
        luft += 0.35 * (zufall.uniform(-1, 1) - luft)
        werte.append(math.sin(math.pi * teil) ** 0.6 * (math.sin(phase) + 0.08 * math.sin(2 * phase) + 0.05 * luft))
    return werte


def schlag(frequenz, dauer, halb, fallend=0.0, holz=0.0, same=1):
    """A struck skin or block: a tone that may fall, and at the beginning a short filtered noise."""
    zufall, werte, phase, rau = random.Random(same), [], 0.0, 0.0
    for i in range(round(dauer * RATE)):
        t = i / RATE
        phase += 2 * math.pi * frequenz * (1 + fallend * math.exp(-t / 0.03)) / RATE
        rau += 0.30 * (zufall.uniform(-1, 1) - rau)
        haut = math.sin(phase) + 0.3 * math.sin(1.51 * phase) * 0.5 ** (t / halb)
        werte.append((0.5 ** (t / halb) * haut + holz * rau * math.exp(-t / 0.006)) * min(1.0, (dauer - t) / 0.1))
    return werte


def silbe(frequenz, dauer, same):
    """One "ha": breath, then a voice through the three resonances of an a."""
    zufall = random.Random(same)
    anzahl, hauch = round(dauer * RATE), round(0.05 * RATE)
    quelle, phase = [], 0.0
    for i in range(anzahl):
        t = i / RATE
        phase = (phase + frequenz * (1 - 0.25 * t / dauer) / RATE) % 1.0
        stimme = (1 - 2 * phase) * max(0.0, min(1.0, (i - hauch) / (0.02 * RATE)))
        quelle.append(0.16 * zufall.uniform(-1, 1) * math.exp(-t / 0.05) + stimme)
    werte = [0.0] * anzahl
    for mitte, breite, staerke in ((760, 110, 1.0), (1180, 130, 0.6), (2600, 220, 0.2)):
        r = math.exp(-math.pi * breite / RATE)
        a, b, vor, davor = 2 * r * math.cos(2 * math.pi * mitte / RATE), -r * r, 0.0, 0.0
        for i, wert in enumerate(quelle):
            vor, davor = (1 - r) * wert + a * vor + b * davor, vor
            werte[i] += staerke * vor
    return [wert * math.sin(math.pi * min(1.0, i / anzahl)) ** 0.5 for i, wert in enumerate(werte)]


def hupe(nummer, dauer):
    """A round tone with soft edges."""
    return [min(1.0, i / (0.04 * RATE), (dauer * RATE - i) / (0.05 * RATE))
            * (math.sin(w := 2 * math.pi * ton(nummer) * i / RATE) + 0.30 * math.sin(2 * w) + 0.12 * math.sin(3 * w))
            for i in range(round(dauer * RATE))]


def legen(*teile):
    """Lays (second, tones) over one another."""
    werte = [0.0] * max(round(beginn * RATE) + len(toene) for beginn, toene in teile)
    for beginn, toene in teile:
        for i, wert in enumerate(toene, round(beginn * RATE)):
            werte[i] += wert
    return werte


def klaenge():
    return {
        "freiz_1": legen((0, pfiff(79, 84, 0.22)), (0.26, pfiff(84, 83, 0.12)), (0.40, pfiff(79, 88, 0.34))),
        "freiz_2": legen((0, glocke(76, 0.5)), (0.16, glocke(79, 0.5)), (0.32, glocke(83, 0.7))),
        "siren": legen(*((0.32 * i, hupe(69 if i % 2 else 64, 0.31)) for i in range(4))),
        "tataa": legen((0, blech(67, 0.16)), (0.18, blech(72, 0.62)), (0.18, blech(64, 0.62, 0.5))),
        "bongo": legen(*((zeit, schlag(hoehe, 0.34, 0.055, 0.25, 0.6, same)) for same, (zeit, hoehe) in
                         enumerate(((0, 330), (0.15, 330), (0.30, 220), (0.45, 330), (0.60, 220))))),
        "clack": legen((0, schlag(1150, 0.16, 0.016, 0.05, 1.6, 7)), (0.07, schlag(880, 0.20, 0.020, 0.05, 1.2, 8))),
        "lachen": legen(*((0.19 * i, silbe(250 - 16 * i, 0.17 + 0.02 * (i == 4), 20 + i)) for i in range(5))),
        "dubb": schlag(98, 0.34, 0.07, 0.9, 0.5, 11),
        "klopf": legen(*((0.19 * i, schlag(260, 0.26, 0.028, 0.3, 1.8, 30 + i)) for i in range(3))),
        "ok": legen((0, glocke(72, 0.4)), (0.11, glocke(79, 0.6))),
        "trompete": legen(*((zeit, blech(nummer, dauer)) for zeit, nummer, dauer in
                            ((0, 79, 0.17), (0.19, 76, 0.17), (0.38, 72, 0.17), (0.57, 67, 0.17),
                             (0.76, 72, 0.70))), (0.76, blech(64, 0.70, 0.45))),
        "fanfare": legen(*((zeit, blech(nummer, dauer, staerke)) for zeit, nummer, dauer, staerke in
                           ((0, 60, 0.15, 1), (0.17, 64, 0.15, 1), (0.34, 67, 0.15, 1), (0.51, 72, 0.30, 1),
                            (0.84, 67, 0.15, 1), (1.01, 72, 0.85, 1), (1.01, 64, 0.85, 0.5),
                            (1.01, 67, 0.85, 0.5)))),
    }


def gewichtet(werte):
    """As the ear hears it, roughly: low tones count less."""
    ergebnis, vor, davor = [], 0.0, 0.0
    for wert in werte:
        vor = 0.93 * (vor + wert - davor)
        davor = wert
        ergebnis.append(vor)
    return ergebnis


def lautheit(werte):
    fenster = round(0.2 * RATE)
    quadrate = [wert * wert for wert in gewichtet(werte) + [0.0] * fenster]
    summe = groesste = sum(quadrate[:fenster])
    for i in range(fenster, len(quadrate)):
        summe += quadrate[i] - quadrate[i - fenster]
        groesste = max(groesste, summe)
    return math.sqrt(groesste / fenster)


def pegeln(werte):
    """Brings a sound to the common loudness, with soft ends."""
    faktor = min(LAUTHEIT / lautheit(werte), SPITZE / max(map(abs, werte)))
    ein, aus = round(EINBLENDEN * RATE), round(AUSBLENDEN * RATE)
    return [wert * faktor * min(1.0, i / ein) * min(1.0, (len(werte) - 1 - i) / aus) for i, wert in enumerate(werte)]


def wave(werte):
    daten = struct.pack(f"<{len(werte)}h", *(round(wert * 32767) for wert in werte))
    form = struct.pack("<HHIIHH", 1, 1, RATE, 2 * RATE, 2, 16)
    return (b"RIFF" + struct.pack("<I", 36 + len(daten)) + b"WAVE"
            + b"fmt " + struct.pack("<I", len(form)) + form + b"data" + struct.pack("<I", len(daten)) + daten)


def main():
    ordner = Path(sys.argv[1]) if len(sys.argv) > 1 else ORDNER
    for name, werte in klaenge().items():
        (ordner / f"{name}.wav").write_bytes(wave(pegeln(werte)))


main()
