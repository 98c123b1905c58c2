#pragma once

#include <QByteArray>
#include <QString>

#include <memory>

/// An open file on disk. A failure carries the cause that the system gave, which QFile does not report; it is
/// DisqueSature, FichierIntrouvable, AccesRefuse or ErreurFichier. Each system has its own unit for this class.
///
/// On Windows reserved names are refused, for reading as for writing: device names such as CON, NUL or COM2 with any
/// extension, names that end in a point or a blank, and names with any of < > : " | ? *
class FichierDisque
{
public:
    enum class Usage {
        Lit,
        Ecrit,  ///< created, or emptied
        Ajoute, ///< must exist; writing starts at its end
        Cree,   ///< must not exist yet
    };

    FichierDisque(const QString &chemin, Usage usage);
    ~FichierDisque();
    Q_DISABLE_COPY_MOVE(FichierDisque)

    qint64 Taille() const;
    QByteArray LitTout();
    /// Writes octets and closes the file, also when the writing fails. When it returns, the bytes are on the disk.
    void EcritEtFerme(const QByteArray &octets);

private:
    struct Systeme;
    const std::unique_ptr<Systeme> m_systeme;
};

/// Checks that the disk has room for a file with content to grow to taille bytes, while that content is still
/// untouched. Raises DisqueSature, or ErreurFichier for a size that the file system does not allow. An empty or missing
/// file passes, and so does a file system that cannot tell.
void ExigePlace(const QString &chemin, qint64 taille);

/// Renames the file ancien to nouveau, on the same volume. A file with the new name is replaced.
void RemplaceFichier(const QString &ancien, const QString &nouveau);
