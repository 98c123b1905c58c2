#pragma once

#include <QString>

#include <array>

// What the numbers of a .par file mean. A file may hold any other number, so the fields are plain numbers; those of
// ControleFlux are the values of the enumeration ControleFlux.

/// Values of TypeFinTrans.
enum TypeFinTransfert { FinTransXoff = 0, FinTransEot = 1, FinTransAutre = 2 };

/// Values of TypeFinLig.
enum TypeFinLigne { FinLigLf = 0, FinLigCr = 1, FinLigLfCr = 2, FinLigCrLf = 3, FinLigAutre = 4 };

/// Values of TypeRecep.
enum TypeReception { RecepLignes = 0, RecepCaracteres = 1, RecepFichier = 2 };

/// Values of FinLigRecep.
enum TypeFinLigneRecue { FinRecueAucune = 0, FinRecueLf = 1, FinRecueCr = 2, FinRecueCrLf = 3 };

/// Values of TypeEnvoi; any number but EnvoiLignes counts as EnvoiFichier.
enum TypeEmission { EnvoiLignes = 0, EnvoiFichier = 1 };

/// How the program talks to one machine. The fields stand in the order in which a .par file holds them; Integer fields
/// are 16 bits there.
struct ConfigurationCom
{
    static constexpr int CapaciteChaine = 100;

    /// Character codes of a chain, code page 1252, first index 1. Places above the chain's count hold what was there.
    using Codes = std::array<int, CapaciteChaine + 1>;

    int NumPort = 0;           ///< serial port, 1 to 16; the number in NomPort
    QString NomPort;           ///< "Com1" to "Com16"
    QString Commentaire;       ///< free comment, shown beside the file name
    QString Vitesse;           ///< speed in bits per second, decimal
    QString Parite;            ///< "e", "o", "n", "m", "s"
    QString BitsDonnees;       ///< "4" to "8"
    QString BitsArret;         ///< "1", "1.5", "2"
    int Echo = 0;              ///< 1: the transfer dialog shows the data as they pass
    int ControleFlux = 0;      ///< handshake, see ControleFlux
    int TypeFinTrans = 0;      ///< end of transfer: XOFF, EOT or CarFinTrans, see TypeFinTransfert
    int TypeFinLig = 0;        ///< end of line: LF, CR, both or CarFinLig, see TypeFinLigne
    int NbCarLecture = 0;      ///< characters taken at each read, 0 (all that wait) to 9999
    QString CarRemplace;       ///< replaces a character with a parity error; at most one character
    int TailleTamponRecep = 0; ///< receive buffer, bytes, 0 to 9999
    int TailleTamponEmis = 0;  ///< transmit buffer, characters; also the block of a whole-file sending
    int SeuilRecep = 0;        ///< characters that raise a receive event; 0: none
    int SeuilEmis = 0;         ///< characters left in the transmit buffer that raise a send event; 0: none
    int FiltreNul = 0;         ///< 1: NUL characters received are dropped
    int LigneRTS = 0;          ///< 1: RTS on while the port is open
    int LigneDTR = 0;          ///< 1: DTR on while the port is open
    QString DosRecep;          ///< reception folder of CN programs; start-up first takes it from "Dorvanel.CFG"
    int TypeRecep = 0;         ///< reception: by line, by characters or by file, see TypeReception
    int TailleRecep = 0;       ///< fixed size of a bench measure, characters; 0: none
    QString LibDebProg;        ///< label of the beginning-of-program chain
    QString LibFinLig;         ///< label of the end-of-line chain
    QString LibFinTrans;       ///< label of the end-of-transfer chain
    int NbCarDebProg = 0;      ///< codes in CarDebProg, 0 to 100
    int NbCarFinLig = 0;       ///< codes in CarFinLig, 0 to 100
    int NbCarFinTrans = 0;     ///< codes in CarFinTrans, 0 to 100
    Codes CarDebProg{};        ///< beginning of program
    Codes CarFinLig{};         ///< end of line when TypeFinLig is FinLigAutre
    Codes CarFinTrans{};       ///< end of transfer when TypeFinTrans is FinTransAutre
    int FinLigRecep = 0;       ///< line end added to received lines, see TypeFinLigneRecue
    int TypeEnvoi = 0;         ///< sending: line by line or the whole file, see TypeEmission

