#pragma once

#include <QString>
#include <QTemporaryDir>

#include <memory>

class FrmPrinc;

/// The workstation of a test: an application folder of its own, every global record as the process starts with it, and
/// the main window once it is started. All is put back when the workstation goes.
class Poste
{
public:
    Poste();
    /// Starts with an ordinary "Dorvanel.ini" of that language. 0 French, 1 English, 2 Spanish.
    explicit Poste(int langue);
    ~Poste();
    Q_DISABLE_COPY_MOVE(Poste)

    /// Starts the program as the process does. Without a "Dorvanel.ini" the language dialog comes.
    void Demarre();
    /// Ends the program and starts it anew in the same application folder: it then knows what its files hold.
    void Redemarre();

    QString Dossier() const { return m_dossier.path(); }
    /// Path of a file in the application folder.
    QString Chemin(QAnyStringView nom) const { return m_dossier.filePath(nom.toString()); }
    /// Writes a file there and gives its path.
    QString Ecrit(QAnyStringView nom, const QByteArray &octets) const;
    QByteArray Lit(QAnyStringView nom) const;
    /// Ties a port to a device, as an operator does who gives an adapter its number.
    void Relie(int port, const QString &peripherique) const;
    /// Writes a text and a configuration that talks to the simulated machine, and loads both. ParamCom may be changed
    /// afterwards: each transfer reads it anew.
    void Charge(const QByteArray &programme) const;

private:
    static void RemetEnregistrements();

    QTemporaryDir m_dossier;
    QString m_dossierDepart;
    std::unique_ptr<FrmPrinc> m_fenetre;
};
