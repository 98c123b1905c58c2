#include "platform/FiltreTouches.h"

#include <QLineEdit>
#include <QRegularExpressionValidator>

#include <algorithm>

FiltreTouches::FiltreTouches(const QString &interdits, QObject *parent)
    : QValidator(parent)
    , m_interdits(interdits)
{
}

QValidator::State FiltreTouches::validate(QString &texte, int &curseur) const
{
    const auto interdit = [this](QChar caractere) {
        return m_interdits.contains(caractere) || caractere.category() == QChar::Other_Control;
    };
    curseur -= static_cast<int>(std::count_if(texte.begin(), texte.begin() + curseur, interdit));
    texte.removeIf(interdit);
    return Acceptable;
}

void MontreEnEntier(QLineEdit *saisie, const QString &texte)
{
    saisie->setMaxLength(std::max(saisie->maxLength(), static_cast<int>(texte.size())));
    saisie->setText(texte);
}

void LimiteTouches(QLineEdit *saisie, const QString &motif)
{
    saisie->setValidator(new QRegularExpressionValidator(QRegularExpression(motif), saisie));
}
