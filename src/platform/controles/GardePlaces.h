#pragma once

#include <initializer_list>

class QWidget;

/// Makes controls keep their place in the layout while they are hidden, so that nothing moves under the mouse.
void GardePlaces(std::initializer_list<QWidget *> controles);
