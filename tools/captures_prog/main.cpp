#include "captures_prog/Defauts.h"
#include "captures_prog/Vues.h"
#include "donnees/Chemins.h"
#include "locale/Langue.h"
#include "platform/controles/StyleContraste.h"
#include "platform/serie/MSComm.h"
#include "programme/Demarrage.h"
#include "programme/Menus.h"
#include "shell/FrmPrinc.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QFile>
#include <QFontMetrics>
#include <QMenu>
#include <QPainter>
#include <QStyle>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

namespace {

constexpr char Usage[] =
    "captures_prog APPLICATION OUTPUT LANGUAGE [dark|manual]\n"
    "Writes a PNG of every window into OUTPUT. APPLICATION: application folder with the samples;\n"
    "LANGUAGE: 0 French, 1 English, 2 Spanish; manual: pictures as wide as a page of the manual at\n"
    "most. Needs no display (QT_QPA_PLATFORM=offscreen).\n";

QPalette Sombre()
{
    const QColor fond(45, 47, 51);
    QPalette palette(QColor(62, 65, 70), fond);
    palette.setColor(QPalette::Base, QColor(32, 33, 36));
    palette.setColor(QPalette::AlternateBase, fond);
    palette.setColor(QPalette::Highlight, QColor(42, 110, 180));
    palette.setColor(QPalette::Link, QColor(120, 180, 255));
    return palette;
}

/// Makes the pictures the same on every PC: one style, one font, no blinking cursor.
void FixeApparence(bool sombre)
{
    QApplication::setStyle(new StyleContraste(QStringLiteral("Fusion")));
    QApplication::setPalette(sombre ? Sombre() : QApplication::style()->standardPalette());
    QApplication::setFont(QFont(QStringLiteral("DejaVu Sans"), 9));
    QApplication::setCursorFlashTime(0);
}

void EcritReglages(const QString &application, const QByteArray &langue)
{
    QFile ini(application + QStringLiteral("/Dorvanel.ini"));
    if (!ini.open(QIODevice::WriteOnly))
        qFatal("%s cannot be written", qPrintable(ini.fileName()));
    ini.write(" 0 \r\n\"\"\r\n 0 \r\n\"\"\r\n 0 \r\n\r\n " + langue + " \r\n");
}

/// The picture of a window below a drawn title bar, since its title belongs to the picture.
QPixmap Photographie(QWidget &fenetre)
{
    constexpr int hauteurTitre = 28;
    constexpr int marge = 10;
    const QPixmap contenu = fenetre.grab();
    const QSize taille = contenu.deviceIndependentSize().toSize() + QSize(2, hauteurTitre + 1);
    QPixmap image(taille * contenu.devicePixelRatio());
    image.setDevicePixelRatio(contenu.devicePixelRatio());
    image.fill(QColor(70, 90, 115));
    QPainter peintre(&image);
    peintre.setPen(Qt::white);
    peintre.setFont(QApplication::font());
    const QRect titre(marge, 0, taille.width() - 2 * marge, hauteurTitre);
    peintre.drawText(titre, Qt::AlignVCenter | Qt::AlignLeft,
                     peintre.fontMetrics().elidedText(fenetre.windowTitle(), Qt::ElideMiddle, titre.width()));
    peintre.drawPixmap(1, hauteurTitre, contenu);
    return image;
}

bool Ecrit(QPixmap image, const QString &dossier, const char *nom, int largeurMax)
{
    if (image.width() > largeurMax)
        image = image.scaledToWidth(largeurMax, Qt::SmoothTransformation);
    return image.save(QStringLiteral("%1/%2.png").arg(dossier, QLatin1String(nom)));
}

/// Opens the window of a view, saves its picture, prints its defects, and closes it again; the main window stays.
/// largeurMax: pixels; a wider picture is scaled down.
bool Prend(const Vue &vue, const QString &dossier, int largeurMax)
{
    QWidget *const fenetre = vue.ouvre();
    fenetre->show();
    // A reception would begin by itself and ask a question, which nobody answers here.
    QCoreApplication::removePostedEvents(fenetre, QEvent::MetaCall);
    QCoreApplication::processEvents();
    const bool menu = qobject_cast<QMenu *>(fenetre) != nullptr;
    const bool ecrit = Ecrit(menu ? fenetre->grab() : Photographie(*fenetre), dossier, vue.nom, largeurMax);
    for (const QString &defaut : menu ? QStringList() : Defauts(*fenetre))
        QTextStream(stderr) << vue.nom << ": " << defaut << '\n';
    if (menu)
        fenetre->hide();
    else if (fenetre != frmPrinc)
        delete fenetre;
    return ecrit;
}

/// Same for a box, which is answered after its picture is taken.
bool Prend(const VueModale &vue, const QString &dossier, int largeurMax)
{
    constexpr int posee = 100; // milliseconds until a file dialog has read its folder
    bool ecrit = false;
    QTimer::singleShot(posee, QCoreApplication::instance(), [&] {
        auto *const boite = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (boite == nullptr)
            return;
        ecrit = Ecrit(Photographie(*boite), dossier, vue.nom, largeurMax);
        boite->reject();
    });
    vue.demande();
    return ecrit;
}

bool PrendToutes(const QString &dossier, int largeurMax)
{
    const auto prend = [&](const auto &vue) {
        const bool pris = Prend(vue, dossier, largeurMax);
        if (!pris)
            QTextStream(stderr) << "no picture of " << vue.nom << '\n';
        return pris;
    };
    return std::all_of(Vues.begin(), Vues.end(), prend) && std::all_of(VuesModales.begin(), VuesModales.end(), prend);
}

} // namespace

int main(int nombre, char *arguments[])
{
    QApplication application(nombre, arguments);
    const QStringList options = QApplication::arguments();
    if (options.size() < 4 || options.size() > 5) {
        QTextStream(stderr) << Usage;
        return 2;
    }
    QApplication::setApplicationDisplayName(QString()); // as the program itself does
    constexpr int page = 600;                           // pixels; width of the help text beside its contents
    const int largeurMax = options.value(4) == QLatin1String("manual") ? page : QWIDGETSIZE_MAX;
    FixeApparence(options.value(4) == QLatin1String("dark"));
    FixeDossierApplication(options[1]);
    EcritReglages(options[1], options[3].toLatin1());
    QDir::setCurrent(options[1]);
    AppliqueLangueSysteme();

    FrmPrinc fenetre;
    fenetre.MSComm1->setDossierPorts(options[1] + QStringLiteral("/Ports"));
    Branche();
    Form_Load();
    ChargeExemples();
    return PrendToutes(options[2], largeurMax) ? 0 : 1;
}
