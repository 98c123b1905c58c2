#include "platform/dialogues/windows/ModaleWindows.h"

ModaleWindows::ModaleWindows(QWidget *fenetre)
    : m_ombre(fenetre)
    , m_proprietaire(fenetre == nullptr ? nullptr : reinterpret_cast<HWND>(fenetre->window()->winId()))
{
    m_ombre.setAttribute(Qt::WA_DontShowOnScreen);
    m_ombre.setModal(true);
    m_ombre.show();
}
