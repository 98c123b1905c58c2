#include "platform/dialogues/DialogueImprimante.h"

#include <QComboBox>
#include <QCoreApplication>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QPrinter>
#include <QPrinterInfo>
#include <QRadioButton>

namespace {

QString Mot(const char *contexte, const char *mot)
{
    return QCoreApplication::translate(contexte, mot);
}

/// The papers offered for a PDF file: those of an office's printers.
QList<QPageSize> PapiersPdf()
{
    return {QPageSize(QPageSize::A4), QPageSize(QPageSize::A3),     QPageSize(QPageSize::A5),
            QPageSize(QPageSize::B5), QPageSize(QPageSize::Letter), QPageSize(QPageSize::Legal)};
}

} // namespace

DialogueImprimante::DialogueImprimante(QPrinter &imprimante, QWidget *parent)
    : QDialog(parent)
    , m_imprimante(imprimante)
    , m_nom(new QComboBox)
    , m_papier(new QComboBox)
    , m_portrait(new QRadioButton(Mot("QPageSetupWidget", "Portrait")))
    , m_paysage(new QRadioButton(Mot("QPageSetupWidget", "Landscape")))
{
    m_nom->setObjectName(QStringLiteral("Imprimante"));
    m_papier->setObjectName(QStringLiteral("Papier"));
    m_portrait->setObjectName(QStringLiteral("Portrait"));
    m_paysage->setObjectName(QStringLiteral("Paysage"));
    auto *const boutons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    auto *const lignes = new QFormLayout(this);
    lignes->addRow(Mot("QPrintWidget", "&Name:"), m_nom);
    lignes->addRow(Mot("QPageSetupWidget", "Page size:"), m_papier);
    lignes->addRow(Mot("QPageSetupWidget", "Orientation"), m_portrait);
    lignes->addRow(QString(), m_paysage);
    lignes->addRow(boutons);
    lignes->setSizeConstraint(QLayout::SetFixedSize);

    DonneImprimantes();
    DonnePapiers();
    (imprimante.pageLayout().orientation() == QPageLayout::Landscape ? m_paysage : m_portrait)->setChecked(true);
    connect(m_nom, &QComboBox::currentIndexChanged, this, &DialogueImprimante::DonnePapiers);
    connect(boutons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(boutons, &QDialogButtonBox::rejected, this, &QDialog::reject);
}

void DialogueImprimante::DonneImprimantes()
{
    const QStringList noms = QPrinterInfo::availablePrinterNames();
    for (const QString &nom : noms)
        m_nom->addItem(nom, nom);
    m_nom->addItem(Mot("QPrintDialog", "Print to File (PDF)"), QString());
    const bool pdf = m_imprimante.outputFormat() == QPrinter::PdfFormat;
    m_nom->setCurrentIndex(m_nom->findData(pdf ? QString() : m_imprimante.printerName()));
}

/// Lists the papers of the chosen printer. The present paper stays chosen where that printer has it.
void DialogueImprimante::DonnePapiers()
{
    const QPrinterInfo choisie = QPrinterInfo::printerInfo(m_nom->currentData().toString());
    const QPageSize present = m_papier->count() == 0
                                  ? m_imprimante.pageLayout().pageSize()
                                  : QPageSize(m_papier->currentData().value<QPageSize::PageSizeId>());
    const QList<QPageSize> papiers = choisie.isNull() ? PapiersPdf() : choisie.supportedPageSizes();
    m_papier->clear();
    for (const QPageSize &papier : papiers)
        m_papier->addItem(papier.name(), QVariant::fromValue(papier.id()));
    int place = m_papier->findData(QVariant::fromValue(present.id()));
    if (place < 0 && !choisie.isNull())
        place = m_papier->findData(QVariant::fromValue(choisie.defaultPageSize().id()));
    m_papier->setCurrentIndex(qMax(place, 0));
}

void DialogueImprimante::Applique() const
{
    m_imprimante.setPrinterName(m_nom->currentData().toString());
    if (m_papier->count() > 0)
        m_imprimante.setPageSize(QPageSize(m_papier->currentData().value<QPageSize::PageSizeId>()));
    m_imprimante.setPageOrientation(m_paysage->isChecked() ? QPageLayout::Landscape : QPageLayout::Portrait);
}
