#include "platform/base/Cause.h"

#include "platform/base/windows/CauseWindows.h"

namespace {

constexpr NumeroSysteme Numeros[] = {
    {ERROR_FILE_NOT_FOUND, Cause::Absent},
    {ERROR_PATH_NOT_FOUND, Cause::Absent},
    {ERROR_INVALID_DRIVE, Cause::Absent},
    {ERROR_BAD_NETPATH, Cause::Absent},
    {ERROR_BAD_NET_NAME, Cause::Absent},
    {ERROR_DIRECTORY, Cause::PasUnDossier},
    {ErreurDossier, Cause::EstUnDossier},
    {ERROR_FILE_EXISTS, Cause::ExisteDeja},
    {ERROR_ALREADY_EXISTS, Cause::ExisteDeja},
    {ERROR_FILENAME_EXCED_RANGE, Cause::NomTropLong},
    {ERROR_BUFFER_OVERFLOW, Cause::NomTropLong},
    {ERROR_ACCESS_DENIED, Cause::SansDroits},
    {ERROR_NETWORK_ACCESS_DENIED, Cause::SansDroits},
    {ERROR_PRIVILEGE_NOT_HELD, Cause::NonPermis},
    {ErreurLien, Cause::NonPermis},
    {ERROR_WRITE_PROTECT, Cause::ProtegeEnEcriture},
    {ERROR_DISK_FULL, Cause::DisquePlein},
    {ERROR_HANDLE_DISK_FULL, Cause::DisquePlein},
    {ErreurQuota, Cause::QuotaEpuise},
    {ERROR_FILE_TOO_LARGE, Cause::FichierTropGrand},
    {ERROR_TOO_MANY_OPEN_FILES, Cause::TropDeFichiers},
    {ERROR_NO_SYSTEM_RESOURCES, Cause::TropDeFichiersSysteme},
    {ERROR_TOO_MANY_LINKS, Cause::TropDeLiens},
    {ERROR_CANT_RESOLVE_FILENAME, Cause::LiensEnBoucle},
    {ERROR_DIR_NOT_EMPTY, Cause::DossierNonVide},
    {ERROR_SHARING_VIOLATION, Cause::Utilise},
    {ERROR_LOCK_VIOLATION, Cause::Utilise},
    {ERROR_CURRENT_DIRECTORY, Cause::Utilise},
    {ERROR_PATH_BUSY, Cause::Utilise},
    {ERROR_BUSY, Cause::Utilise},
    {ERROR_USER_MAPPED_FILE, Cause::Utilise},
    {ERROR_DELETE_PENDING, Cause::Utilise},
    {ERROR_INVALID_NAME, Cause::NonAccepte},
    {ERROR_BAD_PATHNAME, Cause::NonAccepte},
    {ERROR_INVALID_PARAMETER, Cause::NonAccepte},
    {ERROR_NOT_SUPPORTED, Cause::NonAccepte},
    {ERROR_CRC, Cause::NeRepondPlus},
    {ERROR_SEEK, Cause::NeRepondPlus},
    {ERROR_SECTOR_NOT_FOUND, Cause::NeRepondPlus},
    {ERROR_WRITE_FAULT, Cause::NeRepondPlus},
    {ERROR_READ_FAULT, Cause::NeRepondPlus},
    {ERROR_GEN_FAILURE, Cause::NeRepondPlus},
    {ERROR_UNEXP_NET_ERR, Cause::NeRepondPlus},
    {ERROR_NETNAME_DELETED, Cause::NeRepondPlus},
    {ERROR_SEM_TIMEOUT, Cause::NeRepondPlus},
    {ERROR_IO_DEVICE, Cause::NeRepondPlus},
    {ERROR_FILE_CORRUPT, Cause::NeRepondPlus},
    {ERROR_DISK_CORRUPT, Cause::NeRepondPlus},
    {ERROR_BAD_COMMAND, Cause::AppareilParti}, // what many drivers say of an adapter that was pulled
    {ERROR_DEV_NOT_EXIST, Cause::AppareilParti},
    {ERROR_BROKEN_PIPE, Cause::AppareilParti},
    {ERROR_FILE_INVALID, Cause::AppareilParti},
    {ERROR_DEVICE_NOT_CONNECTED, Cause::AppareilParti},
    {ERROR_DEVICE_REMOVED, Cause::AppareilParti},
    {ERROR_NOT_READY, Cause::AppareilAbsent},
    {ERROR_NO_MEDIA_IN_DRIVE, Cause::AppareilAbsent},
};

} // namespace

std::span<const NumeroSysteme> NumerosSysteme()
{
    return Numeros;
}
