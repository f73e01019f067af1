// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

class clsRakennekerros;

/// Opens the dialog of a layer, modal. True after OK; the layer is touched only then.
bool MuokkaaKerrosta(clsRakennekerros& kerros);
