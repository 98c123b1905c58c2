#include "platform/base/Erreur.h"
#include "platform/dialogues/DialoguesSysteme.h"
#include "platform/dialogues/windows/ModaleWindows.h"
#include "platform/dialogues/windows/ReglageImprimanteWindows.h"

#include <QFileDialog>
#include <QFontInfo>
#include <QPrintDialog>
#include <QPrinter>
#include <QPrinterInfo>

#include <commdlg.h>

namespace {

constexpr int PointsParPouce = 72;

int PixelsParPouce()
{
    const HDC ecran = GetDC(nullptr);
    const int pixels = GetDeviceCaps(ecran, LOGPIXELSY);
    ReleaseDC(nullptr, ecran);
    return pixels;
}

/// police as Windows names it.
LOGFONTW Nommee(const QFont &police)
{
    LOGFONTW nommee = {};
    nommee.lfHeight = -qRound(police.pointSizeF() * PixelsParPouce() / PointsParPouce); // negative: without the leading
    nommee.lfWeight = police.bold() ? FW_BOLD : FW_NORMAL;
    nommee.lfItalic = police.italic() ? TRUE : FALSE;
    nommee.lfUnderline = police.underline() ? TRUE : FALSE;
    nommee.lfStrikeOut = police.strikeOut() ? TRUE : FALSE;
    nommee.lfCharSet = DEFAULT_CHARSET;
    QFontInfo(police).family().left(LF_FACESIZE - 1).toWCharArray(nommee.lfFaceName);
    return nommee;
}

QFont PoliceDe(const LOGFONTW &nommee, double taille)
{
    QFont police(QString::fromWCharArray(nommee.lfFaceName));
    police.setPointSizeF(taille);
    police.setBold(nommee.lfWeight >= FW_SEMIBOLD);
    police.setItalic(nommee.lfItalic != FALSE);
    police.setUnderline(nommee.lfUnderline != FALSE);
    police.setStrikeOut(nommee.lfStrikeOut != FALSE);
    return police;
}

/// Without any printer the toolkit's object takes itself for a PDF file. It becomes the ordinary printer as soon as one
/// is there.
void ExigeImprimante(QPrinter &imprimante)
{
    const QStringList noms = QPrinterInfo::availablePrinterNames();
    if (noms.isEmpty())
        throw Erreur(Erreur::SansImprimante, QString());
    if (noms.contains(imprimante.printerName()))
        return;
    const QString ordinaire = QPrinterInfo::defaultPrinterName();
    imprimante.setPrinterName(ordinaire.isEmpty() ? noms.constFirst() : ordinaire);
}

} // namespace

bool FichiersDuSysteme()
{
    return !qEnvironmentVariableIsSet("DIALOGUES_QT");
}

bool DemandeFichiers(QFileDialog &dialogue)
{
    dialogue.setObjectName(QStringLiteral("CommonDialog"));
    return dialogue.exec() == QDialog::Accepted;
}

std::optional<ChoixPolice> DemandePolice(QWidget *fenetre, const QFont &police, const QColor &couleur)
{
    constexpr double dixiemes = 10;
    const ModaleWindows modale(fenetre);
    LOGFONTW nommee = Nommee(police);
    const QFont offerte = PoliceDe(nommee, qRound(police.pointSizeF()));
    CHOOSEFONTW choix = {};
    choix.lStructSize = sizeof choix;
    choix.hwndOwner = modale.Proprietaire();
    choix.lpLogFont = &nommee;
    choix.Flags = CF_SCREENFONTS | CF_EFFECTS | CF_INITTOLOGFONTSTRUCT | CF_NOVERTFONTS;
    choix.rgbColors = RGB(couleur.red(), couleur.green(), couleur.blue());
    if (ChooseFontW(&choix) == FALSE)
        return {};
    const COLORREF teinte = choix.rgbColors;
    return ChoixPolice{offerte, PoliceDe(nommee, choix.iPointSize / dixiemes),
                       QColor(GetRValue(teinte), GetGValue(teinte), GetBValue(teinte))};
}

bool DemandeImpression(QWidget *fenetre, QPrinter &imprimante, bool selection)
{
    ExigeImprimante(imprimante);
    QPrintDialog dialogue(&imprimante, fenetre); // that of Windows
    dialogue.setOptions({});
    dialogue.setOption(QAbstractPrintDialog::PrintSelection, selection);
    dialogue.setPrintRange(selection ? QAbstractPrintDialog::Selection : QAbstractPrintDialog::AllPages);
    return dialogue.exec() == QDialog::Accepted;
}

bool DemandeReglageImprimante(QWidget *fenetre, QPrinter &imprimante, const QString &titre)
{
    ExigeImprimante(imprimante);
    const ModaleWindows modale(fenetre);
    return ReglageImprimanteWindows(imprimante).Demande(modale.Proprietaire(), titre);
}
