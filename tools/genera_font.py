#!/usr/bin/env python3
"""Builds the stroke font font.001 of the installation from the Hershey fonts of Debian.

    python3 tools/genera_font.py [--hershey /usr/share/hershey-fonts/futural.jhf]
                                 [--uscita installazione/progra/font.001]

The font file is Windows-1252 text with CR LF line ends. The first line holds the narrowing
percentage of the glyphs; each further line is one glyph: its character byte, then four
characters a point, two digits of X and two of Y, in a cell of 0..99 with the baseline at
Y = 30. Points go in pairs, each pair one pen stroke, at most 50 strokes a glyph.

The capital height fills the cell from the baseline to Y = 99, so a text drawn with the
vertical scale h / 69 has capitals of height h. Glyphs are centred in the character cell as
it is after narrowing. Glyphs taller than the cell (brackets, braces) are squeezed towards
the baseline, and glyphs with too many strokes are simplified.

Besides printable ASCII, the font holds the Italian accented vowels (base letter and an
accent stroke) and the degree sign (a small circle of strokes). The "]" is drawn as the
diameter sign, a circle crossed by a slash: the family writes that sign as "]" ("Fori ]20.5").
"""

import argparse
import math
import os
import sys

STRIZIONE = 10  # narrowing percentage written in the head of the file
BASE_Y = 30  # baseline in the cell
ALTEZZA_MAIUSCOLE = 69  # capital height in the cell: the text height h is sy = h / 69
MAX_TRATTI = 50  # 100 points a glyph
SCALA_X = 4.0  # cell units a Hershey unit across

# Hershey "futural": baseline at y = 9, capitals up to y = -12 (y grows downwards).
H_BASE = 9
H_MAIUSCOLE = 21
SCALA_Y = ALTEZZA_MAIUSCOLE / H_MAIUSCOLE


def leggi_jhf(percorso):
    """Glyphs of a JHF file in file order: (left, right, strokes as lists of (x, y))."""
    with open(percorso, "rb") as f:
        testo = f.read().decode("ascii")
    glifi = []
    i = 0
    while i < len(testo):
        if testo[i] in "\r\n":
            i += 1
            continue
        numero = int(testo[i + 5:i + 8])
        i += 8
        dati = []
        while len(dati) < 2 * numero:  # long glyphs may wrap onto further lines
            if testo[i] not in "\r\n":
                dati.append(testo[i])
            i += 1
        coppie = [(ord(dati[k]) - ord("R"), ord(dati[k + 1]) - ord("R"))
                  for k in range(0, len(dati), 2)]
        sinistra, destra = coppie[0]
        tratti, corrente = [], []
        for x, y in coppie[1:]:
            if (x, y) == (-50, 0):  # " R": pen up
                if corrente:
                    tratti.append(corrente)
                corrente = []
            else:
                corrente.append((x, y))
        if corrente:
            tratti.append(corrente)
        glifi.append((sinistra, destra, tratti))
    return glifi


def nella_cella(sinistra, destra, tratti):
    """Hershey strokes into the cell, centred in the narrowed character cell."""
    centro_h = (sinistra + destra) / 2.0
    centro_cella = 49.5 / (1.0 - STRIZIONE / 100.0)
    punti = [(centro_cella + (x - centro_h) * SCALA_X, BASE_Y + (H_BASE - y) * SCALA_Y)
             for tratto in tratti for x, y in tratto]
    fy = 1.0
    if punti:
        alto = max(p[1] for p in punti)
        basso = min(p[1] for p in punti)
        if alto > 99:
            fy = min(fy, (99 - BASE_Y) / (alto - BASE_Y))
        if basso < 0:
            fy = min(fy, BASE_Y / (BASE_Y - basso))
    fx = 1.0
    if punti:
        meta = max(abs(p[0] - centro_cella) for p in punti)
        limite = min(centro_cella, 99 - centro_cella)
        if meta > limite:
            fx = limite / meta
    return [[(centro_cella + (x - centro_h) * SCALA_X * fx,
              BASE_Y + (H_BASE - y) * SCALA_Y * fy) for x, y in tratto] for tratto in tratti]


def distanza_da_segmento(p, a, b):
    ax, ay = a
    bx, by = b
    dx, dy = bx - ax, by - ay
    l2 = dx * dx + dy * dy
    if l2 == 0:
        return math.hypot(p[0] - ax, p[1] - ay)
    t = max(0.0, min(1.0, ((p[0] - ax) * dx + (p[1] - ay) * dy) / l2))
    return math.hypot(p[0] - ax - t * dx, p[1] - ay - t * dy)


def semplifica(tratto, tolleranza):
    """Douglas-Peucker: drops the points closer than `tolleranza` to the chord."""
    if len(tratto) < 3 or tolleranza <= 0:
        return list(tratto)
    distanze = [distanza_da_segmento(p, tratto[0], tratto[-1]) for p in tratto[1:-1]]
    k = max(range(len(distanze)), key=distanze.__getitem__)
    if distanze[k] <= tolleranza:
        return [tratto[0], tratto[-1]]
    k += 1
    return semplifica(tratto[:k + 1], tolleranza)[:-1] + semplifica(tratto[k:], tolleranza)


