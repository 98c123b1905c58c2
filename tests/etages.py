#!/usr/bin/env python3
"""Reads the includes of the sources and names each one that points upwards: to a floor above its own or, in platform/,
to a room that its own may not know.

   etages.py SOURCES"""

import pathlib
import re
import sys

ETAGES = ["platform", "locale", "donnees", "shell", "comconfig", "transfer", "gauges", "programme"]  # lowest first
PIECES = {
    "base": [],
    "fichiers": ["base"],
    "serie": ["base"],
    "texte": ["base", "fichiers"],
    "controles": ["base"],
    "dialogues": ["base", "controles"],
}


def monte(de, vers):
    if de[0] == vers[0] == "platform":
        return vers[1] not in [de[1], *PIECES[de[1]]]
    return ETAGES.index(vers[0]) > ETAGES.index(de[0])


def main(sources):
    racine = pathlib.Path(sources)
    formes = {f"ui_{forme.stem}.h": forme.relative_to(racine).parts for forme in racine.rglob("*.ui")}
    fleches = [
        (fichier.relative_to(racine), inclus)
        for fichier in sorted(racine.rglob("*.*"))
        if fichier.suffix in (".h", ".cpp")
        for inclus in re.findall(r'^\s*#\s*include\s*"(.+)"', fichier.read_text(encoding="utf-8"), re.MULTILINE)
    ]
    vers_le_haut = [(de, vers) for de, vers in fleches if monte(de.parts, formes.get(vers, vers.split("/")))]
    for de, vers in vers_le_haut:
        print(f"{de} includes {vers}, which stands above it")
    print(len(fleches), "includes read")
    return bool(vers_le_haut) or not fleches


sys.exit(main(*sys.argv[1:]))
