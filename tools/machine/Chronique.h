#pragma once

#include "machine/MachineSimulee.h"

/// Prints a line for each event of the machine on the standard output, and stores the received programs.
class Chronique : public TemoinMachine
{
public:
    /// stockage: an existing folder, or empty. Each program gets the first free number as its name.
    Chronique(const ReglageLigne &ligne, const QString &stockage);

    /// Prints one line, at once even into a file or a pipe.
    static void Dit(const QString &ligne);

    void XoffDit(qint64 recus) override;
    void XonDit(qint64 suite) override;
    void Deborde(qint64 recus) override;
    void ProgrammeComplet(const ProgrammeRecu &programme) override;
    void EmissionFinie(const EtatEnvoi &envoi) override;
    void ReponseVenue(Retour reponse, const QByteArray &octets) override;

private:
    QString Stocke(const QByteArray &texte) const;

    Cadence m_ligne;
    QString m_stockage;
};
