#include "Operateur.h"
#include "Poste.h"

#include "captures_prog/Vues.h"
#include "comconfig/DosProg.h"
#include "comconfig/FrmCaract.h"
#include "comconfig/FrmConfDem.h"
#include "comconfig/Prop.h"
#include "gauges/ConfMac.h"
#include "gauges/Jauge.h"
#include "gauges/JauTour.h"
#include "locale/FrmLangue.h"
#include "shell/Apropos.h"
#include "shell/FrmPrinc.h"
#include "transfer/Em_Rc.h"
#include "transfer/Rc_Fic.h"
#include "transfer/Transfert.h"

#include <QAccessible>
#include <QAction>
#include <QGroupBox>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The list of captions: window, control, "titre" or "bulle", French, English, Spanish.
QList<QStringList> Liste()
{
    QFile fichier(QString::fromUtf16(DONNEES) + u"/legendes.tsv"_s);
    QList<QStringList> liste;
    if (fichier.open(QIODevice::ReadOnly))
        for (const QString &ligne : QString::fromUtf8(fichier.readAll()).split(u'\n', Qt::SkipEmptyParts))
            liste << ligne.split(u'\t');
    return liste;
}

using Ouvrage = std::map<QString, std::unique_ptr<QWidget>>;

/// Every window with captions but the main one, as it is made.
Ouvrage Ouvertes()
{
    frmPrinc->CreeExplorateur();
    TypeTransfert = ModeTransfert{}; // no mode: each transfer writes its own words over the captions
    NbJauges = 1;
    Ouvrage fenetres;
    fenetres[u"Apropos"_s] = std::make_unique<Apropos>(nullptr);
    fenetres[u"ConfMac"_s] = std::make_unique<ConfMac>(nullptr);
    fenetres[u"DosProg"_s] = std::make_unique<DosProg>(DossierProgrammes, nullptr);
    fenetres[u"Em_Rc"_s] = std::make_unique<Em_Rc>(nullptr);
    fenetres[u"FrmCaract"_s] = std::make_unique<FrmCaract>(ChaineLigne, QString(), nullptr);
    fenetres[u"FrmLangue"_s] = std::make_unique<FrmLangue>(nullptr);
    fenetres[u"FrmConfDem"_s] = std::make_unique<FrmConfDem>(nullptr);
    fenetres[u"JauTour"_s] = std::make_unique<JauTour>(nullptr);
    fenetres[u"Rc_Fic"_s] = std::make_unique<Rc_Fic>(nullptr);
    fenetres[u"Prop"_s] = std::make_unique<Prop>(nullptr);
    return fenetres;
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

/// The controls of a window's own that are on the screen, but for what the toolkit makes inside them.
QList<QWidget *> Montres(const QWidget &fenetre)
{
    QList<QWidget *> montres = fenetre.findChildren<QWidget *>();
    montres.removeIf([&](const QWidget *w) {
        return !w->isVisible() || w->window() != &fenetre || w->objectName().isEmpty() ||
               w->objectName().startsWith(u"qt_");
    });
    return montres;
}

/// Tells all of them: a message of QVERIFY2 is cut after the first thousand characters.
bool Aucun(const QStringList &defauts)
{
    for (const QString &defaut : defauts)
        qWarning("%s", qPrintable(defaut));
    return defauts.isEmpty();
}

/// Too small for its words, out of its frame, or over another control.
QStringList Coupes(const QWidget &fenetre)
{
    QStringList coupes;
    const QList<QWidget *> montres = Montres(fenetre);
    for (const QWidget *const w : montres) {
        QSize besoin;
        if (const auto *const cadre = qobject_cast<const QGroupBox *>(w))
            besoin.setWidth(cadre->fontMetrics().horizontalAdvance(cadre->title()));
        else if (const auto *const bouton = qobject_cast<const QPushButton *>(w))
            besoin = bouton->fontMetrics().size(Qt::TextShowMnemonic, bouton->text());
        else if (w->hasHeightForWidth())
            besoin.setHeight(w->heightForWidth(w->width()));
        else if (w->inherits("QAbstractButton") || (w->inherits("QLabel") && !w->inherits("LabelElide")))
            besoin = w->sizeHint();
        const QWidget *const cadre = w->parentWidget();
        if (w->width() < besoin.width() || w->height() < besoin.height() || !cadre->rect().contains(w->geometry()))
            coupes << w->objectName() + u" is cut"_s;
        for (const QWidget *const autre : montres)
            if (autre < w && autre->parentWidget() == cadre && autre->geometry().intersects(w->geometry()))
                coupes << w->objectName() + u" covers "_s + autre->objectName();
    }
    return coupes;
}

/// Controls that Alt and one letter call together.
QStringList LettresDoubles(const QWidget &fenetre)
{
    QMap<QString, QStringList> lettres;
    const auto note = [&lettres](const QString &texte, const QString &nom) {
        const QString lettre = QKeySequence::mnemonic(texte).toString();
        if (!lettre.isEmpty())
            lettres[lettre] << nom;
    };
    for (const QWidget *const w : Montres(fenetre)) {
        if (const auto *const cadre = qobject_cast<const QGroupBox *>(w))
            note(cadre->title(), w->objectName());
        else if (const auto *const bouton = qobject_cast<const QAbstractButton *>(w))
            note(bouton->text(), w->objectName());
        else if (const auto *const label = qobject_cast<const QLabel *>(w);
                 label != nullptr && label->buddy() != nullptr)
            note(label->text(), w->objectName());
        else if (const auto *const barre = qobject_cast<const QMenuBar *>(w))
            for (const QAction *const menu : barre->actions())
                note(menu->text(), menu->menu()->objectName());
    }
    // These captions are given. Of two buttons the letter presses none, it goes from one to the other.
    static const QStringList donnes{u"Alt+M Mnu_Com Mnu_Mesure"_s, u"Alt+C Command3 Command1"_s,
                                    u"Alt+C Command4 Command1"_s, u"Alt+C Command5 Command4"_s};
    QStringList doubles;
    for (auto lettre = lettres.cbegin(); lettre != lettres.cend(); ++lettre) {
        const QString ensemble = lettre.key() + u' ' + lettre->join(u' ');
        if (lettre->size() > 1 && !donnes.contains(ensemble))
            doubles << ensemble;
    }
    return doubles;
}

/// Steps of the tabulator that go back: upwards, but for the top of a column on the right, or to the left; and those to
/// an option that is not the chosen one of its group, from where an arrow would choose another. The dial goes by the
/// numbers on it; the chooser begins with what closes it, the main window and the help with their text.
QStringList Detours(const QWidget &fenetre)
{
    if (QStringList{u"JauTour"_s, u"FrmCaract"_s, u"frmPrinc"_s, u"FrmAide"_s}.contains(fenetre.objectName()))
        return {};
    QStringList detours;
    const QWidget *avant = nullptr;
    for (const QWidget *w = fenetre.nextInFocusChain(); w != &fenetre; w = w->nextInFocusChain()) {
        if (!w->isVisible() || !w->isEnabled() || w->window() != &fenetre || (w->focusPolicy() & Qt::TabFocus) == 0)
            continue;
        if (const auto *const option = qobject_cast<const QRadioButton *>(w); option != nullptr && !option->isChecked())
            detours << u"to %1, which is not chosen"_s.arg(w->objectName());
        const QRect ici(w->mapTo(&fenetre, QPoint()), w->size());
        if (avant != nullptr) {
            const QRect la(avant->mapTo(&fenetre, QPoint()), avant->size());
            const bool monte = ici.bottom() < la.top() && ici.left() < la.right();
            const bool recule = ici.right() < la.left() && ici.bottom() >= la.top() && ici.top() <= la.bottom();
            if (monte || recule)
                detours << u"after %1 comes %2"_s.arg(avant->objectName(), w->objectName());
        }
        avant = w;
    }
    return detours;
}

/// Controls that take the keyboard and have no name or no role for whoever hears them. Tabs are heard one by one.
QStringList Muets(const QWidget &fenetre)
{
    QStringList muets;
    for (QWidget *const w : Montres(fenetre)) {
        if (w->focusPolicy() == Qt::NoFocus || w->inherits("QTabWidget"))
            continue;
        const QAccessibleInterface *const entendu = QAccessible::queryAccessibleInterface(w);
        if (entendu == nullptr || entendu->text(QAccessible::Name).trimmed().isEmpty())
            muets << w->objectName() + u" has no name"_s;
        else if (entendu->role() == QAccessible::NoRole || entendu->role() == QAccessible::Client)
            muets << w->objectName() + u" has no role"_s;
    }
    return muets;
}

} // namespace

