#include "locale/Legendes.h"

#include "locale/Langue.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDialog>

namespace {

constexpr char Donnee[] = "donnee"; // property of a control that shows data

enum Endroit { Titre, Bulle };

struct Legende
{
    const char *fenetre;  ///< objectName of the window
    const char *controle; ///< objectName of the control, "" for the window itself
    Endroit endroit;      ///< what the control bears, or its tool tip
    const char16_t *anglais;
    const char16_t *espagnol;
};

// Every caption that changes with the language. French stands in the windows as they are made.
constexpr Legende Table[] = {
    {"frmPrinc", "", Titre, u"Dorvanel Pro version 1.7.0", u"Dorvanel Pro versión 1.7.0"},
    {"frmPrinc", "Mnu_Fichier", Titre, u"File", u"Ficheros"},
    {"frmPrinc", "Mnu_Nouveau", Titre, u"New", u"Nuevo"},
    {"frmPrinc", "Mnu_Ouvrir", Titre, u"Open Numerical Program", u"Abrir Numério Programa"},
    {"frmPrinc", "Mnu_EnregistrerSous", Titre, u"Save_As...", u"Registrar bajo..."},
    {"frmPrinc", "Mnu_Police", Titre, u"Police of display", u"Policía de visualización"},
    {"frmPrinc", "Mnu_EditProg", Titre, u"Edit the program", u"Publicar el programa"},
    {"frmPrinc", "Mnu_Imprim", Titre, u"Print...", u"Imprimir..."},
    {"frmPrinc", "Mnu_ConfigIMP", Titre, u"Print setup", u"Configurar la impresiôn"},
    {"frmPrinc", "Mnu_ConfigDemar", Titre, u"Configuration of starting up", u"Configuratiôn de comenzio"},
    {"frmPrinc", "Mnu_AffichDOS", Titre, u"Display the explorer of files", u"Explorador de ficheros"},
    {"frmPrinc", "Mnu_Quitter", Titre, u"Exit", u"Dejar"},
    {"frmPrinc", "Mnu_Edition", Titre, u"Edit", u"Edición"},
    {"frmPrinc", "Mnu_Annuler", Titre, u"Undo", u"Cancelar"},
    {"frmPrinc", "Mnu_Couper", Titre, u"Cut", u"Cortar"},
    {"frmPrinc", "Mnu_Copier", Titre, u"Copy", u"Copiar"},
    {"frmPrinc", "Mnu_Coller", Titre, u"Paste", u"Clavar"},
    {"frmPrinc", "Mnu_Supprimer", Titre, u"Remove", u"Suprimir"},
    {"frmPrinc", "Mnu_Com", Titre, u"Communication", u"Comunicación"},
    {"frmPrinc", "Mnu_ChargeConf", Titre, u"Select a configuration of communication",
     u"Seleccionar una configuración de comunicación"},
    {"frmPrinc", "Mnu_CreConf", Titre, u"Create a configuration of communication",
     u"Crear una configuración de comunicación"},
    {"frmPrinc", "Mnu_ModifConf", Titre, u"Modify a configuration of communication",
     u"Modificar una configuración de comunicación"},
    {"frmPrinc", "Mnu_FermePortCom", Titre, u"Close port of communication", u"Cerrar el puerto de comunicación"},
    {"frmPrinc", "Mnu_DosRecep", Titre, u"Directory of receiving / Editor CN",
     u"Expediente de recepción / Editor programa numérico"},
    {"frmPrinc", "Mnu_Transfert", Titre, u"Transfer", u"Transferencia"},
    {"frmPrinc", "Mnu_EmisFich", Titre, u"Sending a file", u"Emisión de un fichero"},
    {"frmPrinc", "Mnu_EmisProgCN", Titre, u"Program numerical control", u"Programa controla numérico"},
    {"frmPrinc", "Mnu_EmisJauge", Titre, u"Gauges tools", u"Cabidas instrumentos"},
    {"frmPrinc", "Mnu_Recep", Titre, u"Receiving a file", u"Recepción de un fichero"},
    {"frmPrinc", "Mnu_RecepProg", Titre, u"Program numerical control", u"Programa controla numérico"},
    {"frmPrinc", "Mnu_RecepJauge", Titre, u"Gauges tools", u"Cabidas instrumentos"},
    {"frmPrinc", "Mnu_Mesure", Titre, u"Measure", u"Medida"},
    {"frmPrinc", "Mnu_RecepBanc", Titre, u"Receiving bank of presetting", u"Recepción banco de reglaje previo"},
    {"frmPrinc", "Mn_CreeConfMac", Titre, u"Create a configuration hatches", u"Crear una configuración máquina"},
    {"frmPrinc", "Mn_ModifConfMac", Titre, u"Modify a configuration hatches", u"Modificar una configuración máquina"},
    {"frmPrinc", "Mnu_Aide", Titre, u"Help", u"Ayuda"},
    {"frmPrinc", "Mnu_Apropos", Titre, u"Author", u"A propósito"},
    {"frmPrinc", "Mnu_AideEnLigne", Titre, u"On line help...", u"Ayuda en línea..."},
    {"frmPrinc", "Mnu_Language", Titre, u"Language", u"Lengua"},
    {"frmPrinc", "Toolbar1_1", Bulle, u"Open Numerical Program", u"Abrir Numério Programa"},
    {"frmPrinc", "Toolbar1_2", Bulle, u"Save As...", u"Registrar bajo..."},
    {"frmPrinc", "Toolbar1_3", Bulle, u"Police of display", u"Policía de visualización"},
    {"frmPrinc", "Toolbar1_4", Bulle, u"Edit the program", u"Publicar el programa"},
    {"frmPrinc", "Toolbar1_5", Bulle, u"Print...", u"Imprimir..."},
    {"frmPrinc", "Toolbar1_6", Bulle, u"Exit", u"Dejar"},
    {"frmPrinc", "Toolbar1_8", Bulle, u"Select a configuration of communication",
     u"Seleccionar una configuración de comunicación"},
    {"frmPrinc", "Toolbar1_9", Bulle, u"Sending Program Numerical", u"Emisión Programa numérico"},
    {"frmPrinc", "Toolbar1_10", Bulle, u"Receiving Program Numerical", u"Recepción Programa numérico"},
    {"frmPrinc", "Toolbar1_11", Bulle, u"Sending Gauges tools", u"Emisión Cabidas instrumentos"},
    {"frmPrinc", "Toolbar1_12", Bulle, u"Receiving Gauges tools", u"Recepción Cabidas instrumentos"},
    {"frmPrinc", "Toolbar1_13", Bulle, u"Receiving bank of presetting", u"Recepción banco de reglaje previo"},
    {"frmPrinc", "Toolbar1_15", Bulle, u"Display the explorer of files", u"Explorador de ficheros"},
    {"frmPrinc", "Toolbar1_16", Bulle, u"Help", u"Ayuda"},
    {"frmPrinc", "Toolbar1_17", Bulle, u"Author", u"A propósito"},
    {"frmPrinc", "Frame1", Titre, u"File exploreur", u"Explorador de ficheros"},
    {"frmPrinc", "Label7", Titre, u"Filter selection :", u"Filtro de selección"},
    {"frmPrinc", "Label1", Titre, u"File :", u"Ficheros :"},
    {"frmPrinc", "Label3", Titre, u"Communication :", u"Comunicación :"},
    {"frmPrinc", "Label5", Titre, u"Comment :", u"Comentario :"},
    {"frmPrinc", "lblSend", Titre, u"Send", u"Envío"},
    {"frmPrinc", "lblReceive", Titre, u"Receive", u"Recepción"},
    {"frmPrinc", "lblPortOpen", Titre, u"Closed port", u"Puerto cerrado"},
    {"frmPrinc", "Label2", Titre, u"None", u"Ningún"},
    {"frmPrinc", "Label4", Titre, u"None", u"Ningún"},
    {"frmPrinc", "Label6", Titre, u"None", u"Ningún"},
    {"frmPrinc", "File1", Bulle, u"Double click to open a file", u"Doble chasquido para abrir un fichero"},
    {"frmPrinc", "Command1", Bulle, u"Create a directory", u"Crear un expediente"},
    {"frmPrinc", "Command2", Bulle, u"Remove the selected directory", u"Suprimir el expediente seleccionado"},
    {"frmPrinc", "Command4", Bulle, u"Rename the selected directory", u"Reelegir el expediente seleccionado"},
    {"frmPrinc", "Command3", Bulle, u"Close file explorer", u"Cerrar el explorador de ficheros"},
    {"frmPrinc", "CheckDOS", Titre,
     u"Apply the directory selected to the directory of receiving and opening of the programs",
     u"Aplicar el expediente seleccionado al expediente de recepción y apertura de los programas"},
    {"Em_Rc", "", Titre, u"Transfer", u"Transferencia"},
    {"Em_Rc", "Frame2", Titre, u"Configuration of selected communication ",
     u"Configuración de comunicación seleccionada"},
    {"Em_Rc", "Command3", Titre, u"Select another Configuration...", u"Seleccionar otra &Configuración..."},
    {"Em_Rc", "Command3", Bulle, u"Selection of another configuration of communication",
     u"Selección de otra configuración de comunicación"},
    {"Em_Rc", "Command7", Titre, u"Impose the end of receiving", u"Forzar el final de recepción"},
    {"Em_Rc", "Command7", Bulle, u"Force the end of receiving - Records the received lines",
     u"Fuerza el final de recepción - Registre las líneas recibidas"},
    {"Em_Rc", "Command1", Titre, u"&Cancel", u"&Cancelar"},
    {"Em_Rc", "Command1", Bulle, u"Cancel the transfer", u"Cancela la transferencia"},
    {"Em_Rc", "Command2", Titre, u"Sending...", u"Emisión..."},
    {"Em_Rc", "Command2", Bulle, u"Sending of the program", u"Emisión del programa"},
    {"Em_Rc", "Command4", Titre, u"&Cancel...", u"&Cancelar..."},
    {"Em_Rc", "Command5", Titre, u"&Following gauge...>", u"&Capacidad siguiente...>"},
    {"Em_Rc", "Command6", Titre, u"&End of receiving", u"&Terminar la transferencia"},
    {"Em_Rc", "Command4", Bulle, u"Cancel Sending of gauge", u"Cancela la transferencia"},
    {"Em_Rc", "Command5", Bulle, u"Receiving following gauge", u"Recepción de una nueva capacidad instrumentos"},
    {"Em_Rc", "Command6", Bulle, u"End of receiving gauge tool",
     u"Final de la transferencia de las Cabidas instrumentos"},
    {"Rc_Fic", "", Titre, u"Receiving of a file", u"Recepción de un fichero"},
    {"Rc_Fic", "Frame3", Titre, u"Name of the file to be received", u"Nombre del fichero que debe recibirse"},
    {"Rc_Fic", "Label1", Titre, u"File name :", u"Nombre del fichero :"},
    {"Rc_Fic", "Label2", Titre, u"Select the file extension :", u"Seleccionar la extensión del fichero :"},
    {"Rc_Fic", "Frame2", Titre, u"Directory of receiving", u"Expediente de recepción"},
    {"Rc_Fic", "Command3", Titre, u"Select another repertory...", u"Seleccionar otro directorio..."},
    {"Rc_Fic", "Command3", Bulle, u"Choice of another directory of receiving",
     u"Elección de otro directorio de recepción"},
    {"Rc_Fic", "Frame4", Titre, u"Configuration of communication", u"Configuración de comunicación"},
    {"Rc_Fic", "Command4", Titre, u"Select another Configuration...", u"Seleccionar otra &Configuración..."},
    {"Rc_Fic", "Command4", Bulle, u"Choice of another configuration of communication",
     u"Elección de otra configuración de comunicación"},
    {"Rc_Fic", "Frame1", Titre, u"Confirm the receiving of the file", u"Confirmar la recepción del fichero"},
    {"Rc_Fic", "Command1", Titre, u"&Cancel", u"&Cancelar"},
    {"Rc_Fic", "Command1", Bulle, u"Cancel the transfer", u"Cancela la transferencia"},
    {"Rc_Fic", "Command2", Titre, u"&Receive...", u"&Recibir..."},
    {"Rc_Fic", "Command2", Bulle, u"Confirmation of the receiving of a file",
     u"Confirmación de la recepción de un fichero"},
    {"Rc_Fic", "Frame5", Titre, u"Option end of line in receiving ", u"Opción fino de línea en recepción "},
    {"Rc_Fic", "Option1_0", Titre, u"No end of line", u"No hay final de línea"},
};

/// A text that is heard, or seen only when asked for.
struct Discret
{
    const char *fenetre;
    const char *controle;
    const char *propriete;
    const char16_t *anglais;
    const char16_t *espagnol;
};

constexpr Discret Discrets[] = {
    {"frmPrinc", "Toolbar1", "windowTitle", u"Toolbar", u"Barra de herramientas"},
    {"frmPrinc", "Text1", "accessibleName", u"NC program", u"Programa CN"},
    {"frmPrinc", "Text2", "accessibleName", u"Reception", u"Recepción"},
    {"frmPrinc", "FolderTreeview1", "accessibleName", u"Directories", u"Directorios"},
    {"frmPrinc", "File1", "accessibleName", u"Files", u"Ficheros"},
    {"frmPrinc", "Combo1", "toolTip", u"Filter of the files shown", u"Filtro de los ficheros mostrados"},
    {"Em_Rc", "Picture1", "accessibleName", u"Transfer", u"Transferencia"},
    {"Em_Rc", "Picture2", "accessibleName", u"Presetting bench", u"Banco de reglaje previo"},
    {"Em_Rc", "Progression", "accessibleName", u"Progress of the transfer", u"Avance de la transferencia"},
    {"Rc_Fic", "Picture1", "accessibleName", u"Transfer", u"Transferencia"},
};

/// The properties that hold what a control bears, by kind of control: window, frame or menu, label or entry.
void EcritTitre(QObject *controle, const QString &texte)
{
    auto *const fenetre = qobject_cast<QWidget *>(controle);
    if (fenetre != nullptr && fenetre->isWindow() && !controle->inherits("QMenu"))
        fenetre->setWindowTitle(texte);
    else
        controle->setProperty(controle->metaObject()->indexOfProperty("title") >= 0 ? "title" : "text", texte);
}

/// The control of that name in a window, "" for the window itself. A toolbar button bears the name of its action, which
/// is what holds its texts. An open dialog is a child of the main window and has names of the same kind; its controls
/// are its own.
QObject *Controle(QWidget *fenetre, QLatin1String nom)
{
    if (nom.isEmpty())
        return fenetre;
    if (auto *const action = fenetre->findChild<QAction *>(nom))
        return action;
    const auto candidats = fenetre->findChildren<QObject *>(nom);
    for (QObject *candidat : candidats) {
        const QObject *proprietaire = candidat;
        while (proprietaire != fenetre && qobject_cast<const QDialog *>(proprietaire) == nullptr)
            proprietaire = proprietaire->parent();
        if (proprietaire == fenetre)
            return candidat;
    }
    return nullptr;
}

/// Hands each line of a table that is meant for fenetre, with its control and its text in the language, to ecrit.
template <typename Lignes, typename Ecriture>
void Ecrit(const Lignes &table, QWidget *fenetre, Ecriture ecrit)
{
    for (const auto &ligne : table) {
        const QString texte = Texte({nullptr, ligne.anglais, ligne.espagnol});
        if (texte.isNull() || fenetre->objectName() != QLatin1String(ligne.fenetre))
            continue;
        if (QObject *const controle = Controle(fenetre, QLatin1String(ligne.controle)))
            ecrit(controle, ligne, texte);
    }
}

} // namespace

