#pragma once

class QAbstractButton;

/// Makes a double or triple click press bouton only once. Ordinary buttons count each click.
void UnClic(QAbstractButton *bouton);