class TestTextes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void Legendes_data();
    void Legendes();
    void Fenetres_data() { Legendes_data(); }
    void Fenetres();
    void Dialogues_data() { Legendes_data(); }
    void Dialogues();
};

void TestTextes::Legendes_data()
{
    QTest::addColumn<int>("langue");
    QTest::newRow("French") << 0;
    QTest::newRow("English") << 1;
    QTest::newRow("Spanish") << 2;
}

// Every caption and tool tip of every window against the list.
void TestTextes::Legendes()
{
    QFETCH(int, langue);
    const Poste poste(langue);
    const Ouvrage fenetres = Ouvertes();
    const QList<QStringList> liste = Liste();
    QStringList ecarts = Inconnus(*frmPrinc, liste);
    for (const auto &fenetre : fenetres)
        ecarts << Inconnus(*fenetre.second, liste);
    for (const QStringList &ligne : liste) {
        const QWidget &fenetre = ligne[0] == u"frmPrinc" ? *frmPrinc : *fenetres.at(ligne[0]);
        const QString montre = Montre(fenetre, ligne[1], ligne[2]);
        if (montre != ligne[3 + langue])
            ecarts << u"%1 %2 %3: «%4», not «%5»"_s.arg(ligne[0], ligne[1], ligne[2], montre, ligne[3 + langue]);
    }
    QVERIFY(Aucun(ecarts));
}

