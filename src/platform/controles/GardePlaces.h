#pragma once

#include <initializer_list>

class QWidget;

/// Has controls that come and go keep their room while they are hidden, so that nothing moves under the mouse.
void GardePlaces(std::initializer_list<QWidget *> controles);
