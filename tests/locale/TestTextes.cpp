#include "Donnees.h"
#include "Etabli.h"

#include "captures_prog/Defauts.h"
#include "captures_prog/Vues.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/Prop.h"
#include "donnees/Jauge.h"
#include "donnees/Transfert.h"
#include "gauges/ConfMac.h"
#include "gauges/JauTour.h"
#include "locale/Langue.h"
#include "locale/Legendes.h"
#include "shell/Apropos.h"
#include "shell/FrmLangue.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"

#include <QMenu>
#include <QPushButton>

#include <memory>

namespace {

/// The columns of the list of captions. Where: "titre" for what a control bears, "bulle" for its tool tip, "nom" for
/// its accessible name.
enum Colonne { Fenetre, Controle, Endroit, Francais };

/// Every window with captions but the main one, as it is made, on the same parent.
void OuvreTout(QWidget *parent)
{
    frmPrinc->CreeExplorateur();
    Transfert.TypeTransfert = ModeTransfert{}; // no mode: each transfer writes its own words over the captions
    Jauges.NbJauges = 1;
    new Apropos(parent);
    new ConfMac(parent);
    new DosProg(DossierProgrammes, parent);
    new Em_Rc(parent);
    new FrmCaract(ChaineLigne, QString(), parent);
    new FrmLangue(parent);
    new FrmConfDem(parent);
    new JauTour(parent);
    new Rc_Fic(parent);
    new Prop(parent);
}

QString Montre(const QWidget &fenetre, const QString &controle, const QString &endroit)
{
    const QObject *objet = &fenetre;
    if (!controle.isEmpty())
        objet = fenetre.findChild<QAction *>(controle);
    if (objet == nullptr)
        objet = fenetre.findChild<QWidget *>(controle);
    if (objet == nullptr)
        return u"no such control"_s;
    if (endroit == u"bulle")
        return objet->property("toolTip").toString();
    if (endroit == u"nom")
        return objet->property("accessibleName").toString();
    for (const char *const propriete : {"title", "text", "windowTitle"})
        if (objet->metaObject()->indexOfProperty(propriete) >= 0)
            return objet->property(propriete).toString();
    return u"no caption"_s;
}

/// What a window bears and the list does not know. Data and what the toolkit makes inside a control are no captions; an
/// entry of a menu has its tool tip, and a button with a picture its name, from the caption that it bears already.
QStringList Inconnus(const QWidget &fenetre, const QList<QStringList> &liste)
{
    QStringList inconnus;
    QObjectList controles = fenetre.findChildren<QObject *>();
    controles.prepend(const_cast<QWidget *>(&fenetre));
    for (const QObject *const controle : std::as_const(controles)) {
        const QString nom = controle == &fenetre ? QString() : controle->objectName();
        static const QRegularExpression autres(u"^(qt_|_q_|Car_|Scroll)"_s);
        const bool entree = qobject_cast<const QAction *>(controle) != nullptr;
        const bool barre = nom.startsWith(u"Toolbar1_"); // its text is for whoever hears it: that of the tool tip
        if ((!controle->isWidgetType() && !entree) || (nom.isEmpty() && controle != &fenetre) || nom.contains(autres) ||
            controle->property("donnee").toBool())
            continue;
        QSet<QString> dits;
        for (const QString &endroit : {u"titre"_s, u"bulle"_s, u"nom"_s}) {
            const bool ailleurs = endroit == u"titre" ? barre || controle->inherits("QLineEdit")
                                                      : endroit == u"bulle" && entree && !barre;
            const QString dit = Montre(fenetre, nom, endroit);
            const QStringList cle{fenetre.objectName(), nom, endroit};
            static const QRegularExpression mot(
                u"^[^0-9/@\\\\]*[a-zA-Z]{2}[^0-9/@\\\\]*$"_s); // a path, a number is data
            if (!ailleurs && !dits.contains(dit) && dit != u"no caption" && dit.contains(mot) &&
                std::none_of(liste.begin(), liste.end(), [&](const auto &ligne) { return ligne.first(3) == cle; }))
                inconnus << (cle + QStringList{dit}).join(u'\t');
            dits << dit;
        }
    }
    return inconnus;
}

/// Tells all of them: a message of QVERIFY2 is cut after the first thousand characters.
bool Aucun(const QStringList &defauts)
{
    for (const QString &defaut : defauts)
        qWarning("%s", qPrintable(defaut));
    return defauts.isEmpty();
}

} // namespace

