// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

/// What the person may do in a dialog of tariffs.
enum class Tariffitapa {
  Muokkaus,  ///< edit the tariffs and choose one
  Valinta    ///< choose one: the supply isn't the building's own, and a saving measure doesn't change tariffs
};
