#pragma once

#include <QDir>
#include <QString>
#include <QTemporaryDir>

#include <memory>

class FrmPrinc;

/// The workstation of a test: an application folder of its own, every global record as at the start of the process, and
/// the main window once it is started. The destructor restores all of it.
class Poste
{
public:
    Poste();
    /// Writes an ordinary "Dorvanel.ini" and starts. langue: 0 French, 1 English, 2 Spanish.
    explicit Poste(int langue);
    ~Poste();
    Q_DISABLE_COPY_MOVE(Poste)

    /// Starts the program as the process does. Without a "Dorvanel.ini" the language dialog opens.
    void Demarre();
    /// Ends the program and starts it again in the same application folder; it then knows only what its files hold.
    void Redemarre();

    // Paths are written as the system writes them and the operator reads them.

    QString Dossier() const { return QDir::toNativeSeparators(m_dossier.path()); }
    /// Path of a file in the application folder.
    QString Chemin(QAnyStringView nom) const { return QDir::toNativeSeparators(m_dossier.filePath(nom.toString())); }
    /// Writes a file in the application folder and gives its path.
    QString Ecrit(QAnyStringView nom, const QByteArray &octets) const;
    QByteArray Lit(QAnyStringView nom) const;
    /// Links a port to a device, as an operator does who gives an adapter its number. port: 1 to 16.
    void Relie(int port, const QString &peripherique) const;
    /// Writes the text and a configuration for the simulated machine to files, and loads both. ParamCom may be changed
    /// afterwards: each transfer reads it again.
    void Charge(const QByteArray &programme) const;

private:
    static void RemetEnregistrements();

    QTemporaryDir m_dossier;
    QString m_dossierDepart;
    std::unique_ptr<FrmPrinc> m_fenetre;
};
