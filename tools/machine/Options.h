#pragma once

#include "machine/MachineSimulee.h"

#include <QStringList>

#include <optional>
#include <stdexcept>

/// The options of the command line.
struct Options
{
    ReglageMachine Machine;
    QString Lien;      ///< empty: none
    QString Stockage;  ///< folder of the received programs; empty: they are only counted
    QString AEnvoyer;  ///< file that the machine sends on the operator's command; empty: none
    Envoi ModeleEnvoi; ///< how it sends; the text comes from the file
    QString Banc;      ///< list of the tools that the bench measures, see Banc.h; empty: no bench
    Envoi ModeleSalve; ///< how the bench sends; the text comes from the list
    int Cloche = 0;    ///< the bench rings (character 7) before this character of each burst, from 1; 0: never
};

/// Raised for an option with a wrong value.
class OptionFausse : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

/// Reads the command line, program name first; --help and unknown options end the process. Raises OptionFausse.
Options LitOptions(const QStringList &arguments);

/// The characters of "13,10": decimal codes from 0 to 255, separated by commas. Empty text: no character.
std::optional<QByteArray> LitCodes(const QString &texte);

/// The line of "9600,e,7,1": speed, parity (n, e, o, m, s), data bits 5 to 8, stop bits 1, 1.5 or 2.
std::optional<ReglageLigne> LitReglageLigne(const QString &texte);
