#include "platform/fichiers/LecteurChamps.h"

#include "platform/base/Erreur.h"
#include "platform/base/Nombres.h"

namespace {

bool EstBlanc(QChar caractere)
{
    return caractere == u' ' || caractere == u'\t';
}

bool EstFinDeLigne(QChar caractere)
{
    return caractere == u'\r' || caractere == u'\n';
}

[[noreturn]] void FichierFini()
{
    throw Erreur(Erreur::FinDeFichier, QStringLiteral("Input past end of file"));
}

[[noreturn]] void FormeRefusee(const QString &valeur)
{
    throw Erreur(Erreur::TypeIncompatible, valeur.left(80));
}

} // namespace

QString ValeurEntreGuillemets(QString texte)
{
    return u'"' + texte.replace(u'"', u'\'') + u'"';
}

LecteurChamps::LecteurChamps(const QString &texte)
    : m_texte(texte)
{
}

QString LecteurChamps::Chaine()
{
    QString valeur = Valeur();
    ValeurNue(); // skips anything between the closing quote and the separator
    if (m_place < m_texte.size() && m_texte[m_place] == u',')
        ++m_place;
    else
        FinitLigne();
    return valeur;
}

int LecteurChamps::Entier()
{
    return EnEntier(Val(Chaine()));
}

QString LecteurChamps::LigneChaine()
{
    SauteBlancs();
    if (m_place < m_texte.size() && m_texte[m_place] != u'"')
        FormeRefusee(ResteDeLigne());
    QString valeur = Valeur();
    if (!ResteDeLigne().trimmed().isEmpty())
        FormeRefusee(valeur);
    return valeur;
}

int LecteurChamps::LigneEntier()
{
    if (m_place >= m_texte.size())
        FichierFini();
    const QString valeur = ResteDeLigne().trimmed();
    bool estNombre = false;
    const qlonglong nombre = valeur.toLongLong(&estNombre);
    if (!estNombre)
        FormeRefusee(valeur);
    return EnEntier(static_cast<double>(nombre));
}

int LecteurChamps::LigneOuiNon()
{
    const qsizetype debut = m_place;
    const QString valeur = ResteDeLigne().trimmed();
    if (valeur == QLatin1String("#TRUE#"))
        return 1;
    if (valeur == QLatin1String("#FALSE#"))
        return 0;
    m_place = debut;
    return LigneEntier();
}

QString LecteurChamps::Valeur()
{
    SauteBlancs();
    if (m_place >= m_texte.size())
        FichierFini();
    return m_texte[m_place] == u'"' ? ValeurCitee() : ValeurNue();
}

QString LecteurChamps::ValeurCitee()
{
    const qsizetype fin = m_texte.indexOf(u'"', m_place + 1);
    if (fin < 0)
        FichierFini();
    QString valeur = m_texte.mid(m_place + 1, fin - m_place - 1);
    m_place = fin + 1;
    return valeur;
}

QString LecteurChamps::ValeurNue()
{
    const qsizetype debut = m_place;
    while (m_place < m_texte.size() && m_texte[m_place] != u',' && !EnFinDeLigne())
        ++m_place;
    return m_texte.mid(debut, m_place - debut);
}

QString LecteurChamps::ResteDeLigne()
{
    const qsizetype debut = m_place;
    while (m_place < m_texte.size() && !EnFinDeLigne())
        ++m_place;
    QString reste = m_texte.mid(debut, m_place - debut);
    FinitLigne();
    return reste;
}

void LecteurChamps::SauteBlancs()
{
    while (m_place < m_texte.size() && EstBlanc(m_texte[m_place]))
        ++m_place;
}

bool LecteurChamps::EnFinDeLigne() const
{
    return EstFinDeLigne(m_texte[m_place]);
}

void LecteurChamps::FinitLigne()
{
    if (m_place < m_texte.size() && m_texte[m_place] == u'\r')
        ++m_place;
    if (m_place < m_texte.size() && m_texte[m_place] == u'\n')
        ++m_place;
}
