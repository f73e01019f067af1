// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Luettelo.h"

class clsSaastotoimenpiteet;

/// The tree of what measures concern: the nodes of the list, those of measures, with their present
/// names, on request. A row has its node's key.
Luettelosisalto Toimenpidepuu(const clsSaastotoimenpiteet& toimenpiteet, bool naytaToimenpiteet);
