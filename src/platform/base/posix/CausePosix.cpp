#include "platform/base/Cause.h"

#include <cerrno>

namespace {

constexpr NumeroSysteme Numeros[] = {
    {ENOENT, Cause::Absent},
    {ENOTDIR, Cause::PasUnDossier},
    {EISDIR, Cause::EstUnDossier},
    {EEXIST, Cause::ExisteDeja},
    {ENAMETOOLONG, Cause::NomTropLong},
    {EACCES, Cause::SansDroits},
    {EPERM, Cause::NonPermis},
    {EROFS, Cause::ProtegeEnEcriture},
    {ENOSPC, Cause::DisquePlein},
    {EDQUOT, Cause::QuotaEpuise},
    {EFBIG, Cause::FichierTropGrand},
    {EMFILE, Cause::TropDeFichiers},
    {ENFILE, Cause::TropDeFichiersSysteme},
    {EMLINK, Cause::TropDeLiens},
    {ELOOP, Cause::LiensEnBoucle},
    {ENOTEMPTY, Cause::DossierNonVide},
    {EBUSY, Cause::Utilise},
    {EINVAL, Cause::NonAccepte},
    {EIO, Cause::NeRepondPlus},
    {ENODEV, Cause::AppareilParti},
    {ENXIO, Cause::AppareilAbsent},
};

} // namespace

std::span<const NumeroSysteme> NumerosSysteme()
{
    return Numeros;
}
