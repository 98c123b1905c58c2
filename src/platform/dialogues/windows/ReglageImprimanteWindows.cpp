#include "platform/dialogues/windows/ReglageImprimanteWindows.h"

#include <QPrinter>

#include <commdlg.h>
#include <winspool.h>

namespace {

/// A block of global memory, held in place.
template <typename Type>
class Bloc
{
public:
    explicit Bloc(HGLOBAL memoire)
        : m_memoire(memoire)
        , m_contenu(memoire == nullptr ? nullptr : static_cast<Type *>(GlobalLock(memoire)))
    {
    }
    ~Bloc()
    {
        if (m_contenu != nullptr)
            GlobalUnlock(m_memoire);
    }
    Q_DISABLE_COPY_MOVE(Bloc)

    Type *operator->() const { return m_contenu; }
    Type *Contenu() const { return m_contenu; }

private:
    HGLOBAL m_memoire;
    Type *m_contenu;
};

/// The set-up has no field for a title: it is set when its window is made.
UINT_PTR CALLBACK PoseTitre(HWND fenetre, UINT message, WPARAM, LPARAM parametre)
{
    if (message == WM_INITDIALOG) {
        const auto *const demande = reinterpret_cast<const PRINTDLGW *>(parametre);
        SetWindowTextW(fenetre, reinterpret_cast<const wchar_t *>(demande->lCustData));
    }
    return FALSE;
}

/// Only the name counts for the set-up.
HGLOBAL NomsDe(const QString &imprimante)
{
    const auto caracteres = static_cast<size_t>(imprimante.size()) + 1;
    const HGLOBAL noms = GlobalAlloc(GHND, sizeof(DEVNAMES) + caracteres * sizeof(wchar_t));
    const Bloc<DEVNAMES> contenu(noms);
    constexpr auto debut = static_cast<WORD>(sizeof(DEVNAMES) / sizeof(wchar_t));
    imprimante.toWCharArray(reinterpret_cast<wchar_t *>(contenu.Contenu()) + debut);
    contenu->wDeviceOffset = debut;
    contenu->wDriverOffset = contenu->wOutputOffset = static_cast<WORD>(debut + caracteres - 1); // both empty
    return noms;
}

/// What the driver is set to for this user; nullptr when it does not say.
HGLOBAL ReglagesDe(const QString &imprimante)
{
    auto *const nom = const_cast<wchar_t *>(reinterpret_cast<const wchar_t *>(imprimante.utf16()));
    HANDLE poignee = nullptr;
    if (OpenPrinterW(nom, &poignee, nullptr) == FALSE)
        return nullptr;
    HGLOBAL reglages = nullptr;
    if (const LONG taille = DocumentPropertiesW(nullptr, poignee, nom, nullptr, nullptr, 0); taille > 0) {
        reglages = GlobalAlloc(GHND, static_cast<size_t>(taille));
        const Bloc<DEVMODEW> contenu(reglages);
        DocumentPropertiesW(nullptr, poignee, nom, contenu.Contenu(), nullptr, DM_OUT_BUFFER);
    }
    ClosePrinter(poignee);
    return reglages;
}

QPageSize PapierDe(const DEVMODEW &reglages)
{
    constexpr double dixiemes = 10; // of a millimetre
    const QPageSize::PageSizeId connu = QPageSize::id(reglages.dmPaperSize);
    if (connu != QPageSize::Custom)
        return QPageSize(connu);
    return QPageSize(QSizeF(reglages.dmPaperWidth, reglages.dmPaperLength) / dixiemes, QPageSize::Millimeter);
}

} // namespace

ReglageImprimanteWindows::ReglageImprimanteWindows(QPrinter &imprimante)
    : m_imprimante(imprimante)
    , m_noms(NomsDe(imprimante.printerName()))
    , m_reglages(ReglagesDe(imprimante.printerName()))
{
    if (m_reglages != nullptr)
        Propose();
}

ReglageImprimanteWindows::~ReglageImprimanteWindows()
{
    GlobalFree(m_noms);
    GlobalFree(m_reglages);
}

/// The settings of this run in place of the driver's.
void ReglageImprimanteWindows::Propose()
{
    const Bloc<DEVMODEW> reglages(m_reglages);
    const QPageLayout feuille = m_imprimante.pageLayout();
    reglages->dmFields |= DM_ORIENTATION;
    reglages->dmOrientation = feuille.orientation() == QPageLayout::Landscape ? DMORIENT_LANDSCAPE : DMORIENT_PORTRAIT;
    if (const int papier = feuille.pageSize().windowsId(); papier > 0) {
        reglages->dmFields |= DM_PAPERSIZE;
        reglages->dmPaperSize = static_cast<short>(papier);
    }
}

bool ReglageImprimanteWindows::Demande(HWND proprietaire, const QString &titre)
{
    PRINTDLGW demande = {};
    demande.lStructSize = sizeof demande;
    demande.hwndOwner = proprietaire;
    demande.hDevNames = m_noms;
    demande.hDevMode = m_reglages;
    demande.Flags = PD_PRINTSETUP | PD_ENABLESETUPHOOK;
    demande.lpfnSetupHook = PoseTitre;
    demande.lCustData = reinterpret_cast<LPARAM>(titre.utf16());
    const bool choisi = PrintDlgW(&demande) != FALSE;
    m_noms = demande.hDevNames; // it may have put others in their place
    m_reglages = demande.hDevMode;
    if (choisi)
        Applique();
    return choisi;
}

void ReglageImprimanteWindows::Applique() const
{
    const Bloc<DEVNAMES> noms(m_noms);
    const Bloc<DEVMODEW> reglages(m_reglages);
    m_imprimante.setPrinterName(
        QString::fromWCharArray(reinterpret_cast<const wchar_t *>(noms.Contenu()) + noms->wDeviceOffset));
    m_imprimante.setPageSize(PapierDe(*reglages.Contenu()));
    m_imprimante.setPageOrientation(reglages->dmOrientation == DMORIENT_LANDSCAPE ? QPageLayout::Landscape
                                                                                  : QPageLayout::Portrait);
    if ((reglages->dmFields & DM_DEFAULTSOURCE) != 0)
        m_imprimante.setPaperSource(static_cast<QPrinter::PaperSource>(reglages->dmDefaultSource));
    if ((reglages->dmFields & DM_COLOR) != 0)
        m_imprimante.setColorMode(reglages->dmColor == DMCOLOR_COLOR ? QPrinter::Color : QPrinter::GrayScale);
    if ((reglages->dmFields & DM_DUPLEX) != 0)
        m_imprimante.setDuplex(reglages->dmDuplex == DMDUP_SIMPLEX    ? QPrinter::DuplexNone
                               : reglages->dmDuplex == DMDUP_VERTICAL ? QPrinter::DuplexLongSide
                                                                      : QPrinter::DuplexShortSide);
}
