#include "machine/Chronique.h"

#include <QDir>
#include <QFile>

#include <cstdio>

Chronique::Chronique(const ReglageLigne &ligne, const QString &stockage)
    : m_ligne(ligne)
    , m_stockage(stockage)
{
}

void Chronique::Dit(const QString &ligne)
{
    std::fputs((ligne + u'\n').toLocal8Bit().constData(), stdout);
    std::fflush(stdout);
}

void Chronique::XoffDit(qint64 recus)
{
    Dit(QStringLiteral("XOFF said after %1 characters").arg(recus));
}

void Chronique::XonDit(qint64 suite)
{
    Dit(QStringLiteral("XON said; %1 characters had come after the XOFF").arg(suite));
}

void Chronique::Deborde(qint64 recus)
{
    Dit(QStringLiteral("OVERRUN: the receive buffer is full, characters are lost from number %1 on").arg(recus));
}

void Chronique::ProgrammeComplet(const ProgrammeRecu &programme)
{
    const auto secondes = [](Duree duree) { return std::chrono::duration<double>(duree).count(); };
    const double duree = secondes(programme.Dernier - programme.Premier);
    QString ligne =
        QStringLiteral("Program received: %1 characters in %2 s").arg(programme.Caracteres).arg(duree, 0, 'f', 3);
    if (!m_ligne.SansDelai()) {
        const double ideal = secondes(m_ligne.Temps(programme.Caracteres));
        ligne += QStringLiteral(", %1 times the line time").arg(duree / ideal, 0, 'f', 3);
    }
    if (programme.XoffDits > 0)
        ligne += QStringLiteral(", %1 XOFF said").arg(programme.XoffDits);
    if (programme.Perdus > 0)
        ligne += QStringLiteral(", %1 CHARACTERS LOST").arg(programme.Perdus);
    if (!m_stockage.isEmpty())
        ligne += QStringLiteral(", ") + Stocke(programme.Texte);
    Dit(ligne);
}

void Chronique::EmissionFinie(const EtatEnvoi &envoi)
{
    const bool attend = envoi.Reponse == Retour::Attendu;
    Dit(QStringLiteral("Sent: %1 characters").arg(envoi.Emis) +
        (attend ? QStringLiteral("; waiting for the end of transfer to come back") : QString()));
}

void Chronique::ReponseVenue(Retour reponse, const QByteArray &octets)
{
    if (reponse == Retour::Juste)
        Dit(QStringLiteral("The end of transfer came back right"));
    else
        Dit(QStringLiteral("WRONG end of transfer came back: %1").arg(QString::fromLatin1(octets.toHex(' '))));
}

QString Chronique::Stocke(const QByteArray &texte) const
{
    // An existing file is never overwritten: another machine may store in the same folder.
    for (int numero = 1;; ++numero) {
        const QString nom = QStringLiteral("%1.txt").arg(numero, 3, 10, QLatin1Char('0'));
        QFile fichier(QDir(m_stockage).filePath(nom));
        if (fichier.open(QIODevice::WriteOnly | QIODevice::NewOnly)) {
            const bool entier = fichier.write(texte) == texte.size() && fichier.flush();
            return entier ? QStringLiteral("stored as ") + nom : QStringLiteral("NOT STORED: ") + fichier.errorString();
        }
        if (!fichier.exists())
            return QStringLiteral("NOT STORED: ") + fichier.errorString();
    }
}
