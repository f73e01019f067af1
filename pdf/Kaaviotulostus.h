// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once
#include <QPainter>

#include "results/raportti/Raportti.h"

/// Paints a chart as the screen has it into a rectangle of a page, whose device has so many dots to the inch.
void TulostaKaavio(QPainter& maalain, const QRectF& alue, int resoluutio, const Raporttikaavio& kaavio);
