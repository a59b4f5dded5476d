#pragma once

#include <QByteArray>

/// A network file of four objects with 2,500 parameters each, of several types, half of them with values per pool. A
/// view cannot keep the rows of all of them.
QByteArray largeNetwork();
