// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPageLayout>

struct Sivuasetukset;
class QWidget;

/// The page of the settings as the toolkit has it, and the other way round.
QPageLayout Sivuna(const Sivuasetukset& asetukset);
Sivuasetukset Asetuksina(const QPageLayout& sivu);

/// Shows the system's page set-up over the window. On OK the chosen page goes to the settings; Cancel leaves them.
void KysySivunAsetukset(QWidget& ikkuna);
