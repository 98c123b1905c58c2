#!/usr/bin/env python3
"""Compares every text that the code holds for the operator with the list messages.tsv, both ways.

   textes_du_code.py SOURCES LIST

A line of the list is a folder of the sources and either a text in French, English and Spanish, or one text that is the
same in all languages. Line ends are written as in C++. The captions of the windows are not here: TestTextes reads them
from the windows themselves."""

import pathlib
import re
import sys

TEXTE = r'u?"(?:[^"\\\n]|\\.)*"'
SUITE = rf"{TEXTE}(?:\s*{TEXTE})*"  # pieces that stand one behind the other are one text
LANGUE = rf"\s*(u{SUITE[2:]})\s*"
TROIS = re.compile(rf"\{{{LANGUE},{LANGUE},{LANGUE}\}}")
CONSTANTE = re.compile(rf"\bchar16_t (\w+)\[\] =\s*({SUITE});")
CARACTERE = r"'(?:[^'\\]|\\.)+'"
# What is no text: includes, comments, the journal, single characters, and the words that the toolkit has in its own
# translation.
RESTE = re.compile(rf'^\s*#include.*$|//[^\n]*|\bqCInfo\([^;]*;|\b(?:Mot\("\w+", |\btr\(){TEXTE}\)|{CARACTERE}|({TEXTE})', re.MULTILINE)


def valeur(suite):
    return "".join(re.findall(r'"((?:[^"\\\n]|\\.)*)"', suite)).replace('\\"', '"')


def se_lit(texte):
    """Words for a person: a name of the code's own has neither a blank nor an accent."""
    return re.search(r"[A-Za-z]{2}", texte) and re.search(r"[ à-ÿÀ-Ý]", texte)


def textes(fichier, dossier):
    """The texts of a source file, as lines of the list."""
    code = fichier.read_text(encoding="utf-8").replace(" DORVANEL_VERSION", ' u"@VERSION@"')
    code = RESTE.sub(lambda trouve: trouve.group(1) or " ", code)
    constantes = dict(CONSTANTE.findall(code))
    if constantes:  # a text that several places share is read where they name it
        code = CONSTANTE.sub(lambda trouve: "" if code.count(trouve.group(1)) > 1 else trouve.group(0), code)
        code = re.sub(rf"{TEXTE}|\b\w+\b", lambda trouve: constantes.get(trouve.group(0), trouve.group(0)), code)
    for trois in TROIS.findall(code):
        if any(re.search("[A-Za-z]", valeur(texte)) for texte in trois):
            yield (dossier, *map(valeur, trois))
    for seul in re.findall(SUITE, TROIS.sub("", code)):
        yield dossier, valeur(seul)


def sans_texte(sources):
    """Numbers of failures for which the operator would read a developer's words."""
    lu = lambda chemin: (pathlib.Path(sources) / chemin).read_text(encoding="utf-8")
    nombres = r"constexpr int (\w+) = (\d+);"
    textes = set(re.findall(r"\{(?:Erreur(?:Port)?::)?(\w+),\s*(?:true|false|\{)", lu("locale/TextesErreur.cpp")))
    for nom, nombre in re.findall(nombres, lu("platform/base/Erreur.h") + lu("platform/serie/ErreurPort.h")):
        if textes.isdisjoint({nom, nombre}):
            yield "", nom


def main(sources, liste):
    code = set()
    for fichier in sorted(pathlib.Path(sources).rglob("*.*")):
        if fichier.suffix in (".cpp", ".h") and not fichier.name.startswith("Table"):
            code |= set(textes(fichier, fichier.relative_to(sources).parts[0]))
    attendus = {tuple(ligne.split("\t")) for ligne in pathlib.Path(liste).read_text(encoding="utf-8").splitlines()}
    manquent = attendus - code
    inconnus = {texte for texte in code - attendus if len(texte) > 2 or se_lit(texte[1])}
    muets = set(sans_texte(sources))
    for titre, ecarts in (("in the list, not in the code", manquent), ("in the code, not in the list", inconnus),
                          ("a failure without a text", muets)):
        for texte in sorted(ecarts):
            print(titre + ":", *texte, sep="\n    ")
    print(len(code & attendus), "texts alike")
    return bool(manquent or inconnus or muets)


sys.exit(main(*sys.argv[1:]))
