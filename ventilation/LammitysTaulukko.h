// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include "kernel/Laskenta.h"
#include "kernel/Variantti.h"

/// The set-point lies within the table, 15 to 30 °C.
bool OnLammitystaulukonLampotila(double T);

/// Energy that warms a flow of q m³/s from outdoors to T °C, running in the hour h of every day of the month, kWh a
/// month. kk is 1 to 12, h is 1 (from midnight) to 24, S the degree days of the locality, °C d.
/// Linear in T between the tables of 15 °C and 30 °C. Outside the ranges error 1015 (T), 1016 (h) or 1017 (kk), and 0.
/// The table holds the energy by month and hour of the day for a climate of 4444 degree days, kWh for 1 m³/s; the
/// result is scaled by S / 4444.  Source: as given for this method.
double LammitysKerroin(int kk, int h, double T, double q, double S);
/// By month the same for a running time of every day, the sum of its hours and part hours. One that ends when it begins
/// or before that goes on over midnight: equal times are a whole day. Exact sums of the table, whatever the times.
Kuukausitaulu LammitysKertoimet(Kellonaika alkaa, Kellonaika paattyy, double T, double q, double S);
