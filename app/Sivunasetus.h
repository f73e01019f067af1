// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPageLayout>

class QWidget;

/// An upright A4 page with margins of 20 mm.
QPageLayout Oletussivu();

/// Shows the system's page set-up over the window. On OK `sivu` becomes the chosen page; Cancel leaves it.
void KysySivunAsetukset(QWidget& ikkuna, QPageLayout& sivu);
