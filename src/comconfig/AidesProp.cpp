#include "comconfig/AidesProp.h"

#include "locale/Langue.h"
#include "platform/dialogues/Boites.h"
#include "ui_Prop.h"

namespace {

struct Aide
{
    QPushButton *Ui_Prop::*bouton;
    Texte3 titre;
    Texte3 texte; // each line of the source is a line of the box
};

constexpr Aide Aides[] = {
    {&Ui_Prop::Command6,
     {u"Information sur le réglage de la parité", u"Information on the adjustment of the parity",
      u"Información sobre el ajuste de la paridad"},
     {u"Information sur la parité\r\r"
      u"Even : Paire\r"
      u"Marque : Marque\r"
      u"None : Aucune (Valeur par défaut)\r"
      u"Odd : Impaire\r"
      u"Space : Espace",
      u"Information on the parity\r\r"
      u"Even : \r"
      u"Marque : \r"
      u"None : None (Default value)\r"
      u"Odd : \r"
      u"Space : ",
      u"Información sobre la paridad\r\r"
      u"Even : Paire\r"
      u"Marque : Marque\r"
      u"None : Ninguna (Valor por defecto)\r"
      u"Odd : Impar\r"
      u"Space : Espacio"}},
    {&Ui_Prop::Command23,
     {u"Option de fin de ligne en réception", u"Option of end of line in receiving",
      u"Opción de final de línea en recepción"},
     {u"Option <Fin de ligne en réception pour l'éditeur>\r\r"
      u"Lors de l'ouverture des fichiers CN dans un éditeur CN\r"
      u"sous Windows NT ou 2000 PRO, il est possible que les fins\r"
      u"de ligne < LF > soient perdues lors de l'enregistrement du fichier.\r"
      u"Cette option permet de rajouter un LF + CR à la fin de chaque\r"
      u"ligne reçue.\r"
      u"Choisir <LF + CR> lors de l'ouverture des programmes avec un éditeur\r"
      u"fonctionnant sous Windows NT ou 2000 PRO.\r"
      u"Choisir <Pas de fin de ligne> lors de l'ouverture des programmes avec un éditeur\r"
      u"fonctionnant sous Windows 95/98.",
      u"Option <End of line in receiving for the editor>\r\r"
      u"At the time of the opening of the files NC in an editor NC\r"
      u"under Windows NT or 2000 PRO, it is possible that the ends\r"
      u"of line are lost at the time of the recording of the file.\r"
      u"This option makes it possible to add LF + CR at the \r"
      u"end of each received line.\r"
      u"To choose at the time of the opening of the programs \r"
      u"with an editor functioning under Windows NT or 2000 PRO.\r"
      u"Choose at the time of the opening of the programs \r"
      u"with an editor functioning under Windows 95/98.",
      u"Opción <Final de línea en recepción para el editor>\r\r"
      u"En la apertura de los ficheros CN en un editor CN \r"
      u"bajo Windows NT o 2000 PRO, es posible que los finales\r"
      u"de línea estén perdidos en el registro del fichero.\r"
      u"Esta opción permite añadir el LF + CR al final de cada \r"
      u"línea recibida.\r"
      u"Elegir en la apertura programas con un editor que\r"
      u"funciona bajo Windows NT o 2000 PRO.\r"
      u"Elegir en la apertura programas con un editor que \r"
      u"funciona bajo Windows 95/98."}},
    {&Ui_Prop::Command7,
     {u"Nombre de caractères dans le tampon de réception", u"A number of characters in the plug of receiving",
      u"Muchos caracteres en el tampón de recepción"},
     {u"Définit le nombre de caractères lus dans le tampon de réception.\r"
      u"La valeur est 0 par défaut.(Affecter une valeur de 256 ou 512).\r\r"
      u"Si vous lui affectez la valeur 0, le contrôle de Communications\r"
      u"lit la totalité du contenu du tampon de réception.\r\r"
      u"Si vous lui affectez la valeur 1, les caractères sont reçus un\r"
      u"par un. Cette solution permet un transfert dans des conditions\r"
      u"difficiles (parasites) avec une vitesse de transmission lente.",
      u"The number of natures read in the plug of reception defines.\r"
      u"The value is 0 by défaut.(Affecter a value of 256 or 512).\r\r"
      u"If you affect value 0 to him, the control of Communications reads\r"
      u"the totality of the contents of the plug of receiving.\r\r"
      u"If you affect value 1 to him, the characters are received one by one.\r"
      u"This solution allows a transfer under difficult conditions (parasitic)\r"
      u"with a speed transmission slow.",
      u"Define el número de caracteres leídos en el tampón de recepción.\r"
      u"El valor es 0 por défaut.(Affe un valor de 256 o 512).\r\r"
      u"Si le afectan al valor 0, el control de Comunicaciones \r"
      u"lee la totalidad del contenido del tampón de recepción.\r\r"
      u"Si le afectan al valor 1, los caracteres son recibidos el por uno.\r"
      u"Esta solución permite una transferencia en condiciones difíciles \r"
      u"(parásitos) con una velocidad de transmisión lenta."}},
    {&Ui_Prop::Command9,
     {u"Caractère de remplacement", u"Wildcard character", u"Carácter de sustitución"},
     {u"Définit le caractère qui remplace un caractère non\r"
      u"valide dans le flux de données en cas d'erreur de parité.",
      u"The character defines which replaces a nonvalid \r"
      u"character in the data flow in the event of error of parity.",
      u"Define el carácter que sustituye a un carácter no válido \r"
      u"en el flujo de datos en caso de error de paridad."}},
    {&Ui_Prop::Command10,
     {u"Taille du tampon de réception", u"Size of the plug of receiving", u"Tamaño del tapón de recepción"},
     {u"Définit, en octets, la taille du tampon de réception.",
      u"Defines, in bytes, the size of the plug of receiving.",
      u"Define, en octetos, la talla del tapón de recepción.."}},
    {&Ui_Prop::Command11,
     {u"Taille du tampon de transmission", u"Size of the plug of sending", u"Tamaño del tampón de transmisión"},
     {u"Définit la taille (en caractères) du tampon de transmission.",
      u"Defines the size (in characters) of the plug of sending.",
      u"Define la talla (en carácteres) del tapón de transmisión."}},
    {&Ui_Prop::Command14,
     {u"Nombre de caractères reçus avant la gestion des erreurs",
      u"A number of natures received before the management of the errors",
      u"Muchos caracteres recibidos antes de la gestión de los errores"},
     {u"Définit le nombre de caractères devant être reçus avant que \r"
      u"le contrôle Communications génère la gestion des erreurs\r"
      u"sur le port de communication.\r\r"
      u"En affectant la valeur 0 (valeur par défaut) à ce paramètre,\r"
      u"vous désactivez l'exécution de de la gestion des erreurs\r"
      u"lorsque des caractères sont reçus.\r\r"
      u"En affectant la valeur 1 à ce paramètre, vous forcez le contrôle \r"
      u"de Communications à générer la gestion des erreurs chaque fois \r"
      u"qu'un caractère isolé est placé dans le tampon de réception.\r\r"
      u"Lors de la sélection du type de réception par fichiers, le nombre \r"
      u"doit être placé à 128 minimum jusqu'à 512 maximum.\r"
      u"Procédez à des essais.",
      u"The number of characters defines having to be received before \r"
      u"Communications control generates the management of the \r"
      u"errors on the wearing of communication\r\r"
      u"By assigning value 0 (default value) to this parameter,\r"
      u"you decontaminate the execution of management of the \r"
      u"errors when characters are received.\r\r"
      u"By assigning value 1 to this parameter, you force the control of  \r"
      u"Communications to generate the management of the errors each time \r"
      u"that an isolated character is placed in the plug of receiving.\r\r"
      u"At the time of the selection of the type of reception by files,\r"
      u"the number must be placed at 128 minimum up to 512 maximum.\r"
      u"Carry out tests.",
      u"Define el número de caracteres que deben ser recibido\r"
      u"antes de que el control Comunicaciones genere la gestión de\r"
      u"los errores sobre el puerto de comunicación.\r\r"
      u"Al destinar el valor 0 (valor por defecto) a este parámetro,\r"
      u"desactivan la ejecución de la gestión de los errores cuando\r"
      u"se reciben algunos caracteres.\r\r"
      u"Al destinar el valor 1 a este parámetro, fuerzan el control de \r"
      u"Comunicaciones a generar la gestión de los errores cada vez \r"
      u"que se coloca un carácter aislado en el tampón de recepción.\r\r"
      u"En la selección del tipo de recepción por ficheros, el \r"
      u"número debe colocarse a 128 mínimo hasta 512 máximo.\r"
      u"Proceda a pruebas."}},
    {&Ui_Prop::Command15,
     {u"Nombre de caractères autorisés dans le tampon de transmission",
      u"A number of natures authorized in the plug of sending",
      u"Muchos caracteres autorizados en el tampón de transmisión"},
     {u"Définit le nombre minimum de caractères autorisés dans le tampon de transmission \r"
      u"avant que le contrôle Communications génère la gestion des erreurs.\r\r"
      u"En affectant la valeur 0 (valeur par défaut) à ce paramètre, vous désactivez \r"
      u"le déclenchement de la gestion des erreurs pour les événements de transmission \r"
      u"de données. En lui affectant la valeur 1, vous obligez le contrôle Communications \r"
      u"à générer la gestion des erreurs lorsque le tampon de transmission est totalement vide.",
      u"The minimum number of natures authorized in the plug of transmission defines before \r"
      u"Communications control generates the management of the errors.\r\r"
      u"By assigning value 0 (default value) to this parameter, you decontaminate the\r"
      u"release of the management of the errors for the events of data sending. \r"
      u"By affecting value 1 to him, you oblige Communications control to generate\r"
      u"the management of the errors when the plug of sending is completely empty.",
      u"Define el número mínimo de caracteres autorizados en el tampón de transmisión \r"
      u"antes de que el control Comunicaciones genere la gestión de los errores.\r\r"
      u"Al destinar el valor 0 (valor por defecto) a este parámetro, desactivan el desencadenamiento\r"
      u"de la gestión de los errores para los acontecimientos de transmisión de datos.\r"
      u"Al afectarle al valor 1, obligan el control Comunicaciones a generar la gestión \r"
      u"de los errores cuando el tampón de transmisión es completamente vacío."}},
    {&Ui_Prop::Command8,
     {u"Filtrage des caractères Nuls", u"Filtering of the Idle characters", u"Filtrado de los caracteres Nulos"},
     {u"Détermine si les caractères nuls sont transférés du port vers le tampon de réception.",
      u"Determine if the idle characters are transferred from the port towards the plug of receiving.",
      u"Determine si los caracteres nulos se transfieren del puerto hacia el tampón de recepción."}},
    {&Ui_Prop::Command12,
     {u"Activation de la ligne Demande pour émettre", u"Activation of the line Requires to send",
      u"Activación de la línea Demanda para emitir"},
     {u"Détermine s'il convient d'activer la ligne Demande pour émettre (DPE).\r"
      u"En règle générale, le signal Demande pour émettre qui demande la permission\r"
      u"de transmettre des données est envoyé par un ordinateur au modem qui lui est attaché.\r\r"
      u"Si Oui, la ligne Demande pour émettre est active au moment de l'ouverture du port \r"
      u"et inactive lors de sa fermeture.",
      u"Determine if it is advisable to activate the Demande line to send (DPE).\r"
      u"In general, the Demande signal to emit which asks for the permission of transmit data\r"
      u"is sent by a computer to the modem which is attached to him.\r\r"
      u"If So, the line Requires to emit is active at the time of the opening of the port \r"
      u"and inactive at the time of its closing.",
      u"Determine si conviene activar la línea Demanda para emitir (DPE).\r"
      u"Por regla general, la señal Demanda para emitir que pide el permiso transmitir \r"
      u"datos es enviada por un ordenador al módem que se le liga.\r\r"
      u"En caso afirmativo, la línea Demanda para emitir es activa en el momento de\r"
      u"la apertura del puerto e inactiva en su cierre."}},
    {&Ui_Prop::Command13,
     {u"Activation de la ligne Terminal prêt", u"Activation of the line ready Terminal",
      u"Activación de la línea Terminal listo"},
     {u"Détermine s'il convient d'activer la ligne Terminal de données prêt \r"
      u"au cours de la communication. En règle générale, le signal Terminal \r"
      u"de données prêt est envoyé par un ordinateur à son modem pour lui indiquer\r"
      u"qu'il est prêt à accepter la transmission entrante.\r\r"
      u"Si Oui, la ligne Terminal de données prêt devient active lors de l'ouverture \r"
      u"du port et devient inactive au moment de la fermeture du port. En revanche, \r"
      u"Si Non, la ligne Terminal de données prêt demeure toujours inactive.\r\r"
      u"Remarque : En règle générale, désactiver la ligne Terminal de données prêt \r"
      u"revient à raccrocher le téléphone.",
      u"Determine if it is advisable to activate the line Data terminal \r"
      u"ready during the communication. In general, the Data terminal ready \r"
      u"signal is sent by a computer to its modem to indicate to \r"
      u"him that it is ready to accept the entering sending.\r\r"
      u"If So, the line Data terminal ready becomes active at the time of the opening \r"
      u"of the port and becomes inactive at the time of the closing of the port.\r"
      u"On the other hand, So Not, the line Data terminal ready remains always inactive.\r\r"
      u"Note: In general, to decontaminate the line Data terminal ready \r"
      u"come down to hang up again the telephone.",
      u"Determine si conviene activar la línea Terminal de datos listo durante la \r"
      u"comunicación. Por regla general, la señal Terminal de datos lista es \r"
      u"enviada por un ordenador a su módem para indicarle que está \r"
      u"dispuesto a aceptar la transmisión que entra.\r\r"
      u"En caso afirmativo, la línea Terminal de datos listo se vuelve activa en \r"
      u"la apertura del puerto y se vuelve inactiva en el momento del cierre del puerto. \r"
      u"En cambio, así no, la línea Terminal de datos listo sigue siendo inactiva.\r\r"
      u"Observación: Por regla general, desactivar la línea Terminal de datos \r"
      u"listo equivale a recuperar el teléfono."}},
    {&Ui_Prop::Command24,
     {u"Type d'envoi de fichiers", u"Type of sending of files", u"Tipo de envío de ficheros"},
     {u"Définit le type de mode transfert pour l'émission d'un programme.\r\r"
      u"MODE LIGNE PAR LIGNE:\r"
      u"Le mode ligne par ligne permet d'envoyer des fichiers ligne par ligne,\r"
      u"le nombre de lignes du programme est limité à 25000.\r"
      u"Cette option permet de paramétrer le caractère de fin de ligne.\r\r"
      u"MODE JUSQU'A FIN DE FICHIER:\r"
      u"Le mode jusqu'à fin de programme permet d'envoyer des programmes\r"
      u"de taille illimitée.\r"
      u"Le caractère de fin de ligne est celui défini dans le fichier.\r"
      u"Ce mode ne prend pas en compte le paramètrage de fin de ligne\r"
      u"déclaré dans la configuration. Ce mode fonctionne sur tous les CNC qui\r"
      u"autorisent les caractères de fin de ligne LF - CR+LF - LF+CR.",
      u"The type of transfer mode defines for the emission of a program.\r\r"
      u"LINE MODE BY LINE:\r"
      u"The line mode by line makes it possible to send files line by line,\r"
      u"the number of lines of the program is limited to 25000.\r"
      u"This option makes it possible to parameterize the character of end of line.\r\r"
      u"MODE UNTIL A FINE OF FILE:\r"
      u"The mode until end of program makes it possible to \r"
      u"send programs of unlimited size.\r"
      u"The character of end of line is that defined in the file.\r"
      u"This mode does not take into account the paramètrage of end of line \r"
      u"declared in the configuration. This mode functions on all the CNC which \r"
      u"authorize the characters of end of line LF - CR+LF - LF+CR.",
      u"Define el tipo de método transferencia para la emisión de un programa.\r\r"
      u"MÉTODO LINEA POR LÍNEA:\r"
      u"El método linea por línea permite enviar ficheros línea por línea,\r"
      u"se limita el número de líneas del programa a 25000.\r"
      u"Esta opción permite adaptar el carácter de final de línea.\r\r"
      u"MÉTODO HASTA FINAL DE FICHERO:\r"
      u"El método hasta final de programa permite enviar \r"
      u"programas de tamaño ilimitado.\r"
      u"El carácter de final de línea es el definido en el fichero.\r"
      u"Este método no tiene en cuenta la parametrización de final de línea declarada \r"
      u"en la configuración. Este método funciona sobre los todos CNC\r"
      u"que autorizan los caracteres de final de línea LF - CR+LF - LF+CR."}},
    {&Ui_Prop::Command25,
     {u"Type d'envoi de fichier", u"Type of sending of file", u"Tipo de envío de fichero"},
     {u"Définit le type de mode transfert pour la réception d'un programme.\r\r"
      u"MODE LIGNE PAR LIGNE:\r"
      u"Le mode ligne par ligne permet de recevoir des fichiers ligne par ligne,\r"
      u"le nombre de lignes du programme est limité à 25000.\r"
      u"Cette option permet de paramétrer le caractère de fin de ligne.\r\r"
      u"MODE PAR CARACTERES:\r"
      u"Le mode par carcatère par caractère est le mode à sélectionner\r"
      u"pour la réception des jauges outils à partir du banc de préréglage.\r\r"
      u"MODE PAR FICHIER:\r"
      u"Le mode par fichier permet de recevoir des programmes\r"
      u"de taille illimitée.\r"
      u"Le caractère de fin de ligne est celui défini par le calculatteur.\r"
      u"Ce mode ne prend pas en compte le paramètrage de fin de ligne\r"
      u"déclaré dans la configuration. Ce mode fonctionne sur tous les CNC qui\r"
      u"autorisent les caractères de fin de ligne LF - CR+LF - LF+CR.",
      u"The type of transfer mode defines for the receiving of a program.\r\r"
      u"LINE MODE BY LINE:\r"
      u"The line mode by line makes it possible to receive files line by line, \r"
      u"the number of lines of the program is limited to 25000.\r"
      u"This option makes it possible to parameterize the character of end of line.\r\r"
      u"MODE BY CHARACTERS:\r"
      u"The mode by carcatère by character is the mode to be selected for the\r"
      u"receiving of the gauges tools starting from the bench of presetting.\r\r"
      u"MODE BY FILE:\r"
      u"The mode by file makes it possible to receive programs of unlimited size.\r"
      u"The character of end of line is that defined by the calculattor.\r"
      u"This mode does not take into account the paramètrage of end of line \r"
      u"declared in the configuration. This mode functions on all the CNC \r"
      u"which authorize the characters of end of line LF - CR+LF - LF+CR.",
      u"Define el tipo de método transferencia para la recepción de un programa.\r\r"
      u"MÉTODO LINEA POR LÍNEA:\r"
      u"El método linea por línea permite recibir ficheros línea por línea, \r"
      u"se limita el número de líneas del programa a 25000.\r"
      u"Esta opción permite adaptar el carácter de final de línea.\r\r"
      u"MÉTODO POR CARACTERES:\r"
      u"El método por carcat por carácter es el método que debe seleccionarse para la  \r"
      u"recepción de las Cabidas instrumentos a partir del banco de reglaje previo.\r\r"
      u"MÉTODO POR FICHERO\r"
      u"El método por fichero permite recibir programas de tamaño ilimitado.\r"
      u"El carácter de final de línea es el definido por el calculatteur.\r"
      u"Este método no tiene en cuenta la parametrización de final de línea\r"
      u"declarada en la configuración. Este método funciona sobre los todos CNC \r"
      u"que autorizan los caracteres de final de línea LF - CR+LF - LF+CR."}},
    {&Ui_Prop::Command19,
     {u"Nombre de caractères fixe à recevoir dans le tampon de réception",
      u"A many characters fix to receive in the plug of receiving",
      u"Muchos caracteres fija a recibir en el tampón de recepción"},
     {u"Détermine un nombre fixé de caractères à recevoir dans le tampon de réception\r\r"
      u"Cette option n'est uniquement à utiliser qu'avec la liaison\r"
      u"Banc de préréglage EPB.\r\r"
      u"Vous devez affecter l'option < Oui > et fixer le nombre de caractères\r"
      u"à défaut sur 70 pour le Banc EPB TMA 310P.\r\r"
      u"Pour les configurations de communication en Emission / Réception de\r"
      u"programmes ou jauges outils, affectez l'option < Non >\r"
      u"et un nombre de caractères fixes égal à 0.",
      u"Determine a number fixed of characters to receive in the plug of receiving\r\r"
      u"This option is only to use only with the Banc connection of presetting EPB.\r\r"
      u"You must affect the option and fix the number of characters\r"
      u"failing this on 70 for Bench EPB TMA 310P.\r\r"
      u"For the configurations of communication in Sending /Receiving\r"
      u"of programs or gauges tools, affect the option <No>\r"
      u"and a number of fixed natures equal to 0.",
      u"Determina un número fijado de caracteres que deben recibirse en el tampón de recepción\r\r"
      u"Esta opción so'lo debe solamente utilizarse con la \r"
      u"conexión Banco de reglaje previo EPB.\r\r"
      u"Deben afectar a la opción y fijar el número de caracteres a defecto\r"
      u"sobre 70 para el Banco EPB TMA 310P.\r\r"
      u"Para las configuraciones de comunicación en Emisión/Recepción \r"
      u"de programas o Cabidas instrumentos, afectan a la \r"
      u"opción <No> y a un número de caracteres fijos igual a 0."}},
};

} // namespace

void BrancheAides(const Ui::Prop &dialogue)
{
    for (const Aide &aide : Aides)
        QObject::connect(dialogue.*aide.bouton, &QPushButton::clicked, dialogue.*aide.bouton,
                         [&aide] { MsgBox(Texte(aide.texte), Boite::Information, Texte(aide.titre)); });
}
