#include "platform/controles/FiltreTouches.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QLineEdit>
#include <QRegularExpressionValidator>
#include <QToolTip>

#include <algorithm>

namespace {

using Interdit = bool (*)(QChar caractere);

bool InterditDansNom(QChar caractere)
{
    return QStringView(u" \"².,;:ù*îïÎÏêëÊËôöÔÖûüÛÜâäÂÄ&?+'`^=\\/éèàç()~{[|`\\^]}°*+").contains(caractere);
}

bool PasChiffre(QChar caractere)
{
    return caractere < u'0' || caractere > u'9';
}

/// True for a key that gives a command: any key with Ctrl, even where the system attaches a character to it. With Ctrl
/// and Alt (AltGr) a key types a character.
bool EstCommande(const QKeyEvent &touche)
{
    return touche.modifiers().testFlag(Qt::ControlModifier) && !touche.modifiers().testFlag(Qt::AltModifier);
}

/// Drops forbidden characters that are typed, by a key or an input method.
class FiltreFrappe : public QObject
{
public:
    FiltreFrappe(Interdit interdit, QLineEdit *saisie)
        : QObject(saisie)
        , m_interdit(interdit)
    {
        saisie->installEventFilter(this);
    }

    bool eventFilter(QObject *, QEvent *evenement) override
    {
        if (evenement->type() == QEvent::InputMethod) {
            // The event passes even when no characters are left: it ends the composition shown in the box.
            auto &frappe = *static_cast<QInputMethodEvent *>(evenement);
            if (const QString reste = Trie(frappe.commitString()); reste != frappe.commitString())
                frappe.setCommitString(reste);
        }
        if (evenement->type() != QEvent::KeyPress)
            return false;
        const auto &touche = *static_cast<QKeyEvent *>(evenement);
        return !EstCommande(touche) && Trie(touche.text()) != touche.text();
    }

private:
    /// texte without its forbidden characters. Control characters stay, since their keys do not type.
    QString Trie(QString texte) const
    {
        return texte.removeIf([this](QChar c) { return m_interdit(c) && c.category() != QChar::Other_Control; });
    }

    Interdit m_interdit;
};

/// Replaces a single comma in a text without a point by a point.
class ValideNombre : public QRegularExpressionValidator
{
public:
    using QRegularExpressionValidator::QRegularExpressionValidator;

    State validate(QString &texte, int &curseur) const override
    {
        if (texte.count(u',') == 1 && !texte.contains(u'.'))
            texte.replace(u',', u'.');
        return QRegularExpressionValidator::validate(texte, curseur);
    }
};

/// Properties of a box. The first holds the notice to show as long as a comma was dropped and the text not corrected
/// since; the second is set once the operator has been told.
constexpr const char *VirguleJetee = "virguleJetee";
constexpr const char *VirguleDite = "virguleDite";

/// Drops a typed comma and shows a notice, since "0,4" would otherwise silently become "04". A comma of the keypad
/// counts as a point.
class RefusVirgule : public QObject
{
public:
    RefusVirgule(const QString &avis, QLineEdit *saisie)
        : QObject(saisie)
        , m_avis(avis)
        , m_saisie(saisie)
    {
        saisie->installEventFilter(this);
        connect(saisie, &QLineEdit::textChanged, this, &RefusVirgule::Suit);
    }

    bool eventFilter(QObject *, QEvent *evenement) override
    {
        if (evenement->type() != QEvent::KeyPress)
            return false;
        const auto &touche = *static_cast<QKeyEvent *>(evenement);
        if (touche.text() != QLatin1String(",") || touche.modifiers().testFlag(Qt::KeypadModifier))
            return false;
        MontreAvis(m_saisie, m_avis);
        if (m_saisie->text().contains(u'.'))
            return true; // the decimals have their point already
        m_saisie->setProperty(VirguleJetee, m_avis);
        m_saisie->setProperty(VirguleDite, false);
        m_devant = m_saisie->text().left(m_saisie->hasSelectedText() ? m_saisie->selectionStart()
                                                                     : m_saisie->cursorPosition());
        return true;
    }

private:
    /// Follows the corrections of the operator. The comma is made good by a point, or by changing the text before it.
    /// Further digits do so only after he was told.
    void Suit(const QString &texte)
    {
        if (m_saisie->property(VirguleDite).toBool() || !texte.startsWith(m_devant) ||
            texte.count(u'.') > m_devant.count(u'.'))
            m_saisie->setProperty(VirguleJetee, QVariant());
    }

    QString m_avis;
    QLineEdit *m_saisie;
    QString m_devant; ///< the text before the comma that was last dropped
};

/// Selects the whole text of a box on a click, unless the mouse has selected a part of it.
class SelectionAuClic : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        auto &saisie = *static_cast<QLineEdit *>(objet);
        if (evenement->type() == QEvent::MouseButtonRelease && !saisie.hasSelectedText())
            saisie.selectAll();
        return false;
    }
};

/// Removes characters that a file name must not contain.
class ValideNom : public QValidator
{
public:
    using QValidator::QValidator;

    State validate(QString &texte, int &curseur) const override
    {
        const auto sort = [](QChar c) { return InterditDansNom(c) || c.category() == QChar::Other_Control; };
        curseur -= static_cast<int>(std::count_if(texte.begin(), texte.begin() + curseur, sort));
        texte.removeIf(sort);
        return Acceptable;
    }
};

} // namespace

void FiltreNom(QLineEdit *saisie)
{
    new FiltreFrappe(InterditDansNom, saisie);
    saisie->setValidator(new ValideNom(saisie));
}

void FiltreChiffres(QLineEdit *saisie)
{
    new FiltreFrappe(PasChiffre, saisie);
}

void LimiteTouches(QLineEdit *saisie, const QString &motif)
{
    saisie->setValidator(new QRegularExpressionValidator(QRegularExpression(motif), saisie));
}

void LimiteNombre(QLineEdit *saisie, const QString &motif, const QString &avis)
{
    saisie->setValidator(new ValideNombre(QRegularExpression(motif), saisie));
    new RefusVirgule(avis, saisie);
}

QString RetientVirgule(const QWidget *fenetre)
{
    const auto saisies = fenetre->findChildren<QLineEdit *>();
    for (QLineEdit *const saisie : saisies) {
        QString avis = saisie->property(VirguleJetee).toString();
        if (avis.isEmpty() || !saisie->isVisibleTo(fenetre))
            continue;
        saisie->setProperty(VirguleDite, true);
        saisie->setFocus();
        saisie->selectAll();
        return avis;
    }
    return {};
}

void PoseNombre(QLineEdit *saisie, const QString &nombre)
{
    saisie->setText(nombre);
    saisie->setProperty(VirguleJetee, QVariant());
}

void MontreAvis(QLineEdit *saisie, const QString &avis)
{
    QApplication::beep();
    QToolTip::showText(saisie->mapToGlobal(QPoint(0, saisie->height() / 2)), avis, saisie);
}

void RetireAvis()
{
    QToolTip::hideText();
}

void SelectionneAuClic(QLineEdit *saisie)
{
    saisie->installEventFilter(new SelectionAuClic(saisie));
}

void MontreEnEntier(QLineEdit *saisie, const QString &texte)
{
    saisie->setMaxLength(std::max(saisie->maxLength(), static_cast<int>(texte.size())));
    saisie->setText(texte);
}
