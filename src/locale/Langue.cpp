#include "locale/Langue.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QLocale>
#include <QTranslator>

int LangIndex = 0;

QString Texte(const Texte3 &texte)
{
    const bool connue = LangIndex >= 0 && LangIndex <= 2;
    return connue ? TexteChoisi(texte) : QString::fromUtf16(texte.francais);
}

QString TexteChoisi(const Texte3 &texte)
{
    const char16_t *const choisi = LangIndex == 0   ? texte.francais
                                   : LangIndex == 1 ? texte.anglais
                                   : LangIndex == 2 ? texte.espagnol
                                                    : nullptr;
    return choisi == nullptr ? QString() : QString::fromUtf16(choisi);
}

void AppliqueLangueSysteme()
{
    static auto *const traducteur = new QTranslator(QCoreApplication::instance());
    const QString fichier = Texte({u"qtbase_fr", u"qtbase_en", u"qtbase_es"});
    static QString pris;
    if (fichier == pris)
        return;
    pris = fichier;
    // This locale serves what the toolkit shows by itself, such as sizes and dates of files. The program's own numbers
    // depend on no locale.
    QLocale::setDefault(QLocale(Texte({u"fr", u"en_GB", u"es"})));
    QCoreApplication::removeTranslator(traducteur);
    if (traducteur->load(fichier, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(traducteur);
}
