// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjain.h"

class clsRakennus;

/// What a waterfall of the arranger shows, in the order of its choice list.
enum class Vesiputoussuure { Lampo, Sahko, Vesi, Kustannus };

/// The waterfall of a building's arranger as last computed: the base, each row's net effect in its order, and the
/// result, in MWh/a, m³/a or the shown currency a year with the VAT that amounts are shown with. Heat, electricity and
/// water begin and end with the package's gross figures; changes of tariffs have no row there. Costs begin with what
/// the base costs by its tariffs, from zero when they don't tell it, and sink by what the rows save. Without a computed
/// package an empty one.
Kaaviotiedot Vesiputous(const clsRakennus& rakennus, Vesiputoussuure suure);
