#include "platform/controles/UneLigne.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QValidator>

#include <algorithm>

namespace {

/// Matches a line end: CR LF as one, CR, LF, and the Unicode line and paragraph separators that office programs write.
const QRegularExpression &FinDeLigne()
{
    static const QRegularExpression fin(QStringLiteral("\\R"));
    return fin;
}

/// Removes line ends before the validator that the box already has, if any, sees the text.
class ValideLigne : public QValidator
{
public:
    explicit ValideLigne(QLineEdit *saisie)
        : QValidator(saisie)
        , m_saisie(saisie)
        , m_regle(saisie->validator())
    {
        saisie->setValidator(this);
        if (FinDeLigne().match(saisie->text()).hasMatch())
            saisie->setText(saisie->text()); // validates the text that was set before
    }

    State validate(QString &texte, int &curseur) const override
    {
        if (!FinDeLigne().match(texte).hasMatch())
            return Regle(texte, curseur);
        const QString place(m_saisie->maxLength() == 1 ? QString() : QStringLiteral(" "));
        curseur = static_cast<int>(texte.left(curseur).replace(FinDeLigne(), place).size());
        texte.replace(FinDeLigne(), place);
        const QString ligne = texte;
        if (const State etat = Regle(texte, curseur); etat != Invalid)
            return etat;
        texte = ligne.trimmed();
        curseur = std::min(curseur, static_cast<int>(texte.size()));
        return Regle(texte, curseur);
    }

    void fixup(QString &texte) const override
    {
        if (m_regle != nullptr)
            m_regle->fixup(texte);
    }

private:
    State Regle(QString &texte, int &curseur) const
    {
        return m_regle == nullptr ? Acceptable : m_regle->validate(texte, curseur);
    }

    const QLineEdit *m_saisie;
    const QValidator *m_regle;
};

/// Gives each text box its validator before it is first shown, including those of Qt's dialogs and editable lists.
class Rencontre : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject *objet, QEvent *evenement) override
    {
        auto *const saisie = evenement->type() == QEvent::Polish ? qobject_cast<QLineEdit *>(objet) : nullptr;
        if (saisie != nullptr)
            new ValideLigne(saisie);
        return false;
    }
};

} // namespace

QString SurUneLigne(QString texte)
{
    return texte.replace(FinDeLigne(), QStringLiteral(" "));
}

void TientUneLigne(QObject *proprietaire)
{
    qApp->installEventFilter(new Rencontre(proprietaire));
}
