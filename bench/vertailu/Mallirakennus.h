// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <memory>
#include <string>

#include "building/clsRakennus.h"

namespace mittaus {

/// The building that is measured: an office as the program's generator makes it, its space and structures repeated with
/// areas, volumes and temperatures of their own. Of every five structures one is a window with a window solution; the
/// others are walls, roofs and floors with solutions of the structure library and their layers, of four decades. Ten
/// consumer groups of electricity, half of them in spaces. It is made the global building.
std::unique_ptr<clsRakennus> TeeMallirakennus(int tiloja, int rakenteita);
/// Adds ventilation machines, spread over the spaces: both ways of entering the schedule, whose 35 periods all have
/// times and flows of their own; all four principles; heat recovery in the machines that have it.
void LisaaKoneet(clsRakennus& rakennus, int koneita);

/// The spaces and structures of the building of the main table.
inline constexpr int kTiloja = 100, kRakenteita = 30;
/// Structures of a space where the growth is measured.
inline constexpr int kKasvunRakenteita = 5;
/// Machines of the building with ventilation; where the growth is measured, spaces that have one machine together.
inline constexpr int kKoneita = 20, kTilojaKoneella = 5;

/// Folder of the project files: on the disk that the program's data is on, new and empty; removed at the end.
const std::string& Mittauskansio();

/// Objects of the tree, the building among them.
int Olioita(clsRakennus& rakennus);

}  // namespace mittaus