    // Derived by BatirChaines(), never stored.
    QString ChaineFinTrans; ///< characters that end a transfer
    QString ChaineFinLig;   ///< characters that end a line

    bool operator==(const ConfigurationCom &) const = default;
};

/// The chains that the operator composes, in the order in which a file holds their codes.
enum TypeChaine {
    ChaineDebut = 0,    ///< beginning of program
    ChaineLigne = 1,    ///< end of line
    ChaineTransfert = 2 ///< end of transfer
};

/// The members of the record that make up a chain: its count, its codes, its label.
struct ChampsChaine
{
    int ConfigurationCom::*nombre;
    ConfigurationCom::Codes ConfigurationCom::*codes;
    QString ConfigurationCom::*libelle;
};

/// By TypeChaine.
inline constexpr ChampsChaine Chaines[] = {
    {&ConfigurationCom::NbCarDebProg, &ConfigurationCom::CarDebProg, &ConfigurationCom::LibDebProg},
    {&ConfigurationCom::NbCarFinLig, &ConfigurationCom::CarFinLig, &ConfigurationCom::LibFinLig},
    {&ConfigurationCom::NbCarFinTrans, &ConfigurationCom::CarFinTrans, &ConfigurationCom::LibFinTrans}};

/// The code at place (1 to CapaciteChaine) of a chain of ParamCom.
int &CodeDe(const ChampsChaine &chaine, int place);

extern ConfigurationCom ParamCom; ///< the one configuration in force

/// Where ParamCom comes from, and whether it is whole: a reading that fails in the middle leaves fields of two
/// configurations in it.
struct EtatConfiguration
{
    enum Fiche {
        Incomplete, ///< nothing has been read yet, or the last reading failed in the middle
        EnAttente,  ///< made or changed by the operator, and neither applied nor saved yet
        Entiere     ///< read or saved whole, or applied
    };
    Fiche fiche = Incomplete;
    bool neuve = false;     ///< made by the operator, and no file holds it yet
    bool malEcrite = false; ///< its last saving failed: no file holds it whole
    bool lue = false;       ///< a configuration has been read whole since the program started
    QString FicConf;        ///< full path of the .par file of ParamCom; "" when there is none
    QString NomConf;        ///< that file's name without its folder
};

extern EtatConfiguration EtatConf; ///< kept up to date by every routine that replaces ParamCom

/// Reads the .par file at chemin into ParamCom. Raises what LitFichierTexte and LecteurChamps raise, IndiceHorsPlage
/// for a chain count above 100, Depassement for a code outside 0 to 255. The fields before the failure then hold the
/// file's values and the others their former ones. The counts of the chains are held to 0 to 100 in any case.
void LireFichierPar(const QString &chemin);

/// Creates or replaces the .par file at chemin with ParamCom. A double quote in a text is written as an apostrophe,
/// since the format cannot hold one. A file that the disk cuts does not stay. Raises what EcritFichierTexte raises.
void EcrireFichierPar(const QString &chemin);

/// The characters that end a line of the machine, by a value of TypeFinLigne.
QString CaracteresFinLigne(TypeFinLigne type);

/// Rebuilds ChaineFinTrans and ChaineFinLig from the fields. A type outside its range leaves its string as it was.
void BatirChaines();

/// True when the flow control XON/XOFF would remove a character of the chosen end of transfer from what is received, so
/// that a reception would never see its end.
bool FinTransfertPerdue();

/// True when BatirChaines() would change nothing. It may be false after a reading or a saving, which do not rebuild
/// them.
bool ChainesAJour();

/// The characters of a chain as composed by the operator, also when TypeFinLig or TypeFinTrans does not use it.
QString CaracteresDe(TypeChaine type);
