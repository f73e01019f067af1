// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "ui/Ohjain.h"

class clsRakenne;

/// Section through a structure with the temperatures of the coldest day: the room at Tsisa °C, behind the structure the
/// design outdoor temperature of the building's weather zone (building code D5), or the room's where there is a space
/// at room temperature behind it. The heading tells both. Without a solution there are no layers.
Kaaviotiedot Rakenneleikkaus(const clsRakenne& rakenne, double Tsisa);
