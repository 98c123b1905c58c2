#!/usr/bin/env python3
"""Reads the manuals as a reader follows them: all have the same sections, links and pictures lead somewhere, and what is
in bold stands on a window.

   manuels.py FOLDER CAPTIONS

CAPTIONS is the list of captions that TestTextes holds against the windows."""

import pathlib
import re
import struct
import sys

MANUELS = ("DORVANEL.HLP", "DORVANEL_EN.HLP", "DORVANEL_ES.HLP")
SANS_LANGUE = {"CD", "RTS", "CTS", "XOn/XOff", "RTS/CTS", "?"}
LARGEUR = 900  # pixels; what a help window shows


def largeur(image):
    """The width of a picture in PNG form, 0 where there is none."""
    return struct.unpack(">I", image.read_bytes()[16:20])[0] if image.is_file() else 0


def defauts(dossier, manuel, sections, legendes):
    texte = (dossier / manuel).read_text(encoding="utf-8")
    if re.findall(r'<h[1-3] id="(\w+)">', texte) != sections:
        yield "the sections are not those of the first manual"
    for lien in re.findall(r'href="([^"]*)"', texte):
        if lien[1:] not in sections:
            yield f"a link to nowhere: {lien}"
    for image in re.findall(r'src="([^"]*)"', texte):
        if not 0 < largeur(dossier / image) < LARGEUR:
            yield f"no picture, or too wide: {image}"
    for cite in re.findall(r"<b>([^<]*)</b>", texte):
        if cite.replace("&gt;", ">") not in legendes:
            yield f"on no window: {cite}"


def main(dossier, liste):
    dossier = pathlib.Path(dossier)
    lignes = [ligne.split("\t") for ligne in pathlib.Path(liste).read_text(encoding="utf-8").splitlines()]
    sections = re.findall(r'<h[1-3] id="(\w+)">', (dossier / MANUELS[0]).read_text(encoding="utf-8"))
    trouves = [] if len(sections) > 20 else ["hardly a section"]
    for langue, manuel in enumerate(MANUELS):
        legendes = SANS_LANGUE | {ligne[3 + langue].replace("&", "").rstrip(" :") for ligne in lignes}
        trouves += [f"{manuel}: {defaut}" for defaut in defauts(dossier, manuel, sections, legendes)]
    print(*trouves or [f"{len(sections)} sections, nothing wrong"], sep="\n")
    return bool(trouves)


sys.exit(main(*sys.argv[1:]))
