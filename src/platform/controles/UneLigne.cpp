#include "platform/controles/UneLigne.h"

#include <QApplication>
#include <QEvent>
#include <QLineEdit>
#include <QRegularExpression>
#include <QValidator>

#include <algorithm>

namespace {

/// A pair of CR and LF is one; so are the separators of lines and paragraphs that office programs write.
const QRegularExpression &FinDeLigne()
{
    static const QRegularExpression fin(QStringLiteral("\\R"));
    return fin;
}

/// Stands before the rule that a box has already, if it has one: the rule sees one line.
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
            saisie->setText(saisie->text()); // through the rule, which came behind it
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

/// Meets each box before it is first shown, those of the system's dialogs and of editable lists too.
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
