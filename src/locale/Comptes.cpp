#include "locale/Comptes.h"

#include <QLocale>

namespace {

constexpr Texte3 TresCourt{u"moins de 0,1 s", u"less than 0.1 s", u"menos de 0,1 s"};

QLocale Ecriture()
{
    return LangIndex == 1 ? QLocale::English : LangIndex == 2 ? QLocale::Spanish : QLocale::French;
}

/// French alone counts zero as singular: "0 ligne".
bool EstSingulier(qint64 nombre)
{
    return nombre == 1 || (nombre == 0 && Ecriture().language() == QLocale::French);
}

QString DeuxChiffres(qint64 nombre)
{
    return QStringLiteral("%1").arg(nombre, 2, 10, QLatin1Char('0'));
}

} // namespace

QString NombreEnClair(qint64 nombre)
{
    return Ecriture().toString(nombre);
}

QString Compte(qint64 nombre, const Nom3 &nom)
{
    return NombreEnClair(nombre) + u' ' + Texte(EstSingulier(nombre) ? nom.un : nom.plusieurs);
}

QString DureeEnClair(std::chrono::milliseconds duree)
{
    using namespace std::chrono_literals;
    if (duree < 100ms)
        return Texte(TresCourt);
    if (duree < 1min)
        return Ecriture().toString(static_cast<double>(duree / 100ms) / 10, 'f', 1) + QStringLiteral(" s");
    if (duree < 1h)
        return QStringLiteral("%1 min %2 s").arg(duree / 1min).arg(DeuxChiffres(duree % 1min / 1s));
    return QStringLiteral("%1 h %2 min").arg(duree / 1h).arg(DeuxChiffres(duree % 1h / 1min));
}
