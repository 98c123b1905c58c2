#pragma once

class QAbstractButton;

/// Has a double, triple or longer click press a button once. Other buttons count each click.
void UnClic(QAbstractButton *bouton);
