#pragma once

#include "machine/MachineSimulee.h"

/// Tells the operator on the standard output what the machine does, a line for each event, and stores the programs.
class Chronique : public TemoinMachine
{
public:
    /// stockage: an existing folder, or empty; the first free number is taken for each program.
    Chronique(const ReglageLigne &ligne, const QString &stockage);

    /// One line, at once even into a file or a pipe.
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
