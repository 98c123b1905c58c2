#include "platform/controles/Repetition.h"

#include <QAbstractNativeEventFilter>
#include <QCoreApplication>
#include <QKeyEvent>

#include <windows.h>

namespace {

constexpr LPARAM DejaEnfoncee = 1 << 30; // of a key message: the key was down before

/// Whether the key message under way comes from a key held down.
bool Repetee = false;

class Guet : public QAbstractNativeEventFilter
{
public:
    bool nativeEventFilter(const QByteArray & /*genre*/, void *message, qintptr * /*reponse*/) override
    {
        const MSG &recu = *static_cast<const MSG *>(message);
        if (recu.message == WM_KEYDOWN || recu.message == WM_SYSKEYDOWN)
            Repetee = recu.lParam & DejaEnfoncee;
        return false;
    }
};

} // namespace

void GuetteRepetitions()
{
    static Guet guet;
    QCoreApplication::instance()->installNativeEventFilter(&guet);
}

/// An event without a scan code comes from no key, and knows by itself what it is.
bool EstRepetition(const QKeyEvent &touche)
{
    return touche.nativeScanCode() == 0 ? touche.isAutoRepeat() : Repetee;
}