// Every window with data in it, as the operator works with it: nothing is cut or covered, no letter calls two controls,
// the tabulator goes as one reads, and whoever hears the window instead of seeing it hears every control.
void TestTextes::Fenetres()
{
    QFETCH(int, langue);
    const Poste poste(langue);
    QVERIFY(QDir(poste.Dossier()).mkpath(u"Conf"_s) && QDir(poste.Dossier()).mkpath(u"Programmes"_s));
    const QString exemple = u"Conf/Machine_simulee.par"_s;
    QVERIFY(
        QFile::copy(QString::fromUtf16(DONNEES) + u"/../../resources/exemples/"_s + exemple, poste.Chemin(exemple)));
    for (const QString &manuel : {u"DORVANEL.HLP"_s, u"DORVANEL_EN.HLP"_s, u"DORVANEL_ES.HLP"_s})
        poste.Ecrit(manuel, "<p>G0</p>");
    QStringList defauts;
    for (const Vue &vue : Vues) {
        QWidget *const fenetre = vue.ouvre();
        if (qobject_cast<QMenu *>(fenetre) != nullptr)
            continue;
        fenetre->show();
        QCoreApplication::removePostedEvents(fenetre, QEvent::MetaCall); // a reception that would ask
        QCoreApplication::processEvents();
        for (const QString &defaut : Coupes(*fenetre) + LettresDoubles(*fenetre) + Detours(*fenetre) + Muets(*fenetre))
            defauts << QLatin1String(vue.nom) + u": "_s + defaut;
        if (fenetre != frmPrinc)
            delete fenetre;
    }
    QVERIFY(Aucun(defauts));
}

// The words on the buttons of all boxes and dialogs that are the toolkit's.
void TestTextes::Dialogues()
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

QTEST_MAIN(TestTextes)
#include "TestTextes.moc"