class TestTextes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Legendes_data()
    {
        QTest::addColumn<int>("langue");
        QTest::newRow("French") << 0;
        QTest::newRow("English") << 1;
        QTest::newRow("Spanish") << 2;
    }

    // Every caption and tool tip of every window against the list.
    void Legendes()
    {
        QFETCH(int, langue);
        const Poste poste(langue);
        QWidget parent;
        OuvreTout(&parent);
        QMap<QString, const QWidget *> fenetres{{u"frmPrinc"_s, frmPrinc}};
        for (const QWidget *const fenetre : parent.findChildren<QWidget *>(QString(), Qt::FindDirectChildrenOnly))
            fenetres[fenetre->objectName()] = fenetre;

        for (const auto &[nom, fait] : {std::pair(u"Em_Rc"_s, u"Command5"_s), {u"Rc_Fic"_s, u"Command4"_s}}) {
            const auto *const voulu = fenetres[nom]->findChild<QPushButton *>(fait);
            for (const auto *const bouton : fenetres[nom]->findChildren<QPushButton *>()) // and it cancels nothing
                QVERIFY(!bouton->text().startsWith(u"&Cancel") || bouton->shortcut().isEmpty() ||
                        bouton->shortcut() != voulu->shortcut());
        }
        const QList<QStringList> liste = Table(u"legendes.tsv"_s);
        QStringList ecarts;
        for (const QWidget *const fenetre : std::as_const(fenetres))
            ecarts << Inconnus(*fenetre, liste);
        for (const QStringList &ligne : liste) {
            const QString montre = Montre(*fenetres[ligne[Fenetre]], ligne[Controle], ligne[Endroit]);
            if (montre != ligne[Francais + langue])
                ecarts << u"«%1», not "_s.arg(montre) + ligne.join(u' ');
        }
        QVERIFY(Aucun(ecarts));
    }

    // Every window with data in it, as the operator works with it, the main one as small as it gets: nothing is cut or
    // covered, no letter calls two controls, the tabulator goes as one reads, and whoever hears the window instead of
    // seeing it hears every control.
    void Fenetres_data() { Legendes_data(); }
    void Fenetres()
    {
        QFETCH(int, langue);
        const Poste poste(langue);
        QVERIFY(QDir(poste.Dossier()).mkpath(u"Conf"_s));
        QVERIFY(QDir(poste.Dossier()).mkpath(u"Programmes"_s));
        const QString exemple = u"Conf/Machine_simulee.par"_s;
        QVERIFY(QFile::copy(Donnees(u"../../resources/exemples/"_s + exemple), poste.Chemin(exemple)));
        for (const QString &manuel : {u"DORVANEL.HLP"_s, u"DORVANEL_EN.HLP"_s, u"DORVANEL_ES.HLP"_s})
            poste.Ecrit(manuel, "<p>G0</p>");
        QStringList defauts;
        for (const Vue &vue : Vues) {
            const std::unique_ptr<QWidget, void (*)(QWidget *)> fenetre(vue.ouvre(), [](QWidget *ouverte) {
                if (ouverte != frmPrinc && qobject_cast<QMenu *>(ouverte) == nullptr)
                    delete ouverte;
            });
            if (qobject_cast<QMenu *>(fenetre.get()) != nullptr)
                continue;
            fenetre->show();
            if (fenetre.get() == frmPrinc) {
                frmPrinc->resize(100, 100);
                QTRY_COMPARE(frmPrinc->size(), QSize(620, 547));
            }
            QCoreApplication::removePostedEvents(fenetre.get(), QEvent::MetaCall); // a reception that would ask
            QCoreApplication::processEvents();
            QVERIFY2(fenetre->width() <= 1280, vue.nom);
            QVERIFY2(fenetre->height() <= 760, vue.nom); // the screens of the shop
            for (const QString &defaut : Defauts(*fenetre))
                defauts << QLatin1String(vue.nom) + u": "_s + defaut;
        }
        QVERIFY(Aucun(defauts));
    }

    // The words on the buttons of all boxes and dialogs that are the toolkit's.
    void Dialogues_data() { Legendes_data(); }
    void Dialogues()
    {
        QFETCH(int, langue);
        const QString attendus[] = {
            u"Annuler,Choisir,Enregistrer,Imprimer,Non,OK,Options >>,Oui,Ouvrir,Sélectionner une couleur"_s,
            u"Cancel,Choose,No,OK,Open,Options >>,Print,Save,Select Color,Yes"_s,
            u"Abrir,Aceptar,Cancelar,Guardar,Imprimir,No,Opciones >>,Selecciona color,Seleccionar,Sí"_s};
        const Poste poste(langue);
        poste.Charge("G0");
        Operateur operateur;
        QStringList mots;
        for (const VueModale &vue : VuesModales) {
            operateur.Fait(QString::fromLatin1(vue.nom).section(u'_', 0, 0), [&mots](QWidget &fenetre) {
                for (const QPushButton *const bouton : fenetre.findChildren<QPushButton *>())
                    if (bouton->isVisible())
                        mots << bouton->text().remove(u'&');
                QMetaObject::invokeMethod(&fenetre, "reject");
            });
            vue.demande();
        }
        mots.removeDuplicates();
        mots.sort();
        QCOMPARE(mots.join(u','), attendus[langue]);
    }

    // A change of language writes over no data, and over no entry without a translation; a language that is none
    // changes nothing. A dialog that hangs on the main window keeps its own captions, though names of the controls are
    // alike.
    void Changement()
    {
        const Poste poste(0);
        poste.Charge("G0");
        const Em_Rc ouvert(frmPrinc);
        const auto montre = [&ouvert] {
            const FrmPrinc &f = *frmPrinc;
            return QStringList{f.windowTitle(),  f.Label2->text(),      f.Label4->text(),
                               f.Label6->text(), ouvert.Label1->text(), ouvert.Label4->text()};
        };
        const QStringList avant = montre();
        QMap<QAction *, QString> entrees;
        for (QAction *entree : frmPrinc->findChildren<QAction *>(QRegularExpression(u"^Mnu_(?!Lang_)"_s)))
            entrees[entree] = entree->text();
        QVERIFY(entrees.size() > 20);
        for (const int langue : {1, 2, 9, -1}) {
            const auto passe = Passe(QString::number(langue));
            LangIndex = langue;
            AppliqueLangue();
            QCOMPARE(montre(), avant);
            QCOMPARE(ouvert.Command1->text(), langue == 1 ? u"&Cancel"_s : u"&Cancelar"_s);
            for (auto entree = entrees.begin(); entree != entrees.end(); ++entree)
                QVERIFY2(entree.key()->text() != entree.value(), qPrintable(entree.value()));
        }
        QCOMPARE(frmPrinc->Label1->text(), u"Ficheros :"_s);
    }
};

QTEST_MAIN(TestTextes)
#include "TestTextes.moc"
