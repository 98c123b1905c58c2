#include "platform/base/Erreur.h"

#include "platform/base/Cause.h"
#include "platform/base/Journal.h"

namespace {

QString Decrit(const QString &objet, int cause)
{
    const QString separe = objet.isEmpty() || cause == 0 ? QString() : QStringLiteral(": ");
    return objet + separe + (cause == 0 ? QString() : qt_error_string(cause));
}

int NumeroDeFichier(Cause cause)
{
    switch (cause) {
    case Cause::DisquePlein:
    case Cause::QuotaEpuise:
        return Erreur::DisqueSature;
    case Cause::Absent:
    case Cause::PasUnDossier:
        return Erreur::FichierIntrouvable;
    case Cause::SansDroits:
    case Cause::NonPermis:
    case Cause::ProtegeEnEcriture:
        return Erreur::AccesRefuse;
    default:
        return Erreur::ErreurFichier;
    }
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
    Erreur erreur(NumeroDeFichier(CauseDe(cause)), objet, cause);
    qCInfo(JournalFichiers) << "failure" << erreur.Numero() << erreur.Description();
    return erreur;
}
