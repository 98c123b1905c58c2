#include "captures_prog/Defauts.h"

#include <QAccessible>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>

namespace {

/// The visible controls of a window, without those that the toolkit makes inside them.
QList<QWidget *> Montres(const QWidget &fenetre)
{
    QList<QWidget *> montres = fenetre.findChildren<QWidget *>();
    montres.removeIf([&](const QWidget *w) {
        return !w->isVisible() || w->window() != &fenetre || w->objectName().isEmpty() ||
               w->objectName().startsWith(u"qt_");
    });
    return montres;
}

/// Controls that are too small for their text, outside their frame, or over another control.
QStringList Coupes(const QWidget &fenetre)
{
    QStringList coupes;
    const QList<QWidget *> montres = Montres(fenetre);
    for (const QWidget *const w : montres) {
        QSize besoin;
        if (const auto *const cadre = qobject_cast<const QGroupBox *>(w))
            besoin.setWidth(cadre->fontMetrics().horizontalAdvance(cadre->title()));
        else if (const auto *const bouton = qobject_cast<const QPushButton *>(w))
            besoin = bouton->fontMetrics().size(Qt::TextShowMnemonic, bouton->text());
        else if (w->hasHeightForWidth())
            besoin.setHeight(w->heightForWidth(w->width()));
        else if (w->inherits("QAbstractButton") || (w->inherits("QLabel") && !w->inherits("LabelElide")))
            besoin = w->sizeHint();
        const QWidget *const cadre = w->parentWidget();
        if (w->width() < besoin.width() || w->height() < besoin.height() || !cadre->rect().contains(w->geometry()))
            coupes << w->objectName() + QStringLiteral(" is cut");
        for (const QWidget *const autre : montres)
            if (autre < w && autre->parentWidget() == cadre && autre->geometry().intersects(w->geometry()))
                coupes << w->objectName() + QStringLiteral(" covers ") + autre->objectName();
    }
    return coupes;
}

/// Controls that share an Alt shortcut.
QStringList LettresDoubles(const QWidget &fenetre)
{
    QMap<QString, QStringList> lettres;
    const auto note = [&lettres](const QObject &controle) {
        const QVariant titre = controle.property("title");
        const QString texte = (titre.isValid() ? titre : controle.property("text")).toString();
        if (const QString lettre = QKeySequence::mnemonic(texte).toString(); !lettre.isEmpty())
            lettres[lettre] << controle.objectName();
    };
    for (const QWidget *const w : Montres(fenetre)) {
        const auto *const label = qobject_cast<const QLabel *>(w);
        if (label == nullptr || label->buddy() != nullptr)
            note(*w);
        for (const QAction *const menu : w->inherits("QMenuBar") ? w->actions() : QList<QAction *>())
            note(*menu->menu());
    }
    // The captions of these are fixed. With two buttons of the same letter, Alt moves between them and presses none.
    static const QStringList donnes{
        QStringLiteral("Alt+M Mnu_Com Mnu_Mesure"), QStringLiteral("Alt+C Command3 Command1"),
        QStringLiteral("Alt+C Command4 Command1"), QStringLiteral("Alt+C Command5 Command4")};
    QStringList doubles;
    for (auto lettre = lettres.cbegin(); lettre != lettres.cend(); ++lettre) {
        const QString ensemble = lettre.key() + u' ' + lettre->join(u' ');
        if (lettre->size() > 1 && !donnes.contains(ensemble))
            doubles << ensemble;
    }
    return doubles;
}

/// Steps of the Tab key that go backwards: upwards, except to the top of a column on the right, or to the left. Also
/// steps to an option that is not the selected one of its group, where an arrow key would select another one. Four
/// windows are left out: the dial follows its numbers, the chooser begins with its close button, the main window and
/// the help begin with their text.
QStringList Detours(const QWidget &fenetre)
{
    if (QStringList{QStringLiteral("JauTour"), QStringLiteral("FrmCaract"), QStringLiteral("frmPrinc"),
                    QStringLiteral("FrmAide")}
            .contains(fenetre.objectName()))
        return {};
    QStringList detours;
    const QWidget *avant = nullptr;
    for (const QWidget *w = fenetre.nextInFocusChain(); w != &fenetre; w = w->nextInFocusChain()) {
        if (!w->isVisible() || !w->isEnabled() || w->window() != &fenetre || (w->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        if (const auto *const option = qobject_cast<const QRadioButton *>(w); option != nullptr && !option->isChecked())
            detours << QStringLiteral("to %1, which is not chosen").arg(w->objectName());
        const QRect ici(w->mapTo(&fenetre, QPoint()), w->size());
        if (avant != nullptr) {
            const QRect la(avant->mapTo(&fenetre, QPoint()), avant->size());
            const bool monte = ici.bottom() < la.top() && ici.left() < la.right();
            const bool recule = ici.right() < la.left() && ici.bottom() >= la.top() && ici.top() <= la.bottom();
            if (monte || recule)
                detours << QStringLiteral("after %1 comes %2").arg(avant->objectName(), w->objectName());
        }
        avant = w;
    }
    return detours;
}

/// Controls that take the keyboard and have no name or no role for an assistive program. The tabs of a tab bar are
/// announced one by one.
QStringList Muets(const QWidget &fenetre)
{
    QStringList muets;
    for (QWidget *const w : Montres(fenetre)) {
        if (w->focusPolicy() == Qt::NoFocus || w->inherits("QTabWidget"))
            continue;
        const QAccessibleInterface *const entendu = QAccessible::queryAccessibleInterface(w);
        if (entendu == nullptr || entendu->text(QAccessible::Name).trimmed().isEmpty())
            muets << w->objectName() + QStringLiteral(" has no name");
        else if (entendu->role() == QAccessible::NoRole || entendu->role() == QAccessible::Client)
            muets << w->objectName() + QStringLiteral(" has no role");
    }
    return muets;
}

} // namespace

QStringList Defauts(const QWidget &fenetre)
{
    return Coupes(fenetre) + LettresDoubles(fenetre) + Detours(fenetre) + Muets(fenetre);
}
