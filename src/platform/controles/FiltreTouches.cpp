#include "platform/controles/FiltreTouches.h"

#include "platform/controles/Clavier.h"

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

/// True for a key that gives a command. With Ctrl a key is one, whatever character some systems say it has; with Ctrl
/// and Alt it is a character again.
bool EstCommande(const QKeyEvent &touche)
{
    return touche.modifiers().testFlag(Qt::ControlModifier) && !touche.modifiers().testFlag(Qt::AltModifier);
}

/// Drops what is typed, by key or by an input method, and may not enter.
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
            // It goes through even without its characters: what was being composed has to go from the box.
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
    /// texte without what may not enter. A control character stays: the key that has one does something else than type.
    QString Trie(QString texte) const
    {
        return texte.removeIf([this](QChar c) { return m_interdit(c) && c.category() != QChar::Other_Control; });
    }

    Interdit m_interdit;
};

/// Takes a comma for the point where it can only have been meant as one.
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

/// Set at a box of which a comma was dropped that nobody has made good: why it was.
constexpr const char *VirguleJetee = "virguleJetee";

/// Drops a comma that is typed, and says so: "0,4" would become 4 unseen. The keypad's is its point, whatever character
/// the system gives it.
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
        m_saisie->setProperty(VirguleJetee, m_avis);
        m_devant = m_saisie->text().left(m_saisie->hasSelectedText() ? m_saisie->selectionStart()
                                                                     : m_saisie->cursorPosition());
        return true;
    }

private:
    /// A point, or another text in the place of the one before the comma, makes good for it; further digits do not.
    void Suit(const QString &texte)
    {
        if (!texte.startsWith(m_devant) || texte.count(u'.') > m_devant.count(u'.'))
            m_saisie->setProperty(VirguleJetee, QVariant());
    }

    QString m_avis;
    QLineEdit *m_saisie;
    QString m_devant; ///< what stood before the comma that was dropped last
};

/// Selects the whole of a box that is clicked, unless the mouse has selected a part of it.
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

/// Sorts out of a text what no name may hold.
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

bool RetientVirgule(QWidget *fenetre)
{
    const auto saisies = fenetre->findChildren<QLineEdit *>();
    for (QLineEdit *const saisie : saisies) {
        const QString avis = saisie->property(VirguleJetee).toString();
        if (avis.isEmpty())
            continue;
        saisie->setProperty(VirguleJetee, QVariant());
        saisie->setFocus();
        saisie->selectAll();
        MontreAvis(saisie, avis);
        RetientTouches(fenetre); // a second stroke on Enter has not seen it
        return true;
    }
    return false;
}

void MontreAvis(QLineEdit *saisie, const QString &avis)
{
    QApplication::beep();
    QToolTip::showText(saisie->mapToGlobal(QPoint(0, saisie->height() / 2)), avis, saisie);
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