void AppliqueLangue()
{
    AppliqueLangueSysteme();
    const auto fenetres = QApplication::topLevelWidgets();
    for (QWidget *fenetre : fenetres)
        AppliqueLegendes(fenetre);
}

void AppliqueLegendes(QWidget *fenetre)
{
    Ecrit(Table, fenetre, [](QObject *controle, const Legende &legende, const QString &texte) {
        if (controle->property(Donnee).toBool())
            return;
        if (legende.endroit == Titre)
            EcritTitre(controle, texte);
        else
            PoseBulle(controle, texte);
    });
    Ecrit(Discrets, fenetre, [](QObject *controle, const Discret &discret, const QString &texte) {
        controle->setProperty(discret.propriete, texte);
    });
    QEvent changement(QEvent::LanguageChange);
    QCoreApplication::sendEvent(fenetre, &changement);
}

void PoseBulle(QObject *controle, const QString &texte)
{
    if (texte.isNull())
        return;
    controle->setProperty("toolTip", texte);
    auto *const bouton = qobject_cast<QAbstractButton *>(controle);
    if (auto *const action = qobject_cast<QAction *>(controle))
        action->setText(texte);
    else if (bouton != nullptr && bouton->text().isEmpty())
        bouton->setAccessibleName(texte);
}

void MontreDonnee(QWidget *controle, const QString &donnee)
{
    controle->setProperty(Donnee, true);
    EcritTitre(controle, donnee);
}

void PoseTexte(QWidget *controle, const Texte3 &texte, const QString &suite)
{
    const QString choisi = Texte(texte);
    if (!choisi.isNull())
        EcritTitre(controle, choisi + suite);
}
