#include "platform/base/Erreur.h"

#include "platform/base/Journal.h"

#include <cerrno>

namespace {

QString Decrit(const QString &objet, int cause)
{
    const QString separe = objet.isEmpty() || cause == 0 ? QString() : QStringLiteral(": ");
    return objet + separe + (cause == 0 ? QString() : qt_error_string(cause));
}

} // namespace

Erreur::Erreur(int numero, const QString &objet, int cause)
    : m_numero(numero)
    , m_cause(cause)
    , m_objet(objet)
    , m_description(Decrit(objet, cause))
    , m_octets(m_description.toUtf8())
{
}

Erreur ErreurDeFichier(int cause, const QString &objet)
{
    const int numero = cause == ENOSPC || cause == EDQUOT                    ? Erreur::DisqueSature
                       : cause == ENOENT || cause == ENOTDIR                 ? Erreur::FichierIntrouvable
                       : cause == EACCES || cause == EPERM || cause == EROFS ? Erreur::AccesRefuse
                                                                             : Erreur::ErreurFichier;
    Erreur erreur(numero, objet, cause);
    qCInfo(JournalFichiers) << "failure" << numero << erreur.Description();
    return erreur;
}