def segmenti(tratti, tolleranza):
    """Rounded segments of the polylines, without the ones that rounding makes empty."""
    risultato = []
    for tratto in tratti:
        arrotondati = [(round(x), round(y)) for x, y in semplifica(tratto, tolleranza)]
        for a, b in zip(arrotondati, arrotondati[1:]):
            if a != b:
                risultato.append((a, b))
        if len(arrotondati) >= 1 and all(p == arrotondati[0] for p in arrotondati) and \
                len(tratto) > 1:
            risultato.append((arrotondati[0], arrotondati[0]))  # a dot stays a dot
    return risultato


def glifo(tratti):
    tolleranza = 0.0
    while True:
        s = segmenti(tratti, tolleranza)
        if len(s) <= MAX_TRATTI:
            return s
        tolleranza += 0.25


def accento(tratti_base, acuto):
    """A grave or acute accent over a lower-case letter, in Hershey units."""
    xs = [x for tratto in tratti_base for x, _ in tratto]
    centro = (min(xs) + max(xs)) / 2.0
    if acuto:
        return [[(centro - 1, -7), (centro + 2, -11)]]
    return [[(centro - 2, -11), (centro + 1, -7)]]


def senza_punto(tratti):
    """The dotless i: the strokes that lie wholly above the x-height are the dot."""
    return [t for t in tratti if not all(y < -5 for _, y in t)]


def cerchietto(sinistra, destra):
    centro = (sinistra + destra) / 2.0
    raggio, lati = 2.5, 12
    return [[(centro + raggio * math.cos(2 * math.pi * k / lati),
              -9 + raggio * math.sin(2 * math.pi * k / lati)) for k in range(lati + 1)]]


def diametro(sinistra, destra):
    """The diameter sign drawn for "]", the family's diameter character: a circle 0.6 of the
    capital height across, centred half way up the capitals, crossed at 45 degrees by a slash
    that passes it at both ends. Round and at 45 degrees for a text as wide as it is high, the
    sizes of the installation's options."""
    centro = (sinistra + destra) / 2.0
    meta_y = H_BASE - H_MAIUSCOLE / 2.0
    # Hershey units across that draw as long as one unit upward, after the narrowing.
    tondo = (SCALA_Y / ALTEZZA_MAIUSCOLE) / (SCALA_X * (1 - STRIZIONE / 100.0) / 99.0)
    raggio, lati, barra = 0.3 * H_MAIUSCOLE, 16, 0.3 * H_MAIUSCOLE
    cerchio = [(centro + tondo * raggio * math.cos(2 * math.pi * k / lati),
                meta_y + raggio * math.sin(2 * math.pi * k / lati)) for k in range(lati + 1)]
    return [cerchio, [(centro - tondo * barra, meta_y + barra),
                      (centro + tondo * barra, meta_y - barra)]]


def riga_glifo(byte, segmenti_glifo):
    testo = bytes([byte])
    for (x1, y1), (x2, y2) in segmenti_glifo:
        for v in (x1, y1, x2, y2):
            if not 0 <= v <= 99:
                raise ValueError("coordinata fuori dalla cella: %d (carattere %d)" % (v, byte))
        testo += b"%02d%02d%02d%02d" % (x1, y1, x2, y2)
    return testo


def genera(percorso_hershey):
    glifi = leggi_jhf(percorso_hershey)
    ascii_ = {32 + i: g for i, g in enumerate(glifi)}  # the ASCII files start at the blank
    righe = [b"%d" % STRIZIONE]
    for codice in range(32, 127):
        sinistra, destra, tratti = ascii_[codice]
        if codice == ord("]"):  # the family writes the diameter sign as "]"
            tratti = diametro(sinistra, destra)
        righe.append(riga_glifo(codice, glifo(nella_cella(sinistra, destra, tratti))))
    accentate = [("à", "a", False), ("è", "e", False), ("é", "e", True), ("ì", "i", False),
                 ("ò", "o", False), ("ù", "u", False)]
    speciali = []
    for lettera, base, acuto in accentate:
        sinistra, destra, tratti = ascii_[ord(base)]
        if base == "i":
            tratti = senza_punto(tratti)
        speciali.append((lettera, sinistra, destra, tratti + accento(tratti, acuto)))
    sinistra, destra, _ = ascii_[ord("o")]
    speciali.append(("°", sinistra, destra, cerchietto(sinistra, destra)))
    for lettera, sinistra, destra, tratti in sorted(speciali, key=lambda s: s[0].encode("cp1252")):
        righe.append(riga_glifo(lettera.encode("cp1252")[0],
                                glifo(nella_cella(sinistra, destra, tratti))))
    return b"".join(r + b"\r\n" for r in righe)


def main():
    radice = os.path.dirname(os.path.dirname(os.path.abspath(__file__)))
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--hershey", default="/usr/share/hershey-fonts/futural.jhf")
    parser.add_argument("--uscita", default=os.path.join(radice, "installazione", "progra",
                                                         "font.001"))
    argomenti = parser.parse_args()
    contenuto = genera(argomenti.hershey)
    os.makedirs(os.path.dirname(argomenti.uscita), exist_ok=True)
    with open(argomenti.uscita, "wb") as f:
        f.write(contenuto)
    print("%s: %d glifi" % (argomenti.uscita, contenuto.count(b"\r\n") - 1), file=sys.stderr)


if __name__ == "__main__":
    main()
