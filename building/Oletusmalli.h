// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "building/modAlkuarvojaRakennukseen.h"

class clsRakennus;

/// What the first model of the building is made from.
TilanLahtotiedot OletusmallinLahtotiedot(const clsPerustiedot& tiedot);
/// The building's model is as it was made from its basic data: nobody has edited it, and it can be made anew without
/// losing anything. Identities and keys aside.
bool OnOletusmalli(clsRakennus& rakennus);
